#pragma once

#include <fmt/core.h>
#include <string>
#include <string_view>
#include <utility>

namespace iceline {

/// The text of a page as it grows. Markup is written as it will look, with a hole for each value:
/// page.line("<tr><td>{}</td></tr>", name). A literal whose holes and values do not match does not compile.
class PageText {
public:
    /// Adds text as it is.
    PageText& add(std::string_view text) {
        text_ += text;
        return *this;
    }

    /// Adds a literal with its holes filled.
    template <class Value, class... Values>
    PageText& add(fmt::format_string<Value, Values...> literal, Value&& value, Values&&... values) {
        return fill(literal, fmt::make_format_args(value, values...));
    }

    /// The same as add(), and ends the line.
    PageText& line(std::string_view text = "");
    template <class Value, class... Values>
    PageText& line(fmt::format_string<Value, Values...> literal, Value&& value, Values&&... values) {
        return fill(literal, fmt::make_format_args(value, values...)).line();
    }

    const std::string& text() const { return text_; }

private:
    PageText& fill(fmt::string_view literal, fmt::format_args values);

    std::string text_;
};

/// A piece of a page: a literal with its holes filled.
std::string filled(fmt::string_view literal, fmt::format_args values);
template <class Value, class... Values>
std::string markup(fmt::format_string<Value, Values...> literal, Value&& value, Values&&... values) {
    return filled(literal, fmt::make_format_args(value, values...));
}

} // namespace iceline
