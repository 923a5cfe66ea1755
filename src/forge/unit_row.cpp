#include "forge/unit_row.h"

#include <array>

#include "forge/scenario_values.h"
#include "forge/scenario_words.h"
#include "forge/source_text.h"
#include "model/unit_rules.h"

namespace varnstride {
namespace {

constexpr std::string_view kDefault = "-";
constexpr int kFirstArrival = 2;  // what is there on turn 1 stands on the map
constexpr int kMostTurns = 999;
constexpr int kCertain = 100;  // percent

constexpr std::array<Word, 5> kQualityWords = {{{"1", 1}, {"2", 2}, {"3", 3}, {"4", 4}, {"5", 5}}};

std::string Expected(const std::string& what, std::string_view found) {
    return "expected " + what + ", found \"" + std::string(found) + "\"";
}

std::string NumberRange(int low, int high) {
    return "a whole number from " + std::to_string(low) + " to " + std::to_string(high);
}

bool IsFrom(int number, int low, int high) {
    return number >= low && number <= high;
}

// Readers of columns give what is wrong, empty when nothing is; writers give the column's text,
// empty where the column cannot tell the record or need not.
using ColumnReader = std::string (*)(std::string_view text, Unit& unit, const ScenarioBuild& build);
using ColumnWriter = std::string (*)(const Unit& unit, const BattleFile& file);

template <auto member, int low, int high>
std::string ReadNumber(std::string_view text, Unit& unit, const ScenarioBuild&) {
    const std::optional<int> number = WholeNumber(text);
    if (!number || !IsFrom(*number, low, high)) return Expected(NumberRange(low, high), text);
    unit.*member = *number;
    return {};
}

template <auto member, int low, int high>
std::string WriteNumber(const Unit& unit, const BattleFile&) {
    return IsFrom(unit.*member, low, high) ? std::to_string(unit.*member) : "";
}

template <auto member, const auto& words>
std::string ReadWord(std::string_view text, Unit& unit, const ScenarioBuild&) {
    const std::optional<int> value = ValueOf(words, text);
    if (!value) return UnknownWord("word", text, words);
    unit.*member = static_cast<std::remove_reference_t<decltype(unit.*member)>>(*value);
    return {};
}

template <auto member, const auto& words>
std::string WriteWord(const Unit& unit, const BattleFile&) {
    return std::string(WordOf(words, static_cast<int>(unit.*member)));
}

std::string ReadNothing(std::string_view, Unit&, const ScenarioBuild&) {
    return {};
}
std::string WriteNothing(const Unit&, const BattleFile&) {
    return {};
}

std::string ReadName(std::string_view text, Unit& unit, const ScenarioBuild&) {
    return PutText(text, unit.name);
}
std::string WriteName(const Unit& unit, const BattleFile&) {
    const std::string_view content = ContentOf(unit.name);
    if (content.empty()) return {};
    return IsPlain(content) && content != kDefault ? std::string(content) : Quoted(content);
}

std::string ReadPlace(std::string_view text, Unit& unit, const ScenarioBuild& build) {
    const std::optional<Cell> cell = CellFrom(text);
    if (!cell) return Expected("a cell \"x,y\"", text);
    if (!build.Holds(*cell) || *cell == kNoCell) {
        return Expected("a cell of the grid other than 0,0", text);
    }
    unit.SetPlace(*cell);
    return {};
}
std::string WritePlace(const Unit& unit, const BattleFile& file) {
    const bool onGrid = IsFrom(unit.x, 0, file.mapWidth - 1) &&
                        IsFrom(unit.y, 0, file.mapHeight - 1) && unit.Place() != kNoCell;
    return onGrid ? SourceCell(unit.Place()) : "";
}

std::string ReadArrival(std::string_view text, Unit& unit, const ScenarioBuild&) {
    const auto words = Words(text);
    const bool whole = words.size() == 2 && words[1].ends_with('%');
    const std::optional<int> turn = WholeNumber(words[0]);
    const std::optional<int> chance =
        whole ? WholeNumber(words[1].substr(0, words[1].size() - 1)) : std::nullopt;
    if (!turn || !chance || !IsFrom(*turn, kFirstArrival, kMostTurns) ||
        !IsFrom(*chance, 1, kCertain)) {
        return Expected("TURN CHANCE%, from turn 2 on, such as \"3 100%\"", text);
    }
    unit.arrivalTurn = *turn;
    unit.arrivalChance = *chance;
    return {};
}
std::string WriteArrival(const Unit& unit, const BattleFile&) {
    if (!IsFrom(unit.arrivalTurn, kFirstArrival, kMostTurns) ||
        !IsFrom(unit.arrivalChance, 1, kCertain)) {
        return {};
    }
    return std::to_string(unit.arrivalTurn) + " " + std::to_string(unit.arrivalChance) + "%";
}

std::string ReadRelease(std::string_view text, Unit& unit, const ScenarioBuild& build) {
    unit.outOfCommand = 1;
    return ReadNumber<&Unit::fixedUntilTurn, 1, kMostTurns>(text, unit, build);
}
std::string WriteRelease(const Unit& unit, const BattleFile& file) {
    if (unit.outOfCommand != 1) return {};
    return WriteNumber<&Unit::fixedUntilTurn, 1, kMostTurns>(unit, file);
}

std::string ReadOther(std::string_view text, Unit& unit, const ScenarioBuild&) {
    std::string wrong;
    for (std::string_view word : Words(text)) {
        const std::size_t equals = word.find('=');
        const std::string here =
            equals == word.npos ? Expected("FIELD=VALUE", word)
                                : SetField(unit, word.substr(0, equals), word.substr(equals + 1));
        if (!here.empty()) wrong += (wrong.empty() ? "" : "; ") + here;
    }
    return wrong;
}

struct Column {
    std::string_view name;
    ColumnReader read;
    ColumnWriter write;
};

// The order matters: what stands further down may override what stands above.
constexpr std::array<Column, 15> kColumns = {{
    {"index", ReadNothing, WriteNothing},
    {"name", ReadName, WriteName},
    {"type", ReadWord<&Unit::type, kTypeWords>, WriteWord<&Unit::type, kTypeWords>},
    {"strength", ReadNumber<&Unit::strength, 1, 99>, WriteNumber<&Unit::strength, 1, 99>},
    {"quality", ReadWord<&Unit::quality, kQualityWords>, WriteWord<&Unit::quality, kQualityWords>},
    {"weapon", ReadWord<&Unit::weapon, kWeaponWords>, WriteWord<&Unit::weapon, kWeaponWords>},
    {"leadership", ReadNumber<&Unit::leadership, 0, 9>, WriteNumber<&Unit::leadership, 0, 9>},
    {"morale", ReadNumber<&Unit::maxMorale, 1, 99>, WriteNumber<&Unit::maxMorale, 1, 99>},
    {"formation", ReadWord<&Unit::formation, kFormationWords>,
     WriteWord<&Unit::formation, kFormationWords>},
    {"group", ReadNumber<&Unit::groupId, 0, 999>, WriteNumber<&Unit::groupId, 0, 999>},
    {"at", ReadPlace, WritePlace},
    {"arrives", ReadArrival, WriteArrival},
    {"fixed", ReadRelease, WriteRelease},
    {"ammunition", ReadNumber<&Unit::ammunition, 0, 99>, WriteNumber<&Unit::ammunition, 0, 99>},
    {"other", ReadOther, WriteNothing},
}};
constexpr std::size_t kFormationColumn = 8;
constexpr std::size_t kOtherColumn = kColumns.size() - 1;

bool IsGiven(std::string_view text) {
    return !text.empty() && text != kDefault;
}

bool HasNoFormation(UnitType type) {
    return type == UnitType::Leader || type >= UnitType::MortarArtillery;
}

// Fields that follow from the columns unless they are given themselves.
void WorkOutRest(Unit& unit, bool formationGiven) {
    unit.initialStrength = unit.strength;
    unit.morale = unit.maxMorale;
    if (!formationGiven && HasNoFormation(unit.type)) unit.formation = Formation::NoFormation;
}

}  // namespace

std::vector<std::string_view> UnitColumns() {
    std::vector<std::string_view> names;
    for (const Column& column : kColumns)
        names.push_back(column.name);
    return names;
}

std::optional<std::size_t> UnitColumn(std::string_view name) {
    for (std::size_t column = 0; column < kColumns.size(); ++column) {
        if (kColumns[column].name == name) return column;
    }
    return std::nullopt;
}

Unit UnitFromRow(const UnitRow& row, const ScenarioBuild& build, std::vector<std::string>& faults) {
    Unit unit;
    unit.ammunition = kFullAmmunition;
    const auto read = [&](std::size_t column) {
        if (!IsGiven(row[column])) return;
        const std::string wrong = kColumns[column].read(row[column], unit, build);
        if (!wrong.empty()) faults.push_back(std::string(kColumns[column].name) + ": " + wrong);
    };
    for (std::size_t column = 0; column < kOtherColumn; ++column)
        read(column);
    WorkOutRest(unit, IsGiven(row[kFormationColumn]));
    read(kOtherColumn);
    if (unit.strength > 0) RecomputeStatus(unit);
    // What is given outright stays as given.
    if (IsGiven(row[kOtherColumn])) ReadOther(row[kOtherColumn], unit, build);
    return unit;
}

std::vector<std::string> RowFromUnit(const Unit& unit, int index, const ScenarioBuild& build) {
    std::vector<std::string> row;
    for (const Column& column : kColumns) {
        const std::string text = column.write(unit, build.file);
        row.push_back(text.empty() ? std::string(kDefault) : text);
    }
    row[kIndexColumn] = std::to_string(index);
    std::string& other = row[kOtherColumn];
    std::vector<std::string> none;  // what is written can be read
    for (std::string more = "first pass"; !more.empty();) {
        more.clear();
        const Unit have = UnitFromRow({row.begin(), row.end()}, build, none);
        ForEachDifference(have, unit, [&](std::string_view field, const std::string& value) {
            more += (more.empty() ? "" : " ") + std::string(field) + "=" + value;
        });
        if (!more.empty()) other = (other == kDefault ? "" : other + " ") + more;
    }
    return row;
}

}  // namespace varnstride
