#include "model/invariants.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kNoLimit = 32767;
constexpr double kLastMinute = 0.595;  // of an hour, as hours + minutes / 100

std::string Text(Cell cell) {
    return "(" + std::to_string(cell.x) + ", " + std::to_string(cell.y) + ")";
}

std::string Text(UnitId id) {
    return "army " + std::to_string(id.army) + " unit " + std::to_string(id.index);
}

class Inspection {
 public:
    explicit Inspection(const Game& game) : game_(game) {}

    void InspectTurn();
    void InspectArmies(Overspending overspending);
    void InspectUnits();
    void InspectCells();
    void InspectAreas();

    std::vector<std::string> broken;

 private:
    void Expect(bool holds, const std::string& message) {
        if (!holds) broken.push_back(message);
    }
    void ExpectWithin(const std::string& name, int value, int least, int most) {
        Expect(value >= least && value <= most, name + " " + std::to_string(value) +
                                                    " is not within " + std::to_string(least) +
                                                    " to " + std::to_string(most));
    }
    void InspectNumbers(UnitId id, const Unit& unit);
    void InspectDead(UnitId id, const Unit& unit);
    void InspectPlace(UnitId id, const Unit& unit);
    void InspectSide(int ordinal, Side side);
    bool IsSlotOf(Side side, Cell cell) const;
    bool ClosesUp(Cell slot) const;

    const Game& game_;
};

void Inspection::InspectTurn() {
    const GameState& state = game_.state;
    ExpectWithin("gameTurn", state.gameTurn, 1, kNoLimit);
    ExpectWithin("currentArmy", state.currentArmy, kFrench, kLastPlayingArmy);
    ExpectWithin("turnCursor", state.turnCursor, kFrench, kLastPlayingArmy);
    ExpectWithin("currentUnit", state.currentUnit, 0, kUnitsPerArmy - 1);
    ExpectWithin("selectedSlot", state.selectedSlot, 0, kSlotsPerSide);
    ExpectWithin("ownSlotsFilled", state.ownSlotsFilled, 0, kSlotsPerSide);
    ExpectWithin("frenchMorale", state.frenchMorale, 0, 100);
    ExpectWithin("alliedMorale", state.alliedMorale, 0, 100);
    const double minutes = state.clockHours - std::floor(state.clockHours);
    Expect(state.clockHours >= 0 && state.clockHours < 24 && minutes < kLastMinute,
           "clockHours " + std::to_string(state.clockHours) + " is no time of day");
    Expect(!game_.battle.attackRunning, "an attack is still under way");
}

void Inspection::InspectArmies(Overspending overspending) {
    for (int army = 0; army < kArmyCount; ++army) {
        const int points = game_.Army(army).commandPoints;
        Expect(points >= 0 || overspending == Overspending::ByTheComputer,
               "army " + std::to_string(army) + ": commandPoints " + std::to_string(points) +
                   " is below 0");
    }
}

void Inspection::InspectUnits() {
    for (int army = 0; army < kArmyCount; ++army) {
        for (int index = 1; index < kUnitsPerArmy; ++index) {
            const UnitId id{army, index};
            const Unit& unit = game_.At(id);
            if (unit.initialStrength == 0 && unit.strength == 0) continue;
            InspectNumbers(id, unit);
            if (unit.strength <= 0) InspectDead(id, unit);
            if (IsOnMap(game_, id)) InspectPlace(id, unit);
        }
    }
}

void Inspection::InspectNumbers(UnitId id, const Unit& unit) {
    const std::string name = Text(id) + ": ";
    ExpectWithin(name + "strength", unit.strength, 0, unit.initialStrength);
    ExpectWithin(name + "morale", unit.morale, 0, unit.maxMorale);
    ExpectWithin(name + "actionPoints", unit.actionPoints, 0, kNoLimit);
    ExpectWithin(name + "ammunition", unit.ammunition, 0, kFullAmmunition);
    Expect(unit.status != UnitStatus::Routed || unit.formation == Formation::NoFormation,
           name + "routed in formation " + std::to_string(static_cast<int>(unit.formation)));
}

