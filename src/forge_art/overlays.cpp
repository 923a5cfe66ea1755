#include "forge_art/overlays.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "forge_art/chance.h"
#include "forge_art/color.h"
#include "forge_art/hex_shape.h"
#include "forge_art/plate.h"
#include "model/tile_sheets.h"

namespace varnstride::art {
namespace {

constexpr int kSlopeMasks = 63;

bool IsPalisade(int number) {
    return (number >= 53 && number <= 69) || number == 104 || (number >= 123 && number <= 141);
}

bool FallsAt(int mask, int side) {
    return (mask >> ((side + kSideCount) % kSideCount) & 1) != 0;
}

// How far a slope towards a side lies in the shade: 0 faces the light, 1 looks away from it.
constexpr std::array<double, kSideCount> kShadeOf = {0.55, 0.85, 1.0, 0.75, 0.30, 0.15};

double ShadeOf(int side) {
    return kShadeOf[static_cast<std::size_t>(side)];
}

QRect RoomOf(const HexShape& hex) {
    return QRect(-hex.width / 2, hex.Top(), hex.width, hex.Bottom() - hex.Top());
}

// A stroke of the pen, one pixel wide.
void PutStroke(Tile& tile, const HexShape& hex, QPointF from, QPointF to, QRgb color) {
    const QPointF way = to - from;
    const int steps =
        std::max(1, static_cast<int>(std::lround(std::max(std::abs(way.x()), std::abs(way.y())))));
    for (int i = 0; i <= steps; ++i) {
        const QPointF at = from + way * (static_cast<double>(i) / steps);
        const int x = static_cast<int>(std::floor(at.x()));
        const int y = static_cast<int>(std::floor(at.y()));
        if (hex.Contains(x, y)) tile.Set(x, y, color);
    }
}

// Strokes run down a slope, from its crest inside the cell to the side. A line of height never
// ends, so each side's strokes go on in those of the next cell.
class SlopePainter {
 public:
    SlopePainter(const Palette& palette, const HexShape& hex, int mask)
        : palette_(palette),
          hex_(hex),
          mask_(mask),
          chance_(static_cast<std::uint32_t>(mask) + 700),
          tile_(RoomOf(hex)) {}

    Tile Paint() {
        for (const int side : {kNorthWest, kNorthEast, kWest, kEast, kSouthWest, kSouthEast})
            if (FallsAt(mask_, side)) PaintSide(side);
        return tile_;
    }

 private:
    void PaintSide(int side) {
        const QPointF begin = hex_.Corner(side);
        const QPointF end = hex_.Corner((side + 1) % kSideCount);
        const double length = std::hypot(end.x() - begin.x(), end.y() - begin.y());
        const double spacing = 2.6 - 0.6 * ShadeOf(side);
        const int count = static_cast<int>(std::lround(length / spacing));
        for (int i = 0; i < count; ++i) {
            const double share = (i + 0.5) / count;
            PaintStroke(side, begin + (end - begin) * share, share, i % 2 == 0);
        }
    }

    // Towards a corner from which the slope goes round the cell, strokes fan out; towards one from
    // which it goes on beside the cell they lean the other way.
    QPointF DirectionAt(int side, QPointF foot, double share) const {
        const QPointF gate = hex_.Gate(side);
        const QPointF straight = gate / std::hypot(gate.x(), gate.y());
        const QPointF spread = foot / std::hypot(foot.x(), foot.y()) - straight;
        const bool rounds = FallsAt(mask_, share < 0.5 ? side - 1 : side + 1);
        return straight + spread * (rounds ? 0.9 : -0.5);
    }

    void PaintStroke(int side, QPointF foot, double share, bool isLong) {
        const double deep = (0.24 + 0.14 * ShadeOf(side)) * hex_.width;
        const double length = deep * chance_.Between(0.86, 1.04) * (isLong ? 1 : 0.68);
        const QPointF down = DirectionAt(side, foot, share);
        const QPointF low = foot - down * (0.02 * hex_.width);
        const QPointF high = low - down * length;
        const QRgb ink = Mix(palette_["slope.light"], palette_["slope.shade"], ShadeOf(side));
        PutStroke(tile_, hex_, high, low, ink);
        if (isLong) PutStroke(tile_, hex_, high, high + (low - high) * 0.45, Scaled(ink, 0.86));
    }

