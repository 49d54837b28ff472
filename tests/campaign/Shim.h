#pragma once

#include <string>

namespace shim {

/// What a call does, as far as faults differ.
enum Call : unsigned {
    Look = 1,
    OpenToRead = 2,
    Read = 4,
    OpenToWrite = 8,
    Write = 16,
    Name = 32,
    Sync = 64,
    Close = 128
};

/// The path in the folder, "." for the folder itself; nothing for any other path or handle.
std::string inRoot(const char* path);
std::string pathOf(int handle);

/// Remembers what a handle is open on, until it is closed.
void opened(int handle, const std::string& path);
void closed(int handle);

/// Counts a call about the folder; true when it must fail, with errno set (0 to do half of a write).
bool fails(Call call);

/// Whether the program is to be killed in this change of the folder; dieIfDue() kills it then.
bool diesNow();
void dieIfDue();

/// Counts a sync; false when it is to be lost.
bool takesSync();

/// Adds a line to the record.
void note(const std::string& line);

} // namespace shim
