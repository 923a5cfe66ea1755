#include "forge_art/marks.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

#include "forge_art/color.h"
#include "forge_art/flags.h"
#include "forge_art/plate.h"
#include "model/tile_sheets.h"

namespace varnstride::art {
namespace {

QRect RoomOf(const HexShape& hex) {
    return QRect(-hex.width / 2 - 2, hex.Top() - 2, hex.width + 4, hex.Bottom() - hex.Top() + 4);
}

template <typename Paint>
Tile PaintPixels(const HexShape& hex, Paint paint) {
    Tile tile(RoomOf(hex));
    for (int y = hex.Top(); y < hex.Bottom(); ++y) {
        for (int x = -hex.width / 2; x < hex.width / 2; ++x)
            if (hex.Contains(x, y)) paint(tile, x, y);
    }
    return tile;
}

// Bits of the patterns of borders, from the lowest.
constexpr std::array<Side, kSideCount> kPatternSides = {kSouthWest, kSouthEast, kEast,
                                                        kNorthEast, kNorthWest, kWest};

QPoint PixelOf(QPointF point) {
    return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

// Both cells beside a border draw it, and where only one of them has a picture for its sides it is
// still there: so both must put the same dots.
void PutBorder(Tile& tile, const HexShape& hex, Side side, QRgb color) {
    QPoint from = PixelOf(hex.Corner(side));
    QPoint to = PixelOf(hex.Corner((side + 1) % kSideCount));
    if (from.x() > to.x() || (from.x() == to.x() && from.y() > to.y())) std::swap(from, to);
    const QPoint way = to - from;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y()));
    for (int i = 0; i < steps; ++i) {
        if (i % 4 >= 2) continue;
        const int x = from.x() + (way.x() * i + (way.x() > 0 ? steps / 2 : 0)) / steps;
        const int y = from.y() + (way.y() * i - (way.y() < 0 ? steps / 2 : -steps / 2)) / steps;
        tile.Set(x, y, color);
    }
}

Tile PaintRing(const HexShape& hex, double inner, QRgb edge, QRgb body) {
    return PaintPixels(hex, [&](Tile& tile, int x, int y) {
        const double depth = -hex.Beyond(x + 0.5, y + 0.5);
        if (depth > inner) return;
        tile.Set(x, y, depth < 0.9 || depth > inner - 0.9 ? edge : body);
    });
}

constexpr std::array<const char*, 5> kPoints = {"", "50", "100", "150", "200"};
constexpr std::array<Nation, 6> kExits = {Nation::British, Nation::Prussian, Nation::French,
                                          Nation::Russian, Nation::Austrian, Nation::Spanish};
constexpr int kListed = 5;
constexpr int kFirstExit = 6;

const QRect kBannerRoom(-20, -40, 48, 56);

// A pole to the left of whoever stands in the cell, with room for a banner above him.
void DrawPole(Plate& plate, const Palette& palette) {
    plate.Oval(-12.5, 8.5, 3.4, 1.6, palette["shadow.unit"]);
    plate.Box(-15, -33, 2.4, 41.6, palette["unit.line"]);
    plate.Box(-14.4, -32, 1.1, 40, palette["banner.pole"]);
    plate.Disc(-13.8, -34, 1.9, palette["unit.line"]);
    plate.Disc(-13.8, -34, 1.2, palette["flag.gold"]);
}

Tile PaintBanner(const Studio& studio, const std::string& points) {
    const Palette& palette = studio.palette;
    Plate plate(kBannerRoom);
    DrawPole(plate, palette);
    const int width = points.empty() ? 12 : studio.lettering.digits.WidthOf(points) + 8;
    plate.Area({{-12.6, -32.6},
                {-11.0 + width, -32.6},
                {-14.0 + width, -26.5},
                {-11.0 + width, -20.4},
                {-12.6, -20.4}},
               palette["unit.line"]);
    plate.Area({{-12.6, -31.6},
                {-12.8 + width, -31.6},
                {-15.2 + width, -26.5},
                {-12.8 + width, -21.4},
                {-12.6, -21.4}},
               palette[points.empty() ? "banner.plain" : "banner.cloth"]);
    Tile tile = plate.Pressed();
    studio.lettering.digits.Write(tile, {-11, -29}, points, palette["banner.ink"]);
    return tile;
}

// A finger post with the flag of those who leave the map here.
Tile PaintExit(const Studio& studio, Nation nation) {
    const Palette& palette = studio.palette;
    Plate plate(kBannerRoom);
    DrawPole(plate, palette);
    plate.Box(-12.8, -33.0, 19.0, 13.0, palette["unit.line"]);
    DrawFlag(plate, palette, QRectF(-12.4, -32.0, 17.6, 11.0), nation);
    plate.Area(
        {{-18, -17.4}, {-3, -17.4}, {-3, -20}, {4, -14.5}, {-3, -9}, {-3, -11.6}, {-18, -11.6}},
        palette["unit.line"]);
    plate.Area({{-17, -16.4},
                {-2, -16.4},
                {-2, -17.8},
                {2.4, -14.5},
                {-2, -11.2},
                {-2, -12.6},
                {-17, -12.6}},
               palette["banner.arrow"]);
    return plate.Pressed();
}

Tile PaintSmallBanner(const Palette& palette, QRgb cloth) {
    Plate plate(QRect(-8, -12, 18, 22));
    plate.Box(-4.6, -8, 1.6, 14, palette["unit.line"]);
    plate.Area({{-4, -8.6}, {7, -5}, {-4, -1.4}}, palette["unit.line"]);
    plate.Area({{-3, -7.2}, {4, -5}, {-3, -2.8}}, cloth);
    return plate.Pressed();
}

Tile PaintBurst(const Palette& palette) {
    Plate plate(QRect(-18, -24, 36, 36));
    QPolygonF outer;
    QPolygonF inner;
    for (int i = 0; i < 20; ++i) {
        const double angle = i * 0.31416;
        const double reach = i % 2 == 0 ? 14 : 9.6;
        const QPointF ray(std::cos(angle), std::sin(angle) * 0.86);
        outer << QPointF(0, -6) + ray * reach;
        inner << QPointF(0, -6) + ray * (reach - 1.7);
    }
    plate.Area(outer, palette["unit.line"]);
    plate.Area(inner, palette["loss.burst"]);
    plate.Oval(0, -6, 8, 6.8, palette["loss.heart"]);
    return plate.Pressed();
}

QRgb CornerColor(int side) {
    constexpr std::array<QRgb, kSideCount> colors = {qRgb(0, 0, 255),     qRgb(255, 255, 255),
                                                     qRgb(255, 255, 0),   qRgb(0, 255, 0),
                                                     qRgb(255, 255, 255), qRgb(255, 0, 0)};
    return colors[static_cast<std::size_t>(side)];
}

}  // namespace

