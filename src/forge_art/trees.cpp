#include "forge_art/trees.h"

#include <algorithm>

#include "forge_art/color.h"

namespace varnstride::art {
namespace {

constexpr double kLift = 0.75;  // how far the crown stands above its foot, in radii
constexpr double kDetailed = 2.2;

void DrawShadow(Plate& plate, const Plant& plant, QRgb color) {
    plate.Oval(plant.x + plant.radius * 0.55, plant.y + plant.radius * 0.15, plant.radius * 1.05,
               plant.radius * 0.72, color);
}

// Clusters of leaves: lighter towards the light, darker away from it.
void DrawLeaves(Plate& plate, const Plant& plant, double y, QRgb leaf, Chance& chance) {
    for (int i = 0; i < 7; ++i) {
        const double across = chance.Between(-0.62, 0.62);
        const double down = chance.Between(-0.62, 0.62);
        if (across * across + down * down > 0.45) continue;
        const double light = 1.08 - 0.22 * (across + down);
        plate.Disc(plant.x + across * plant.radius, y + down * plant.radius, plant.radius * 0.24,
                   Scaled(leaf, light));
    }
}

void DrawCrown(Plate& plate, const Palette& palette, const Plant& plant, Chance& chance) {
    const QRgb leaf = Mix(palette["leaf.light"], palette["leaf.dark"], plant.kind);
    const double y = plant.y - plant.radius * kLift;
    const double r = plant.radius;
    plate.Disc(plant.x, y, r, Mix(leaf, palette["leaf.line"], 0.78));
    const double rim = r > kDetailed ? 0.75 : 0.4;
    plate.Disc(plant.x, y, r - rim, Scaled(leaf, 0.84));
    plate.Disc(plant.x - r * 0.14, y - r * 0.16, (r - rim) * 0.80, leaf);
    plate.Disc(plant.x - r * 0.30, y - r * 0.34, r * 0.40, Scaled(leaf, 1.16));
    if (r > kDetailed) DrawLeaves(plate, plant, y, leaf, chance);
}

}  // namespace

void DrawPlants(Plate& plate, const Palette& palette, std::vector<Plant> plants, Chance& chance,
                const char* shadow) {
    std::stable_sort(plants.begin(), plants.end(),
                     [](const Plant& a, const Plant& b) { return a.y < b.y; });
    for (const Plant& plant : plants)
        DrawShadow(plate, plant, palette[shadow]);
    for (const Plant& plant : plants)
        DrawCrown(plate, palette, plant, chance);
}

void DrawPoplar(Plate& plate, const Palette& palette, double x, double y) {
    const QRgb leaf = palette["leaf.dark"];
    plate.Oval(x + 2.4, y + 0.4, 3.0, 1.2, palette["shadow.grass"]);
    plate.Oval(x, y - 5, 2.2, 5.4, Mix(leaf, palette["leaf.line"], 0.78));
    plate.Oval(x, y - 5, 1.6, 4.7, Scaled(leaf, 0.9));
    plate.Oval(x - 0.5, y - 5.8, 0.8, 3.4, Scaled(leaf, 1.2));
}

}  // namespace varnstride::art
