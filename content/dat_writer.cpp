#include "content/dat_writer.h"

namespace orvane {

namespace {

constexpr Char kEscape = 0x02;
constexpr bool NeedsEscape(Char c) { return c > 0xFF || c == kEscape; }

}  // namespace

void DatWriter::Byte(unsigned value) {
  bytes_.push_back(static_cast<char>(static_cast<unsigned char>(value & 0xFFu)));
}

void DatWriter::Long(std::uint32_t value) {
  for (unsigned shift = 0; shift < 32; shift += 8) Byte(value >> shift);
}

void DatWriter::Short(std::uint16_t value) {
  Byte(value);
  Byte(static_cast<unsigned>(value) >> 8);
}

void DatWriter::Bool(bool value) { Byte(value ? 'T' : 'F'); }

void DatWriter::Escaped(Char c) {
  Byte(kEscape);
  Short(static_cast<std::uint16_t>(c));
}

void DatWriter::CountedString(TextView text) {
  Short(static_cast<std::uint16_t>(EscapedSize(text)));
  for (const Char c : text) NeedsEscape(c) ? Escaped(c) : Byte(c);
}

void DatWriter::ZeroTerminatedString(TextView text) {
  for (const Char c : text) NeedsEscape(c) || c == 0 ? Escaped(c) : Byte(c);
  Byte(0);
}

std::size_t DatWriter::EscapedSize(TextView text) {
  std::size_t size = 0;
  for (const Char c : text) size += NeedsEscape(c) ? 3 : 1;
  return size;
}

}  // namespace orvane
