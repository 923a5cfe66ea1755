// The end of a game turn: who rests, who rallies, who melts away. Figures by hand.
#include <gtest/gtest.h>

#include "battle/attack_field.h"
#include "battle/morale.h"
#include "resources/dialog_ids.h"
#include "support/prepared_dice.h"

namespace varnstride {
namespace {

using namespace words;

// A French unit at the end of turn 5, alone or with the enemy in its area.
struct Evening : AttackField {
    explicit Evening(const Soldier& soldier, bool enemyNear = false, int villages = 0)
        : AttackField(VillageIn(villages)), id(Add(kFrench, kMiddle, 1, soldier.Made())) {
        if (enemyNear) Add(kBritish, kMiddle, 1, Fighter(LineInfantry));
    }

    Unit& Tired() { return game.At(id); }

    UnitId id;
};

// Of 24 morale 45 percent are 10, 60 percent begin with 15 and 80 with 20.
TEST(EndTurnMorale, RestsAndRalliesWhoIsLeftInPeace) {
    struct RestCase {
        const char* name;
        Soldier before;
        int morale;
        UnitStatus status = Ordered;
        Formation formation = Line;
        int actionPoints = 1;
        int visibility = 20;
        int villages = 1;
    };
    const RestCase cases[] = {
        {"marched", {.morale = 20, .actionPoints = 0}, 20},
        {"rested", {.morale = 20}, 22},
        {"rested in the dark, when the line does not march",
         {.morale = 20},
         24,
         Ordered,
         Line,
         0,
         3},
        {"rested in fog", {.morale = 20}, 22, Ordered, Line, 1, 4},
        {"rest has its limit", {.morale = 23}, 24},
        {"rest steadies", {.status = Unsteady, .morale = 18}, 20},
        {"rest gathers",
         {.formation = NoFormation, .status = Routed, .morale = 8},
         10,
         Shaken,
         NoFormation},
        {"shaken",
         {.formation = Square, .status = Shaken, .morale = 11, .actionPoints = 0},
         11,
         Shaken},
        {"among houses",
         {.formation = Square, .status = Shaken, .morale = 11, .actionPoints = 0},
         11,
         Shaken,
         Square,
         1,
         20,
         2},
        {"shaken at 58 percent", {.status = Shaken, .morale = 14, .actionPoints = 0}, 14, Shaken},
        {"at 60",
         {.status = Shaken, .morale = 12, .maxMorale = 20, .actionPoints = 0},
         12,
         Unsteady},
        {"at 80", {.status = Shaken, .morale = 16, .maxMorale = 20, .actionPoints = 0}, 16},
        {"shaken horse",
         {.type = Lancers, .status = Shaken, .morale = 11, .actionPoints = 0},
         11,
         Shaken,
         AttackColumn,
         2},
        {"shaken guns keep their formation",
         {.type = FieldArtillery,
          .formation = MarchColumn,
          .status = Shaken,
          .morale = 11,
          .actionPoints = 0},
         11,
         Shaken,
         MarchColumn},
        {"routed",
         {.formation = NoFormation, .status = Routed, .morale = 3, .actionPoints = 0},
         10,
         Shaken,
         NoFormation},
        {"the last man routed",
         {.formation = NoFormation,
          .strength = 1,
          .status = Routed,
          .morale = 3,
          .actionPoints = 0},
         10,
         Shaken,
         NoFormation},
    };
    for (const RestCase& rest : cases) {
        Evening evening(rest.before, false, rest.villages);
        evening.game.header.visibility = rest.visibility;
        RunEndTurnMorale(evening.game);
        const Unit& unit = evening.Tired();
        EXPECT_EQ(unit.morale, rest.morale) << rest.name;
        EXPECT_EQ(unit.status, rest.status) << rest.name;
        EXPECT_EQ(unit.formation, rest.formation) << rest.name;
        EXPECT_EQ(unit.actionPoints, rest.actionPoints) << rest.name;
        EXPECT_EQ(unit.strength, rest.before.strength) << rest.name;
        EXPECT_EQ(evening.witness.Heard(), Heard{"courier 93"}) << rest.name;
    }
}

// Alone with the enemy a routed unit that throws nothing scores 10; experienced troops fail, and
// veterans hold.
TEST(EndTurnMorale, MeltsTheRoutedBeforeTheEnemy) {
    struct MeltCase {
        const char* name;
        Soldier before;
        int loss;
        int morale;
        UnitStatus status;
        int points;  // booked: of a strength point x 24 morale x loss
    };
    const MeltCase cases[] = {
        {"foot sheds one", {.morale = 3}, 1, 2, Routed, 4 * 24},
        {"veterans rally", {.quality = Veteran, .morale = 3}, 0, 10, Shaken, 0},
        {"horse sheds two", {.type = Lancers, .morale = 3}, 2, 1, Routed, 12 * 24 * 2},
        {"morale stops at 0", {.type = Lancers, .morale = 1}, 2, 0, Routed, 12 * 24 * 2},
        {"the last horse",
         {.type = Lancers, .strength = 2, .morale = 3},
         2,
         0,
         Destroyed,
         12 * 24 * 2},
        {"the last man", {.strength = 1, .morale = 3}, 1, 0, Destroyed, 4 * 24},
        {"no morale at all", {.morale = 0}, 4, 0, Destroyed, 4 * 24 * 4},
    };
    for (const MeltCase& melt : cases) {
        Soldier before = melt.before;
        before.status = Routed;
        before.actionPoints = 0;
        Evening evening(before, true);
        const Cell place = evening.Tired().Place();
        RunEndTurnMorale(evening.game);
        const Unit& unit = evening.Tired();
        SCOPED_TRACE(melt.name);
        EXPECT_EQ(unit.strength, before.strength - melt.loss);
        EXPECT_EQ(unit.morale, melt.morale);
        EXPECT_EQ(unit.status, melt.status);
        EXPECT_EQ(unit.Place() == kNoCell, unit.strength == 0);
        EXPECT_EQ(IsHeld(evening.game, place), unit.strength > 0);
        EXPECT_EQ(evening.game.loss.frenchLossSP, melt.loss);
        EXPECT_EQ(evening.game.loss.frenchLossPoints, melt.points);
        ASSERT_EQ(evening.witness.dialogs.size(), melt.loss > 0 ? 1U : 0U);
        if (melt.loss == 0) continue;
        const Dialog& notice = evening.witness.dialogs.front();
        EXPECT_EQ(notice.templateId, kRoutedUnitReport);
        EXPECT_EQ(notice.At(1402).text, "French Army");
        EXPECT_EQ(notice.At(1404).text, std::to_string(melt.loss));
    }
}

// Shaken it scores 10 - 2, and 1 with the face of a die of six when it has more than 9 of 24 left.
TEST(EndTurnMorale, TestsTheShakenBeforeTheEnemy) {
    struct TestCase {
        const char* name;
        Quality quality;
        int morale;
        std::vector<DieThrow> dice;
        int actionPoints;
        UnitStatus statusAfter;
        Formation formationAfter;
        int moraleAfter;
        int strengthAfter;
        Heard heard = {};
    };
    const Heard routs = {"courier 280"};
    const Heard routsAndMelts = {"courier 280", "dialog 338"};
    const TestCase cases[] = {
        {"12 holds", Experienced, 11, {{6, 3}}, 0, Shaken, Line, 11, 4},
        {"11 wavers", Experienced, 11, {{6, 2}}, 0, Shaken, Square, 11, 4},
        {"8 breaks, then 10 wavers",
         Experienced,
         9,
         {},
         0,
         Routed,
         NoFormation,
         7,
         3,
         routsAndMelts},
        {"10 breaks", Conscript, 11, {{6, 1}}, 0, Routed, NoFormation, 7, 3, routsAndMelts},
        {"a day's rest mends it", Conscript, 11, {{6, 1}}, 1, Shaken, NoFormation, 10, 4, routs},
    };
    for (const TestCase& test : cases) {
        Evening evening({.formation = Square,
                         .status = Shaken,
                         .quality = test.quality,
                         .morale = test.morale,
                         .actionPoints = test.actionPoints},
                        true);
        const std::uint32_t thrown = PrepareDice(evening.game, test.dice);
        RunEndTurnMorale(evening.game);
        const Unit& unit = evening.Tired();
        SCOPED_TRACE(test.name);
        EXPECT_EQ(unit.status, test.statusAfter);
        EXPECT_EQ(unit.formation, test.formationAfter);
        EXPECT_EQ(unit.morale, test.moraleAfter);
        EXPECT_EQ(unit.strength, test.strengthAfter);
        EXPECT_EQ(evening.game.generator.State(), thrown);
        Heard heard = evening.witness.Heard();
        heard.erase(heard.begin());  // that all recover
        EXPECT_EQ(heard, test.heard);
    }
}

TEST(EndTurnMorale, EndsWhatLastsATurn) {
    struct ActivityCase {
        UnitActivity before;
        UnitActivity after;
        int actionPoints;
    };
    using Activity = UnitActivity;
    const ActivityCase cases[] = {
        {Activity::None, Activity::None, 1},
        {Charging, Activity::None, 0},
        {BayonetCharge, Activity::None, 0},
        {Reforming, Activity::None, 0},
        {Activity::Hold, Activity::None, 1},
        {Activity::BuildingBridge, Activity::BuildingBridge, 0},
    };
    for (const ActivityCase& activity : cases) {
        Evening evening({.activity = activity.before});
        RunEndTurnMorale(evening.game);
        const int before = static_cast<int>(activity.before);
        EXPECT_EQ(evening.Tired().activity, activity.after) << before;
        EXPECT_EQ(evening.Tired().actionPoints, activity.actionPoints) << before;
    }
    for (int fixedUntil : {5, 6}) {
        Evening evening({.actionPoints = fixedUntil - 5, .disrupted = 1});
        Unit& unit = evening.Tired();
        unit.fixedUntilTurn = fixedUntil;
        unit.outOfCommand = unit.inCommand = unit.attackedFlag = 1;
        unit.previousX = unit.previousY = 3;
        evening.game.state.strikeDrawCard = 1;
        evening.game.state.bombardmentState = fixedUntil - 3;
        RunEndTurnMorale(evening.game);
        EXPECT_EQ(unit.outOfCommand, fixedUntil == 5 ? 0 : 1);
        EXPECT_EQ(unit.disrupted, fixedUntil == 5 ? 1 : 0) << "rested";
        EXPECT_EQ(unit.canMove + unit.inCommand + unit.attackedFlag, 0);
        EXPECT_EQ(unit.previousX + unit.previousY, 0);
        EXPECT_EQ(evening.game.state.strikeDrawCard, 0);
        EXPECT_EQ(evening.game.state.bombardmentState, fixedUntil == 5 ? 0 : 3);
    }
}

TEST(EndTurnMorale, PassesOverUnitsThatAreStillToCome) {
    Evening evening({.morale = 9, .actionPoints = 2});
    evening.Tired().arrivalTurn = 6;
    const Unit before = evening.Tired();
    RunEndTurnMorale(evening.game);
    EXPECT_EQ(evening.Tired(), before);
}

TEST(EndTurnMorale, ThinsSmokeByTheWind) {
    struct WindCase {
        int windSpeed;
        std::vector<DieThrow> dice;
        bool clears;
    };
    const WindCase cases[] = {
        {0, {}, false},        {1, {{5, 1}}, true},  {5, {{5, 4}}, false},  {6, {{3, 1}}, true},
        {10, {{3, 2}}, false}, {11, {{2, 1}}, true}, {30, {{2, 0}}, false},
    };
    for (const WindCase& wind : cases) {
        Evening evening({});
        evening.game.time.windSpeed = wind.windSpeed;
        const Cell cells[] = {{0, 0}, {24, 5}, {12, 3}};
        for (Cell cell : cells)
            evening.game.grid.At(cell).roadTile = kSmoke;
        evening.game.grid.At({5, 5}).roadTile = kFire;
        const std::uint32_t thrown = PrepareDice(evening.game, wind.dice);
        RunEndTurnMorale(evening.game);
        for (Cell cell : cells) {
            EXPECT_EQ(evening.game.grid.At(cell).roadTile, wind.clears ? kNoRoad : kSmoke)
                << wind.windSpeed;
        }
        EXPECT_EQ(evening.game.grid.At({5, 5}).roadTile, kFire);
        EXPECT_EQ(evening.game.generator.State(), thrown) << wind.windSpeed;
    }
}

}  // namespace
}  // namespace varnstride
