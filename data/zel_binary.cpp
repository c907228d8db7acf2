#include "data/zel_binary.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <limits>
#include <system_error>

namespace orvane {

namespace {

constexpr std::size_t kBufferSize = 16 * 1024;
constexpr std::int64_t kFarAway = std::numeric_limits<std::int64_t>::max();
// The readers of both kinds of strings report a closed file under the counted one's name.
constexpr TextView kStringsClosed =
    u"ZelBinary::ReadTCharFromChar_C() - attempted operation on a closed file";

constexpr unsigned char kEscape = 0x02;
constexpr unsigned char kTrue = 'T';

Char CharOf(unsigned char low, unsigned char high) { return static_cast<Char>(low | (high << 8)); }

// Decodes escaped text, keeping at most `limit` characters. False when an escape is not followed by
// its two bytes.
bool DecodeEscaped(const std::vector<unsigned char>& bytes, std::size_t limit, Text& out) {
  const std::size_t n = bytes.size();
  for (std::size_t i = 0; i < n;) {
    const bool escaped = bytes[i] == kEscape;
    if (escaped && i + 2 >= n) return false;
    const Char c = escaped ? CharOf(bytes[i + 1], bytes[i + 2]) : static_cast<Char>(bytes[i]);
    if (out.size() < limit) out.push_back(c);
    i += escaped ? 3 : 1;
  }
  return true;
}

// The decoder of zero-terminated text, one byte at a time.
class ZeroTerminatedDecoder {
 public:
  ZeroTerminatedDecoder(Text& out, std::size_t limit) : out_(out), limit_(limit) {}

  // True when the byte ended the string.
  bool Take(unsigned char byte) {
    switch (state_) {
      case State::kPlain:
        if (byte == 0) return true;
        if (byte == kEscape) {
          state_ = State::kLowByte;
        } else {
          Store(byte);
        }
        return false;
      case State::kLowByte:
        low_ = byte;
        state_ = State::kHighByte;
        return false;
      case State::kHighByte:
        Store(CharOf(low_, byte));
        state_ = State::kPlain;
        return false;
    }
    return false;
  }

 private:
  enum class State { kPlain, kLowByte, kHighByte };

  void Store(Char c) {
    if (out_.size() < limit_) out_.push_back(c);
  }

  Text& out_;
  std::size_t limit_;
  State state_ = State::kPlain;
  unsigned char low_ = 0;
};

std::size_t CharactersOf(std::size_t capacity) { return capacity == 0 ? 0 : capacity - 1; }

}  // namespace

void ZelBinary::Report(TextView text) { reporter_.Report(text, kProgramName, MessageIcon::kError); }

bool ZelBinary::CheckOpen(TextView closedMessage) {
  if (!open_) Report(closedMessage);
  return open_;
}

int ZelBinary::Open(const std::string& path) {
  if (open_) {
    Report(u"ZelBinary::Open() - previous file still open. It will be closed though.");
    Close();
  }
  // A folder can be opened on some systems, but it holds no bytes.
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) return 0;
  file_.clear();
  file_.rdbuf()->pubsetbuf(nullptr, 0);  // the bytes are buffered here
  file_.open(path, std::ios::in | std::ios::binary);
  if (!file_.is_open()) return 0;
  open_ = true;
  position_ = 0;
  bufferStart_ = 0;
  bufferLength_ = 0;
  streamPosition_ = 0;
  end_ = kFarAway;
  return 1;
}

int ZelBinary::Close() {
  if (open_) file_.close();
  open_ = false;
  return 1;
}

void ZelBinary::MoveTo(std::int64_t position) {
  if (position >= 0) position_ = position;
}

std::int64_t ZelBinary::SizeOfFile() {
  file_.clear();
  file_.seekg(0, std::ios::end);
  streamPosition_ = -1;
  const std::streamoff size = file_.tellg();
  return std::max<std::int64_t>(size, 0);
}

std::int32_t ZelBinary::SeekTo(std::int32_t position) {
  if (!CheckOpen(u"ZelBinary::SeekTo() - attempted operation on a closed file") || position < 0) return -1;
  MoveTo(position);
  return position;
}

void ZelBinary::SeekBy(std::int32_t delta) {
  if (!CheckOpen(u"ZelBinary::SeekBy() - attempted operation on a closed file")) return;
  if (delta <= 0 || position_ <= kFarAway - delta) MoveTo(position_ + delta);
}

void ZelBinary::SeekEnd() {
  if (CheckOpen(u"ZelBinary::SeekEnd() - attempted operation on a closed file")) MoveTo(SizeOfFile());
}

std::uint32_t ZelBinary::FileSize() {
  if (!CheckOpen(u"ZelBinary::FileSize() - attempted operation on a closed file")) return 0xFFFFFFFFu;
  return static_cast<std::uint32_t>(SizeOfFile());
}

