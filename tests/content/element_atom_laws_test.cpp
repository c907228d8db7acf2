// Laws that hold between the properties of one atom. They find figures that were copied into the wrong row,
// whatever source they are from.
#include "tests/content/element_laws.h"

#include <algorithm>
#include <array>
#include <set>
#include <sstream>
#include <vector>

namespace orvane::testing {
namespace {

using AtomLaws = ElementPhysics;

TEST_F(AtomLaws, AtomsGiveUpEachElectronHarderThanTheOneBefore) {
  ForElementsWith(
      90, [&](int z) { EXPECT_LT(Number(kFirstEnergy, z), Number(kSecondEnergy, z)); }, kFirstEnergy,
      kSecondEnergy);
  ForElementsWith(
      80, [&](int z) { EXPECT_LT(Number(kSecondEnergy, z), Number(kThirdEnergy, z)); }, kSecondEnergy,
      kThirdEnergy);
}

TEST_F(AtomLaws, ShellsHoldAllElectronsAndFollowFromTheConfiguration) {
  std::map<std::string, std::array<int, 8>> cores;
  for (int z = 1; z <= ElementsDatabase::kElementCount; ++z) {
    SCOPED_TRACE(Plain(kName, z));
    std::array<int, 8> inShell{};
    std::istringstream configuration(Plain(kConfiguration, z));
    std::string word;
    while (configuration >> word) {
      if (word.front() == '[') {
        ASSERT_EQ(cores.count(word), 1u) << word;
        inShell = cores.at(word);
        continue;
      }
      const std::size_t subshell = std::string("spdf").find(word.at(1));
      ASSERT_NE(subshell, std::string::npos) << word;
      const int electrons = std::stoi(word.substr(2));
      EXPECT_LE(electrons, static_cast<int>(4 * subshell + 2)) << word;
      inShell[static_cast<std::size_t>(word.front() - '0')] += electrons;
    }
    std::string expected;
    int total = 0;
    for (const int electrons : inShell) {
      if (electrons == 0) continue;
      expected += (expected.empty() ? "" : ", ") + std::to_string(electrons);
      total += electrons;
    }
    EXPECT_EQ(total, z);
    EXPECT_EQ(Plain(kShells, z), expected);
    if (Plain(4, z) == "S" || Plain(4, z) == "P") cores["[" + Plain(0, z) + "]"] = inShell;
  }
}

// The upper left figure of a term is one more than the number of unpaired electrons, which is even with an
// even number of electrons in all.
TEST_F(AtomLaws, TermsHaveTheMultiplicityThatTheNumberOfElectronsAllows) {
  ForElementsWith(
      100,
      [&](int z) {
        const std::string term = Plain(kTerm, z);
        if (term.front() == '(') return;  // lead, whose spins couple one by one
        EXPECT_EQ((term.front() - '0') % 2, 1 - z % 2) << term;
      },
      kTerm);
}

// An electron that falls into the innermost shell gives off a little less than it takes to empty the place;
// both energies grow with the square of the atomic number (Moseley).
TEST_F(AtomLaws, XRayLinesLieBelowTheirEdgeAndFollowMoseley) {
  ForElementsWith(
      90,
      [&](int z) {
        EXPECT_LT(Number(kKAlpha, z), Number(kKEdge, z));
        EXPECT_GT(Number(kKAlpha, z), 0.8 * Number(kKEdge, z));
        const double moseley = 0.0102 * (z - 1) * (z - 1);
        EXPECT_NEAR(Number(kKAlpha, z) / moseley, 1.0, 0.25);
      },
      kKAlpha, kKEdge);
  for (int z = 2; z <= 99; ++z) EXPECT_GT(Number(kKEdge, z), Number(kKEdge, z - 1)) << z;
}

struct Isotope {
  int massNumber = 0;
  double share = 0;
};

// "54Fe 5.845 %, 56Fe 91.754 %"; a nuclide in an excited state has an "m" behind its number.
std::vector<Isotope> Isotopes(const std::string& text) {
  std::vector<Isotope> isotopes;
  std::istringstream in(text);
  in.imbue(std::locale::classic());
  std::string nuclide;
  std::string percent;
  for (Isotope isotope; in >> isotope.massNumber >> nuclide >> isotope.share >> percent;) {
    isotopes.push_back(isotope);
  }
  return isotopes;
}

TEST_F(AtomLaws, IsotopesAddUpToTheElementAndToItsMass) {
  ForElementsWith(
      84,
      [&](int z) {
        const std::string text = Plain(kIsotopes, z);
        const std::vector<Isotope> isotopes = Isotopes(text);
        EXPECT_EQ(static_cast<long>(isotopes.size()), std::count(text.begin(), text.end(), '%'));
        double share = 0;
        double nucleons = 0;
        int last = 0;
        for (const Isotope& isotope : isotopes) {
          EXPECT_GT(isotope.massNumber, last);
          last = isotope.massNumber;
          share += isotope.share;
          nucleons += isotope.share * isotope.massNumber / 100;
        }
        EXPECT_NEAR(share, 100.0, 0.02);
        // A nucleon in a nucleus has nearly 1 u; the lone one of hydrogen misses the share of binding.
        EXPECT_NEAR(nucleons / Number(kMass, z), 1.0, 0.0013 + 0.007 / z);
      },
      kIsotopes);
}

// "180mTa, 181Ta"; each nuclide as it is written, without its share.
std::set<std::string> Nuclides(const std::string& text) {
  std::set<std::string> nuclides;
  std::istringstream in(text);
  for (std::string word; in >> word;) {
    while (!word.empty() && word.back() == ',') word.pop_back();
    const bool nuclide =
        word.find_first_of("0123456789") == 0 && word.find_first_not_of("0123456789.") < word.size();
    if (nuclide) nuclides.insert(word);
  }
  return nuclides;
}

// What does not decay is still here.
TEST_F(AtomLaws, StableIsotopesOccurInNature) {
  std::size_t stable = 0;
  ForElementsWith(
      80,
      [&](int z) {
        const std::set<std::string> natural = Nuclides(Plain(kIsotopes, z));
        EXPECT_EQ(natural.size(), Isotopes(Plain(kIsotopes, z)).size());
        for (const std::string& nuclide : Nuclides(Plain(kStable, z))) {
          EXPECT_EQ(natural.count(nuclide), 1u) << nuclide;
          ++stable;
        }
      },
      kIsotopes, kStable);
  // The count that depends on which decays have been seen.
  EXPECT_GE(stable, 245u);
  EXPECT_LE(stable, 255u);
}

TEST_F(AtomLaws, ElementsHaveEitherStableIsotopesOrAHalfLife) {
  for (int z = 1; z <= ElementsDatabase::kElementCount; ++z) {
    SCOPED_TRACE(Plain(kName, z));
    EXPECT_EQ(Has(kLongestLived, z), Has(kHalfLife, z));
    const bool estimatesOnly = z == 109 || z == 110;
    EXPECT_EQ(Has(kStable, z) != Has(kLongestLived, z), !estimatesOnly);
    EXPECT_EQ(Has(kStable, z), z <= 82 && z != 43 && z != 61);
  }
}

}  // namespace
}  // namespace orvane::testing
