// Properties that every balanced equation has.
#include <gtest/gtest.h>

#include <cstdint>
#include <numeric>

#include "tests/chemistry/balance_cases.h"
#include "tests/chemistry/random_text.h"

namespace orvane::testing {
namespace {

// The atoms of each element in one term, counted by writing the brackets out.
void AddAtoms(const FormulaTokens& tokens, std::size_t& at, std::int64_t times,
              std::vector<std::int64_t>& atoms) {
  while (at < tokens.size() && tokens[at].kind != TokenClose) {
    // The symbol or group, and the index behind it.
    const std::size_t begin = at;
    std::vector<std::int64_t> part(atoms.size());
    if (tokens[at].kind == TokenOpen) {
      ++at;
      AddAtoms(tokens, at, 1, part);
    } else {
      part[static_cast<std::size_t>(tokens[begin].element)] = 1;
    }
    ++at;
    std::int64_t index = 1;
    if (at < tokens.size() && tokens[at].kind == TokenNumber) {
      index = std::stoll(ToUtf8(tokens[at].View()));
      ++at;
    }
    for (std::size_t e = 0; e < atoms.size(); ++e) atoms[e] += times * index * part[e];
  }
}

std::vector<Text> Terms(const Text& side) {
  std::vector<Text> terms(1);
  for (const Char c : side) {
    if (c == u'+') {
      terms.emplace_back();
    } else {
      terms.back() += c;
    }
  }
  return terms;
}

void AddSide(const Text& side, const std::vector<Text>& coefficients, std::size_t first, std::int64_t sign,
             std::vector<std::int64_t>& atoms) {
  for (const Text& term : Terms(side)) {
    std::size_t at = 0;
    const std::int64_t times = sign * std::stoll(ToUtf8(coefficients[first++]));
    AddAtoms(TokeniseFormula(term, TestElements()), at, times, atoms);
  }
}

// An equation that has a chance: its right side is made of the atoms of the left one.
Equation RandomEquation(RandomText& random) {
  constexpr TextView kSymbols[] = {u"H", u"O", u"Na", u"Cl", u"S"};
  const auto formula = [&](std::size_t symbols) {
    Text text;
    for (std::size_t i = 1 + random.Below(3); i > 0; --i) {
      Text part(kSymbols[random.Below(symbols)]);
      if (random.Below(4) == 0) part = u"(" + part + Text(kSymbols[random.Below(symbols)]) + u"2)";
      text += part;
      if (random.Below(2) == 0) text += static_cast<Char>(u'2' + random.Below(8));
    }
    return text;
  };
  const std::size_t symbols = 1 + random.Below(std::size(kSymbols));
  Equation equation{formula(symbols), formula(symbols)};
  for (std::size_t terms = symbols; terms > 1; --terms) {
    Text& side = random.Below(2) == 0 ? equation.left : equation.right;
    side += u"+" + formula(symbols);
  }
  return equation;
}

TEST(BalanceOnRandomEquations, BalancesAtomByAtomInSmallestNumbers) {
  RandomText random(5);
  int balanced = 0;
  for (int i = 0; i < 6000; ++i) {
    const Equation equation = RandomEquation(random);
    const BalanceResult result = Balance(equation.left, equation.right);
    if (result.coefficients.empty()) continue;
    ++balanced;
    std::vector<std::int64_t> atoms(112);
    AddSide(equation.left, result.coefficients, 0, 1, atoms);
    AddSide(equation.right, result.coefficients, TermCount(equation.left), -1, atoms);
    for (const std::int64_t difference : atoms) ASSERT_EQ(difference, 0) << ToUtf8(equation.left);
    std::int64_t divisor = 0;
    for (const Text& coefficient : result.coefficients) {
      divisor = std::gcd(divisor, std::stoll(ToUtf8(coefficient)));
    }
    ASSERT_EQ(divisor, 1) << ToUtf8(equation.left) << " = " << ToUtf8(equation.right);
  }
  EXPECT_GT(balanced, 200);
}

TEST(BalanceOnRandomEquations, GivesEachTermItsCoefficientWhereverItStands) {
  RandomText random(6);
  const std::vector<TableLine> lines = ReadTable("equations.txt");
  for (const TableLine& line : lines) {
    const Equation equation = SplitEquation(Columns(line.text)[0]);
    std::vector<Text> left = Terms(equation.left);
    std::vector<Text> right = Terms(equation.right);
    std::vector<std::size_t> order(left.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (std::size_t i = order.size(); i > 1; --i) std::swap(order[i - 1], order[random.Below(i)]);
    Text shuffled;
    for (const std::size_t i : order) shuffled += (shuffled.empty() ? u"" : u"+") + left[i];
    const std::vector<Text> straight = Balance(equation.left, equation.right).coefficients;
    const std::vector<Text> mixed = Balance(shuffled, equation.right).coefficients;
    ASSERT_EQ(straight.size(), mixed.size()) << Where(line);
    for (std::size_t i = 0; i < order.size(); ++i) EXPECT_EQ(mixed[i], straight[order[i]]) << Where(line);
    // Turned round, the sides change places.
    std::vector<Text> turned = Balance(equation.right, equation.left).coefficients;
    std::rotate(turned.begin(), turned.begin() + static_cast<std::ptrdiff_t>(right.size()), turned.end());
    EXPECT_EQ(turned, straight) << Where(line);
  }
}

TEST(BalanceOnRandomText, AlwaysAnswers) {
  RandomText random(7);
  for (int i = 0; i < 1500; ++i) {
    const std::size_t longest = i % 4 == 0 ? 511 : 40;
    const Text left = i % 2 == 0 ? random.Scrambled(longest) : random.Rubbish(longest);
    const Text right = i % 2 == 0 ? random.Scrambled(longest) : random.Rubbish(longest);
    CollectingReporter reporter;
    const BalanceResult result = Balance(left, right, reporter);
    ASSERT_NE(result.state, BalanceState::kPrompt);
    ASSERT_FALSE(result.title.empty());
    ASSERT_LE(result.newLhs.size(), 511u);
  }
}

TEST(BalanceOnRandomText, AnswersTheHardestThatFits) {
  // Every element in many terms, with large indices: as much elimination and overflow as a side has room for.
  RandomText random(8);
  for (int round = 0; round < 3; ++round) {
    const auto side = [&random] {
      Text text;
      while (text.size() < 500) {
        if (!text.empty()) text += u'+';
        text += random.Formula(1);
      }
      const std::size_t plus = text.substr(0, 511).rfind(u'+');
      return text.size() <= 511 ? text : text.substr(0, plus);
    };
    CollectingReporter reporter;
    EXPECT_NE(Balance(side(), side(), reporter).state, BalanceState::kPrompt);
  }
}

}  // namespace
}  // namespace orvane::testing
