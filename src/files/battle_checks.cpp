#include "files/battle_checks.h"

#include <cstdint>
#include <cstring>
#include <iterator>
#include <utility>
#include <vector>

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

template <auto Field, typename Record>
constexpr int NumberOf(const Record& record) {
    return static_cast<int>(record.*Field);
}

template <const auto& kRanges, std::size_t... kIndex, typename Record>
bool AreAllInside(const Record& record, std::index_sequence<kIndex...>) {
    return ((kRanges[kIndex].value(record) >= kRanges[kIndex].low &&
             kRanges[kIndex].value(record) <= kRanges[kIndex].high) &&
            ...);
}

// A map has a hundred thousand numbers to look at: the compiler makes plain comparisons of them,
// and the table is walked only for a record that has a fault.
template <const auto& kRanges, typename Record>
Fault FindFieldFault(const Record& record) {
    if (AreAllInside<kRanges>(record, std::make_index_sequence<std::size(kRanges)>())) {
        return std::nullopt;
    }
    for (const FieldRange<Record>& range : kRanges) {
        const int value = range.value(record);
        if (value < range.low || value > range.high) {
            return OutOfRange(range.name, value, range.low, range.high);
        }
    }
    return std::nullopt;
}

Fault In(const std::string& place, const Fault& fault) {
    if (!fault) return std::nullopt;
    return place + ": " + *fault;
}

template <std::size_t Count>
bool EndsInside(const std::array<char, Count>& text) {
    return std::memchr(text.data(), '\0', Count) != nullptr;
}

std::string CellText(Cell cell) {
    return "(" + std::to_string(cell.x) + ", " + std::to_string(cell.y) + ")";
}

constexpr FieldRange<MapCell> kCellRanges[] = {
    {"occupant", NumberOf<&MapCell::occupant>, 0, kArmyCount},
    {"terrainTile", NumberOf<&MapCell::terrainTile>, 0, kTerrainTiles - 1},
    {"groundTile", NumberOf<&MapCell::groundTile>, 0, kGroundTiles - 1},
    {"overlayTile", NumberOf<&MapCell::overlayTile>, 0, kOverlayTiles - 1},
    {"moveMark", NumberOf<&MapCell::moveMark>, 0, kLossMarks - 1},
    {"objective", NumberOf<&MapCell::objective>, 0, kObjectiveTiles - 1},
    {"roadTile", NumberOf<&MapCell::roadTile>, 0, kRoadTiles - 1},
    {"featureTile", NumberOf<&MapCell::featureTile>, 0, kFeatureTiles - 1},
    {"labelIndex", NumberOf<&MapCell::labelIndex>, 0, kLabelCount - 1},
    {"borderTile", NumberOf<&MapCell::borderTile>, 0, kBorderTiles - 1},
};

constexpr FieldRange<ScenarioHeader> kHeaderRanges[] = {
    {"visibility", NumberOf<&ScenarioHeader::visibility>, 0, 1000},
    {"lastTurn", NumberOf<&ScenarioHeader::lastTurn>, 1, kLeftByExit - 1},
    {"savedTurn", NumberOf<&ScenarioHeader::savedTurn>, 1, kLeftByExit - 1},
    {"firstPlayer", NumberOf<&ScenarioHeader::firstPlayer>, 0, kLastPlayingArmy},
    {"savedArmy", NumberOf<&ScenarioHeader::savedArmy>, 0, kLastPlayingArmy},
    {"passMode", NumberOf<&ScenarioHeader::passMode>, 0, 2},
    {"playByEmail", NumberOf<&ScenarioHeader::playByEmail>, 0, 1},
    {"fogNone", NumberOf<&ScenarioHeader::fogNone>, 0, 1},
    {"fogNormal", NumberOf<&ScenarioHeader::fogNormal>, 0, 1},
    {"fogExtreme", NumberOf<&ScenarioHeader::fogExtreme>, 0, 1},
    {"hardDifficulty", NumberOf<&ScenarioHeader::hardDifficulty>, 0, 1},
    {"gameEnded", NumberOf<&ScenarioHeader::gameEnded>, 0, 1},
};

constexpr FieldRange<TimeBlock> kTimeRanges[] = {
    {"clockField", NumberOf<&TimeBlock::clockField>, 0, 2400},
    {"duskHour", NumberOf<&TimeBlock::duskHour>, 0, 24},
    {"dawnHour", NumberOf<&TimeBlock::dawnHour>, 0, 24},
    {"rainChance", NumberOf<&TimeBlock::rainChance>, 0, 100},
    {"cloudChance", NumberOf<&TimeBlock::cloudChance>, 0, 100},
    {"windSpeed", NumberOf<&TimeBlock::windSpeed>, 0, 200},
    {"fogHold", NumberOf<&TimeBlock::fogHold>, 0, 2},
};

