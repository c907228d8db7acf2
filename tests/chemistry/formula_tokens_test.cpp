#include "chemistry/formula_tokens.h"

#include <gtest/gtest.h>

#include "tests/chemistry/case_table.h"

namespace orvane::testing {
namespace {

// Tokens as the table writes them.
std::string Written(const FormulaTokens& tokens) {
  Text out;
  for (const FormulaToken& token : tokens) {
    if (!out.empty()) out += u' ';
    if (token.kind == TokenUnknown) out += u'?';
    if (token.kind == TokenNumber) out += u'#';
    if (token.kind == TokenCoefficient) out += u'*';
    out += token.View();
  }
  return out.empty() ? "-" : ToUtf8(out);
}

std::string Expected(const std::string& column) { return ToUtf8(Unescaped(column)); }

TEST(FormulaTokens, AreThoseOfTheTable) {
  for (const TableLine& line : ReadTable("tokens.txt")) {
    const std::vector<std::string> columns = Columns(line.text);
    ASSERT_TRUE(columns.size() == 2 || columns.size() == 3) << Where(line);
    const Text text = Unescaped(columns[0]);
    EXPECT_EQ(Written(TokeniseFormula(text, TestElements())), Expected(columns[1])) << Where(line);
    EXPECT_EQ(Written(TokeniseEquationSide(text, TestElements())), Expected(columns.back())) << Where(line);
  }
}

TEST(FormulaTokens, HaveTheNumbersOfTheirKinds) {
  const FormulaTokens tokens = TokeniseEquationSide(u"2h2(o)+x", TestElements());
  std::vector<int> kinds;
  for (const FormulaToken& token : tokens) kinds.push_back(token.kind);
  EXPECT_EQ(kinds, (std::vector<int>{6, 1, 2, 3, 1, 4, 5, 0}));
}

TEST(FormulaTokens, KnowTheElementOfASymbol) {
  const FormulaTokens tokens = TokeniseFormula(u"fe2Xh", TestElements());
  ASSERT_EQ(tokens.size(), 4u);
  EXPECT_EQ(tokens[0].element, 25);
  EXPECT_EQ(tokens[1].element, -1);
  EXPECT_EQ(tokens[2].element, -1);
  EXPECT_EQ(tokens[3].element, 0);
}

TEST(FormulaTokens, EndTheirTextWithAZero) {
  for (const FormulaToken& token : TokeniseFormula(u"uubfeh123 ", TestElements())) {
    EXPECT_EQ(token.text[token.length], 0);
    EXPECT_EQ(Text(token.text.data()), token.View());
  }
}

TEST(FormulaTokens, ReplaceWhatWasThere) {
  FormulaTokens tokens = TokeniseFormula(u"h2o", TestElements());
  TokeniseFormula(u"fe", TestElements(), tokens);
  EXPECT_EQ(TokensText(tokens), u"Fe");
  TokeniseEquationSide(u"", TestElements(), tokens);
  EXPECT_TRUE(tokens.empty());
}

TEST(FormulaTokens, FollowTheTableOfElements) {
  ElementTable elements;
  elements.Add(u"Qx", u"1");
  elements.Add(u"CO", u"2");
  elements.Add(u"", u"3");
  elements.Add(u"Abcd", u"4");
  elements.Add(u"q\u00e9", u"5");
  EXPECT_EQ(Written(TokeniseFormula(u"qxQX", elements)), "Qx ?Q ?X");
  // The split goes before the symbol, and a symbol's case in the table counts for nothing.
  EXPECT_EQ(Written(TokeniseFormula(u"coCo", elements)), "?C ?O Co");
  EXPECT_EQ(Written(TokeniseFormula(u"abcd", elements)), "?A ?B ?C ?D");
  EXPECT_EQ(Written(TokeniseFormula(u"h", ElementTable())), "?H");
}

TEST(ElementTable, FindsTheFirstOfEqualSymbolsInAnyCase) {
  ElementTable elements;
  elements.Add(u"Na", u"1");
  elements.Add(u"NA", u"2");
  elements.Add(u"n", u"3");
  EXPECT_EQ(elements.Find(u"nA"), 0);
  EXPECT_EQ(elements.Find(u"N"), 2);
  EXPECT_EQ(elements.Find(u""), -1);
  EXPECT_EQ(elements.Find(u"nax"), -1);
  EXPECT_EQ(elements.Find(u"naxx"), -1);
  EXPECT_EQ(elements.Find(u"n1"), -1);
  EXPECT_EQ(TestElements().Find(u"uub"), 111);
}

TEST(ElementTable, HasRoomForItsElementsOnly) {
  ElementTable elements;
  for (int i = 0; i < ElementTable::kElementCount; ++i) elements.Add(u"H", u"1");
  elements.Add(u"He", u"4");
  EXPECT_EQ(elements.Find(u"He"), -1);
}

struct FakeProperty {
  Text first;
  TextView Value(int element) const { return element == 0 ? TextView(first) : TextView(); }
};

TEST(ElementTable, IsMadeOfTwoProperties) {
  const FakeProperty symbols{u"Xy"};
  const FakeProperty masses{u"1.5"};
  const ElementTable elements = ElementTable::From(&symbols, &masses);
  EXPECT_EQ(elements.Find(u"xy"), 0);
  EXPECT_EQ(elements.Mass(0).value.Digits(), "150000000");
  EXPECT_EQ(elements.Mass(111).value.Digits(), "000000000");
  const FakeProperty* none = nullptr;
  EXPECT_EQ(ElementTable::From(none, &masses).Find(u"xy"), -1);
  EXPECT_EQ(ElementTable::From(&symbols, none).Mass(0).decimalPlaces, 0);
}

TEST(AtomicMass, IsReadFromItsText) {
  const auto expect = [](TextView text, const char* digits, int places) {
    const AtomicMass mass = AtomicMass::Read(text);
    EXPECT_EQ(mass.value.Digits(), digits) << ToUtf8(text);
    EXPECT_EQ(mass.decimalPlaces, places) << ToUtf8(text);
  };
  expect(u"1.00794", "100794000", 5);
  expect(u"107.8682", "10786820000", 4);
  expect(u"98", "9800000000", 0);
  expect(u"98.", "9800000000", 0);
  expect(u"[98]", "9800000000", 0);
  expect(u"[98.5]", "9850000000", 1);
  expect(u"12.12345678", "1212345678", 8);
  expect(u"12.1234567891", "1212345678", 10);
  expect(u".5", "50000000", 1);
  expect(u"", "000000000", 0);
  expect(u"[", "000000000", 0);
  expect(u"[]", "000000000", 0);
  expect(u"[98", "900000000", 0);
  // Whatever else stands there holds its column as a 0.
  expect(u"1e3", "10300000000", 0);
  expect(u"-1.5", "0150000000", 1);
  expect(u"1.5 (2)", "150020000", 5);
  expect(u"1.2.3", "120300000", 3);
  expect(u"1,5", "10500000000", 0);
}

}  // namespace
}  // namespace orvane::testing
