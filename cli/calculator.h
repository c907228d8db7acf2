// The program orvane-calc without its process: what stands on the command line and on standard
// input in, answers, errors and the
// exit status out.
#pragma once

#include <istream>
#include <ostream>
#include <string>

namespace orvane {

// `programFolder` is where the data files lie unless --data names another folder; it ends with its separator.
int RunCalculator(int argc, const char* const* argv, const std::string& programFolder, std::istream& in,
                  std::ostream& out, std::ostream& err);

}  // namespace orvane
