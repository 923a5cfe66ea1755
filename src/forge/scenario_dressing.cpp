#include "forge/scenario_dressing.h"

#include <cstdint>
#include <span>

#include "forge/hex_walk.h"
#include "forge/scenario_roads.h"
#include "model/tile_sheets.h"

namespace varnstride {
namespace {

constexpr int kFieldTile = 1;
constexpr int kGrassPictures = 3;  // of a band's six; the others are crops
constexpr int kFirstForest = 42;
constexpr int kLastForest = 47;
constexpr int kClosedForests = 2;
constexpr int kFirstWoodland = 15;
constexpr int kLastWoodland = 17;

int Scattered(int x, int y, std::uint32_t salt, int count) {
    std::uint32_t mixed = static_cast<std::uint32_t>(x) * 0x9E3779B1U +
                          static_cast<std::uint32_t>(y) * 0x85EBCA77U + salt;
    mixed = (mixed ^ mixed >> 15) * 0x2C1B3C6DU;
    mixed = (mixed ^ mixed >> 13) * 0x297A2D39U;
    return static_cast<int>((mixed ^ mixed >> 16) % static_cast<std::uint32_t>(count));
}

// A peasant's strip spans a few cells, so neighbours mostly bear the same crop.
int CropOf(Cell place) {
    return kGrassPictures + Scattered((place.x + place.y / 4) / 2, place.y / 3, 11, kGrassPictures);
}

void ChooseGround(MapCell& cell, Cell place) {
    const int band = cell.groundTile / kGroundTilesPerBand;
    const int picture = cell.terrainTile == kFieldTile
                            ? CropOf(place)
                            : Scattered(place.x, place.y, 23, kGrassPictures);
    cell.groundTile = band * kGroundTilesPerBand + picture;
}

// The ride that keeps free just the sides of a road, or else the last one, which keeps them all.
int RideFor(std::span<const WoodRide> rides, unsigned sides) {
    for (const WoodRide& ride : rides) {
        if (ride.sides == sides) return ride.tile;
    }
    return rides.back().tile;
}

bool IsWithin(int tile, int first, int last) {
    return tile >= first && tile <= last;
}

void ChooseWood(MapCell& cell) {
    const bool forest = IsWithin(cell.terrainTile, kFirstForest, kLastForest);
    const bool woodland = IsWithin(cell.terrainTile, kFirstWoodland, kLastWoodland);
    if (!forest && !woodland) return;
    const bool road = cell.featureTile > 0 && cell.featureTile < kStream;
    const unsigned sides = static_cast<unsigned>(cell.featureTile) & kAllSides;
    if (road && forest) {
        cell.terrainTile = RideFor(kForestRides, sides);
    } else if (road) {
        cell.terrainTile = RideFor(kWoodlandRides, sides);
    } else if (forest) {
        cell.terrainTile = kFirstForest + (cell.terrainTile - kFirstForest) % kClosedForests;
    }
}

unsigned LowerSides(const ScenarioBuild& build, Cell place) {
    const int band = CellOf(build.file, place).groundTile / kGroundTilesPerBand;
    unsigned sides = 0;
    for (int side = 0; side < kSides; ++side) {
        const Cell next = Beyond(place, side);
        if (!build.Holds(next)) continue;
        const int other = CellOf(build.file, next).groundTile / kGroundTilesPerBand;
        if (other < band) sides |= SideBit(side);
    }
    return sides;
}

void ChooseSlope(ScenarioBuild& build, Cell place) {
    MapCell& cell = build.At(place);
    if (cell.overlayTile != kNoOverlay || IsLake(cell)) return;
    if (const unsigned lower = LowerSides(build, place)) cell.overlayTile = SlopeTile(lower);
}

}  // namespace

void DressGround(ScenarioBuild& build) {
    if (!build.HasGrid()) return;
    ForEachCell(build.file, [&](Cell place) {
        ChooseGround(build.At(place), place);
        ChooseWood(build.At(place));
        ChooseSlope(build, place);
    });
}

}  // namespace varnstride
