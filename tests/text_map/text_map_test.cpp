// The battlefield as a terminal shows it.
#include "platform/headless/text_map.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "model/tile_sheets.h"
#include "support/field.h"

namespace varnstride {
namespace {

TEST(TextMap, ShowsGroundMarksAndUnits) {
    FieldPlan plan;
    plan.columns = 1;
    plan.paint = [](Cell at, MapCell& cell) {
        constexpr int kTiles[] = {5, 1, 3, 20, 42, 64, 86, 40};
        if (at.y == 0 && at.x < 8) cell.terrainTile = kTiles[at.x];
        if (at == Cell{3, 0}) cell.roadTile = kBridgeEastWest;
        if (at == Cell{1, 2}) cell.objective = 3;
        if (at == Cell{2, 2}) cell.objective = 8;
        if (at == Cell{4, 3}) cell.overlayTile = 60;
    };
    Field field(plan);
    field.Add(kFrench, 1, 1, MakeUnit(UnitType::GuardInfantry));
    field.Add(kPrussian, 1, 1, MakeUnit(UnitType::Lancers));
    Unit hidden = MakeUnit(UnitType::HorseArtillery);
    field.Add(kPrussian, 1, 2, hidden);
    for (UnitId seen : {UnitId{kFrench, 1}, UnitId{kPrussian, 1}})
        field.game.At(seen).visible = 1;
    EXPECT_EQ(DrawTextMap(field.game, false),
              "  0 . c ~ H f s t b\n"
              "  1  . FI. . . . . .\n"
              "  2 . .3.x. . . . .\n"
              "  3  . . . . | . . .\n"
              "  4 . PC. PG. . . .\n"
              "  5  . . . . . . . .\n");
    EXPECT_NE(DrawTextMap(field.game, true).find("  4 . PC. . . . . .\n"), std::string::npos);
}

TEST(TextMap, NeverLeavesTheTerminal) {
    for (int columns : {5, 6, 15}) {
        FieldPlan plan;
        plan.columns = columns;
        const Field field(plan);
        std::istringstream lines(DrawTextMap(field.game, false) + TextMapLegend());
        for (std::string line; std::getline(lines, line);)
            EXPECT_LE(line.size(), 100U) << line;
    }
}

TEST(TextMap, NamesAPlaceByItsLabel) {
    FieldPlan plan;
    plan.paint = [](Cell at, MapCell& cell) {
        if (at == Cell{9, 3}) cell.labelIndex = 2;
        if (at == Cell{18, 3}) cell.labelIndex = 3;
    };
    Field field(plan);
    const std::string_view label = "  Soleilmont wood ";
    label.copy(field.game.labels[2].labelText.data(), label.size());
    EXPECT_EQ(PlaceName(field.game, 1), "area 1");
    EXPECT_EQ(PlaceName(field.game, 2), "Soleilmont wood");
    EXPECT_EQ(PlaceName(field.game, 3), "area 3") << "an empty label names nothing";
}

}  // namespace
}  // namespace varnstride
