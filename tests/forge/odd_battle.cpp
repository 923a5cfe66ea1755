#include "odd_battle.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string_view>

#include "model/record_fields.h"

namespace varnstride {
namespace {

struct Range {
    int low;
    int high;
};

// The fields that files may not fill at will, by name; all others take any number of their width.
const std::map<std::string_view, Range>& Ranges() {
    static const std::map<std::string_view, Range> ranges = {
        {"terrainTile", {0, 101}},    {"groundTile", {0, 143}},  {"overlayTile", {0, 141}},
        {"moveMark", {0, 99}},        {"objective", {0, 11}},    {"roadTile", {0, 20}},
        {"featureTile", {0, 255}},    {"labelIndex", {0, 29}},   {"borderTile", {0, 31}},
        {"visibility", {0, 1000}},    {"lastTurn", {1, 1999}},   {"savedTurn", {1, 1999}},
        {"passMode", {0, 2}},         {"playByEmail", {0, 1}},   {"fogNone", {0, 1}},
        {"fogNormal", {0, 1}},        {"fogExtreme", {0, 1}},    {"hardDifficulty", {0, 1}},
        {"gameEnded", {0, 1}},        {"clockField", {0, 2400}}, {"duskHour", {0, 24}},
        {"dawnHour", {0, 24}},        {"rainChance", {0, 100}},  {"cloudChance", {0, 100}},
        {"windSpeed", {0, 200}},      {"fogHold", {0, 2}},       {"turnInProgress", {0, 1}},
        {"advanceDirection", {1, 6}}, {"type", {1, 21}},         {"formation", {0, 6}},
        {"status", {0, 4}},           {"quality", {1, 5}},       {"weapon", {0, 9}},
        {"activity", {0, 15}},        {"strength", {0, 12}},     {"initialStrength", {0, 12}},
        {"morale", {0, 40}},          {"maxMorale", {1, 40}},    {"actionPoints", {0, 1000}},
        {"ammunition", {0, 1000}},    {"leadership", {0, 1000}}, {"arrivalTurn", {0, 2000}},
        {"arrivalChance", {0, 100}},
    };
    return ranges;
}

// Fields that other fields lean on; set apart.
constexpr std::string_view kKept[] = {"occupant",  "mapNumber", "firstPlayer",
                                      "savedArmy", "present",   "hasGroupAssignments"};

class Oddity {
 public:
    explicit Oddity(std::mt19937& chance) : chance_(chance) {}

    int Number(int low, int high) {
        const auto span = static_cast<std::uint64_t>(static_cast<std::int64_t>(high) - low) + 1;
        return static_cast<int>(low + static_cast<std::int64_t>(chance_() % span));
    }
    bool OneIn(int count) { return Number(1, count) == 1; }

    template <typename Record>
    void Change(Record& record, int oneIn) {
        RecordFields<Record>::ForEach([&](std::string_view name, auto member, auto... width) {
            const bool kept =
                std::find(std::begin(kKept), std::end(kKept), name) != std::end(kKept);
            if (!kept && OneIn(oneIn)) ChangeMember(name, record.*member, width...);
        });
    }
    template <std::size_t Size>
    void ChangeMember(std::string_view, std::array<std::uint8_t, Size>& bytes) {
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(OneIn(2) ? 0 : Number(0, 255));
    }

 private:
    template <typename Value>
    void ChangeMember(std::string_view name, Value& value, Width width) {
        const bool isShort = width == Width::Int16;
        Range range = {isShort ? -32768 : std::numeric_limits<int>::min(),
                       isShort ? 32767 : std::numeric_limits<int>::max()};
        const auto known = Ranges().find(name);
        if (known != Ranges().end()) range = known->second;
        value = static_cast<Value>(Number(range.low, range.high));
    }
    // Any bytes, with an end somewhere.
    template <std::size_t Size>
    void ChangeMember(std::string_view, std::array<char, Size>& text) {
        constexpr std::string_view kAwkward = "\"\\|;[]=-\n\r\t , a\xe9";
        const int used = Number(0, static_cast<int>(Size) - 1);
        std::fill(text.begin(), text.end(), '\0');
        for (int at = 0; at < used; ++at) {
            text[static_cast<std::size_t>(at)] =
                OneIn(3) ? static_cast<char>(Number(-128, 127))
                         : kAwkward[static_cast<std::size_t>(
                               Number(0, static_cast<int>(kAwkward.size()) - 1))];
        }
    }

