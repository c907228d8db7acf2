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
  Text answer;  // without marks
};

std::vector<Example> Examples() {
  std::vector<Example> examples;
  for (const HelpPageSource& page : Manual().pages) {
    for (const HelpBlock& block : page.blocks) {
      if (block.kind != HelpBlock::Kind::kExample) continue;
      for (const HelpLine& line : block.lines) {
        const HelpLine answer(line.begin() + 2, line.end());
        Text plain = PlainLine(answer);
        // A number is kept together by blanks at which no line breaks.
        std::replace(plain.begin(), plain.end(), u'\u00A0', u' ');
        examples.push_back({block.example, page.file, line[0].text, std::move(plain)});
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

}  // namespace
}  // namespace orvane::testing
