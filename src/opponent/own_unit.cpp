#include "opponent/own_unit.h"

#include <algorithm>

#include "model/areas.h"
#include "model/census.h"
#include "model/reach.h"

namespace varnstride {

void SpendActionPoints(Unit& unit, int points) {
    unit.actionPoints = std::max(0, unit.actionPoints - points);
}

void SelectOwnArea(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    SelectArea(game);
}

int CountEnemyHere(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    CensusEnemy(game);
    return game.census.enemyCount;
}

void ShadeReachFrom(Game& game, int actionPoints) {
    game.state.selectedCell = game.InHand().Place();
    ShadeReachWith(game, actionPoints);
}

void ShadeOtherAreas(Game& game, int actionPoints) {
    game.state.ownAreaLeftOut = true;
    ShadeReachFrom(game, actionPoints);
    game.state.ownAreaLeftOut = false;
}

}  // namespace varnstride
