#include "preview/SiteFolder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

namespace iceline {

namespace fs = std::filesystem;

namespace {

struct ContentType {
    std::string_view extension;
    const char* type;
};

constexpr std::array<ContentType, 21> ContentTypes{{
    {".htm", "text/html; charset=utf-8"},
    {".html", "text/html; charset=utf-8"},
    {".php", "text/html; charset=utf-8"},
    {".css", "text/css; charset=utf-8"},
    {".js", "text/javascript; charset=utf-8"},
    {".json", "application/json"},
    {".xml", "application/xml"},
    {".webmanifest", "application/manifest+json"},
    {".csv", "text/csv; charset=utf-8"},
    {".txt", "text/plain; charset=utf-8"},
    {".gif", "image/gif"},
    {".png", "image/png"},
    {".jpg", "image/jpeg"},
    {".jpeg", "image/jpeg"},
    {".webp", "image/webp"},
    {".svg", "image/svg+xml"},
    {".ico", "image/x-icon"},
    {".woff", "font/woff"},
    {".woff2", "font/woff2"},
    {".ttf", "font/ttf"},
    {".otf", "font/otf"},
}};

std::string contentType(const fs::path& file) {
    std::string extension = file.extension().string();
    std::ranges::transform(extension, extension.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    const auto found = std::ranges::find(ContentTypes, extension, &ContentType::extension);
    return found == ContentTypes.end() ? "application/octet-stream" : found->type;
}

/// The text with its %XX marks decoded, none when a mark is cut or no number.
std::optional<std::string> decoded(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            result += text[at];
            continue;
        }
        const std::string_view digits = text.substr(at + 1, 2);
        unsigned value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        if (digits.size() != 2 || error != std::errc() || end != digits.data() + 2)
            return std::nullopt;
        result += static_cast<char>(value);
        at += 2;
    }
    return result;
}

/// Whether a name can only mean something below the folder it is looked up in, on every system.
bool staysBelow(const std::string& name) {
    if (name.find_first_of(std::string_view("\\:\0", 3)) != name.npos)
        return false;
    const fs::path parts(name);
    return std::ranges::none_of(parts, [](const fs::path& part) { return part == ".."; });
}

SiteAnswer plain(unsigned status, std::string text) {
    SiteAnswer answer;
    answer.status = status;
    answer.body = std::move(text);
    return answer;
}

SiteAnswer notPublished() {
    return plain(404, "There is no home page yet. Generate the web pages first.\n");
}

/// Sends the browser on to a place of this site. More than one slash at its start would name another machine.
SiteAnswer moved(const std::string& target) {
    SiteAnswer answer = plain(301, "");
    answer.location = "/" + target.substr(target.find_first_not_of('/'));
    return answer;
}

fs::path frontPage(const fs::path& folder) {
    const fs::path page = folder / "index.htm";
    return fs::exists(page) ? page : folder / "index.php";
}

SiteAnswer content(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return plain(500, "The page cannot be read.\n");
    return {200, contentType(file), {std::istreambuf_iterator<char>(in), {}}, ""};
}

} // namespace

SiteAnswer SiteFolder::notFound() const {
    const fs::path page = folder_ / "404.html";
    std::error_code error;
    if (!fs::is_regular_file(page, error) || !holds(page))
        return plain(404, "There is no such page in this site.\n");
    SiteAnswer answer = content(page);
    answer.status = 404;
    return answer;
}

bool SiteFolder::holds(const fs::path& path) const {
    if (!fs::exists(path))
        return false;
    const fs::path root = fs::canonical(folder_);
    return std::ranges::mismatch(root, fs::canonical(path)).in1 == root.end();
}

SiteAnswer SiteFolder::answer(std::string_view target) const {
    const std::string_view asked = target.substr(0, target.find_first_of("?#"));
    if (!asked.starts_with('/'))
        return plain(400, "This is no address of a page.\n");
    const auto name = decoded(asked.substr(std::min(asked.find_first_not_of('/'), asked.size())));
    if (!name || name->starts_with('/') || !staysBelow(*name))
        return notFound();
    try {
        const fs::path place = folder_ / fs::path(std::u8string(name->begin(), name->end()));
        if (fs::is_directory(place) && !asked.ends_with('/') && holds(place))
            return moved(std::string(asked) + "/" + std::string(target.substr(asked.size())));
        const fs::path page = fs::is_directory(place) ? frontPage(place) : place;
        if (holds(page) && fs::is_regular_file(page))
            return content(page);
        return name->empty() ? notPublished() : notFound();
    } catch (const std::system_error&) {
        return notFound(); // the system takes it for no name of a file
    }
}

} // namespace iceline
