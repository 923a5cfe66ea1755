// Each thing that a battle must hold, one case a check, and what must not be taken for a fault.

#include <gtest/gtest.h>

#include <functional>

#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

// Turn 5 on three areas of 8 x 6 cells, with two French units and a Prussian one.
class BattleChecks : public testing::Test {
 protected:
    BattleChecks() : field_({}) {
        Game& game = field_.game;
        MakeSavable(game);
        game.header.savedTurn = game.state.gameTurn;
        field_.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
        field_.Add(kFrench, 1, 2, MakeUnit(UnitType::LineInfantry));
        field_.Add(kPrussian, 2, 1, MakeUnit(UnitType::Lancers));
        file_ = TakeFromGame(game);
    }

    Unit& Record(int army, int index) {
        return file_.units[static_cast<std::size_t>(army)][static_cast<std::size_t>(index)];
    }
    MapCell& At(Cell cell) {
        return file_.cells[static_cast<std::size_t>(cell.y * file_.mapWidth + cell.x)];
    }
    std::string Fault() const {
        const auto result = ParseBattleFile(SerializeBattleFile(file_), "a.cmb", field_.catalogue);
        return result.Ok() ? "" : result.Message();
    }
    // Stands a unit there that no other record of its army tells of.
    Unit& Stand(int army, int index, Cell cell) {
        Unit& unit = Record(army, index);
        unit = MakeUnit(UnitType::LineInfantry);
        unit.SetPlace(cell);
        At(cell).occupant = army + 1;
        return unit;
    }

    Field field_;
    BattleFile file_;
};

struct BadValue {
    std::function<void(BattleFile&)> spoil;
    const char* message;
};

Unit& FirstFrench(BattleFile& file) {
    return file.units[kFrench][1];
}

template <int Width, int Height>
void Resize(BattleFile& file) {
    file.mapWidth = Width;
    file.mapHeight = Height;
    file.cells.resize(Width * Height);
}
template <auto Field, int Value>
void SpoilHeader(BattleFile& file) {
    file.header.*Field = Value;
}
template <auto Field, int Value>
void SpoilTime(BattleFile& file) {
    file.time.*Field = Value;
}
template <auto Field, int Value>
void SpoilCell(BattleFile& file) {
    file.cells[27].*Field = Value;
}
template <auto Field, int Value>
void SpoilUnit(BattleFile& file) {
    auto& field = FirstFrench(file).*Field;
    field = static_cast<std::remove_reference_t<decltype(field)>>(Value);
}
template <auto Text>
void FillHeaderText(BattleFile& file) {
    (file.header.*Text).fill('x');
}

