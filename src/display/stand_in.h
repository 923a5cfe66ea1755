// The plain lettered tile that is drawn where a sheet is missing or damaged, so that the game can
// be played on.
#pragma once

#include <string_view>

#include "display/sheets.h"
#include "display/tile_set.h"

namespace varnstride {

// Gives the set every tile up to that many that it lacks. Tiles below firstSeen get a picture of
// nothing. The letter is the first of the file's own name.
void FillWithStandIns(TileSet& set, const SheetNeed& need);

}  // namespace varnstride
