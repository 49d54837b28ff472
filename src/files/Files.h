#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace iceline {

struct Change;

/// When a change has to be on the disk: before the call returns, at the next Files::sync(), or whenever the
/// operating system sees fit (pages, which can be made again).
enum class Durability { Now, Later, Unsynced };

/// All file access of the program. A path is relative to the league folder and written with '/'; an
/// absolute path (a save state that the user chose) is taken as given; "" is the league folder itself.
/// Names are bytes (UTF-8 on Windows).
///
/// Every operation throws FileError when it cannot do what it says; its message names the file. A relative
/// path that leads out of the league folder is refused by all of them.
class Files {
public:
    virtual ~Files() = default;

    /// The bytes of the largest file that is read whole.
    static constexpr std::uintmax_t LargestFile = 64u << 20;

    /// The whole content of a file. One that is larger than LargestFile is not read.
    virtual std::string read(const std::string& path) = 0;

    /// The first `limit` bytes of a file, or all of it when it is shorter.
    virtual std::string readFirst(const std::string& path, std::size_t limit) = 0;

    /// Whether there is a file of exactly that content.
    virtual bool holds(const std::string& path, std::string_view content);

    /// Makes `content` the content of the file, new or not. A reader sees the old content or the new one,
    /// never a part; only a file that is new and Unsynced can be seen while it grows. The folder must exist.
    virtual void write(const std::string& path, std::string_view content,
                       Durability durability = Durability::Now) = 0;

    /// Cuts the file to its first `length` bytes (all of it when it is shorter) and appends `content` to
    /// them; a missing file counts as empty. On an error the file is cut back to `length`, where the disk
    /// allows it.
    virtual void extend(const std::string& path, std::uintmax_t length, std::string_view content,
                        Durability durability = Durability::Now) = 0;

    /// Removes a file; nothing happens when there is none. That names have come or gone is brought to the
    /// disk by sync(), here as for folders.
    virtual void remove(const std::string& path) = 0;

    /// Gives a file or folder another name. Nothing may have it but the file or folder itself, as one of
    /// another spelling.
    virtual void rename(const std::string& path, const std::string& name);

    /// Creates a folder and what is missing above it; nothing happens when it exists.
    virtual void makeFolder(const std::string& path) = 0;

    /// Removes an empty folder; nothing happens when there is none.
    virtual void removeFolder(const std::string& path) = 0;

    virtual bool isFile(const std::string& path) = 0;
    virtual bool isFolder(const std::string& path) = 0;

    /// Whether a link leads the path of the league out of its folder.
    virtual bool leadsOut(const std::string& path);

    /// Size of a file in bytes, 0 for a missing one.
    virtual std::uintmax_t size(const std::string& path) = 0;

    /// Names of the regular files in a folder, in the order of nameBefore(). The folder must exist.
    virtual std::vector<std::string> filesIn(const std::string& folder) = 0;

    /// Names of the sub-folders of a folder, in the same order.
    virtual std::vector<std::string> foldersIn(const std::string& folder) = 0;

    /// Tries whether the changes can be made, one after the other, without making any: names fit, files can
    /// be made and replaced, folders that go hold nothing else. Throws FileError for the first that cannot.
    /// Files that cannot fail need not try.
    virtual void tryOut(const std::vector<Change>& changes) { static_cast<void>(changes); }

    /// Brings everything to the disk that was changed with Durability::Later.
    virtual void sync() = 0;

    /// Adds `content` at the end of a file, which is created when missing.
    void append(const std::string& path, std::string_view content) { extend(path, size(path), content); }
};

/// True for a path that names something in the league folder, or the folder itself: relative, without an
/// element "..".
bool isInLeague(const std::string& path);

/// Throws FileError for a path that is relative and yet leads out of the league folder.
void refuseOutsideLeague(const std::string& path);

/// The folder that a file or folder is in, "" for the league folder.
std::string folderOf(const std::string& path);

} // namespace iceline
