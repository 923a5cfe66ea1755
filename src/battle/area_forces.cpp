#include "battle/area_forces.h"

#include <algorithm>

#include "battle/enemy_slots.h"
#include "model/areas.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

void CountEnemyUnit(BattleState& battle, const Unit& unit) {
    if (unit.type == UnitType::LightInfantry) battle.enemyLightHere = 1;
    if (IsBetween(unit.type, UnitType::LineInfantry, UnitType::DragoonsDismounted)) {
        battle.enemyLineHere = 1;
    }
    if (IsMountedOrMortar(unit.type)) battle.enemyCavalryHere = 1;
    if (IsFieldGun(unit.type)) battle.enemyGunsHere = 1;
    if (unit.formation == Formation::Square) ++battle.enemySquares;
    if (unit.status == UnitStatus::Routed) ++battle.enemyRouted;
    if (unit.status == UnitStatus::Shaken) ++battle.enemyShaken;
}

// The unit of the army in play that stands in an own slot in good order; 0 none.
int SteadyUnitIn(const Game& game, Cell slot) {
    const UnitId id = UnitStandingAt(game, slot);
    if (!id || id.army != game.state.currentArmy || !IsOnMap(game, id)) return 0;
    return game.At(id).status > UnitStatus::Shaken ? id.index : 0;
}

bool CanAttack(const Game& game, const Unit& unit, int slot) {
    const bool allied = game.OwnSide() == Side::Allied;
    const bool horse = allied ? IsMountedOrMortar(unit.type) : IsMounted(unit.type);
    const bool marchingInFront = slot == 0 && unit.formation == Formation::MarchColumn;
    return unit.type != UnitType::Leader && (unit.ammunition > 0 || horse) && !marchingInFront;
}

bool JoinsIn(const Unit& unit) {
    return unit.ammunition > 0 || IsMounted(unit.type);
}

void CountOwnArm(BattleState& battle, UnitType type) {
    if (type == UnitType::LightInfantry) battle.ownLight = 1;
    if (IsBetween(type, UnitType::LineInfantry, UnitType::DragoonsDismounted)) battle.ownLine = 1;
    if (IsMounted(type)) battle.ownCavalry = 1;
    if (IsFieldGun(type)) battle.ownGuns = 1;
}

}  // namespace

void CountEnemyForces(Game& game) {
    FillEnemySlots(game);
    BattleState& battle = game.battle;
    for (int index : battle.enemySlotUnit) {
        if (index > 0) CountEnemyUnit(battle, game.At({battle.targetArmy, index}));
    }
}

void FindPrimaryCell(Game& game) {
    BattleState& battle = game.battle;
    battle.primaryCell = kNoCell;
    for (int slot = 0; slot < game.state.ownSlotsFilled; ++slot) {
        const int index = SteadyUnitIn(game, OwnSlot(game, slot));
        if (index == 0) continue;
        const Unit& unit = game.At({game.state.currentArmy, index});
        if (unit.activity == UnitActivity::Hold || !CanAttack(game, unit, slot)) continue;
        ++battle.attackingSlots;
        if (battle.primaryFound == 0 && unit.formation != Formation::MarchColumn) {
            battle.primaryCell = unit.Place();
            battle.primaryFound = 1;
        }
    }
}

std::vector<int> Attackers(const Game& game) {
    std::vector<int> units;
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const int index = SteadyUnitIn(game, OwnSlot(game, slot));
        if (index > 0 && JoinsIn(game.At({game.state.currentArmy, index}))) units.push_back(index);
    }
    std::sort(units.begin(), units.end());
    return units;
}

void GatherAttackers(Game& game) {
    BattleState& battle = game.battle;
    for (int index : Attackers(game)) {
        Unit& unit = game.At({game.state.currentArmy, index});
        battle.combinedLeadership += unit.leadership;
        unit.canMove = 1;
        CountOwnArm(battle, unit.type);
    }
    const int arms = battle.ownGuns + battle.ownLine + battle.ownCavalry;
    battle.combinedArms = arms >= 2 ? 1 : 0;
}

}  // namespace varnstride
