#include "chemistry/fraction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "chemistry/fraction_matrix.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

using Fract = Fraction<Wrapped32>;

std::string Shown(const Fract& fraction) {
  return std::to_string(fraction.numerator.Value()) + "/" + std::to_string(fraction.denominator.Value());
}

std::string Product(Fract dest, std::int32_t numerator, std::int32_t denominator,
                    const std::vector<std::string>& boxes = {}) {
  CollectingReporter reporter;
  FractMul<Wrapped32>(dest, numerator, denominator, reporter);
  EXPECT_EQ(reporter.texts, boxes);
  EXPECT_TRUE(reporter.allErrorsOfTheProgram);
  return Shown(dest);
}

std::string Sum(Fract dest, std::int32_t numerator, std::int32_t denominator) {
  FractAdd<Wrapped32>(dest, numerator, denominator);
  return Shown(dest);
}

TEST(FractMul, ReducesAndKeepsTheDenominatorPositive) {
  EXPECT_EQ(Product({1, 2}, 2, 3), "1/3");
  EXPECT_EQ(Product({1, 2}, 2, 1), "1/1");
  EXPECT_EQ(Product({-3, 4}, 2, -9), "1/6");
  EXPECT_EQ(Product({3, 4}, 2, -9), "-1/6");
  EXPECT_EQ(Product({3, -4}, 2, 9), "-1/6");
  EXPECT_EQ(Product({0, 1}, 5, 7), "0/1");
  EXPECT_EQ(Product({5, 7}, 0, 9), "0/1");
  EXPECT_EQ(Product({46340, 1}, 46340, 1), "2147395600/1");
}

TEST(FractMul, ReportsAProductThatLostItsSign) {
  EXPECT_EQ(Product({46341, 1}, 46341, 1, {"Overflow in FractMul: dest=46341/1, src=46341/1."}),
            "-2147479015/1");
  EXPECT_EQ(Product({1, 46341}, 1, 46341, {"Overflow in FractMul: dest=1/46341, src=1/46341."}),
            "-1/2147479015");
  // Signs are moved up before the numbers are shown, and the shown numbers are those before multiplying.
  EXPECT_EQ(Product({46341, -1}, -46341, 1, {"Overflow in FractMul: dest=-46341/1, src=-46341/1."}),
            "-2147479015/1");
  EXPECT_EQ(Product({-46341, 1}, 46341, 1, {"Overflow in FractMul: dest=-46341/1, src=46341/1."}),
            "2147479015/1");
  // A box for the numerators, then one for the denominators.
  const std::string both = "Overflow in FractMul: dest=46341/46342, src=46341/46342.";
  EXPECT_EQ(Product({46341, 46342}, 46341, 46342, {both, both}), "2147479015/2147386332");
}

TEST(FractMul, KeepsQuietWhenTheWrappedSignIsRight) {
  // To zero: 2^32.
  EXPECT_EQ(Product({65536, 1}, 65536, 1), "0/1");
  // To a positive number: 2^32 + 65536.
  EXPECT_EQ(Product({65537, 1}, 65536, 1), "65536/1");
  // A denominator that wrapped to zero counts as one.
  EXPECT_EQ(Product({3, 65536}, 5, 65536), "15/1");
  EXPECT_EQ(Product({65536, 65536}, 65536, 65536), "0/1");
}

TEST(FractMul, SurvivesTheMostNegativeNumber) {
  EXPECT_EQ(Product({kLeast, 1}, 1, 1), "-2147483648/1");
  EXPECT_EQ(Product({kLeast, 1}, -1, 1, {"Overflow in FractMul: dest=-2147483648/1, src=-1/1."}),
            "-2147483648/1");
  EXPECT_EQ(Product({kLeast, 2}, 1, 1), "-1073741824/1");
  // As a denominator it has no positive partner; the sign moves before the product and once more behind it.
  EXPECT_EQ(Product({1, kLeast}, 1, 1), "1/-2147483648");
  EXPECT_EQ(Product({kLeast, kLeast}, 1, 1), "1/1");
  EXPECT_EQ(Product({0, kLeast}, 1, 1), "0/1");
  EXPECT_EQ(Product({1, 1}, 1, 0), "1/1");
}

