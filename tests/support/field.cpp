#include "support/field.h"

#include <algorithm>
#include <utility>

#include "model/units_on_map.h"

namespace varnstride {
namespace {

int AreaIdOf(int column, int row, int columns) {
    constexpr int kFirstId = 21;
    constexpr int kIds = 9;  // used again and again
    return kFirstId + (row * columns + column) % kIds;
}

// The areas at the right-hand edge have no bound there, so that they hold the last column too.
AreaRow RowOf(const FieldPlan& plan, int column, int row) {
    const int left = column * kFieldAreaWidth;
    const int top = row * plan.areaHeight;
    AreaRow area;
    area.areaId = AreaIdOf(column, row, plan.columns);
    area.xAbove = left - 1;
    if (column + 1 < plan.columns) area.xBelow = left + kFieldAreaWidth;
    area.yAbove = top - 1;
    area.yBelow = top + plan.areaHeight;
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const int x = left + 1 + 2 * slot;
        area.frenchSlots[static_cast<std::size_t>(slot)] = {x, top + 1};
        area.alliedSlots[static_cast<std::size_t>(slot)] = {x, top + 4};
    }
    return area;
}

std::vector<AreaRow> RowsOf(const FieldPlan& plan) {
    std::vector<AreaRow> rows;
    for (int row = 0; row < plan.rows; ++row) {
        for (int column = 0; column < plan.columns; ++column) {
            rows.push_back(RowOf(plan, column, row));
        }
    }
    return rows;
}

int AreaIdAt(const FieldPlan& plan, Cell cell) {
    const int column = std::min(cell.x / kFieldAreaWidth, plan.columns - 1);
    return AreaIdOf(column, cell.y / plan.areaHeight, plan.columns);
}

Atlas AtlasOf(const FieldPlan& plan) {
    std::vector<AreaRow> rows = RowsOf(plan);
    if (plan.redraw) plan.redraw(rows);
    return {plan.mapNumber, std::move(rows), plan.links};
}

Grid GridOf(const FieldPlan& plan, const Atlas& atlas) {
    const int width = plan.columns * kFieldAreaWidth + 1;
    const int height = plan.rows * plan.areaHeight;
    std::vector<MapCell> cells;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            MapCell cell;
            cell.areaId = AreaIdAt(plan, {x, y});
            if (plan.paint) plan.paint({x, y}, cell);
            cells.push_back(cell);
        }
    }
    return {width, height, cells, atlas};
}

}  // namespace

Field::Field(const FieldPlan& plan)
    : catalogue(std::vector<Atlas>{AtlasOf(plan)}), game(catalogue, person), used_(kArmyCount, 0) {
    game.atlas = catalogue.Find(plan.mapNumber);
    game.header.mapNumber = plan.mapNumber;
    game.grid = GridOf(plan, *game.atlas);
    game.state.gameTurn = 5;
}

Cell Field::SlotCell(Side side, int ordinal, int slot) const {
    const AreaRow& row = game.atlas->Row(ordinal);
    return (side == Side::French ? row.frenchSlots
                                 : row.alliedSlots)[static_cast<std::size_t>(slot - 1)];
}

UnitId Field::NextRecord(int army) {
    game.Army(army).present = 1;
    return {army, ++used_[static_cast<std::size_t>(army)]};
}

UnitId Field::Add(int army, int ordinal, int slot, const Unit& unit) {
    return AddAt(army, SlotCell(SideOf(army), ordinal, slot), unit);
}

UnitId Field::AddAt(int army, Cell cell, const Unit& unit) {
    const UnitId id = NextRecord(army);
    game.At(id) = unit;
    if (cell != kNoCell) PlaceUnit(game, id, cell);
    return id;
}

void Field::TakeInHand(UnitId id) {
    game.state.currentArmy = id.army;
    game.state.currentUnit = id.index;
    game.state.selectedCell = game.At(id).Place();
}

Unit MakeUnit(UnitType type) {
    Unit unit;
    unit.type = type;
    unit.strength = unit.initialStrength = 6;
    unit.morale = unit.maxMorale = 8;
    unit.status = UnitStatus::Ordered;
    unit.actionPoints = 1;
    unit.quality = Quality::Experienced;
    unit.leadership = 5;
    return unit;
}

}  // namespace varnstride
