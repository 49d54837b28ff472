#pragma once

#include "league/TeamTable.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace iceline {

/// The end of every line that the program writes.
inline constexpr std::string_view LineEnd = "\r\n";

/// An item of a data file as it is there, quotes included, for items that are passed on unread.
struct RawItem {
    std::string written = "0";

    static RawItem text(std::string_view text) { return {'"' + std::string(text) + '"'}; }

    friend bool operator==(const RawItem&, const RawItem&) = default;
};

/// The largest size of a counter: more than any season gives, and so small that a few of them add up within
/// an int.
inline constexpr int LargestCounter = 500'000'000;

/// Whether the last line of a file may lack its line end. A file that only the program writes must have it:
/// without, the file was cut and its last item may have lost digits.
enum class LastLine { MustEnd, MayLackEnd };

/// Reads a data file item by item. Items are separated by commas and line ends (CR LF or LF); a text is in
/// double quotes or runs to the next comma or line end; a blank item reads as 0 or as the empty text.
///
/// Every reader throws FileError naming the file, the line, the item in that line, the field asked for and
/// what stood there, when the file is at its end or the item does not fit.
class ItemReader {
public:
    /// `content` is read as textOfFile() says and must outlive the reader. `file` is the name used in
    /// messages.
    ItemReader(std::string file, std::string_view content, LastLine lastLine = LastLine::MustEnd);
    ItemReader(const ItemReader&) = delete;
    ItemReader& operator=(const ItemReader&) = delete;

    /// True when no item is left.
    bool atEnd() const { return position_ >= content_.size(); }

    /// A whole number of 16 or 32 bits; a fraction is rounded to it, a tie to the even number.
    int integer16(std::string_view field);
    int integer32(std::string_view field);

    /// The same up to LargestCounter.
    int counter(std::string_view field);

    /// A team of the league, by its number.
    TeamIndex team(std::string_view field);

    double number(std::string_view field);
    std::string text(std::string_view field);
    RawItem raw(std::string_view field);

    /// None for a blank item.
    std::optional<double> optionalNumber(std::string_view field);
    std::optional<std::string> optionalText(std::string_view field);

    /// Throws the error that says `wrong` of the item read last.
    [[noreturn]] void reject(std::string_view field, const std::string& wrong) const;

private:
    std::string_view next(std::string_view field);
    std::string_view quotedItem(std::string_view field);
    void passSeparator(std::string_view field);
    int integer(std::string_view field, double lowest, double highest);

    std::string file_;
    std::string decoded_; ///< the content, when it is not what is in the file
    std::string_view content_;
    std::size_t position_ = 0;
    int line_ = 1;
    int item_ = 0;
    bool startsLine_ = true;
};

/// Builds the text of a data file line by line. What the file cannot hold throws FileError naming the file,
/// the line, the item in that line and its field.
class LineWriter {
public:
    /// `file` is the name used in messages.
    explicit LineWriter(std::string file) : file_(std::move(file)) {}

    LineWriter& number(double value);
    LineWriter& integer(int value);
    LineWriter& team(TeamIndex value);

    /// A whole number of 16 bits, or of 32 bits below the highest one, at which addTo() stops counting.
    LineWriter& integer16(std::string_view field, int value);
    LineWriter& integer32(std::string_view field, int value);
    LineWriter& counter(std::string_view field, int value);

    /// A text in double quotes, which holds neither a double quote nor a line end.
    LineWriter& text(std::string_view field, std::string_view value);

    /// An item as it is; the empty one is a blank item.
    LineWriter& raw(std::string_view item);

    LineWriter& endLine();

    const std::string& content() const { return content_; }

private:
    [[noreturn]] void reject(std::string_view field, const std::string& wrong) const;
    void requireFits(std::string_view field, int value, int lowest, int highest) const;

    std::string file_;
    std::string content_;
    int line_ = 1;
    int items_ = 0; ///< written in this line
};

} // namespace iceline
