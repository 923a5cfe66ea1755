// A small scenario for the tests of the forge: two areas side by side on a battlefield of their
// own, a stream between them, a road, a track, and five units.
#pragma once

#include <string>
#include <vector>

#include "files/battle_file.h"
#include "forge/scenario_compiler.h"

namespace varnstride {

// The battlefield of the toy, number 5, and Gilly.
const AtlasCatalogue& ToyAtlases();

const std::string& ToyText();

// The file of a source that must be without an error.
BattleFile Compiled(const std::string& text, const AtlasCatalogue& atlases);

// What is said about a source, each as "t:LINE: message".
std::string ErrorsOf(const std::string& text, const AtlasCatalogue& atlases);

// The first field in which two files differ, as a source names it; empty for equal files.
std::string FirstDifference(const BattleFile& have, const BattleFile& want);

}  // namespace varnstride
