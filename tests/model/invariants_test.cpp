// Each broken rule is found and named; a sound battle passes.
#include "model/invariants.h"

#include <gtest/gtest.h>

#include <functional>

#include "model/units_on_map.h"
#include "support/field.h"

namespace varnstride {
namespace {

class SoundBattle : public Field {
 public:
    SoundBattle() : Field(FieldPlan{}) {
        Unit unit = MakeUnit(UnitType::LineInfantry);
        unit.ammunition = kFullAmmunition;
        first = Add(kFrench, 1, 1, unit);
        second = Add(kFrench, 1, 2, unit);
        enemy = Add(kPrussian, 2, 1, unit);
    }

    UnitId first;
    UnitId second;
    UnitId enemy;
};

TEST(Invariants, FindEachBrokenRule) {
    struct Case {
        std::function<void(SoundBattle&)> spoil;
        std::vector<std::string> broken;
    };
    const Case kCases[] = {
        {[](SoundBattle&) {}, {}},
        {[](SoundBattle& battle) { DestroyUnit(battle.game, battle.enemy); },
         {"cell (9, 4): occupant 4 without its unit"}},
        {[](SoundBattle& battle) {
             VacateSlot(battle.game, battle.second);
             DestroyUnit(battle.game, battle.second);
         },
         {}},
        {[](SoundBattle& battle) {
             VacateSlot(battle.game, battle.first);
             LeadOffMap(battle.game, battle.first);
         },
         {"area 1: the unit at (3, 1) stands behind an empty slot"}},
        {[](SoundBattle& battle) { VacateSlot(battle.game, battle.enemy); },
         {"army 3 unit 1: occupant of (9, 4) is 0"}},
        {[](SoundBattle& battle) {
             battle.game.At(battle.enemy).SetPlace({10, 4});
         },
         {"army 3 unit 1: (10, 4) is no slot of its side",
          "army 3 unit 1: occupant of (10, 4) is 0",
          "army 3 unit 1: (10, 4) is held by army 0 unit 0",
          "cell (9, 4): occupant 4 without its unit"}},
        {[](SoundBattle& battle) { battle.game.At(battle.first).morale = 9; },
         {"army 0 unit 1: morale 9 is not within 0 to 8"}},
        {[](SoundBattle& battle) { battle.game.At(battle.first).strength = 7; },
         {"army 0 unit 1: strength 7 is not within 0 to 6"}},
        {[](SoundBattle& battle) { battle.game.At(battle.first).ammunition = -1; },
         {"army 0 unit 1: ammunition -1 is not within 0 to 8"}},
        {[](SoundBattle& battle) { battle.game.At(battle.first).status = UnitStatus::Routed; },
         {"army 0 unit 1: routed in formation 0"}},
        {[](SoundBattle& battle) { battle.game.Army(kFrench).commandPoints = -1; },
         {"army 0: commandPoints -1 is below 0"}},
        {[](SoundBattle& battle) { battle.game.state.clockHours = 9.6; },
         {"clockHours 9.600000 is no time of day"}},
        {[](SoundBattle& battle) { battle.game.state.gameTurn = 0; },
         {"gameTurn 0 is not within 1 to 32767"}},
    };
    for (const Case& each : kCases) {
        SoundBattle battle;
        each.spoil(battle);
        std::vector<std::string> broken = BrokenInvariants(battle.game, Overspending::Never);
        EXPECT_EQ(broken, each.broken);
    }
}

TEST(Invariants, LetTheComputerOverspend) {
    SoundBattle battle;
    battle.game.Army(kFrench).commandPoints = -1;
    EXPECT_TRUE(BrokenInvariants(battle.game, Overspending::ByTheComputer).empty());
}

}  // namespace
}  // namespace varnstride
