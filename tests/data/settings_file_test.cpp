#include "data/settings_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "data/file_replace.h"
#include "data/zel_registry.h"
#include "tests/data/temp_folder.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;
using testing::ReadBytes;
using testing::TempFolder;
using testing::WriteBytes;

constexpr TextView kKey = u"Software\\Zel Software\\Orvane";
constexpr char kHeader[] = "[Software\\Zel Software\\Orvane]\n";

class SettingsFileTest : public ::testing::Test {
 protected:
  // One run of the program: opens the key on the file, does what it is told, and ends.
  template <typename Body>
  void Run(Body body) {
    SettingsFile store(path);
    ZelRegistry registry(store);
    registry.SetKey(kKey);
    registry.Open();
    body(registry);
    registry.Close();
  }
  void WriteOne(std::int32_t value) {
    Run([&](ZelRegistry& r) { r.WriteLong(u"n", value); });
  }
  std::int32_t ReadOne() {
    std::int32_t value = 0;
    Run([&](ZelRegistry& r) { value = r.ReadLong(u"n", -1); });
    return value;
  }
  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.Path()), {}));
  }

  TempFolder folder;
  std::string path = folder.File("settings");
};

TEST_F(SettingsFileTest, EveryKindIsWrittenInItsFormAndReadAgain) {
  const std::array<std::uint8_t, 3> binary = {1, 2, 255};
  Run([&](ZelRegistry& r) {
    r.WriteLong(u"wnd_plot.Cur.xCat", 2);
    r.WriteLong(u"wnd_plot.Cur.yCat", -5);
    r.WriteBool(u"wnd_periodic.Wide", true);
    r.WriteString(u"wnd_mass.Formula", u"h2o \u2013 \"\\\n");
    r.WriteDouble(u"wnd_plot.Cur.xcMin", 0.75);
    r.WriteBinary(u"wnd_element.Last", binary);
  });
  EXPECT_EQ(ReadBytes(path), std::string(kHeader) +
                                 "\"wnd_plot.Cur.xCat\"=dword:00000002\n"
                                 "\"wnd_plot.Cur.yCat\"=dword:fffffffb\n"
                                 "\"wnd_periodic.Wide\"=dword:00000001\n"
                                 "\"wnd_mass.Formula\"=\"h2o \xE2\x80\x93 \\\"\\\\\\u000a\"\n"
                                 "\"wnd_plot.Cur.xcMin\"=hex:00,00,00,00,00,00,e8,3f\n"
                                 "\"wnd_element.Last\"=hex:01,02,ff\n");
  Run([&](ZelRegistry& r) {
    Text text;
    EXPECT_EQ(r.ReadLong(u"wnd_plot.Cur.xCat", 0), 2);
    EXPECT_EQ(r.ReadLong(u"wnd_plot.Cur.yCat", 0), -5);
    EXPECT_TRUE(r.ReadBool(u"wnd_periodic.Wide", false));
    EXPECT_EQ(r.ReadString(u"wnd_mass.Formula", text, u""), 19);
    EXPECT_EQ(text, u"h2o \u2013 \"\\\n");
    EXPECT_EQ(r.ReadDouble(u"wnd_plot.Cur.xcMin", 0), 0.75);
    std::array<std::uint8_t, 3> read{};
    EXPECT_EQ(r.ReadBinary(u"wnd_element.Last", read), 3);
    EXPECT_EQ(read, binary);
  });
}

TEST_F(SettingsFileTest, AFirstRunReadsDefaultsAndLeavesNoFileUntilSomethingIsWritten) {
  Run([&](ZelRegistry& r) {
    EXPECT_EQ(r.ReadLong(u"n", 7), 7);
    EXPECT_FALSE(r.Exists(u"n"));
  });
  EXPECT_EQ(FilesInFolder(), 0u);
  WriteOne(3);
  EXPECT_EQ(ReadOne(), 3);
  EXPECT_EQ(FilesInFolder(), 1u);  // no temporary file is left
}

TEST_F(SettingsFileTest, MissingFoldersAreMade) {
  path = folder.File("config/orvane/settings");
  WriteOne(3);
  EXPECT_EQ(ReadOne(), 3);
}

TEST_F(SettingsFileTest, ValuesReachTheFileWhenTheKeyIsClosed) {
  SettingsFile store(path);
  ZelRegistry registry(store);
  registry.SetKey(kKey);
  registry.Open();
  registry.WriteLong(u"n", 3);
  EXPECT_FALSE(fs::exists(path));
  registry.Close();
  EXPECT_TRUE(fs::exists(path));
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"n", -1), 3);
}

