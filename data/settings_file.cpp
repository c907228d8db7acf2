#include "data/settings_file.h"

#include <algorithm>
#include <utility>

#include "data/file_replace.h"

namespace orvane {

namespace {

constexpr std::size_t kLargestFile = 16 * 1024 * 1024;

bool CanBeSectionName(TextView path) {
  return std::none_of(path.begin(), path.end(), [](Char c) { return c < 0x20; });
}

}  // namespace

bool SettingsFile::OpenKey(TextView path) {
  CloseKey();
  if (!CanBeSectionName(path)) return false;
  FileContent file = ReadWholeFile(path_, kLargestFile);
  if (file.state == FileState::kUnreadable) return false;
  const bool same = snapshot_ && snapshot_->section == path && snapshot_->bytes == file.bytes;
  if (!same) {
    SettingsDocument document(path, file.bytes);
    snapshot_ = Snapshot{Text(path), std::move(file.bytes), std::move(document)};
  }
  open_ = true;
  return true;
}

void SettingsFile::CloseKey() {
  if (open_ && changed_) {
    std::string bytes = snapshot_->document.Bytes();
    if (ReplaceFile(path_, bytes)) {
      snapshot_->bytes = std::move(bytes);
    } else {
      snapshot_.reset();  // what could not be kept is not there the next time either
    }
  }
  open_ = false;
  changed_ = false;
}

const SettingValue* SettingsFile::Find(TextView name) const {
  return open_ ? snapshot_->document.Find(name) : nullptr;
}

void SettingsFile::Write(TextView name, SettingValue value) {
  if (open_ && snapshot_->document.Set(name, std::move(value))) changed_ = true;
}

}  // namespace orvane
