// Every example of the manual, put to the part of the program that it is about.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "base/styled_text.h"
#include "base/text_scan.h"
#include "chemistry/balance.h"
#include "chemistry/element_table.h"
#include "chemistry/equation_check.h"
#include "chemistry/equation_solver.h"
#include "chemistry/formula_tokens.h"
#include "chemistry/mass.h"
#include "chemistry/value_filter.h"
#include "data/constants_database.h"
#include "data/elements_database.h"
#include "tests/content/manual.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {
namespace {

struct Example {
  std::string kind;
  std::string page;
  Text typed;
  Text answer;   // without marks
  Text general;  // the answer of the last "balance" example above it on its page
};

std::vector<Example> Examples() {
  std::vector<Example> examples;
  for (const HelpPageSource& page : Manual().pages) {
    Text general;
    for (const HelpBlock& block : page.blocks) {
      if (block.kind != HelpBlock::Kind::kExample) continue;
      for (const HelpLine& line : block.lines) {
        const HelpLine answer(line.begin() + 2, line.end());
        Text plain = PlainLine(answer);
        // A number is kept together by blanks at which no line breaks.
        std::replace(plain.begin(), plain.end(), u'\u00A0', u' ');
        examples.push_back({block.example, page.file, line[0].text, plain, general});
        if (block.example == "balance") general = plain;
      }
    }
  }
  return examples;
}

Text WithoutBlanks(TextView text) {
  Text out;
  std::copy_if(text.begin(), text.end(), std::back_inserter(out), [](Char c) { return c != u' '; });
  return out;
}

// What stands before and behind a mark that a text must hold.
std::pair<Text, Text> SplitAt(TextView text, TextView mark) {
  const std::size_t at = text.find(mark);
  EXPECT_NE(at, TextView::npos) << ToUtf8(text) << " without " << ToUtf8(mark);
  if (at == TextView::npos) return {};
  return {Text(text.substr(0, at)), Text(text.substr(at + mark.size()))};
}

std::vector<Text> Parts(TextView text, TextView separators) {
  std::vector<Text> parts(1);
  for (const Char c : text) {
    if (separators.find(c) == TextView::npos) {
      parts.back() += c;
    } else {
      parts.emplace_back();
    }
  }
  return parts;
}

// The number at the front of a text, which is removed; 1 when there is none.
int TakeFactor(TextView& text) {
  int factor = 0;
  bool stands = false;
  for (; !text.empty() && text[0] >= u'0' && text[0] <= u'9'; text.remove_prefix(1)) {
    factor = 10 * factor + (text[0] - u'0');
    stands = true;
  }
  return stands ? factor : 1;
}

// "–3a+5b" for the free numbers "a=5,b=4".
int Evaluate(TextView sum, TextView freeNumbers) {
  int value = 0;
  while (!sum.empty()) {
    const bool minus = sum[0] == u'–';
    if (minus || sum[0] == u'+') sum.remove_prefix(1);
    const int factor = TakeFactor(sum) * (minus ? -1 : 1);
    const std::size_t at = freeNumbers.find(Text(sum.substr(0, 1)) + u"=");
    EXPECT_NE(at, TextView::npos) << ToUtf8(sum) << " of " << ToUtf8(freeNumbers);
    if (at == TextView::npos || sum.empty()) return 0;
    TextView number = freeNumbers.substr(at + 2);
    value += factor * TakeFactor(number);
    sum.remove_prefix(1);
  }
  return value;
}

// The coefficients of "A=2a+b;B=a+b" for these free numbers, without those that are 0.
std::vector<int> CoefficientsOf(TextView general, TextView freeNumbers) {
  std::vector<int> coefficients;
  for (const Text& line : Parts(general, u";")) {
    const int value = Evaluate(SplitAt(line, u"=").second, freeNumbers);
    if (value != 0) coefficients.push_back(value);
  }
  return coefficients;
}

// The coefficients of "2C+O2=2CO".
std::vector<int> CoefficientsIn(TextView equation) {
  std::vector<int> coefficients;
  for (const Text& substance : Parts(equation, u"+=")) {
    TextView rest = substance;
    coefficients.push_back(TakeFactor(rest));
  }
  return coefficients;
}

class ManualExample : public ::testing::TestWithParam<Example> {
 protected:
  ManualExample() {
    EXPECT_EQ(elements_.Load(ORVANE_BIN_DIR "/periodic.dat", reporter_), 1);
    table_ = ElementTable::From(elements_.Symbol(), elements_.AtomicMass());
  }

  Text MassAnswer(TextView formula) {
    const MassResult mass = CalculateMass(TokeniseFormula(formula, table_), table_);
    if (!mass.ok) return Text(mass.explanation.substr(2));  // behind its two line breaks
    return WithoutCodes(mass.line).substr(Text(u"Mass: ").size());
  }

  // The balanced equation, the lines of the general solution, the message's title, or its text.
  Text BalanceAnswer(TextView equation) {
    const auto [left, right] = SplitAt(equation, u" = ");
    const BalanceResult result =
        BalanceEquation(TokeniseEquationSide(left, table_), TokeniseEquationSide(right, table_), reporter_);
    if (!result.lines.empty()) {
      Text lines;
      for (const Text& line : result.lines) lines += (lines.empty() ? u"" : u"; ") + WithoutCodes(line);
      return lines;
    }
    if (result.rewritten) return result.newLhs + u"=" + result.newRhs;
    return result.title == u"No solutions exist" ? result.title : result.text;
  }

