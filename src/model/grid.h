// The hex grid of a battle. The ground is read with the map, never changes and is shared by copies
// of a game; what changes in play stands beside it. Shade is not kept cell by cell: it is a ground
// tone and a set of lit areas, looked up when asked.
#pragma once

#include <memory>
#include <vector>

#include "model/area_set.h"
#include "model/army.h"
#include "model/cell.h"
#include "model/unit.h"

namespace varnstride {

class Atlas;

constexpr int kNoTerrainPicture = 5;
constexpr int kNoOverlay = 33;
constexpr int kNoRoad = 20;
constexpr int kSmoke = 1;
constexpr int kFire = 7;

// What a cell is, as read from its map.
struct GroundCell {
    int terrainTile = kNoTerrainPicture;
    int groundTile = 0;
    int overlayTile = kNoOverlay;
    int objective = 0;
    int areaId = 0;
    int featureTile = 0;
    int labelIndex = 0;
    int borderTile = 0;
};

// What play changes in a cell.
struct PlayCell {
    int occupant = 0;        // army + 1 of the unit in this slot; 0 empty
    int occupantMirror = 0;  // kept beside occupant for files and the jump map
    int moveMark = 0;        // number of the loss marker
    int selected = 0;
    int highlight = 0;
    int roadTile = kNoRoad;
};

// One cell as a file lays it out.
struct MapCell {
    int occupant = 0;
    int terrainTile = kNoTerrainPicture;
    int groundTile = 0;
    int overlayTile = kNoOverlay;
    int shade = 0;
    int moveMark = 0;
    int selected = 0;
    int highlight = 0;
    int objective = 0;
    int areaId = 0;
    int occupantMirror = 0;
    int roadTile = kNoRoad;
    int featureTile = 0;
    int labelIndex = 0;
    int borderTile = 0;
};

// Which cells belong to which areas; worked out once for a map.
struct AreaMembership {
    std::vector<AreaSet> areasOf;               // by cell: every row that it fits
    std::vector<std::uint8_t> areaOf;           // by cell: the last row that it fits, 0 none
    std::vector<std::vector<Cell>> cellsOf;     // by ordinal: columns 0 to width - 2, by rows
    std::vector<std::vector<Cell>> westEndsOf;  // by ordinal: the first of them in each row
    std::vector<std::vector<Cell>> eastEndsOf;  // by ordinal: the last of them in each row
    std::vector<AreaSet> areasIn;               // by ordinal: what areaOf names in those cells
    std::vector<std::vector<Cell>> slotsIn;  // by ordinal: those of them that are slots of any area
    std::vector<Cell> slots;                 // of every area
    std::vector<Cell> objectives;            // every cell with an objective value, by rows
};

class Grid {
 public:
    Grid() = default;
    // Takes the cells by rows. The atlas tells which cells lie in which areas.
    Grid(int width, int height, const std::vector<MapCell>& cells, const Atlas& atlas);

    int Width() const { return width_; }
    int Height() const { return height_; }
    bool Holds(Cell cell) const {
        return cell.x >= 0 && cell.x < width_ && cell.y >= 0 && cell.y < height_;
    }
    // Held inside the columns 1 to width - 2 and the rows of the grid.
    Cell Clamped(Cell cell) const;

    const GroundCell& Ground(Cell cell) const { return (*ground_)[Index(cell)]; }
    PlayCell& At(Cell cell) { return play_[Index(cell)]; }
    const PlayCell& At(Cell cell) const { return play_[Index(cell)]; }
    std::vector<PlayCell>& PlayCells() { return play_; }

    // The whole cell as files and the driver show it.
    MapCell Whole(Cell cell) const;

    // The ordinal of the last area row that the cell fits; 0 for a cell of no area.
    int AreaOf(Cell cell) const { return Holds(cell) ? membership_->areaOf[Index(cell)] : 0; }
    const std::vector<Cell>& CellsOf(int ordinal) const {
        return membership_->cellsOf[static_cast<std::size_t>(ordinal)];
    }

    // The cells that carry an objective or an exit, by rows.
    const std::vector<Cell>& Objectives() const { return membership_->objectives; }

