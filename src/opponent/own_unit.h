// The unit whose turn has come in a pass of the computer: going through the army, what the passes
// ask of a unit, and how it looks round. It is the unit in hand.
#pragma once

#include "model/game.h"
#include "model/units_on_map.h"

namespace varnstride {

// Takes every unit of the army in play that is on the map in hand, by rising record; units that
// come in meanwhile have their turn too.
template <typename Visit>
void ForEachOwnUnit(Game& game, Visit visit) {
    for (int index : UnitIndices(game)) {
        game.state.currentUnit = index;
        if (IsOnMap(game, game.InHandId())) visit(game.InHand());
    }
}

inline bool IsSteady(const Unit& unit) {
    return unit.status > UnitStatus::Shaken;
}
inline bool IsFree(const Game& game, const Unit& unit) {
    return unit.fixedUntilTurn <= game.state.gameTurn;
}
inline bool IsReady(const Unit& unit) {
    return unit.outOfCommand != 1 && unit.activity != UnitActivity::Hold;
}
inline bool HasPoints(const Game& game) {
    return game.ArmyInPlay().commandPoints > 0;
}
// What every advance asks: a unit that is free, steady and ready, and points of both kinds.
inline bool MayAdvance(const Game& game, const Unit& unit) {
    return IsFree(game, unit) && IsSteady(unit) && IsReady(unit) && unit.actionPoints > 0 &&
           HasPoints(game);
}

// Action Points stop at 0.
void SpendActionPoints(Unit& unit, int points);

// The searches below start from the cell of the unit in hand, which becomes selectedCell.

// Takes its area in hand.
void SelectOwnArea(Game& game);

// Takes the census of the enemy in its area: how many there are.
int CountEnemyHere(Game& game);

// Lights what it reaches with so many Action Points, the second time but for its own area.
void ShadeReachFrom(Game& game, int actionPoints);
void ShadeOtherAreas(Game& game, int actionPoints);

}  // namespace varnstride
