#include "files/battle_checks.h"

#include <algorithm>
#include <set>

#include "model/tile_sheets.h"

namespace varnstride {
namespace {

using Fault = std::optional<std::string>;

std::string OutOfRange(const std::string& what, int value, int low, int high) {
    return what + " is " + std::to_string(value) + ", expected " + std::to_string(low) + " to " +
           std::to_string(high);
}

template <typename Record>
struct FieldRange {
    const char* name;
    int (*value)(const Record&);
    int low;
    int high;
};

template <typename Record>
Fault FindFieldFault(const Record& record, const std::vector<FieldRange<Record>>& ranges) {
    for (const FieldRange<Record>& range : ranges) {
        const int value = range.value(record);
        if (value < range.low || value > range.high) {
            return OutOfRange(range.name, value, range.low, range.high);
        }
    }
    return std::nullopt;
}

// The fault with the place where it was found before it.
Fault In(const std::string& place, const Fault& fault) {
    return fault ? Fault(place + ": " + *fault) : fault;
}

template <std::size_t Count>
bool EndsInside(const std::array<char, Count>& text) {
    return std::find(text.begin(), text.end(), '\0') != text.end();
}

std::string CellText(Cell cell) {
    return "(" + std::to_string(cell.x) + ", " + std::to_string(cell.y) + ")";
}

const std::vector<FieldRange<MapCell>>& CellRanges() {
    static const std::vector<FieldRange<MapCell>> ranges = {
        {"occupant", [](const MapCell& c) { return c.occupant; }, 0, kArmyCount},
        {"terrainTile", [](const MapCell& c) { return c.terrainTile; }, 0, kTerrainTiles - 1},
        {"groundTile", [](const MapCell& c) { return c.groundTile; }, 0, kGroundTiles - 1},
        {"overlayTile", [](const MapCell& c) { return c.overlayTile; }, 0, kOverlayTiles - 1},
        {"moveMark", [](const MapCell& c) { return c.moveMark; }, 0, kLossMarks - 1},
        {"objective", [](const MapCell& c) { return c.objective; }, 0, kObjectiveTiles - 1},
        {"roadTile", [](const MapCell& c) { return c.roadTile; }, 0, kRoadTiles - 1},
        {"featureTile", [](const MapCell& c) { return c.featureTile; }, 0, kFeatureTiles - 1},
        {"labelIndex", [](const MapCell& c) { return c.labelIndex; }, 0, kLabelCount - 1},
        {"borderTile", [](const MapCell& c) { return c.borderTile; }, 0, kBorderTiles - 1},
    };
    return ranges;
}

const std::vector<FieldRange<ScenarioHeader>>& HeaderRanges() {
    static const std::vector<FieldRange<ScenarioHeader>> ranges = {
        {"visibility", [](const ScenarioHeader& h) { return h.visibility; }, 0, 1000},
        {"lastTurn", [](const ScenarioHeader& h) { return h.lastTurn; }, 1, kLeftByExit - 1},
        {"savedTurn", [](const ScenarioHeader& h) { return h.savedTurn; }, 1, kLeftByExit - 1},
        {"firstPlayer", [](const ScenarioHeader& h) { return h.firstPlayer; }, 0, kLastPlayingArmy},
        {"savedArmy", [](const ScenarioHeader& h) { return h.savedArmy; }, 0, kLastPlayingArmy},
        {"passMode", [](const ScenarioHeader& h) { return h.passMode; }, 0, 2},
        {"playByEmail", [](const ScenarioHeader& h) { return h.playByEmail; }, 0, 1},
        {"fogNone", [](const ScenarioHeader& h) { return h.fogNone; }, 0, 1},
        {"fogNormal", [](const ScenarioHeader& h) { return h.fogNormal; }, 0, 1},
        {"fogExtreme", [](const ScenarioHeader& h) { return h.fogExtreme; }, 0, 1},
        {"hardDifficulty", [](const ScenarioHeader& h) { return h.hardDifficulty; }, 0, 1},
        {"gameEnded", [](const ScenarioHeader& h) { return h.gameEnded; }, 0, 1},
    };
    return ranges;
}

const std::vector<FieldRange<TimeBlock>>& TimeRanges() {
    static const std::vector<FieldRange<TimeBlock>> ranges = {
        {"clockField", [](const TimeBlock& t) { return t.clockField; }, 0, 2400},
        {"duskHour", [](const TimeBlock& t) { return t.duskHour; }, 0, 24},
        {"dawnHour", [](const TimeBlock& t) { return t.dawnHour; }, 0, 24},
        {"rainChance", [](const TimeBlock& t) { return t.rainChance; }, 0, 100},
        {"cloudChance", [](const TimeBlock& t) { return t.cloudChance; }, 0, 100},
        {"windSpeed", [](const TimeBlock& t) { return t.windSpeed; }, 0, 200},
        {"fogHold", [](const TimeBlock& t) { return t.fogHold; }, 0, 2},
    };
    return ranges;
}

template <auto Field>
int NumberOf(const Unit& unit) {
    return static_cast<int>(unit.*Field);
}

const std::vector<FieldRange<Unit>>& UnitRanges() {
    constexpr int kFarBeyondPlay = 1000;
    static const std::vector<FieldRange<Unit>> ranges = {
        {"type", NumberOf<&Unit::type>, 1, static_cast<int>(kNeverClosesUp)},
        {"formation", NumberOf<&Unit::formation>, 0, 6},
        {"status", NumberOf<&Unit::status>, 0, 4},
        {"quality", NumberOf<&Unit::quality>, 1, 5},
        {"weapon", NumberOf<&Unit::weapon>, 0, 9},
        {"activity", NumberOf<&Unit::activity>, 0, 15},
        {"strength", NumberOf<&Unit::strength>, 0, kFarBeyondPlay},
        {"initialStrength", NumberOf<&Unit::initialStrength>, 0, kFarBeyondPlay},
        {"morale", NumberOf<&Unit::morale>, 0, kFarBeyondPlay},
        {"maxMorale", NumberOf<&Unit::maxMorale>, 0, kFarBeyondPlay},
        {"actionPoints", NumberOf<&Unit::actionPoints>, 0, kFarBeyondPlay},
        {"ammunition", NumberOf<&Unit::ammunition>, 0, kFarBeyondPlay},
        {"leadership", NumberOf<&Unit::leadership>, 0, kFarBeyondPlay},
        {"arrivalTurn", NumberOf<&Unit::arrivalTurn>, 0, kLeftByExit},
        {"arrivalChance", NumberOf<&Unit::arrivalChance>, 0, 100},
    };
    return ranges;
}

Fault FindAtlasFault(const BattleFile& file, const AtlasCatalogue& atlases) {
    const Atlas* atlas = atlases.Find(file.header.mapNumber);
    if (atlas == nullptr) {
        return "header: mapNumber is " + std::to_string(file.header.mapNumber) +
               ", which is no battlefield";
    }
    const Cell farthest = atlas->FarthestSlot();
    if (farthest.x > file.mapWidth - 2 || farthest.y > file.mapHeight - 1) {
        return "map size: " + std::to_string(file.mapWidth) + " x " +
               std::to_string(file.mapHeight) + " is too small for battlefield " +
               std::to_string(file.header.mapNumber) + ", whose slots reach " + CellText(farthest);
    }
    return std::nullopt;
}

Fault FindCellFault(const BattleFile& file, const AtlasCatalogue&) {
    for (std::size_t index = 0; index < file.cells.size(); ++index) {
        const auto width = static_cast<std::size_t>(file.mapWidth);
        const Cell cell{static_cast<int>(index % width), static_cast<int>(index / width)};
        if (const Fault fault = FindFaultOf(file.cells[index])) {
            return In("map: cell " + CellText(cell), fault);
        }
    }
    return std::nullopt;
}

Fault FindTextFault(const BattleFile& file, const AtlasCatalogue&) {
    for (std::size_t label = 0; label < file.labels.size(); ++label) {
        if (!EndsInside(file.labels[label].labelText)) {
            return "map labels: label " + std::to_string(label) + " has no end";
        }
    }
    const ScenarioHeader& header = file.header;
    const std::pair<const char*, bool> texts[] = {
        {"firstPassword", EndsInside(header.firstPassword)},
        {"secondPassword", EndsInside(header.secondPassword)},
        {"scenarioAuthor", EndsInside(header.scenarioAuthor)},
        {"scenarioDate", EndsInside(header.scenarioDate)},
        {"scenarioDescription", EndsInside(header.scenarioDescription)},
    };
    for (const auto& [name, ends] : texts) {
        if (!ends) return "header: " + std::string(name) + " has no end";
    }
    for (std::size_t army = 0; army < file.briefings.size(); ++army) {
        if (!EndsInside(file.briefings[army].text)) {
            return "intelligence reports: the text of army " + std::to_string(army) + " has no end";
        }
    }
    return std::nullopt;
}

Fault FindHeaderFault(const BattleFile& file, const AtlasCatalogue&) {
    if (auto fault = FindFieldFault(file.header, HeaderRanges())) return In("header", fault);
    return In("time", FindFieldFault(file.time, TimeRanges()));
}

Fault FindArmyFault(const BattleFile& file, const AtlasCatalogue&) {
    const std::pair<const char*, int> players[] = {{"firstPlayer", file.header.firstPlayer},
                                                   {"savedArmy", file.header.savedArmy}};
    for (const auto& [name, army] : players) {
        if (file.armies[static_cast<std::size_t>(army)].present == 0) {
            return "header: " + std::string(name) + " is " + std::to_string(army) +
                   ", an army that is not present";
        }
    }
    const int direction = file.turnLog.advanceDirection;
    if (direction < 1 || direction > 6) {
        return OutOfRange("turn log: advanceDirection", direction, 1, 6);
    }
    const int inProgress = file.turnLog.turnInProgress;
    if (inProgress < 0 || inProgress > 1) {
        return OutOfRange("turn log: turnInProgress", inProgress, 0, 1);
    }
    return std::nullopt;
}

template <typename Visit>
Fault FindInUnits(const BattleFile& file, Visit visit) {
    for (int army = 0; army < file.armyCount; ++army) {
        for (int index = 0; index < file.unitsPerArmy; ++index) {
            const Unit& unit =
                file.units[static_cast<std::size_t>(army)][static_cast<std::size_t>(index)];
            const Fault fault = visit(UnitId{army, index}, unit);
            if (fault) {
                return "units: army " + std::to_string(army) + " unit " + std::to_string(index) +
                       ": " + *fault;
            }
        }
    }
    return std::nullopt;
}

bool IsUsed(const Unit& unit) {
    return unit.strength != 0 || unit.initialStrength != 0;
}

Fault FindUnitFault(const BattleFile& file, const AtlasCatalogue&) {
    return FindInUnits(file, [](UnitId id, const Unit& unit) -> Fault {
        if (id.index == 0 && IsUsed(unit)) return "record 0 must stay empty";
        return FindFaultOf(unit);
    });
}

// A unit due in the very turn of the file stands on the map or still waits for its army's turn.
bool MayStillWait(const BattleFile& file, const Unit& unit) {
    return unit.arrivalTurn == file.header.savedTurn;
}

bool IsOnMap(const BattleFile& file, const Unit& unit) {
    return unit.strength > 0 && unit.arrivalTurn <= file.header.savedTurn;
}

std::set<std::pair<int, int>> SlotsOf(const Atlas& atlas, Side side) {
    std::set<std::pair<int, int>> slots;
    for (const AreaRow& row : atlas.Rows()) {
        for (Cell slot : side == Side::French ? row.frenchSlots : row.alliedSlots) {
            slots.insert({slot.x, slot.y});
        }
    }
    return slots;
}

class PlaceCheck {
 public:
    PlaceCheck(const BattleFile& file, const Atlas& atlas)
        : file_(file),
          slots_{SlotsOf(atlas, Side::French), SlotsOf(atlas, Side::Allied)},
          held_(file.cells.size(), 0) {}

