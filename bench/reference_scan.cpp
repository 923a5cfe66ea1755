#include "bench/reference_scan.h"

#include <algorithm>
#include <cstdlib>

namespace varnstride {
namespace {

bool BelongsTo(const Game& game, Cell cell, const AreaRow& row) {
    return game.grid.Ground(cell).areaId == row.areaId && row.Holds(cell);
}

// The last row that holds the cell; 0 none.
int OrdinalOf(const Game& game, Cell cell) {
    int found = 0;
    for (int ordinal = 1; ordinal <= game.atlas->AreaCount(); ++ordinal) {
        if (BelongsTo(game, cell, game.atlas->Row(ordinal))) found = ordinal;
    }
    return found;
}

bool FirstStepServes(const Game& game, const Unit& unit, const AreaLink& link) {
    if (unit.actionPoints <= 0) return false;
    const bool footOrGun = static_cast<int>(unit.type) < 8 || game.state.bombardmentMode != 0;
    switch (link.firstStep) {
        case FirstStep::None: return false;
        case FirstStep::Open: return true;
        case FirstStep::FootOnly: return footOrGun;
        case FirstStep::FootOrRoad: return footOrGun || game.state.roadMover;
    }
    return false;
}

bool SecondStepServes(const Game& game, const Unit& unit, const AreaLink& link) {
    const int type = static_cast<int>(unit.type);
    const bool marching = unit.formation == Formation::MarchColumn;
    if (unit.actionPoints <= 1 || !(marching || (type >= 7 && type <= 17))) return false;
    if (link.noBombardment && game.state.bombardmentMode != 0) return false;
    if (link.secondStep == SecondStep::Open) return true;
    return link.secondStep == SecondStep::RoadOnly && (marching || game.state.roadMover);
}

// The areas that the unit in hand reaches from its own.
std::vector<int> AreasReached(const Game& game, int own) {
    const Unit& unit = game.InHand();
    std::vector<int> areas;
    if (game.state.bombardmentMode == 0 && !game.state.ownAreaLeftOut) areas.push_back(own);
    for (const AreaLink& link : game.atlas->Links()) {
        if (link.from != own) continue;
        if (FirstStepServes(game, unit, link) || SecondStepServes(game, unit, link)) {
            areas.push_back(link.to);
        }
    }
    return areas;
}

bool IsPresent(const Game& game, const Unit& unit) {
    return unit.strength > 0 && unit.arrivalTurn <= game.state.gameTurn;
}

// The enemy army that the first slot tells of; -1 none.
int EnemyArmyBy(const Game& game, Cell firstSlot) {
    const int occupant = game.grid.At(firstSlot).occupant;
    if (occupant <= 0) return -1;
    if (game.state.currentArmy > 0) return 0;
    const int map = game.header.mapNumber;
    if (map == 1 || map == 2) return 1;
    if (map == 3 || map == 4 || map == 8) return 3;
    if (map != 7) return -1;
    return occupant == 2 ? 1 : occupant == 4 ? 3 : -1;
}

void ClearEnemyCounts(Census& census) {
    const Census before = census;
    census = {};
    census.ownGuns = before.ownGuns;
    census.ownCavalry = before.ownCavalry;
    census.ownLine = before.ownLine;
    census.ownLeaders = before.ownLeaders;
}

void Count(const Unit& unit, Census& census) {
    const int type = static_cast<int>(unit.type);
    ++census.enemyCount;
    if (unit.status == UnitStatus::Routed) census.enemyRoutedHere = 1;
    if (type == 7) census.enemyLeaderHere = 1;
    if (type < 7) census.enemyLineHere = 1;
    if (type == 10) census.enemyHeavyHere = 1;
    if (type >= 8 && type <= 14) census.enemyCavalryHere = 1;
    if (type == 16 || type == 17) census.enemyGunsHere = 1;
}

int ColumnsOff(const Game& game, Cell cell, bool west) {
    return west ? cell.x - 1 : game.grid.Width() - 2 - cell.x;
}

struct Goal {
    bool west;
    int row;
};

Goal GoalOf(const Game& game) {
    const bool french = game.state.currentArmy == 0;
    const int last = game.grid.Height() - 1;
    switch (game.turnLog.advanceDirection) {
        case 1: return {french, game.InHand().y};
        case 2: return {!french, game.InHand().y};
        case 3: return {!french, french ? 0 : last};
        case 4: return {french, french ? 0 : last};
        case 5: return {!french, french ? last : 0};
        default: return {french, french ? last : 0};
    }
}

}  // namespace

std::vector<int> ScanReach(const Game& game, std::vector<int>& shade) {
    const int own = OrdinalOf(game, game.state.selectedCell);
    if (own == 0) return {};
    const std::vector<int> reached = AreasReached(game, own);
    std::vector<AreaRow> rows;
    for (int ordinal : reached)
        rows.push_back(game.atlas->Row(ordinal));
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 0; x + 1 < game.grid.Width(); ++x) {
            int& here = shade[static_cast<std::size_t>(y * game.grid.Width() + x)];
            if (!game.state.rangeKeepLit) here = 1;
            const bool lit = std::any_of(rows.begin(), rows.end(), [&](const AreaRow& row) {
                return BelongsTo(game, {x, y}, row);
            });
            if (lit) here = 0;
        }
    }
    return reached;
}

