// The marks of the ground: objectives and exits, labels, and ground pictures that would name
// another climate.
#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <vector>

#include "forge/ground_rules.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

constexpr int kLastObjective = 5;  // greater values are exits

bool IsObjective(const MapCell& cell) {
    return cell.objective >= 1 && cell.objective <= kLastObjective;
}

void CheckObjectiveCells(const GroundCheck& check) {
    check.ForEachCell([&](Cell cell) {
        if (!IsObjective(check.At(cell))) return;
        if (!check.IsPlayable(cell)) {
            check.Error("objective at " + Shown(cell) +
                        ": expected it on playable ground, columns 1 to " +
                        std::to_string(check.file.mapWidth - 2));
        }
        const bool isNamed =
            std::any_of(check.facts.objectives.begin(), check.facts.objectives.end(),
                        [&](const ObjectivePlace& objective) { return objective.cell == cell; });
        if (!isNamed) check.Warning("objective at " + Shown(cell) + " shows no name");
    });
    for (const ObjectivePlace& objective : check.facts.objectives) {
        if (check.grid.Holds(objective.cell) && IsObjective(check.At(objective.cell))) continue;
        check.Warning(std::string(objective.name) + " at " + Shown(objective.cell) +
                      " is not marked as an objective");
    }
}

// The exits of the battlefield that the cell serves, by the army's value in it.
bool ServesExit(const GroundCheck& check, Cell cell, const ExitPlace& exit) {
    const int ordinal = check.grid.AreaOf(cell);
    return ordinal > 0 && check.At(cell).objective == ExitValueOf(exit.army) &&
           IsExitArea(check.atlas.Row(ordinal), exit);
}

void CheckExitCells(const GroundCheck& check) {
    std::vector<bool> served(check.facts.exits.size());
    check.ForEachCell([&](Cell cell) {
        const int value = check.At(cell).objective;
        if (value <= kLastObjective) return;
        bool serves = false;
        for (std::size_t exit = 0; exit < served.size(); ++exit) {
            if (!ServesExit(check, cell, check.facts.exits[exit])) continue;
            served[exit] = true;
            serves = true;
        }
        if (serves) return;
        check.Warning("exit value " + std::to_string(value) + " at " + Shown(cell) +
                      " lies in no area that is an exit of its army");
    });
    for (std::size_t exit = 0; exit < served.size(); ++exit) {
        if (served[exit]) continue;
        const ExitPlace& place = check.facts.exits[exit];
        check.Error("the exit \"" + std::string(place.text) + "\" has no cell with the value " +
                    std::to_string(ExitValueOf(place.army)) + ": expected one in its area");
    }
}

void CheckLabelText(const GroundCheck& check, int index) {
    const std::array<char, 30>& text = check.file.labels[static_cast<std::size_t>(index)].labelText;
    const auto* const end = std::find(text.begin(), text.end(), '\0');
    const std::string name = "label " + std::to_string(index);
    if (end == text.begin() || end == text.end()) {
        check.Error(name + " is in use: expected a text of 1 to 29 characters");
        return;
    }
    const bool isDrawn = std::all_of(text.begin(), end, [](char letter) {
        return std::isalpha(static_cast<unsigned char>(letter)) != 0 || letter == ' ' ||
               letter == '[' || letter == ']';
    });
    if (isDrawn) return;
    check.Warning(name + " \"" + std::string(text.begin(), end) +
                  "\": only letters, blanks and square brackets are drawn");
}

void CheckLabels(const GroundCheck& check) {
    std::array<bool, kLabelCount> used{};
    check.ForEachCell([&](Cell cell) {
        const int index = check.At(cell).labelIndex;
        if (index < 0 || index >= kLabelCount) {
            check.Error("label " + std::to_string(index) + " at " + Shown(cell) +
                        ": expected 0 to " + std::to_string(kLabelCount - 1));
        } else {
            used[static_cast<std::size_t>(index)] = true;
        }
    });
    for (int index = 1; index < kLabelCount; ++index) {
        if (used[static_cast<std::size_t>(index)]) CheckLabelText(check, index);
    }
}

// Sand and frost stand in the midst of the sheet.
void CheckGroundTiles(const GroundCheck& check) {
    constexpr int kFirstForeign = 36;
    constexpr int kLastForeign = 108;
    constexpr int kLastTile = 143;
    CellFaults faults;
    check.ForEachCell([&](Cell cell) {
        const int tile = check.At(cell).groundTile;
        if (tile >= 0 && tile <= kLastTile && (tile < kFirstForeign || tile > kLastForeign)) {
            return;
        }
        faults.Add(cell, "ground tile " + std::to_string(tile) +
                             " is no ground of June: expected 0 to 35 or 109 to 143");
    });
    for (std::string& message : faults.Messages())
        check.Error(std::move(message));
}

}  // namespace

void CheckMarks(const GroundCheck& check) {
    CheckObjectiveCells(check);
    CheckExitCells(check);
    CheckLabels(check);
    CheckGroundTiles(check);
}

}  // namespace varnstride
