// The checker of a battle's ground: a sound battle at Gilly passes, and each slip in its area
// numbers, marks, labels, armies and names is found with its cell.
#include "forge/ground_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>

#include "atlas_texts.h"
#include "gilly_ground.h"

namespace varnstride {
namespace {

MapCell& At(BattleFile& file, int x, int y) {
    return file.cells[static_cast<std::size_t>(y * file.mapWidth + x)];
}

Unit& AddUnit(BattleFile& file, UnitId id, Cell cell) {
    Unit& unit = file.units[static_cast<std::size_t>(id.army)][static_cast<std::size_t>(id.index)];
    unit.type = UnitType::LineInfantry;
    unit.strength = 4;
    unit.SetPlace(cell);
    return unit;
}

void SetLabel(BattleFile& file, int index, const char* text) {
    std::strncpy(file.labels[static_cast<std::size_t>(index)].labelText.data(), text, 30);
}

// Two French units on the field, a third on its way, and a Prussian one.
BattleFile SoundBattle() {
    BattleFile file;
    file.mapWidth = kGillyWidth;
    file.mapHeight = kGillyHeight;
    for (std::string_view row : kGillyNumbers) {
        for (char digit : row)
            file.cells.emplace_back().areaId = 20 + (digit - '0');
    }
    At(file, 34, 49).objective = 2;
    At(file, 36, 29).objective = 1;
    At(file, 32, 9).objective = 8;
    At(file, 33, 39).objective = 8;
    At(file, 34, 50).labelIndex = 1;
    SetLabel(file, 1, "Chatelineau");
    file.armies[kFrench].present = 1;
    file.armies[kPrussian].present = 1;
    file.header.mapNumber = 4;
    file.header.savedTurn = 1;
    AddUnit(file, {kFrench, 1}, {2, 57});
    AddUnit(file, {kFrench, 2}, {2, 53});
    AddUnit(file, {kFrench, 3}, {4, 58}).arrivalTurn = 3;
    AddUnit(file, {kPrussian, 1}, {34, 7});
    return file;
}

struct GroundReports {
    std::string errors;
    std::string warnings;
};

GroundReports ReportsOn(const BattleFile& file, const Atlas& atlas) {
    SourceErrors errors("t");
    std::vector<std::string> warnings;
    CheckGround(atlas, file, errors, warnings);
    GroundReports reports{errors.Text(), ""};
    for (const std::string& warning : warnings)
        reports.warnings += warning + "\n";
    return reports;
}

struct GroundSlip {
    std::function<void(BattleFile&)> make;
    std::string_view fragment;
};

void ExpectFindings(const std::vector<GroundSlip>& slips, std::string GroundReports::*kind) {
    const Atlas atlas = BuildAtlas(GillySource());
    const std::string before = ReportsOn(SoundBattle(), atlas).*kind;
    for (const GroundSlip& slip : slips) {
        BattleFile file = SoundBattle();
        slip.make(file);
        const std::string after = ReportsOn(file, atlas).*kind;
        EXPECT_EQ(before.find(slip.fragment), std::string::npos) << slip.fragment;
        EXPECT_NE(after.find(slip.fragment), std::string::npos)
            << "expected: " << slip.fragment << "\n"
            << after;
    }
}

TEST(GroundRules, ASoundBattlePasses) {
    EXPECT_EQ(ReportsOn(SoundBattle(), BuildAtlas(GillySource())).errors, "");
}

TEST(GroundRules, SlipsInAreaNumbersAreErrors) {
    ExpectFindings(
        {
            {[](BattleFile& file) {
                 file.mapHeight = 58;
                 file.cells.resize(39 * 58);
             },
             "the grid is 39 x 58: expected at least 39 x 59"},
            {[](BattleFile& file) { At(file, 2, 6).areaId = 22; },
             "slot (2,6) of area 1 has the number 22: expected 21"},
            {[](BattleFile& file) {
                 At(file, 5, 29).areaId = 20;
                 At(file, 6, 29).areaId = 20;
             },
             "cells (5,29) to (6,29): no area of number 20 holds the place"},
            {[](BattleFile& file) { At(file, 5, 40).areaId = 25; },
             "area 13 is not one patch: 1 of its hexes, the first at (5,40), do not join the rest"},
            {[](BattleFile& file) {
                 for (MapCell& cell : file.cells)
                     cell.areaId = cell.areaId == 26 ? 27 : cell.areaId;
             },
             "area 14 has no hex"},
            {[](BattleFile& file) {
                 At(file, 26, 10).areaId = 23;
                 At(file, 27, 10).areaId = 23;
             },
             "area 3 and area 12 touch at (26,10) and have the same number: expected different "
             "ones"},
        },
        &GroundReports::errors);
}

TEST(GroundRules, SlipsInMarksAreErrors) {
    ExpectFindings(
        {
            {[](BattleFile& file) { At(file, 0, 5).objective = 5; },
             "objective at (0,5): expected it on playable ground"},
            {[](BattleFile& file) { At(file, 38, 5).objective = 1; },
             "objective at (38,5): expected it on playable ground"},
            {[](BattleFile& file) { At(file, 32, 9).objective = 0; },
             "the exit \"To Fleurus\" has no cell with the value 8"},
            {[](BattleFile& file) { At(file, 33, 39).objective = 7; },
             "the exit \"East of Bois de TriCheheve\" has no cell with the value 8"},
            {[](BattleFile& file) { At(file, 3, 3).labelIndex = 30; }, "label 30 at (3,3)"},
            {[](BattleFile& file) { At(file, 3, 3).labelIndex = 2; },
             "label 2 is in use: expected a text"},
            {[](BattleFile& file) { file.labels[1].labelText.fill('a'); },
             "label 1 is in use: expected a text of 1 to 29 characters"},
            {[](BattleFile& file) { At(file, 1, 1).groundTile = 36; },
             "cell (1,1): ground tile 36"},
            {[](BattleFile& file) {
                 At(file, 1, 1).groundTile = 108;
                 At(file, 2, 1).groundTile = 108;
             },
             "cells (1,1) to (2,1): ground tile 108"},
            {[](BattleFile& file) { At(file, 1, 1).groundTile = 144; }, "ground tile 144"},
        },
        &GroundReports::errors);
}

TEST(GroundRules, SlipsInArmiesAreErrors) {
    ExpectFindings(
        {
            {[](BattleFile& file) { file.armies[kPrussian].present = 0; },
             "the Prussian army is not present: expected it at Gilly"},
            {[](BattleFile& file) { file.armies[kBritish].present = 1; },
             "the British army is present: expected none at Gilly"},
            {[](BattleFile& file) {
                 AddUnit(file, {kBritish, 7}, {34, 7});
             },
             "British unit 7 \"\" has strength, and its army does not fight at Gilly"},
            {[](BattleFile& file) {
                 AddUnit(file, {kFrench, 9}, {3, 3});
             },
             "French unit 9 \"\" stands on (3,3): expected a slot of its side"},
            {[](BattleFile& file) {
                 AddUnit(file, {kFrench, 9}, {6, 5});
             },
             "French unit 9 \"\" stands on (6,5): expected a slot of its side"},
            {[](BattleFile& file) {
                 AddUnit(file, {kFrench, 9}, {2, 57});
             },
             "French unit 9 \"\" stands on (2,57), where French unit 1 \"\" stands already"},
            {[](BattleFile& file) {
                 AddUnit(file, {kFrench, 9}, {0, 0}).arrivalTurn = 1;
             },
             "French unit 9 \"\" comes in at (0,0): expected a cell of an area"},
        },
        &GroundReports::errors);
}

TEST(GroundRules, OddGroundIsWarnedOf) {
    ExpectFindings(
        {
            {[](BattleFile& file) {
                 for (int y = 48; y < 60; ++y)
                     At(file, 3, y).areaId = 21;
             },
             "cell (3,50): area 1 and area 18 of number 21 both hold the place"},
            {[](BattleFile& file) {
                 At(file, 6, 1).areaId = 22;
                 At(file, 8, 1).areaId = 22;
             },
             "cell (7,1): other areas lie on several sides"},
            {[](BattleFile& file) { At(file, 38, 20).areaId = 22; },
             "cell (38,20): expected the last column to repeat the number 23"},
            {[](BattleFile& file) { At(file, 34, 49).objective = 0; },
             "Chatelineau at (34,49) is not marked"},
            {[](BattleFile& file) { At(file, 10, 10).objective = 3; },
             "objective at (10,10) shows no name"},
            {[](BattleFile& file) { At(file, 10, 10).objective = 8; },
             "exit value 8 at (10,10) lies in no area that is an exit"},
            {[](BattleFile& file) { SetLabel(file, 1, "Merbe & Braine"); },
             "label 1 \"Merbe & Braine\": only letters"},
        },
        &GroundReports::warnings);
}

// The checker's idea of a border without a picture is that of the game's own border pictures.
TEST(GroundRules, NecksAreTheHexesWithoutABorderPicture) {
    const Atlas atlas = BuildAtlas(GillySource());
    const BattleFile file = SoundBattle();
    Grid grid(file.mapWidth, file.mapHeight, file.cells, atlas);
    grid.FinishPictures();
    const std::string warnings = ReportsOn(file, atlas).warnings;
    int necks = 0;
    for (int y = 0; y + 1 < file.mapHeight; ++y) {
        for (int x = 1; x + 1 < file.mapWidth; ++x) {
            const bool borders =
                std::any_of(std::begin(kHexSides), std::end(kHexSides), [&](Direction side) {
                    const Cell next = Step({x, y}, side);
                    return next.x >= 1 && next.y >= 0 && next.y + 1 < file.mapHeight &&
                           grid.Ground(next).areaId != grid.Ground({x, y}).areaId;
                });
            necks += borders && grid.Ground({x, y}).borderTile == 0 ? 1 : 0;
        }
    }
    int told = 0;
    for (std::size_t place = warnings.find("several sides"); place != std::string::npos;
         place = warnings.find("several sides", place + 1)) {
        ++told;
    }
    EXPECT_GT(necks, 0);
    EXPECT_EQ(told, necks) << warnings;
}

// Gilly has no units with a portrait of their own; Hougoumont, in miniature, has.
TEST(GroundRules, NamedUnitsBelongToTheirArmyAndArm) {
    const Atlas atlas(
        2, {{28, {}, {}, {}, {}, {{{1, 0}, {2, 0}, {3, 0}}}, {{{1, 1}, {2, 1}, {3, 1}}}}}, {});
    BattleFile file;
    file.mapWidth = 39;
    file.mapHeight = 40;
    file.cells.resize(39 * 40);
    Unit& unit = AddUnit(file, {kBritish, 1}, {1, 1});
    std::strcpy(unit.name.data(), "Hanovarians");
    EXPECT_NE(
        ReportsOn(file, atlas)
            .errors.find(
                "British unit 1 \"Hanovarians\" is of type 2: expected a unit of this name in "
                "the British army, of type 1"),
        std::string::npos);
    unit.type = UnitType::LightInfantry;
    const GroundReports mended = ReportsOn(file, atlas);
    EXPECT_EQ(mended.errors.find("Hanovarians"), std::string::npos) << mended.errors;
    EXPECT_EQ(mended.warnings.find("\"Hanovarians\""), std::string::npos);
    EXPECT_NE(
        mended.warnings.find("no unit bears: \"95th Rifles 8th British Brigade 5th Inf Div\""),
        std::string::npos)
        << mended.warnings;
}

}  // namespace
}  // namespace varnstride