constexpr int kFarBeyondPlay = 1000;
constexpr FieldRange<Unit> kUnitRanges[] = {
    {"type", NumberOf<&Unit::type>, 1, static_cast<int>(kNeverClosesUp)},
    {"formation", NumberOf<&Unit::formation>, 0, 6},
    {"status", NumberOf<&Unit::status>, 0, 4},
    {"quality", NumberOf<&Unit::quality>, 0, 5},
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

Cell CellAt(const BattleFile& file, std::size_t index) {
    const auto width = static_cast<std::size_t>(file.mapWidth);
    return {static_cast<int>(index % width), static_cast<int>(index / width)};
}

Fault FindCellFault(const BattleFile& file, const AtlasCatalogue&) {
    for (std::size_t index = 0; index < file.cells.size(); ++index) {
        const Fault fault = FindFaultOf(file.cells[index]);
        if (fault) return In("map: cell " + CellText(CellAt(file, index)), fault);
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
    if (const Fault fault = FindFieldFault<kHeaderRanges>(file.header)) return In("header", fault);
    return In("time", FindFieldFault<kTimeRanges>(file.time));
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

const Unit& UnitOf(const BattleFile& file, UnitId id) {
    return file.units[static_cast<std::size_t>(id.army)][static_cast<std::size_t>(id.index)];
}

std::string PlaceText(UnitId id) {
    return "units: army " + std::to_string(id.army) + " unit " + std::to_string(id.index);
}

template <typename Visit>
Fault FindInUnits(const BattleFile& file, Visit visit) {
    for (int army = 0; army < file.armyCount; ++army) {
        for (int index = 0; index < file.unitsPerArmy; ++index) {
            const UnitId id{army, index};
            if (const Fault fault = visit(id, UnitOf(file, id))) return In(PlaceText(id), fault);
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

// Whether every unit on the map holds a slot of its own, and every mark of a slot has its unit.
class PlaceCheck {
 public:
    PlaceCheck(const BattleFile& file, const Atlas& atlas)
        : file_(file), slotsOf_(file.cells.size(), 0), held_(file.cells.size(), false) {
        for (const AreaRow& row : atlas.Rows()) {
            for (Cell slot : row.frenchSlots)
                slotsOf_[IndexOf(slot)] |= BitOf(Side::French);
            for (Cell slot : row.alliedSlots)
                slotsOf_[IndexOf(slot)] |= BitOf(Side::Allied);
        }
    }

    Fault Test(UnitId id, const Unit& unit) {
        if (unit.strength <= 0 || unit.arrivalTurn == kLeftByExit) return std::nullopt;
        const Cell place = unit.Place();
        if (!IsOnGrid(place)) return "its place " + CellText(place) + " is off the map";
        if (!IsOnMap(file_, unit)) return std::nullopt;
        const Fault fault = FindSlotFault(id.army, place);
        if (!fault) held_[IndexOf(place)] = true;
        return MayStillWait(file_, unit) ? std::nullopt : fault;
    }

    Fault FindStrayOccupant() const {
        for (std::size_t index = 0; index < file_.cells.size(); ++index) {
            const int occupant = file_.cells[index].occupant;
            if (occupant == 0 || held_[index]) continue;
            return "map: cell " + CellText(CellAt(file_, index)) + ": occupant is " +
                   std::to_string(occupant) + ", but no such unit stands there";
        }
        return std::nullopt;
    }

 private:
    static std::uint8_t BitOf(Side side) { return side == Side::French ? 1 : 2; }
    bool IsOnGrid(Cell cell) const {
        return cell.x >= 0 && cell.x < file_.mapWidth && cell.y >= 0 && cell.y < file_.mapHeight;
    }
    std::size_t IndexOf(Cell cell) const {
        return static_cast<std::size_t>(cell.y) * static_cast<std::size_t>(file_.mapWidth) +
               static_cast<std::size_t>(cell.x);
    }
    Fault FindSlotFault(int army, Cell place) const {
        const std::size_t index = IndexOf(place);
        if ((slotsOf_[index] & BitOf(SideOf(army))) == 0) {
            return "stands at " + CellText(place) + ", no slot of its side";
        }
        if (held_[index]) return "stands at " + CellText(place) + ", where another unit stands";
        const int occupant = file_.cells[index].occupant;
        if (occupant == army + 1) return std::nullopt;
        return "stands at " + CellText(place) + ", whose occupant is " + std::to_string(occupant);
    }

    const BattleFile& file_;
    std::vector<std::uint8_t> slotsOf_;  // by cell: the sides that have a slot there
    std::vector<bool> held_;             // by cell: whether a unit stands there
};

// Units that have stood for longer come before those due this turn, which may be waiting.
Fault FindPlaceFault(const BattleFile& file, const AtlasCatalogue& atlases) {
    PlaceCheck check(file, *atlases.Find(file.header.mapNumber));
    std::vector<UnitId> due;
    const Fault fault = FindInUnits(file, [&](UnitId id, const Unit& unit) -> Fault {
        if (!MayStillWait(file, unit)) return check.Test(id, unit);
        due.push_back(id);
        return std::nullopt;
    });
    if (fault) return fault;
    for (UnitId id : due) {
        if (auto late = check.Test(id, UnitOf(file, id))) return In(PlaceText(id), late);
    }
    return check.FindStrayOccupant();
}

}  // namespace

Fault FindFaultOf(const MapCell& cell) {
    return FindFieldFault<kCellRanges>(cell);
}

Fault FindFaultOf(const Unit& unit) {
    if (!IsUsed(unit)) return std::nullopt;
    if (!EndsInside(unit.name)) return "name has no end";
    if (const Fault fault = FindFieldFault<kUnitRanges>(unit)) return fault;
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
