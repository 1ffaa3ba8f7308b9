// CodeResources against the files that it is about, in both directions.
#pragma once

#include "tests/macho/FileTree.h"

#include <string>

namespace kestrune::macho {

// Throws SealError for the first file, link or nested code that is not what was sealed, that was added, or
// that is missing. `program` has a seal of its own kind.
void checkResources(const FileTree& contents, const std::string& program, const FileContent& codeResources);

// Throws SealError for a link that leads out of the tree.
void requireLinksWithin(const FileTree& tree);

} // namespace kestrune::macho
