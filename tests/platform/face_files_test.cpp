#include "platform/face_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <system_error>

#include "platform/freetype_fonts.h"

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::Not;
namespace fs = std::filesystem;

// A folder of its own for one test, removed at its end.
class FaceFolder : public testing::Test {
 protected:
  FaceFolder() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = fs::path(ORVANE_BIN_DIR) / (std::string("faces-") + test->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~FaceFolder() override {
    std::error_code error;
    fs::remove_all(folder_, error);
  }

  void Link(std::size_t face) {
    fs::create_symlink(FindFaceFile(face, SystemFontFolders()), folder_ / kFaces.at(face).name);
  }

  fs::path folder_;
};

TEST(FaceFiles, EachStyleHasItsFile) {
  std::set<std::string_view> names;
  for (const char16_t* face : {u"Tahoma", u"Courier New"}) {
    for (const bool bold : {false, true}) {
      for (const bool italic : {false, true})
        names.insert(kFaces.at(FaceIndex({face, 12, bold, italic})).name);
    }
  }
  EXPECT_EQ(names.size(), 8u);
  const auto file = [](const FontSpec& spec) { return kFaces.at(FaceIndex(spec)).name; };
  EXPECT_EQ(file({u"Tahoma", 9}), "DejaVuSansCondensed.ttf");
  EXPECT_EQ(file({u"Tahoma", 9, true}), "DejaVuSansCondensed-Bold.ttf");
  EXPECT_EQ(file({u"Tahoma", 9, false, true}), "DejaVuSansCondensed-Oblique.ttf");
  EXPECT_EQ(file({u"Tahoma", 9, true, true}), "DejaVuSansCondensed-BoldOblique.ttf");
  EXPECT_EQ(file({u"Courier New", 9, true, true}), "LiberationMono-BoldItalic.ttf");
  EXPECT_EQ(file({u"courier", 9}), "DejaVuSansCondensed.ttf");
}

TEST_F(FaceFolder, NothingFoundNamesEveryFileAndPackage) {
  const auto library = MakeFontLibrary({folder_.string(), ""});
  EXPECT_EQ(
      ToUtf8(library->MissingFaces()),
      "The font files DejaVuSansCondensed.ttf, DejaVuSansCondensed-Oblique.ttf, "
      "DejaVuSansCondensed-Bold.ttf, DejaVuSansCondensed-BoldOblique.ttf, LiberationMono-Regular.ttf, "
      "LiberationMono-Italic.ttf, LiberationMono-Bold.ttf and LiberationMono-BoldItalic.ttf could not be "
      "opened. Please install the packages fonts-dejavu-extra and fonts-liberation2, or put the files into "
      "the program's folder.");
}

TEST_F(FaceFolder, OneMissingFileIsNamedAlone) {
  for (std::size_t i = 0; i < kFaceFiles; ++i) {
    if (i != 2) Link(i);
  }
  const auto library = MakeFontLibrary({folder_.string()});
  EXPECT_EQ(ToUtf8(library->MissingFaces()),
            "The font file DejaVuSansCondensed-Bold.ttf could not be opened. Please install the package "
            "fonts-dejavu-extra, or put the file into the program's folder.");
}

TEST_F(FaceFolder, WithoutFilesThereAreMetricsStill) {
  const auto library = MakeFontLibrary({folder_.string()});
  const Font& tahoma = library->GetFont({u"Tahoma", 13});
  EXPECT_EQ(tahoma.Height(), 16);
  EXPECT_EQ(tahoma.TextWidth(u"four\n"), 4 * 7);
  std::vector<int> widths;
  tahoma.AppendWidths(u"a\U0001F600\n", widths);
  EXPECT_THAT(widths, testing::ElementsAre(7, 7, 0, 0));
  EXPECT_GT(library->GetFont({u"Courier New", 13}).Height(), 0);
}

TEST_F(FaceFolder, ABrokenFileIsReportedOnceItWasTried) {
  for (std::size_t i = 1; i < kFaceFiles; ++i) Link(i);
  std::ofstream(folder_ / kFaces[0].name) << "not a font";
  const auto library = MakeFontLibrary({folder_.string()});
  EXPECT_EQ(library->GetFont({u"Tahoma", 12}).TextWidth(u"ab"), 12);
  EXPECT_THAT(ToUtf8(library->MissingFaces()), HasSubstr("DejaVuSansCondensed.ttf could not be opened"));
}

TEST_F(FaceFolder, EarlierFoldersWin) {
  Link(0);
  EXPECT_EQ(FindFaceFile(0, {folder_.string(), "/nowhere"}), (folder_ / "DejaVuSansCondensed.ttf").string());
  EXPECT_EQ(FindFaceFile(0, {"/nowhere", folder_.string()}), (folder_ / "DejaVuSansCondensed.ttf").string());
  const std::string system = FindFaceFile(0, SystemFontFolders());
  std::vector<std::string> folders = SystemFontFolders();
  folders.push_back(folder_.string());
  EXPECT_EQ(FindFaceFile(0, folders), system);
  EXPECT_THAT(system, Not(HasSubstr(folder_.string())));
  EXPECT_EQ(FindFaceFile(1, {folder_.string()}), "");
}

}  // namespace
}  // namespace orvane
