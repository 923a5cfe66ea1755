// Three areas in a row with open links between neighbours, for one attack in the middle one; area 1
// lies west, area 3 east. The French are the attackers unless a test says otherwise, and make for
// the east.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "battle/attack.h"
#include "battle/enemy_slots.h"
#include "model/areas.h"
#include "model/units_on_map.h"
#include "support/field.h"
#include "support/recording_person.h"

namespace varnstride {

// Notes the reports of attacks beside everything else.
class WitnessPerson : public RecordingPerson {
 public:
    std::vector<AttackReport> reports;
    std::vector<Dialog> dialogs;

    void Fought(const AttackReport& report) override { reports.push_back(report); }
    void Ask(Dialog& dialog) override {
        dialogs.push_back(dialog);
        RecordingPerson::Ask(dialog);
    }
};

// Strength 4, morale 24 of 24, in Line, 8 loads, 1 Action Point.
inline Unit Fighter(UnitType type) {
    Unit unit = MakeUnit(type);
    unit.strength = unit.initialStrength = 4;
    unit.morale = unit.maxMorale = 24;
    unit.ammunition = 8;
    unit.canMove = 1;
    if (IsFieldGun(type)) unit.weapon = Weapon::SixPounder;
    return unit;
}

inline FieldPlan RowOfThree() {
    FieldPlan plan;
    plan.mapNumber = 7;  // where the first Allied slot tells whose army it is
    for (int area = 1; area < 3; ++area) {
        plan.links.push_back({.from = area, .to = area + 1, .firstStep = FirstStep::Open});
        plan.links.push_back({.from = area + 1, .to = area, .firstStep = FirstStep::Open});
    }
    return plan;
}

struct AttackField : Field {
    static constexpr int kWest = 1;
    static constexpr int kMiddle = 2;
    static constexpr int kEast = 3;

    WitnessPerson witness;

    explicit AttackField(const FieldPlan& plan = RowOfThree()) : Field(plan) {
        game.person = &witness;
        game.header.visibility = 20;
        game.turnLog.advanceDirection = 2;
        game.settings.quickResults = game.settings.noDelays = 1;
    }

    // Selects the area of the cell for the attacker's army and fills in the enemy's slots.
    void Prepare(UnitId attacker, Cell area) {
        TakeInHand(attacker);
        game.state.selectedCell = area;
        SelectArea(game);
        FillEnemySlots(game);
        ComputeTerrainDefence(game);
        game.battle.primaryCell = game.At(attacker).Place();
    }
    void Prepare(UnitId attacker) { Prepare(attacker, game.At(attacker).Place()); }

    // The attack of the unit on the enemy of its own area.
    void Attack(UnitId attacker) {
        Prepare(attacker);
        ResolveAttack(game);
    }
    // The barrage of guns on the target's area.
    void Bombard(UnitId guns, UnitId target) {
        Prepare(guns, game.At(target).Place());
        game.state.bombardmentMode = 1;
        ResolveAttack(game);
        game.state.bombardmentMode = 0;
    }
    bool HasFought() const { return !witness.reports.empty(); }
};

}  // namespace varnstride
