// Every value of the elements database rests on facts that lie beside it.
#include "tests/content/element_facts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <locale>
#include <map>
#include <sstream>

#include "content/elements_source.h"
#include "tests/content/content_tables.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CheckNumber, HoldsANumberToTheRangeGiveOrTakeItsLastDigit) {
  const std::vector<Figure> accepted = {{"a", "1811.15"}, {"b", "1808"}};
  EXPECT_EQ(CheckNumber("1811", accepted), "");
  EXPECT_EQ(CheckNumber("1808", accepted), "");
  EXPECT_EQ(CheckNumber("1811.1", accepted), "");
  EXPECT_EQ(CheckNumber("1807", accepted), "1807 is not between 1808 and 1811.15");
  EXPECT_NE(CheckNumber("1812", accepted), "");
  EXPECT_NE(CheckNumber("1811.3", accepted), "");
  EXPECT_NE(CheckNumber("1811", {}), "");
}

TEST(CheckNumber, TakesRoundingToTensIntoAccount) {
  EXPECT_EQ(CheckNumber("1560", {{"a", "1563.06"}}), "");
  EXPECT_NE(CheckNumber("1550", {{"a", "1563.06"}}), "");
  EXPECT_NE(CheckNumber("1561", {{"a", "1563.06"}}), "");
  // One or two digits were not rounded to tens.
  EXPECT_NE(CheckNumber("30", {{"a", "34"}}), "");
  EXPECT_EQ(CheckNumber("0.15", {{"a", "0.155"}}), "");
  EXPECT_NE(CheckNumber("0.15", {{"a", "0.1551"}}), "");
}

TEST(CheckNumber, ReadsMassNumbersInBrackets) {
  EXPECT_EQ(CheckNumber("[97]", {{"a", "[97]"}}), "");
  EXPECT_NE(CheckNumber("[99]", {{"a", "[97]"}}), "");
}

TEST(CheckText, WantsEveryPartInAnAcceptedText) {
  const std::vector<Figure> accepted = {{"a", "+3, +2"}, {"b", "+6, +3, –2"}};
  EXPECT_EQ(CheckText("+3, +2; also +6, –2", accepted), "");
  EXPECT_EQ(CheckText("+3, +4", accepted), "\"+4\" is in no accepted text");
  EXPECT_EQ(CheckText("+3; also +4", accepted), "\"+4\" is in no accepted text");
  EXPECT_NE(CheckText("", accepted), "");
  EXPECT_NE(CheckText("+3", {}), "");
}

TEST(PlainText, LeavesStyleCodesOut) {
  EXPECT_EQ(PlainText(u"3d\u0001\u00A06\u0001  4s\u0001\u00A02\u0001 "), "3d6 4s2");
}

TEST(ReadFacts, ReadsPairsAndNamesWhatIsMalformed) {
  const std::string header = "id\telement\taccepted\tset aside\treason\n";
  std::vector<std::string> problems;
  const auto lines =
      ReadFacts("t", header + "34\t26\ta=1811.15 | b=x = y\tc=1808\told\n35\t2\t-\t-\t-\n", problems);
  EXPECT_THAT(problems, IsEmpty());
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].place, "t:2");
  EXPECT_EQ(lines[0].id, 34);
  EXPECT_EQ(lines[0].element, 26);
  ASSERT_EQ(lines[0].accepted.size(), 2u);
  EXPECT_EQ(lines[0].accepted[1].source, "b");
  EXPECT_EQ(lines[0].accepted[1].text, "x = y");
  EXPECT_EQ(lines[0].setAside[0].text, "1808");
  EXPECT_EQ(lines[0].reason, "old");
  EXPECT_THAT(lines[1].accepted, IsEmpty());
  EXPECT_EQ(lines[1].reason, "");

  for (const char* bad : {"34\t26\ta\t-\t-", "34\t26\t=1\t-\t-", "34\t26\ta=\t-\t-", "34\t113\ta=1\t-\t-",
                          "x\t26\ta=1\t-\t-", "34\t26\ta=1\t-"}) {
    problems.clear();
    EXPECT_THAT(ReadFacts("t", header + bad + "\n", problems), IsEmpty());
    EXPECT_EQ(problems.size(), 1u) << bad;
  }
  problems.clear();
  ReadFacts("t", "id\telement\n", problems);
  EXPECT_THAT(problems, ElementsAre("t:1: not the header of a table of facts"));
}

// Symbols, codes and what is written for this database have no figure to compare.
bool RestsOnFacts(int id) {
  const std::set<int> own = {0, 3, 4, 8, 10, 13, 14, 15, 33, 75, 76, 77, 78};
  return own.count(id) == 0;
}

class ElementFacts : public ::testing::Test {
 protected:
  void SetUp() override {
    std::vector<std::string> problems;
    facts_ = ReadAllFacts(problems);
    ASSERT_THAT(problems, IsEmpty());
    ASSERT_FALSE(facts_.empty());
    tables_ = LoadContentTables();
    ASSERT_THAT(tables_.problems, IsEmpty());
    for (const FactLine& line : facts_) byValue_.emplace(std::pair(line.id, line.element), &line);
  }

