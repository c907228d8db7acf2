// Builds the bytes of data files for tests, field by field in file order. It writes what it is told,
// wrong counts included, so that damaged files can be made as easily as sound ones.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

#include "base/text.h"

namespace orvane::testing {

class DatWriter {
 public:
  DatWriter& Byte(unsigned value) {
    bytes_.push_back(static_cast<char>(static_cast<unsigned char>(value)));
    return *this;
  }
  DatWriter& Raw(std::string_view bytes) {
    bytes_ += bytes;
    return *this;
  }
  DatWriter& Short(int value) {
    const unsigned bits = static_cast<unsigned>(value);
    return Byte(bits & 0xFF).Byte((bits >> 8) & 0xFF);
  }
  DatWriter& Long(std::uint32_t value) { return Short(value & 0xFFFF).Short(static_cast<int>(value >> 16)); }
  DatWriter& Bool(bool value) { return Byte(value ? 'T' : 'F'); }
  DatWriter& ZeroTerminated(TextView text) { return Raw(Escaped(text)).Byte(0); }
  DatWriter& Counted(TextView text) {
    const std::string bytes = Escaped(text);
    return Short(static_cast<int>(bytes.size())).Raw(bytes);
  }

  // The parts of periodic.dat. Each count announces how many of the next parts follow.
  DatWriter& PeriodicHeader(int categoryCount) { return Long(0xFFE8EBDEu).Short(categoryCount); }
  DatWriter& Category(TextView name, int propertyCount) { return ZeroTerminated(name).Short(propertyCount); }
  DatWriter& Property(int id, TextView name, bool plottable, TextView units, int valueCount) {
    return Short(id).ZeroTerminated(name).Bool(plottable).ZeroTerminated(units).Short(valueCount);
  }
  DatWriter& Value(int atomicNumber, TextView text) { return Short(atomicNumber).Counted(text); }

  const std::string& Bytes() const { return bytes_; }

  void Save(const std::string& path) const {
    std::ofstream(path, std::ios::binary).write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
  }

 private:
  // One byte where one byte can say it; otherwise 02 and the character, low byte first.
  static std::string Escaped(TextView text) {
    std::string out;
    for (const Char c : text) {
      const bool plain = c != 0 && c != 2 && c < 0x100;
      if (!plain) out.push_back('\x02');
      out.push_back(static_cast<char>(c & 0xFF));
      if (!plain) out.push_back(static_cast<char>(c >> 8));
    }
    return out;
  }

  std::string bytes_;
};

}  // namespace orvane::testing
