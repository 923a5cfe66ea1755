// What an army does before it moves: held units are let go, columns deploy, and units are supplied,
// split and rallied.
#include "actions/detachments.h"
#include "actions/supply_and_rally.h"
#include "actions/top_bar.h"
#include "model/areas.h"
#include "model/dice.h"
#include "model/terrain.h"
#include "model/unit_rules.h"
#include "opponent/own_unit.h"
#include "opponent/passes.h"

namespace varnstride {
namespace {

void DeployBeforeEnemy(Game& game, Unit& unit) {
    if (CountEnemyHere(game) == 0) return;
    SelectOwnArea(game);
    if (CountCloseSlots(game) >= kCloseTerrain) return;
    unit.formation = Formation::Line;
    SpendActionPoints(unit, 1);
    --game.ArmyInPlay().commandPoints;
}

// Units of such types split when they are stronger than this; how much they give is the same for
// every player.
struct SplitRule {
    bool (*holds)(UnitType);
    int strengthAbove;
};

constexpr SplitRule kSplitRules[] = {
    {[](UnitType type) {
         return type == UnitType::LightInfantry || type == UnitType::DragoonsDismounted;
     },
     3},
    {[](UnitType type) {
         return type == UnitType::LineInfantry || type == UnitType::GuardInfantry;
     },
     5},
    {[](UnitType type) {
         return type == UnitType::LightDragoonsDismounted || type == UnitType::DragoonsDismounted ||
                IsMounted(type);
     },
     3},
    {IsFieldGun, 1},
};

void DetachByRules(Game& game, const Unit& unit) {
    for (const SplitRule& rule : kSplitRules) {
        if (!rule.holds(unit.type) || unit.strength <= rule.strengthAbove) continue;
        SelectOwnArea(game);
        if (game.state.ownSlotsFilled == 1) DetachUnit(game);
    }
}

void RallyShakenUnit(Game& game, Unit& unit) {
    RestoreShaken(unit);
    --game.ArmyInPlay().commandPoints;
}

void TryToRallyRouted(Game& game, Unit& unit) {
    constexpr int kSides = 4;
    const int throwOfNerve = Die(game, kSides) + 1;
    if (!TryToRestoreRouted(unit, throwOfNerve)) return;
    --game.ArmyInPlay().commandPoints;
    TakeOrderAgain(game);
}

}  // namespace

void ReleaseUnits(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (unit.outOfCommand != 1 || !IsFree(game, unit)) return;
        unit.outOfCommand = 0;
        unit.actionPoints = ComputeActionPoints(unit, game.header.visibility);
    });
}

void DeployFromMarch(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        const bool marches =
            unit.formation == Formation::MarchColumn && unit.type < UnitType::MortarArtillery;
        if (marches && HasPoints(game) && IsSteady(unit)) DeployBeforeEnemy(game, unit);
    });
}

void ResupplyUnits(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        const bool shoots = IsFoot(unit.type) || IsFieldGun(unit.type);
        const bool lacks = shoots && unit.ammunition == 0 && IsSteady(unit);
        if (!lacks || unit.actionPoints <= 0 || !HasPoints(game)) return;
        unit.ammunition = kFullAmmunition;
        --unit.actionPoints;
        --game.ArmyInPlay().commandPoints;
        DrawTopBar(game);
    });
}

void DetachSupports(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (IsSteady(unit) && HasPoints(game)) DetachByRules(game, unit);
    });
}

// Neither the enemy near nor the points of the army count here: they may fall below 0.
void RallyUnits(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (unit.status == UnitStatus::Shaken) {
            RallyShakenUnit(game, unit);
        } else if (unit.status == UnitStatus::Routed) {
            TryToRallyRouted(game, unit);
        }
    });
}

}  // namespace varnstride
