// The program orvane-calc without its process: what stands on the command line in, answers, errors and the
// exit status out.
#pragma once

#include <ostream>

namespace orvane {

// `programFolder` is where the data files lie unless --data names another folder; it ends with its separator.
int RunCalculator(int argc, const char* const* argv, const std::string& programFolder, std::ostream& out,
                  std::ostream& err);

}  // namespace orvane
