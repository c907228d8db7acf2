#include "platform/face_files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace orvane {
namespace {

// "a", "a and b", "a, b and c".
std::string Listed(const std::vector<std::string_view>& words) {
  std::string list;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) list += i + 1 == words.size() ? " and " : ", ";
    list += words[i];
  }
  return list;
}

}  // namespace

bool IsMonospaced(const FontSpec& spec) { return spec.face == u"Courier New"; }

std::size_t FaceIndex(const FontSpec& spec) {
  return (IsMonospaced(spec) ? 4u : 0u) + (spec.bold ? 2u : 0u) + (spec.italic ? 1u : 0u);
}

std::vector<std::string> SystemFontFolders() {
  return {"/usr/share/fonts/truetype/dejavu",        // Debian, Ubuntu
          "/usr/share/fonts/truetype/liberation2",   // Debian 12
          "/usr/share/fonts/truetype/liberation",    // later ones
          "/usr/share/fonts/TTF",                    // Arch
          "/usr/share/fonts/liberation",             //
          "/usr/share/fonts/dejavu-sans-fonts",      // Fedora
          "/usr/share/fonts/liberation-mono-fonts",  //
          "/usr/share/fonts/liberation-mono",        //
          "/usr/share/fonts/truetype",               // openSUSE
          "/usr/local/share/fonts"};
}

std::string FindFaceFile(std::size_t face, const std::vector<std::string>& folders) {
  for (const std::string& folder : folders) {
    if (folder.empty()) continue;
    const std::filesystem::path path = std::filesystem::path(folder) / kFaces.at(face).name;
    std::error_code error;
    if (std::filesystem::is_regular_file(path, error)) return path.string();
  }
  return {};
}

Text MissingFacesMessage(const std::vector<std::size_t>& faces) {
  if (faces.empty()) return {};
  std::vector<std::string_view> files;
  std::vector<std::string_view> packages;
  for (const std::size_t face : faces) {
    files.push_back(kFaces.at(face).name);
    const std::string_view package = kFaces.at(face).package;
    if (std::find(packages.begin(), packages.end(), package) == packages.end()) packages.push_back(package);
  }
  const bool oneFile = files.size() == 1;
  const bool onePackage = packages.size() == 1;
  return FromUtf8((oneFile ? "The font file " : "The font files ") + Listed(files) +
                  " could not be opened. Please install the package" + (onePackage ? " " : "s ") +
                  Listed(packages) + (oneFile ? ", or put the file" : ", or put the files") +
                  " into the program's folder.");
}

}  // namespace orvane
