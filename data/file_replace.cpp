#include "data/file_replace.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace orvane {

namespace {

namespace fs = std::filesystem;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePointer = std::unique_ptr<std::FILE, FileCloser>;

// The end of a chain of symbolic links, which need not exist; nothing when the chain is a circle.
std::optional<fs::path> FollowLinks(fs::path path) {
  constexpr int kLongestChain = 40;
  std::error_code error;
  for (int i = 0; i < kLongestChain; ++i) {
    if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
    const fs::path target = fs::read_symlink(path, error);
    if (error) return std::nullopt;
    path = target.is_absolute() ? target : path.parent_path() / target;
  }
  return std::nullopt;
}

bool MayBeWritten(const fs::path& path) {
  return FilePointer(std::fopen(path.string().c_str(), "r+b")) != nullptr;
}

// A file that did not exist before, beside `target`, open for writing; null when there can be none.
FilePointer MakeTemporary(const fs::path& target, fs::path& temporary) {
  constexpr int kAttempts = 16;
  const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
  for (int i = 0; i < kAttempts; ++i) {
    temporary = target;
    temporary += '.';
    temporary += std::to_string(ticks + i);
    temporary += ".tmp";
    if (FilePointer file(std::fopen(temporary.string().c_str(), "wbx")); file != nullptr) return file;
  }
  return nullptr;
}

bool WriteAndClose(FilePointer file, std::string_view bytes) {
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  // Closing writes what is still buffered, so its failure counts.
  const bool closed = std::fclose(file.release()) == 0;
  return written && closed;
}

}  // namespace

FileContent ReadWholeFile(const std::string& path, std::size_t limit) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) return {FileState::kAbsent, {}};
  if (!fs::is_regular_file(status)) return {};
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) return {};

  FileContent content;
  constexpr std::size_t kBlock = 16 * 1024;
  std::size_t size = 0;
  while (file.good() && size <= limit) {
    content.bytes.resize(size + kBlock);
    file.read(content.bytes.data() + size, kBlock);
    size += static_cast<std::size_t>(file.gcount());
  }
  if (file.bad() || size > limit) return {};
  content.bytes.resize(size);
  content.state = FileState::kRead;
  return content;
}

bool ReplaceFile(const std::string& path, std::string_view bytes) {
  const std::optional<fs::path> target = FollowLinks(path);
  if (!target) return false;
  std::error_code error;
  const fs::file_status old = fs::status(*target, error);
  const bool isNew = old.type() == fs::file_type::not_found;
  if (!isNew && (!fs::is_regular_file(old) || !MayBeWritten(*target))) return false;
  if (target->has_parent_path()) fs::create_directories(target->parent_path(), error);

  fs::path temporary;
  FilePointer file = MakeTemporary(*target, temporary);
  if (file == nullptr) return false;
  std::error_code failure;
  if (!isNew) fs::permissions(temporary, old.permissions(), failure);
  const bool written = WriteAndClose(std::move(file), bytes) && !failure;
  if (written) fs::rename(temporary, *target, failure);
  if (written && !failure) return true;
  fs::remove(temporary, error);
  return false;
}

}  // namespace orvane
