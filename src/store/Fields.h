#pragma once

#include "store/TextFormat.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace iceline {

/// One field of a typed record: its name and what it is in the file. The initial value is that of the
/// record's member.
template <class Record>
struct Field {
    /// Kinds of whole numbers are told apart by the width that the file holds.
    enum class Width { None, Bits16, Counter, Bits32 };

    using Member = std::variant<int Record::*, double Record::*, std::string Record::*, RawItem Record::*,
                                TeamIndex Record::*, std::optional<double> Record::*,
                                std::optional<std::string> Record::*>;

    std::string_view name;
    Width width;
    Member member;
};

/// A 16-bit whole number.
template <class Record>
constexpr Field<Record> i16(std::string_view name, int Record::*member) {
    return {name, Field<Record>::Width::Bits16, member};
}

/// What is counted from game to game, as LargestCounter says.
template <class Record>
constexpr Field<Record> counter(std::string_view name, int Record::*member) {
    return {name, Field<Record>::Width::Counter, member};
}

/// A 32-bit whole number.
template <class Record>
constexpr Field<Record> i32(std::string_view name, int Record::*member) {
    return {name, Field<Record>::Width::Bits32, member};
}

/// Any other kind: a team of the league, a real number (double), a text, an item passed on as it is, a
/// number or text that may be blank.
template <class Record, class Value>
constexpr Field<Record> item(std::string_view name, Value Record::*member) {
    return {name, Field<Record>::Width::None, member};
}

/// The table of a record's fields in file order; specialised beside each record.
template <class Record>
std::span<const Field<Record>> fieldsOf();

namespace detail {

template <class Record>
struct FieldReader {
    ItemReader& reader;
    const Field<Record>& field;
    Record& record;

    void operator()(int Record::*member) const {
        using Width = typename Field<Record>::Width;
        record.*member = field.width == Width::Bits16    ? reader.integer16(field.name)
                         : field.width == Width::Counter ? reader.counter(field.name)
                                                         : reader.integer32(field.name);
    }
    void operator()(TeamIndex Record::*member) const { record.*member = reader.team(field.name); }
    void operator()(double Record::*member) const { record.*member = reader.number(field.name); }
    void operator()(std::string Record::*member) const { record.*member = reader.text(field.name); }
    void operator()(RawItem Record::*member) const { record.*member = reader.raw(field.name); }
    void operator()(std::optional<double> Record::*member) const {
        record.*member = reader.optionalNumber(field.name);
    }
    void operator()(std::optional<std::string> Record::*member) const {
        record.*member = reader.optionalText(field.name);
    }
};

template <class Record>
struct FieldWriter {
    LineWriter& writer;
    const Field<Record>& field;
    const Record& record;

    void operator()(int Record::*member) const {
        using Width = typename Field<Record>::Width;
        const int value = record.*member;
        field.width == Width::Bits16    ? writer.integer16(field.name, value)
        : field.width == Width::Counter ? writer.counter(field.name, value)
                                        : writer.integer32(field.name, value);
    }
    void operator()(TeamIndex Record::*member) const { writer.team(record.*member); }
    void operator()(double Record::*member) const { writer.number(record.*member); }
    void operator()(std::string Record::*member) const { writer.text(field.name, record.*member); }
    void operator()(RawItem Record::*member) const { writer.raw((record.*member).written); }
    void operator()(std::optional<double> Record::*member) const {
        record.*member ? writer.number(*(record.*member)) : writer.raw("");
    }
    void operator()(std::optional<std::string> Record::*member) const {
        record.*member ? writer.text(field.name, *(record.*member)) : writer.raw("");
    }
};

} // namespace detail

inline constexpr std::size_t AllFields = std::dynamic_extent;

/// Reads the fields of a record in file order, or only the first `count` of them.
template <class Record>
void readFields(ItemReader& reader, Record& record, std::size_t count = AllFields) {
    const auto fields = fieldsOf<Record>();
    for (const Field<Record>& field : fields.first(std::min(count, fields.size())))
        std::visit(detail::FieldReader<Record>{reader, field, record}, field.member);
}

/// Writes the fields of a record in file order, without the end of the line. Throws FileError as LineWriter
/// does when a value does not fit the file.
template <class Record>
void writeFields(LineWriter& writer, const Record& record) {
    for (const Field<Record>& field : fieldsOf<Record>())
        std::visit(detail::FieldWriter<Record>{writer, field, record}, field.member);
}

/// Adds to a 32-bit counter of a record. A sum that 32 bits cannot hold stops at the highest number, which
/// writeFields() then refuses.
template <class Record>
void addTo(Record& record, int Record::*counter, int amount) {
    const std::int64_t sum = std::int64_t{record.*counter} + amount;
    record.*counter = static_cast<int>(std::min<std::int64_t>(sum, std::numeric_limits<int>::max()));
}

/// The text of a file that holds one record on one line.
template <class Record>
std::string lineOf(const std::string& file, const Record& record) {
    LineWriter writer(file);
    writeFields(writer, record);
    return writer.endLine().content();
}

} // namespace iceline
