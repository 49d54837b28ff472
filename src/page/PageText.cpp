// All of {fmt} that the program needs is compiled here, so that it need not be there as a library.
#define FMT_HEADER_ONLY
#include "page/PageText.h"

#include "store/TextFormat.h"

#include <fmt/format.h>
#include <iterator>

namespace iceline {

PageText& PageText::line(std::string_view text) {
    text_ += text;
    text_ += LineEnd;
    return *this;
}

PageText& PageText::fill(fmt::string_view literal, fmt::format_args values) {
    fmt::vformat_to(std::back_inserter(text_), literal, values);
    return *this;
}

std::string filled(fmt::string_view literal, fmt::format_args values) {
    return fmt::vformat(literal, values);
}

} // namespace iceline
