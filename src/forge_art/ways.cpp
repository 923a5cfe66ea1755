#include "forge_art/ways.h"

#include <QPainterPath>
#include <array>
#include <bit>
#include <cmath>

#include "forge_art/chance.h"
#include "forge_art/color.h"
#include "forge_art/hex_shape.h"
#include "forge_art/plate.h"
#include "model/tile_sheets.h"

namespace varnstride::art {
namespace {

constexpr int kMasks = 64;

// One stroke of the brush along a way; strokes are laid one over the other.
struct Stroke {
    const char* color;
    double width;  // pixels of the normal view
    double aside;  // to the south-east of the way's middle, so that banks and verges catch light
    bool fills = false;  // the corner between two sides that the way runs through
};

struct WayKind {
    std::vector<Stroke> strokes;
    std::vector<Stroke> smallStrokes;
    double sway;           // how far the middle strays from a straight way
    bool spreads = false;  // broad water
};

const std::array<WayKind, 4>& WayKinds() {
    static const std::array<WayKind, 4> kinds = {{
        {{{"road.shadow", 7.0, 0.7}, {"road.edge", 6.2, 0}, {"road.paved", 4.2, 0}},
         {{"road.edge", 4.0, 0}, {"road.paved", 2.2, 0}},
         0.5},
        {{{"road.verge", 4.6, 0.2}, {"road.track", 2.6, 0}},
         {{"road.verge", 2.4, 0}, {"road.track", 1.2, 0}},
         2.2},
        {{{"water.meadow", 10.0, 0.4},
          {"water.bank", 6.2, -0.3},
          {"water.edge", 4.6, 0.2},
          {"water.stream", 3.4, 0.4, true},
          {"water.gleam", 0.9, 0.9}},
         {{"water.bank", 3.0, -0.2}, {"water.stream", 2.0, 0, true}},
         3.0},
        {{{"water.meadow", 22.0, 0.5},
          {"water.bank", 17.4, -0.6},
          {"water.edge", 16.0, 0.2},
          {"water.river", 13.6, 0.6, true}},
         {{"water.bank", 9.0, -0.3}, {"water.river", 7.6, 0, true}},
         2.0,
         true},
    }};
    return kinds;
}

bool Runs(int mask, int side) {
    return (mask >> side & 1) != 0;
}

// A point on the way out through a side, a little beyond it, where the ragged ground of this cell
// may have covered the neighbour's piece of the way. Inner strokes reach farther, or the outer ones
// would close the way with a line.
QPointF Outside(const HexShape& hex, int side, std::size_t stroke) {
    return hex.Gate(side) * (1.34 + 0.07 * static_cast<double>(stroke));
}

std::vector<int> SidesOf(int mask) {
    std::vector<int> sides;
    for (int side = 0; side < kSideCount; ++side)
        if (Runs(mask, side)) sides.push_back(side);
    return sides;
}

bool RunsThroughBoth(int mask, int side) {
    return Runs(mask, side) && Runs(mask, (side + 1) % kSideCount);
}

// Whether a way passes through in one bend. Water between two sides that meet spreads out instead.
bool IsPassage(const WayKind& kind, int mask) {
    if (std::popcount(static_cast<unsigned>(mask)) != 2) return false;
    bool meets = false;
    for (int side = 0; side < kSideCount; ++side)
        meets = meets || RunsThroughBoth(mask, side);
    return !meets || !kind.spreads;
}

// The lines of the ways through a cell; all that is no passage meets in the middle.
QPainterPath PathOf(const HexShape& hex, const WayKind& kind, int mask, std::size_t stroke) {
    Chance chance(static_cast<std::uint32_t>(mask) * 7 + 3);
    const double sway = kind.sway * hex.width / 32.0;
    const QPointF middle(chance.Between(-sway, sway), chance.Between(-sway, sway));
    const std::vector<int> sides = SidesOf(mask);
    QPainterPath path;
    if (IsPassage(kind, mask)) {
        path.moveTo(Outside(hex, sides[0], stroke));
        path.lineTo(hex.Gate(sides[0]));
        path.quadTo(middle * (sides[1] - sides[0] == 3 ? 2.0 : 1.0), hex.Gate(sides[1]));
        path.lineTo(Outside(hex, sides[1], stroke));
        return path;
    }
    for (const int side : sides) {
        path.moveTo(Outside(hex, side, stroke));
        path.lineTo(hex.Gate(side));
        path.lineTo(QPointF(0, 0));
    }
    return path;
}

// Where water runs through two sides that meet, it covers the corner between them as well, and a
// little of the cells beyond, which are all water there.
void FillCorners(Plate& plate, const HexShape& hex, int mask, QRgb color) {
    for (int side = 0; side < kSideCount; ++side) {
        if (!RunsThroughBoth(mask, side)) continue;
        const int next = (side + 1) % kSideCount;
        plate.Area(
            {QPointF(0, 0), hex.Gate(side) * 1.6, hex.Corner(next) * 1.38, hex.Gate(next) * 1.6},
            color);
    }
}

Tile PaintWay(const Palette& palette, const HexShape& hex, const WayKind& kind, int mask) {
    const bool isNormal = hex.width == kNormalHex.width;
    const QRect area = isNormal ? QRect(-28, -32, 56, 64) : QRect(-14, -16, 28, 32);
    Plate plate(area);
    const std::vector<Stroke>& strokes = isNormal ? kind.strokes : kind.smallStrokes;
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        const Stroke& stroke = strokes[i];
        const QRgb color = palette[stroke.color];
        plate.Brush().save();
        plate.Brush().translate(stroke.aside, stroke.aside);
        plate.Curve(PathOf(hex, kind, mask, i), stroke.width, color);
        if (!IsPassage(kind, mask))
            plate.Disc(0, 0, stroke.width / 2 * (mask == 0 ? 1.3 : 1.0), color);
        if (stroke.fills) FillCorners(plate, hex, mask, color);
        plate.Brush().restore();
    }
    return plate.Pressed();
}

std::vector<Tile> PaintAll(const Studio& studio, const HexShape& hex) {
    std::vector<Tile> tiles;
    for (int number = 0; number < kFeatureTiles; ++number) {
        const WayKind& kind = WayKinds()[static_cast<std::size_t>(number / kMasks)];
        tiles.push_back(number == 0 ? Tile()
                                    : PaintWay(studio.palette, hex, kind, number % kMasks));
    }
    return tiles;
}

// Which of the four by four pixels a side's arm takes, beside the two in the middle.
constexpr std::array<std::array<int, 2>, kSideCount> kTinyArms = {
    {{1, -2}, {1, 0}, {1, 1}, {-1, 1}, {-2, 0}, {-1, -2}}};

Tile PaintTinyWay(const Palette& palette, int number) {
    constexpr std::array<const char*, 4> colors = {"road.edge", "road.tiny", "water.stream",
                                                   "water.river"};
    const QRgb color = palette[colors[static_cast<std::size_t>(number / kMasks)]];
    Tile tile(QRect(-2, -2, 4, 4));
    const bool wide = number >= kRiver;
    for (int y = -1; y < (wide ? 1 : 0); ++y)
        for (int x = -1; x < 1; ++x)
            tile.Set(x, y, color);
    for (int side = 0; side < kSideCount; ++side) {
        if (!Runs(number % kMasks, side)) continue;
        const auto [x, y] = kTinyArms[static_cast<std::size_t>(side)];
        tile.Set(x, y, color);
    }
    return tile;
}

}  // namespace

std::vector<Tile> PaintWays(const Studio& studio) {
    return PaintAll(studio, kNormalHex);
}

std::vector<Tile> PaintSmallWays(const Studio& studio) {
    return PaintAll(studio, kSmallHex);
}

std::vector<Tile> PaintTinyWays(const Studio& studio) {
    std::vector<Tile> tiles = {Tile()};
    for (int number = 1; number < kFeatureTiles; ++number)
        tiles.push_back(PaintTinyWay(studio.palette, number));
    return tiles;
}

}  // namespace varnstride::art