void Inspection::InspectDead(UnitId id, const Unit& unit) {
    Expect(unit.Place() == kNoCell && unit.morale == 0 && unit.status == UnitStatus::Destroyed,
           Text(id) + ": without strength, yet at " + Text(unit.Place()) + " with morale " +
               std::to_string(unit.morale) + " and status " +
               std::to_string(static_cast<int>(unit.status)));
}

void Inspection::InspectPlace(UnitId id, const Unit& unit) {
    const Cell place = unit.Place();
    if (!game_.grid.Holds(place)) {
        broken.push_back(Text(id) + ": on the map at " + Text(place) + ", which is off the grid");
        return;
    }
    Expect(IsSlotOf(SideOf(id.army), place),
           Text(id) + ": " + Text(place) + " is no slot of its side");
    Expect(game_.grid.At(place).occupant == id.army + 1,
           Text(id) + ": occupant of " + Text(place) + " is " +
               std::to_string(game_.grid.At(place).occupant));
    const UnitId standing = game_.grid.Standing(place);
    Expect(standing == id, Text(id) + ": " + Text(place) + " is held by " + Text(standing));
}

// Every mark on a cell belongs to the unit that stands there.
void Inspection::InspectCells() {
    for (int y = 0; y < game_.grid.Height(); ++y) {
        for (int x = 0; x < game_.grid.Width(); ++x) {
            const int occupant = game_.grid.At({x, y}).occupant;
            if (occupant == 0) continue;
            const UnitId standing = game_.grid.Standing({x, y});
            Expect(standing && standing.army + 1 == occupant && IsOnMap(game_, standing) &&
                       game_.At(standing).Place() == Cell{x, y},
                   "cell " + Text(Cell{x, y}) + ": occupant " + std::to_string(occupant) +
                       " without its unit");
        }
    }
}

void Inspection::InspectAreas() {
    for (int ordinal = 1; ordinal <= game_.atlas->AreaCount(); ++ordinal) {
        InspectSide(ordinal, Side::French);
        InspectSide(ordinal, Side::Allied);
    }
}

// Whoever leaves a slot, those behind him step up.
void Inspection::InspectSide(int ordinal, Side side) {
    const AreaRow& row = game_.atlas->Row(ordinal);
    const auto& slots = side == Side::French ? row.frenchSlots : row.alliedSlots;
    for (std::size_t slot = 1; slot < slots.size(); ++slot) {
        const bool gap = game_.grid.At(slots[slot - 1]).occupant == 0 && ClosesUp(slots[slot]);
        Expect(!gap, "area " + std::to_string(ordinal) + ": the unit at " + Text(slots[slot]) +
                         " stands behind an empty slot");
    }
}

bool Inspection::ClosesUp(Cell slot) const {
    const UnitId id = game_.grid.Standing(slot);
    return id && game_.At(id).type != kNeverClosesUp && game_.Army(id.army).present != 0;
}

bool Inspection::IsSlotOf(Side side, Cell cell) const {
    const auto& rows = game_.atlas->Rows();
    return std::any_of(rows.begin(), rows.end(), [&](const AreaRow& row) {
        const auto& slots = side == Side::French ? row.frenchSlots : row.alliedSlots;
        return std::find(slots.begin(), slots.end(), cell) != slots.end();
    });
}

}  // namespace

std::vector<std::string> BrokenInvariants(const Game& game, Overspending overspending) {
    if (game.atlas == nullptr) return {};
    Inspection inspection(game);
    inspection.InspectTurn();
    inspection.InspectArmies(overspending);
    inspection.InspectUnits();
    inspection.InspectCells();
    inspection.InspectAreas();
    return std::move(inspection.broken);
}

}  // namespace varnstride
