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

    // The rows that have an opaque pixel, counted from the tile's top, and where TileSet keeps
    // them.
    int firstRow = 0;
    int lastRow = 0;  // just behind the last one
    std::size_t rowsAt = 0;
};

class TileSet {
 public:
    // The part of a tile's row from its first to just behind its last opaque pixel, counted from
    // the tile's left end. Its pixels are kept in whole groups, filled up with the key.
    struct Row {
        std::int16_t first = 0;
        std::int16_t last = 0;
        bool isSolid = false;  // without a hole in between
        std::uint32_t pixelsAt = 0;
    };
    static constexpr int kGroup = 4;  // pixels that are chosen in one go

    TileSet() = default;
    // Copies the pixels of the tiles out of the sheet, so that the sheet need not be kept.
    TileSet(const Surface& sheet, std::vector<Tile> tiles, Pixel key);

    int Count() const { return static_cast<int>(tiles_.size()); }
    const Tile& At(int tile) const { return tiles_[static_cast<std::size_t>(tile)]; }
    bool Has(int tile) const { return tile >= 0 && tile < Count() && At(tile).isMarked; }
    Pixel Key() const { return key_; }

    // The rectangle around the destinations of all tiles.
    const Rect& Reach() const { return reach_; }

    const Row& RowOf(const Tile& tile, int row) const {
        return rows_[tile.rowsAt + static_cast<std::size_t>(row - tile.firstRow)];
    }
    const Pixel* PixelsOf(const Row& row) const { return pixels_.data() + row.pixelsAt; }
    // The picture of a tile, its holes in the colour of the key.
    Surface PictureOf(int tile) const;

    // Gives the tile of that number, the next one or an unmarked one, a picture from elsewhere.
    void Put(int number, const Surface& picture, Point anchor);

 private:
    void Take(const Surface& sheet, Tile& tile);

    std::vector<Tile> tiles_;
    std::vector<Row> rows_;
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
void DrawTile(const TileSet& set, Surface& surface, const Rect& clip, Point at, int number);

}  // namespace varnstride
