#include "battle/computer_tactics.h"

#include <initializer_list>

#include "battle/tactics.h"
#include "battle/tactics_tables.h"
#include "model/dice.h"
#include "model/terrain.h"

namespace varnstride {
namespace {

bool IsOneOf(int tactic, std::initializer_list<int> tactics) {
    for (int listed : tactics) {
        if (tactic == listed) return true;
    }
    return false;
}

bool AllInSquare(const BattleState& battle) {
    return battle.enemySquares == battle.enemySlotsFilled;
}

int FitLine(const BattleState& battle, bool hard, int tactic) {
    if (battle.enemyCavalryHere != 0) tactic = 0;
    if (AllInSquare(battle)) tactic = 7;
    if (hard && tactic != 0 && tactic != 7) tactic = 4;
    return IsOneOf(tactic, {5, 6, 8, 9}) ? 0 : tactic;
}

int FitLight(const BattleState& battle, bool hard, int tactic, int hardTactic) {
    if (battle.enemyCavalryHere != 0) tactic = 0;
    if (hard && tactic != 0) tactic = hardTactic;
    return IsOneOf(tactic, {5, 6, 9}) ? 0 : tactic;
}

int FitCavalryAndGuns(const BattleState& battle, bool hard, int tactic) {
    if (hard && !AllInSquare(battle)) tactic = 5;
    return IsOneOf(tactic, {3, 5, 6}) ? tactic : 0;
}

int FitGunsAndLight(const BattleState& battle, bool hard, int tactic) {
    if (hard) tactic = AllInSquare(battle) ? 6 : 8;
    return IsOneOf(tactic, {3, 5, 9}) ? 0 : tactic;
}

int FitToArms(const BattleState& battle, bool hard, int tactic) {
    const unsigned arms = (battle.ownLine != 0 ? kLine : 0U) |
                          (battle.ownCavalry != 0 ? kCavalry : 0U) |
                          (battle.ownGuns != 0 ? kGuns : 0U) | (battle.ownLight != 0 ? kLight : 0U);
    switch (arms) {
        case kLine: return FitLine(battle, hard, tactic);
        case kGuns:
        case kLine | kGuns: return 6;
        case kLight: return FitLight(battle, hard, tactic, 8);
        case kLine | kLight: return FitLight(battle, hard, tactic, 4);
        case kCavalry | kGuns: return FitCavalryAndGuns(battle, hard, tactic);
        case kGuns | kLight: return FitGunsAndLight(battle, hard, tactic);
        case kCavalry: return IsOneOf(tactic, {4, 5, 9}) ? tactic : 0;
        default: return tactic;
    }
}

int FitToGround(const Game& game, int tactic) {
    if (game.battle.ownGuns == 0 && tactic == 6) return 0;
    const bool close = game.state.closeSlots >= kCloseTerrain;
    return close && IsOneOf(tactic, {5, 9}) ? 0 : tactic;
}

// Whether the enemy has the arm that gives the response that was drawn.
bool EnemyCanRespond(const BattleState& battle, int tactic) {
    switch (static_cast<TacticalResponse>(battle.tacticalResponse)) {
        case TacticalResponse::FrontalAttack:
            return battle.enemyLineHere != 0 || battle.enemyLightHere != 0;
        case TacticalResponse::FrontalAssault:
            return battle.enemyLineHere != 0 || IsOneOf(tactic, {8, 9});
        case TacticalResponse::ArtilleryFireOnly: return battle.enemyGunsHere != 0;
        case TacticalResponse::CavalryCounterCharge: return battle.enemyCavalryHere != 0;
        case TacticalResponse::LightInfantrySkirmish: return battle.enemyLineHere != 0;
        default: return true;
    }
}

int ComputersAdvantage(const BattleState& battle, int tactic) {
    const auto response = static_cast<TacticalResponse>(battle.tacticalResponse);
    if (!EnemyCanRespond(battle, tactic)) return 0;
    const bool bothSkirmish = response == TacticalResponse::LightInfantrySkirmish &&
                              tactic == static_cast<int>(Tactic::LightInfantrySkirmish);
    return bothSkirmish ? 1 : AdvantageOf(tactic, battle.tacticalResponse);
}

}  // namespace

void LetComputerChoose(Game& game) {
    BattleState& battle = game.battle;
    const bool hard = game.header.hardDifficulty == 1;
    const int tactic = FitToGround(game, FitToArms(battle, hard, Die(game, 10)));
    battle.chosenTactic = tactic;
    battle.tacticalAdvantage = ComputersAdvantage(battle, tactic);
}

}  // namespace varnstride
