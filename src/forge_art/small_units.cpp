#include "forge_art/small_units.h"

#include <array>
#include <string>

#include "forge_art/color.h"
#include "forge_art/plate.h"

namespace varnstride::art {
namespace {

constexpr double kLeft = -7;
constexpr double kTop = -5;
constexpr double kWidth = 14;
constexpr double kHeight = 10;
const QRect kRoom(-10, -10, 22, 20);

// What is drawn in the box of a counter.
enum class Sign {
    None,
    LightFoot,
    Foot,
    Guard,
    Dismounted,
    Engineer,
    Leader,
    LightHorse,
    Lancer,
    HeavyHorse,
    Dragoon,
    GuardHorse,
    Gun,
    Rocket,
    HorseGun,
    Wagon
};

// By tile: type less one, then the numbers that some arms take from elsewhere.
constexpr std::array<Sign, 24> kSigns = {
    Sign::LightFoot,  Sign::Foot,       Sign::Guard,      Sign::Dismounted, Sign::Engineer,
    Sign::Dismounted, Sign::Leader,     Sign::LightHorse, Sign::Lancer,     Sign::HeavyHorse,
    Sign::Dragoon,    Sign::LightHorse, Sign::GuardHorse, Sign::Gun,        Sign::Rocket,
    Sign::HorseGun,   Sign::Gun,        Sign::Wagon,      Sign::None,       Sign::Rocket,
    Sign::None,       Sign::None,       Sign::HorseGun,   Sign::Gun};

void DrawBox(Plate& plate, const Palette& palette, QRgb color) {
    plate.Box(kLeft + 1.4, kTop + 1.4, kWidth + 0.6, kHeight + 0.6, palette["shadow.unit"]);
    plate.Box(kLeft - 1, kTop - 1, kWidth + 2, kHeight + 2, palette["unit.line"]);
    plate.Box(kLeft, kTop, kWidth, kHeight, color);
    plate.Box(kLeft, kTop, kWidth, 1, Scaled(color, 1.12));
}

void DrawRising(Plate& plate, QRgb ink, double width) {
    plate.Line(kLeft, kTop + kHeight, kLeft + kWidth, kTop, width, ink);
}

void DrawFalling(Plate& plate, QRgb ink, double width) {
    plate.Line(kLeft, kTop, kLeft + kWidth, kTop + kHeight, width, ink);
}

void DrawStar(Plate& plate, QRgb ink) {
    QPolygonF star;
    for (int i = 0; i < 10; ++i) {
        const double angle = i * 0.62832 - 1.5708;
        const double reach = i % 2 == 0 ? 4.6 : 1.9;
        star << QPointF(std::cos(angle) * reach, std::sin(angle) * reach);
    }
    plate.Area(star, ink);
}

// A box that is filled below its diagonal, for the heavy arms.
void FillBelow(Plate& plate, QRgb ink) {
    plate.Area({{kLeft, kTop + kHeight}, {kLeft + kWidth, kTop}, {kLeft + kWidth, kTop + kHeight}},
               ink);
}

void DrawSign(Plate& plate, const Palette& palette, Sign sign) {
    const QRgb ink = palette["counter.ink"];
    switch (sign) {
        case Sign::None: break;
        case Sign::Guard:
            plate.Area({{kLeft, kTop}, {kLeft + kWidth, kTop}, {0, 0}}, ink);
            [[fallthrough]];
        case Sign::Foot:
            DrawRising(plate, ink, 1.2);
            DrawFalling(plate, ink, 1.2);
            break;
        case Sign::LightFoot:
            DrawRising(plate, ink, 1.2);
            DrawFalling(plate, ink, 1.2);
            plate.Disc(0, 0, 2.6, palette["counter.green"]);
            break;
        case Sign::Dismounted:
            DrawRising(plate, ink, 1.2);
            DrawFalling(plate, ink, 1.2);
            plate.Box(kLeft, -0.8, kWidth, 1.6, ink);
            break;
        case Sign::Engineer:
            plate.Box(-4, -2.4, 8, 1.4, ink);
            for (const double x : {-4.0, -0.7, 2.6})
                plate.Box(x, -2.4, 1.4, 5, ink);
            break;
        case Sign::Leader: DrawStar(plate, palette["counter.star"]); break;
        case Sign::LightHorse: DrawRising(plate, ink, 1.3); break;
        case Sign::Lancer:
            DrawRising(plate, ink, 1.3);
            plate.Area({{kLeft + 1, kTop + 1}, {kLeft + 6, kTop + 1}, {kLeft + 1, kTop + 5}},
                       palette["flag.red"]);
            break;
        case Sign::Dragoon:
            DrawRising(plate, ink, 1.3);
            plate.Box(kLeft, kTop + kHeight - 2.2, kWidth, 2.2, ink);
            break;
        case Sign::GuardHorse: plate.Disc(-3.6, -1.8, 2, palette["counter.star"]); [[fallthrough]];
        case Sign::HeavyHorse: FillBelow(plate, ink); break;
        case Sign::HorseGun: DrawRising(plate, ink, 1.2); [[fallthrough]];
        case Sign::Gun: plate.Disc(0, 0, 3.0, ink); break;
        case Sign::Rocket:
            plate.Area({{0, kTop + 1}, {2.6, 0}, {-2.6, 0}}, ink);
            plate.Box(-0.6, 0, 1.3, 4, ink);
            break;
        case Sign::Wagon:
            plate.Disc(-3, 1, 2.4, ink);
            plate.Disc(3, 1, 2.4, ink);
            plate.Box(-5, -2.4, 10, 1.6, ink);
            break;
    }
}

}  // namespace

std::vector<Tile> PaintSmallUnits(const Studio& studio) {
    std::vector<Tile> tiles;
    for (const Sign sign : kSigns) {
        Plate plate(kRoom);
        if (sign != Sign::None) DrawBox(plate, studio.palette, studio.palette["counter.paper"]);
        DrawSign(plate, studio.palette, sign);
        tiles.push_back(plate.Pressed());
    }
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
