// Objectives and exits: who holds them, who leaves by them, who makes for them.
#include "actions/exits.h"
#include "actions/top_bar.h"
#include "model/areas.h"
#include "model/census.h"
#include "opponent/announcements.h"
#include "opponent/opponent_move.h"
#include "opponent/own_unit.h"
#include "opponent/passes.h"

namespace varnstride {
namespace {

// Objectives of value and the fifth, which a side holds for its own sake.
bool IsObjective(const Game& game, Cell cell) {
    const int mark = game.grid.Ground(cell).objective;
    return mark >= 1 && mark <= 5;
}

bool IsOwnExit(const Game& game, Cell cell) {
    return game.grid.Ground(cell).objective == ExitValueOf(game.state.currentArmy);
}

// The first lit cell by rows, from that column on, that passes the test; kNoCell none.
template <typename Test>
Cell FirstLitMark(const Game& game, int firstColumn, Test test) {
    for (Cell cell : game.grid.Objectives()) {
        const bool inside = cell.x >= firstColumn && cell.x + 1 < game.grid.Width();
        if (inside && game.grid.IsLit(cell) && test(cell)) return cell;
    }
    return kNoCell;
}

// Takes the area of the unit in hand in hand and counts both sides in it.
void LookRound(Game& game) {
    SelectOwnArea(game);
    game.state.selectedCell = game.state.targetCell = game.InHand().Place();
    CensusOwnAtTarget(game);
    CensusEnemy(game);
}

// The only infantry of the area, or any other unit where there is no infantry.
bool IsGarrison(const Game& game, const Unit& unit) {
    return IsFoot(unit.type) ? game.census.ownLine == 1 : game.census.ownLine == 0;
}

void HoldAsGarrison(Game& game, Unit& unit) {
    const bool enemyHere = game.census.enemyCount > 0;
    if (!enemyHere && unit.Place() != FirstOwnSlot(game)) return;
    unit.actionPoints = 0;
    if (!enemyHere || unit.strength == 1) unit.activity = UnitActivity::Hold;
}

void HoldOrLeave(Game& game, Unit& unit) {
    LookRound(game);
    ShadeReachFrom(game, 0);
    const bool mayLeave = game.census.enemyCount == 0;
    const Cell mark = FirstLitMark(game, 0, [&](Cell cell) {
        return IsObjective(game, cell) || (mayLeave && IsOwnExit(game, cell));
    });
    if (mark == kNoCell) return;
    if (!IsObjective(game, mark)) {
        RemoveFromMap(game);
    } else if (IsGarrison(game, unit)) {
        HoldAsGarrison(game, unit);
    }
}

int OwnUnitsCounted(const Census& census) {
    return census.ownGuns + census.ownCavalry + census.ownLine + census.ownLeaders;
}

// Objectives draw a unit that is alone with the enemy, exits draw any.
Cell FindVictoryCell(const Game& game) {
    const int own = OwnUnitsCounted(game.census);
    const bool drawn = own == 0 || (own < 2 && game.census.enemyCount > 0);
    return FirstLitMark(game, 1, [&](Cell cell) {
        return (drawn && IsObjective(game, cell)) || IsOwnExit(game, cell);
    });
}

void MakeForVictoryArea(Game& game, Unit& unit) {
    constexpr int kMoves = 250;
    LookRound(game);
    ShadeReachFrom(game, unit.actionPoints);
    ShowUnitInHand(game);
    const Cell goal = FindVictoryCell(game);
    if (goal == kNoCell) return;
    game.state.targetCell = goal;
    if (!TryMove(game)) return;
    AnnounceIfShown(game, kMoves);
    unit.actionPoints = 0;
    unit.canMove = 1;
    unit.activity = UnitActivity::None;
    DrawTopBar(game);
}

}  // namespace

void HoldObjectives(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        const bool idle = unit.activity == UnitActivity::None && unit.attackedFlag == 0 &&
                          unit.type != UnitType::Leader;
        const bool able =
            IsFree(game, unit) && unit.actionPoints > 0 && HasPoints(game) && IsSteady(unit);
        if (idle && able) HoldOrLeave(game, unit);
    });
}

void MakeForVictoryAreas(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        const bool formed = unit.formation != Formation::Square &&
                            unit.formation != Formation::MarchColumn &&
                            unit.type != UnitType::Leader;
        if (formed && MayAdvance(game, unit)) MakeForVictoryArea(game, unit);
    });
}

}  // namespace varnstride
