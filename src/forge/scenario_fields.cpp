#include "forge/scenario_fields.h"

#include <algorithm>

#include "files/battle_checks.h"
#include "forge/scenario_values.h"
#include "forge/scenario_words.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

constexpr std::size_t kRolls = kRollLogSize;
constexpr std::size_t kRollsInALine = 16;

// The blocks of a file that stand there once.
template <typename File, typename Visit>
void ForEachSingleBlock(File& file, Visit visit) {
    visit("header", file.header);
    visit("time", file.time);
    visit("loss", file.loss);
    visit("turnLog", file.turnLog);
    visit("options", file.options);
}

// A number of a block of several, below count; nothing when the word is none.
std::optional<std::size_t> NumberBelow(std::string_view word, std::size_t count) {
    const std::optional<int> number = WholeNumber(word);
    if (!number || *number < 0 || static_cast<std::size_t>(*number) >= count) return std::nullopt;
    return static_cast<std::size_t>(*number);
}

constexpr std::string_view kPlaces =
    "expected BLOCK.FIELD = VALUE, where BLOCK is header, time, loss, turnLog, options, size, "
    "count, label NUMBER, army ARMY, briefing ARMY or unit ARMY NUMBER, or rollLog NUMBER = VALUES";

std::string SetSingle(BattleFile& file, std::string_view block, std::string_view field,
                      std::string_view value) {
    std::string wrong(kPlaces);
    ForEachSingleBlock(file, [&](std::string_view name, auto& record) {
        if (name == block) wrong = SetField(record, field, value);
    });
    if (block == "size" && field == "reserved") wrong = ReadValue(value, file.sizeReserved);
    if (block == "count" && field == "reserved") wrong = ReadValue(value, file.countReserved);
    return wrong;
}

std::string SetOfMany(BattleFile& file, const std::vector<std::string_view>& block,
                      std::string_view field, std::string_view value) {
    if (block[0] == "label" && block.size() == 2) {
        const auto number = NumberBelow(block[1], file.labels.size());
        return number ? SetField(file.labels[*number], field, value) : std::string(kPlaces);
    }
    const std::optional<int> named = ValueOf(kArmyWords, block[1]);
    if (!named) return UnknownWord("army", block[1], kArmyWords);
    const auto army = static_cast<std::size_t>(*named);
    if (block.size() == 3 && block[0] == "unit") {
        const auto index = NumberBelow(block[2], file.units[army].size());
        return index ? SetField(file.units[army][*index], field, value) : std::string(kPlaces);
    }
    if (block.size() == 2 && block[0] == "army") return SetField(file.armies[army], field, value);
    if (block.size() == 2 && block[0] == "briefing") {
        return SetField(file.briefings[army], field, value);
    }
    return std::string(kPlaces);
}

std::string SetRolls(BattleFile& file, std::string_view start, std::string_view values) {
    const auto first = NumberBelow(start, kRolls);
    const auto words = Words(values);
    if (!first || *first + words.size() > kRolls) return std::string(kPlaces);
    for (std::size_t at = 0; at < words.size(); ++at) {
        int roll = 0;
        const std::string wrong = ReadValue(words[at], roll, Width::Int16);
        if (!wrong.empty()) return wrong;
        file.turnLog.rollLog[*first + at] = static_cast<std::int16_t>(roll);
    }
    return {};
}

std::string SetByPath(BattleFile& file, std::string_view path, std::string_view value) {
    const std::size_t dot = path.rfind('.');
    const auto block = Words(path.substr(0, std::min(dot, path.size())));
    if (dot == path.npos) {
        if (block.size() == 2 && block[0] == "rollLog") return SetRolls(file, block[1], value);
        return std::string(kPlaces);
    }
    const std::string_view field = Trimmed(path.substr(dot + 1));
    if (block.empty()) return std::string(kPlaces);
    return block.size() == 1 ? SetSingle(file, block[0], field, value)
                             : SetOfMany(file, block, field, value);
}

void ApplyCellLine(const SourceLine& line, ScenarioBuild& build) {
    const auto words = Words(line.text);
    const std::optional<Cell> cell = build.CellOnGrid(words.front(), line.number);
    MapCell nowhere;
    MapCell& target = cell && build.HasGrid() ? build.At(*cell) : nowhere;
    for (std::size_t word = 1; word < words.size(); ++word) {
        const std::size_t equals = words[word].find('=');
        const std::string wrong =
            equals == std::string_view::npos
                ? "expected FIELD=VALUE, found \"" + std::string(words[word]) + "\""
                : SetField(target, words[word].substr(0, equals), words[word].substr(equals + 1));
        if (!wrong.empty()) build.errors.Add(line.number, wrong);
    }
    MapCell finished = target;
    if (finished.borderTile == kBorderToBeDrawn) finished.borderTile = 0;
    if (const auto fault = FindFaultOf(finished)) build.errors.Add(line.number, *fault);
}

