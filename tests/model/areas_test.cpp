// The area in hand: what a look-up takes, whom it names as the enemy, and how the units that stay
// behind close up.
#include "model/areas.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>

#include "model/units_on_map.h"
#include "support/field.h"

namespace varnstride {
namespace {

const Unit kLineUnit = MakeUnit(UnitType::LineInfantry);

TEST(SelectArea, TakesTheSlotsAndHowFarTheyAreFilled) {
    // The last filled slot counts, gaps or not.
    struct Case {
        std::string filled;
        int expected;
    };
    const Case cases[] = {{"", 0}, {"1", 1}, {"2", 2}, {"3", 3}, {"12", 2}, {"13", 3}, {"123", 3}};
    for (const Case& given : cases) {
        Field field({});
        for (char slot : given.filled)
            field.Add(kPrussian, 2, slot - '0', kLineUnit);
        field.Add(kFrench, 2, 1, kLineUnit);  // the other side's units do not count
        field.game.state.currentArmy = kPrussian;
        field.game.state.selectedCell = {10, 3};
        SelectArea(field.game);
        EXPECT_EQ(field.game.state.ownSlotsFilled, given.expected) << given.filled;
        EXPECT_EQ(field.game.state.currentAreaSlots, field.game.atlas->Row(2).Slots());
        const bool moves = given.filled.starts_with("1");
        const Cell expected = moves ? field.SlotCell(Side::Allied, 2, 1) : Cell{10, 3};
        EXPECT_EQ(field.game.state.selectedCell, expected) << given.filled;
    }
}

TEST(SelectArea, OfNoAreaChangesNothing) {
    FieldPlan plan;
    plan.paint = [](Cell at, MapCell& cell) {
        if (at == Cell{20, 3}) cell.areaId = 0;
    };
    Field field(plan);
    field.Add(kFrench, 1, 1, kLineUnit);
    field.game.state.selectedCell = {0, 0};
    SelectArea(field.game);
    ASSERT_EQ(field.game.state.ownSlotsFilled, 1);
    field.game.state.selectedCell = {20, 3};
    SelectArea(field.game);
    EXPECT_EQ(field.game.state.ownSlotsFilled, 1);
    EXPECT_EQ(field.game.state.currentAreaSlots, field.game.atlas->Row(1).Slots());
    EXPECT_EQ(field.game.state.selectedCell, (Cell{20, 3}));
}

TEST(SelectArea, TheLaterOfTwoRowsThatHoldACellWins) {
    const AreaRow wide{21, {}, {}, {}, {}, {{{1, 1}, {2, 1}, {3, 1}}}, {{{1, 3}, {2, 3}, {3, 3}}}};
    AreaRow narrow{21, 4, {}, {}, {}, {{{6, 1}, {7, 1}, {8, 1}}}, {{{6, 3}, {7, 3}, {8, 3}}}};
    const AtlasCatalogue catalogue({Atlas(4, {wide, narrow}, {})});
    std::vector<MapCell> cells(10 * 5);
    for (MapCell& cell : cells)
        cell.areaId = 21;
    SilentPerson person;
    Game game(catalogue, person);
    game.atlas = catalogue.Find(4);
    game.grid = Grid(10, 5, cells, *game.atlas);
    game.state.selectedCell = {4, 2};
    SelectArea(game);
    EXPECT_EQ(game.state.currentAreaSlots, wide.Slots());
    game.state.selectedCell = {5, 2};
    SelectArea(game);
    EXPECT_EQ(game.state.currentAreaSlots, narrow.Slots());
}

TEST(LoadOwnSlots, LeavesTheEnemySlotsAsTheyWere) {
    Field field({});
    field.Add(kBritish, 3, 2, kLineUnit);
    SelectAreaByOrdinal(field.game, 1);
    field.game.state.currentArmy = kBritish;
    field.game.state.selectedCell = {18, 0};
    LoadOwnSlots(field.game);
    const AreaSlots first = field.game.atlas->Row(1).Slots();
    const AreaSlots third = field.game.atlas->Row(3).Slots();
    const AreaSlots& slots = field.game.state.currentAreaSlots;
    for (std::size_t slot = 0; slot < 3; ++slot) {
        EXPECT_EQ(slots[slot], first[slot]);
        EXPECT_EQ(slots[slot + 3], third[slot + 3]);
    }
    EXPECT_EQ(field.game.state.ownSlotTaken, (std::array<bool, 3>{false, true, false}));
}

// Which unit, by a letter, stands in each slot; '.' none.
struct CloseUpCase {
    const char* before;
    const char* after;
};

constexpr CloseUpCase kCloseUps[] = {
    {"...", "..."}, {"a..", "a.."}, {"ab.", "ab."}, {"abc", "abc"}, {".b.", "b.."},
    {".bc", "bc."}, {"a.c", "ac."}, {"..c", ".c."},  // one slot at a time: the rest of the way at
                                                     // the next closing up
};

std::string Standing(const Field& field, Side side, int ordinal) {
    std::string line;
    for (int slot = 1; slot <= 3; ++slot) {
        const Cell cell = field.SlotCell(side, ordinal, slot);
        const UnitId unit = UnitStandingAt(field.game, cell);
        line += unit ? field.game.At(unit).name[0] : '.';
        EXPECT_EQ(field.game.grid.At(cell).occupant, unit ? unit.army + 1 : 0);
    }
    return line;
}

void StandUnits(Field& field, int army, int ordinal, std::string_view line) {
    for (std::size_t slot = 0; slot < line.size(); ++slot) {
        if (line[slot] == '.') continue;
        Unit unit = kLineUnit;
        unit.name[0] = line[slot];
        field.Add(army, ordinal, static_cast<int>(slot) + 1, unit);
    }
}

TEST(CloseUpArea, UnitsBehindAFreeSlotStepUp) {
    for (const CloseUpCase& given : kCloseUps) {
        for (int army : {kFrench, kBritish, kPrussian}) {
            Field field({});
            StandUnits(field, army, 2, given.before);
            field.game.state.currentArmy = army;
            CloseUpAreaLeft(field.game, {8, 0});
            EXPECT_EQ(Standing(field, SideOf(army), 2), given.after)
                << given.before << ", army " << army;
        }
    }
}

TEST(CloseUpArea, MovesTheUnitsOfEveryAlliedArmyAndNoneOfTheOtherSide) {
    Field field({});
    StandUnits(field, kBritish, 2, ".b.");
    StandUnits(field, kPrussian, 2, "..p");
    StandUnits(field, kFrench, 2, ".f.");
    field.game.state.currentArmy = kBritish;
    CloseUpAreaLeft(field.game, {8, 0});
    EXPECT_EQ(Standing(field, Side::Allied, 2), "bp.");
    EXPECT_EQ(Standing(field, Side::French, 2), ".f.");
}

TEST(CloseUpArea, LeavesWhoeverNeverClosesUp) {
    Field field({});
    Unit unit = kLineUnit;
    unit.type = kNeverClosesUp;
    unit.name[0] = 'x';
    field.Add(kFrench, 2, 2, unit);
    field.game.state.currentArmy = kFrench;
    CloseUpAreaLeft(field.game, {8, 0});
    EXPECT_EQ(Standing(field, Side::French, 2), ".x.");
}

struct EnemyCase {
    int mapNumber;
    int ownArmy;
    int standingArmy;
    int expected;
};

// The map decides which Allied army the French meet; on Mont St Jean it is the one that shows.
constexpr EnemyCase kEnemies[] = {
    {1, kFrench, kBritish, kBritish},   {2, kFrench, kBritish, kBritish},
    {3, kFrench, kPrussian, kPrussian}, {4, kFrench, kPrussian, kPrussian},
    {8, kFrench, kPrussian, kPrussian}, {7, kFrench, kBritish, kBritish},
    {7, kFrench, kPrussian, kPrussian}, {7, kFrench, kAustrian, -1},
    {4, kPrussian, kFrench, kFrench},   {7, kBritish, kFrench, kFrench},
};

TEST(FindEnemyInSlot, LooksAtTheOneArmyThatTheMapNames) {
    for (const EnemyCase& given : kEnemies) {
        FieldPlan plan;
        plan.mapNumber = given.mapNumber;
        Field field(plan);
        const UnitId enemy = field.Add(given.standingArmy, 2, 1, kLineUnit);
        field.game.state.currentArmy = given.ownArmy;
        SelectAreaByOrdinal(field.game, 2);
        EXPECT_EQ(EnemyArmyOf(field.game, field.game.state.currentAreaSlots), given.expected);
        EXPECT_EQ(FindEnemyInSlot(field.game, FirstEnemySlot(field.game)),
                  given.expected < 0 ? 0 : enemy.index)
            << "map " << given.mapNumber << ", army " << given.standingArmy;
    }
}

TEST(FindEnemyInSlot, PassesOverWagonsAndThoseWhoAreNotThere) {
    struct Case {
        const char* what;
        void (*change)(Unit&);
        bool found;
    };
    const Case cases[] = {
        {"a battalion", [](Unit&) {}, true},
        {"a wagon", [](Unit& unit) { unit.type = UnitType::SupplyWagon; }, false},
        {"a free record", [](Unit& unit) { unit.initialStrength = 0; }, false},
        {"a dead unit", [](Unit& unit) { unit.strength = 0; }, false},
        {"one still on the march", [](Unit& unit) { unit.arrivalTurn = 6; }, false},
        {"one placed this turn", [](Unit& unit) { unit.arrivalTurn = 5; }, true},
    };
    for (const Case& given : cases) {
        Field field({});
        Unit unit = kLineUnit;
        given.change(unit);
        field.Add(kFrench, 2, 1, kLineUnit);
        const UnitId second = field.Add(kFrench, 2, 2, unit);
        field.game.state.currentArmy = kPrussian;
        SelectAreaByOrdinal(field.game, 2);
        EXPECT_EQ(FindEnemyInSlot(field.game, EnemySlot(field.game, 1)),
                  given.found ? second.index : 0)
            << given.what;
    }
}

TEST(FindEnemyInSlot, DoesNotSeeASecondAlliedArmyBehindTheFirst) {
    FieldPlan plan;
    plan.mapNumber = 7;
    Field field(plan);
    field.Add(kBritish, 2, 1, kLineUnit);
    field.Add(kPrussian, 2, 2, kLineUnit);
    SelectAreaByOrdinal(field.game, 2);
    EXPECT_EQ(FindEnemyInSlot(field.game, EnemySlot(field.game, 1)), 0);
}

}  // namespace
}  // namespace varnstride
