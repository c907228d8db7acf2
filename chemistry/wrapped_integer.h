// Signed integers of a fixed size that wrap around where the language's own have no defined result.
#pragma once

#include <cstdint>
#include <numeric>
#include <type_traits>

#include "base/text.h"

namespace orvane {

template <class Signed>
class Wrapped {
 public:
  using Unsigned = std::make_unsigned_t<Signed>;

  constexpr Wrapped() = default;
  // As natural as a literal, so not explicit. NOLINTNEXTLINE(google-explicit-constructor)
  constexpr Wrapped(Signed value) : value_(value) {}
  constexpr Signed Value() const { return value_; }
  // The size without the sign, which the most negative number has, too.
  constexpr Unsigned Magnitude() const { return value_ < 0 ? Unsigned{0} - Bits() : Bits(); }

  friend constexpr Wrapped operator-(Wrapped a) { return FromBits(Unsigned{0} - a.Bits()); }
  friend constexpr Wrapped operator+(Wrapped a, Wrapped b) { return FromBits(a.Bits() + b.Bits()); }
  friend constexpr Wrapped operator*(Wrapped a, Wrapped b) { return FromBits(a.Bits() * b.Bits()); }
  // Towards zero; by zero the number stays.
  friend constexpr Wrapped operator/(Wrapped a, Wrapped b) {
    if (b.value_ == 0) return a;
    return b.value_ == -1 ? -a : Wrapped(a.value_ / b.value_);
  }
  // The rest of that division; by zero there is none.
  friend constexpr Wrapped operator%(Wrapped a, Wrapped b) {
    return b.value_ == 0 || b.value_ == -1 ? Wrapped() : Wrapped(a.value_ % b.value_);
  }
  friend constexpr bool operator==(const Wrapped&, const Wrapped&) = default;
  friend constexpr auto operator<=>(const Wrapped& a, const Wrapped& b) { return a.value_ <=> b.value_; }

 private:
  constexpr Unsigned Bits() const { return static_cast<Unsigned>(value_); }
  static constexpr Wrapped FromBits(Unsigned bits) { return Wrapped(static_cast<Signed>(bits)); }

  Signed value_ = 0;
};

using Wrapped32 = Wrapped<std::int32_t>;
using Wrapped64 = Wrapped<std::int64_t>;

// What the solver asks of its integers beside arithmetic and comparison. Another integer joins by a
// specialisation with the same members.
template <class Integer>
struct IntegerTraits;

template <>
struct IntegerTraits<Wrapped32> {
  // Least common multiples are formed with more room and cut at the end.
  using Wide = Wrapped64;
  static constexpr Wide Widen(Wrapped32 value) { return {value.Value()}; }
  static constexpr Wrapped32 Narrow(Wide value) { return {static_cast<std::int32_t>(value.Value())}; }
  // Never negative, and 0 of two zeros only.
  static constexpr Wide Gcd(Wide a, Wide b) {
    return {static_cast<std::int64_t>(std::gcd(a.Magnitude(), b.Magnitude()))};
  }
  static Text ToText(Wrapped32 value) { return DecimalText(value.Value()); }
};

}  // namespace orvane
