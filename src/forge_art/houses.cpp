#include "forge_art/houses.h"

#include <string>

#include "forge_art/color.h"

namespace varnstride::art {
namespace {

struct RoofColors {
    QRgb light, shade, line;
};

RoofColors ColorsOf(const Palette& palette, Roof roof) {
    const char* const name =
        roof == Roof::Red ? "roof.red" : (roof == Roof::Slate ? "roof.slate" : "roof.thatch");
    const QRgb color = palette[name];
    return {Scaled(color, 1.16), Scaled(color, 0.86), Mix(color, palette["line.building"], 0.7)};
}

void DrawShadow(Plate& plate, const Palette& palette, double x, double y, double width,
                double height) {
    const double reach = height * 0.5;
    plate.Area({{x, y - 1},
                {x + width, y - 1},
                {x + width, y - height * 0.6},
                {x + width + reach, y - height * 0.25},
                {x + width + reach, y + 1.4},
                {x + reach, y + 1.4}},
               palette["shadow.ground"]);
}

// Windows in a row along a wall, and a door.
void DrawOpenings(Plate& plate, const Palette& palette, double x, double y, double length) {
    const QRgb dark = palette["line.building"];
    for (double at = x + 1.2; at < x + length - 1.4; at += 2.6)
        plate.Box(at, y - 2.4, 1.0, 1.1, Mix(dark, palette["wall.shade"], 0.25));
    plate.Box(x + length * 0.5 - 0.5, y - 1.9, 1.1, 1.9, dark);
}

}  // namespace

void DrawHouse(Plate& plate, const Palette& palette, double x, double y, double length, Roof roof) {
    const RoofColors colors = ColorsOf(palette, roof);
    const double left = x - length / 2;
    const double eaves = y - 3.2;
    const double ridge = y - 7.4;
    DrawShadow(plate, palette, left, y, length, 7.5);
    plate.Box(left - 0.6, ridge - 2.2, length + 1.2, y - ridge + 2.6, colors.line);
    plate.Box(left, eaves, length, 3.2, palette["wall.light"]);
    plate.Box(left + length - 1.2, eaves, 1.2, 3.2, palette["wall.shade"]);
    DrawOpenings(plate, palette, left, y, length);
    plate.Box(left - 0.2, ridge - 1.6, length + 0.4, 1.8, colors.light);
    plate.Box(left - 0.2, ridge + 0.2, length + 0.4, eaves - ridge + 0.2, colors.shade);
    plate.Box(left - 0.2, ridge - 0.1, length + 0.4, 0.7, Scaled(colors.light, 1.12));
    plate.Box(left + length * 0.68, ridge - 3.0, 1.6, 2.6, palette["chimney"]);
}

void DrawGabledHouse(Plate& plate, const Palette& palette, double x, double y, double length,
                     Roof roof) {
    const RoofColors colors = ColorsOf(palette, roof);
    const double half = length / 2;
    const double eaves = y - 3.2;
    const double peak = y - 7.0;
    const double depth = 4.6;  // how far the ridge runs back, drawn upwards
    DrawShadow(plate, palette, x - half, y, length, 8.5);
    plate.Area({{x - half - 0.7, eaves + 0.4},
                {x - half - 0.7, eaves - depth},
                {x, peak - depth - 0.7},
                {x + half + 0.7, eaves - depth},
                {x + half + 0.7, eaves + 0.4},
                {x + half + 0.4, y + 0.4},
                {x - half - 0.4, y + 0.4}},
               colors.line);
    plate.Area({{x - half, eaves}, {x, peak}, {x + half, eaves}, {x + half, y}, {x - half, y}},
               palette["wall.light"]);
    DrawOpenings(plate, palette, x - half, y, length);
    plate.Area({{x - half - 0.3, eaves + 0.3},
                {x, peak},
                {x, peak - depth},
                {x - half - 0.3, eaves - depth}},
               colors.light);
    plate.Area({{x + half + 0.3, eaves + 0.3},
                {x, peak},
                {x, peak - depth},
                {x + half + 0.3, eaves - depth}},
               colors.shade);
    plate.Line(x, peak, x, peak - depth, 0.6, Scaled(colors.light, 1.1));
}

void DrawTower(Plate& plate, const Palette& palette, double x, double y) {
    const QRgb line = palette["line.building"];
    plate.Area({{x - 3, y}, {x + 3, y - 1}, {x + 13, y + 2}, {x + 11, y + 4}},
               palette["shadow.ground"]);
    plate.Box(x - 3.6, y - 14.4, 7.2, 14.8, line);
    plate.Box(x - 3.0, y - 13.8, 3.6, 13.8, palette["wall.light"]);
    plate.Box(x + 0.6, y - 13.8, 2.4, 13.8, palette["wall.shade"]);
    plate.Box(x - 1.0, y - 11.6, 1.6, 2.6, line);
    plate.Box(x - 0.8, y - 3.0, 1.8, 3.0, line);
    plate.Area({{x - 4.2, y - 13.6}, {x, y - 23.6}, {x + 4.2, y - 13.6}}, line);
    plate.Area({{x - 3.3, y - 14.1}, {x, y - 22.0}, {x + 0.6, y - 14.1}},
               Scaled(palette["roof.slate"], 1.2));
    plate.Area({{x + 0.6, y - 14.1}, {x, y - 22.0}, {x + 3.3, y - 14.1}},
               Scaled(palette["roof.slate"], 0.85));
    plate.Box(x - 0.5, y - 27.0, 1.0, 4.4, line);
    plate.Box(x - 1.5, y - 25.8, 3.0, 1.0, line);
}

void DrawChurch(Plate& plate, const Palette& palette, double x, double y) {
    DrawHouse(plate, palette, x + 4.5, y, 11, Roof::Slate);
    DrawTower(plate, palette, x - 4, y + 0.6);
}

void DrawWalledFarm(Plate& plate, const Palette& palette, double x, double y, Roof roof) {
    const RoofColors colors = ColorsOf(palette, roof);
    plate.Box(x - 10.5, y - 13, 21, 12.5, palette["yard"]);
    DrawHouse(plate, palette, x, y - 10, 20, roof);
    for (const double side : {-9.4, 9.4}) {
        plate.Box(x + side - 2.6, y - 14.0, 5.2, 13.4, colors.line);
        plate.Box(x + side - 2.0, y - 13.4, 2.1, 10.2, colors.light);
        plate.Box(x + side + 0.1, y - 13.4, 2.1, 10.2, colors.shade);
        plate.Box(x + side - 2.0, y - 3.2, 4.2, 2.4, palette["wall.light"]);
    }
    plate.Box(x + 12, y - 11.0, 3.0, 12.4, palette["shadow.ground"]);
    plate.Box(x - 7, y + 0.6, 22, 1.2, palette["shadow.ground"]);
    DrawWall(plate, palette, x - 12, y, x - 2.6, y);
    DrawWall(plate, palette, x + 2.6, y, x + 12, y);
    plate.Box(x - 3.6, y - 3.8, 1.8, 4.2, palette["line.building"]);
    plate.Box(x + 1.8, y - 3.8, 1.8, 4.2, palette["line.building"]);
}

void DrawManor(Plate& plate, const Palette& palette, double x, double y) {
    DrawGabledHouse(plate, palette, x - 8, y, 6.4, Roof::Slate);
    DrawHouse(plate, palette, x, y - 0.6, 12, Roof::Slate);
    DrawGabledHouse(plate, palette, x + 8, y, 6.4, Roof::Slate);
    DrawWall(plate, palette, x - 12, y + 6, x - 3, y + 6);
    DrawWall(plate, palette, x + 3, y + 6, x + 12, y + 6);
}

void DrawWindmill(Plate& plate, const Palette& palette, double x, double y) {
    const QRgb line = palette["line.building"];
    plate.Area({{x - 2, y}, {x + 3, y - 1}, {x + 11, y + 2}, {x + 9, y + 4}},
               palette["shadow.ground"]);
    plate.Area({{x - 4.2, y + 0.4}, {x - 2.8, y - 10.4}, {x + 2.8, y - 10.4}, {x + 4.2, y + 0.4}},
               line);
    plate.Area({{x - 3.4, y}, {x - 2.2, y - 9.8}, {x + 0.4, y - 9.8}, {x + 0.4, y}},
               palette["wall.light"]);
    plate.Area({{x + 0.4, y}, {x + 0.4, y - 9.8}, {x + 2.2, y - 9.8}, {x + 3.4, y}},
               palette["wall.shade"]);
    plate.Area({{x - 3.4, y - 9.6}, {x, y - 13.6}, {x + 3.4, y - 9.6}}, palette["roof.thatch"]);
    plate.Box(x - 0.8, y - 2.6, 1.8, 2.6, line);
    for (const double slope : {-1.0, 1.0}) {
        plate.Line(x - 8, y - 10 - 7 * slope, x + 8, y - 10 + 7 * slope, 1.9,
                   palette["wall.light"]);
        plate.Line(x - 8, y - 10 - 7 * slope, x + 8, y - 10 + 7 * slope, 0.8, line);
    }
}

void DrawTent(Plate& plate, const Palette& palette, double x, double y, double size) {
    plate.Area(
        {{x - size, y + 0.3}, {x + size * 1.2, y - 0.6}, {x + size * 2.0, y + 1.4}, {x, y + 1.6}},
        palette["shadow.ground"]);
    plate.Area({{x - size - 0.5, y + 0.4}, {x, y - size * 1.7}, {x + size + 0.5, y + 0.4}},
               palette["line.building"]);
    plate.Area({{x - size + 0.3, y}, {x, y - size * 1.45}, {x + 0.3, y}}, palette["canvas.light"]);
    plate.Area({{x + 0.3, y}, {x, y - size * 1.45}, {x + size - 0.3, y}}, palette["canvas.shade"]);
}

void DrawHaystack(Plate& plate, const Palette& palette, double x, double y) {
    plate.Oval(x + 1.6, y + 0.2, 3.4, 1.5, palette["shadow.grass"]);
    plate.Oval(x, y - 1.6, 3.0, 2.6, Scaled(palette["roof.thatch"], 0.62));
    plate.Oval(x - 0.2, y - 1.8, 2.4, 2.0, palette["roof.thatch"]);
    plate.Oval(x - 0.8, y - 2.4, 1.1, 0.9, Scaled(palette["roof.thatch"], 1.2));
}

void DrawWall(Plate& plate, const Palette& palette, double x1, double y1, double x2, double y2) {
    plate.Line(x1 + 0.8, y1 + 0.9, x2 + 0.8, y2 + 0.9, 1.4, palette["shadow.ground"]);
    plate.Line(x1, y1 - 0.6, x2, y2 - 0.6, 2.8, palette["line.building"]);
    plate.Line(x1, y1 - 1.2, x2, y2 - 1.2, 1.0, palette["wall.light"]);
}

}  // namespace varnstride::art
