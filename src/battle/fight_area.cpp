#include "battle/fight_area.h"

#include "actions/top_bar.h"
#include "battle/area_forces.h"
#include "battle/attack.h"
#include "battle/enemy_slots.h"
#include "battle/tactics.h"
#include "model/areas.h"
#include "model/dice.h"
#include "model/reach.h"
#include "model/terrain.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kReplay = 2;
constexpr int kOrdinaryLeadership = 2;

// What is known of an area's battle lasts as long as the battle.
void ForgetAreaBattle(Game& game) {
    const Cell primary = game.battle.primaryCell;
    const int targetArmy = game.battle.targetArmy;
    game.battle = {};
    game.battle.primaryCell = primary;
    game.battle.targetArmy = targetArmy;
}

void BeginAreaBattle(Game& game) {
    ForgetAreaBattle(game);
    game.census.enemyLeaderHere = 0;
    game.battle.requiredLeadership = kOrdinaryLeadership;
    game.state.rollLogActive = 1;
    CountCloseSlots(game);
    ComputeTerrainDefence(game);
}

// The ground that the leading unit holds is shown; no unit's points count meanwhile.
void ShowPrimaryUnit(Game& game) {
    if (game.battle.primaryFound == 0) return;
    game.state.currentUnit = UnitStandingAt(game, game.battle.primaryCell).index;
    game.state.selectedCell = game.battle.primaryCell;
    ShadeReachWith(game, 0);
    game.person->Redraw(View::CentreOnSelected);
}

// Infantry that has only cavalry before it and no other arm beside it makes no plans.
bool SkipsTactics(const Game& game) {
    const BattleState& battle = game.battle;
    const bool onlyCavalry =
        battle.enemyCavalryHere == 1 && battle.enemyLineHere == 0 && battle.enemyGunsHere == 0;
    const bool noOtherArm = battle.ownCavalry == 0 && battle.ownGuns == 0;
    const bool french = game.OwnSide() == Side::French;
    const bool infantry = battle.ownLine == 1 || (french && battle.ownLight == 1);
    return onlyCavalry && noOtherArm && infantry;
}

void LogTactics(Game& game) {
    BattleState& battle = game.battle;
    battle.chosenTactic = LoggedValue(game, battle.chosenTactic);
    battle.tacticalResponse = LoggedValue(game, battle.tacticalResponse);
    battle.tacticalAdvantage = LoggedValue(game, battle.tacticalAdvantage);
    if (game.header.passMode == kReplay) {
        battle.requiredLeadership = LeadershipFor(battle.chosenTactic);
    }
}

bool LeadsByTactic(const Game& game, const Unit& unit) {
    const BattleState& battle = game.battle;
    if (unit.activity == UnitActivity::Hold || unit.formation == Formation::MarchColumn) {
        return false;
    }
    const bool line = IsBetween(unit.type, UnitType::LineInfantry, UnitType::DragoonsDismounted);
    const bool charge = battle.chosenTactic == static_cast<int>(Tactic::CavalryCharge);
    const bool gunsMayLead = game.OwnSide() == Side::Allied || battle.ownLine == 0;
    return (line && battle.ownLine == 1 && !charge) ||
           (unit.type == UnitType::LightInfantry && battle.ownLight == 1) ||
           (IsFieldGun(unit.type) && battle.ownGuns == 1 && gunsMayLead) ||
           (IsMountedOrMortar(unit.type) && battle.ownCavalry == 1);
}

void MovePrimaryToArm(Game& game) {
    for (int index : Attackers(game)) {
        const Unit& unit = game.At({game.state.currentArmy, index});
        if (!LeadsByTactic(game, unit)) continue;
        game.battle.primaryCell = unit.Place();
        return;
    }
}

void PlanBattle(Game& game) {
    BattleState& battle = game.battle;
    if (game.options.tacticalPlayOn != 1 || battle.attackingSlots <= 1) return;
    battle.noTactics = SkipsTactics(game) ? 1 : 0;
    if (battle.noTactics == 0 && game.header.passMode < kReplay) ChooseTactics(game);
    LogTactics(game);
    MovePrimaryToArm(game);
    battle.primaryCell.x = LoggedValue(game, battle.primaryCell.x);
    battle.primaryCell.y = LoggedValue(game, battle.primaryCell.y);
}

// Without tactics the further slots fight one by one, each against the enemy as he now stands.
void AttackFromFurtherSlots(Game& game, const AreaSlots& slots, int slotsFilled) {
    if (game.options.tacticalPlayOn != 0) return;
    for (int slot = 1; slot < slotsFilled; ++slot) {
        SetAreaSlots(game, slots);
        game.state.ownSlotsFilled = slotsFilled;
        game.state.moveCost = 0;
        FillEnemySlots(game);
        game.battle.primaryCell = OwnSlot(game, slot);
        if (game.battle.enemySlotUnit[0] > 0) ResolveAttack(game);
    }
}

void FightWithEnemy(Game& game) {
    const AreaSlots slots = game.state.currentAreaSlots;
    const int slotsFilled = game.state.ownSlotsFilled;
    FindPrimaryCell(game);
    GatherAttackers(game);
    ShowPrimaryUnit(game);
    PlanBattle(game);
    game.state.moveCost = 0;
    if (game.battle.attackingSlots > 0) ResolveAttack(game);
    AttackFromFurtherSlots(game, slots, slotsFilled);
}

}  // namespace

void FightArea(Game& game) {
    BeginAreaBattle(game);
    if (game.state.ownSlotsFilled > 0) CountEnemyForces(game);
    if (game.battle.enemySlotsFilled > 0) FightWithEnemy(game);
    ForgetAreaBattle(game);
    DrawTopBar(game);
    game.state.rollLogActive = 0;
}

}  // namespace varnstride