TEST(FractAdd, FindsACommonDenominator) {
  EXPECT_EQ(Sum({1, 2}, 1, 2), "1/1");
  EXPECT_EQ(Sum({1, 6}, 1, 3), "1/2");
  EXPECT_EQ(Sum({1, 3}, 1, 6), "1/2");
  EXPECT_EQ(Sum({1, 4}, 1, 6), "5/12");
  EXPECT_EQ(Sum({1, 4}, -1, 6), "1/12");
  EXPECT_EQ(Sum({1, 4}, 1, -6), "1/12");
  EXPECT_EQ(Sum({-1, 4}, 1, 4), "0/1");
  EXPECT_EQ(Sum({5, 7}, 0, 3), "5/7");
  EXPECT_EQ(Sum({0, 1}, 5, 7), "5/7");
  // A sum with zero takes the other number as it was given.
  EXPECT_EQ(Sum({0, 1}, 2, 4), "2/4");
  EXPECT_EQ(Sum({0, 1}, 2, -4), "-2/4");
}

TEST(FractAdd, WrapsWithoutAWord) {
  EXPECT_EQ(Sum({kMost, 1}, 1, 1), "-2147483648/1");
  EXPECT_EQ(Sum({kLeast, 1}, kLeast, 1), "0/1");
  // Denominators 65536 and 65537 have a least common multiple of 2^32 + 65536.
  EXPECT_EQ(Sum({1, 65536}, 1, 65537), "131073/65536");
  EXPECT_EQ(Sum({1, kLeast}, 1, 3).empty(), false);
}

TEST(Wrapped, IsTwosComplement) {
  EXPECT_EQ(-Wrapped32(kLeast), Wrapped32(kLeast));
  EXPECT_EQ(Wrapped32(kLeast) / -1, Wrapped32(kLeast));
  EXPECT_EQ(Wrapped32(kLeast) % -1, Wrapped32(0));
  EXPECT_EQ(Wrapped32(-7) / 2, Wrapped32(-3));
  EXPECT_EQ(Wrapped32(-7) % 2, Wrapped32(-1));
  EXPECT_EQ(Wrapped32(7) / 0, Wrapped32(7));
  EXPECT_EQ(Wrapped32(7) % 0, Wrapped32(0));
  EXPECT_EQ(Wrapped32(kMost) + 1, Wrapped32(kLeast));
  EXPECT_EQ(Wrapped32(kLeast).Magnitude(), 2147483648u);
  using Traits = IntegerTraits<Wrapped32>;
  EXPECT_EQ(Traits::Gcd(Traits::Widen(kLeast), Traits::Widen(6)), Wrapped64(2));
  EXPECT_EQ(Traits::Gcd(0, -5), Wrapped64(5));
  EXPECT_EQ(Traits::Gcd(0, 0), Wrapped64(0));
  EXPECT_EQ(Traits::Narrow(4294967297), Wrapped32(1));
}

std::vector<std::string> Row(const FractionMatrix<Wrapped32>& matrix, std::size_t row) {
  std::vector<std::string> out;
  for (std::size_t column = 0; column < matrix.Columns(); ++column)
    out.push_back(Shown(matrix.At(row, column)));
  return out;
}

FractionMatrix<Wrapped32> Matrix(std::size_t columns, const std::vector<std::int32_t>& numerators) {
  FractionMatrix<Wrapped32> matrix(numerators.size() / columns, columns);
  for (std::size_t i = 0; i < numerators.size(); ++i) {
    matrix.At(i / columns, i % columns).numerator = numerators[i];
  }
  return matrix;
}

