// Integers of any size for the equation solver, by GMP.
#pragma once

#include <gmpxx.h>

#include "base/text.h"
#include "chemistry/wrapped_integer.h"

namespace orvane {

template <>
struct IntegerTraits<mpz_class> {
  using Wide = mpz_class;
  static const mpz_class& Widen(const mpz_class& value) { return value; }
  static const mpz_class& Narrow(const mpz_class& value) { return value; }
  static mpz_class Gcd(const mpz_class& a, const mpz_class& b) { return gcd(a, b); }
  static Text ToText(const mpz_class& value) { return FromUtf8(value.get_str()); }
};

}  // namespace orvane