std::uint32_t ZelBinary::FilePos() {
  if (!CheckOpen(u"ZelBinary::FilePos() - attempted operation on a closed file")) return 0xFFFFFFFFu;
  return static_cast<std::uint32_t>(position_);
}

std::size_t ZelBinary::Available() {
  const std::int64_t offset = position_ - bufferStart_;
  if (offset >= 0 && offset < static_cast<std::int64_t>(bufferLength_)) {
    return bufferLength_ - static_cast<std::size_t>(offset);
  }
  if (position_ >= end_) return 0;
  buffer_.resize(kBufferSize);
  file_.clear();
  if (streamPosition_ != position_) file_.seekg(position_);
  file_.read(buffer_.data(), kBufferSize);
  bufferStart_ = position_;
  bufferLength_ = static_cast<std::size_t>(file_.gcount());
  streamPosition_ = position_ + file_.gcount();
  if (bufferLength_ < kBufferSize) end_ = streamPosition_;
  return bufferLength_;
}

std::size_t ZelBinary::ReadBytes(unsigned char* destination, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const std::size_t part = std::min(count - done, Available());
    if (part == 0) break;
    std::memcpy(destination + done, buffer_.data() + (position_ - bufferStart_), part);
    done += part;
    position_ += static_cast<std::int64_t>(part);
  }
  return done;
}

bool ZelBinary::ReadBool() {
  if (!CheckOpen(u"ZelBinary::ReadBool() - attempted operation on a closed file")) return false;
  unsigned char byte = 0;
  if (ReadBytes(&byte, 1) == 1) return byte == kTrue;
  Report(u"ZelBinary::ReadBool() - attempted to read beyond end of file");
  return false;
}

std::int32_t ZelBinary::ReadLong() {
  if (!CheckOpen(u"ZelBinary::ReadLong() - attempted operation on a closed file")) return -1;
  std::array<unsigned char, 4> b{};
  if (ReadBytes(b.data(), b.size()) == b.size()) {
    const std::uint32_t high = static_cast<std::uint32_t>(CharOf(b[2], b[3])) << 16;
    return static_cast<std::int32_t>(high | CharOf(b[0], b[1]));
  }
  Report(u"ZelBinary::ReadLong() - attempted to read beyond end of file");
  return 0;
}

std::int32_t ZelBinary::ReadShort() {
  if (!CheckOpen(u"ZelBinary::ReadShort() - attempted operation on a closed file")) return -1;
  std::array<unsigned char, 2> b{};
  if (ReadBytes(b.data(), b.size()) == b.size()) return static_cast<std::int16_t>(CharOf(b[0], b[1]));
  Report(u"ZelBinary::ReadShort() - attempted to read beyond end of file");
  return 0;
}

std::int32_t ZelBinary::ReadTCharFromChar_C(Text& text) {
  return ReadTCharFromChar_C(text, std::numeric_limits<std::size_t>::max());
}

std::int32_t ZelBinary::ReadTCharFromChar_C(Text& field, std::size_t capacity) {
  field.clear();
  if (!CheckOpen(kStringsClosed)) return -1;
  std::array<unsigned char, 2> count{};
  if (ReadBytes(count.data(), count.size()) != count.size()) {
    Report(u"ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file");
    return 0;
  }
  const std::size_t n = CharOf(count[0], count[1]);
  encoded_.resize(n);
  if (ReadBytes(encoded_.data(), n) != n) {
    Report(u"ZelBinary::ReadTCharFromChar_C() - attempted to read beyond end of file (2)");
    return 0;
  }
  if (!DecodeEscaped(encoded_, CharactersOf(capacity), field)) {
    field.clear();
    Report(u"ZelBinary::ReadTCharFromChar_C() - unicode escape goes beyond end of file");
    return 0;
  }
  return static_cast<std::int32_t>(n);
}

std::int32_t ZelBinary::ReadTCharFromChar_Z(Text& field, std::size_t capacity) {
  field.clear();
  if (!CheckOpen(kStringsClosed)) return -1;
  ZeroTerminatedDecoder decoder(field, CharactersOf(capacity));
  while (const std::size_t available = Available()) {
    const char* bytes = buffer_.data() + (position_ - bufferStart_);
    for (std::size_t i = 0; i < available; ++i) {
      if (!decoder.Take(static_cast<unsigned char>(bytes[i]))) continue;
      position_ += static_cast<std::int64_t>(i + 1);
      return static_cast<std::int32_t>(field.size());
    }
    position_ += static_cast<std::int64_t>(available);
  }
  Report(
      u"ZelBinary::ReadTCharFromChar_Z() - attempted to read beyond end of file. Zero termination not found");
  return 0;
}

}  // namespace orvane
