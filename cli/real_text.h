// Floating-point numbers on the command line: written as short as they can be, read as people write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// The shortest decimal text that reads back as the same number, which is finite; "0" for both zeros.
std::string RealText(double value);

// An ordinary decimal number: an optional sign, digits with at most one point among them, an optional
// exponent. Nothing for any other text, blanks included, and for a number that a double cannot hold.
std::optional<double> ParseReal(std::string_view text);

}  // namespace orvane
