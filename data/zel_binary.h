// The one reader of the program's data files: little-endian numbers, a one-byte boolean and two
// kinds of 8-bit strings that carry 16-bit characters behind an escape byte.
//
// Escaped text: every byte but 0x02 is the character of that code, U+0001 to U+00FF; the byte 0x02
// is followed by one 16-bit character, low byte first. Numbers are two's complement.
//
// Nothing here throws. Misuse and short reads are reported at once, one message a call, and a neutral
// value is returned, so that a loader can run to its end over a damaged file. There is no error flag:
// a loader recognises damage by format checks of its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "base/message_reporter.h"
#include "base/text.h"

namespace orvane {

class ZelBinary {
 public:
  // The reporter outlives the reader. Every message has the program's name as caption and the error icon.
  explicit ZelBinary(MessageReporter& reporter) : reporter_(reporter) {}
  ~ZelBinary() { Close(); }
  ZelBinary(const ZelBinary&) = delete;
  ZelBinary& operator=(const ZelBinary&) = delete;

  // Opens an existing file for reading. 1 on success; 0 on failure, which is not reported. A file that
  // is still open is reported and closed first.
  int Open(const std::string& path);
  // Always 1, also when nothing is open.
  int Close();
  bool IsOpen() const { return open_; }

  // Positions may lie behind the end of the file, where every read is short. A target before the start
  // changes nothing. SeekTo returns the new position, or -1 when it failed.
  std::int32_t SeekTo(std::int32_t position);
  void SeekBy(std::int32_t delta);
  void SeekEnd();

  // In bytes, modulo 2^32; 0xFFFFFFFF when closed.
  std::uint32_t FileSize();
  std::uint32_t FilePos();

  // 1 byte: true exactly for the letter T. False when closed or short.
  bool ReadBool();
  // 4 and 2 bytes. -1 when closed, 0 when short; a short read consumes what is left of the file.
  std::int32_t ReadLong();
  std::int32_t ReadShort();

  // A counted string: 16-bit byte count n, n bytes of escaped text. Returns n (the byte count, not the
  // number of characters), 0 when short or when an escape is cut off by the count, -1 when closed; a
  // failed read leaves an empty text. The first form keeps what fits into a field of `capacity`
  // characters, one of them set aside for a terminator, and consumes the whole string all the same.
  std::int32_t ReadTCharFromChar_C(Text& field, std::size_t capacity);
  std::int32_t ReadTCharFromChar_C(Text& text);

  // A string that ends with a zero byte (an escaped zero is an ordinary character), kept and consumed
  // like the counted field. Returns the number of characters stored. Without a zero before the end of
  // the file it returns 0 and the field keeps what was read. -1 when closed.
  std::int32_t ReadTCharFromChar_Z(Text& field, std::size_t capacity);

 private:
  void Report(TextView text);
  // False, with the operation's message for it, when no file is open.
  bool CheckOpen(TextView closedMessage);
  void MoveTo(std::int64_t position);
  std::int64_t SizeOfFile();

  // Bytes left in the buffer at the position, after reading more when there were none; 0 at the end.
  std::size_t Available();
  // Copies up to `count` bytes and advances; returns how many there were.
  std::size_t ReadBytes(unsigned char* destination, std::size_t count);

  MessageReporter& reporter_;
  std::ifstream file_;
  bool open_ = false;
  std::int64_t position_ = 0;  // of the next read
  std::vector<char> buffer_;   // a copy of the file's bytes from bufferStart_ on
  std::int64_t bufferStart_ = 0;
  std::size_t bufferLength_ = 0;
  std::int64_t end_ = 0;                // where a read came to the end of the file, else far away
  std::int64_t streamPosition_ = 0;     // where file_ stands, or -1 when unknown
  std::vector<unsigned char> encoded_;  // a counted string's bytes, kept for its memory
};

}  // namespace orvane
