// Text with everything that the encodings must carry, through the table, the compiler and the program's
// reader.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "content/cell_text.h"
#include "content/elements_source.h"
#include "content/table_reader.h"
#include "data/elements_database.h"
#include "tests/content/content_tables.h"
#include "tests/content/expected_properties.h"
#include "tests/content/table_builder.h"
#include "tests/data/collecting_reporter.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

TEST(RoundTrip, KeepsStylesAndWideCharacters) {
  const std::vector<Text> values = {u"3s\u0001\u00A02\u0001  4p",
                                    u"H\u0001`2\u0001 O",
                                    u"–1 °C × Ω \U0001F600",
                                    Text{u'a', 0xD800, u'b'},
                                    u"two\nlines",
                                    u"\u0001!bold\u0001 ",
                                    u"^ _ \\ @ -",
                                    Text(21845, u'Ω')};
  TableBuilder table = TableBuilder::Identification();
  for (std::size_t i = 0; i < values.size(); ++i)
    table.Cell(static_cast<int>(i) + 7, 4) = WriteCellText(values[i]);
  table.Cell(1, 2) = "Caf\\u0001\\u0021é Ω";
  table.Cell(4, 5) = "\" µm^{Ω}\"";

  std::vector<TableProblem> problems;
  const ElementsSource source = ReadElements({ReadTable("t", table.Content())}, {"book"}, problems);
  ASSERT_THAT(problems, ::testing::IsEmpty());
  const TempFolder folder;
  WriteBytes(folder.File("periodic.dat"), EncodeElements(source));
  CollectingReporter reporter;
  ElementsDatabase database;
  ASSERT_EQ(database.Load(folder.File("periodic.dat"), reporter), 1);
  EXPECT_THAT(reporter.texts, ::testing::IsEmpty());
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_EQ(database.Name()->Value(static_cast<int>(i)), values[i]) << i;
  }
  EXPECT_EQ(database.Categories()[0].Name(), u"Caf\u0001!é Ω");
  EXPECT_EQ(database.AtomicMass()->Units(), u" µm\u0001\u00A0Ω\u0001 ");
}

// What the build compiled is what the tables say.
TEST(RoundTrip, LoadsTheBuiltFileAsTheTablesSay) {
  CollectingReporter reporter;
  ElementsDatabase database;
  ASSERT_EQ(database.Load(ORVANE_BIN_DIR "/periodic.dat", reporter), 1);
  ASSERT_THAT(reporter.texts, ::testing::IsEmpty());

  const ContentTables tables = LoadContentTables();
  ASSERT_THAT(tables.problems, ::testing::IsEmpty());
  const ElementsSource& source = tables.source;

  ASSERT_EQ(source.categories.size(), database.Categories().size());
  for (std::size_t c = 0; c < source.categories.size(); ++c) {
    EXPECT_EQ(source.categories[c].name, database.Categories()[c].Name());
    const std::vector<PropertySource>& written = source.categories[c].properties;
    const std::vector<ElementProperty>& loaded = database.Categories()[c].Properties();
    ASSERT_EQ(written.size(), loaded.size());
    for (std::size_t v = 0; v < written.size(); ++v) {
      EXPECT_EQ(written[v].id, loaded[v].Id());
      EXPECT_EQ(written[v].name, loaded[v].Name());
      EXPECT_EQ(written[v].units, loaded[v].Units());
      EXPECT_EQ(written[v].plottable, loaded[v].IsPlottable());
      for (int element = 0; element < ElementsDatabase::kElementCount; ++element) {
        const std::optional<Text>& value = written[v].values[static_cast<std::size_t>(element)];
        EXPECT_EQ(value.has_value(), loaded[v].HasValue(element));
        EXPECT_EQ(value.value_or(u""), loaded[v].Value(element));
      }
    }
  }
}

// A table's number is its category's position, and its file has the category's name.
TEST(ElementsTables, AreNumberedInOrder) {
  std::vector<std::string> expected;
  for (const char* category : kExpectedCategories) {
    std::string name = std::to_string(expected.size()) + "_" + category + ".tsv";
    for (char& c : name) c = c == ' ' ? '_' : static_cast<char>(AsciiLower(static_cast<unsigned char>(c)));
    expected.push_back(name);
  }
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(ORVANE_SOURCE_DIR "/content/elements")) {
    names.push_back(entry.path().filename().string());
  }
  EXPECT_THAT(names, ::testing::UnorderedElementsAreArray(expected));
}

}  // namespace
}  // namespace orvane::testing
