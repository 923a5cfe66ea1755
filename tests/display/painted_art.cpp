#include "display/painted_art.h"

#include <array>

#include "display/painted_sheet.h"

namespace varnstride {
namespace {

// How often each row of the pointed part of a cell of 32 pixels is wide on either side of the
// middle; a cell of 16 pixels follows from its own.
constexpr std::array kPoint32 = {1, 2, 4, 6, 7, 9, 10, 12, 14, 15};
constexpr std::array kPoint16 = {1, 2, 4, 6, 7};

struct Look {
    int width;
    int height;
    Point anchor;
    int density;  // of seven pixels, so many are painted
};

// Ground fills its hexagon; what stands on it is taller than a row or hangs out of its cell.
Look LookOf(Sheet sheet) {
    switch (sheet) {
        case Sheet::Ground:
        case Sheet::HighGround: return {32, 42, {16, 21}, 7};
        case Sheet::SmallGround: return {16, 21, {8, 10}, 7};
        case Sheet::Terrain:
        case Sheet::FrozenTerrain: return {26, 50, {13, 44}, 4};
        case Sheet::SmallTerrain: return {12, 24, {6, 20}, 4};
        case Sheet::Shade: return {32, 42, {16, 21}, 3};
        case Sheet::SmallShade: return {16, 21, {8, 10}, 3};
        case Sheet::Borders: return {34, 44, {17, 22}, 1};
        case Sheet::MiniGround:
        case Sheet::MiniEdges:
        case Sheet::MiniRoads: return {4, 4, {2, 2}, sheet == Sheet::MiniGround ? 7 : 2};
        default: break;
    }
    if (sheet >= Sheet::SmallGround) return {10, 10, {5, 5}, 5};
    return {20, 16, {10, 9}, 5};
}

bool IsHex(const Look& look) {
    return look.height == 42 || look.height == 21;
}

Pixel ColorOf(std::size_t sheet, int number) {
    const auto seed = static_cast<int>(sheet) * 31 + number * 7;
    return MakePixel(40 + seed * 13 % 200, 40 + seed * 29 % 200, 40 + seed * 53 % 200);
}

PaintedTile PaintTile(const Look& look, std::size_t sheet, int number) {
    PaintedTile tile{Surface(look.width, look.height, kGridColor), look.anchor};
    for (int y = 0; y < look.height; ++y) {
        const int half = IsHex(look) ? HalfWidthOfHex(look.width, y) : look.width / 2;
        for (int x = look.width / 2 - half; x < look.width / 2 + half; ++x) {
            if ((x * 3 + y * 5 + number) % 7 >= look.density) continue;
            const bool edge = x == look.width / 2 - half || y == 0;
            tile.picture.At(x, y) = edge ? MakePixel(20, 20, 20) : ColorOf(sheet, number);
        }
    }
    return tile;
}

TileSet PaintTiles(const Look& look, std::size_t sheet, const SheetNeed& need) {
    std::vector<PaintedTile> tiles;
    for (int number = 0; number < need.tiles; ++number) {
        tiles.push_back(number < need.firstSeen ? PaintedTile{Surface(1, 1, kGridColor), {0, 0}}
                                                : PaintTile(look, sheet, number));
    }
    return CutTileSet(PaintSheet(tiles, 12), std::string(need.file)).Get();
}

}  // namespace

int HalfWidthOfHex(int tileWidth, int row) {
    const auto point = [&](int from) {
        const auto index = static_cast<std::size_t>(from);
        return tileWidth == 32 ? kPoint32.at(index) : kPoint16.at(index);
    };
    const int slant = tileWidth == 32 ? 10 : 5;
    if (row < 0 || row >= RowsOfHex(tileWidth)) return 0;
    if (row < slant) return point(row);
    return row < tileWidth ? tileWidth / 2 : tileWidth / 2 - point(row - tileWidth);
}

Surface PaintFootprint(int tileWidth) {
    const std::array<Pixel, 4> corners = {MakePixel(255, 0, 0), MakePixel(0, 255, 0),
                                          MakePixel(0, 0, 255), MakePixel(255, 255, 0)};
    Surface picture(tileWidth, 2 * tileWidth, kWhite);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < tileWidth; ++x) {
            const int half = HalfWidthOfHex(tileWidth, y);
            if (x >= tileWidth / 2 - half && x < tileWidth / 2 + half) continue;
            const bool lower = y >= tileWidth / 2;
            picture.At(x, y) = corners[(lower ? 2U : 0U) + (x >= tileWidth / 2 ? 1U : 0U)];
        }
    }
    return picture;
}

Art PaintArt() {
    Art art;
    for (std::size_t index = 0; index < kSheetCount; ++index) {
        const auto sheet = static_cast<Sheet>(index);
        art.Put(sheet, PaintTiles(LookOf(sheet), index, kSheetRows[index].need));
    }
    for (std::size_t index = 0; index < art.Sprites().Count(); ++index) {
        art.PutSprites(index,
                       PaintTiles({24, 18, {12, 14}, 4}, 40 + index, art.Sprites().Need(index)));
    }
    art.PutFootprint(ViewKind::Normal, MakeMouseMap(PaintFootprint(32), "footprint").Get());
    art.PutFootprint(ViewKind::ZoomOut, MakeMouseMap(PaintFootprint(16), "footprint").Get());
    return art;
}

}  // namespace varnstride
