// Scenario files turned back into sources: as much as can be drawn and told in tables, and what is
// left, word by word, under [cells] and [fields].
#pragma once

#include <string>

#include "files/battle_file.h"

namespace varnstride {

// A source that gives the file back to the last byte. The file has been read and found sound, in
// the present layout or the older one; the source is of the present. A file that breaks rules of
// its battlefield gets a source with loose rules.
std::string DecompileScenario(const BattleFile& file, const AtlasCatalogue& atlases);

}  // namespace varnstride
