// The lists and reports of the menus Reinforce and Status: their words by map, army and arm, and
// that looking at them changes nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "app/commands.h"
#include "app/map_input.h"
#include "app/orders_field.h"
#include "model/state_fields.h"

namespace varnstride {
namespace {

constexpr int kScheduled = 32790;
constexpr int kStrengthDialog = 32793;
constexpr int kRemoved = 32960;

// Keeps the last dialog as it was shown.
struct ReportField : OrdersField {
    ReportField() {
        person.answers = [this](Dialog& dialog) { shown = dialog; };
        game.header.lastTurn = 20;
    }

    const std::vector<std::string>& Lines(int list) { return shown.At(list).lines; }

    Dialog shown;
};

Unit Named(UnitType type, const char* name) {
    Unit unit = MakeUnit(type);
    std::strcpy(unit.name.data(), name);
    return unit;
}

TEST(Schedule, TellsWhereAUnitOfTheArmyEntersTheMap) {
    struct Case {
        int map;
        int army;
        UnitType type;
        Quality quality;
        const char* place;
    };
    using enum UnitType;
    const Case cases[] = {
        {1, kFrench, LightInfantry, Quality::Experienced, "West of Frasnes"},
        {1, kFrench, GuardInfantry, Quality::Elite, ""},
        {1, kFrench, LightCavalry, Quality::Experienced, "On the road from Charleroi"},
        {1, kBritish, LineInfantry, Quality::Veteran, "On Brussels Road"},
        {1, kBritish, LineInfantry, Quality::Militia, "From Nivelles"},
        {1, kBritish, LightCavalry, Quality::Veteran, "From Nivelles"},
        {1, kBritish, HeavyCavalry, Quality::Veteran, ""},
        {1, kBritish, HorseArtillery, Quality::Veteran, "On Brussels Road"},
        {7, kPrussian, Leader, Quality::Elite, "South of Frichermont"},
        {4, kFrench, LineInfantry, Quality::Elite, ""},
    };
    for (const Case& given : cases) {
        ReportField field;
        field.game.header.mapNumber = given.map;
        field.game.state.currentArmy = given.army;
        Unit unit = Named(given.type, "Battalion");
        unit.quality = given.quality;
        unit.arrivalTurn = 7;
        unit.arrivalChance = 60;
        field.AddAt(given.army, kNoCell, unit);
        DispatchCommand(field.game, kScheduled);
        const std::string expected =
            " Battalion" + std::string(28, ' ') + given.place + ",    ,    GT:  7,    ,    60%";
        EXPECT_EQ(field.Lines(1294), std::vector{expected}) << given.map << " " << given.army;
    }
}

TEST(RemovedUnits, TellsByWhichRoadAUnitLeft) {
    struct Case {
        int map;
        int army;
        int areaId;
        Cell left;
        const char* place;
    };
    const Case cases[] = {
        {1, kFrench, 23, {18, 0}, "To Brussels"},
        {1, kFrench, 23, {17, 0}, ""},  // bounds are open
        {1, kFrench, 23, {18, 9}, ""},
        {1, kBritish, 23, {18, 0}, ""},
        {2, kFrench, 22, {0, 9}, "Road North of Hougoumont"},
        {4, kFrench, 25, {20, 16}, "To Fleurus"},
        {4, kFrench, 25, {20, 26}, "East of Bois de TriCheheve"},
    };
    for (const Case& given : cases) {
        FieldPlan plan;
        plan.columns = 4;
        plan.rows = 6;
        plan.paint = [&](Cell, MapCell& map) { map.areaId = given.areaId; };
        Field field(plan);
        RecordingPerson person;
        Dialog shown;
        person.answers = [&](Dialog& dialog) { shown = dialog; };
        field.game.person = &person;
        field.game.state.mapReady = 1;
        field.game.header.mapNumber = given.map;
        Unit unit = Named(UnitType::LineInfantry, "Battalion");
        unit.arrivalTurn = kLeftByExit;
        unit.strength = 3;
        unit.quality = Quality::Elite;
        unit.weapon = Weapon::Rifle;
        unit.maxMorale = 5;
        field.AddAt(given.army, given.left, unit);
        DispatchCommand(field.game, kRemoved);
        const std::string expected =
            " Battalion" + std::string(28, ' ') + given.place + std::string(15, ' ') + "VPs:  9";
        EXPECT_EQ(std::ranges::count(shown.At(1285).lines, expected), 1)
            << given.map << ": " << given.left.x << ", " << given.left.y;
    }
}

TEST(Strength, CountsOwnTroopsByArmAndTheLossesOfBoth) {
    for (bool ended : {false, true}) {
        ReportField field;
        Unit dead = MakeUnit(UnitType::DragoonsDismounted);
        dead.strength = 0;
        dead.initialStrength = 5;
        field.AddAt(kBritish, kNoCell, dead);
        field.Add(kBritish, 2, 1, MakeUnit(UnitType::SupplyWagon));
        Unit later = MakeUnit(UnitType::GuardCavalry);
        later.arrivalTurn = 9;
        later.initialStrength = 8;
        field.AddAt(kFrench, kNoCell, later);
        field.game.header.gameEnded = ended ? 1 : 0;
        DispatchCommand(field.game, kStrengthDialog);
        EXPECT_EQ(field.Lines(1286), (Words{" 6  Elephants"})) << "type 13, arrived or not";
        EXPECT_EQ(field.Lines(1287),
                  ended ? (Words{"British Troops :-", " 6  Baggage Train"}) : Words{});
        EXPECT_EQ(field.Lines(1334), (Words{"British Troops :-", " 5  Light Heavy Infantry"}));
        EXPECT_EQ(field.Lines(1335), Words{}) << "type 13 has no line in the French losses";
    }
}

TEST(UnitSheet, TellsStatusByTheLastWordThatFits) {
    struct Case {
        UnitStatus status;
        UnitActivity activity;
        int disrupted;
        UnitType type;
        const char* word;
    };
    using enum UnitStatus;
    constexpr UnitActivity kNone = UnitActivity::None;
    constexpr UnitType kLine = UnitType::LineInfantry;
    const Case cases[] = {
        {Ordered, kNone, 0, kLine, " Ordered"},
        {Unsteady, kNone, 1, kLine, " Disrupted"},
        {Shaken, kNone, 1, kLine, " Shaken"},
        {Shaken, UnitActivity::Charging, 0, kLine, " Shaken"},
        {Unsteady, UnitActivity::Charging, 1, kLine, " Charging"},
        {Routed, UnitActivity::Retreating, 0, kLine, " Retreating"},
        {Ordered, UnitActivity::Reforming, 0, UnitType::SupplyWagon, " Ordered"},
        {Ordered, UnitActivity::Hold, 0, kLine, " Ordered"},
    };
    for (const Case& given : cases) {
        ReportField field;
        Unit unit = MakeUnit(given.type);
        unit.status = given.status;
        unit.activity = given.activity;
        unit.disrupted = given.disrupted;
        field.Add(kFrench, 1, 1, unit);
        field.game.state.selectedCell = field.Ground(1);
        OnPanelRightClick(field.game, 1);
        EXPECT_EQ(field.shown.At(1402).text, given.word);
    }
}

TEST(UnitSheet, OpensForAnOwnUnitAlone) {
    ReportField field;
    field.Add(kPrussian, 1, 1, MakeUnit(UnitType::LineInfantry));
    OnLeftClick(field.game, field.Ground(1));
    OnPanelRightClick(field.game, 1);
    EXPECT_EQ(field.person.Heard(), Words{"sound Ding"});
}

TEST(Reports, LeaveTheBattleAsTheyFoundIt) {
    ReportField field;
    field.game.Army(kFrench).hasGroupAssignments = 1;
    field.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
    field.Add(kPrussian, 2, 1, MakeUnit(UnitType::LineInfantry));
    OnLeftClick(field.game, field.Ground(1));
    for (int report : {32790, 32791, 32792, 32793, 32962, 32974, 32794, 32960}) {
        const Game before = field.game;
        field.person.Heard();
        DispatchCommand(field.game, report);
        EXPECT_EQ(field.person.Heard().size(), 1U) << report;
        StateFields<GameState>::ForEach([&](const char* name, auto member) {
            EXPECT_TRUE(before.state.*member == field.game.state.*member) << report << " " << name;
        });
        StateFields<Census>::ForEach([&](const char* name, auto member) {
            EXPECT_TRUE(before.census.*member == field.game.census.*member)
                << report << " " << name;
        });
    }
}

}  // namespace
}  // namespace varnstride