  // The atoms of an element on one side, coefficients counted.
  std::int64_t AtomsOf(int element, const FormulaTokens& side) {
    std::int64_t atoms = 0;
    for (std::size_t at = 0; at < side.size(); ++at) {
      const bool counted = side[at].kind == TokenCoefficient;
      const std::int64_t coefficient = counted ? ToInteger(side[at].View()) : 1;
      atoms += coefficient * CountElements<std::int64_t>(side, at, element, reporter_);
    }
    return atoms;
  }

  void ExpectBalanced(TextView equation) {
    const auto [left, right] = SplitAt(equation, u"=");
    const FormulaTokens lhs = TokeniseEquationSide(left, table_);
    const FormulaTokens rhs = TokeniseEquationSide(right, table_);
    EXPECT_FALSE(CheckEquation(lhs, rhs).has_value());
    for (int element = 0; element < ElementTable::kElementCount; ++element) {
      EXPECT_EQ(AtomsOf(element, lhs), AtomsOf(element, rhs))
          << ToUtf8(equation) << ", element " << element + 1;
    }
  }

  Text FilterAnswer(TextView question) {
    // A filter that is wrong is wrong for every value.
    ValueFilter filter;
    const FilterError error = SetFilter(filter, question.substr(0, question.find(u" with ")));
    if (error != FilterError::kNone) return Text(FilterMessage(error));
    const Text value = SplitAt(question, u" with ").second;
    return PassesFilter(filter, ToReal(value)) ? u"passes" : u"fails";
  }

  Text ElementAnswer(TextView question) {
    const auto [symbol, name] = SplitAt(question, u": ");
    const int element = table_.Find(symbol);
    for (const ElementCategory& category : elements_.Categories()) {
      for (const ElementProperty& property : category.Properties()) {
        if (property.Name() != name) continue;
        return WithoutCodes(Text(property.Value(element)) + Text(property.Units()));
      }
    }
    return u"no such property";
  }

  Text ConstantAnswer(TextView name) {
    ConstantsDatabase constants(ORVANE_BIN_DIR "/constants.dat");
    EXPECT_TRUE(constants.ReadCategories(reporter_));
    for (int category = 0; category < constants.CategoryCount(); ++category) {
      const auto groups = constants.LoadCategory(category, reporter_);
      for (const ConstGroup& group : *groups) {
        for (const ConstEntry& entry : group.constants) {
          if (entry.name == name) return WithoutCodes(entry.value + u" " + entry.units);
        }
      }
    }
    return u"no such constant";
  }

  CollectingReporter reporter_;
  ElementsDatabase elements_;
  ElementTable table_;
};

TEST_P(ManualExample, IsTrue) {
  const Example& example = GetParam();
  if (example.kind == "mass") {
    EXPECT_EQ(ToUtf8(example.answer), ToUtf8(MassAnswer(example.typed)));
  } else if (example.kind == "balance") {
    EXPECT_EQ(ToUtf8(WithoutBlanks(example.answer)), ToUtf8(WithoutBlanks(BalanceAnswer(example.typed))));
  } else if (example.kind == "solution") {
    ExpectBalanced(WithoutBlanks(example.answer));
    EXPECT_EQ(CoefficientsIn(WithoutBlanks(example.answer)),
              CoefficientsOf(WithoutBlanks(example.general), WithoutBlanks(example.typed)));
  } else if (example.kind == "filter") {
    EXPECT_EQ(ToUtf8(example.answer), ToUtf8(FilterAnswer(example.typed)));
  } else if (example.kind == "element") {
    EXPECT_EQ(ToUtf8(example.answer), ToUtf8(ElementAnswer(example.typed)));
  } else if (example.kind == "constant") {
    EXPECT_EQ(ToUtf8(example.answer), ToUtf8(ConstantAnswer(example.typed)));
  } else {
    ADD_FAILURE() << "nobody answers " << example.kind;
  }
  EXPECT_THAT(reporter_.texts, ::testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, ManualExample, ::testing::ValuesIn(Examples()), [](const auto& example) {
  std::string name = example.param.page.substr(0, example.param.page.size() - 3) + "_" + example.param.kind +
                     "_" + std::to_string(example.index);
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

// A manual without examples would pass every one of them.
TEST(ManualExamples, AreThereOfEveryKind) {
  std::map<std::string, int> counts;
  for (const Example& example : Examples()) ++counts[example.kind];
  for (const std::string_view kind : kExampleKinds) EXPECT_GE(counts[std::string(kind)], 2) << kind;
}

// What the first page says of the size of the collections.
TEST(ManualClaims, CountsOfTheWelcomePageAreRight) {
  CollectingReporter reporter;
  ConstantsDatabase constants(ORVANE_BIN_DIR "/constants.dat");
  ASSERT_TRUE(constants.ReadCategories(reporter));
  std::size_t count = 0;
  EXPECT_TRUE(constants.LoadAll(reporter, [&count](int, const auto& groups) {
    for (const ConstGroup& group : *groups) count += group.constants.size();
  }));
  EXPECT_GE(count, 950u) << "\"a thousand constants\"";
  EXPECT_LT(count, 1100u) << "\"a thousand constants\"";
  EXPECT_EQ(ElementsDatabase::kElementCount, 112);
}

}  // namespace
}  // namespace orvane::testing
