#include "forge_art/flags.h"

#include <array>
#include <cmath>

#include "forge_art/color.h"

namespace varnstride::art {
namespace {

void DrawStripes(Plate& plate, QRectF area, const std::array<QRgb, 3>& colors, bool upright) {
    for (int i = 0; i < 3; ++i) {
        const double width = upright ? area.width() / 3 : area.width();
        const double height = upright ? area.height() : area.height() / 3;
        plate.Box(area.x() + (upright ? i * width : 0), area.y() + (upright ? 0 : i * height),
                  width, height, colors[static_cast<std::size_t>(i)]);
    }
}

void DrawUnion(Plate& plate, const Palette& palette, QRectF area) {
    const QRgb white = palette["flag.white"];
    const QRgb red = palette["flag.red"];
    plate.Box(area.x(), area.y(), area.width(), area.height(), palette["flag.blue"]);
    plate.Brush().save();
    plate.Brush().setClipRect(area);
    const double broad = area.height() * 0.20;
    plate.Line(area.left(), area.top(), area.right(), area.bottom(), broad, white);
    plate.Line(area.left(), area.bottom(), area.right(), area.top(), broad, white);
    plate.Line(area.left(), area.top(), area.right(), area.bottom(), broad * 0.4, red);
    plate.Line(area.left(), area.bottom(), area.right(), area.top(), broad * 0.4, red);
    const QPointF middle = area.center();
    for (const double share : {0.34, 0.20}) {
        const QRgb color = share > 0.3 ? white : red;
        const double thick = area.height() * share;
        plate.Box(area.left(), middle.y() - thick / 2, area.width(), thick, color);
        plate.Box(middle.x() - thick / 2, area.top(), thick, area.height(), color);
    }
    plate.Brush().restore();
}

// White with a black cross to the corners and a wreath in the middle.
void DrawPrussian(Plate& plate, const Palette& palette, QRectF area) {
    const QRgb black = palette["flag.black"];
    plate.Box(area.x(), area.y(), area.width(), area.height(), palette["flag.white"]);
    plate.Brush().save();
    plate.Brush().setClipRect(area);
    const double broad = area.height() * 0.24;
    plate.Line(area.left(), area.top(), area.right(), area.bottom(), broad, black);
    plate.Line(area.left(), area.bottom(), area.right(), area.top(), broad, black);
    plate.Oval(area.center().x(), area.center().y(), area.height() * 0.30, area.height() * 0.30,
               palette["flag.orange"]);
    plate.Oval(area.center().x(), area.center().y(), area.height() * 0.17, area.height() * 0.2,
               black);
    plate.Brush().restore();
}

void DrawSaltire(Plate& plate, QRectF area, QRgb ground, QRgb cross) {
    plate.Box(area.x(), area.y(), area.width(), area.height(), ground);
    plate.Brush().save();
    plate.Brush().setClipRect(area);
    plate.Line(area.left(), area.top(), area.right(), area.bottom(), area.height() * 0.2, cross);
    plate.Line(area.left(), area.bottom(), area.right(), area.top(), area.height() * 0.2, cross);
    plate.Brush().restore();
}

void DrawAustrian(Plate& plate, const Palette& palette, QRectF area) {
    plate.Box(area.x(), area.y(), area.width(), area.height(), palette["flag.yellow"]);
    const double size = area.height();
    const auto at = [&](double x, double y) { return area.center() + QPointF(x, y) * size; };
    const QRgb black = palette["flag.black"];
    plate.Oval(at(0, 0).x(), at(0, 0).y(), size * 0.12, size * 0.22, black);
    plate.Area({at(-0.10, 0.16), at(0.10, 0.16), at(0.14, 0.36), at(-0.14, 0.36)}, black);
    for (const double side : {-1.0, 1.0}) {
        plate.Area({at(0.05 * side, -0.12), at(0.26 * side, -0.34), at(0.40 * side, -0.22),
                    at(0.36 * side, 0.10), at(0.24 * side, 0.16), at(0.06 * side, 0.10)},
                   black);
        plate.Disc(at(0.09 * side, -0.28).x(), at(0, -0.28).y(), size * 0.075, black);
    }
}

}  // namespace

void DrawFlag(Plate& plate, const Palette& palette, QRectF area, Nation nation) {
    const QRgb white = palette["flag.white"];
    const QRgb blue = palette["flag.blue"];
    const QRgb red = palette["flag.red"];
    switch (nation) {
        case Nation::French: DrawStripes(plate, area, {blue, white, red}, true); break;
        case Nation::British: DrawUnion(plate, palette, area); break;
        case Nation::Austrian: DrawAustrian(plate, palette, area); break;
        case Nation::Prussian: DrawPrussian(plate, palette, area); break;
        case Nation::Russian: DrawStripes(plate, area, {white, blue, red}, false); break;
        case Nation::Spanish: DrawSaltire(plate, area, white, red); break;
    }
}

Tile CarriedColor(const Studio& studio, Nation nation) {
    constexpr int kPole = 20;
    const QRectF cloth(1, -kPole + 1, 11, 8);
    Plate plate(QRect(-2, -26, 18, 30));
    DrawFlag(plate, studio.palette, cloth, nation);
    const Tile flat = plate.Pressed();
    Tile tile(QRect(-2, -28, 18, 32));
    for (int x = 0; x < 14; ++x) {
        const int wave = static_cast<int>(std::lround(std::sin(x * 0.65) * 1.1));
        const double light = 1.0 - 0.13 * std::cos(x * 0.65);
        for (int y = -26; y < 0; ++y) {
            if (!flat.IsEmptyAt(x, y)) tile.Set(x, y + wave, Scaled(flat.At(x, y), light));
        }
    }
    for (int y = -kPole; y <= 0; ++y)
        tile.Set(0, y, studio.palette["flag.pole"]);
    tile.Set(0, -kPole - 1, studio.palette["flag.gold"]);
    tile.Set(0, -kPole - 2, studio.palette["flag.gold"]);
    tile.Set(1, -kPole - 1, studio.palette["flag.gold"]);
    tile.Set(-1, -kPole - 1, studio.palette["flag.gold"]);
    return tile;
}

}  // namespace varnstride::art