    std::mt19937& chance_;
};

MapCell& At(BattleFile& file, Cell cell) {
    return file.cells[static_cast<std::size_t>(cell.y * file.mapWidth + cell.x)];
}

// Makes a unit with strength one that waits, has left, or stands in a slot that is still free.
void PlaceUnit(BattleFile& file, int army, Unit& unit, std::vector<Cell>& slots, Oddity& odd) {
    unit.SetPlace({odd.Number(0, file.mapWidth - 1), odd.Number(0, file.mapHeight - 1)});
    if (slots.empty() || odd.OneIn(2)) {
        const int next = std::min(file.header.savedTurn + 1, kLeftByExit);
        unit.arrivalTurn = odd.OneIn(2) ? kLeftByExit : odd.Number(next, kLeftByExit);
        return;
    }
    unit.arrivalTurn = odd.Number(0, file.header.savedTurn - 1);
    unit.SetPlace(slots.back());
    slots.pop_back();
    At(file, unit.Place()).occupant = army + 1;
}

void ChangeUnits(BattleFile& file, const Atlas& atlas, Oddity& odd) {
    for (MapCell& cell : file.cells)
        cell.occupant = 0;
    std::array<std::vector<Cell>, 2> slots;
    for (const AreaRow& row : atlas.Rows()) {
        slots[0].insert(slots[0].end(), row.frenchSlots.begin(), row.frenchSlots.end());
        slots[1].insert(slots[1].end(), row.alliedSlots.begin(), row.alliedSlots.end());
    }
    for (int army = 0; army < kArmyCount; ++army) {
        ArmyUnits& units = file.units[static_cast<std::size_t>(army)];
        odd.Change(units[0], 6);
        units[0].strength = units[0].initialStrength = 0;
        for (Unit& unit : units) {
            const bool named = unit.strength > 0 && &unit != units.data();
            if (!named && !odd.OneIn(60)) continue;
            if (&unit == units.data()) continue;
            if (!named) unit.type = UnitType::Leader, unit.quality = Quality::Elite;
            unit.maxMorale = std::max(unit.maxMorale, 1);
            odd.Change(unit, odd.Number(1, 12));
            if (unit.strength > 0) {
                PlaceUnit(file, army, unit, slots[army == kFrench ? 0 : 1], odd);
            }
        }
    }
}

}  // namespace

void MakeOdd(BattleFile& file, const Atlas& atlas, std::mt19937& chance) {
    Oddity odd(chance);
    const int oneIn = odd.Number(1, 8);
    odd.ChangeMember("", file.sizeReserved);
    odd.ChangeMember("", file.countReserved);
    odd.Change(file.header, oneIn);
    odd.Change(file.time, oneIn);
    odd.Change(file.loss, oneIn);
    odd.Change(file.turnLog, oneIn);
    odd.Change(file.options, oneIn);
    for (std::int16_t& roll : file.turnLog.rollLog) {
        if (odd.OneIn(300)) roll = static_cast<std::int16_t>(odd.Number(-32768, 32767));
    }
    for (MapLabel& label : file.labels) {
        if (odd.OneIn(oneIn)) odd.Change(label, 2);
    }
    for (MapCell& cell : file.cells) {
        if (odd.OneIn(4 * oneIn)) odd.Change(cell, odd.Number(1, 10));
    }
    for (ArmyRecord& army : file.armies) {
        odd.Change(army, oneIn);
        if (odd.OneIn(2)) army.present = odd.OneIn(3) ? odd.Number(-32768, 32767) : 1;
        if (odd.OneIn(2)) army.hasGroupAssignments = odd.Number(0, 2);
    }
    file.armies[kBritish].present = 1;
    file.header.firstPlayer = kBritish;
    file.header.savedArmy = kBritish;
    for (BriefingRecord& briefing : file.briefings) {
        briefing = {};
        if (file.armies[kFrench].hasGroupAssignments == 1) odd.Change(briefing, 2);
    }
    ChangeUnits(file, atlas, odd);
}

}  // namespace varnstride
