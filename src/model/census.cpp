#include "model/census.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <tuple>

#include "model/areas.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

void CountEnemy(Census& census, const Unit& unit) {
    ++census.enemyCount;
    if (unit.status == UnitStatus::Routed) census.enemyRoutedHere = 1;
    if (unit.type == UnitType::Leader) census.enemyLeaderHere = 1;
    if (IsFoot(unit.type)) census.enemyLineHere = 1;
    if (unit.type == UnitType::HeavyCavalry) census.enemyHeavyHere = 1;
    if (IsMountedOrMortar(unit.type)) census.enemyCavalryHere = 1;
    if (IsFieldGun(unit.type)) census.enemyGunsHere = 1;
}

void ClearEnemyCounts(Census& census) {
    census.enemyCount = 0;
    census.enemyLineHere = census.enemyCavalryHere = census.enemyGunsHere = 0;
    census.enemyLeaderHere = census.enemyHeavyHere = census.enemyRoutedHere = 0;
    census.censusSlotUnit = {};
}

// The French do not count the horse of the Guard here, the others do.
bool CountsAsOwnCavalry(UnitType type, int army) {
    return IsBetween(type, UnitType::LightCavalry,
                     army == kFrench ? UnitType::CossackCavalry : UnitType::GuardCavalry);
}

void CountOwn(Census& census, const Unit& unit, int army) {
    if (IsFieldGun(unit.type)) ++census.ownGuns;
    if (CountsAsOwnCavalry(unit.type, army)) ++census.ownCavalry;
    if (IsFoot(unit.type)) ++census.ownLine;
    if (unit.type == UnitType::Leader) ++census.ownLeaders;
}

// A goal that is an edge has the row of the unit, one that is a corner its own.
struct Goal {
    bool east;
    enum class Row { OfUnit, North, South } row;
};

constexpr Goal kFrenchGoals[] = {
    {false, Goal::Row::OfUnit}, {true, Goal::Row::OfUnit}, {true, Goal::Row::North},
    {false, Goal::Row::North},  {true, Goal::Row::South},  {false, Goal::Row::South},
};

Cell GoalCell(const Game& game, Goal goal, int unitRow) {
    const int column = goal.east ? game.grid.Width() - 2 : 1;
    switch (goal.row) {
        case Goal::Row::OfUnit: return {column, unitRow};
        case Goal::Row::North: return {column, 0};
        case Goal::Row::South: return {column, game.grid.Height() - 1};
    }
    return {};
}

// The Allied goal of a number mirrors the French one.
Goal Mirrored(Goal goal) {
    const Goal::Row row = goal.row == Goal::Row::North   ? Goal::Row::South
                          : goal.row == Goal::Row::South ? Goal::Row::North
                                                         : Goal::Row::OfUnit;
    return {!goal.east, row};
}

std::optional<Cell> GoalOf(const Game& game) {
    const int direction = game.turnLog.advanceDirection;
    if (direction < 1 || direction > 6) return std::nullopt;
    const Goal french = kFrenchGoals[direction - 1];
    const Goal goal = game.OwnSide() == Side::French ? french : Mirrored(french);
    return GoalCell(game, goal, game.InHand().y);
}

// Columns count with their sign: column 0 lies nearer than the goal column 1. A tie goes to the
// first cell by rows; in one row none but the last towards the goal can be nearest. Nothing when no
// lit cell is near enough.
std::optional<Cell> FindNearestLit(const Game& game, Cell goal) {
    constexpr int kTooFar = 1000;
    const bool west = goal.x == 1;
    std::tuple<int, int, int> best{kTooFar, 0, 0};
    game.grid.ForEachLitRowEnd(west, [&](Cell cell) {
        const int columns = west ? cell.x - goal.x : goal.x - cell.x;
        const int distance = columns + std::abs(cell.y - goal.y);
        if (distance < kTooFar) best = std::min(best, std::tuple(distance, cell.y, cell.x));
    });
    const auto [distance, y, x] = best;
    if (distance == kTooFar) return std::nullopt;
    return Cell{x, y};
}

// The last one by rows.
Cell FindLastLit(const Game& game) {
    Cell last;
    game.grid.ForEachLitRowEnd(false, [&](Cell cell) {
        if (std::tuple(cell.y, cell.x) >= std::tuple(last.y, last.x)) last = cell;
    });
    return last;
}

}  // namespace

void CensusEnemy(Game& game) {
    const int ordinal = game.grid.AreaOf(game.state.selectedCell);
    if (ordinal == 0) return;
    ClearEnemyCounts(game.census);
    const AreaSlots slots = game.atlas->Row(ordinal).Slots();
    const int army = EnemyArmyOf(game, slots);
    if (army < 0) return;
    if (!game.battle.attackRunning) game.battle.targetArmy = army;
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const UnitId unit = UnitStandingAt(game, SlotOf(slots, game.EnemySide(), slot));
        if (!unit || unit.army != army || !IsOnMap(game, unit)) continue;
        game.census.censusSlotUnit[static_cast<std::size_t>(slot)] = unit.index;
        CountEnemy(game.census, game.At(unit));
    }
}

void CensusOwnAtTarget(Game& game) {
    const int ordinal = game.grid.AreaOf(game.state.targetCell);
    if (ordinal > 0) CensusOwnOf(game, ordinal);
}

void CensusOwnOf(Game& game, int ordinal) {
    Census& census = game.census;
    census.ownGuns = census.ownCavalry = census.ownLine = census.ownLeaders = 0;
    const AreaSlots slots = game.atlas->Row(ordinal).Slots();
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const UnitId unit = UnitStandingAt(game, SlotOf(slots, game.OwnSide(), slot));
        if (!unit || unit.army != game.state.currentArmy || !IsOnMap(game, unit)) continue;
        CountOwn(census, game.At(unit), unit.army);
    }
}

void FindAdvanceCell(Game& game) {
    GameState& state = game.state;
    state.advanceResultCell = kNoCell;
    if (const std::optional<Cell> goal = GoalOf(game)) {
        const std::optional<Cell> nearest = FindNearestLit(game, *goal);
        const int ordinal = nearest ? game.grid.AreaOf(*nearest) : 0;
        state.advanceResultCell = ordinal > 0
                                      ? SlotOf(game.atlas->Row(ordinal).Slots(), game.OwnSide(), 0)
                                      : FindLastLit(game);
    }
    state.selectedCell = state.targetCell = state.advanceResultCell;
}

}  // namespace varnstride
