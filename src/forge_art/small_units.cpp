#include "forge_art/small_units.h"

#include <array>
#include <cmath>

#include "forge_art/color.h"
#include "forge_art/plate.h"

namespace varnstride::art {
namespace {

constexpr double kLeft = -7;
constexpr double kTop = -5;
constexpr double kWidth = 14;
constexpr double kHeight = 10;
const QRect kRoom(-10, -10, 22, 20);

void DrawBox(Plate& plate, const Palette& palette, QRgb color) {
    plate.Box(kLeft + 1.4, kTop + 1.4, kWidth + 0.6, kHeight + 0.6, palette["shadow.unit"]);
    plate.Box(kLeft - 1, kTop - 1, kWidth + 2, kHeight + 2, palette["unit.line"]);
    plate.Box(kLeft, kTop, kWidth, kHeight, color);
    plate.Box(kLeft, kTop, kWidth, 1, Scaled(color, 1.12));
}

// The strokes that the sign of an arm is put together from.
using DrawStroke = void (*)(Plate& plate, const Palette& palette);

void Rising(Plate& plate, const Palette& palette) {
    plate.Line(kLeft, kTop + kHeight, kLeft + kWidth, kTop, 1.25, palette["counter.ink"]);
}

void Falling(Plate& plate, const Palette& palette) {
    plate.Line(kLeft, kTop, kLeft + kWidth, kTop + kHeight, 1.25, palette["counter.ink"]);
}

void FilledAbove(Plate& plate, const Palette& palette) {
    plate.Area({{kLeft, kTop}, {kLeft + kWidth, kTop}, {0, 0}}, palette["counter.ink"]);
}

void FilledBelow(Plate& plate, const Palette& palette) {
    plate.Area({{kLeft, kTop + kHeight}, {kLeft + kWidth, kTop}, {kLeft + kWidth, kTop + kHeight}},
               palette["counter.ink"]);
}

void Belt(Plate& plate, const Palette& palette) {
    plate.Box(kLeft, -0.8, kWidth, 1.6, palette["counter.ink"]);
}

void Footing(Plate& plate, const Palette& palette) {
    plate.Box(kLeft, kTop + kHeight - 2.2, kWidth, 2.2, palette["counter.ink"]);
}

void Horn(Plate& plate, const Palette& palette) {
    plate.Disc(0, 0, 2.6, palette["counter.green"]);
}

void Ball(Plate& plate, const Palette& palette) {
    plate.Disc(0, 0, 3.0, palette["counter.ink"]);
}

void Crest(Plate& plate, const Palette& palette) {
    plate.Disc(-3.6, -1.8, 2, palette["counter.star"]);
}

void Pennon(Plate& plate, const Palette& palette) {
    plate.Area({{kLeft + 1, kTop + 1}, {kLeft + 6, kTop + 1}, {kLeft + 1, kTop + 5}},
               palette["flag.red"]);
}

void Bridge(Plate& plate, const Palette& palette) {
    plate.Box(-4, -2.4, 8, 1.4, palette["counter.ink"]);
    for (const double x : {-4.0, -0.7, 2.6})
        plate.Box(x, -2.4, 1.4, 5, palette["counter.ink"]);
}

void Rocket(Plate& plate, const Palette& palette) {
    plate.Area({{0, kTop + 1}, {2.6, 0}, {-2.6, 0}}, palette["counter.ink"]);
    plate.Box(-0.6, 0, 1.3, 4, palette["counter.ink"]);
}

void Wagon(Plate& plate, const Palette& palette) {
    plate.Disc(-3, 1, 2.4, palette["counter.ink"]);
    plate.Disc(3, 1, 2.4, palette["counter.ink"]);
    plate.Box(-5, -2.4, 10, 1.6, palette["counter.ink"]);
}

void Star(Plate& plate, const Palette& palette) {
    QPolygonF star;
    for (int i = 0; i < 10; ++i) {
        const double angle = i * 0.62832 - 1.5708;
        const double reach = i % 2 == 0 ? 4.6 : 1.9;
        star << QPointF(std::cos(angle) * reach, std::sin(angle) * reach);
    }
    plate.Area(star, palette["counter.star"]);
}

using Sign = std::array<DrawStroke, 3>;

// By tile: type less one, then the numbers that rockets and guns take from elsewhere. A tile
// without a stroke is never drawn.
constexpr std::array<Sign, 24> kSigns = {{
    {Rising, Falling, Horn},         // light infantry
    {Rising, Falling},               // line infantry
    {FilledAbove, Rising, Falling},  // guard infantry
    {Rising, Falling, Belt},         // light dragoons dismounted
    {Bridge},                        // engineers
    {Rising, Falling, Belt},         // dragoons dismounted
    {Star},                          // leader
    {Rising},                        // light cavalry
    {Rising, Pennon},                // lancers
    {FilledBelow},                   // heavy cavalry
    {Rising, Footing},               // medium cavalry
    {Rising, Horn},                  // cossacks
    {FilledBelow, Crest},            // guard cavalry
    {Ball},                          // mortars
    {Rocket},                        // rockets
    {Rising, Ball},                  // horse artillery
    {Ball},                          // field artillery
    {Wagon},                         // supply wagon
    {},
    {Rocket},
    {},
    {},
    {Rising, Ball},
    {Ball},
}};

Tile PaintCounter(const Palette& palette, const Sign& sign) {
    Plate plate(kRoom);
    if (sign[0] != nullptr) DrawBox(plate, palette, palette["counter.paper"]);
    for (const DrawStroke stroke : sign)
        if (stroke != nullptr) stroke(plate, palette);
    return plate.Pressed();
}

}  // namespace

std::vector<Tile> PaintSmallUnits(const Studio& studio) {
    std::vector<Tile> tiles;
    for (const Sign& sign : kSigns)
        tiles.push_back(PaintCounter(studio.palette, sign));
    return tiles;
}

std::vector<Tile> PaintArmyColors(const Studio& studio) {
    constexpr std::array<const char*, 6> armies = {"army.french",   "army.british", "army.austrian",
                                                   "army.prussian", "army.russian", "army.spanish"};
    std::vector<Tile> tiles;
    for (const char* const army : armies) {
        Plate plate(kRoom);
        DrawBox(plate, studio.palette, studio.palette[army]);
        tiles.push_back(plate.Pressed());
    }
    return tiles;
}

}  // namespace varnstride::art
