// "orvane-calc mass" and "orvane-calc balance", as a script and as a person use them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/cli/run_program.h"
#include "tests/data/dat_builder.h"
#include "tests/data/temp_folder.h"

namespace orvane::testing {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// Runs the program with a small database of known masses, so that answers do not move with the data.
class Calculator : public ::testing::Test {
 protected:
  Calculator() {
    const std::vector<std::pair<TextView, TextView>> elements{
        {u"H", u"1.008"}, {u"C", u"12.011"},  {u"O", u"15.999"},       {u"N", u"14.007"},
        {u"S", u"32.06"}, {u"Cu", u"63.546"}, {u"Na", u"22.98976928"}, {u"Cl", u"35.45"}};
    DatWriter file;
    file.PeriodicHeader(1);
    file.Category(u"All", 2);
    const auto count = static_cast<std::int16_t>(elements.size());
    file.Property(0, u"Symbol", false, u"", count);
    for (std::int16_t i = 0; i < count; ++i)
      file.Value(static_cast<std::int16_t>(i + 1), elements[static_cast<std::size_t>(i)].first);
    file.Property(2, u"Mass", false, u"", count);
    for (std::int16_t i = 0; i < count; ++i)
      file.Value(static_cast<std::int16_t>(i + 1), elements[static_cast<std::size_t>(i)].second);
    file.Save(folder_.File("periodic.dat"));
  }

  ProgramResult Calc(std::vector<std::string> words, const std::string& input = {}) {
    words.insert(words.begin(), {"--data", folder_.File("")});
    return RunProgram(ORVANE_BIN_DIR "/orvane-calc", words, input);
  }

  TempFolder folder_;
};

std::vector<json> Objects(const std::string& lines) {
  std::vector<json> objects;
  std::istringstream in(lines);
  for (std::string line; std::getline(in, line);) objects.push_back(json::parse(line));
  return objects;
}

std::string TextOf(const json& value) { return value.get<std::string>(); }

using MassCommand = Calculator;
using BalanceCommand = Calculator;

TEST_F(MassCommand, WritesOneObjectALine) {
  const ProgramResult result = Calc({"mass", "--json", "h2o", "2h"});
  EXPECT_EQ(
      result.out,
      R"({"input":"h2o","tokens":[["H",1],["2",2],["O",1]],"ok":true,"headline":null,"explanation":null,)"
      R"("line":"Mass: \u0001!18.015\u0001 , 3 d.p.","mass":"18.015","dp":3})"
      "\n"
      R"({"input":"2h","tokens":[["2",2],["H",1]],"ok":false,)"
      R"("headline":"Calculation failed due to errors in formula.",)"
      R"("explanation":"\n\nThe formula cannot begin with a number. Start the formula with a symbol or a )"
      R"(bracket.","line":"","mass":null,"dp":null})"
      "\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(
      result.err,
      "orvane-calc: \"2h\": The formula cannot begin with a number. Start the formula with a symbol or a "
      "bracket.\n");
}