TEST(FractionMatrix, TakesReducedRowEchelonForm) {
  CollectingReporter reporter;
  FractionMatrix<Wrapped32> water = Matrix(3, {2, 0, -2, 0, 2, -1});
  water.Reduce(reporter);
  EXPECT_THAT(Row(water, 0), ElementsAre("1/1", "0/1", "-1/1"));
  EXPECT_THAT(Row(water, 1), ElementsAre("0/1", "1/1", "-1/2"));
  // The first row has to give way, one column has no pivot, one row is nothing but a multiple.
  FractionMatrix<Wrapped32> matrix = Matrix(4, {0, 0, 3, 6, 2, 4, 1, -1, 4, 8, 2, -2});
  matrix.Reduce(reporter);
  EXPECT_THAT(Row(matrix, 0), ElementsAre("1/1", "2/1", "0/1", "-3/2"));
  EXPECT_THAT(Row(matrix, 1), ElementsAre("0/1", "0/1", "1/1", "2/1"));
  EXPECT_THAT(Row(matrix, 2), ElementsAre("0/1", "0/1", "0/1", "0/1"));
  EXPECT_FALSE(matrix.FirstOne(2).has_value());
  EXPECT_EQ(matrix.FirstOne(1), 2u);
  EXPECT_THAT(reporter.texts, IsEmpty());
}

TEST(FractionMatrix, TakesMatricesWithoutRowsOrWithZerosOnly) {
  CollectingReporter reporter;
  FractionMatrix<Wrapped32> none(0, 3);
  none.Reduce(reporter);
  FractionMatrix<Wrapped32> zeros(2, 2);
  zeros.Reduce(reporter);
  EXPECT_THAT(Row(zeros, 1), ElementsAre("0/1", "0/1"));
}

TEST(FractionMatrix, MultipliesTheNegatedFactorByThePivotRowsEntry) {
  // 70000 and 1 in the pivot row, 50000 below: −50000 times 70000 wraps to 794967296, and 1 is added.
  CollectingReporter reporter;
  FractionMatrix<Wrapped32> matrix = Matrix(2, {1, 70000, 50000, 1});
  matrix.Reduce(reporter);
  ASSERT_FALSE(reporter.texts.empty());
  EXPECT_EQ(reporter.texts.front(), "Overflow in FractMul: dest=-50000/1, src=70000/1.");
}

TEST(FractAdd, MovesTheSignUpEvenForZero) {
  EXPECT_EQ(Sum({3, -4}, 0, 1), "-3/4");
  EXPECT_EQ(Sum({3, kLeast}, 0, 1), "-3/-2147483648");
  // So does elimination, where the pivot's row holds a zero.
  CollectingReporter reporter;
  FractionMatrix<Wrapped32> matrix = Matrix(3, {1, 1, 0, 1, 2, 0});
  matrix.At(1, 2) = {3, kLeast};
  matrix.Reduce(reporter);
  EXPECT_THAT(Row(matrix, 1), ElementsAre("0/1", "1/1", "-3/-2147483648"));
}

TEST(FractionMatrix, CarriesThePivotsSignInTheReciprocalsNumerator) {
  CollectingReporter reporter;
  FractionMatrix<Wrapped32> matrix = Matrix(2, {-4, 3});
  matrix.Reduce(reporter);
  EXPECT_THAT(Row(matrix, 0), ElementsAre("1/1", "-3/4"));
  // The most negative number stays negative however often its sign is moved up, and each time takes the
  // numerator's along: for the reciprocal, before the product, and behind it.
  FractionMatrix<Wrapped32> least = Matrix(2, {kLeast, 3});
  least.Reduce(reporter);
  EXPECT_THAT(Row(least, 0), ElementsAre("1/1", "-3/-2147483648"));
  EXPECT_THAT(reporter.texts, IsEmpty());
}

}  // namespace
}  // namespace orvane::testing
