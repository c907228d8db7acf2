// Reading a small file whole, and putting a new one in its place such that at every moment either the
// old or the new one is there, whole.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

enum class FileState {
  kRead,        // read whole
  kAbsent,      // nothing of that name exists; it may be made
  kUnreadable,  // there is something, but it is no file, cannot be read or is larger than the limit
};

struct FileContent {
  FileState state = FileState::kUnreadable;
  std::string bytes;
};

FileContent ReadWholeFile(const std::string& path, std::size_t limit);

// Writes the bytes to a new file in the same folder and renames it. Missing folders are made, a
// symbolic link is followed to what it names, and the permissions of the old file are kept. False,
// with the old file untouched, when any step fails, when the old file may not be written or when the
// name belongs to something that is not a file.
bool ReplaceFile(const std::string& path, std::string_view bytes);

}  // namespace orvane
