// What the tests of physical laws need: each property of the shipped elements by its id.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "data/elements_database.h"
#include "tests/content/element_facts.h"
#include "tests/data/collecting_reporter.h"

namespace orvane::testing {

// Properties by their ids.
enum ElementId {
  kName = 1,
  kMass = 2,
  kState = 9,
  kReferenceForm = 10,
  kDensity = 11,
  kFirstEnergy = 20,
  kSecondEnergy = 21,
  kThirdEnergy = 22,
  kShells = 26,
  kConfiguration = 31,
  kTerm = 30,
  kMeltingPoint = 34,
  kBoilingPoint = 35,
  kFusion = 36,
  kVaporization = 37,
  kAtomization = 38,
  kMolarHeat = 39,
  kSpecificHeat = 40,
  kConductivity = 41,
  kPolarizability = 24,
  kSound = 60,
  kRefraction = 63,
  kCriticalTemperature = 44,
  kCrystal = 46,
  kLatticeA = 48,
  kLatticeB = 49,
  kLatticeC = 50,
  kAngles = 51,
  kMolarVolume = 52,
  kBrinell = 54,
  kVickers = 55,
  kYoung = 56,
  kShear = 57,
  kBulk = 58,
  kPoisson = 59,
  kResistivity = 61,
  kKAlpha = 65,
  kKEdge = 66,
  kIsotopes = 67,
  kStable = 68,
  kLongestLived = 69,
  kHalfLife = 70
};

class ElementPhysics : public ::testing::Test {
 protected:
  void SetUp() override {
    CollectingReporter reporter;
    ASSERT_EQ(database_.Load(ORVANE_BIN_DIR "/periodic.dat", reporter), 1);
    ASSERT_THAT(reporter.texts, ::testing::IsEmpty());
    for (const ElementCategory& category : database_.Categories()) {
      for (const ElementProperty& property : category.Properties()) byId_[property.Id()] = &property;
    }
  }

  std::string Plain(int id, int z) const { return PlainText(byId_.at(id)->Value(z - 1)); }
  bool Has(int id, int z) const { return byId_.at(id)->HasValue(z - 1); }
  // Only for an element that has a value.
  double Number(int id, int z) const { return NumberOf(Plain(id, z)); }
  template <typename... Ids>
  bool HasAll(int z, Ids... ids) const {
    return (Has(ids, z) && ...);
  }
  // Calls `check` for each element that has all the properties, and wants to meet `least` of them.
  template <typename Check, typename... Ids>
  void ForElementsWith(int least, Check check, Ids... ids) const {
    int met = 0;
    for (int z = 1; z <= ElementsDatabase::kElementCount; ++z) {
      if (!HasAll(z, ids...)) continue;
      ++met;
      SCOPED_TRACE(Plain(kName, z));
      check(z);
    }
    EXPECT_GE(met, least);
  }

  ElementsDatabase database_;
  std::map<int, const ElementProperty*> byId_;
};

}  // namespace orvane::testing
