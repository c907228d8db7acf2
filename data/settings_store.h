// Where settings live: keys by path, and under each key named values. A value is its bytes and the
// kind it was written as; who reads it decides what the bytes mean (zel_registry.h).
#pragma once

#include <cstdint>
#include <vector>

#include "base/text.h"

namespace orvane {

enum class SettingKind {
  kLong,    // 4 bytes, little-endian; whole numbers and booleans
  kBinary,  // any bytes; floating-point numbers as their 8 bytes in memory order
  kString,  // 16-bit characters, low byte first, and a zero character
};

struct SettingValue {
  SettingKind kind = SettingKind::kBinary;
  std::vector<std::uint8_t> bytes;
  friend bool operator==(const SettingValue&, const SettingValue&) = default;
};

// One key can be open at a time. Find and Write act on it, and find and do nothing when none is open.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  // Opens a key, making it when it does not exist; a key that is still open is closed first. False
  // when it cannot be had.
  virtual bool OpenKey(TextView path) = 0;
  // What was written is kept at the latest now; there is no report when it cannot be.
  virtual void CloseKey() = 0;

  // The value of that name, or null. It stays valid until the next Write, OpenKey or CloseKey.
  virtual const SettingValue* Find(TextView name) const = 0;
  virtual void Write(TextView name, SettingValue value) = 0;
};

}  // namespace orvane
