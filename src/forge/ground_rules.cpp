#include "forge/ground_rules.h"

#include "forge/source_text.h"

namespace varnstride {
namespace {

// The last column holds no playable ground, so the slots need one column more than rows.
bool CheckSize(const Atlas& atlas, const BattleFile& file, SourceErrors& errors) {
    const Cell farthest = atlas.FarthestSlot();
    const int width = farthest.x + 2;
    const int height = farthest.y + 1;
    if (file.mapWidth >= width && file.mapHeight >= height) return true;
    errors.Add(0, "the grid is " + std::to_string(file.mapWidth) + " x " +
                      std::to_string(file.mapHeight) + ": expected at least " +
                      std::to_string(width) + " x " + std::to_string(height) +
                      ", or slots lie off it");
    return false;
}

}  // namespace

void CheckGround(const Atlas& atlas, const BattleFile& file, SourceErrors& errors,
                 std::vector<std::string>& warnings) {
    const BattlefieldFacts* const facts = FactsOf(atlas.MapNumber());
    if (facts == nullptr || !CheckSize(atlas, file, errors)) return;
    const Grid grid(file.mapWidth, file.mapHeight, file.cells, atlas);
    const GroundCheck check{atlas, file, *facts, grid, errors, warnings};
    CheckAreaHexes(check);
    CheckMarks(check);
    CheckArmies(check);
}

void CellFaults::Add(Cell cell, const std::string& fault) {
    if (!runs_.empty()) {
        Run& run = runs_.back();
        if (run.last.y == cell.y && run.last.x + 1 == cell.x && run.fault == fault) {
            run.last = cell;
            return;
        }
    }
    runs_.push_back({cell, cell, fault});
}

std::vector<std::string> CellFaults::Messages() const {
    std::vector<std::string> messages;
    for (const Run& run : runs_) {
        messages.push_back((run.first == run.last
                                ? "cell " + Shown(run.first)
                                : "cells " + Shown(run.first) + " to " + Shown(run.last)) +
                           ": " + run.fault);
    }
    return messages;
}

}  // namespace varnstride
