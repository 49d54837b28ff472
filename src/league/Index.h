#pragma once

#include <cstddef>

namespace iceline {

/// A row of a fixed table, numbered from 0. Each table has a type of its own, so that a team is never taken
/// for a roster row, nor a plain number for either; arrays that have the table's rows take it as their index.
template <class Table>
class Index {
public:
    constexpr Index() = default;
    constexpr explicit Index(int number) : number_(number) {}

    constexpr int number() const { return number_; }
    constexpr operator std::size_t() const { return static_cast<std::size_t>(number_); } // NOLINT

    constexpr Index& operator++() {
        ++number_;
        return *this;
    }

    friend constexpr bool operator==(const Index&, const Index&) = default;
    friend constexpr bool operator<(Index one, Index other) { return one.number_ < other.number_; }
    friend constexpr bool operator<=(Index one, Index other) { return one.number_ <= other.number_; }
    friend constexpr bool operator>(Index one, Index other) { return one.number_ > other.number_; }

private:
    int number_ = 0;
};

/// The first rows of a table, for a loop over them.
template <class Row>
class FirstRows {
public:
    class Iterator {
    public:
        constexpr explicit Iterator(Row row) : row_(row) {}
        constexpr Row operator*() const { return row_; }
        constexpr Iterator& operator++() {
            ++row_;
            return *this;
        }
        friend constexpr bool operator==(const Iterator&, const Iterator&) = default;

    private:
        Row row_;
    };

    constexpr explicit FirstRows(int count) : count_(count) {}

    constexpr Iterator begin() const { return Iterator(Row(0)); }
    constexpr Iterator end() const { return Iterator(Row(count_)); }

private:
    int count_;
};

} // namespace iceline
