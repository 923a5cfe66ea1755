#include "display/tile_set.h"

#include <cstring>
#include <optional>

#include "display/bmp_reader.h"

namespace varnstride {
namespace {

constexpr int kLegendSize = 5;
constexpr std::size_t kMostTiles = 4096;

struct Legend {
    Pixel grid;
    Pixel anchor;
    Pixel extent;
    Pixel both;

    bool MarksAnchor(Pixel pixel) const { return pixel == anchor || pixel == both; }
    bool MarksExtent(Pixel pixel) const { return pixel == extent || pixel == both; }
    bool LeavesTheGridApart() const { return grid != anchor && grid != extent && grid != both; }
};

// The second colour of the legend marks nothing.
Legend ReadLegend(const Surface& sheet) {
    const int last = sheet.Width() - 1;
    return {sheet.At(last, 0), sheet.At(last, 2), sheet.At(last, 3), sheet.At(last, 4)};
}

// What the marks along one side of a tile say. Places count along the side.
struct Marks {
    std::optional<int> anchor;
    int first;
    int last;  // just behind the tile's end
};

// The side runs between two grid lines; pixelAt(place) reads it. Neither line itself is looked at,
// and the first marks are not looked for in the place before the far line.
template <typename PixelAt>
Marks ReadMarks(const Legend& legend, int nearLine, int farLine, PixelAt pixelAt) {
    Marks marks{std::nullopt, nearLine + 1, farLine};
    const auto findFirst = [&](auto isMark) -> std::optional<int> {
        for (int place = nearLine + 1; place < farLine - 1; ++place) {
            if (isMark(pixelAt(place))) return place;
        }
        return std::nullopt;
    };
    marks.anchor = findFirst([&](Pixel pixel) { return legend.MarksAnchor(pixel); });
    const auto first = findFirst([&](Pixel pixel) { return legend.MarksExtent(pixel); });
    if (first) marks.first = *first;
    for (int place = farLine - 1; place > nearLine; --place) {
        if (!legend.MarksExtent(pixelAt(place))) continue;
        marks.last = place + 1;
        break;
    }
    return marks;
}

struct GridLines {
    std::vector<int> columns;
    std::vector<int> rows;

