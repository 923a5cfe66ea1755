#include "forge_art/terrain.h"

#include <array>

#include "forge_art/color.h"
#include "forge_art/hex_shape.h"
#include "forge_art/settlements.h"
#include "forge_art/wild_ground.h"
#include "forge_art/woods.h"
#include "model/tile_sheets.h"

namespace varnstride::art {
namespace {

using Paint = Tile (*)(const Studio& studio, const HexShape& hex, int variant);

// A row paints the tiles first to last; the variant counts from 0.
struct TerrainRow {
    int first;
    int last;
    Paint paint;
};

bool IsNormal(const HexShape& hex) {
    return hex.width == kNormalHex.width;
}

Tile Nothing(const Studio&, const HexShape&, int) {
    return Tile();
}

Tile Scrub(const Studio& studio, const HexShape& hex, int variant) {
    return PaintScrub(studio, hex, variant);
}

Tile Flowers(const Studio& studio, const HexShape& hex, int variant) {
    return PaintFlowers(studio, hex, variant);
}

Tile Field(const Studio& studio, const HexShape& hex, int) {
    return PaintSheaves(studio, hex);
}

Tile Reeds(const Studio& studio, const HexShape& hex, int variant) {
    return PaintReeds(studio, hex, variant);
}

Tile Ripples(const Studio& studio, const HexShape& hex, int variant) {
    return PaintRipples(studio, hex, variant);
}

Tile Lake(const Studio& studio, const HexShape& hex, int) {
    return PaintLake(studio, hex);
}

Tile Marsh(const Studio& studio, const HexShape& hex, int variant) {
    return PaintMarsh(studio, hex, false, variant);
}

Tile Swamp(const Studio& studio, const HexShape& hex, int variant) {
    return PaintMarsh(studio, hex, true, variant);
}

Tile Woodland(const Studio& studio, const HexShape& hex, int variant) {
    return PaintWoodland(studio, hex, Ride{}, variant);
}

template <std::size_t count>
Ride RideOf(const std::array<WoodRide, count>& rides, int variant) {
    return Ride{static_cast<int>(rides[static_cast<std::size_t>(variant)].sides)};
}

Tile WoodlandRide(const Studio& studio, const HexShape& hex, int variant) {
    return PaintWoodland(studio, hex, RideOf(kWoodlandRides, variant), 0);
}

Tile Forest(const Studio& studio, const HexShape& hex, int variant) {
    return PaintForest(studio, hex, Ride{}, variant);
}

Tile ForestRide(const Studio& studio, const HexShape& hex, int variant) {
    return PaintForest(studio, hex, RideOf(kForestRides, variant), 0);
}

Tile Orchard(const Studio& studio, const HexShape& hex, int variant) {
    return PaintOrchard(studio, hex, variant);
}

Tile Vineyard(const Studio& studio, const HexShape& hex, int variant) {
    return PaintVineyard(studio, hex, variant);
}

Tile Village(const Studio& studio, const HexShape& hex, int variant) {
    return IsNormal(hex) ? PaintVillage(studio, variant) : PaintSmallVillage(studio, variant);
}

Tile Building(const Studio& studio, const HexShape& hex, int variant) {
    return IsNormal(hex) ? PaintBuilding(studio, variant) : PaintSmallBuilding(studio, false);
}

Tile LateBuilding(const Studio& studio, const HexShape& hex, int variant) {
    constexpr std::array<int, 6> looks = {1, 0, 0, 3, 4, 2};
    return Building(studio, hex, looks[static_cast<std::size_t>(variant)]);
}

Tile Church(const Studio& studio, const HexShape& hex, int) {
    return IsNormal(hex) ? PaintChurch(studio) : PaintSmallBuilding(studio, true);
}

Tile Quarry(const Studio& studio, const HexShape& hex, int) {
    return PaintQuarry(studio, hex);
}

Tile Rocks(const Studio& studio, const HexShape& hex, int variant) {
    return PaintRocks(studio, hex, variant);
}

Tile Camp(const Studio& studio, const HexShape& hex, int variant) {
    return IsNormal(hex) ? PaintCamp(studio, variant) : PaintSmallCamp(studio);
}

// Later rows paint over earlier ones. Numbers without a row show nothing.
constexpr std::array<TerrainRow, 28> kRows = {{
    {0, 0, Scrub},    // open ground with a few bushes
    {1, 1, Field},    // the crop itself is part of the ground
    {2, 2, Flowers},  // open meadow
    {3, 3, Reeds},    // stream; the water is a feature
    {4, 4, Lake},
    {5, 5, Nothing},
    {6, 8, Orchard},
    {9, 11, Scrub},
    {12, 14, Marsh},
    {15, 17, Woodland},
    {18, 23, Ripples},  // river; the water is a
                        // feature
    {24, 26, Village},
    {27, 29, Vineyard},
    {30, 35, WoodlandRide},
    {36, 37, Flowers},
    {38, 38, Quarry},
    {39, 41, Building},
    {42, 43, Forest},
    {44, 47, ForestRide},
    {48, 53, Nothing},  // become 5 when a map is opened
    {54, 61, WoodlandRide},
    {63, 65, Swamp},
    {66, 71, Rocks},
    {72, 75, WoodlandRide},
    {76, 77, Reeds},
    {84, 89, LateBuilding},
    {86, 86, Church},
    {99, 101, Camp},
}};

// The first tile number of a row counts its variants through all rows of the same recipe.
int VariantOf(const TerrainRow& row, int number) {
    int variant = number - row.first;
    for (const TerrainRow& other : kRows) {
        if (&other == &row) break;
        if (other.paint == row.paint) variant += other.last - other.first + 1;
    }
    return variant;
}

std::vector<Tile> PaintAll(const Studio& studio, const HexShape& hex) {
    std::vector<Tile> tiles(kTerrainTiles);
    for (const TerrainRow& row : kRows) {
        for (int number = row.first; number <= row.last; ++number) {
            tiles[static_cast<std::size_t>(number)] =
                row.paint(studio, hex, VariantOf(row, number));
        }
    }
    return tiles;
}

// Snow lies on what faces the sky and takes the colour out of the rest.
Tile Frosted(Tile tile, const Palette& palette) {
    const Tile before = tile;
    const QRgb snow = palette["snow"];
    tile.Recolor([&](QRgb color, int x, int y) {
        const bool facesSky = before.IsEmptyAt(x, y - 1) || before.IsEmptyAt(x - 1, y - 1);
        const int light = Lightness(color);
        const QRgb grey = Mix(color, qRgb(light, light, light), 0.6);
        return Mix(grey, snow, facesSky ? 0.85 : (light > 120 ? 0.62 : 0.28));
    });
    return tile;
}

}  // namespace

std::vector<Tile> PaintTerrain(const Studio& studio) {
    return PaintAll(studio, kNormalHex);
}

std::vector<Tile> PaintFrozenTerrain(const Studio& studio) {
    std::vector<Tile> tiles = PaintAll(studio, kNormalHex);
    for (Tile& tile : tiles)
        tile = Frosted(tile, studio.palette);
    return tiles;
}

std::vector<Tile> PaintSmallTerrain(const Studio& studio) {
    return PaintAll(studio, kSmallHex);
}

}  // namespace varnstride::art