  // Calls `check` with the property and the element's index.
  template <typename Check>
  void ForEachElementOfEachProperty(Check check) const {
    for (const auto& category : tables_.source.categories) {
      for (const PropertySource& property : category.properties) {
        for (std::size_t e = 0; e < property.values.size(); ++e) check(property, e);
      }
    }
  }

  const FactLine* Find(int id, std::size_t element) const {
    const auto found = byValue_.find({id, static_cast<int>(element) + 1});
    return found == byValue_.end() ? nullptr : found->second;
  }

  static std::string Where(const PropertySource& property, std::size_t element) {
    return ToUtf8(property.name) + " of element " + std::to_string(element + 1);
  }

  std::vector<FactLine> facts_;
  std::map<std::pair<int, int>, const FactLine*> byValue_;
  ContentTables tables_;
};

TEST_F(ElementFacts, StandInOrderAndOnceEach) {
  for (std::size_t i = 1; i < facts_.size(); ++i) {
    EXPECT_LT(std::pair(facts_[i - 1].id, facts_[i - 1].element), std::pair(facts_[i].id, facts_[i].element))
        << facts_[i].place;
  }
}

TEST_F(ElementFacts, NameKnownSources) {
  for (const FactLine& line : facts_) {
    for (const auto* figures : {&line.accepted, &line.setAside}) {
      for (const Figure& figure : *figures) {
        EXPECT_EQ(tables_.sourceKeys.count(figure.source), 1u) << line.place << ": " << figure.source;
      }
    }
  }
}

TEST_F(ElementFacts, SayWhyAFigureIsSetAside) {
  for (const FactLine& line : facts_) {
    if (line.setAside.empty() && !line.accepted.empty()) continue;
    EXPECT_NE(line.reason, "") << line.place;
  }
}

TEST_F(ElementFacts, AreThereForEveryValueAndForNothingElse) {
  std::size_t used = 0;
  ForEachElementOfEachProperty([&](const PropertySource& property, std::size_t element) {
    const FactLine* line = Find(property.id, element);
    if (line != nullptr) ++used;
    if (!RestsOnFacts(property.id)) return;
    const bool hasFacts = line != nullptr && !line->accepted.empty();
    EXPECT_EQ(property.values[element].has_value(), hasFacts) << Where(property, element);
  });
  EXPECT_EQ(used, facts_.size()) << "facts of properties that do not exist";
}

TEST_F(ElementFacts, HoldEveryValue) {
  int held = 0;
  ForEachElementOfEachProperty([&](const PropertySource& property, std::size_t element) {
    const FactLine* line = Find(property.id, element);
    if (line == nullptr || !property.values[element].has_value()) return;
    ++held;
    const std::string value = PlainText(*property.values[element]);
    EXPECT_EQ(property.plottable ? CheckNumber(value, line->accepted) : CheckText(value, line->accepted), "")
        << Where(property, element) << ", " << line->place;
  });
  EXPECT_GT(held, 4900);
}

// The calculators count the decimals of a mass, so none may be lost or gained. Their numbers have eight.
std::string ToEightDecimals(const std::string& figure) {
  const std::size_t point = figure.find('.');
  if (point == std::string::npos || figure.size() - point - 1 <= 8) return figure;
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out.precision(8);
  out << std::fixed << NumberOf(figure);
  return out.str();
}

TEST(ToEightDecimals, RoundsWhatHasMore) {
  EXPECT_EQ(ToEightDecimals("18.998403162"), "18.99840316");
  EXPECT_EQ(ToEightDecimals("30.973761998"), "30.97376200");
  EXPECT_EQ(ToEightDecimals("132.90545196"), "132.90545196");
  EXPECT_EQ(ToEightDecimals("72.630"), "72.630");
  EXPECT_EQ(ToEightDecimals("[262]"), "[262]");
}

TEST_F(ElementFacts, GiveMassesDigitByDigit) {
  int compared = 0;
  ForEachElementOfEachProperty([&](const PropertySource& property, std::size_t element) {
    if (property.id != 2) return;
    const std::string& own = property.valueSources[element];
    const std::string& source = own.empty() ? property.source : own;
    const FactLine* line = Find(property.id, element);
    ASSERT_NE(line, nullptr);
    ASSERT_TRUE(property.values[element].has_value());
    const std::string mass = PlainText(*property.values[element]);
    std::vector<std::string> figures;
    for (const Figure& figure : line->accepted) {
      if (figure.source == source) figures.push_back(ToEightDecimals(figure.text));
    }
    EXPECT_THAT(figures, ::testing::Contains(mass)) << Where(property, element) << ", " << line->place;
    ++compared;
  });
  EXPECT_EQ(compared, 112);
}

TEST_F(ElementFacts, ListTheSourceThatTheValueNames) {
  ForEachElementOfEachProperty([&](const PropertySource& property, std::size_t element) {
    const FactLine* line = Find(property.id, element);
    if (line == nullptr || !property.values[element].has_value()) return;
    const std::string& own = property.valueSources[element];
    const std::string& source = own.empty() ? property.source : own;
    bool listed = false;
    for (const Figure& figure : line->accepted) listed = listed || figure.source == source;
    EXPECT_TRUE(listed) << Where(property, element) << " is from " << source << ", which " << line->place
                        << " does not list";
  });
}

}  // namespace
}  // namespace orvane::testing
