#include "display/tile_set.h"

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

// The opaque part of a row; empty when there is none.
TileSet::Row OpaquePartOf(const Pixel* row, int width, Pixel key) {
    int first = 0;
    while (first < width && row[first] == key)
        ++first;
    int last = width;
    while (last > first && row[last - 1] == key)
        --last;
    const bool isSolid = std::find(row + first, row + last, key) == row + last;
    return {static_cast<std::int16_t>(first), static_cast<std::int16_t>(last), isSolid, 0};
}

// Pictures are full of holes: choosing pixel by pixel without a branch, which the compiler turns
// into vector code, is faster than copying from hole to hole.
Pixel Chosen(Pixel from, Pixel to, Pixel key) {
    const Pixel hole = from == key ? ~Pixel{0} : Pixel{0};
    return (to & hole) | (from & ~hole);
}

void CopyOpaque(const Pixel* __restrict from, Pixel* __restrict to, int count, Pixel key) {
    for (int index = 0; index < count; ++index)
        to[index] = Chosen(from[index], to[index], key);
}

void CopyOpaqueGroups(const Pixel* __restrict from, Pixel* __restrict to, int groups, Pixel key) {
    for (int group = 0; group < groups; ++group) {
        for (int index = 0; index < TileSet::kGroup; ++index)
            to[index] = Chosen(from[index], to[index], key);
        from += TileSet::kGroup;
        to += TileSet::kGroup;
    }
}

// A tile that lies wholly in the clip rectangle. What fills a row's last group up is transparent,
// so that whole groups can be chosen; the surface has room for them to the right of the tile.
void DrawWhole(const TileSet& set, const Tile& tile, Surface& surface, Point corner) {
    for (int y = tile.firstRow; y < tile.lastRow; ++y) {
        const TileSet::Row& row = set.RowOf(tile, y);
        if (row.isSolid) {
            std::copy_n(set.PixelsOf(row), row.last - row.first,
                        surface.Row(corner.y + y) + corner.x + row.first);
            continue;
        }
        const int groups = (row.last - row.first + TileSet::kGroup - 1) / TileSet::kGroup;
        CopyOpaqueGroups(set.PixelsOf(row), surface.Row(corner.y + y) + corner.x + row.first,
                         groups, set.Key());
    }
}

void DrawPart(const TileSet& set, const Tile& tile, Surface& surface, Point corner,
              const Rect& part) {
    const int firstRow = std::max(part.top - corner.y, tile.firstRow);
    const int lastRow = std::min(part.bottom - corner.y, tile.lastRow);
    for (int y = firstRow; y < lastRow; ++y) {
        const TileSet::Row& row = set.RowOf(tile, y);
        const int left = std::max(part.left, corner.x + row.first);
        const int right = std::min(part.right, corner.x + row.last);
        if (left >= right) continue;
        const int skipped = left - (corner.x + row.first);
        CopyOpaque(set.PixelsOf(row) + skipped, surface.Row(corner.y + y) + left, right - left,
                   set.Key());
    }
}

}  // namespace

TileSet::TileSet(const Surface& sheet, std::vector<Tile> tiles, Pixel key)
    : tiles_(std::move(tiles)), key_(key) {
    for (Tile& tile : tiles_)
        Take(sheet, tile);
}

void TileSet::Take(const Surface& sheet, Tile& tile) {
    if (!tile.isMarked) return;
    reach_ = Union(reach_, tile.destination);
    tile.rowsAt = rows_.size();
    tile.firstRow = tile.lastRow = 0;
    for (int y = 0; y < tile.source.Height(); ++y) {
        const Pixel* pixels = sheet.Row(tile.source.top + y) + tile.source.left;
        Row row = OpaquePartOf(pixels, tile.source.Width(), key_);
        const bool isEmpty = row.first == row.last;
        if (isEmpty && tile.lastRow == 0) {
            tile.firstRow = y + 1;
            continue;
        }
        if (!isEmpty) tile.lastRow = y + 1;
        row.pixelsAt = static_cast<std::uint32_t>(pixels_.size());
        rows_.push_back(row);
        pixels_.insert(pixels_.end(), pixels + row.first, pixels + row.last);
        pixels_.resize((pixels_.size() + kGroup - 1) / kGroup * kGroup, key_);
    }
}

Surface TileSet::PictureOf(int tile) const {
    const Tile& shown = At(tile);
    Surface picture(shown.source.Width(), shown.source.Height(), key_);
    for (int y = shown.firstRow; y < shown.lastRow; ++y) {
        const Row& row = RowOf(shown, y);
        std::copy_n(PixelsOf(row), row.last - row.first, picture.Row(y) + row.first);
    }
    return picture;
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

void DrawTile(const TileSet& set, Surface& surface, const Rect& clip, Point at, int number) {
    if (!set.Has(number)) return;
    const Tile& tile = set.At(number);
    const Rect placed = tile.destination.Moved(at);
    const Rect part = Intersection(Intersection(placed, clip), surface.Bounds());
    if (part.IsEmpty()) return;
    if (part == placed && placed.right + TileSet::kGroup <= surface.Width()) {
        DrawWhole(set, tile, surface, placed.TopLeft());
    } else {
        DrawPart(set, tile, surface, placed.TopLeft(), part);
    }
}

}  // namespace varnstride