std::vector<Tile> PaintShade(const Studio& studio, const HexShape& hex) {
    const QRgb color = studio.palette["shade"];
    const Tile shade = PaintPixels(hex, [&](Tile& tile, int x, int y) {
        if ((x & 1) == 0 && (y & 1) == 0) tile.Set(x, y, color);
    });
    return {Tile(), shade};
}

std::vector<Tile> PaintBorders(const Studio& studio, const HexShape& hex) {
    std::vector<Tile> tiles;
    for (const int pattern : kPicturedBorders) {
        Tile tile(RoomOf(hex));
        for (int bit = 0; bit < kSideCount; ++bit) {
            if ((pattern >> bit & 1) == 0) continue;
            PutBorder(tile, hex, kPatternSides[static_cast<std::size_t>(bit)],
                      studio.palette["border"]);
        }
        tiles.push_back(tile);
    }
    return tiles;
}

std::vector<Tile> PaintHighlight(const Studio& studio, const HexShape& hex) {
    const double inner = hex.width > kSmallHex.width ? 3.4 : 2.6;
    return {PaintRing(hex, inner, studio.palette["highlight.edge"], studio.palette["highlight"])};
}

std::vector<Tile> PaintOutlines(const Studio& studio, const HexShape& hex) {
    const QRgb color = studio.palette["outline"];
    const Tile fine = PaintPixels(hex, [&](Tile& tile, int x, int y) {
        const bool west = !hex.Contains(x - 1, y);
        const bool above = !hex.Contains(x, y - 1);
        if ((west || above) && y < hex.Bottom() - hex.slant) tile.Set(x, y, color);
    });
    return {PaintRing(hex, 2.2, color, studio.palette["highlight"]), fine};
}

std::vector<Tile> PaintObjectives(const Studio& studio) {
    std::vector<Tile> tiles = {Tile()};
    for (int value = 1; value < kListed; ++value)
        tiles.push_back(PaintBanner(studio, kPoints[static_cast<std::size_t>(value)]));
    tiles.push_back(PaintBanner(studio, ""));
    for (const Nation nation : kExits)
        tiles.push_back(PaintExit(studio, nation));
    return tiles;
}

std::vector<Tile> PaintSmallObjectives(const Studio& studio) {
    const Palette& palette = studio.palette;
    std::vector<Tile> tiles = {Tile()};
    for (int value = 1; value < kObjectiveTiles; ++value) {
        const char* const cloth = value < kListed
                                      ? "banner.cloth"
                                      : (value < kFirstExit ? "banner.plain" : "banner.arrow");
        tiles.push_back(PaintSmallBanner(palette, palette[cloth]));
    }
    return tiles;
}

std::vector<Tile> PaintLosses(const Studio& studio) {
    std::vector<Tile> tiles = {PaintBurst(studio.palette)};
    for (int loss = 1; loss < kLossMarks; ++loss) {
        const std::string number = std::to_string(loss);
        const LetterCase& letters = studio.lettering.text;
        Tile tile(QRect(-18, -24, 36, 36));
        const int width = letters.WidthOf(number) - 1;
        letters.Write(tile, {-width / 2, -10}, number, studio.palette["loss.ink"]);
        tiles.push_back(tile);
    }
    return tiles;
}

QImage PaintMouseMap(const HexShape& hex) {
    QImage picture(hex.width, 2 * hex.rowStep, QImage::Format_RGB32);
    picture.fill(qRgb(255, 255, 255));
    for (int row = 0; row < picture.height(); ++row) {
        for (int column = 0; column < picture.width(); ++column) {
            const int x = column - hex.width / 2;
            const int y = row + hex.Top();
            for (const Side side : {kNorthWest, kNorthEast, kSouthWest, kSouthEast}) {
                const QPoint other = hex.Neighbour(side);
                if (hex.Contains(x - other.x(), y - other.y()))
                    picture.setPixel(column, row, CornerColor(side));
            }
        }
    }
    return picture;
}

}  // namespace varnstride::art
