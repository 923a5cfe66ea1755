// A small set of pictures painted in memory: every sheet of the map with shapes that overlap their
// neighbours, have holes, and differ from number to number, and the footprints of both views.
#pragma once

#include "display/art.h"

namespace varnstride {

// Half the width of a cell in a row of its footprint, by the outline of the hexagons and not by
// our own arithmetic. Rows count from the cell's top; 0 above and below it.
int HalfWidthOfHex(int tileWidth, int row);
// The rows of a cell above and below its anchor.
constexpr int RowsAboveAnchor(int tileWidth) {
    return tileWidth == 32 ? 21 : 10;
}
constexpr int RowsOfHex(int tileWidth) {
    return tileWidth == 32 ? 42 : 21;
}

// The footprint of a view as a picture with four corner colours.
Surface PaintFootprint(int tileWidth);

Art PaintArt();

}  // namespace varnstride