    Fault Test(UnitId id, const Unit& unit) {
        if (unit.strength <= 0 || unit.arrivalTurn == kLeftByExit) return std::nullopt;
        if (!IsOnGrid(unit.Place())) return "stands off the map at " + CellText(unit.Place());
        if (!IsOnMap(file_, unit)) return std::nullopt;
        const std::size_t index = IndexOf(unit.Place());
        const bool marked = file_.cells[index].occupant == id.army + 1;
        const bool inSlot =
            slots_[SideOf(id.army) == Side::French ? 0 : 1].contains({unit.x, unit.y});
        if (MayStillWait(file_, unit) && (!marked || !inSlot || held_[index] != 0)) {
            return std::nullopt;
        }
        if (!inSlot) return "stands at " + CellText(unit.Place()) + ", no slot of its side";
        if (held_[index] != 0) {
            return "stands at " + CellText(unit.Place()) + ", where another unit stands";
        }
        if (!marked) {
            return "stands at " + CellText(unit.Place()) + ", whose occupant is " +
                   std::to_string(file_.cells[index].occupant);
        }
        held_[index] = 1;
        return std::nullopt;
    }

    Fault FindStrayOccupant() const {
        for (std::size_t index = 0; index < file_.cells.size(); ++index) {
            if (file_.cells[index].occupant == 0 || held_[index] != 0) continue;
            const auto width = static_cast<std::size_t>(file_.mapWidth);
            const Cell cell{static_cast<int>(index % width), static_cast<int>(index / width)};
            return "map: cell " + CellText(cell) + ": occupant is " +
                   std::to_string(file_.cells[index].occupant) + ", but no such unit stands there";
        }
        return std::nullopt;
    }

