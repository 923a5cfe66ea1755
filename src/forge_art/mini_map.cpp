#include "forge_art/mini_map.h"

#include <array>

#include "forge_art/color.h"
#include "forge_art/ground.h"

namespace varnstride::art {
namespace {

constexpr int kBands = 18;
constexpr int kRoadMark = 11;

// The tiles behind the bands, from 18 on.
constexpr std::array<const char*, 15> kColors = {
    "army.british",  // 18
    "army.french",  "army.prussian", "army.russian", "army.spanish",  "army.austrian",
    "mini.orchard",  // 24
    "mini.marsh",   "roof.red",      "mini.wood",    "mini.building", "water.river",
    "mini.burning",  // 30
    "mini.hidden",  "mini.objective"};

Tile Square(QRgb color) {
    Tile tile(QRect(-2, -2, 4, 4));
    for (int y = -2; y < 2; ++y)
        for (int x = -2; x < 2; ++x)
            tile.Set(x, y, color);
    return tile;
}

// What must be found at a glance has a dark rim to the south-east.
Tile Framed(QRgb color) {
    Tile tile = Square(color);
    for (int i = -2; i < 2; ++i) {
        tile.Set(1, i, Scaled(color, 0.6));
        tile.Set(i, 1, Scaled(color, 0.6));
    }
    return tile;
}

bool IsMan(int tile) {
    return (tile >= 18 && tile <= 23) || tile == 32;
}

}  // namespace

std::vector<Tile> PaintMiniMap(const Studio& studio) {
    std::vector<Tile> tiles;
    for (int band = 0; band < kBands; ++band) {
        tiles.push_back(
            Square(band == kRoadMark ? studio.palette["road.edge"] : BandColor(studio, band)));
    }
    for (const char* const name : kColors) {
        const QRgb color = studio.palette[name];
        tiles.push_back(IsMan(static_cast<int>(tiles.size())) ? Framed(color) : Square(color));
    }
    return tiles;
}

}  // namespace varnstride::art