    // Shade: 0 is lit. Every call below rewrites it for the whole grid or adds to it.
    int Shade(Cell cell) const;
    bool IsLit(Cell cell) const { return Shade(cell) == 0; }
    void LightAll();       // every cell
    void ShadeAll();       // every cell
    void LightPlayable();  // columns 0 to width - 2
    void ShadePlayable();  // columns 0 to width - 2
    void Light(const AreaSet& areas) { lit_ |= areas; }
    // Calls visit(cell) once for every lit cell of columns 0 to width - 2, in no promised order.
    template <typename Visit>
    void ForEachLit(Visit visit) const;
    // The same for cells among which the westernmost, or easternmost, lit one of every row is; a
    // cell may come twice.
    template <typename Visit>
    void ForEachLitRowEnd(bool west, Visit visit) const;
    // The same for the slots, where alone units stand.
    template <typename Visit>
    void ForEachLitSlot(Visit visit) const;
    // The areas that AreaOf names in the lit cells of columns 0 to width - 2.
    AreaSet LitAreas() const;

    // The unit that stands in a cell and is on the map. Kept by units_on_map.h alone.
    UnitId Standing(Cell cell) const { return standing_[Index(cell)]; }
    void SetStanding(Cell cell, UnitId unit) { standing_[Index(cell)] = unit; }
    void ClearStanding() { standing_.assign(standing_.size(), UnitId{}); }

    // What the picture-building step changes of the ground: tiles 48 to 53 become plain, and each
    // cell gets its border picture.
    void FinishPictures();

 private:
    enum class Tone { AsRead, Lit, Shaded };
    using CellsByArea = std::vector<std::vector<Cell>>;

    // Each cell of the lit areas once, whatever the tone of the rest.
    template <typename Visit>
    void ForEachInLitAreas(const CellsByArea& cells, Visit visit) const;

    std::size_t Index(Cell cell) const {
        return static_cast<std::size_t>(cell.y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(cell.x);
    }

    int width_ = 0;
    int height_ = 0;
    std::shared_ptr<const std::vector<GroundCell>> ground_;
    std::shared_ptr<const AreaMembership> membership_;
    std::shared_ptr<const std::vector<int>> shadeAsRead_;
    std::vector<PlayCell> play_;
    std::vector<UnitId> standing_;
    Tone tone_ = Tone::AsRead;        // columns 0 to width - 2
    Tone lastColumn_ = Tone::AsRead;  // column width - 1
    AreaSet lit_;                     // areas of columns 0 to width - 2 lit over the tone
};

template <typename Visit>
void Grid::ForEachInLitAreas(const CellsByArea& cells, Visit visit) const {
    AreaSet seen;
    lit_.ForEach([&](int ordinal) {
        for (Cell cell : cells[static_cast<std::size_t>(ordinal)]) {
            if (!membership_->areasOf[Index(cell)].Meets(seen)) visit(cell);
        }
        seen.Add(ordinal);
    });
}

template <typename Visit>
void Grid::ForEachLit(Visit visit) const {
    if (tone_ == Tone::Shaded) {
        ForEachInLitAreas(membership_->cellsOf, visit);
        return;
    }
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x + 1 < width_; ++x) {
            if (IsLit({x, y})) visit(Cell{x, y});
        }
    }
}

template <typename Visit>
void Grid::ForEachLitRowEnd(bool west, Visit visit) const {
    if (tone_ != Tone::Shaded) return ForEachLit(visit);
    const CellsByArea& ends = west ? membership_->westEndsOf : membership_->eastEndsOf;
    lit_.ForEach([&](int ordinal) {
        for (Cell cell : ends[static_cast<std::size_t>(ordinal)])
            visit(cell);
    });
}

template <typename Visit>
void Grid::ForEachLitSlot(Visit visit) const {
    if (tone_ == Tone::Shaded) {
        ForEachInLitAreas(membership_->slotsIn, visit);
        return;
    }
    for (Cell slot : membership_->slots) {
        if (IsLit(slot)) visit(slot);
    }
}

}  // namespace varnstride
