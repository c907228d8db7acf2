#include "app/options.h"
#include "app/run.h"

int main(int argc, char** argv) {
  const auto parsed = orvane::ParseOptions(argc, argv);
  if (const int* status = std::get_if<int>(&parsed)) return *status;
  const orvane::Options& options = std::get<orvane::Options>(parsed);
  return options.script ? orvane::RunScript(options) : orvane::RunInWindow(options);
}
