#include "forge/scenario_units.h"

#include <algorithm>
#include <optional>

#include "forge/scenario_words.h"
#include "forge/source_text.h"
#include "forge/unit_row.h"
#include "model/record_fields.h"

namespace varnstride {
namespace {

constexpr std::size_t kNoColumn = static_cast<std::size_t>(-1);

bool IsBlank(const Unit& unit) {
    static const Unit blank;
    bool same = true;
    RecordFields<Unit>::ForEach([&](std::string_view, auto member, auto...) {
        same = same && unit.*member == blank.*member;
    });
    return same;
}

// One table while it is read: which column of the source is which, and the next free record.
class UnitTable {
 public:
    UnitTable(const Section& section, ScenarioBuild& build) : section_(section), build_(build) {}

    void Read() {
        if (section_.lines.empty()) return;
        ReadHead(section_.lines.front());
        for (std::size_t line = 1; line < section_.lines.size(); ++line)
            ReadRow(section_.lines[line]);
    }

 private:
    void ReadHead(const SourceLine& line);
    void ReadRow(const SourceLine& line);
    std::optional<int> IndexOf(std::string_view text, int line);

    const Section& section_;
    ScenarioBuild& build_;
    std::vector<std::size_t> columns_;  // by column of the source
    int lastIndex_ = 0;
};

void UnitTable::ReadHead(const SourceLine& line) {
    const auto known = UnitColumns();
    for (std::string_view name : SplitAt(line.text, '|')) {
        const std::optional<std::size_t> column = UnitColumn(name);
        if (!column) {
            std::string all;
            for (std::string_view other : known)
                all += (all.empty() ? "" : ", ") + std::string(other);
            build_.errors.Add(line.number, "unknown column \"" + std::string(name) +
                                               "\": expected some of " + all);
        } else if (std::find(columns_.begin(), columns_.end(), *column) != columns_.end()) {
            build_.errors.Add(line.number,
                              "the column \"" + std::string(name) + "\" stands here twice");
        }
        columns_.push_back(column.value_or(kNoColumn));
    }
}

void UnitTable::ReadRow(const SourceLine& line) {
    const auto parts = SplitAt(line.text, '|');
    if (parts.size() != columns_.size()) {
        build_.errors.Add(line.number, "the row has " + std::to_string(parts.size()) +
                                           " columns: expected " + std::to_string(columns_.size()) +
                                           " as in the first line of the table");
        return;
    }
    UnitRow row(UnitColumns().size());
    for (std::size_t part = 0; part < parts.size(); ++part) {
        if (columns_[part] != kNoColumn) row[columns_[part]] = parts[part];
    }
    const std::optional<int> index = IndexOf(row[kIndexColumn], line.number);
    std::vector<std::string> faults;
    const Unit unit = UnitFromRow(row, build_, faults);
    for (std::string& fault : faults)
        build_.errors.Add(line.number, std::move(fault));
    if (!index) return;
    const auto army = static_cast<std::size_t>(section_.army);
    if (faults.empty()) build_.file.units[army][static_cast<std::size_t>(*index)] = unit;
    build_.unitLines.push_back({{section_.army, *index}, line.number, faults.empty()});
}

std::optional<int> UnitTable::IndexOf(std::string_view text, int line) {
    const bool given = !text.empty() && text != "-";
    const std::optional<int> index = given ? WholeNumber(text) : lastIndex_ + 1;
    if (!index || *index < 1 || *index >= kUnitsPerArmy) {
        const std::string found = given ? std::string(text) : std::to_string(lastIndex_ + 1);
        build_.errors.Add(line, "index: expected a record from 1 to " +
                                    std::to_string(kUnitsPerArmy - 1) + ", found \"" + found +
                                    "\"");
        return std::nullopt;
    }
    lastIndex_ = *index;
    const UnitLine* const earlier = build_.FindLine({section_.army, *index});
    if (earlier == nullptr) return index;
    build_.errors.Add(line, "index: record " + std::to_string(*index) +
                                " is taken by the unit on line " + std::to_string(earlier->line));
    return std::nullopt;
}

void CheckArmy(const ScenarioText& text, const Section& section, const ScenarioBuild& build) {
    const bool named = build.file.armies[static_cast<std::size_t>(section.army)].present != 0;
    if (named || text.Find(SectionKind::Armies) == nullptr) return;
    build.errors.Add(section.line, "[armies] does not name the army " +
                                       std::string(WordOf(kArmyWords, section.army)) +
                                       ": expected it there with its Command Points");
}

using TableText = std::vector<std::vector<std::string>>;

std::string Aligned(const TableText& table) {
    std::vector<std::size_t> widths(table.front().size());
    for (const auto& row : table) {
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    std::string text;
    for (const auto& row : table) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const bool last = column + 1 == row.size();
            text += row[column];
            if (!last) text += std::string(widths[column] - row[column].size(), ' ') + " | ";
        }
        text += '\n';
    }
    return text;
}

TableText TableOf(const ArmyUnits& units, const ScenarioBuild& build) {
    TableText table;
    for (int index = 1; index < kUnitsPerArmy; ++index) {
        const Unit& unit = units[static_cast<std::size_t>(index)];
        if (!IsBlank(unit)) table.push_back(RowFromUnit(unit, index, build));
    }
    return table;
}

}  // namespace

void ReadUnits(const ScenarioText& text, ScenarioBuild& build) {
    for (const Section& section : text.Sections()) {
        if (section.kind != SectionKind::Units) continue;
        if (build.rules == ScenarioRules::Strict) CheckArmy(text, section, build);
        UnitTable(section, build).Read();
    }
}

std::string WriteUnits(const BattleFile& file) {
    SourceErrors ignored("");
    ScenarioBuild build(ignored);
    build.SetSize(file.mapWidth, file.mapHeight);
    std::string text;
    for (const Word& army : kArmyWords) {
        TableText table = TableOf(file.units[static_cast<std::size_t>(army.value)], build);
        if (table.empty()) continue;
        const auto names = UnitColumns();
        table.insert(table.begin(), {names.begin(), names.end()});
        text += "[units " + std::string(army.text) + "]\n" + Aligned(table) + "\n";
    }
    return text;
}

}  // namespace varnstride