// The lines of [fields] for one record after the other.
class FieldLines {
 public:
    template <typename Record>
    void Compare(const std::string& block, const Record& have, const Record& want) {
        ForEachDifference(have, want, [&](std::string_view field, const std::string& value) {
            lines_ += block + "." + std::string(field) + " = " + value + "\n";
        });
    }
    template <typename Bytes>
    void CompareBytes(const std::string& path, const Bytes& have, const Bytes& want) {
        if (have != want) lines_ += path + " = " + WriteValue(want) + "\n";
    }
    void CompareRolls(const TurnLogBlock& have, const TurnLogBlock& want);

    std::string Take() { return std::move(lines_); }

 private:
    std::string lines_;
};

void FieldLines::CompareRolls(const TurnLogBlock& have, const TurnLogBlock& want) {
    for (std::size_t first = 0; first < want.rollLog.size(); first += kRollsInALine) {
        const std::size_t end = std::min(first + kRollsInALine, want.rollLog.size());
        bool same = true;
        std::string values;
        for (std::size_t at = first; at < end; ++at) {
            same = same && have.rollLog[at] == want.rollLog[at];
            values += " " + std::to_string(want.rollLog[at]);
        }
        if (!same) lines_ += "rollLog " + std::to_string(first) + " =" + values + "\n";
    }
}

void CompareUnits(FieldLines& lines, const std::string& army, const ArmyUnits& have,
                  const ArmyUnits& want) {
    for (std::size_t index = 0; index < want.size(); ++index) {
        lines.Compare("unit " + army + " " + std::to_string(index), have[index], want[index]);
    }
}

std::string FieldsBetween(const BattleFile& have, const BattleFile& want) {
    FieldLines lines;
    lines.CompareBytes("size.reserved", have.sizeReserved, want.sizeReserved);
    lines.CompareBytes("count.reserved", have.countReserved, want.countReserved);
    lines.Compare("header", have.header, want.header);
    lines.Compare("time", have.time, want.time);
    lines.Compare("loss", have.loss, want.loss);
    lines.Compare("turnLog", have.turnLog, want.turnLog);
    lines.CompareRolls(have.turnLog, want.turnLog);
    lines.Compare("options", have.options, want.options);
    for (std::size_t label = 0; label < want.labels.size(); ++label) {
        lines.Compare("label " + std::to_string(label), have.labels[label], want.labels[label]);
    }
    for (const Word& army : kArmyWords) {
        const auto index = static_cast<std::size_t>(army.value);
        const std::string name(army.text);
        lines.Compare("army " + name, have.armies[index], want.armies[index]);
        lines.Compare("briefing " + name, have.briefings[index], want.briefings[index]);
        CompareUnits(lines, name, have.units[index], want.units[index]);
    }
    return lines.Take();
}

std::string CellsBetween(const BattleFile& have, const BattleFile& want) {
    std::string lines;
    ForEachCell(want, [&](Cell cell) {
        std::string line;
        ForEachDifference(CellOf(have, cell), CellOf(want, cell),
                          [&](std::string_view field, const std::string& value) {
                              line += " " + std::string(field) + "=" + value;
                          });
        if (!line.empty()) lines += SourceCell(cell) + line + "\n";
    });
    return lines;
}

}  // namespace

void ApplyCells(const ScenarioText& text, ScenarioBuild& build) {
    const Section* const section = text.Find(SectionKind::Cells);
    if (section == nullptr) return;
    for (const SourceLine& line : section->lines)
        ApplyCellLine(line, build);
}

void ApplyFields(const ScenarioText& text, ScenarioBuild& build) {
    const Section* const section = text.Find(SectionKind::Fields);
    if (section == nullptr) return;
    for (const SourceLine& line : section->lines) {
        const std::optional<KeyValue> pair = KeyValueOf(line, build.errors);
        if (!pair) continue;
        const std::string wrong = SetByPath(build.file, pair->key, pair->value);
        if (!wrong.empty()) build.errors.Add(line.number, wrong);
    }
}

Overrides OverridesBetween(const BattleFile& have, const BattleFile& want) {
    return {CellsBetween(have, want), FieldsBetween(have, want)};
}

}  // namespace varnstride