    const Palette& palette_;
    const HexShape& hex_;
    int mask_;
    Chance chance_;
    Tile tile_;
};

// Pointed stakes side by side behind a ditch.
void DrawStakes(Plate& plate, const Palette& palette, Chance& chance) {
    plate.Oval(0.5, 5.6, 15.5, 2.6, palette["work.ditch"]);
    for (double x = -14; x <= 14; x += 3.1) {
        const double top = -6 + chance.Between(-1, 1);
        plate.Area({{x - 1.5, 5}, {x - 1.5, top}, {x, top - 2.4}, {x + 1.5, top}, {x + 1.5, 5}},
                   palette["work.line"]);
        plate.Box(x - 0.9, top + 0.3, 1.1, 4.4 - top, palette["work.wood"]);
    }
    plate.Box(-15, -1.2, 30, 1.4, palette["work.line"]);
}

// Trees felled one over the other, their tops towards the enemy; they fill the cell, so that a row
// of cells makes one obstacle whichever way it runs.
void DrawAbatis(Plate& plate, const Palette& palette, Chance& chance) {
    for (int i = 0; i < 7; ++i) {
        const double y = -13 + i * 4.2 + chance.Between(-0.8, 0.8);
        const double x = chance.Between(-12, -5);
        const double tip = x + chance.Between(11, 15);
        const double drop = chance.Between(-2.5, 2.5);
        plate.Line(x, y + 1.2, tip, y + drop + 1.2, 1.6, palette["shadow.grass"]);
        plate.Line(x, y, tip, y + drop, 2.5, palette["work.line"]);
        plate.Line(x, y - 0.3, tip, y + drop - 0.3, 1.2, palette["work.wood"]);
        for (const double branch : {0.55, 0.75}) {
            const double from = x + (tip - x) * branch;
            plate.Line(from, y + drop * branch, from + 3, y + drop * branch - 3.4, 1.1,
                       palette["work.line"]);
            plate.Line(from, y + drop * branch, from + 3.4, y + drop * branch + 2.8, 1.1,
                       palette["work.line"]);
        }
        if (chance.OneIn(2)) {
            plate.Disc(tip, y + drop - 0.6, 2.3, palette["leaf.line"]);
            plate.Disc(tip - 0.3, y + drop - 0.9, 1.6, palette["leaf.dark"]);
        }
    }
}

Tile PaintWork(const Palette& palette, const HexShape& hex, int number) {
    constexpr int kLastAbatis = 69;
    const double scale = hex.width / 32.0;
    Plate plate(QRect(-20, -20, 40, 40));
    plate.Brush().scale(scale, scale);
    Chance chance(static_cast<std::uint32_t>(number) + 800);
    if (number <= kLastAbatis) {
        DrawAbatis(plate, palette, chance);
    } else {
        DrawStakes(plate, palette, chance);
    }
    return plate.Pressed();
}

std::vector<Tile> PaintAll(const Studio& studio, const HexShape& hex) {
    std::vector<Tile> tiles(kOverlayTiles);
    for (int mask = 1; mask <= kSlopeMasks; ++mask) {
        tiles[static_cast<std::size_t>(SlopeTile(static_cast<unsigned>(mask)))] =
            SlopePainter(studio.palette, hex, mask).Paint();
    }
    for (int number = 0; number < kOverlayTiles; ++number) {
        if (!IsPalisade(number)) continue;
        tiles[static_cast<std::size_t>(number)] = PaintWork(studio.palette, hex, number);
    }
    return tiles;
}

}  // namespace

std::vector<Tile> PaintOverlays(const Studio& studio) {
    return PaintAll(studio, kNormalHex);
}

std::vector<Tile> PaintSmallOverlays(const Studio& studio) {
    return PaintAll(studio, kSmallHex);
}

std::vector<Tile> PaintTinyOverlays(const Studio& studio) {
    std::vector<Tile> tiles(kOverlayTiles);
    for (int number = 0; number < kOverlayTiles; ++number) {
        if (!IsPalisade(number)) continue;
        Tile tile(QRect(-2, -2, 4, 4));
        tile.Set(-2, 0, studio.palette["work.line"]);
        tile.Set(0, 0, studio.palette["work.line"]);
        tiles[static_cast<std::size_t>(number)] = tile;
    }
    return tiles;
}

}  // namespace varnstride::art