const BadValue kBadValues[] = {
    {Resize<2, 75>, "map size: mapWidth is 2, expected 3 to 250"},
    {Resize<251, 6>, "map size: mapWidth is 251"},
    {Resize<25, 1>, "map size: mapHeight is 1, expected 2 to 250"},
    {Resize<25, 251>, "map size: mapHeight is 251"},
    {Resize<22, 6>, "map size: 22 x 6 is too small for battlefield 4, whose slots reach (21, 4)"},
    {Resize<30, 4>, "map size: 30 x 4 is too small"},
    {SpoilHeader<&ScenarioHeader::mapNumber, 5>, "header: mapNumber is 5, which is no battlefield"},
    {SpoilHeader<&ScenarioHeader::visibility, -1>, "header: visibility is -1"},
    {SpoilHeader<&ScenarioHeader::lastTurn, 0>, "header: lastTurn is 0"},
    {SpoilHeader<&ScenarioHeader::savedTurn, 2000>, "header: savedTurn is 2000, expected 1 to"},
    {SpoilHeader<&ScenarioHeader::firstPlayer, 6>, "header: firstPlayer is 6, expected 0 to 5"},
    {SpoilHeader<&ScenarioHeader::firstPlayer, 1>, "firstPlayer is 1, an army that is not present"},
    {SpoilHeader<&ScenarioHeader::savedArmy, -1>, "header: savedArmy is -1"},
    {SpoilHeader<&ScenarioHeader::savedArmy, 4>, "savedArmy is 4, an army that is not present"},
    {SpoilHeader<&ScenarioHeader::passMode, 3>, "header: passMode is 3"},
    {SpoilHeader<&ScenarioHeader::playByEmail, 2>, "header: playByEmail is 2"},
    {SpoilHeader<&ScenarioHeader::fogNone, 2>, "header: fogNone is 2"},
    {SpoilHeader<&ScenarioHeader::fogNormal, -1>, "header: fogNormal is -1"},
    {SpoilHeader<&ScenarioHeader::fogExtreme, 2>, "header: fogExtreme is 2"},
    {SpoilHeader<&ScenarioHeader::hardDifficulty, 2>, "header: hardDifficulty is 2"},
    {SpoilHeader<&ScenarioHeader::gameEnded, 2>, "header: gameEnded is 2"},
    {SpoilTime<&TimeBlock::clockField, 2401>, "time: clockField is 2401"},
    {SpoilTime<&TimeBlock::duskHour, 25>, "time: duskHour is 25, expected 0 to 24"},
    {SpoilTime<&TimeBlock::dawnHour, -1>, "time: dawnHour is -1"},
    {SpoilTime<&TimeBlock::rainChance, 101>, "time: rainChance is 101"},
    {SpoilTime<&TimeBlock::cloudChance, -1>, "time: cloudChance is -1"},
    {SpoilTime<&TimeBlock::windSpeed, -1>, "time: windSpeed is -1"},
    {SpoilTime<&TimeBlock::fogHold, 3>, "time: fogHold is 3"},
    {FillHeaderText<&ScenarioHeader::firstPassword>, "header: firstPassword has no end"},
    {FillHeaderText<&ScenarioHeader::secondPassword>, "header: secondPassword has no end"},
    {FillHeaderText<&ScenarioHeader::scenarioAuthor>, "header: scenarioAuthor has no end"},
    {FillHeaderText<&ScenarioHeader::scenarioDate>, "header: scenarioDate has no end"},
    {FillHeaderText<&ScenarioHeader::scenarioDescription>, "scenarioDescription has no end"},
    {[](BattleFile& f) { f.labels[29].labelText.fill('x'); }, "map labels: label 29 has no end"},
    {[](BattleFile& f) {
         f.armies[kFrench].hasGroupAssignments = 1;
         f.briefings[6].text.fill('x');
     },
     "intelligence reports: the text of army 6 has no end"},
    {[](BattleFile& f) { f.turnLog.advanceDirection = 0; }, "turn log: advanceDirection is 0"},
    {[](BattleFile& f) { f.turnLog.advanceDirection = 7; }, "turn log: advanceDirection is 7"},
    {[](BattleFile& f) { f.turnLog.turnInProgress = 2; }, "turn log: turnInProgress is 2"},
    {SpoilCell<&MapCell::occupant, 8>, "map: cell (2, 1): occupant is 8"},
    {SpoilCell<&MapCell::terrainTile, 102>, "map: cell (2, 1): terrainTile is 102"},
    {SpoilCell<&MapCell::groundTile, -1>, "map: cell (2, 1): groundTile is -1"},
    {SpoilCell<&MapCell::overlayTile, 142>, "map: cell (2, 1): overlayTile is 142"},
    {SpoilCell<&MapCell::moveMark, 100>, "map: cell (2, 1): moveMark is 100"},
    {SpoilCell<&MapCell::objective, 12>, "map: cell (2, 1): objective is 12"},
    {SpoilCell<&MapCell::roadTile, 21>, "map: cell (2, 1): roadTile is 21"},
    {SpoilCell<&MapCell::featureTile, 256>, "map: cell (2, 1): featureTile is 256"},
    {SpoilCell<&MapCell::labelIndex, 30>, "map: cell (2, 1): labelIndex is 30, expected 0 to 29"},
    {SpoilCell<&MapCell::borderTile, 32>, "map: cell (2, 1): borderTile is 32"},
    {[](BattleFile& f) { f.units[0][1].name.fill('x'); }, "units: army 0 unit 1: name has no end"},
    {[](BattleFile& f) { f.units[2][0].strength = 1; }, "army 2 unit 0: record 0 must stay empty"},
    {SpoilUnit<&Unit::type, 0>, "units: army 0 unit 1: type is 0, expected 1 to 21"},
    {SpoilUnit<&Unit::type, 22>, "type is 22"},
    {SpoilUnit<&Unit::formation, 7>, "formation is 7"},
    {SpoilUnit<&Unit::status, 5>, "status is 5"},
    {SpoilUnit<&Unit::quality, 6>, "quality is 6"},
    {SpoilUnit<&Unit::weapon, 10>, "weapon is 10"},
    {SpoilUnit<&Unit::activity, 16>, "activity is 16"},
    {SpoilUnit<&Unit::strength, -1>, "strength is -1"},
    {SpoilUnit<&Unit::initialStrength, -1>, "initialStrength is -1"},
    {SpoilUnit<&Unit::morale, -1>, "morale is -1"},
    {SpoilUnit<&Unit::maxMorale, -1>, "maxMorale is -1"},
    {SpoilUnit<&Unit::maxMorale, 0>, "units: army 0 unit 1: maxMorale is 0"},
    {SpoilUnit<&Unit::actionPoints, -1>, "actionPoints is -1"},
    {SpoilUnit<&Unit::ammunition, -1>, "ammunition is -1"},
    {SpoilUnit<&Unit::leadership, -1>, "leadership is -1"},
    {SpoilUnit<&Unit::arrivalTurn, 2001>, "arrivalTurn is 2001"},
    {SpoilUnit<&Unit::arrivalChance, 101>, "arrivalChance is 101"},
    {SpoilUnit<&Unit::x, -1>, "units: army 0 unit 1: its place (-1, 1) is off the map"},
    {SpoilUnit<&Unit::y, 6>, "its place (1, 6) is off the map"},
    {SpoilUnit<&Unit::x, 2>, "stands at (2, 1), no slot of its side"},
    {SpoilUnit<&Unit::y, 4>, "stands at (1, 4), no slot of its side"},
    {SpoilUnit<&Unit::x, 3>, "army 0 unit 2: stands at (3, 1), where another unit stands"},
    {SpoilUnit<&Unit::x, 5>, "army 0 unit 1: stands at (5, 1), whose occupant is 0"},
    {SpoilUnit<&Unit::strength, 0>,
     "map: cell (1, 1): occupant is 1, but no such unit stands there"},
    {[](BattleFile& f) { f.cells[26].occupant = 4; }, "stands at (1, 1), whose occupant is 4"},
    {[](BattleFile& f) { f.cells[30].occupant = 2; }, "map: cell (5, 1): occupant is 2, but no"},
};