UnitId ScanForUnitAt(const Game& game, Cell cell) {
    if (cell == kNoCell) return {};
    for (int army = 0; army < kArmyCount; ++army) {
        for (int index = 1; index < kUnitsPerArmy; ++index) {
            const Unit& unit = game.At({army, index});
            if (unit.Place() == cell && IsPresent(game, unit)) return {army, index};
        }
    }
    return {};
}

int ScanForEnemyInSlot(const Game& game, Cell cell) {
    const AreaSlots& slots = game.state.currentAreaSlots;
    const int army = game.state.currentArmy > 0 ? 0 : EnemyArmyBy(game, slots[kSlotsPerSide]);
    if (army < 0) return 0;
    const ArmyUnits& units = game.units[static_cast<std::size_t>(army)];
    for (int index = 1; index < kUnitsPerArmy; ++index) {
        const Unit& unit = units[static_cast<std::size_t>(index)];
        const bool fights = unit.initialStrength > 0 && static_cast<int>(unit.type) < 18;
        if (fights && IsPresent(game, unit) && unit.Place() == cell) return index;
    }
    return 0;
}

int ScanCensusEnemy(const Game& game, Census& census) {
    const int ordinal = OrdinalOf(game, game.state.selectedCell);
    if (ordinal == 0) return -1;
    ClearEnemyCounts(census);
    const AreaRow& row = game.atlas->Row(ordinal);
    const auto& enemySlots = game.state.currentArmy > 0 ? row.frenchSlots : row.alliedSlots;
    const int army = EnemyArmyBy(game, enemySlots[0]);
    if (army < 0) return army;
    const ArmyUnits& units = game.units[static_cast<std::size_t>(army)];
    for (int index = 1; index < kUnitsPerArmy; ++index) {
        const Unit& unit = units[static_cast<std::size_t>(index)];
        for (std::size_t slot = 0; slot < enemySlots.size(); ++slot) {
            if (unit.Place() != enemySlots[slot] || !IsPresent(game, unit)) continue;
            census.censusSlotUnit[slot] = index;
            Count(unit, census);
        }
    }
    return army;
}

void ScanCensusOwn(const Game& game, Census& census) {
    const int ordinal = OrdinalOf(game, game.state.targetCell);
    if (ordinal == 0) return;
    census.ownGuns = census.ownCavalry = census.ownLine = census.ownLeaders = 0;
    const int army = game.state.currentArmy;
    const AreaRow& row = game.atlas->Row(ordinal);
    const auto& slots = army > 0 ? row.alliedSlots : row.frenchSlots;
    for (int index = 1; index < kUnitsPerArmy; ++index) {
        const Unit& unit = game.At({army, index});
        const bool inSlot = std::find(slots.begin(), slots.end(), unit.Place()) != slots.end();
        if (!inSlot || !IsPresent(game, unit)) continue;
        const int type = static_cast<int>(unit.type);
        if (type == 16 || type == 17) ++census.ownGuns;
        if (type >= 8 && type <= (army > 0 ? 13 : 12)) ++census.ownCavalry;
        if (type < 7) ++census.ownLine;
        if (type == 7) ++census.ownLeaders;
    }
}

Cell ScanAdvanceCell(const Game& game, const std::vector<int>& shade) {
    const Goal goal = GoalOf(game);
    int best = 1000;
    Cell nearest;
    Cell last;
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 0; x + 1 < game.grid.Width(); ++x) {
            if (shade[static_cast<std::size_t>(y * game.grid.Width() + x)] != 0) continue;
            last = {x, y};
            const int distance = ColumnsOff(game, last, goal.west) + std::abs(y - goal.row);
            if (distance >= best) continue;
            best = distance;
            nearest = last;
        }
    }
    const int ordinal = best < 1000 ? OrdinalOf(game, nearest) : 0;
    if (ordinal == 0) return last;
    const AreaRow& row = game.atlas->Row(ordinal);
    return game.state.currentArmy == 0 ? row.frenchSlots[0] : row.alliedSlots[0];
}

}  // namespace varnstride
