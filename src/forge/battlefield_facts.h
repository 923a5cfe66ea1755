// What the rules of the game take for granted about each of the six battlefields: sizes, areas and
// slots that they name, exits, objectives, blocked ground, the units with a portrait of their own.
// The checkers of atlases and of scenarios hold content against these tables.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/atlas.h"
#include "model/cell.h"
#include "model/unit.h"

namespace varnstride {

using SideSlots = std::array<Cell, kSlotsPerSide>;

// The cells of one area number strictly inside the bounds that stand.
struct NumberedBox {
    int areaId = 0;
    std::optional<int> xAbove;
    std::optional<int> xBelow;
    std::optional<int> yAbove;
    std::optional<int> yBelow;

    bool Holds(Cell cell) const;
    // The cell lies on a bounding line of the box.
    bool Touches(Cell cell) const;
};

// An area that is fixed as a whole.
struct KnownRow {
    int ordinal;
    AreaRow row;
};

enum class SlotMeaning {
    MilitiaPlace,  // both sides' slots in this order, in one area
    Stream,        // water runs between the two sides' slots
    River,         // water runs between this area and another
};

// Two sets of slots that a rule names.
struct KnownSlots {
    SlotMeaning meaning;
    SideSlots french;
    SideSlots allied;
};

// An area through which an army leaves the map.
struct ExitPlace {
    int army;
    NumberedBox box;
    std::string_view text;
};

// A marked cell that has a name.
struct ObjectivePlace {
    Cell cell;
    std::string_view name;
};

// Two areas with a river between them, by a French slot of each.
struct RiverBanks {
    Cell one;
    Cell other;
};

// A militia place, by a French slot of it, that should be one area with an exit.
struct MilitiaAtExit {
    Cell frenchSlot;
    std::size_t exit;  // index into exits
};

constexpr unsigned TypeBit(UnitType type) {
    return 1U << static_cast<unsigned>(type);
}

// A unit that the portraits know by its name.
struct NamedUnit {
    int army;
    unsigned types;  // TypeBit of each type that will do
    std::string_view name;
};

struct BattlefieldFacts {
    int mapNumber = 0;
    std::string_view name;
    int areaCount = 0;
    Cell farthestSlot;            // the greatest column and row of any slot, exactly
    int selfLinks = 0;            // areas linked to themselves
    int closedToBombardment = 0;  // links that a bombardment may not use
    bool allLinksKnown = false;   // the map has the links below and no others
    std::span<const int> armies = {};
    std::span<const KnownRow> rows = {};
    std::span<const AreaLink> links = {};
    std::span<const KnownSlots> slots = {};
    std::span<const ExitPlace> exits = {};
    std::span<const ObjectivePlace> objectives = {};
    std::span<const NumberedBox> blocked = {};     // a unit that stands here cannot strike
    std::span<const NumberedBox> batteries = {};   // French guns here reach two areas
    std::span<const Cell> prussianEntrances = {};  // first French slots
    std::span<const RiverBanks> riverBanks = {};
    std::span<const MilitiaAtExit> militiaAtExits = {};
    std::span<const NamedUnit> namedUnits = {};
};

// All battlefields by rising number.
std::span<const BattlefieldFacts> AllBattlefields();

// The facts of a battlefield; nothing for a number that has none.
const BattlefieldFacts* FactsOf(int mapNumber);

// The value of a cell's objective by which the army leaves the map.
int ExitValueOf(int army);

// Whether the area is this exit: its number, and all slots of the army's side inside the box.
bool IsExitArea(const AreaRow& row, const ExitPlace& exit);

// The bounds as messages name them: "x 17, 28; y -1, 9".
std::string BoxText(const NumberedBox& box);

// The slots of the army's side.
const SideSlots& SlotsOfArmy(const AreaRow& row, int army);

}  // namespace varnstride