TEST_F(BattleChecks, EveryBadValueIsNamed) {
    const BattleFile sound = file_;
    for (const BadValue& bad : kBadValues) {
        file_ = sound;
        bad.spoil(file_);
        const std::string fault = Fault();
        EXPECT_TRUE(fault.starts_with("a.cmb: ")) << bad.message;
        EXPECT_NE(fault.find(bad.message), std::string::npos)
            << "expected " << bad.message << ", got \"" << fault << '"';
    }
}

TEST_F(BattleChecks, TheSoundOneIsRead) {
    EXPECT_EQ(Fault(), "");
}

TEST_F(BattleChecks, TheDeadAndThoseWhoLeftStandNowhere) {
    Unit& dead = Record(kFrench, 3) = MakeUnit(UnitType::LineInfantry);
    dead.strength = dead.morale = 0;
    dead.status = UnitStatus::Destroyed;
    Unit& left = Record(kFrench, 4) = MakeUnit(UnitType::Leader);
    left.arrivalTurn = kLeftByExit;
    left.SetPlace(field_.SlotCell(Side::French, 1, 1));  // which another unit has taken since
    Unit& late = Record(kPrussian, 2) = MakeUnit(UnitType::Leader);
    late.arrivalTurn = 6;
    late.SetPlace({2, 2});  // no slot
    EXPECT_EQ(Fault(), "");
}

TEST_F(BattleChecks, AUnitDueThisTurnMayHaveArrivedOrNot) {
    const Cell entry = field_.SlotCell(Side::Allied, 3, 1);
    Stand(kPrussian, 2, entry).arrivalTurn = 5;
    EXPECT_EQ(Fault(), "") << "arrived";
    At(entry).occupant = 0;
    EXPECT_EQ(Fault(), "") << "waits";
    Record(kPrussian, 2).SetPlace(field_.SlotCell(Side::Allied, 2, 1));
    EXPECT_EQ(Fault(), "") << "waits where another unit stands";
    Record(kPrussian, 2).SetPlace(field_.SlotCell(Side::French, 3, 1));
    EXPECT_EQ(Fault(), "") << "waits in a slot of the enemy";
    Stand(kPrussian, 3, entry).arrivalTurn = 5;
    Record(kPrussian, 2).SetPlace(entry);
    EXPECT_EQ(Fault(), "") << "two at the same entry, of which one has arrived";
}

TEST_F(BattleChecks, WhatARuleAllowsIsNoFault) {
    Record(kFrench, 1).type = kNeverClosesUp;
    Record(kFrench, 2).quality = Quality::None;
    Record(kPrussian, 1).status = UnitStatus::Routed;
    Record(kPrussian, 1).morale = 0;
    Record(kPrussian, 1).formation = Formation::NoFormation;
    file_.armies[kFrench].commandPoints = -3;
    file_.header.majorDefeatLimit = -500;
    file_.header.savedTurn = file_.header.lastTurn + 1;
    file_.header.gameEnded = 1;
    EXPECT_EQ(Fault(), "");
}

}  // namespace
}  // namespace varnstride
