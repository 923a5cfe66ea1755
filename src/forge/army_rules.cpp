// The armies of a scenario on its battlefield: which may be there, where their units stand, and
// units whose portrait goes by their name.
#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "forge/ground_rules.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

constexpr const char* kArmyNames[kArmyCount] = {"French",  "British", "Austrian", "Prussian",
                                                "Russian", "Spanish", "seventh"};

std::string NameOf(const Unit& unit) {
    return {unit.name.begin(), std::find(unit.name.begin(), unit.name.end(), '\0')};
}

std::string Shown(UnitId id, const Unit& unit) {
    return std::string(kArmyNames[id.army]) + " unit " + std::to_string(id.index) + " \"" +
           NameOf(unit) + "\"";
}

// Calls visit(id, unit) for every unit with strength, by army and record.
template <typename Visit>
void ForEachUnit(const GroundCheck& check, Visit visit) {
    for (int army = 0; army < kArmyCount; ++army) {
        const auto& units = check.file.units[static_cast<std::size_t>(army)];
        for (int index = 1; index < kUnitsPerArmy; ++index) {
            const Unit& unit = units[static_cast<std::size_t>(index)];
            if (unit.strength > 0) visit(UnitId{army, index}, unit);
        }
    }
}

bool Fights(const GroundCheck& check, int army) {
    const std::span<const int> armies = check.facts.armies;
    return std::find(armies.begin(), armies.end(), army) != armies.end();
}

void CheckPresence(const GroundCheck& check) {
    const std::string place = " at " + std::string(check.facts.name);
    for (int army = 0; army < kArmyCount; ++army) {
        const bool present = check.file.armies[static_cast<std::size_t>(army)].present != 0;
        if (present == Fights(check, army)) continue;
        check.Error("the " + std::string(kArmyNames[army]) + " army is " +
                    (present ? "present: expected none" : "not present: expected it") + place);
    }
    ForEachUnit(check, [&](UnitId id, const Unit& unit) {
        if (Fights(check, id.army)) return;
        check.Error(Shown(id, unit) + " has strength, and its army does not fight" + place);
    });
}

// The side whose slot each cell is.
std::map<std::pair<int, int>, Side> SlotSides(const Atlas& atlas) {
    std::map<std::pair<int, int>, Side> sides;
    for (const AreaRow& row : atlas.Rows()) {
        for (Cell slot : row.frenchSlots)
            sides[{slot.x, slot.y}] = Side::French;
        for (Cell slot : row.alliedSlots)
            sides[{slot.x, slot.y}] = Side::Allied;
    }
    return sides;
}

// A unit due on the turn of the file or later waits off the map; its cell is where it comes in.
bool IsOnMapAtStart(const GroundCheck& check, const Unit& unit) {
    return unit.arrivalTurn < std::max(check.file.header.savedTurn, 1);
}

void CheckPlaces(const GroundCheck& check) {
    const std::map<std::pair<int, int>, Side> sides = SlotSides(check.atlas);
    std::map<std::pair<int, int>, std::string> holders;
    ForEachUnit(check, [&](UnitId id, const Unit& unit) {
        const Cell cell = unit.Place();
        const std::string name = Shown(id, unit);
        if (!IsOnMapAtStart(check, unit)) {
            if (check.IsPlayable(cell) && check.grid.AreaOf(cell) > 0) return;
            check.Error(name + " comes in at " + varnstride::Shown(cell) +
                        ": expected a cell of an area");
            return;
        }
        const auto side = sides.find({cell.x, cell.y});
        if (side == sides.end() || side->second != SideOf(id.army)) {
            check.Error(name + " stands on " + varnstride::Shown(cell) +
                        ": expected a slot of its side");
        }
        const auto [holder, isFree] = holders.try_emplace({cell.x, cell.y}, name);
        if (isFree) return;
        check.Error(name + " stands on " + varnstride::Shown(cell) + ", where " + holder->second +
                    " stands already");
    });
}

std::string TypesText(unsigned types) {
    std::string text;
    for (int type = 0; types >> type != 0; ++type) {
        if ((types >> type & 1U) != 0) text += (text.empty() ? "" : " or ") + std::to_string(type);
    }
    return text;
}

void CheckNames(const GroundCheck& check) {
    std::string unused;
    for (const NamedUnit& named : check.facts.namedUnits) {
        bool isUsed = false;
        ForEachUnit(check, [&](UnitId id, const Unit& unit) {
            if (NameOf(unit) != named.name) return;
            isUsed = true;
            if (id.army == named.army && (named.types & TypeBit(unit.type)) != 0) return;
            check.Error(Shown(id, unit) + " is of type " +
                        std::to_string(static_cast<int>(unit.type)) +
                        ": expected a unit of this name in the " + kArmyNames[named.army] +
                        " army, of type " + TypesText(named.types));
        });
        if (!isUsed) unused += (unused.empty() ? "\"" : ", \"") + std::string(named.name) + "\"";
    }
    if (unused.empty()) return;
    check.Warning("names with a portrait of their own that no unit bears: " + unused);
}

}  // namespace

void CheckArmies(const GroundCheck& check) {
    CheckPresence(check);
    CheckPlaces(check);
    CheckNames(check);
}

}  // namespace varnstride
