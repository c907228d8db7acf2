// Random formulas and rubbish, the same in every run.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "base/text.h"

namespace orvane::testing {

class RandomText {
 public:
  explicit RandomText(std::uint32_t seed) : engine_(seed) {}

  // 0 to below `end`; the engine's own numbers, since the library's distributions differ between systems.
  std::size_t Below(std::size_t end) { return engine_() % end; }

  // One of the characters.
  Char Any(TextView characters) { return characters[Below(characters.size())]; }

  // A formula without faults, with capitals where they belong. Brackets nest at most `depth` times.
  Text Formula(int depth) {
    Text text;
    for (std::size_t parts = 1 + Below(4); parts > 0; --parts) {
      if (depth > 0 && Below(3) == 0) {
        text.append(u"(").append(Formula(depth - 1)).append(u")");
      } else {
        text += kSymbols[Below(std::size(kSymbols))];
      }
      if (Below(2) == 0) text += Index();
    }
    return text;
  }

  Text Index() {
    Text digits;
    for (std::size_t i = 1 + Below(3); i > 0; --i) digits += Any(u"0123456789");
    return digits;
  }

  // Any characters at all, mostly those that formulas are made of.
  Text Rubbish(std::size_t longest) {
    Text text;
    for (std::size_t i = Below(longest + 1); i > 0; --i) {
      if (Below(40) == 0) {
        text += static_cast<Char>(engine_());
      } else {
        text += Any(u"hHcCoOnNaAlLuUbBfFeEsS00122399((()))+++");
      }
    }
    return text;
  }

  // Characters that mean something, in any order.
  Text Scrambled(std::size_t longest) {
    Text text;
    for (std::size_t i = Below(longest + 1); i > 0; --i) {
      const std::size_t kind = Below(10);
      if (kind < 6) text += kSymbols[Below(std::size(kSymbols))];
      if (kind == 6) text += Any(u"0123456789");
      if (kind == 7) text += u'(';
      if (kind == 8) text += u')';
      if (kind == 9) text += u'+';
    }
    return text.substr(0, longest);
  }

 private:
  static constexpr TextView kSymbols[] = {u"H",  u"C", u"O",  u"N",   u"Na", u"Cl", u"Fe",
                                          u"S",  u"P", u"Tc", u"Co",  u"Hs", u"Sn", u"Si",
                                          u"Au", u"K", u"Mn", u"Uub", u"F",  u"Pb"};
  std::mt19937 engine_;
};

}  // namespace orvane::testing
