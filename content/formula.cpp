// The formulas of the tables: recursive descent, one function for each level of precedence.
#include <cmath>

#include "content/facts.h"
#include "content/figures.h"
#include "content/table_reader.h"

namespace orvane {

namespace {

constexpr long double kPi = 3.14159265358979323846264338327950288L;
constexpr int kDeepest = 50;

class FormulaParser {
 public:
  FormulaParser(std::string_view formula, const Facts& facts) : rest_(formula), facts_(facts) {}

  Evaluation Run() {
    const long double value = Sum();
    SkipBlanks();
    if (problem_.empty() && !rest_.empty()) Fail("unexpected " + Quoted(rest_));
    if (problem_.empty() && !std::isfinite(value)) Fail("the formula has no finite value");
    return {problem_.empty() ? value : 0, problem_};
  }

 private:
  long double Fail(const std::string& problem) {
    if (problem_.empty()) problem_ = problem;
    rest_ = {};
    return 0;
  }

  void SkipBlanks() {
    while (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
  }
  bool Take(std::string_view token) {
    SkipBlanks();
    if (rest_.substr(0, token.size()) != token) return false;
    rest_.remove_prefix(token.size());
    return true;
  }

  long double Sum() {
    long double value = Product();
    for (;;) {
      if (Take("+")) {
        value += Product();
      } else if (Take("-")) {
        value -= Product();
      } else {
        return value;
      }
    }
  }

  long double Product() {
    long double value = Power();
    for (;;) {
      if (Take("*")) {
        value *= Power();
      } else if (Take("/")) {
        value /= Power();
      } else {
        return value;
      }
    }
  }

  long double Power() {
    const long double base = Factor();
    if (!Take("^")) return base;
    const bool negative = Take("-");
    int exponent = 0;
    bool any = false;
    for (; !rest_.empty() && rest_.front() >= '0' && rest_.front() <= '9' && exponent < 1000; any = true) {
      exponent = exponent * 10 + (rest_.front() - '0');
      rest_.remove_prefix(1);
    }
    if (!any) return Fail("a power needs a whole exponent");
    return std::pow(base, static_cast<long double>(negative ? -exponent : exponent));
  }

  long double Factor() {
    if (++depth_ > kDeepest) return Fail("too many brackets");
    const long double value = FactorOfDepth();
    --depth_;
    return value;
  }

  long double FactorOfDepth() {
    if (Take("sqrt(")) return std::sqrt(Closed(Sum()));
    if (Take("exp10(")) return std::pow(10.0L, Closed(Sum()));
    if (Take("(")) return Closed(Sum());
    if (Take("pi")) return kPi;
    if (Take("-")) return -Factor();
    if (Take("{")) return FactValue();
    return Number();
  }

  long double Closed(long double value) { return Take(")") ? value : Fail("a bracket is not closed"); }

  long double FactValue() {
    const std::size_t end = rest_.find('}');
    if (end == std::string_view::npos) return Fail("a { is not closed");
    const std::string name(rest_.substr(0, end));
    rest_.remove_prefix(end + 1);
    const Fact* fact = facts_.Find(name);
    if (fact == nullptr) return Fail("no fact " + Quoted(name));
    const std::optional<Decimal> figure = ParseDecimal(fact->value);
    if (!figure || figure->open) return Fail("the fact " + Quoted(name) + " has no complete value");
    return ValueOf(*figure);
  }

  long double Number() {
    std::size_t length = rest_.find_first_not_of("0123456789.");
    if (length == std::string_view::npos) length = rest_.size();
    if (length < rest_.size() && rest_[length] == 'e') {
      const std::size_t sign = rest_.substr(length + 1, 1) == "-" ? 2 : 1;
      const std::size_t end = rest_.find_first_not_of("0123456789", length + sign);
      length = end == std::string_view::npos ? rest_.size() : end;
    }
    const std::optional<Decimal> figure = ParseDecimal(rest_.substr(0, length));
    if (!figure) return Fail("a number is missing before " + Quoted(rest_));
    rest_.remove_prefix(length);
    return ValueOf(*figure);
  }

  std::string_view rest_;
  const Facts& facts_;
  std::string problem_;
  int depth_ = 0;
};

}  // namespace

Evaluation Evaluate(std::string_view formula, const Facts& facts) {
  return FormulaParser(formula, facts).Run();
}

}  // namespace orvane
