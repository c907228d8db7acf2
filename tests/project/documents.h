// What every page and every file must keep to: links that lead somewhere, words that stand by themselves.
#pragma once

#include "tests/project/source_text.h"

namespace orvane::project {

// The anchor under which a Markdown heading is reached: "## Play scripts, `report`" is "play-scripts-report".
std::string HeadingAnchor(std::string_view heading);

// Links and pictures of Markdown pages that lead to no file or to no heading. Links to other sites are
// not followed.
Findings CheckLinks(const FileMap& files);

// Pages below docs/ that no other page links to: nobody would find them.
Findings CheckIndex(const FileMap& files);

// Pages below docs/ that a source, a script or a build file names although they do not exist.
Findings CheckMentions(const FileMap& files);

// Words that have no place in a text file of this project: marks of unfinished work, paths of somebody's
// machine.
Findings CheckWords(const FileMap& files);

}  // namespace orvane::project