TEST_F(SettingsFileTest, AFileWithoutChangesIsNotWritten) {
  const std::string bytes = std::string(kHeader) + "\"n\"=dword:3\ndamaged\n";
  WriteBytes(path, bytes);
  WriteOne(3);
  EXPECT_EQ(ReadBytes(path), bytes);
  WriteOne(4);
  EXPECT_EQ(ReadBytes(path), std::string(kHeader) + "\"n\"=dword:00000004\n");
}

TEST_F(SettingsFileTest, ADamagedLineCostsThatValueOnly) {
  WriteBytes(path, std::string(kHeader) + "\"a\"=dword:1\n\"n\"=dword:99999999999\n\"b\"=dword:2\n");
  Run([&](ZelRegistry& r) {
    EXPECT_EQ(r.ReadLong(u"a", -1), 1);
    EXPECT_EQ(r.ReadLong(u"n", -1), -1);
    EXPECT_EQ(r.ReadLong(u"b", -1), 2);
  });
}

TEST_F(SettingsFileTest, HandEditedValuesOfOddSizesReadAsDefaults) {
  WriteBytes(path, std::string(kHeader) +
                       "\"zero\"=\"a\\u0000b\"\n\"kind\"=multi:61,00\n\"short\"=hex:01\n\"long\"=\"" +
                       std::string(1000, 'x') + "\"\n");
  Run([&](ZelRegistry& r) {
    Text text;
    for (const TextView name : {u"zero", u"kind", u"short", u"long"}) {
      EXPECT_EQ(r.ReadString(name, text, u"default"), 7);
      EXPECT_EQ(text, u"default");
      EXPECT_EQ(r.ReadLong(name, -7), -7);
    }
  });
}

TEST_F(SettingsFileTest, WhatAPersonChangesBetweenTwoOpensCounts) {
  SettingsFile store(path);
  ZelRegistry registry(store);
  registry.SetKey(kKey);
  registry.Open();
  registry.WriteLong(u"n", 3);
  registry.WriteLong(u"m", 5);
  registry.Close();
  WriteBytes(path, std::string(kHeader) + "\"n\"=dword:4\n");
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"n", -1), 4);
  EXPECT_EQ(registry.ReadLong(u"m", -1), -1);
}

TEST_F(SettingsFileTest, KeysAreSectionsOfOneFile) {
  SettingsFile store(path);
  for (const int pass : {0, 1}) {
    ASSERT_TRUE(store.OpenKey(u"One"));
    store.Write(u"n", {SettingKind::kLong, {1, 0, 0, 0}});
    ASSERT_TRUE(store.OpenKey(u"Two"));  // closes the other
    EXPECT_EQ(store.Find(u"n") != nullptr, pass == 1);
    store.Write(u"n", {SettingKind::kLong, {2, 0, 0, 0}});
    store.CloseKey();
  }
  EXPECT_EQ(ReadBytes(path), "[One]\n\"n\"=dword:00000001\n\n[Two]\n\"n\"=dword:00000002\n");
}

TEST_F(SettingsFileTest, WithoutAnOpenKeyNothingIsFoundOrWritten) {
  SettingsFile store(path);
  store.Write(u"n", {SettingKind::kLong, {1, 0, 0, 0}});
  EXPECT_EQ(store.Find(u"n"), nullptr);
  store.CloseKey();
  EXPECT_FALSE(store.OpenKey(u"two\nlines"));
  store.Write(u"n", {SettingKind::kLong, {1, 0, 0, 0}});
  store.CloseKey();
  EXPECT_EQ(FilesInFolder(), 0u);
}

TEST_F(SettingsFileTest, AnUnwritablePlaceIsSilentAndTheProgramRunsOnDefaults) {
  WriteBytes(folder.File("file"), "not a folder");
  path = folder.File("file/settings");
  WriteOne(3);
  EXPECT_EQ(ReadOne(), -1);
  EXPECT_EQ(ReadBytes(folder.File("file")), "not a folder");

  SettingsFile store(path);
  ZelRegistry registry(store);
  registry.SetKey(kKey);
  registry.Open();
  registry.WriteLong(u"n", 3);
  registry.Close();
  registry.Open();
  EXPECT_EQ(registry.ReadLong(u"n", -1), -1);  // what was not kept is not there
}

