// A sound file with odd values in every field that may hold them, for tests that nothing is lost:
// stray bytes behind texts, reserved words, dead and waiting units, marks without meaning.
#pragma once

#include <random>

#include "files/battle_file.h"

namespace varnstride {

// Changes the file at random; the same for the same seed. The file stays sound on its atlas.
void MakeOdd(BattleFile& file, const Atlas& atlas, std::mt19937& chance);

}  // namespace varnstride
