#include "flow/fog_of_war.h"

#include "actions/sides.h"
#include "actions/spotting.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

bool ByEmail(const Game& game) {
    return game.header.playByEmail > 0;
}

// The side whose view the picture is made for: the side in play, or the person's in the computer's
// turn.
Side ViewingSide(const Game& game) {
    const Side inPlay = game.OwnSide();
    const bool computerPlays =
        !ByEmail(game) && IsComputerSide(game.settings.computerSide, game.state.currentArmy);
    return computerPlays ? Opposing(inPlay) : inPlay;
}

template <typename Visit>
void ForEachArmyOf(Side side, Visit visit) {
    for (int army = 0; army < kArmyCount; ++army) {
        if (SideOf(army) == side) visit(army);
    }
}

void SetVisible(Game& game, int army, int visible) {
    if (game.Army(army).present == 0) return;
    for (int index : UnitIndices(game))
        game.At({army, index}).visible = visible;
}

void RevealLit(Game& game, int army) {
    for (int index : UnitIndices(game)) {
        const UnitId id{army, index};
        if (IsOnMap(game, id) && game.grid.IsLit(game.At(id).Place())) game.At(id).visible = 1;
    }
}

void LookFrom(Game& game, Side viewer) {
    const int armyInPlay = game.state.currentArmy;
    ForEachArmyOf(viewer, [&](int army) { SetVisible(game, army, 1); });
    ForEachArmyOf(Opposing(viewer), [&](int army) { SetVisible(game, army, 0); });
    game.grid.ShadeAll();
    ForEachArmyOf(viewer, [&](int army) {
        game.state.currentArmy = army;
        SpotFromArmy(game);
    });
    ForEachArmyOf(Opposing(viewer), [&](int army) { RevealLit(game, army); });
    game.grid.LightAll();
    game.state.currentArmy = armyInPlay;
}

}  // namespace

void ApplyFogOfWar(Game& game) {
    if (game.header.fogNone == 1) {
        for (int army = 0; army < kArmyCount; ++army)
            SetVisible(game, army, 1);
    }
    if (HasFogOfWar(game)) LookFrom(game, ViewingSide(game));
}

}  // namespace varnstride
