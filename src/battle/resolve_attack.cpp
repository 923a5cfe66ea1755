// One attack from the search for the attacker to the prisoners. Two numbers decide it: each side's
// strike becomes a morale hit on the other, and dice that can each cost a strength point.
#include "actions/courier.h"
#include "actions/sides.h"
#include "battle/attack.h"
#include "battle/attack_gates.h"
#include "battle/battle_result.h"
#include "battle/blows.h"
#include "battle/enemy_slots.h"
#include "battle/pairing.h"
#include "battle/rout.h"
#include "model/areas.h"
#include "model/dice.h"
#include "model/terrain.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

void ClearResults(BattleState& battle) {
    battle.attackStrike = battle.defenceStrike = 0;
    battle.attackTerms.clear();
    battle.defenceTerms.clear();
    battle.defenderHit = battle.attackerHit = 0;
    battle.defenderLoss = battle.attackerLoss = 0;
    battle.resultMark = 0;
}

bool CanLead(const Unit& unit) {
    const bool armed = unit.ammunition > 0 || HasBayonetsFixed(unit) || IsMounted(unit.type);
    return armed && unit.canMove == 1 && unit.type != UnitType::Leader &&
           unit.activity != UnitActivity::Hold && unit.status > UnitStatus::Shaken;
}

// Takes the unit on primaryCell in hand; whether it can attack.
bool FindAttacker(Game& game) {
    if (game.battle.computerBarrage == 1) return true;
    const UnitId id = UnitStandingAt(game, game.battle.primaryCell);
    const bool leads =
        id && id.army == game.state.currentArmy && IsOnMap(game, id) && CanLead(game.At(id));
    game.state.currentUnit = leads ? id.index : 0;
    return leads;
}

void TellOfBreakdown(Game& game) {
    const bool told = game.options.tacticalPlayOn == 1 && game.state.eventCard < kFirstWeatherCard;
    if (!told) return;
    if (HumanOrOpenMap(game)) game.person->Redraw(View::CentreOnSelected);
    ShowCourier(game, 7);
}

// While the computer's passes run it has named the target itself.
bool TargetIsNamed(const Game& game) {
    constexpr int kPassesOver = 9;
    return game.battle.computerBarrage == 1 ||
           (!IsHumanArmy(game) && game.state.opponentMark != kPassesOver);
}

void LookAtTheField(Game& game) {
    BattleState& battle = game.battle;
    battle.targetPlace = Target(game).Place();
    battle.targetAlreadyRouted = Target(game).status == UnitStatus::Routed ? 1 : 0;
    CountDenseSlots(game);
    battle.areaOnFire = 0;
    for (Cell slot : game.state.currentAreaSlots) {
        if (game.grid.Holds(slot) && IsBurning(game.grid.At(slot))) battle.areaOnFire = 1;
    }
}

bool GoesIn(Game& game) {
    if (game.battle.computerBarrage != 1) TestTheGates(game);
    TestNerveOfHorse(game);
    if (game.battle.computerBarrage == 1) game.battle.attackGoes = 1;
    return game.battle.attackGoes == 1;
}

// Whether infantry sees horse come in time: the farther it rides, the surer.
bool SeesHorseInTime(Game& game, const Unit& attacker, const Unit& target) {
    const bool quick = attacker.formation < Formation::Square;
    const bool picked = target.quality < Quality::Experienced;
    switch (game.state.moveCost) {
        case 2:
            return attacker.formation < Formation::MarchColumn &&
                   target.quality < Quality::Conscript;
        case 1:
            return quick &&
                   (picked || (target.quality == Quality::Experienced && LoggedDie(game, 3) < 2));
        case 0: return quick && picked && LoggedDieShows(game, 2, 1);
        default: return false;
    }
}

void LetInfantryFormSquare(Game& game) {
    Unit& target = Target(game);
    const bool asked = IsMounted(game.InHand().type) && IsInfantry(target.type) &&
                       target.status > UnitStatus::Shaken && game.state.closeSlots < 2;
    if (asked && SeesHorseInTime(game, game.InHand(), target)) target.formation = Formation::Square;
}

// More wind, less smoke: the sides of the die by miles an hour.
int SmokeDie(int windSpeed) {
    if (windSpeed < 6) return 5;
    return windSpeed <= 10 ? 10 : 20;
}

// Covers every cell of the area, the last column included.
void MarkSmoke(Game& game, Cell cell) {
    const int ordinal = game.grid.AreaOf(cell);
    if (ordinal == 0) return;
    const AreaRow& row = game.atlas->Row(ordinal);
    for (Cell inside : game.grid.CellsOf(ordinal))
        game.grid.At(inside).roadTile = kSmoke;
    for (int y = 0; y < game.grid.Height(); ++y) {
        const Cell edge{game.grid.Width() - 1, y};
        const bool belongs = game.grid.Ground(edge).areaId == row.areaId && row.Holds(edge);
        if (belongs) game.grid.At(edge).roadTile = kSmoke;
    }
}

void RaiseSmoke(Game& game) {
    const UnitType attacker = game.InHand().type;
    const bool fires = kFootOrLeader.Holds(attacker) || attacker > UnitType::GuardCavalry;
    const bool smokes =
        game.options.smokeOn == 1 && fires && kFootOrLeader.Holds(Target(game).type);
    if (smokes && LoggedDieShows(game, SmokeDie(game.time.windSpeed), 1)) {
        MarkSmoke(game, game.InHand().Place());
    }
}

// What the report has shown is over.
void ClearTheField(Game& game) {
    Unit& attacker = game.InHand();
    if (attacker.strength == 0) attacker.SetPlace(kNoCell);
    BattleState& battle = game.battle;
    battle.tacticalAdvantage = battle.combinedLeadership = battle.combinedArms = 0;
    battle.resultMark = battle.terrainDefence = 0;
    battle.streamCrossed = battle.counterCharged = 0;
    game.census.enemyLeaderHere = 0;
}

void Fight(Game& game) {
    LookAtTheField(game);
    if (!GoesIn(game)) return;
    LetInfantryFormSquare(game);
    RaiseSmoke(game);
    StrikeTheTarget(game);
    LetTheTargetAnswer(game);
    ShakeTheTarget(game);
    SpreadRout(game);
    SpendAmmunition(game.InHand(), game.state.bombardmentMode != 0);
    TakeTargetLoss(game);
    RunTheRouted(game);
    BookAttackLosses(game);
    PlayAttackSounds(game);
    ReportAttack(game);
    ClearTheField(game);
    TakeSurrender(game);
}

enum class TargetChoice { OfTheAttacker, Named };

void Resolve(Game& game, TargetChoice choice) {
    const int inHand = game.state.currentUnit;
    BattleState& battle = game.battle;
    battle.attackRunning = true;
    ClearResults(battle);
    if (FindAttacker(game)) {
        if (choice == TargetChoice::OfTheAttacker) PickTarget(game);
        Fight(game);
        game.state.currentUnit = inHand;
    } else {
        TellOfBreakdown(game);
    }
    battle.attackRunning = false;
    battle.targetUnit = 0;
}

}  // namespace

void ResolveAttack(Game& game) {
    Resolve(game, TargetIsNamed(game) ? TargetChoice::Named : TargetChoice::OfTheAttacker);
}

void ResolveAttackOn(Game& game, UnitId target) {
    game.battle.targetArmy = target.army;
    game.battle.targetUnit = target.index;
    Resolve(game, TargetChoice::Named);
}

}  // namespace varnstride
