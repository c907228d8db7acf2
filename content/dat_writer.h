// Writes the encodings of the data files, the counterpart of the reader ZelBinary.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/text.h"

namespace orvane {

// The most bytes that a counted string can hold.
inline constexpr std::size_t kMaxCountedBytes = 65535;

class DatWriter {
 public:
  void Byte(unsigned value);        // its lowest eight bits
  void Long(std::uint32_t value);   // 4 bytes, low byte first
  void Short(std::uint16_t value);  // 2 bytes, low byte first
  void Bool(bool value);            // "T" or "F"

  // Escaped text behind its byte count. The caller keeps EscapedSize within kMaxCountedBytes.
  void CountedString(TextView text);

  // Escaped text up to a zero byte; a zero character inside is escaped and does not end it.
  void ZeroTerminatedString(TextView text);

  const std::string& Bytes() const { return bytes_; }

  // The bytes that a counted string's text takes: one for each unit up to U+00FF, three for every other unit
  // and for the escape byte itself.
  static std::size_t EscapedSize(TextView text);

 private:
  void Escaped(Char c);

  std::string bytes_;
};

}  // namespace orvane
