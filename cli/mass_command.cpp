#include "cli/mass_command.h"

#include "chemistry/mass.h"
#include "cli/json_writer.h"
#include "cli/load_elements.h"
#include "cli/matching.h"
#include "cli/notation.h"
#include "cli/plain_text.h"
#include "cli/problem_source.h"
#include "cli/tokens_shown.h"

namespace orvane {

namespace {

// Answers formula by formula and keeps the memory for the next one.
class MassCommand {
 public:
  MassCommand(Session& session, const ElementsDatabase& elements)
      : session_(session),
        json_(session.out),
        elements_(ElementTable::From(elements.Symbol(), elements.AtomicMass())) {}

  void AnswerAsJson(const Problem& problem) {
    const bool readable = problem.error.empty() && problem.text.size() <= kLongestSide;
    tokens_.clear();
    if (readable) TokeniseFormula(problem.text, elements_, tokens_);
    const FormulaFault fault = CalculateMass(tokens_, elements_, mass_, decimals_);
    const bool ok = readable && fault == FormulaFault::kNone;
    json_.BeginObject().Key("input").String(problem.text);
    WriteTokens(json_.Key("tokens"), tokens_);
    json_.Key("ok").Bool(ok);
    if (ok) {
      json_.Key("headline").Null().Key("explanation").Null();
      json_.Key("line").String(MassLine(mass_, decimals_));
      json_.Key("mass").String(mass_).Key("dp").Number(decimals_);
    } else {
      WriteFault(problem, readable, fault);
    }
    json_.EndObject();
    session_.out << '\n';
  }

  void Answer(const Problem& problem) {
    if (!problem.error.empty()) return Fail(session_, problem, problem.error);
    const Reading reading = ReadFormula(problem.text);
    if (!reading.error.empty()) return Fail(session_, problem, reading.error);
    if (reading.text.size() > kLongestSide) return Fail(session_, problem, kTooLong);
    TokeniseFormula(reading.text, elements_, tokens_);
    const FormulaFault fault = CalculateMass(tokens_, elements_, mass_, decimals_);
    if (fault != FormulaFault::kNone) return Fail(session_, problem, WordsFor(fault));
    line_ = PlainText(Trimmed(problem.text));
    const std::string read = ToUtf8(TokensText(tokens_));
    if (read != line_) line_.append(", read as ").append(read);
    line_.append(": ").append(ToUtf8(mass_)).append(" g/mol, ").append(std::to_string(decimals_));
    line_.append(" d.p.\n");
    session_.out.write(line_.data(), static_cast<std::streamsize>(line_.size()));
  }

 private:
  void WriteFault(const Problem& problem, bool readable, FormulaFault fault) {
    if (readable) {
      json_.Key("headline").String(FaultHeadline(fault)).Key("explanation").String(FaultExplanation(fault));
    } else {
      json_.Key("headline").Null().Key("explanation").Null();
    }
    json_.Key("line").String({}).Key("mass").Null().Key("dp").Null();
    if (!readable) {
      const std::string_view error = problem.error.empty() ? kTooLong : problem.error;
      json_.Key("error").String(FromUtf8(error));
      Fail(session_, problem, error);
    } else {
      Fail(session_, problem, WordsFor(fault));
    }
  }

  // The calculator's words on one line; what a screen would show in red is told by name.
  std::string WordsFor(FormulaFault fault) const {
    if (fault == FormulaFault::kUnknownSymbol) return UnrecognisedPieces(tokens_);
    return OnOneLine(fault == FormulaFault::kEmpty ? FaultHeadline(fault) : FaultExplanation(fault));
  }

  Session& session_;
  JsonWriter json_;
  ElementTable elements_;
  FormulaTokens tokens_;
  Text mass_;
  int decimals_ = 0;
  std::string line_;
};

}  // namespace

void ShowMasses(Session& session, const std::vector<std::string>& formulas, bool asJson) {
  ElementsDatabase elements;
  if (!LoadElements(session, elements)) return;
  MassCommand command(session, elements);
  ProblemSource source(session, formulas);
  for (Problem problem; source.Next(problem);) {
    if (asJson) {
      command.AnswerAsJson(problem);
    } else {
      command.Answer(problem);
    }
  }
}

}  // namespace orvane