    std::size_t TileCount() const {
        return columns.empty() || rows.empty() ? 0 : (columns.size() - 1) * (rows.size() - 1);
    }
};

GridLines FindGridLines(const Surface& sheet, Pixel grid) {
    GridLines lines;
    for (int x = 0; x < sheet.Width(); ++x) {
        if (sheet.At(x, 0) == grid) lines.columns.push_back(x);
    }
    for (int y = 0; y < sheet.Height(); ++y) {
        if (sheet.At(0, y) == grid) lines.rows.push_back(y);
    }
    return lines;
}

// A tile that ends before it begins has no pixels.
Tile CutTile(const Surface& sheet, const Legend& legend, const Rect& cell) {
    const Marks across =
        ReadMarks(legend, cell.left, cell.right, [&](int x) { return sheet.At(x, cell.top); });
    const Marks down =
        ReadMarks(legend, cell.top, cell.bottom, [&](int y) { return sheet.At(cell.left, y); });
    Tile tile;
    tile.source = {across.first, down.first, std::max(across.first, across.last),
                   std::max(down.first, down.last)};
    tile.isMarked = across.anchor && down.anchor;
    if (!tile.isMarked) return tile;
    tile.anchor = {*across.anchor, *down.anchor};
    tile.destination = tile.source.Moved(Point{} - tile.anchor);
    return tile;
}

std::vector<Tile> CutTiles(const Surface& sheet, const Legend& legend, const GridLines& lines) {
    std::vector<Tile> tiles;
    tiles.reserve(lines.TileCount());
    for (std::size_t row = 0; row + 1 < lines.rows.size(); ++row) {
        for (std::size_t column = 0; column + 1 < lines.columns.size(); ++column) {
            tiles.push_back(CutTile(sheet, legend,
                                    {lines.columns[column], lines.rows[row],
                                     lines.columns[column + 1], lines.rows[row + 1]}));
        }
    }
    return tiles;
}

bool IsAnyMarked(const std::vector<Tile>& tiles) {
    return std::any_of(tiles.begin(), tiles.end(), [](const Tile& tile) { return tile.isMarked; });
}

TileSet::RowExtent ExtentOf(const Pixel* row, int width, Pixel key) {
    int first = 0;
    while (first < width && row[first] == key)
        ++first;
    int last = width;
    while (last > first && row[last - 1] == key)
        --last;
    const bool isSolid = std::find(row + first, row + last, key) == row + last;
    return {static_cast<std::int16_t>(first), static_cast<std::int16_t>(last), isSolid};
}

// Pictures are full of holes: choosing pixel by pixel, which the compiler turns into vector code,
// is faster than copying from hole to hole.
void CopyOpaque(const Pixel* __restrict from, Pixel* __restrict to, int count, Pixel key) {
    for (int index = 0; index < count; ++index)
        to[index] = from[index] == key ? to[index] : from[index];
}

}  // namespace

TileSet::TileSet(const Surface& sheet, std::vector<Tile> tiles, Pixel key)
    : tiles_(std::move(tiles)), key_(key) {
    for (Tile& tile : tiles_)
        Take(sheet, tile);
}

void TileSet::Take(const Surface& sheet, Tile& tile) {
    tile.firstRow = extents_.size();
    tile.firstPixel = pixels_.size();
    if (!tile.isMarked) return;
    reach_ = Union(reach_, tile.destination);
    for (int y = tile.source.top; y < tile.source.bottom; ++y) {
        const Pixel* row = sheet.Row(y) + tile.source.left;
        pixels_.insert(pixels_.end(), row, row + tile.source.Width());
        extents_.push_back(ExtentOf(row, tile.source.Width(), key_));
    }
}

void TileSet::Put(int number, const Surface& picture, Point anchor) {
    const auto index = static_cast<std::size_t>(number);
    if (index >= tiles_.size()) tiles_.resize(index + 1);
    Tile& tile = tiles_[index];
    tile.source = picture.Bounds();
    tile.anchor = anchor;
    tile.destination = picture.Bounds().Moved(Point{} - anchor);
    tile.isMarked = true;
    Take(picture, tile);
}

Result<TileSet> CutTileSet(const Surface& sheet, const std::string& name) {
    if (sheet.Width() < 2 || sheet.Height() < kLegendSize) {
        return Failure{name + ": is too small for the colours of its marks"};
    }
    const Legend legend = ReadLegend(sheet);
    if (!legend.LeavesTheGridApart()) {
        return Failure{name + ": one colour in its last column stands for grid lines and marks"};
    }
    const GridLines lines = FindGridLines(sheet, legend.grid);
    if (lines.columns.size() < 2 || lines.rows.size() < 2) {
        return Failure{name + ": has no grid lines"};
    }
    if (lines.TileCount() > kMostTiles) {
        return Failure{name + ": is cut into " + std::to_string(lines.TileCount()) +
                       " tiles, more than " + std::to_string(kMostTiles)};
    }
    std::vector<Tile> tiles = CutTiles(sheet, legend, lines);
    if (!IsAnyMarked(tiles)) return Failure{name + ": has no anchor marks"};
    return TileSet(sheet, std::move(tiles), legend.grid);
}

Result<TileSet> LoadTileSet(const std::string& path) {
    const Result<Surface> sheet = ReadBmp(path);
    if (!sheet.Ok()) return Failure{sheet.Message()};
    return CutTileSet(sheet.Get(), path);
}

void DrawTile(const TileSet& set, Surface& surface, const Rect& clip, Point at, int tile) {
    if (!set.Has(tile)) return;
    const Tile& picture = set.At(tile);
    const Rect placed = picture.destination.Moved(at);
    const Rect drawn = Intersection(Intersection(placed, clip), surface.Bounds());
    if (drawn.IsEmpty()) return;
    for (int y = drawn.top; y < drawn.bottom; ++y) {
        const TileSet::RowExtent& extent = set.Extent(picture, y - placed.top);
        const int left = std::max(drawn.left, placed.left + extent.first);
        const int count = std::min(drawn.right, placed.left + extent.last) - left;
        if (count <= 0) continue;
        const Pixel* from = set.Pixels(picture, y - placed.top) + (left - placed.left);
        Pixel* to = surface.Row(y) + left;
        if (extent.isSolid) {
            std::memcpy(to, from, static_cast<std::size_t>(count) * sizeof(Pixel));
        } else {
            CopyOpaque(from, to, count, set.Key());
        }
    }
}

}  // namespace varnstride
