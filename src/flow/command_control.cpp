#include "flow/command_control.h"

#include "model/census.h"
#include "model/reach.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

bool IsFree(const Game& game, UnitId id) {
    return IsOnMap(game, id) && game.At(id).fixedUntilTurn <= game.state.gameTurn;
}

template <typename Visit>
void ForEachFreeUnit(Game& game, Visit visit) {
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        if (IsFree(game, id)) visit(game.At(id));
    }
}

// Routed units run where they like; the others depend on leaders unless the enemy is upon them.
void JudgeAlone(Game& game, Unit& unit) {
    unit.inCommand = 0;
    if (unit.status == UnitStatus::Routed) {
        unit.outOfCommand = 0;
        unit.inCommand = 1;
    }
    if (unit.status <= UnitStatus::Shaken) return;
    game.state.selectedCell = unit.Place();
    CensusEnemy(game);
    const bool contact = game.census.enemyCount > 0;
    unit.outOfCommand = contact ? 0 : 1;
    unit.inCommand = contact ? 1 : 0;
}

void LightCommandRadius(Game& game, int leader) {
    game.state.currentUnit = leader;
    game.state.selectedCell = game.InHand().Place();
    ShadeReach(game);
}

template <typename Visit>
void ForEachLeader(Game& game, Visit visit) {
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        if (game.At(id).type == UnitType::Leader && IsOnMap(game, id)) visit(index);
    }
}

}  // namespace

void ApplyCommandControl(Game& game) {
    game.grid.ShadeAll();
    ForEachFreeUnit(game, [&](Unit& unit) { JudgeAlone(game, unit); });
    ForEachLeader(game, [&](int leader) {
        LightCommandRadius(game, leader);
        ForEachFreeUnit(game, [&](Unit& unit) {
            if (!game.grid.IsLit(unit.Place())) return;
            unit.inCommand = 1;
            unit.outOfCommand = 0;
        });
    });
    ForEachFreeUnit(game, [](Unit& unit) {
        if (unit.inCommand == 0 && unit.status != UnitStatus::Routed) unit.actionPoints = 0;
    });
}

void MarkCommandRange(Game& game) {
    if (game.Army(kFrench).commandControl != 1) return;
    game.grid.ShadeAll();
    ForEachFreeUnit(game,
                    [](Unit& unit) { unit.inCommand = unit.status == UnitStatus::Routed ? 1 : 0; });
    ForEachLeader(game, [&](int leader) {
        LightCommandRadius(game, leader);
        ForEachFreeUnit(game, [&](Unit& unit) {
            if (game.grid.IsLit(unit.Place())) unit.inCommand = 1;
        });
    });
}

}  // namespace varnstride
