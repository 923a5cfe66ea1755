// Guns that shell, horse that charges and infantry that closes. Barrage and charge are fought at
// once; whoever has moved up to the enemy fights at the end of the turn.
#include "actions/courier.h"
#include "actions/top_bar.h"
#include "battle/attack.h"
#include "battle/barrage.h"
#include "model/areas.h"
#include "model/census.h"
#include "opponent/announcements.h"
#include "opponent/opponent_move.h"
#include "opponent/own_unit.h"
#include "opponent/passes.h"

namespace varnstride {
namespace {

// How many areas a gun throws; a fog that lets nobody see far binds the heaviest too.
int ReachOfGun(const Game& game, const Unit& gun) {
    if (gun.weapon != Weapon::TwelvePounder || game.header.fogExtreme == 1) return 1;
    return game.header.fogNormal == 1 ? 2 : gun.actionPoints;
}

bool CanBombard(const Game& game, const Unit& unit) {
    constexpr int kSightOfGunners = 10;
    return IsBetween(unit.type, UnitType::MortarArtillery, UnitType::FieldArtillery) &&
           unit.ammunition > 0 && unit.actionPoints > 0 && IsSteady(unit) && HasPoints(game) &&
           game.header.visibility >= kSightOfGunners;
}

void AnnounceBarrage(Game& game, Cell target) {
    constexpr int kBarrage = 287;
    if (!MovesAreShown(game)) return;
    for (PlayCell& cell : game.grid.PlayCells())
        cell.highlight = 0;
    const Cell gun = game.InHand().Place();
    game.grid.At(gun).highlight = 1;
    game.state.selectedCell = target;
    game.person->Redraw(View::CentreOnSelected);
    ShowCourier(game, kBarrage);
    game.grid.At(gun).highlight = 0;
}

void SelectAreaAt(Game& game, Cell cell) {
    game.state.selectedCell = cell;
    SelectArea(game);
}

// The unit in hand fights a target that it has picked, in the area in hand.
void Fight(Game& game, UnitId target) {
    BattleState& battle = game.battle;
    battle.primaryCell = game.InHand().Place();
    battle.requiredLeadership = 0;
    battle.targetArmy = target.army;
    battle.targetUnit = target.index;
    ComputeTerrainDefence(game);
    ResolveAttack(game);
}

void Shell(Game& game, Unit& gun, UnitId target) {
    const Cell shelled = game.At(target).Place();
    AnnounceBarrage(game, shelled);
    SelectAreaAt(game, shelled);
    game.battle.tacticalAdvantage = 0;
    --game.ArmyInPlay().commandPoints;
    gun.actionPoints = 0;
    gun.canMove = 1;
    game.battle.computerBarrage = 1;
    Fight(game, target);
    game.battle.computerBarrage = 0;
    DrawTopBar(game);
    SelectAreaAt(game, shelled);
    CheckBuildingFire(game);
}

void Bombard(Game& game, Unit& gun, TargetMarks& marks) {
    game.state.bombardmentMode = 1;
    game.state.roadMover = true;
    ShadeReachFrom(game, ReachOfGun(game, gun));
    ShowUnitInHand(game);
    marks.MarkEnemiesInReach(game, Marked::All);
    if (const UnitId target = marks.Pick(game, kBarrageTargets)) Shell(game, gun, target);
    game.state.bombardmentMode = 0;
    game.state.roadMover = false;
}

bool CanCharge(const Game& game, const Unit& unit) {
    constexpr int kCost = 2;
    return IsMountedOrMortar(unit.type) && unit.strength > 1 && MayAdvance(game, unit) &&
           game.ArmyInPlay().commandPoints >= kCost &&
           (unit.formation == Formation::Line || unit.formation == Formation::AttackColumn);
}

void StrikeAtOnce(Game& game, UnitId charger, UnitId target) {
    Unit& unit = game.At(charger);
    --game.ArmyInPlay().commandPoints;
    unit.visible = 1;
    unit.actionPoints = 0;
    unit.canMove = 1;
    unit.activity = UnitActivity::Charging;
    SelectOwnArea(game);
    Fight(game, target);
    game.state.currentUnit = charger.index;
    unit.activity = UnitActivity::Reforming;
    DrawTopBar(game);
}

// Rides at the target, or at whoever bars the way to it.
void RideAt(Game& game, UnitId target) {
    constexpr int kCharges = 249;
    const UnitId charger = game.InHandId();
    game.state.targetCell = game.At(target).Place();
    LookForInterception(game);
    if (game.state.stoppedShort != 0) target = UnitStandingAt(game, FirstEnemySlot(game));
    if (game.state.moveBlocked != 0 || !TryMove(game)) return;
    AnnounceIfShown(game, kCharges);
    StrikeAtOnce(game, charger, target);
}

void Charge(Game& game, const Unit& unit, TargetMarks& marks) {
    ShowUnitInHand(game);
    ShadeReachFrom(game, unit.actionPoints);
    marks.MarkEnemiesInReach(game, Marked::StrengthOneOnly);
    if (const UnitId target = marks.Pick(game, kChargeTargets)) RideAt(game, target);
}

bool OutnumbersEnemyHere(Game& game) {
    const int enemies = CountEnemyHere(game);
    SelectOwnArea(game);
    return enemies < game.state.ownSlotsFilled;
}

UnitId PickToAttack(Game& game, const Unit& unit, TargetMarks& marks) {
    ShadeReachFrom(game, 1);
    ShowUnitInHand(game);
    marks.MarkEnemiesInReach(game, Marked::All);
    if (IsMountedOrMortar(unit.type)) return marks.Pick(game, kCavalryTargets);
    return IsFoot(unit.type) ? marks.Pick(game, kInfantryTargets) : UnitId{};
}

// Whether there is room and the unit in hand dares to go there.
bool CloseWith(Game& game, UnitId target) {
    const Cell cell = game.At(target).Place();
    SelectAreaAt(game, cell);
    if (game.state.ownSlotsFilled >= 2) return false;
    CensusEnemy(game);
    if (ShunsEnemy(game)) return false;
    game.state.targetCell = cell;
    return TryMove(game);
}

void Attack(Game& game, Unit& unit, TargetMarks& marks) {
    constexpr int kMovesToAttack = 273;
    const UnitId target = PickToAttack(game, unit, marks);
    if (!target || !CloseWith(game, target)) return;
    unit.actionPoints = 0;
    unit.canMove = 1;
    unit.visible = 1;
    DrawTopBar(game);
    Announce(game, kMovesToAttack);
}

}  // namespace

void BombardFromAfar(Game& game, TargetMarks& marks) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (CanBombard(game, unit) && CountEnemyHere(game) == 0) Bombard(game, unit, marks);
    });
}

void ChargeWithCavalry(Game& game, TargetMarks& marks) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (CanCharge(game, unit)) Charge(game, unit, marks);
    });
}

void AttackTheWeaker(Game& game, TargetMarks& marks) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        const bool formed = unit.formation != Formation::Square &&
                            unit.formation != Formation::MarchColumn &&
                            unit.type != UnitType::Leader;
        if (formed && MayAdvance(game, unit) && OutnumbersEnemyHere(game)) {
            Attack(game, unit, marks);
        }
    });
    game.grid.LightAll();
}

}  // namespace varnstride
