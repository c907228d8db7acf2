#include "cli/balance_command.h"

#include <algorithm>

#include "chemistry/balance.h"
#include "chemistry/equation_solver.h"
#include "cli/big_integer.h"
#include "cli/json_writer.h"
#include "cli/load_elements.h"
#include "cli/message_collector.h"
#include "cli/notation.h"
#include "cli/plain_text.h"
#include "cli/problem_source.h"
#include "cli/tokens_shown.h"

namespace orvane {

namespace {

class BalanceCommand {
 public:
  BalanceCommand(Session& session, const ElementsDatabase& elements, bool exact)
      : session_(session),
        json_(session.out),
        elements_(ElementTable::From(elements.Symbol(), elements.AtomicMass())),
        exact_(exact) {}

  // The sides stand apart by the first tab; without one all is the left side.
  void AnswerAsJson(const Problem& problem) {
    const TextView text = problem.text;
    const std::size_t tab = std::min(text.find(u'\t'), text.size());
    const TextView lhs = text.substr(0, tab);
    const TextView rhs = text.substr(std::min(tab + 1, text.size()));
    std::string_view error = problem.error;
    if (error.empty() && std::max(lhs.size(), rhs.size()) > kLongestSide) error = kTooLong;
    BalanceResult result;
    MessageCollector boxes;
    left_.clear();
    right_.clear();
    if (error.empty()) result = Balance(lhs, rhs, boxes);
    WriteJson(lhs, rhs, result, boxes, error);
    if (!error.empty()) {
      Fail(session_, problem, error);
    } else {
      TellWhatIsMissing(problem, result, boxes);
    }
  }

  void Answer(const Problem& problem) {
    if (!problem.error.empty()) return Fail(session_, problem, problem.error);
    const EquationReading reading = ReadEquation(problem.text);
    if (!reading.error.empty()) return Fail(session_, problem, reading.error);
    if (std::max(reading.left.size(), reading.right.size()) > kLongestSide) {
      return Fail(session_, problem, kTooLong);
    }
    MessageCollector boxes;
    const BalanceResult result = Balance(reading.left, reading.right, boxes);
    if (result.rewritten) {
      session_.out << Spaced(result.newLhs) << " = " << Spaced(result.newRhs);
      if (!result.lines.empty()) session_.out << ": " << PlainText(result.title);
      session_.out << '\n';
      for (const Text& line : result.lines) session_.out << "  " << PlainText(line) << '\n';
    }
    TellWhatIsMissing(problem, result, boxes);
  }

 private:
  BalanceResult Balance(TextView lhs, TextView rhs, MessageCollector& boxes) {
    TokeniseEquationSide(lhs, elements_, left_);
    TokeniseEquationSide(rhs, elements_, right_);
    if (!exact_) return BalanceEquation(left_, right_, boxes);
    return BalanceEquationWith<mpz_class>(left_, right_, {Text::npos, Text::npos}, boxes);
  }

  // "2H2 + O2", which is easier to read than the box's own way to write it. A term may be empty.
  static std::string Spaced(TextView side) {
    std::string out;
    for (const char c : PlainText(side)) {
      if (!out.empty() && (c == '+' || out.back() == '+')) out += ' ';
      out += c;
    }
    return out;
  }

  void WriteJson(TextView lhs, TextView rhs, const BalanceResult& result, const MessageCollector& boxes,
                 std::string_view error) {
    json_.BeginObject().Key("lhs").String(lhs).Key("rhs").String(rhs);
    WriteTokens(json_.Key("lhs_tokens"), left_);
    WriteTokens(json_.Key("rhs_tokens"), right_);
    json_.Key("state").Number(static_cast<int>(result.state));
    json_.Key("title").String(result.title).Key("text").String(result.text);
    json_.Key("coefficients").BeginArray();
    for (const Text& coefficient : result.coefficients) json_.Digits(coefficient);
    json_.EndArray().Key("lines").BeginArray();
    for (const Text& line : result.lines) json_.String(line);
    json_.EndArray();
    json_.Key("new_lhs").String(result.rewritten ? TextView(result.newLhs) : lhs);
    json_.Key("new_rhs").String(result.rewritten ? TextView(result.newRhs) : rhs);
    json_.Key("boxes").BeginArray();
    for (const MessageRun& run : boxes.Runs()) {
      for (std::size_t i = 0; i < run.count; ++i) json_.String(run.text);
    }
    json_.EndArray();
    if (!error.empty()) json_.Key("error").String(FromUtf8(error));
    json_.EndObject();
    session_.out << '\n';
  }

  // The balancer's words on one line; what a screen would show in red is told by name. Only an empty side
  // goes before that.
  std::string Explanation(const BalanceResult& result) const {
    std::string pieces = UnrecognisedPieces(left_);
    if (pieces.empty()) pieces = UnrecognisedPieces(right_);
    return pieces.empty() || left_.empty() || right_.empty() ? OnOneLine(result.text) : pieces;
  }

  // What the hand-held says in place of an answer, or about one that cannot be relied upon.
  void TellWhatIsMissing(const Problem& problem, const BalanceResult& result, const MessageCollector& boxes) {
    if (!result.rewritten) Fail(session_, problem, OnOneLine(result.title) + ": " + Explanation(result));
    for (const MessageRun& run : boxes.Runs()) Fail(session_, problem, OnOneLine(run.text));
    if (!boxes.Runs().empty()) {
      Fail(session_, problem,
           "the numbers left 32 bits, so the answer may be wrong; --exact has no such limit");
    }
  }

  Session& session_;
  JsonWriter json_;
  ElementTable elements_;
  bool exact_;
  FormulaTokens left_;
  FormulaTokens right_;
};

}  // namespace

void ShowBalances(Session& session, const std::vector<std::string>& equations,
                  const BalanceOptions& options) {
  ElementsDatabase elements;
  if (!LoadElements(session, elements)) return;
  BalanceCommand command(session, elements, options.exact);
  ProblemSource source(session, equations);
  for (Problem problem; source.Next(problem);) {
    if (options.asJson) {
      command.AnswerAsJson(problem);
    } else {
      command.Answer(problem);
    }
  }
}

}  // namespace orvane
