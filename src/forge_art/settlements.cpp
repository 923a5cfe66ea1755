#include "forge_art/settlements.h"

#include <array>

#include "forge_art/color.h"
#include "forge_art/houses.h"
#include "forge_art/trees.h"

namespace varnstride::art {
namespace {

const QRect kRoom(-26, -42, 56, 70);
const QRect kSmallRoom(-12, -18, 26, 32);

struct HouseAt {
    double x, y, length;
    Roof roof;
    bool gabled;
};

using Row = std::array<HouseAt, 6>;

// From the back to the front.
constexpr std::array<Row, 3> kVillages = {{
    {{{0.5, -12, 6, Roof::Red, true},
      {-11, -4, 8, Roof::Red, false},
      {11, -5, 7, Roof::Slate, true},
      {-10.5, 10, 7, Roof::Slate, true},
      {11, 11, 8, Roof::Red, false},
      {0, 20, 6, Roof::Red, true}}},
    {{{-0.5, -13, 6, Roof::Slate, false},
      {-11, -5, 7, Roof::Red, true},
      {11, -3, 9, Roof::Red, false},
      {-11, 11, 8, Roof::Red, false},
      {10.5, 10, 6.4, Roof::Red, true},
      {0.5, 20, 6, Roof::Thatch, false}}},
    {{{0, -12, 6, Roof::Red, true},
      {-11.5, -3, 8, Roof::Slate, false},
      {11, -6, 6.4, Roof::Red, true},
      {-11, 9, 6.4, Roof::Red, true},
      {11, 11, 9, Roof::Thatch, false},
      {-0.5, 20, 7, Roof::Red, false}}},
}};

void Draw(Plate& plate, const Palette& palette, const HouseAt& house) {
    const auto draw = house.gabled ? DrawGabledHouse : DrawHouse;
    draw(plate, palette, house.x, house.y, house.length, house.roof);
}

std::vector<Plant> Gardens(int variant) {
    Chance chance(static_cast<std::uint32_t>(variant) + 401);
    std::vector<Plant> plants;
    for (const double side : {-1.0, 1.0}) {
        plants.push_back({side * chance.Between(13, 16), chance.Between(1, 4), 2.4, 0.3});
        plants.push_back({side * chance.Between(4.5, 6), chance.Between(-1, 1) * 2 + 13, 1.9, 0.1});
    }
    return plants;
}

}  // namespace

Tile PaintVillage(const Studio& studio, int variant) {
    Plate plate(kRoom);
    Chance chance(static_cast<std::uint32_t>(variant) + 400);
    DrawPlants(plate, studio.palette, Gardens(variant), chance);
    for (const HouseAt& house : kVillages[static_cast<std::size_t>(variant)])
        Draw(plate, studio.palette, house);
    return plate.Pressed();
}

Tile PaintChurch(const Studio& studio) {
    Plate plate(kRoom);
    Chance chance(450);
    DrawPlants(plate, studio.palette, {{-13, -3, 3.2, 0.6}, {13, -4, 2.6, 0.4}}, chance);
    DrawChurch(plate, studio.palette, -1, 3);
    DrawWall(plate, studio.palette, -13, 12, -3, 12);
    DrawWall(plate, studio.palette, 3, 12, 13, 12);
    DrawPlants(plate, studio.palette, {{-12, 10, 2.4, 0.2}}, chance);
    DrawGabledHouse(plate, studio.palette, 10, 19, 6, Roof::Red);
    return plate.Pressed();
}

Tile PaintBuilding(const Studio& studio, int variant) {
    const Palette& palette = studio.palette;
    Plate plate(kRoom);
    Chance chance(static_cast<std::uint32_t>(variant) + 460);
    switch (variant) {
        case 0:
            DrawPlants(plate, palette, {{-13, -8, 3.4, 0.5}, {14, -7, 3.0, 0.3}}, chance);
            DrawWalledFarm(plate, palette, 0, 8, Roof::Red);
            break;
        case 1:
            DrawPlants(plate, palette, {{-13, -6, 3.6, 0.6}, {13, -6, 3.6, 0.6}}, chance);
            DrawManor(plate, palette, 0, 4);
            break;
        case 2:
            DrawWall(plate, palette, -12, -8, 12, -8);
            DrawPlants(plate, palette, {{-6, -1, 2.4, 0.2}, {5, 0, 2.4, 0.2}, {-1, 5, 2.4, 0.2}},
                       chance);
            DrawWall(plate, palette, -12, 11, 12, 11);
            break;
        case 3: DrawWindmill(plate, palette, 0, 8); break;
        default:
            DrawHouse(plate, palette, -2, 4, 16, Roof::Thatch);
            DrawHaystack(plate, palette, 9, 10);
            DrawHaystack(plate, palette, 2, 13);
    }
    return plate.Pressed();
}

Tile PaintCamp(const Studio& studio, int variant) {
    Plate plate(kRoom);
    Chance chance(static_cast<std::uint32_t>(variant) + 480);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const double x = -11 + column * 10 + (row % 2) * 3 + chance.Between(-0.6, 0.6);
            DrawTent(plate, studio.palette, x, -7 + row * 10, 4.2);
        }
    }
    return plate.Pressed();
}

Tile PaintSmallVillage(const Studio& studio, int variant) {
    Plate plate(kSmallRoom);
    plate.Brush().scale(0.62, 0.62);
    const Row& row = kVillages[static_cast<std::size_t>(variant)];
    for (const std::size_t i : {0U, 1U, 2U, 4U}) {
        HouseAt house = row[i];
        house.x *= 0.72;
        house.y = house.y * 0.72 + 2;
        Draw(plate, studio.palette, house);
    }
    return plate.Pressed();
}

Tile PaintSmallBuilding(const Studio& studio, bool hasTower) {
    Plate plate(kSmallRoom);
    plate.Brush().scale(0.6, 0.6);
    if (hasTower) {
        DrawChurch(plate, studio.palette, 0, 8);
    } else {
        DrawWalledFarm(plate, studio.palette, 0, 7, Roof::Red);
    }
    return plate.Pressed();
}

Tile PaintSmallCamp(const Studio& studio) {
    Plate plate(kSmallRoom);
    DrawTent(plate, studio.palette, -3, -1, 2.4);
    DrawTent(plate, studio.palette, 3, 0, 2.4);
    DrawTent(plate, studio.palette, 0, 5, 2.4);
    return plate.Pressed();
}

}  // namespace varnstride::art
