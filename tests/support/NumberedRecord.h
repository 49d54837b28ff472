#pragma once

#include "store/Fields.h"

#include <variant>

namespace iceline::test {

/// A record whose numbers all differ: a whole number is its place in the line, counted from 1, a real number
/// that and a half. Texts keep their initial values.
template <class Record>
Record numberedRecord() {
    Record record;
    int place = 0;
    for (const Field<Record>& field : fieldsOf<Record>()) {
        ++place;
        if (const auto* whole = std::get_if<int Record::*>(&field.member))
            record.*(*whole) = place;
        if (const auto* real = std::get_if<double Record::*>(&field.member))
            record.*(*real) = place + 0.5;
    }
    return record;
}

} // namespace iceline::test