TEST_F(SettingsFileTest, AReadOnlyFileIsLeftAlone) {
  WriteOne(3);
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  // The superuser may write every file, so the superuser steps down to somebody else for a moment.
  constexpr uid_t kSomebody = 65534;
  const bool superuser = ::geteuid() == 0;
  if (superuser && ::seteuid(kSomebody) != 0) GTEST_SKIP() << "the superuser may write every file";
  WriteOne(4);
  const std::int32_t kept = ReadOne();
  if (superuser) {
    ASSERT_EQ(::seteuid(0), 0);
  }
  EXPECT_EQ(kept, 3);
}

TEST_F(SettingsFileTest, WhatIsNoFileIsLeftAlone) {
  fs::create_directory(path);
  WriteOne(3);
  EXPECT_TRUE(fs::is_directory(path));
  path = "/dev/null";
  WriteOne(3);
  EXPECT_TRUE(fs::is_character_file(path));
  EXPECT_FALSE(ReplaceFile("/dev/null", "bytes"));
  EXPECT_TRUE(fs::is_character_file(path));
}

TEST_F(SettingsFileTest, AFileTooLargeForSettingsIsLeftAlone) {
  WriteBytes(path, std::string(kHeader) + "\"n\"=dword:3\n");
  fs::resize_file(path, 16 * 1024 * 1024 + 1);
  WriteOne(4);
  EXPECT_EQ(fs::file_size(path), 16u * 1024 * 1024 + 1);
  EXPECT_EQ(ReadOne(), -1);
}

TEST_F(SettingsFileTest, PermissionsAreKept) {
  WriteOne(3);
  const fs::perms only = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(path, only);
  WriteOne(4);
  EXPECT_EQ(ReadOne(), 4);
  EXPECT_EQ(fs::status(path).permissions(), only);
}

TEST_F(SettingsFileTest, ASymbolicLinkIsFollowed) {
  fs::create_directory(folder.File("dotfiles"));
  fs::create_symlink("dotfiles/first", path);  // to nothing yet
  fs::create_symlink("second", folder.File("dotfiles/first"));
  WriteOne(3);
  EXPECT_EQ(ReadOne(), 3);
  WriteOne(4);
  EXPECT_TRUE(fs::is_symlink(path));
  EXPECT_TRUE(fs::is_symlink(folder.File("dotfiles/first")));
  EXPECT_EQ(ReadBytes(folder.File("dotfiles/second")), std::string(kHeader) + "\"n\"=dword:00000004\n");
}

TEST_F(SettingsFileTest, ACircleOfLinksIsSilent) {
  fs::create_symlink("settings", path);
  WriteOne(3);
  EXPECT_EQ(ReadOne(), -1);
  EXPECT_TRUE(fs::is_symlink(path));
  EXPECT_FALSE(ReplaceFile(path, "bytes"));
}

TEST_F(SettingsFileTest, AFullDiskNeverCostsTheOldFile) {
  WriteOne(3);
  const std::string before = ReadBytes(path);
  // A limit on the size of files stands in for the full disk: writes beyond it fail alike.
  rlimit old{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
  rlimit small = old;
  small.rlim_cur = 1000;
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  Run([&](ZelRegistry& r) {
    r.WriteLong(u"n", 4);
    for (int i = 0; i < 100; ++i) r.WriteString(WithNumber(u"long[%d]", i), Text(200, u'x'));
  });
  ::setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(ReadBytes(path), before);
  EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(SettingsFileTest, AllValuesOfARunAreThereAtTheNextUnderTheirNames) {
  const TextView names[] = {
      u"wnd_periodic.View",      u"wnd_element.Last.Count", u"wnd_element.Preset[0].Val[1]",
      u"wnd_const.Col[0].Width", u"wnd_mass.Formula",       u"wnd_balancer.Left",
      u"wnd_plot.Preset[2].xCat"};
  // Each screen opens the key for itself, as it ends.
  for (const TextView name : names) {
    Run([&](ZelRegistry& r) { r.WriteLong(name, static_cast<std::int32_t>(name.size())); });
  }
  Run([&](ZelRegistry& r) {
    for (const TextView name : names) {
      EXPECT_TRUE(r.Exists(name));
      EXPECT_EQ(r.ReadLong(name, -1), static_cast<std::int32_t>(name.size()));
    }
  });
}

}  // namespace
}  // namespace orvane
