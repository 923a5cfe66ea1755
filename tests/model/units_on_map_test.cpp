// Who is on the map, and that the slots' marks and the units never part company.
#include "model/units_on_map.h"

#include <gtest/gtest.h>

#include "support/field.h"

namespace varnstride {
namespace {

const Unit kLineUnit = MakeUnit(UnitType::LineInfantry);

TEST(UnitsOnMap, AUnitDueThisTurnIsThereOnlyOnceItIsPlaced) {
    Field field({});
    const UnitId due{kPrussian, 7};
    field.game.At(due) = kLineUnit;
    field.game.At(due).arrivalTurn = field.game.state.gameTurn;
    field.game.At(due).SetPlace({3, 3});  // where it will enter
    FindStandingUnits(field.game, 0);
    EXPECT_FALSE(IsOnMap(field.game, due));
    EXPECT_EQ(UnitStandingAt(field.game, {3, 3}), UnitId{});

    FindStandingUnits(field.game, 1U << kPrussian);
    EXPECT_TRUE(IsOnMap(field.game, due));
    EXPECT_EQ(UnitStandingAt(field.game, {3, 3}), due);

    FindStandingUnits(field.game, 0);
    PlaceUnit(field.game, due, {9, 1});
    EXPECT_TRUE(IsOnMap(field.game, due));
    EXPECT_EQ(UnitStandingAt(field.game, {9, 1}), due);
}

TEST(UnitsOnMap, TheDeadAndTheDepartedStandNowhere) {
    Field field({});
    const UnitId dead = field.Add(kFrench, 1, 1, kLineUnit);
    const UnitId gone = field.Add(kFrench, 1, 2, kLineUnit);
    const Cell left = field.game.At(gone).Place();
    DestroyUnit(field.game, dead);
    LeadOffMap(field.game, gone);
    EXPECT_FALSE(IsOnMap(field.game, dead));
    EXPECT_EQ(field.game.At(dead).Place(), kNoCell);
    EXPECT_EQ(field.game.At(dead).initialStrength, 6) << "its record must not be taken again";
    EXPECT_FALSE(IsOnMap(field.game, gone));
    EXPECT_EQ(field.game.At(gone).strength, 6);
    EXPECT_EQ(field.game.At(gone).Place(), left);
    EXPECT_EQ(UnitStandingAt(field.game, left), UnitId{});
}

TEST(UnitsOnMap, FindingThemAfreshAgreesWithWhatMovesHaveKept) {
    Field field({});
    const UnitId first = field.Add(kFrench, 1, 1, kLineUnit);
    const UnitId second = field.Add(kBritish, 3, 2, kLineUnit);
    ShiftUnit(field.game, first, field.SlotCell(Side::French, 2, 3));
    ShiftUnit(field.game, second, field.SlotCell(Side::Allied, 2, 1));
    const Grid kept = field.game.grid;
    FindStandingUnits(field.game, 0x7F);
    for (int y = 0; y < kept.Height(); ++y) {
        for (int x = 0; x < kept.Width(); ++x) {
            const Cell cell{x, y};
            EXPECT_EQ(field.game.grid.Standing(cell), kept.Standing(cell)) << x << "," << y;
            const UnitId unit = kept.Standing(cell);
            EXPECT_EQ(kept.At(cell).occupant, unit ? unit.army + 1 : 0) << x << "," << y;
        }
    }
}

}  // namespace
}  // namespace varnstride
