// Trees and bushes, one at a time: a crown lit from the north-west and its shadow to the
// south-east. Woods, orchards, gardens and villages plant them.
#pragma once

#include <vector>

#include "forge_art/chance.h"
#include "forge_art/palette.h"
#include "forge_art/plate.h"

namespace varnstride::art {

struct Plant {
    double x, y;    // where it stands
    double radius;  // of the crown
    double kind;    // 0 the lighter leaf to 1 the darker
};

// Draws shadows, of a colour of the palette, and then the crowns from the back to the front, so
// that a clump reads as one. Detail is left out of crowns too small to show it.
void DrawPlants(Plate& plate, const Palette& palette, std::vector<Plant> plants, Chance& chance,
                const char* shadow = "shadow.grass");

// Tall and narrow trees, as along roads and round farms.
void DrawPoplar(Plate& plate, const Palette& palette, double x, double y);

}  // namespace varnstride::art
