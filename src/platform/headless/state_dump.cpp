#include "platform/headless/state_dump.h"

#include <algorithm>
#include <type_traits>

#include "model/record_fields.h"
#include "model/state_fields.h"

namespace varnstride {
namespace {

using Json = nlohmann::ordered_json;

template <typename Value>
requires std::is_integral_v<Value> || std::is_enum_v<Value> Json ToJson(Value value) {
    return static_cast<int>(value);
}

Json ToJson(double value) {
    return value;
}

Json ToJson(Cell cell) {
    return {cell.x, cell.y};
}

template <std::size_t kSize>
Json ToJson(const std::array<char, kSize>& text) {
    return ToUtf8({text.data(), static_cast<std::size_t>(std::find(text.begin(), text.end(), '\0') -
                                                         text.begin())});
}

template <typename Value, std::size_t kSize>
Json ToJson(const std::array<Value, kSize>& values) {
    Json list = Json::array();
    for (const Value& value : values)
        list.push_back(ToJson(value));
    return list;
}

template <typename Record>
void AddFields(Json& object, const Record& record) {
    RecordFields<Record>::ForEach(
        [&](const char* name, auto member, auto...) { object[name] = ToJson(record.*member); });
}

template <typename Record>
Json RecordAsJson(const Record& record) {
    Json object = Json::object();
    AddFields(object, record);
    return object;
}

template <typename Records>
Json RecordsAsJson(const Records& records) {
    Json list = Json::array();
    for (const auto& record : records)
        list.push_back(RecordAsJson(record));
    return list;
}

Json WholeGameState(const Game& game) {
    Json object = Json::object();
    ForEachStateField(game,
                      [&](const char* name, const auto& field) { object[name] = ToJson(field); });
    return object;
}

Json UnitsOfArmy(const ArmyUnits& units) {
    Json list = Json::array();
    for (std::size_t index = 0; index < units.size(); ++index) {
        if (units[index].initialStrength == 0 && units[index].strength == 0) continue;
        Json unit = {{"index", index}};
        AddFields(unit, units[index]);
        list.push_back(std::move(unit));
    }
    return list;
}

Json AllUnits(const std::vector<ArmyUnits>& armies) {
    Json list = Json::array();
    for (const ArmyUnits& units : armies)
        list.push_back(UnitsOfArmy(units));
    return list;
}

// Appends the fields in which the cell differs from what it was, under its place.
void AddChangedCell(Json& list, Cell place, const MapCell& now, const MapCell& was) {
    Json object = {{"x", place.x}, {"y", place.y}};
    RecordFields<MapCell>::ForEach([&](const char* name, auto member, Width) {
        if (now.*member != was.*member) object[name] = now.*member;
    });
    if (object.size() > 2) list.push_back(std::move(object));
}

Json ChangedCells(const std::vector<MapCell>& now, const std::vector<MapCell>& was, int width) {
    Json list = Json::array();
    for (std::size_t index = 0; index < now.size() && index < was.size(); ++index) {
        const int place = static_cast<int>(index);
        AddChangedCell(list, {place % width, place / width}, now[index], was[index]);
    }
    return list;
}

// The roll log without the zeros at its end.
Json UsedRollLog(const TurnLogBlock& turnLog) {
    const auto used = std::find_if(turnLog.rollLog.rbegin(), turnLog.rollLog.rend(),
                                   [](std::int16_t entry) { return entry != 0; });
    return std::vector<int>(turnLog.rollLog.begin(), used.base());
}

Json TurnLogAsJson(const TurnLogBlock& turnLog) {
    Json object = RecordAsJson(turnLog);
    object["rollLog"] = UsedRollLog(turnLog);
    return object;
}

}  // namespace

Json StateEvent(const Game& game, const std::vector<MapCell>& atLoad) {
    return {{"event", "state"},
            {"game", WholeGameState(game)},
            {"header", RecordAsJson(game.header)},
            {"time", RecordAsJson(game.time)},
            {"loss", RecordAsJson(game.loss)},
            {"options", RecordAsJson(game.options)},
            {"armies", RecordsAsJson(game.armies)},
            {"units", AllUnits(game.units)},
            {"cells", ChangedCells(WholeCells(game.grid), atLoad, game.grid.Width())}};
}

Json FileAsJson(const BattleFile& file) {
    const std::vector<MapCell> empty(file.cells.size());
    return {{"mapWidth", file.mapWidth},
            {"mapHeight", file.mapHeight},
            {"armyCount", file.armyCount},
            {"unitsPerArmy", file.unitsPerArmy},
            {"header", RecordAsJson(file.header)},
            {"time", RecordAsJson(file.time)},
            {"loss", RecordAsJson(file.loss)},
            {"options", RecordAsJson(file.options)},
            {"turnLog", TurnLogAsJson(file.turnLog)},
            {"armies", RecordsAsJson(file.armies)},
            {"briefings", RecordsAsJson(file.briefings)},
            {"labels", RecordsAsJson(file.labels)},
            {"units", AllUnits(file.units)},
            {"cells", ChangedCells(file.cells, empty, file.mapWidth)}};
}

std::vector<MapCell> WholeCells(const Grid& grid) {
    std::vector<MapCell> cells;
    for (int y = 0; y < grid.Height(); ++y) {
        for (int x = 0; x < grid.Width(); ++x)
            cells.push_back(grid.Whole({x, y}));
    }
    return cells;
}

std::string ToUtf8(std::string_view text) {
    std::string utf8;
    for (char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte < 0x80) {
            utf8 += letter;
        } else {
            utf8 += static_cast<char>(0xC0 | (byte >> 6));
            utf8 += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return utf8;
}

}  // namespace varnstride
