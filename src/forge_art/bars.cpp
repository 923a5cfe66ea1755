#include "forge_art/bars.h"

#include <array>

#include "forge_art/color.h"
#include "forge_art/plate.h"

namespace varnstride::art {
namespace {

constexpr int kBarTop = -14;
constexpr int kBarHeight = 26;
constexpr int kMoraleX = -34;
constexpr int kAmmunitionX = 32;

void FillBox(Tile& tile, QRect box, QRgb color) {
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x)
            tile.Set(x, y, color);
}

}  // namespace

std::vector<Tile> PaintMoraleBar(const Studio& studio, const char* color) {
    const Palette& palette = studio.palette;
    constexpr std::array<double, 5> fillings = {1.0, 0.82, 0.62, 0.42, 0.22};
    std::vector<Tile> tiles;
    for (const double filling : fillings) {
        Tile tile(QRect(kMoraleX - 1, kBarTop - 2, 8, kBarHeight + 4));
        FillBox(tile, {kMoraleX, kBarTop, 5, kBarHeight}, palette["unit.line"]);
        FillBox(tile, {kMoraleX + 1, kBarTop + 1, 3, kBarHeight - 2}, palette["bar.empty"]);
        const int height = static_cast<int>((kBarHeight - 2) * filling);
        const QRgb fluid = filling < 0.3 ? palette["bar.low"] : palette[color];
        const int top = kBarTop + kBarHeight - 1 - height;
        FillBox(tile, {kMoraleX + 1, top, 3, height}, fluid);
        FillBox(tile, {kMoraleX + 1, top, 1, height}, Scaled(fluid, 1.25));
        FillBox(tile, {kMoraleX + 3, top, 1, height}, Scaled(fluid, 0.78));
        tiles.push_back(tile);
    }
    return tiles;
}

std::vector<Tile> PaintAmmunition(const Studio& studio) {
    const Palette& palette = studio.palette;
    constexpr int kBalls = 4;
    std::vector<Tile> tiles;
    for (int count = 1; count <= kBalls; ++count) {
        Plate plate(QRect(kAmmunitionX - 2, kBarTop - 2, 10, kBarHeight + 6));
        for (int i = 0; i < count; ++i) {
            const double y = kBarTop + kBarHeight - 3 - i * 5.6;
            plate.Disc(kAmmunitionX + 2.5, y, 2.9, palette["unit.line"]);
            plate.Disc(kAmmunitionX + 2.5, y, 2.1, palette[count == 1 ? "bar.low" : "bar.iron"]);
            plate.Disc(kAmmunitionX + 1.8, y - 0.8, 0.9, palette["bar.gleam"]);
        }
        tiles.push_back(plate.Pressed());
    }
    return tiles;
}

std::vector<Tile> PaintBases(const Studio& studio) {
    const Palette& palette = studio.palette;
    constexpr std::array<const char*, 6> cloths = {"army.british",  "base.prussian", "army.french",
                                                   "base.prussian", "army.austrian", "base.spent"};
    std::vector<Tile> tiles;
    for (const char* const name : cloths) {
        const QRgb cloth = palette[name];
        Plate plate(QRect(-40, -18, 84, 50));
        plate.Oval(3, 13, 37, 13, palette["shadow.unit"]);
        plate.Oval(0, 11, 37, 14, palette["unit.line"]);
        plate.Oval(0, 10.4, 36, 13.4, Scaled(cloth, 0.62));
        plate.Oval(0, 7, 37, 14, palette["unit.line"]);
        plate.Oval(0, 7, 36, 13.2, Scaled(cloth, 1.12));
        plate.Oval(0, 7, 32.6, 11.0, Scaled(cloth, 0.7));
        plate.Oval(0, 7.2, 32.0, 10.6, palette["base.grass"]);
        plate.Oval(1.6, 8, 28.5, 8.6, Scaled(palette["base.grass"], 1.05));
        tiles.push_back(plate.Pressed());
    }
    return tiles;
}

}  // namespace varnstride::art
