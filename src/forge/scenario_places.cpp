#include "forge/scenario_places.h"

#include "forge/scenario_values.h"
#include "forge/scenario_words.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

// The parts of a label's line: x,y "Text" style ROW BLOCK.
struct LabelLine {
    std::string_view cell;
    std::string_view text;   // with its quotes
    std::string_view style;  // what follows the text
};

std::optional<LabelLine> PartsOf(std::string_view line) {
    const std::size_t open = line.find('"');
    if (open == line.npos) return std::nullopt;
    const std::size_t close = line.find('"', open + 1);
    if (close == line.npos) return std::nullopt;
    return LabelLine{Trimmed(line.substr(0, open)), line.substr(open, close - open + 1),
                     Trimmed(line.substr(close + 1))};
}

// Reads "style ROW BLOCK", or nothing at all, into the label.
bool ReadStyle(std::string_view text, MapLabel& label) {
    const auto words = Words(text);
    if (words.empty()) return true;
    return words.size() == 3 && words[0] == "style" &&
           ReadValue(words[1], label.labelStyleRow, Width::Int16).empty() &&
           ReadValue(words[2], label.labelStyleBlock, Width::Int16).empty();
}

std::optional<MapLabel> LabelOf(const LabelLine& parts, int line, SourceErrors& errors) {
    MapLabel label;
    std::string wrong = PutText(parts.text, label.labelText);
    if (wrong.empty() && parts.text.size() <= 2) wrong = "expected a name of 1 to 29 characters";
    if (!wrong.empty()) errors.Add(line, "label: " + wrong);
    const bool styled = ReadStyle(parts.style, label);
    if (!styled) {
        errors.Add(line, "label: expected \"style ROW BLOCK\" after the name, found \"" +
                             std::string(parts.style) + "\"");
    }
    if (!wrong.empty() || !styled) return std::nullopt;
    return label;
}

void ReadLabel(const SourceLine& line, int number, ScenarioBuild& build) {
    const std::optional<LabelLine> parts = PartsOf(line.text);
    if (!parts) {
        build.errors.Add(line.number, "expected \"x,y \"Name\"\" with the name in quotes");
        return;
    }
    const std::optional<Cell> cell = build.CellOnGrid(parts->cell, line.number);
    const std::optional<MapLabel> label = LabelOf(*parts, line.number, build.errors);
    if (number >= kLabelCount) {
        build.errors.Add(line.number,
                         "one label too many: expected at most " + std::to_string(kLabelCount - 1));
        return;
    }
    if (label) build.file.labels[static_cast<std::size_t>(number)] = *label;
    if (!cell || !build.HasGrid()) return;
    int& index = build.At(*cell).labelIndex;
    if (index != 0) {
        build.errors.Add(line.number, "cell " + SourceCell(*cell) + " has a label already");
    }
    index = number;
}

std::optional<Cell> CellOfLabel(const BattleFile& file, int number) {
    std::optional<Cell> found;
    ForEachCell(file, [&](Cell cell) {
        if (!found && CellOf(file, cell).labelIndex == number) found = cell;
    });
    return found;
}

std::string StyleText(const MapLabel& label) {
    if (label.labelStyleRow == 0 && label.labelStyleBlock == 0) return {};
    return " style " + std::to_string(label.labelStyleRow) + " " +
           std::to_string(label.labelStyleBlock);
}

// What the words behind a cell make of it: points or an exit; 0 when they make nothing.
int ObjectiveOf(std::span<const std::string_view> words, int line, SourceErrors& errors) {
    if (words.size() == 2 && words[0] == "exit") {
        const std::optional<int> exit = ValueOf(kExitWords, words[1]);
        if (!exit) errors.Add(line, UnknownWord("army", words[1], kExitWords));
        return exit.value_or(0);
    }
    if (words.size() != 1) {
        errors.Add(line, "expected \"x,y POINTS\" or \"x,y exit ARMY\"");
        return 0;
    }
    const std::optional<int> points = ValueOf(kObjectiveWords, words[0]);
    if (!points) errors.Add(line, UnknownWord("worth", words[0], kObjectiveWords));
    return points.value_or(0);
}

}  // namespace

void ReadLabels(const ScenarioText& text, ScenarioBuild& build) {
    const Section* const section = text.Find(SectionKind::Labels);
    if (section == nullptr) return;
    int number = 0;
    for (const SourceLine& line : section->lines)
        ReadLabel(line, ++number, build);
}

// Numbers are given in order, so the first label that has no cell ends the list.
std::string WriteLabels(const BattleFile& file) {
    std::string text = "[labels]\n";
    for (int number = 1; number < kLabelCount; ++number) {
        const MapLabel& label = file.labels[static_cast<std::size_t>(number)];
        const std::optional<Cell> cell = CellOfLabel(file, number);
        const std::string_view content = ContentOf(label.labelText);
        if (!cell || content.empty()) break;
        text += SourceCell(*cell) + " " + Quoted(content) + StyleText(label) + "\n";
    }
    return text + "\n";
}

void ReadObjectives(const ScenarioText& text, ScenarioBuild& build) {
    const Section* const section = text.Find(SectionKind::Objectives);
    if (section == nullptr) return;
    for (const SourceLine& line : section->lines) {
        const auto words = Words(line.text);
        const std::optional<Cell> cell = build.CellOnGrid(words.front(), line.number);
        const int objective = ObjectiveOf(std::span(words).subspan(1), line.number, build.errors);
        if (!cell || !build.HasGrid()) continue;
        if (build.At(*cell).objective != 0) {
            build.errors.Add(line.number, "cell " + SourceCell(*cell) + " is an objective already");
        }
        build.At(*cell).objective = objective;
    }
}

std::string WriteObjectives(const BattleFile& file) {
    std::string text = "[objectives]\n";
    ForEachCell(file, [&](Cell cell) {
        const int objective = CellOf(file, cell).objective;
        const std::string_view points = WordOf(kObjectiveWords, objective);
        const std::string_view exit = WordOf(kExitWords, objective);
        if (points.empty() && exit.empty()) return;
        text += SourceCell(cell) + (points.empty() ? " exit " : " ") +
                std::string(points.empty() ? exit : points) + "\n";
    });
    return text + "\n";
}

}  // namespace varnstride
