// Sheets of tiles. A sheet is an ordinary picture that carries its own layout in marker pixels: a
// legend of five colours at the top of its last column, grid lines told by the first row and the
// first column, and marks on the grid lines that place each tile's anchor and drawn size. The
// colour of the grid lines is also the transparent one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "display/surface.h"
#include "model/result.h"

namespace varnstride {

// Where a tile lies in its sheet and how it lies around the point at which it is drawn.
struct Tile {
    Rect source;
    Point anchor;
    Rect destination;       // the source moved so that the anchor is at (0, 0)
    bool isMarked = false;  // both anchor marks were found; without them nothing is drawn
    std::size_t firstRow = 0;
    std::size_t firstPixel = 0;
};

class TileSet {
 public:
    // The part of a tile's row between its first and last opaque pixel, counted from the tile's
    // left end. A solid row has no holes between them.
    struct RowExtent {
        std::int16_t first = 0;
        std::int16_t last = 0;
        bool isSolid = false;
    };

    TileSet() = default;
    // Copies the pixels of the tiles out of the sheet, so that the sheet need not be kept.
    TileSet(const Surface& sheet, std::vector<Tile> tiles, Pixel key);

    int Count() const { return static_cast<int>(tiles_.size()); }
    const Tile& At(int tile) const { return tiles_[static_cast<std::size_t>(tile)]; }
    bool Has(int tile) const { return tile >= 0 && tile < Count() && At(tile).isMarked; }
    Pixel Key() const { return key_; }

    // The rectangle around the destinations of all tiles.
    const Rect& Reach() const { return reach_; }

    const RowExtent& Extent(const Tile& tile, int row) const {
        return extents_[tile.firstRow + static_cast<std::size_t>(row)];
    }
    const Pixel* Pixels(const Tile& tile, int row) const {
        return pixels_.data() + tile.firstPixel +
               static_cast<std::size_t>(row) * static_cast<std::size_t>(tile.source.Width());
    }

    // Gives the tile of that number, the next one or an unmarked one, a picture from elsewhere.
    void Put(int number, const Surface& picture, Point anchor);

 private:
    void Take(const Surface& sheet, Tile& tile);

    std::vector<Tile> tiles_;
    std::vector<RowExtent> extents_;
    std::vector<Pixel> pixels_;
    Rect reach_;
    Pixel key_ = 0;  // no pixel of a picture, which are all opaque
};

// Cuts a sheet by its marks, row after row. A failure starts with the name: a picture too small
// for a legend, marks in the colour of the grid, no grid lines, not one tile with its marks.
Result<TileSet> CutTileSet(const Surface& sheet, const std::string& name);

// The tiles of a sheet in a BMP file; a failure starts with the path.
Result<TileSet> LoadTileSet(const std::string& path);

// Draws a tile with its anchor at (x, y), as far as it lies in the clip rectangle and on the
// surface. A number that the set does not have draws nothing.
void DrawTile(const TileSet& set, Surface& surface, const Rect& clip, Point at, int tile);

}  // namespace varnstride
