// Writes JSON on one line. Texts are 16-bit: a lone surrogate is written as its \uXXXX escape, which JSON
// allows and libraries that keep UTF-8 strings cannot express, so that every text of a damaged file comes out
// as it was read.
//
// What is written reaches the stream whenever the outermost container or a value outside of any ends.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace orvane {

class JsonWriter {
 public:
  explicit JsonWriter(std::ostream& out) : out_(out) {}

  // Containers nest; every item of an object is a Key followed by one value or container.
  JsonWriter& BeginObject() { return Begin('{'); }
  JsonWriter& EndObject() { return End('}'); }
  JsonWriter& BeginArray() { return Begin('['); }
  JsonWriter& EndArray() { return End(']'); }
  JsonWriter& Key(std::string_view asciiName);

  JsonWriter& String(TextView text);
  JsonWriter& Number(std::int64_t value);
  // A finite number; which of them are whole does not show in JSON.
  JsonWriter& Real(double value);
  // A whole number of any size, given in its digits.
  JsonWriter& Digits(TextView digits);
  JsonWriter& Bool(bool value);
  JsonWriter& Null();

 private:
  JsonWriter& Begin(char bracket);
  JsonWriter& End(char bracket);
  // The comma that separates this value from the one before it.
  void Separate();
  JsonWriter& Value(std::string_view json);
  void HandOver();

  std::ostream& out_;
  std::string written_;         // and not yet handed over
  std::vector<bool> hasItems_;  // of each open container
  bool afterKey_ = false;
};

}  // namespace orvane
