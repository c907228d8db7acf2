// Settings in one text file that a person can read and edit (settings_line.h and settings_document.h
// give its form). A key is a section of the file.
//
// The file is read when a key is opened, so what a person changed meanwhile counts, and written when
// the key is closed and a value changed, in one step that leaves the old file whole if it fails. There
// are no messages. A file that is there but cannot be read (or that no settings file could be: a
// folder, a device, more than 16 MB) is not touched: its keys cannot be opened.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "data/settings_document.h"
#include "data/settings_store.h"

namespace orvane {

class SettingsFile : public SettingsStore {
 public:
  // The file need not exist, nor its folder.
  explicit SettingsFile(std::string path) : path_(std::move(path)) {}
  ~SettingsFile() override { SettingsFile::CloseKey(); }
  SettingsFile(const SettingsFile&) = delete;
  SettingsFile& operator=(const SettingsFile&) = delete;

  // A path that cannot stand in a section's line, one with control characters, cannot be opened.
  bool OpenKey(TextView path) override;
  void CloseKey() override;
  const SettingValue* Find(TextView name) const override;
  void Write(TextView name, SettingValue value) override;

 private:
  // The section as it was when the key was last open, and the file's bytes that it was made from. Most
  // keys are opened many times in a row, and equal bytes need not be taken apart again.
  struct Snapshot {
    Text section;
    std::string bytes;
    SettingsDocument document;
  };

  std::string path_;
  std::optional<Snapshot> snapshot_;
  bool open_ = false;     // only with a snapshot
  bool changed_ = false;  // since the key was opened
};

}  // namespace orvane
