// The program's settings: named values under one key of a store. The key path is set once; each screen
// opens the key, reads or writes its own values, and closes it. Every read takes the default that
// stands in for a value that is missing or cannot be read, so a first run needs no preparation. There
// are no messages: without an open key reads give their defaults and writes do nothing.
//
// Reads look at the size of the stored bytes, never at the kind they were written as:
//
//   stored as (example)    bytes                 Exists  ReadLong  ReadBool  ReadDouble  ReadString
//   long -5                fb ff ff ff           yes     -5        true      default     U+FFFB U+FFFF, 3
//   bool true              01 00 00 00           yes     1         true      default     U+0001, 3
//   long 0                 00 00 00 00           yes     0         false     default     default
//   double                 8 bytes               no      default   default   the number  if it is a text
//   string ""              00 00                 yes     default   default   default     "", 1
//   string "a"             61 00 00 00           yes     97        true      default     "a", 3
//   string "abc"           61 .. 00 00 (8)       no      default   default   its 8 bytes "abc", 7
//   string of 255          512 bytes             no      default   default   default     all, 511
//   string of 256 or more  514 bytes or more     no      default   default   default     default
//   binary, n bytes        n bytes               n <= 4  n = 4     n = 4     n = 8       if it is a text
//
// Bytes are a text when there are 2 to 512 of them, an even number, low byte first, with no zero
// character but perhaps the last, which is left off. ReadBinary takes the bytes of any kind.
//
// Names are the unit's name, a dot and the setting's: "wnd_plot.Cur.xCat". Entries of a list carry
// their index, "wnd_element.Preset[0].Val[2]", and their number stands beside them,
// "wnd_element.Preset[0].Count".
#pragma once

#include <cstdint>
#include <span>

#include "base/text.h"
#include "data/settings_store.h"

namespace orvane {

class ZelRegistry {
 public:
  // In characters; the rest of a longer path is cut.
  static constexpr std::size_t kLongestKeyPath = 255;

  // The store outlives the registry.
  explicit ZelRegistry(SettingsStore& store) : store_(store) {}
  ~ZelRegistry() { Close(); }
  ZelRegistry(const ZelRegistry&) = delete;
  ZelRegistry& operator=(const ZelRegistry&) = delete;

  // Takes effect with the next Open.
  void SetKey(TextView path) { keyPath_ = path.substr(0, kLongestKeyPath); }
  // Opens the key, making it when it is missing. Does nothing when it is open already.
  void Open();
  // Closes the key when it is open; the store keeps what was written.
  void Close();

  void WriteLong(TextView name, std::int32_t value);
  void WriteBool(TextView name, bool value);
  void WriteDouble(TextView name, double value);
  // The characters before the first zero character, and a terminating zero.
  void WriteString(TextView name, TextView value);
  void WriteBinary(TextView name, std::span<const std::uint8_t> bytes);

  // True when there is a value of at most 4 bytes.
  bool Exists(TextView name) const;
  std::int32_t ReadLong(TextView name, std::int32_t defaultValue) const;
  bool ReadBool(TextView name, bool defaultValue) const;
  double ReadDouble(TextView name, double defaultValue) const;
  // Returns the stored size in bytes less one, which is not the length of the text (7 for "abc"); with
  // the default, the default's length in characters.
  std::int32_t ReadString(TextView name, Text& destination, TextView defaultValue) const;
  // Copies what fits into the buffer and returns the number of bytes copied. With an empty buffer it
  // returns the stored size. -1 when there is no such value.
  std::int32_t ReadBinary(TextView name, std::span<std::uint8_t> buffer) const;

 private:
  // The stored bytes of exactly that many; null otherwise.
  const std::uint8_t* FindBytes(TextView name, std::size_t size) const;
  const SettingValue* Find(TextView name) const { return open_ ? store_.Find(name) : nullptr; }
  void Write(TextView name, SettingKind kind, std::span<const std::uint8_t> bytes);

  SettingsStore& store_;
  Text keyPath_;
  bool open_ = false;
};

}  // namespace orvane
