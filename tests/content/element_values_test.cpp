// The form of the values: what the plot reads, what the screens and the clipboard can hold, and how text is
// written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "chemistry/plot_value.h"
#include "content/elements_source.h"
#include "data/elements_database.h"
#include "tests/content/element_facts.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {
namespace {

using ::testing::IsEmpty;

// A list's cell and the clipboard hold 255 characters with the terminating zero.
constexpr std::size_t kLongestCell = 254;

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

class ElementValues : public ::testing::Test {
 protected:
  void SetUp() override {
    CollectingReporter reporter;
    ASSERT_EQ(database_.Load(ORVANE_BIN_DIR "/periodic.dat", reporter), 1);
    ASSERT_THAT(reporter.texts, IsEmpty());
  }

  void ForEachProperty(const std::function<void(const ElementProperty&)>& check) const {
    for (const ElementCategory& category : database_.Categories()) {
      for (const ElementProperty& property : category.Properties()) check(property);
    }
  }

  // Only the elements that have a value.
  void ForEachValue(const std::function<void(const ElementProperty&, TextView)>& check) const {
    ForEachProperty([&](const ElementProperty& property) {
      for (int element = 0; element < ElementsDatabase::kElementCount; ++element) {
        if (!property.HasValue(element)) continue;
        SCOPED_TRACE(ToUtf8(property.Name()) + " of element " + std::to_string(element + 1));
        check(property, property.Value(element));
      }
    });
  }

  ElementsDatabase database_;
};

TEST_F(ElementValues, AreBareDecimalsWhereTheyCanBePlotted) {
  ForEachValue([](const ElementProperty& property, TextView value) {
    if (!property.IsPlottable()) return;
    EXPECT_TRUE(IsBareDecimal(value) || (property.Id() == 2 && IsBracketedMassNumber(value)))
        << ToUtf8(value);
  });
}

// The plot adds up decimal places one by one, so the last binary digits may differ.
TEST_F(ElementValues, ReadTheSameInAPlot) {
  ForEachValue([](const ElementProperty& property, TextView value) {
    if (!property.IsPlottable()) return;
    const double expected = NumberOf(ToUtf8(value));
    EXPECT_LE(std::fabs(ReadPlotValue(value) - expected), 1e-12 * expected) << ToUtf8(value);
  });
}

TEST_F(ElementValues, HaveUnitsThatLeaveTheNumberAlone) {
  ForEachProperty([](const ElementProperty& property) {
    const std::string name = ToUtf8(property.Name());
    const TextView units = property.Units();
    EXPECT_TRUE(units.empty() || units.front() == u' ') << name;
    for (const char16_t c : units) EXPECT_FALSE(property.IsPlottable() && IsDigit(c)) << name;
  });
}

TEST_F(ElementValues, FitTheListAndTheClipboard) {
  ForEachProperty([](const ElementProperty& property) {
    EXPECT_LE(property.Name().size(), kLongestCell) << ToUtf8(property.Name());
  });
  ForEachValue([](const ElementProperty& property, TextView value) {
    EXPECT_LE(value.size(), kLongestCell);
    const std::u16string copied = FromUtf8(PlainText(value)) + Text(property.Units());
    EXPECT_LE(copied.size(), kLongestCell);
  });
}

// Codes are one of raised (0x80) or lowered (0x40), bold (0x01) or italic (0x02), all with bit 0x20, and what
// follows a value on the screen must be plain again.
TEST_F(ElementValues, UseKnownStyleCodesAndEndPlain) {
  ForEachValue([](const ElementProperty&, TextView value) {
    char16_t flags = 0x20;
    for (std::size_t i = 0; i < value.size(); ++i) {
      if (value[i] != 1) {
        EXPECT_GE(value[i], 0x20) << "a control character";
        continue;
      }
      ASSERT_LT(i + 1, value.size());
      flags = value[++i];
      EXPECT_EQ(flags & ~0xE3, 0);
      EXPECT_NE(flags & 0x20, 0);
      EXPECT_NE(flags & 0xC0, 0xC0) << "raised and lowered at once";
    }
    EXPECT_EQ(flags, 0x20);
  });
}

TEST_F(ElementValues, WriteTheMinusAsAnEnDash) {
  ForEachValue([](const ElementProperty&, TextView value) {
    for (std::size_t i = 0; i + 1 < value.size(); ++i) {
      const bool begins = i == 0 || value[i - 1] == u' ' || value[i - 1] == u'(' || value[i - 1] == u':';
      EXPECT_FALSE(begins && value[i] == u'-' && IsDigit(value[i + 1])) << ToUtf8(value);
      // A range between numbers; a CAS number has two hyphens.
      EXPECT_NE(value[i], 0x2212) << "the mathematical minus";
    }
  });
}

TEST_F(ElementValues, HaveNoStrayBlanks) {
  ForEachValue([](const ElementProperty&, TextView value) {
    const std::string plain = PlainText(value);
    EXPECT_NE(plain.front(), ' ');
    EXPECT_NE(plain.back(), ' ');
    EXPECT_EQ(plain.find("  "), std::string::npos) << plain;
    EXPECT_EQ(plain.find('^'), std::string::npos) << plain;
    EXPECT_EQ(plain.find("_{"), std::string::npos) << plain;
  });
}

// What is on every element's summary at first: configuration, oxidation states, electronegativity, melting
// and boiling point, state, density. The atoms above fermium were never seen in bulk.
TEST_F(ElementValues, FillTheFirstSummary) {
  const std::pair<int, int> summary[] = {{3, 5}, {3, 1}, {3, 2}, {4, 0}, {4, 1}, {1, 4}, {1, 6}};
  const char* const names[] = {"Electron configuration",
                               "Oxidation states",
                               "Electronegativity (Pauling)",
                               "Melting point",
                               "Boiling point",
                               "State at 25 °C",
                               "Density"};
  for (std::size_t i = 0; i < std::size(summary); ++i) {
    const ElementProperty* property = database_.FindProperty(summary[i].first, summary[i].second);
    ASSERT_NE(property, nullptr);
    EXPECT_EQ(ToUtf8(property->Name()), names[i]);
    EXPECT_GE(property->ValueCount(), 84);
  }
  // The common metals and gases have all seven but for the electronegativity of the noble gases.
  for (int z = 1; z <= 83; ++z) {
    int filled = 0;
    for (const auto& [category, index] : summary) {
      filled += database_.FindProperty(category, index)->HasValue(z - 1) ? 1 : 0;
    }
    EXPECT_GE(filled, 6) << z;
  }
}

// The plot begins with the first ionization energy of the elements 3 to 48.
TEST_F(ElementValues, CompleteTheFirstPlot) {
  const ElementProperty* energy = database_.FindProperty(2, 5);
  ASSERT_NE(energy, nullptr);
  EXPECT_EQ(energy->Id(), 20);
  EXPECT_TRUE(energy->IsPlottable());
  for (int z = 3; z <= 48; ++z) EXPECT_TRUE(energy->HasValue(z - 1)) << z;
}

}  // namespace
}  // namespace orvane::testing
