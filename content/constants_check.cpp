// Holds the values of the constants to the facts and formulas that their lines name.
#include <cmath>

#include "base/styled_text.h"
#include "content/constants_source.h"
#include "content/figures.h"
#include "content/table_reader.h"

namespace orvane {

namespace {

constexpr Char kEnDash = 0x2013;
constexpr Char kOmega = 0x03A9;
constexpr TextView kExact = u"exact";
constexpr std::string_view kExactFact = "exact";
constexpr TextView kUncertainty = u"± ";

// What rounding in the formula's own arithmetic may add, in places of the last digit.
constexpr long double kSlack = 0.001L;

// The power of ten that a shown figure is written with, 0 for none.
int ShiftOf(TextView shown) {
  const std::size_t raised = shown.find(kRaisedFlags);
  if (raised == TextView::npos) return 0;
  int shift = 0;
  bool negative = false;
  for (const Char c : shown.substr(raised + 1)) {
    if (c == kEnDash) negative = true;
    if (IsAsciiDigit(c)) shift = shift * 10 + (c - u'0');
  }
  return negative ? -shift : shift;
}

class FigureChecker {
 public:
  FigureChecker(const Facts& facts, std::vector<TableProblem>& problems)
      : facts_(facts), problems_(problems) {}

  void Check(const ConstantSource& constant) {
    constant_ = &constant;
    const std::optional<Decimal> shown = ParseShownFigure(constant.entry.value);
    if (!shown) {
      if (!constant.fact.empty() || !constant.formula.empty()) Add("a range cannot be checked");
      return;
    }
    if (!constant.formula.empty()) CheckFormula(*shown);
    if (!constant.fact.empty()) CheckFact(*shown);
  }

 private:
  void Add(const std::string& message) {
    problems_.push_back(
        {constant_->file, constant_->line, 0, ToUtf8(WithoutCodes(constant_->entry.name)) + ": " + message});
  }

  // The shown figure is the formula's value, rounded to its digits.
  void CheckFormula(const Decimal& shown) {
    const Evaluation result = Evaluate(constant_->formula, facts_);
    if (!result.problem.empty()) return Add(result.problem);
    const long double difference = std::fabs(result.value - ValueOf(shown));
    if (difference > (0.5L + kSlack) * LastPlace(shown)) Add("the formula gives another value");
  }

  void CheckFact(const Decimal& shown) {
    const Fact* fact = facts_.Find(constant_->fact);
    if (fact == nullptr) return Add("no fact " + Quoted(constant_->fact));
    const std::optional<Decimal> figure = ParseDecimal(fact->value);
    if (!figure) return Add("the fact's value is not a number");
    CheckDigits(shown, *figure);
    const std::string units = PlainUnits(constant_->entry.units);
    if (units != (fact->unit == kNoValue ? "" : fact->unit)) {
      Add("the units are " + Quoted(units) + ", those of the fact " + Quoted(fact->unit));
    }
    CheckUncertainty(*fact);
  }

  // Digit by digit; where a formula gives more digits than the fact has, or fewer, within the last place of
  // the coarser one.
  void CheckDigits(const Decimal& shown, const Decimal& figure) {
    if (shown == figure) return;
    const long double place = std::max(LastPlace(shown), LastPlace(figure));
    const bool close = std::fabs(ValueOf(shown) - ValueOf(figure)) <= (1 + kSlack) * place;
    if (constant_->formula.empty() || !close) Add("the digits are not those of the fact");
  }

  // "exact", or "± " and the uncertainty with the exponent of the value.
  void CheckUncertainty(const Fact& fact) {
    const TextView remark = constant_->entry.remark;
    if (fact.uncertainty == kNoValue) return;
    if (fact.uncertainty == kExactFact) {
      if (remark.substr(0, kExact.size()) != kExact) Add("the remark must begin with \"exact\"");
      return;
    }
    const std::optional<Decimal> uncertainty = ParseDecimal(fact.uncertainty);
    if (!uncertainty) return Add("the fact's uncertainty is not a number");
    const Decimal trimmed = WithoutLeadingZeros(*uncertainty);
    const Text due = Text(kUncertainty) + ShowFigure(trimmed, ShiftOf(constant_->entry.value));
    if (remark.substr(0, due.size()) != due) {
      Add("the remark must begin with " + Quoted(ToUtf8(WithoutCodes(due))));
    }
  }

  static Decimal WithoutLeadingZeros(Decimal figure) {
    figure.digits.erase(0, std::min(figure.digits.find_first_not_of('0'), figure.digits.size() - 1));
    return figure;
  }

  const Facts& facts_;
  std::vector<TableProblem>& problems_;
  const ConstantSource* constant_ = nullptr;
};

}  // namespace

void CheckFigures(const ConstantsSource& source, const Facts& facts, std::vector<TableProblem>& problems) {
  FigureChecker checker(facts, problems);
  for (const ConstCategorySource& category : source) {
    for (const ConstGroupSource& group : category.groups) {
      for (const ConstantSource& constant : group.constants) checker.Check(constant);
    }
  }
}

std::string PlainUnits(TextView units) {
  std::string out;
  for (StyledStep step = FirstStep(units); step.kind != StyledStep::Kind::kEnd; step = FirstStep(units)) {
    units.remove_prefix(step.length);
    if (step.kind == StyledStep::Kind::kCode) {
      const TextPosition position = StyleFromFlags(step.value).position;
      if (position == TextPosition::kRaised) out += '^';
      if (position == TextPosition::kLowered) out += '_';
    } else if (step.value == kEnDash) {
      out += '-';
    } else if (step.value == kOmega) {
      out += "ohm";
    } else {
      out += ToUtf8(Text(1, step.value));
    }
  }
  return out;
}

}  // namespace orvane
