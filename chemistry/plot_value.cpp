#include "chemistry/plot_value.h"

namespace orvane {

double ReadPlotValue(TextView text) {
  double value = 0;
  double place = 0.1;  // of the next decimal
  bool decimals = false;
  for (const Char c : text) {
    if (c == u'.') {
      decimals = true;
      place = 0.1;
    } else if (c == u'-') {
      value = -value;
    } else if (IsAsciiDigit(c)) {
      const int digit = c - u'0';
      if (decimals) {
        value += digit * place;
        place *= 0.1;
      } else {
        value = value * 10 + digit;
      }
    }
  }
  return value;
}

}  // namespace orvane
