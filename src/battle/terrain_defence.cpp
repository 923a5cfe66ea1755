// What the ground of an area takes off every strike in it, the attacker's and the answer alike.
#include <algorithm>

#include "battle/attack.h"
#include "model/terrain.h"

namespace varnstride {
namespace {

int DefenceOf(const GroundCell& ground, const PlayCell& cell) {
    if (IsForest(ground) || IsBurning(cell)) return 4;
    if (IsWoodland(ground) || IsBuilding(ground) || IsRocks(ground)) return 3;
    if (IsVillage(ground) || IsOrchard(ground) || IsMarsh(ground) || IsVineyard(ground) ||
        HasPalisade(ground)) {
        return 2;
    }
    return IsRough(ground) || IsField(ground) ? 1 : 0;
}

}  // namespace

void ComputeTerrainDefence(Game& game) {
    int best = 0;
    for (Cell slot : game.state.currentAreaSlots) {
        if (!game.grid.Holds(slot)) continue;
        best = std::max(best, DefenceOf(game.grid.Ground(slot), game.grid.At(slot)));
    }
    game.battle.terrainDefence = best;
}

}  // namespace varnstride
