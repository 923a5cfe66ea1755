// A battlefield laid out by hand for a test: areas of 8 x 6 cells side by side, numbered by rows,
// each with its French slots in its second row and its Allied slots in its fifth. Every test of a
// rule of the model starts from one and adds the few units and links that its case needs.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "model/game.h"
#include "model/person.h"

namespace varnstride {

constexpr int kFieldAreaWidth = 8;
constexpr int kFieldAreaHeight = 6;

struct FieldPlan {
    int mapNumber = 4;
    int columns = 3;  // of areas; the grid has one more column of cells, which nobody plays on
    int rows = 1;     // of areas
    int areaHeight = kFieldAreaHeight;
    std::vector<AreaLink> links;
    std::function<void(Cell, MapCell&)> paint;          // changes a cell before the grid is made
    std::function<void(std::vector<AreaRow>&)> redraw;  // changes the areas; cells stay as they are
};

class Field {
 public:
    explicit Field(const FieldPlan& plan);
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;

    SilentPerson person;
    AtlasCatalogue catalogue;
    Game game;

    // The cell of a slot, 1 to 3, of the area.
    Cell SlotCell(Side side, int ordinal, int slot) const;

    // Stands a unit in a slot of its side under the next free record of its army.
    UnitId Add(int army, int ordinal, int slot, const Unit& unit);

    // The same in any cell; kNoCell keeps the unit off the grid.
    UnitId AddAt(int army, Cell cell, const Unit& unit);

    // The next free record of the army, which takes part from now on.
    UnitId NextRecord(int army);

    // Takes the unit in hand, with selectedCell on it.
    void TakeInHand(UnitId id);

 private:
    std::vector<int> used_;
};

// A unit on the map since before the battle: strength 6, morale 8 of 8, Ordered, 1 Action Point.
Unit MakeUnit(UnitType type);

}  // namespace varnstride