TEST_F(MassCommand, TakesJsonInputExactlyAsItStands) {
  const ProgramResult result = Calc({"mass", "--json", " h2o", "[h2o]", "[h,o]", "h*o", "", "h\t", "(h)"});
  const std::vector<json> objects = Objects(result.out);
  ASSERT_EQ(objects.size(), 7u);
  std::vector<std::string> inputs;
  for (const json& object : objects) inputs.push_back(TextOf(object["input"]));
  EXPECT_THAT(inputs, ElementsAre(" h2o", "[h2o]", "[h,o]", "h*o", "", "h\t", "(h)"));
  EXPECT_EQ(objects[0]["tokens"], json::parse(R"([[" ",0],["H",1],["2",2],["O",1]])"));
  EXPECT_EQ(objects[1]["tokens"][0], json::parse(R"(["[",0])"));
  EXPECT_EQ(objects[4]["headline"], "Please enter a formula.");
  EXPECT_EQ(objects[4]["tokens"], json::array());
  EXPECT_TRUE(objects[6]["ok"]);
  const ProgramResult lines = Calc({"mass", "--json"}, "h2o\r\n\nh");
  const std::vector<json> answers = Objects(lines.out);
  ASSERT_EQ(answers.size(), 3u);
  EXPECT_EQ(answers[0]["input"], "h2o\r");
  EXPECT_EQ(answers[0]["ok"], false);
  EXPECT_EQ(answers[1]["input"], "");
  EXPECT_EQ(answers[2]["mass"], "1.008");
}

TEST_F(MassCommand, AnswersTheLinesOfStandardInput) {
  const ProgramResult result = Calc({"mass"}, "h2o\n nacl \r\nCuSO4*5H2O\n");
  EXPECT_EQ(result.out,
            "h2o, read as H2O: 18.015 g/mol, 3 d.p.\n"
            "nacl, read as NaCl: 58.44 g/mol, 2 d.p.\n"
            "CuSO4*5H2O, read as CuSO4(H2O)5: 249.68 g/mol, 2 d.p.\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Calc({"mass"}, "").status, 0);
  EXPECT_EQ(Calc({"mass", "--json"}, "").out, "");
}

TEST_F(MassCommand, GivesALineThatCannotBeReadItsErrorAndGoesOn) {
  const std::string input = "h\n\xFF\n" + std::string(512, 'h') + "\n" + std::string(100000, 'h') + "\n" +
                            std::string(511, 'h') + "\no";
  const ProgramResult people = Calc({"mass"}, input);
  EXPECT_EQ(people.status, 1);
  EXPECT_THAT(people.out, HasSubstr("H: 1.008 g/mol"));
  EXPECT_THAT(people.out, HasSubstr(": 515.088 g/mol, 3 d.p.\no, read as O: 15.999 g/mol, 3 d.p.\n"));
  EXPECT_THAT(people.err, HasSubstr("line 2: \"\xEF\xBF\xBD\": not UTF-8\n"));
  EXPECT_THAT(people.err, HasSubstr("line 3: \"hhh"));
  EXPECT_THAT(people.err, HasSubstr("line 4: more than 511 characters\n"));
  EXPECT_EQ(std::count(people.out.begin(), people.out.end(), '\n'), 3);
  EXPECT_EQ(std::count(people.err.begin(), people.err.end(), '\n'), 3);

  const std::vector<json> objects = Objects(Calc({"mass", "--json"}, input).out);
  ASSERT_EQ(objects.size(), 6u);
  EXPECT_EQ(objects[1]["error"], "not UTF-8");
  EXPECT_EQ(objects[2]["error"], "more than 511 characters");
  EXPECT_EQ(objects[3]["error"], "more than 511 characters");
  for (const int bad : {1, 2, 3}) {
    EXPECT_EQ(objects[static_cast<std::size_t>(bad)]["ok"], false);
    EXPECT_TRUE(objects[static_cast<std::size_t>(bad)]["mass"].is_null());
  }
  EXPECT_EQ(objects[4]["mass"], "515.088");
  EXPECT_FALSE(objects[4].contains("error"));
  EXPECT_EQ(objects[5]["mass"], "15.999");
}

TEST_F(MassCommand, TellsPeopleHowItReadAFormulaAndWhatItDidNotRead) {
  const ProgramResult result = Calc({"mass", "H2O", "[Na]Cl", "CuSO4.5H2O", "h2x", "CuSO4·5H2O"});
  EXPECT_EQ(result.out,
            "H2O: 18.015 g/mol, 3 d.p.\n"
            "[Na]Cl, read as (Na)Cl: 58.44 g/mol, 2 d.p.\n"
            "CuSO4\xC2\xB7"
            "5H2O, read as CuSO4(H2O)5: 249.68 g/mol, 2 d.p.\n");
  EXPECT_THAT(result.err, HasSubstr("write \"CuSO4*5H2O\" if it is a hydrate dot; 4.5 cannot be meant"));
  EXPECT_THAT(result.err, HasSubstr("\"h2x\": not recognized: \"X\"; check spelling and capitalization\n"));
  EXPECT_EQ(result.status, 1);
}

TEST_F(MassCommand, NamesTheCharactersThatItDoesNotKnow) {
  EXPECT_THAT(Calc({"mass", "h\x01o x"}).err, HasSubstr("not recognized: \"\\u0001\", \" \", \"X\"; check"));
  EXPECT_THAT(Calc({"mass", "--json"}, "h2o\r\n").err, HasSubstr("not recognized: \"\\u000d\"; check"));
  // A character beyond U+FFFF is two tokens, of which each would be half a character.
  EXPECT_THAT(Calc({"mass", "h\xF0\x9F\x98\x80o"}).err,
              HasSubstr("not recognized: \"\xF0\x9F\x98\x80\"; check"));
}

TEST_F(MassCommand, TakesWordsThatMeanSomethingToOptionParsers) {
  const std::vector<std::string> words{"%%", "++", "{}", "[]", "[h", "\x1Fh", "mass", ""};
  std::vector<std::string> line{"mass", "--json"};
  line.insert(line.end(), words.begin(), words.end());
  std::vector<std::string> inputs;
  for (const json& object : Objects(Calc(line).out)) inputs.push_back(TextOf(object["input"]));
  EXPECT_EQ(inputs, words);
}

TEST_F(MassCommand, FailsWhenItsAnswersCannotBeWritten) {
  const std::string program = ShellQuoted(ORVANE_BIN_DIR "/orvane-calc");
  for (const std::string words : {" mass h", " mass", " --version", " --help"}) {
    // An input without an end is given up, too.
    const std::string line = "yes h | " + program + words + " >/dev/full 2>/dev/null";
    const int status = std::system(line.c_str());
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << words;
  }
}

TEST_F(MassCommand, FailsWithoutItsData) {
  const ProgramResult result =
      RunProgram(ORVANE_BIN_DIR "/orvane-calc", {"--data", folder_.File("none"), "mass", "h"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, HasSubstr("Failed to open the elements database file."));
}

// Sums are formed with eight decimals.
TEST(AtomicMasses, AreNumbersThatSumsCanHold) {
  const ProgramResult result =
      RunProgram(ORVANE_BIN_DIR "/orvane-calc", {"dump", "periodic", ORVANE_BIN_DIR "/periodic.dat"});
  const json data = json::parse(result.out)["data"];
  const json& address = data["special"]["mass"];
  const json& values = data["categories"][address[0].get<std::size_t>()]["properties"]
                           [address[1].get<std::size_t>()]["values"];
  EXPECT_EQ(values.size(), 112u);
  for (const json& value : values) {
    EXPECT_THAT(TextOf(value["value"]), ::testing::MatchesRegex("[0-9]+\\.[0-9]+|\\[[0-9]+\\]"));
    const std::size_t point = TextOf(value["value"]).find('.');
    if (point == std::string::npos) continue;
    EXPECT_LE(TextOf(value["value"]).size() - point - 1, 8u) << value["value"];
  }
}

TEST_F(MassCommand, RefusesOptionsThatItDoesNotHave) {
  EXPECT_EQ(Calc({"mass", "--no-such-option", "h"}).status, 2);
  EXPECT_EQ(Calc({"mass", "--exact", "h"}).status, 2);
  EXPECT_EQ(Calc({"mass", "--", "-h"}).status, 1);
  EXPECT_EQ(Calc({"mass", "--help"}).status, 0);
}

TEST_F(BalanceCommand, WritesOneObjectALine) {
  const ProgramResult result = Calc({"balance", "--json", "h2+o2\th2o"});
  EXPECT_EQ(
      result.out,
      R"({"lhs":"h2+o2","rhs":"h2o","lhs_tokens":[["H",1],["2",2],["+",5],["O",1],["2",2]],)"
      R"("rhs_tokens":[["H",1],["2",2],["O",1]],"state":1,"title":"Equation balanced",)"
      R"("text":"The coefficients are:\n\u0001!LHS:\u0001  2, 1\n\u0001!RHS:\u0001  2\n\nThese coefficients )"
      R"(have been inserted into the equation above.","coefficients":[2,1,2],"lines":[],)"
      R"("new_lhs":"2H2+O2","new_rhs":"2H2O","boxes":[]})"
      "\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(BalanceCommand, WritesEveryOutcome) {
  const ProgramResult result =
      Calc({"balance", "--json"}, "h2\th2+h2\nh2\to2\nh2 + o2\th2o\nh2\nh\th\to\n2h2\t");
  const std::vector<json> objects = Objects(result.out);
  ASSERT_EQ(objects.size(), 6u);
  EXPECT_EQ(objects[0]["state"], 2);
  EXPECT_EQ(objects[0]["title"], "Equation balanced \x01!(non-regular)");
  EXPECT_EQ(objects[0]["text"], "");
  EXPECT_EQ(objects[0]["lines"],
            json::parse(R"(["\u0001!A\u0001  = a + b","\u0001!B\u0001  = a","\u0001!C\u0001  = b"])"));
  EXPECT_EQ(objects[0]["coefficients"], json::array());
  EXPECT_EQ(objects[0]["new_rhs"], "H2+H2");
  EXPECT_EQ(objects[1]["title"], "No solutions exist");
  EXPECT_EQ(objects[1]["new_lhs"], "h2");
  EXPECT_EQ(objects[1]["new_rhs"], "o2");
  EXPECT_EQ(objects[2]["title"], "Errors in input - left-hand side");
  EXPECT_EQ(objects[3]["title"], "Errors in input - right-hand side");
  EXPECT_EQ(objects[3]["rhs"], "");
  // Only the first tab parts the sides.
  EXPECT_EQ(objects[4]["rhs"], "h\to");
  EXPECT_EQ(objects[5]["text"], "The right-hand side of your equation is empty. Please enter your equation.");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(Calc({"balance", "--json", "h2\th2+h2"}).status, 0);
}

TEST_F(BalanceCommand, AnswersPeople) {
  const ProgramResult result = Calc(
      {"balance", "h2 + o2 = h2o", "2 H2 + 7 O2 -> H2O", "CuSO4*5H2O \xE2\x86\x92 CuSO4 + H2O", "h2=h2+h2"});
  EXPECT_EQ(result.out,
            "2H2 + O2 = 2H2O\n"
            "2H2 + O2 = 2H2O\n"
            "CuSO4(H2O)5 = CuSO4 + 5H2O\n"
            "H2 = H2 + H2: Equation balanced (non-regular)\n"
            "  A = a + b\n  B = a\n  C = b\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(BalanceCommand, ShowsEmptyTermsWithSingleBlanks) {
  EXPECT_THAT(Calc({"balance", "h+ = h"}).out, HasSubstr("H + = H: Equation balanced (non-regular)\n"));
  EXPECT_THAT(Calc({"balance", "h = + 2h"}).out, HasSubstr("H = + H: Equation balanced (non-regular)\n"));
}

TEST_F(BalanceCommand, TellsPeopleWhatIsWrong) {
  const ProgramResult result = Calc({"balance"}, "h2+o2\nh=x\nh2+2=h\nh=o\n=\n h2 + o2 = h2o\n");
  EXPECT_EQ(result.out, "2H2 + O2 = 2H2O\n");
  EXPECT_EQ(
      result.err,
      "orvane-calc: line 1: \"h2+o2\": no \"=\" or \"->\" stands between two sides\n"
      "orvane-calc: line 2: \"h=x\": Errors in input - right-hand side: not recognized: \"X\"; check "
      "spelling "
      "and capitalization\n"
      "orvane-calc: line 3: \"h2+2=h\": Errors in input - left-hand side: The left-hand side ends with a "
      "coefficient, which is invalid. Please correct this before proceeding.\n"
      "orvane-calc: line 4: \"h=o\": No solutions exist: There are no solutions to this equation. A possible "
      "cause for this is incorrect capitalization resulting in a wrong equation.\n"
      "orvane-calc: line 5: \"=\": Errors in input - left-hand side: The left-hand side of your equation is "
      "empty. Please enter your equation.\n");
  EXPECT_EQ(result.status, 1);
}

TEST_F(BalanceCommand, RefusesSidesThatAreTooLong) {
  const std::string longest = std::string(511, 'h');
  const std::vector<json> objects = Objects(
      Calc({"balance", "--json"}, longest + "\th\n" + longest + "h\th\nh\th" + longest + "\n\xFF\th\nh\th")
          .out);
  ASSERT_EQ(objects.size(), 5u);
  EXPECT_EQ(objects[0]["title"], "Equation balanced");
  EXPECT_EQ(objects[1]["error"], "more than 511 characters");
  EXPECT_EQ(objects[2]["error"], "more than 511 characters");
  EXPECT_EQ(objects[3]["error"], "not UTF-8");
  EXPECT_EQ(objects[4]["new_lhs"], "H");
  EXPECT_EQ(objects[1]["state"], 0);
  EXPECT_THAT(Calc({"balance", longest + "h = h"}).err, HasSubstr("more than 511 characters"));
}

// Coefficients beyond 32 bits, found apart from the program with fractions of any size.
constexpr const char* kHardLeft = "h682o418n212s561+h182o941n764s315";
constexpr const char* kHardRight = "h346o804n149s256+h760o246n699s111+h214o335n394s313";

TEST_F(BalanceCommand, ReportsOverflowAsTheHandHeldDoes) {
  const std::string problem = std::string(kHardLeft) + "\t" + kHardRight;
  const ProgramResult result = Calc({"balance", "--json", problem});
  const std::vector<json> objects = Objects(result.out);
  ASSERT_EQ(objects.size(), 1u);
  ASSERT_FALSE(objects[0]["boxes"].empty());
  EXPECT_EQ(TextOf(objects[0]["boxes"][0]).substr(0, 26), "Overflow in FractMul: dest");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.err, HasSubstr("--exact has no such limit"));
  const ProgramResult known = Calc({"balance", "--json", "h623o448n6+h26o86n76\th870o11n85+h583o463n401"});
  EXPECT_EQ(Objects(known.out)[0]["boxes"][0], "Overflow in FractMul: dest=-47192/623, src=54701/5990.");
}

TEST_F(BalanceCommand, IsExactWithNumbersOfAnySize) {
  const std::string problem = std::string(kHardLeft) + "\t" + kHardRight;
  const ProgramResult result = Calc({"balance", "--json", "--exact", problem});
  const std::vector<json> objects = Objects(result.out);
  ASSERT_EQ(objects.size(), 1u);
  EXPECT_EQ(objects[0]["coefficients"].dump(),
            "[20750960910,23673734123,19078800892,3129733570,44303328641]");
  EXPECT_THAT(objects[0]["boxes"], IsEmpty());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Calc({"balance", "--exact", std::string(kHardLeft) + "=" + kHardRight}).out,
            "20750960910H682O418N212S561 + 23673734123H182O941N764S315 = 19078800892H346O804N149S256 + "
            "3129733570H760O246N699S111 + 44303328641H214O335N394S313\n");
  // Where nothing overflows, exact numbers change nothing.
  for (const std::string easy : {"h2+o2\th2o", "h2\th2+h2", "h\to", "x\th", "c3h8+o2\tco2+co+h2o", "h0\to"}) {
    EXPECT_EQ(Calc({"balance", "--json", "--exact", easy}).out, Calc({"balance", "--json", easy}).out);
  }
  // Nothing is cut to the size of a box, either.
  std::string right = "h";
  for (int i = 0; i < 99; ++i) right += "+h";
  const json exact = Objects(Calc({"balance", "--json", "--exact", "h\t" + right}).out)[0];
  // "A = a", ninety-nine times " + b", and the 69 letters beyond U+007F take two bytes.
  EXPECT_EQ(TextOf(exact["lines"][0]).size(), 9u + 99 * 4 + 69);
}

}  // namespace
}  // namespace orvane::testing
