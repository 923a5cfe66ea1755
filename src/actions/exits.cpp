#include "actions/exits.h"

#include <algorithm>
#include <array>

#include "actions/courier.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/reach.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

bool AreaHasExit(const Game& game, int exitValue) {
    return std::any_of(game.grid.Objectives().begin(), game.grid.Objectives().end(),
                       [&](Cell cell) {
                           return game.grid.IsLit(cell) && cell.x + 1 < game.grid.Width() &&
                                  game.grid.Ground(cell).objective == exitValue;
                       });
}

// A unit led off the field scores for its own side as the enemy's loss would.
void ScoreForLeaving(Game& game, UnitId id) {
    const Unit& unit = game.At(id);
    const bool french = SideOf(id.army) == Side::French;
    (french ? game.loss.alliedLossPoints : game.loss.frenchLossPoints) +=
        unit.strength * ValueOfUnit(unit);
}

}  // namespace

int ExitValueOf(int army) {
    constexpr std::array<int, 6> kExits = {8, 6, 10, 7, 9, 11};
    return army >= 0 && army < 6 ? kExits[static_cast<std::size_t>(army)] : 0;
}

bool RemoveFromMap(Game& game) {
    const UnitId id = game.InHandId();
    const Cell left = game.At(id).Place();
    game.state.selectedCell = game.state.targetCell = left;
    CensusEnemy(game);
    game.state.rangeKeepLit = false;
    ShadeReachWith(game, 0);
    const bool leaves =
        IsOnMap(game, id) && game.census.enemyCount == 0 && AreaHasExit(game, ExitValueOf(id.army));
    if (!leaves) {
        PlayBattleSound(game, Sound::BuildingFire);
        return false;
    }
    --game.ArmyInPlay().commandPoints;
    ScoreForLeaving(game, id);
    VacateSlot(game, id);
    game.grid.At(left).highlight = 0;
    LeadOffMap(game, id);
    CloseUpAreaLeft(game, left);
    game.undo.undoAvailable = 0;
    return true;
}

}  // namespace varnstride
