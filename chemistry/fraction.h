// Exact fractions over an integer type that the caller chooses.
#pragma once

#include <utility>

#include "base/message_reporter.h"
#include "base/text.h"
#include "chemistry/wrapped_integer.h"

namespace orvane {

// Reduced and with a positive denominator after every operation, so that zero is 0/1 and one is 1/1.
//
// An integer that wraps can break even that: see FractMul. Only the most negative number may then stand as a
// denominator below zero.
template <class Integer>
struct Fraction {
  Integer numerator = 0;
  Integer denominator = 1;

  bool IsZero() const { return numerator == 0; }
  bool IsOne() const { return numerator == denominator; }
};

namespace fraction_detail {

template <class Integer>
int SignOf(const Integer& value) {
  return value > 0 ? 1 : (value < 0 ? -1 : 0);
}

template <class Integer>
void MoveSignUp(Integer& numerator, Integer& denominator) {
  if (!(denominator < 0)) return;
  numerator = -numerator;
  denominator = -denominator;
}

// Whether a product lost its sign when it wrapped. One that wrapped to zero, or to the right sign, is not
// told from a good one.
template <class Integer>
bool LostSign(const Integer& product, const Integer& a, const Integer& b) {
  return product != 0 && SignOf(product) != SignOf(a) * SignOf(b);
}

template <class Integer>
void Reduce(Fraction<Integer>& fraction) {
  using Traits = IntegerTraits<Integer>;
  // A denominator that wrapped to zero counts as one, so that nothing is ever divided by zero.
  if (fraction.denominator == 0) fraction.denominator = 1;
  if (fraction.denominator == 1) return;
  const typename Traits::Wide numerator = Traits::Widen(fraction.numerator);
  const typename Traits::Wide denominator = Traits::Widen(fraction.denominator);
  const typename Traits::Wide divisor = Traits::Gcd(numerator, denominator);
  fraction.numerator = Traits::Narrow(numerator / divisor);
  fraction.denominator = Traits::Narrow(denominator / divisor);
  MoveSignUp(fraction.numerator, fraction.denominator);
}

}  // namespace fraction_detail

// Multiplies the destination by numerator/denominator. A product of numerators or denominators whose sign
// shows that it wrapped around is reported, and the computation goes on with what it wrapped to.
template <class Integer>
void FractMul(Fraction<Integer>& dest, Integer numerator, Integer denominator, MessageReporter& reporter) {
  using Traits = IntegerTraits<Integer>;
  fraction_detail::MoveSignUp(numerator, denominator);
  fraction_detail::MoveSignUp(dest.numerator, dest.denominator);
  Fraction<Integer> product;
  product.numerator = dest.numerator * numerator;
  product.denominator = dest.denominator * denominator;
  const auto report = [&] {
    Text text = u"Overflow in FractMul: dest=%d/%d, src=%d/%d.";
    for (const Integer* value : {&dest.numerator, &dest.denominator, &numerator, &denominator}) {
      text.replace(text.find(u"%d"), 2, Traits::ToText(*value));
    }
    reporter.Report(text, kProgramName, MessageIcon::kError);
  };
  if (fraction_detail::LostSign(product.numerator, dest.numerator, numerator)) report();
  if (fraction_detail::LostSign(product.denominator, dest.denominator, denominator)) report();
  dest = std::move(product);
  fraction_detail::Reduce(dest);
}

// Adds numerator/denominator to the destination. What wraps here goes unnoticed. Even adding zero moves the
// sign of the destination's denominator up, which changes a fraction over the most negative number.
template <class Integer>
void FractAdd(Fraction<Integer>& dest, Integer numerator, Integer denominator) {
  using Traits = IntegerTraits<Integer>;
  using Wide = typename Traits::Wide;
  fraction_detail::MoveSignUp(dest.numerator, dest.denominator);
  fraction_detail::MoveSignUp(numerator, denominator);
  if (numerator == 0) return;
  if (dest.numerator == 0) {
    dest.numerator = std::move(numerator);
    dest.denominator = std::move(denominator);
    return;
  }
  // The cheaper ways to a common denominator go first.
  if (dest.denominator % denominator == 0) {
    const Integer scale = dest.denominator / denominator;
    dest.numerator = dest.numerator + numerator * scale;
  } else if (denominator % dest.denominator == 0) {
    const Integer scale = denominator / dest.denominator;
    dest.numerator = dest.numerator * scale + numerator;
    dest.denominator = std::move(denominator);
  } else {
    const Wide ours = Traits::Widen(dest.denominator);
    const Wide theirs = Traits::Widen(denominator);
    const Wide product = ours * theirs;
    const Wide common = product / Traits::Gcd(ours, theirs);
    const Integer ourScale = Traits::Narrow(common / ours);
    const Integer theirScale = Traits::Narrow(common / theirs);
    dest.numerator = dest.numerator * ourScale + numerator * theirScale;
    dest.denominator = Traits::Narrow(common);
  }
  fraction_detail::Reduce(dest);
}

}  // namespace orvane
