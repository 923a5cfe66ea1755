#include "forge_art/woods.h"

#include <algorithm>
#include <cmath>

#include "forge_art/color.h"
#include "forge_art/trees.h"

namespace varnstride::art {
namespace {

// Room for crowns that reach out of the cell, above all upwards.
QRect PlantArea(const HexShape& hex) {
    const int reach = hex.width / 3;
    return QRect(-hex.width / 2 - reach, hex.Top() - reach, hex.width + 2 * reach,
                 hex.Bottom() - hex.Top() + 2 * reach);
}

// Places that repeat with the cells, so many a row and as many rows a cell: no gap shows where
// woods of several cells meet.
std::vector<QPointF> Places(const HexShape& hex, int perRow) {
    const double step = static_cast<double>(hex.width) / perRow;
    const double rise = static_cast<double>(hex.rowStep) / perRow;
    std::vector<QPointF> places;
    for (int row = -2 * perRow; row <= 2 * perRow; ++row) {
        for (int column = -3 * perRow; column <= 3 * perRow; ++column) {
            const double x = (column + 0.5 + row * 0.5) * step;
            const double y = (row + 0.5) * rise;
            if (hex.Contains(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y)))) {
                places.emplace_back(x, y);
            }
        }
    }
    return places;
}

double DistanceToSegment(QPointF point, QPointF end) {
    const double length = end.x() * end.x() + end.y() * end.y();
    const double along = (point.x() * end.x() + point.y() * end.y()) / length;
    const QPointF nearest = end * std::clamp(along, 0.0, 1.0);
    return std::hypot(point.x() - nearest.x(), point.y() - nearest.y());
}

// Whether a tree would stand on the road or hide it: the crown leans over what lies behind.
bool BlocksRide(const HexShape& hex, Ride ride, const Plant& plant) {
    const double scale = hex.width / 32.0;
    for (int side = 0; side < kSideCount; ++side) {
        if ((ride.sides >> side & 1) == 0) continue;
        const QPointF way = hex.Gate(side) * 1.2;
        const QPointF foot(plant.x, plant.y);
        const QPointF crown(plant.x, plant.y - plant.radius);
        if (DistanceToSegment(foot, way) < 4.0 * scale) return true;
        if (DistanceToSegment(crown, way) < plant.radius * 0.6 + 2.6 * scale) return true;
    }
    return false;
}

struct WoodKind {
    int perRow;  // places a row of the cell
    int smallPerRow;
    double share;  // of the places that carry a tree
    double leastRadius;
    double mostRadius;
    double darkest;
    double lightest;
    bool hasFloor;  // undergrowth between the trunks
};

constexpr WoodKind kWoodland = {4, 3, 0.66, 3.2, 5.6, 0.85, 0.0, false};
constexpr WoodKind kForest = {4, 3, 1.0, 4.2, 6.4, 1.15, 0.25, true};

std::vector<Plant> Planted(const HexShape& hex, const WoodKind& kind, Ride ride, Chance& chance) {
    const bool isSmall = hex.width < kNormalHex.width;
    const double scale = isSmall ? 0.62 : 1.0;
    const double stray = isSmall ? 1.3 : 3.1;
    std::vector<Plant> plants;
    for (const QPointF& place : Places(hex, isSmall ? kind.smallPerRow : kind.perRow)) {
        const Plant plant = {place.x() + chance.Between(-stray, stray),
                             place.y() + chance.Between(-stray, stray),
                             chance.Between(kind.leastRadius, kind.mostRadius) * scale,
                             chance.Between(kind.lightest, kind.darkest)};
        const bool stands = chance.Unit() < kind.share;
        if (stands && !BlocksRide(hex, ride, plant)) plants.push_back(plant);
    }
    return plants;
}

Tile PaintWood(const Studio& studio, const HexShape& hex, const WoodKind& kind, Ride ride,
               int variant) {
    Plate plate(PlantArea(hex));
    Chance chance(static_cast<std::uint32_t>(variant * 64 + ride.sides) + 101);
    const std::vector<Plant> plants = Planted(hex, kind, ride, chance);
    if (kind.hasFloor) {
        for (const Plant& plant : plants)
            plate.Disc(plant.x, plant.y - 1, plant.radius * 1.5, studio.palette["wood.floor"]);
    }
    DrawPlants(plate, studio.palette, plants, chance,
               kind.hasFloor ? "shadow.wood" : "shadow.grass");
    return plate.Pressed();
}

}  // namespace

Tile PaintWoodland(const Studio& studio, const HexShape& hex, Ride ride, int variant) {
    return PaintWood(studio, hex, kWoodland, ride, variant);
}

Tile PaintForest(const Studio& studio, const HexShape& hex, Ride ride, int variant) {
    return PaintWood(studio, hex, kForest, ride, variant + 40);
}

Tile PaintOrchard(const Studio& studio, const HexShape& hex, int variant) {
    Plate plate(PlantArea(hex));
    Chance chance(static_cast<std::uint32_t>(variant) + 211);
    const double scale = hex.width / 32.0;
    std::vector<Plant> plants;
    int gap = chance.Below(9);  // a tree that has died
    for (const QPointF& place : Places(hex, 3)) {
        if (gap-- == 0) continue;
        plants.push_back({place.x() + chance.Between(-0.4, 0.4), place.y() + 1,
                          chance.Between(2.8, 3.4) * scale, chance.Between(0, 0.35)});
    }
    DrawPlants(plate, studio.palette, plants, chance);
    return plate.Pressed();
}

Tile PaintVineyard(const Studio& studio, const HexShape& hex, int variant) {
    const Palette& palette = studio.palette;
    Tile tile(PlantArea(hex));
    const int period = hex.width / 4;
    for (int y = hex.Top(); y < hex.Bottom(); ++y) {
        for (int x = -hex.width / 2; x < hex.width / 2; ++x) {
            if (!hex.Contains(x, y)) continue;
            const int place = ((x + 2 * y) % period + period) % period;
            const double gap = NoiseAt(x / 2, y, static_cast<std::uint32_t>(variant) + 5);
            if (place < 3 && gap > 0.22) {
                const QRgb leaf = palette[place == 0 ? "vine.light" : "vine.leaf"];
                tile.Set(x, y, place == 2 ? palette["vine.shade"] : leaf);
            }
        }
    }
    return tile;
}

Tile PaintScrub(const Studio& studio, const HexShape& hex, int variant) {
    Plate plate(PlantArea(hex));
    Chance chance(static_cast<std::uint32_t>(variant) + 307);
    const double scale = hex.width / 32.0;
    const double reach = hex.width * 0.4;
    std::vector<Plant> bushes;
    for (int i = 0; i < 9; ++i) {
        bushes.push_back({chance.Between(-reach, reach), chance.Between(-reach, reach * 1.1),
                          chance.Between(1.3, 2.7) * scale, chance.Between(0, 0.6)});
    }
    for (int i = 0; i < 12; ++i) {
        const double x = chance.Between(-reach, reach);
        const double y = chance.Between(-reach, reach);
        plate.Line(x, y, x + 2.4 * scale, y + 1.2 * scale, 1.0 * scale,
                   studio.palette["scrub.line"]);
    }
    DrawPlants(plate, studio.palette, bushes, chance);
    return plate.Pressed();
}

}  // namespace varnstride::art
