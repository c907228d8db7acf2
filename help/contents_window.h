// The contents of the manual as the viewer knows them: screens do not know each other.
#pragma once

#include <functional>
#include <memory>

#include "data/help_file.h"

namespace orvane {

class ContentsWindow {
 public:
  virtual ~ContentsWindow() = default;
  // Comes forward with the page of this id selected.
  virtual void ShowAt(int pageId) = 0;
  // Goes away, if it shows: a page takes its place.
  virtual void PutAway() = 0;
};

// Makes the window for an opened help file, which outlives it. `openPage` shows the page with an id in the
// viewer.
using ContentsMaker = std::function<std::unique_ptr<ContentsWindow>(const HelpFile& help,
                                                                    std::function<void(int id)> openPage)>;

}  // namespace orvane