 private:
    bool IsOnGrid(Cell cell) const {
        return cell.x >= 0 && cell.x < file_.mapWidth && cell.y >= 0 && cell.y < file_.mapHeight;
    }
    std::size_t IndexOf(Cell cell) const {
        return static_cast<std::size_t>(cell.y) * static_cast<std::size_t>(file_.mapWidth) +
               static_cast<std::size_t>(cell.x);
    }

    const BattleFile& file_;
    std::array<std::set<std::pair<int, int>>, 2> slots_;
    std::vector<int> held_;
};

// Units that have stood for longer come before those due this turn, which may be waiting.
Fault FindPlaceFault(const BattleFile& file, const AtlasCatalogue& atlases) {
    PlaceCheck check(file, *atlases.Find(file.header.mapNumber));
    for (const bool due : {false, true}) {
        const Fault fault = FindInUnits(file, [&](UnitId id, const Unit& unit) -> Fault {
            return MayStillWait(file, unit) == due ? check.Test(id, unit) : std::nullopt;
        });
        if (fault) return fault;
    }
    return check.FindStrayOccupant();
}

}  // namespace

Fault FindFaultOf(const MapCell& cell) {
    return FindFieldFault(cell, CellRanges());
}

Fault FindFaultOf(const Unit& unit) {
    if (!EndsInside(unit.name)) return "name has no end";
    if (!IsUsed(unit)) return std::nullopt;
    if (const Fault fault = FindFieldFault(unit, UnitRanges())) return fault;
    if (unit.strength > 0 && unit.maxMorale == 0) return "maxMorale is 0";
    return std::nullopt;
}

Fault FindFault(const BattleFile& file, const AtlasCatalogue& atlases) {
    using Check = Fault (*)(const BattleFile&, const AtlasCatalogue&);
    constexpr Check kChecks[] = {FindHeaderFault, FindTextFault, FindAtlasFault, FindArmyFault,
                                 FindCellFault,   FindUnitFault, FindPlaceFault};
    for (const Check check : kChecks) {
        if (auto fault = check(file, atlases)) return fault;
    }
    return std::nullopt;
}

}  // namespace varnstride
