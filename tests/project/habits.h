// Habits of the code that a reader of plain text can judge.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/project/source_text.h"

namespace orvane::project {

inline constexpr int kLongestFile = 450;  // lines of a .h or .cpp

// The drawing and window libraries' names stand in platform/ alone.
Findings CheckForeignTypes(const FileMap& files, const std::set<std::string>& rooms);

// What differs between systems is decided in platform/ alone: no #if, #ifdef, #ifndef elsewhere.
Findings CheckConditionals(const FileMap& files, const std::set<std::string>& rooms);

// No variable of namespace scope and no static variable can change.
Findings CheckMutableGlobals(const FileMap& files, const std::set<std::string>& rooms);

// The statements of one source that declare such a variable.
std::vector<std::string> MutableGlobals(std::string_view code);

Findings CheckFileLengths(const FileMap& files);

// No folder that says nothing of what is in it.
Findings CheckFolderNames(const FileMap& files);

}  // namespace orvane::project
