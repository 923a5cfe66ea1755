#include "forge_art/emblems.h"

#include <array>
#include <cmath>

#include "forge_art/color.h"

namespace varnstride::art {
namespace {

// Shapes are given for one side and drawn for both.
void DrawPair(Plate& plate, QPointF middle, double scale, const QPolygonF& shape, QRgb color) {
    for (const double side : {-1.0, 1.0}) {
        QPolygonF placed;
        for (const QPointF& corner : shape)
            placed << middle + QPointF(corner.x() * side * scale, corner.y() * scale);
        plate.Area(placed, color);
    }
}

void DrawWing(Plate& plate, QPointF middle, double scale, QRgb gold, QRgb line) {
    DrawPair(plate, middle, scale,
             {{3, -8}, {12, -17}, {25, -21}, {29, -14}, {28, -2}, {23, 8}, {14, 10}, {5, 6}}, line);
    DrawPair(plate, middle, scale,
             {{4, -7}, {12, -15}, {24, -19}, {27, -13}, {26, -3}, {22, 6}, {14, 8}, {5, 4}}, gold);
    for (int i = 0; i < 4; ++i) {
        const double x = 10 + i * 4.4;
        DrawPair(plate, middle, scale,
                 {{x, -12.0 - i}, {x + 1.1, -12.0 - i}, {x + 0.4, 7.0 - i}, {x - 0.7, 7.0 - i}},
                 line);
    }
}

}  // namespace

void DrawLaurel(Plate& plate, const Palette& palette, QPointF middle, double radius) {
    for (const double side : {-1.0, 1.0}) {
        for (int i = 0; i < 9; ++i) {
            const double angle = 1.45 - i * 0.29;
            const QPointF at = middle + QPointF(std::cos(angle) * side, std::sin(angle)) * radius;
            const double size = radius * 0.17;
            plate.Disc(at.x(), at.y(), size, palette["laurel.dark"]);
            plate.Disc(at.x() - size * 0.25, at.y() - size * 0.3, size * 0.62,
                       palette["laurel.light"]);
        }
    }
}

void DrawEagle(Plate& plate, const Palette& palette, QPointF middle, double scale) {
    const QRgb gold = palette["flag.gold"];
    const QRgb line = palette["emblem.line"];
    const auto at = [&](double x, double y) { return middle + QPointF(x, y) * scale; };
    DrawWing(plate, middle, scale, gold, line);
    DrawPair(plate, middle, scale, {{0, 6}, {7, 8}, {9, 20}, {0, 23}}, line);
    DrawPair(plate, middle, scale, {{0, 7}, {5.6, 9}, {7, 18.6}, {0, 21}}, Scaled(gold, 0.88));
    plate.Oval(at(0, 0).x(), at(0, 0).y(), 8.4 * scale, 12 * scale, line);
    plate.Oval(at(0, 0).x(), at(0, 0).y(), 7.2 * scale, 10.8 * scale, gold);
    plate.Oval(at(-2, -2).x(), at(-2, -2).y(), 3.6 * scale, 7 * scale, Scaled(gold, 1.18));
    plate.Disc(at(2, -14).x(), at(2, -14).y(), 5.4 * scale, line);
    plate.Disc(at(2, -14).x(), at(2, -14).y(), 4.3 * scale, gold);
    plate.Area({at(5, -16), at(12, -13), at(5.6, -11)}, line);
    plate.Disc(at(3.4, -15).x(), at(3.4, -15).y(), 1.0 * scale, line);
    plate.Area({at(-15, 21), at(-11, 18), at(11, 18), at(15, 21), at(11, 25), at(-11, 25)}, line);
    plate.Area(
        {at(-13, 21.4), at(-10, 19.4), at(10, 19.4), at(13, 21.4), at(10, 23.6), at(-10, 23.6)},
        Scaled(gold, 0.8));
}

void DrawCrown(Plate& plate, const Palette& palette, QPointF middle, double scale) {
    const QRgb gold = palette["flag.gold"];
    const QRgb line = palette["emblem.line"];
    const auto at = [&](double x, double y) { return middle + QPointF(x, y) * scale; };
    plate.Area(
        {at(-20, 12), at(-24, -8), at(-12, -14), at(0, -9), at(12, -14), at(24, -8), at(20, 12)},
        line);
    plate.Area(
        {at(-18, 9), at(-21, -6), at(-12, -12), at(0, -7), at(12, -12), at(21, -6), at(18, 9)},
        palette["emblem.velvet"]);
    for (const double x : {-20.0, -7.0, 7.0, 20.0}) {
        plate.Area({at(x * 0.9 - 2.2, 10), at(x - 1.8, -8), at(x * 0.35, -15), at(x + 1.8, -8),
                    at(x * 0.9 + 2.2, 10)},
                   line);
        plate.Area({at(x * 0.9 - 1.2, 9), at(x - 0.8, -7), at(x * 0.35, -13), at(x + 0.8, -7),
                    at(x * 0.9 + 1.2, 9)},
                   gold);
    }
    plate.Area({at(-22, 17), at(-22, 8), at(0, 10), at(22, 8), at(22, 17), at(0, 20)}, line);
    plate.Area({at(-21, 16), at(-21, 9.6), at(0, 11.4), at(21, 9.6), at(21, 16), at(0, 18.6)},
               gold);
    for (const double x : {-15.0, 0.0, 15.0})
        plate.Disc(at(x, 14).x(), at(x, 14).y(), 2.2 * scale,
                   palette[x == 0 ? "flag.blue" : "flag.red"]);
    plate.Disc(at(0, -16).x(), at(0, -16).y(), 4.6 * scale, line);
    plate.Disc(at(0, -16).x(), at(0, -16).y(), 3.6 * scale, gold);
    plate.Area({at(-1.2, -27), at(1.2, -27), at(1.2, -19), at(-1.2, -19)}, line);
    plate.Area({at(-4, -24.6), at(4, -24.6), at(4, -22.4), at(-4, -22.4)}, line);
}

void DrawIronCross(Plate& plate, const Palette& palette, QPointF middle, double scale) {
    const QRgb silver = palette["emblem.silver"];
    const QRgb iron = palette["emblem.iron"];
    const auto drawArms = [&](double grow, QRgb color) {
        for (int arm = 0; arm < 4; ++arm) {
            const double turn = arm * 1.570796;
            const auto at = [&](double x, double y) {
                return middle + QPointF(x * std::cos(turn) - y * std::sin(turn),
                                        x * std::sin(turn) + y * std::cos(turn)) *
                                    scale;
            };
            const double out = 24 + grow;
            plate.Area({at(-3 - grow, 0), at(-5.5 - grow, -9), at(-11 - grow, -out),
                        at(11 + grow, -out), at(5.5 + grow, -9), at(3 + grow, 0)},
                       color);
        }
    };
    drawArms(2.6, palette["emblem.line"]);
    drawArms(1.6, silver);
    drawArms(0, iron);
    drawArms(-2.0, Scaled(iron, 1.35));
    drawArms(-2.8, iron);
}

void Put(QImage& picture, const Tile& tile, QPoint at, int factor) {
    const QRect area = tile.Area();
    for (int y = area.top() * factor; y < (area.bottom() + 1) * factor; ++y) {
        for (int x = area.left() * factor; x < (area.right() + 1) * factor; ++x) {
            const int column = (x - area.left() * factor) / factor + area.left();
            const int row = (y - area.top() * factor) / factor + area.top();
            const QPoint place = at + QPoint(x, y);
            if (!tile.IsEmptyAt(column, row) && picture.rect().contains(place))
                picture.setPixel(place, tile.At(column, row));
        }
    }
}

QImage PaintEmblems(const Studio& studio) {
    const Palette& palette = studio.palette;
    Plate plate(QRect(0, 0, 190, 60));
    plate.Box(0, 0, 60, 60, palette["report.british"]);
    plate.Box(60, 0, 70, 60, palette["report.french"]);
    plate.Box(130, 0, 60, 60, palette["report.prussian"]);
    DrawLaurel(plate, palette, {30, 34}, 22);
    DrawCrown(plate, palette, {30, 30}, 0.74);
    DrawEagle(plate, palette, {95, 30}, 1.08);
    DrawIronCross(plate, palette, {160, 30}, 1.0);
    QImage picture(190, 60, QImage::Format_RGB32);
    Put(picture, plate.Pressed(), {0, 0});
    return picture;
}

}  // namespace varnstride::art
