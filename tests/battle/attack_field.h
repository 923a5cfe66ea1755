// Three areas in a row with open links between neighbours, for one attack in the middle one; area 1
// lies west, area 3 east. The French are the attackers unless a test says otherwise, and make for
// the east.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "battle/attack.h"
#include "battle/enemy_slots.h"
#include "model/areas.h"
#include "model/units_on_map.h"
#include "support/field.h"
#include "support/recording_person.h"

namespace varnstride {

// The words of a unit, for tables.
namespace words {
using enum UnitType;
using enum Formation;
using enum UnitStatus;
using Quality::Elite, Quality::Veteran, Quality::Experienced, Quality::Militia, Quality::Conscript;
using UnitActivity::Charging, UnitActivity::BayonetCharge, UnitActivity::Reforming;
using Weapon::Carbine, Weapon::Musket, Weapon::Rifle;
using Weapon::ThreePounder, Weapon::SixPounder, Weapon::TwelvePounder;
}  // namespace words

// A unit as a case tells of it; what it leaves out is that of steady foot in Line.
struct Soldier {
    UnitType type = UnitType::LineInfantry;
    Formation formation = Formation::Line;
    int strength = 4;
    UnitStatus status = UnitStatus::Ordered;
    Quality quality = Quality::Experienced;
    int morale = 24;
    int maxMorale = 24;
    UnitActivity activity = UnitActivity::None;
    std::optional<Weapon> weapon = {};  // six pounders of field guns, else nothing
    int ammunition = 8;
    int actionPoints = 1;
    int disrupted = 0;

    Unit Made() const {
        Unit unit = MakeUnit(type);
        unit.formation = formation;
        unit.strength = unit.initialStrength = strength;
        unit.status = status;
        unit.quality = quality;
        unit.morale = morale;
        unit.maxMorale = maxMorale;
        unit.activity = activity;
        unit.weapon = weapon.value_or(IsFieldGun(type) ? Weapon::SixPounder : Weapon::None);
        unit.ammunition = ammunition;
        unit.actionPoints = actionPoints;
        unit.disrupted = disrupted;
        unit.canMove = 1;
        return unit;
    }
};

inline Unit Fighter(UnitType type) {
    return Soldier{.type = type}.Made();
}

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

using Heard = std::vector<std::string>;

inline FieldPlan RowOfThree() {
    FieldPlan plan;
    plan.mapNumber = 7;  // where the first Allied slot tells whose army it is
    for (int area = 1; area < 3; ++area) {
        plan.links.push_back({.from = area, .to = area + 1, .firstStep = FirstStep::Open});
        plan.links.push_back({.from = area + 1, .to = area, .firstStep = FirstStep::Open});
    }
    return plan;
}

// As many of the six slots of the middle area are village.
inline FieldPlan VillageIn(int slots) {
    FieldPlan plan = RowOfThree();
    plan.paint = [slots](Cell cell, MapCell& mapCell) {
        const std::array<Cell, 6> places = {{{9, 1}, {11, 1}, {13, 1}, {9, 4}, {11, 4}, {13, 4}}};
        for (int slot = 0; slot < slots; ++slot) {
            if (cell == places[static_cast<std::size_t>(slot)]) mapCell.terrainTile = 24;
        }
    };
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

// Two units in the first slots of the middle area, French against British unless said otherwise.
struct Duel : AttackField {
    Duel(const Soldier& attacker, const Soldier& target, const FieldPlan& plan = RowOfThree(),
         int attackerArmy = kFrench, int targetArmy = kBritish)
        : AttackField(plan) {
        attackerId = Add(attackerArmy, kMiddle, 1, attacker.Made());
        targetId = Add(targetArmy, kMiddle, 1, target.Made());
    }

    Unit& A() { return game.At(attackerId); }
    Unit& T() { return game.At(targetId); }
    void Fight() { Attack(attackerId); }
    const AttackReport& Report() const { return witness.reports.back(); }

    // Makes the target the opponent of the attacker, without an attack.
    void Face() {
        Prepare(attackerId);
        game.battle.targetArmy = targetId.army;
        game.battle.targetUnit = targetId.index;
    }
    // The attacker's card makes him pass every test.
    void SteadyTheAttacker() {
        game.state.steadyNerves = 1;
        game.state.steadyNervesArmy = attackerId.army;
    }

    UnitId attackerId;
    UnitId targetId;
};

}  // namespace varnstride
