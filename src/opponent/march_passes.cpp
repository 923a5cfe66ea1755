// Marches without a fight: leaders out of danger, and everybody towards where the army makes for.
#include <algorithm>
#include <vector>

#include "actions/top_bar.h"
#include "model/areas.h"
#include "model/census.h"
#include "opponent/announcements.h"
#include "opponent/opponent_move.h"
#include "opponent/own_unit.h"
#include "opponent/passes.h"

namespace varnstride {
namespace {

bool IsBefore(Cell one, Cell other) {
    return one.y != other.y ? one.y < other.y : one.x < other.x;
}

// A cell of each lit area, in the order in which a walk by rows from column 1 on meets the areas.
std::vector<Cell> LitAreasByRows(const Game& game) {
    std::vector<Cell> firstOf(kMostAreas + 1, kNoCell);
    game.grid.ForEachLit([&](Cell cell) {
        Cell& first = firstOf[static_cast<std::size_t>(game.grid.AreaOf(cell))];
        if (cell.x >= 1 && (first == kNoCell || IsBefore(cell, first))) first = cell;
    });
    std::erase(firstOf, kNoCell);
    std::sort(firstOf.begin(), firstOf.end(), IsBefore);
    return firstOf;
}

bool IsRefuge(Game& game, Cell cell) {
    game.state.selectedCell = cell;
    SelectArea(game);
    CensusEnemy(game);
    return game.state.ownSlotsFilled > 0 && game.census.enemyCount == 0;
}

bool IsAloneWithEnemy(Game& game) {
    SelectOwnArea(game);
    return game.state.ownSlotsFilled == 1 && CountEnemyHere(game) > 0;
}

void LeaveForFriends(Game& game, Unit& leader) {
    constexpr int kLeaderMoves = 274;
    ShadeOtherAreas(game, leader.actionPoints);
    for (Cell cell : LitAreasByRows(game)) {
        if (!IsRefuge(game, cell)) continue;
        game.state.targetCell = cell;
        if (!TryMove(game)) continue;
        leader.actionPoints = 0;
        leader.canMove = 0;
        DrawTopBar(game);
        AnnounceIfShown(game, kLeaderMoves);
        return;
    }
}

// Takes the area that lies nearest to the army's goal in hand: its cell, kNoCell when the goal is
// unknown.
Cell FindWayOn(Game& game, const Unit& unit) {
    ShadeReachFrom(game, unit.actionPoints);
    FindAdvanceCell(game);
    const Cell cell = game.state.advanceResultCell;
    SelectArea(game);
    CensusEnemy(game);
    return cell;
}

bool RefusesToGo(const Game& game, const Unit& unit) {
    if (unit.type == UnitType::Leader && game.state.ownSlotsFilled == 0) return true;
    const bool marches = unit.formation == Formation::MarchColumn;
    return game.census.enemyCount > 0 && (marches || ShunsEnemy(game));
}

// Leaders and infantry out of March Column go on without a look ahead.
bool LooksAhead(const Unit& unit) {
    return unit.type > UnitType::Leader || unit.formation == Formation::MarchColumn;
}

void GoOn(Game& game, Unit& unit) {
    constexpr int kAdvances = 251;
    if (!TryMove(game)) return;
    SpendActionPoints(unit, game.state.moveCost);
    unit.canMove = 1;
    DrawTopBar(game);
    AnnounceIfShown(game, kAdvances);
}

void AdvanceUnit(Game& game, Unit& unit) {
    const Cell goal = FindWayOn(game, unit);
    if (goal == kNoCell || RefusesToGo(game, unit)) return;
    game.state.targetCell = goal;
    game.state.moveBlocked = 0;
    if (LooksAhead(unit)) LookForInterception(game);
    if (game.state.moveBlocked == 0) {
        GoOn(game, unit);
    } else {
        unit.actionPoints = 0;
        --game.ArmyInPlay().commandPoints;
    }
}

}  // namespace

void MoveLeaders(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        const bool able = unit.type == UnitType::Leader && IsFree(game, unit) &&
                          unit.actionPoints > 0 && IsSteady(unit) && HasPoints(game);
        if (able && IsAloneWithEnemy(game)) LeaveForFriends(game, unit);
    });
    game.grid.LightAll();
}

void AdvanceGenerally(Game& game) {
    ForEachOwnUnit(game, [&](Unit& unit) {
        if (unit.formation != Formation::Square && MayAdvance(game, unit)) AdvanceUnit(game, unit);
    });
}

}  // namespace varnstride
