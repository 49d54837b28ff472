#include "store/TextFormat.h"

#include "files/FileError.h"
#include "league/Numbers.h"
#include "text/Text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace iceline {

namespace {

std::string_view withoutBlanks(std::string_view item) {
    const auto first = item.find_first_not_of(" \t");
    return first == std::string_view::npos ? ""
                                           : item.substr(first, item.find_last_not_of(" \t") - first + 1);
}

} // namespace

ItemReader::ItemReader(std::string file, std::string_view content, LastLine lastLine)
    : file_(std::move(file)), content_(content) {
    if (lastLine == LastLine::MustEnd && !content.empty() && content.back() != '\n')
        throw FileError::about(file_, "the file is cut: its last line has no end");
    if (!isPlainUtf8(content_)) {
        decoded_ = textOfFile(std::string(content_));
        content_ = decoded_;
    }
}

std::string_view ItemReader::next(std::string_view field) {
    if (startsLine_ && item_ > 0) {
        ++line_;
        item_ = 0;
    }
    ++item_;
    if (atEnd())
        throw FileError::malformed(file_, line_, item_, std::string(field), "the file ends before it");
    if (content_[position_] == '"')
        return quotedItem(field);
    const auto end = std::min(content_.find_first_of(",\r\n", position_), content_.size());
    const std::string_view item = content_.substr(position_, end - position_);
    position_ = end;
    passSeparator(field);
    return item;
}

std::string_view ItemReader::quotedItem(std::string_view field) {
    const auto close = content_.find_first_of("\"\r\n", position_ + 1);
    if (close == std::string_view::npos || content_[close] != '"')
        reject(field, "the text has no closing quote");
    const std::string_view item = content_.substr(position_, close + 1 - position_);
    position_ = close + 1;
    passSeparator(field);
    return item;
}

void ItemReader::passSeparator(std::string_view field) {
    startsLine_ = false;
    if (position_ >= content_.size())
        return;
    if (content_[position_] == ',') {
        ++position_;
        return;
    }
    if (content_[position_] == '\r')
        ++position_;
    if (position_ < content_.size() && content_[position_] == '\n')
        ++position_;
    else if (content_[position_ - 1] != '\r')
        reject(field, "a comma or the end of the line is missing after it");
    startsLine_ = true;
}

void ItemReader::reject(std::string_view field, const std::string& wrong) const {
    throw FileError::malformed(file_, line_, item_, std::string(field), wrong);
}

double ItemReader::number(std::string_view field) {
    return optionalNumber(field).value_or(0);
}

std::optional<double> ItemReader::optionalNumber(std::string_view field) {
    const std::string_view item = withoutBlanks(next(field));
    if (item.empty())
        return std::nullopt;
    double value = 0;
    const auto [end, error] =
        std::from_chars(item.data(), item.data() + item.size(), value, std::chars_format::fixed);
    if (error != std::errc() || end != item.data() + item.size() || !std::isfinite(value))
        reject(field, "a number was expected, not " +
                          (item.front() == '"' ? std::string(item) : '"' + std::string(item) + '"'));
    return value;
}

int ItemReader::integer(std::string_view field, double lowest, double highest) {
    const double value = std::nearbyint(number(field));
    if (value < lowest || value > highest)
        reject(field, "a whole number from " + numberText(lowest) + " to " + numberText(highest) +
                          " was expected, not " + numberText(value));
    return static_cast<int>(value);
}

int ItemReader::integer16(std::string_view field) {
    return integer(field, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
}

int ItemReader::integer32(std::string_view field) {
    return integer(field, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
}

int ItemReader::counter(std::string_view field) {
    return integer(field, -LargestCounter, LargestCounter);
}

TeamIndex ItemReader::team(std::string_view field) {
    const TeamIndex team(integer16(field));
    if (!isLeagueTeam(team))
        reject(field, "no team of the league has the number " + numberText(team.number()));
    return team;
}

std::string ItemReader::text(std::string_view field) {
    return optionalText(field).value_or("");
}

std::optional<std::string> ItemReader::optionalText(std::string_view field) {
    const std::string_view item = next(field);
    if (item.empty())
        return std::nullopt;
    return std::string(item.front() == '"' ? item.substr(1, item.size() - 2) : item);
}

RawItem ItemReader::raw(std::string_view field) {
    return {std::string(next(field))};
}

void LineWriter::reject(std::string_view field, const std::string& wrong) const {
    throw FileError::malformed(file_, line_, items_ + 1, std::string(field), wrong);
}

void LineWriter::requireFits(std::string_view field, int value, int lowest, int highest) const {
    if (value < lowest || value > highest)
        reject(field, std::to_string(value) + " is more than the league's files can hold");
}

LineWriter& LineWriter::raw(std::string_view item) {
    if (items_ > 0)
        content_ += ',';
    content_ += item;
    ++items_;
    return *this;
}

LineWriter& LineWriter::number(double value) {
    return raw(numberText(value));
}

LineWriter& LineWriter::integer(int value) {
    return raw(std::to_string(value));
}

LineWriter& LineWriter::team(TeamIndex value) {
    return integer(value.number());
}

LineWriter& LineWriter::integer16(std::string_view field, int value) {
    requireFits(field, value, std::numeric_limits<std::int16_t>::min(),
                std::numeric_limits<std::int16_t>::max());
    return integer(value);
}

LineWriter& LineWriter::integer32(std::string_view field, int value) {
    requireFits(field, value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max() - 1);
    return integer(value);
}

LineWriter& LineWriter::counter(std::string_view field, int value) {
    requireFits(field, value, -LargestCounter, LargestCounter);
    return integer(value);
}

LineWriter& LineWriter::text(std::string_view field, std::string_view value) {
    if (value.find_first_of("\"\r\n") != std::string_view::npos)
        reject(field, "a text with a double quote or a line end cannot be stored: " + std::string(value));
    return raw('"' + std::string(value) + '"');
}

LineWriter& LineWriter::endLine() {
    content_ += LineEnd;
    ++line_;
    items_ = 0;
    return *this;
}

} // namespace iceline
