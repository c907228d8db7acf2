// The project's files as plain text, so that its rules can be checked on the real tree and on made-up
// files alike.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::project {

// Contents by path; paths are relative to the project's root with forward slashes.
using FileMap = std::map<std::string, std::string>;

// One sentence for each breach of a rule, beginning with the path; empty when all is well.
using Findings = std::vector<std::string>;

// All files of the project: those that the version control knows or would add, or, where it cannot be
// asked, every file outside build directories.
FileMap ReadProject(const std::string& root);

std::vector<std::string> Lines(std::string_view text);
std::vector<std::string> Words(std::string_view text, std::string_view separators = " \t\r\n");
std::string AsciiLowered(std::string_view text);
bool IsWordCharacter(char c);
bool EndsWith(std::string_view text, std::string_view end);
bool StartsWith(std::string_view text, std::string_view start);

// The first folder of a path: "tools" for "tools/wnd_mass.cpp", "" for a file at the root.
std::string FirstFolder(std::string_view path);
// The file name without folders and extension.
std::string Stem(std::string_view path);
bool IsSource(std::string_view path);  // .h or .cpp

// C++ text with comments and the insides of literals blanked out; line breaks stay where they were.
std::string WithoutCommentsAndLiterals(std::string_view code);

struct Include {
  std::string target;
  bool quoted = false;  // "..." as against <...>
  int line = 0;         // from 1
};
std::vector<Include> Includes(std::string_view code);

}  // namespace orvane::project
