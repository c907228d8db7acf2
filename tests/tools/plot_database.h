// A made-up database for plots.
//
//   0 "Names"   0 id 0 "Symbol" (not plottable): E1 … E112, but the first is "Element1"
//   1 "Usual"   0 id 15 "Number": 1 … 112;  1 id 20 "Energy": 2·number + 10, element 10 without;  2 id 21
//   "Text" (not
//               plottable)
//   2 "Remarks" 0 id 30 "Remark" (not plottable)
//   3 "Places"  0 id 40 "Across" and 1 id 41 "Down", for placing points: the first five elements stand at
//               (40, 60), (80, 100), (120, 60), (160, 140), (200, 60) of a view of 0..240 and −268..0
#pragma once

#include <string>

#include "data/elements_database.h"
#include "tests/data/collecting_reporter.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {

inline constexpr Point kPlaces[] = {{40, 60}, {80, 100}, {120, 60}, {160, 140}, {200, 60}};

inline void LoadPlotDatabase(ElementsDatabase& database) {
  constexpr int kCount = ElementsDatabase::kElementCount;
  DatWriter file;
  file.PeriodicHeader(4);
  file.Category(u"Names", 1);
  file.Property(0, u"Symbol", false, u"", kCount);
  for (int n = 1; n <= kCount; ++n) file.Value(n, WithNumber(n == 1 ? u"Element%d" : u"E%d", n));
  file.Category(u"Usual", 3);
  file.Property(15, u"Number", true, u"", kCount);
  for (int n = 1; n <= kCount; ++n) file.Value(n, DecimalText(n));
  file.Property(20, u"Energy", true, u" kJ/mol", kCount - 1);
  for (int n = 1; n <= kCount; ++n) {
    if (n != 10) file.Value(n, DecimalText(2 * n + 10));
  }
  file.Property(21, u"Text", false, u"", 1).Value(1, u"text");
  file.Category(u"Remarks", 1);
  file.Property(30, u"Remark", false, u"", 1).Value(1, u"remark");
  file.Category(u"Places", 2);
  file.Property(40, u"Across", true, u"", 5);
  for (int i = 0; i < 5; ++i) file.Value(i + 1, DecimalText(kPlaces[i].x));
  file.Property(41, u"Down", true, u"", 5);
  for (int i = 0; i < 5; ++i) file.Value(i + 1, DecimalText(268 - kPlaces[i].y));
  const TempFolder folder;
  const std::string path = folder.File("periodic.dat");
  file.Save(path);
  CollectingReporter reporter;
  database.Load(path, reporter);
}

}  // namespace orvane::testing
