// Pictures as files: read, written and compared.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // row by row, 0x00RRGGBB
};

// Empty (0 × 0) when the file is missing or no PNG.
Picture ReadPicture(const std::string& path);
bool WritePicture(const std::string& path, const Picture& picture);

// The share of pixels, 0 to 1, that differ by more than a trace in any channel; 1 for pictures of different
// sizes.
double DifferingShare(const Picture& a, const Picture& b);
// Black where the pictures agree, white where they differ; the size of the first.
Picture DifferencePicture(const Picture& a, const Picture& b);

}  // namespace orvane
