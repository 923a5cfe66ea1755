// Whether the area numbers of the hexes make the areas of the atlas: every hex in one, every area
// whole, and borders that can be drawn.
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "forge/ground_rules.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

std::string AreaName(int ordinal) {
    return "area " + std::to_string(ordinal);
}

void CheckSlotNumbers(const GroundCheck& check) {
    for (int ordinal = 1; ordinal <= check.atlas.AreaCount(); ++ordinal) {
        const AreaRow& row = check.atlas.Row(ordinal);
        for (Cell slot : row.Slots()) {
            const int number = check.At(slot).areaId;
            if (number == row.areaId) continue;
            check.Error("slot " + Shown(slot) + " of " + AreaName(ordinal) + " has the number " +
                        std::to_string(number) + ": expected " + std::to_string(row.areaId));
        }
    }
}

std::vector<int> AreasOf(const GroundCheck& check, Cell cell) {
    std::vector<int> areas;
    for (int ordinal = 1; ordinal <= check.atlas.AreaCount(); ++ordinal) {
        const AreaRow& row = check.atlas.Row(ordinal);
        if (row.areaId == check.At(cell).areaId && row.Holds(cell)) areas.push_back(ordinal);
    }
    return areas;
}

void CheckMembership(const GroundCheck& check) {
    CellFaults strays;
    CellFaults shared;
    check.ForEachPlayable([&](Cell cell) {
        const std::vector<int> areas = AreasOf(check, cell);
        const std::string number = std::to_string(check.At(cell).areaId);
        if (areas.empty()) {
            strays.Add(cell, "no area of number " + number + " holds the place");
        } else if (areas.size() > 1) {
            shared.Add(cell, AreaName(areas.front()) + " and " + AreaName(areas.back()) +
                                 " of number " + number + " both hold the place");
        }
    });
    for (std::string& message : strays.Messages())
        check.Error(std::move(message));
    for (std::string& message : shared.Messages())
        check.Warning(std::move(message));
}

struct Patch {
    int area;
    Cell first;
    int hexes;
};

// Patches of joined hexes of one area, by rows of their first hex.
std::vector<Patch> PatchesOf(const GroundCheck& check) {
    std::vector<bool> seen(check.file.cells.size());
    const auto see = [&](Cell cell) {
        const int index = cell.y * check.file.mapWidth + cell.x;
        const auto place = static_cast<std::size_t>(index);
        const bool isNew = !seen[place];
        seen[place] = true;
        return isNew;
    };
    std::vector<Patch> patches;
    check.ForEachPlayable([&](Cell start) {
        const int area = check.grid.AreaOf(start);
        if (area == 0 || !see(start)) return;
        Patch patch{area, start, 0};
        std::vector<Cell> open = {start};
        while (!open.empty()) {
            const Cell cell = open.back();
            open.pop_back();
            ++patch.hexes;
            for (Direction side : kHexSides) {
                const Cell next = Step(cell, side);
                if (!check.IsPlayable(next) || check.grid.AreaOf(next) != area) continue;
                if (see(next)) open.push_back(next);
            }
        }
        patches.push_back(patch);
    });
    return patches;
}

// An area is one patch: the largest counts as the area, every other is complained of.
void CheckPatches(const GroundCheck& check) {
    std::vector<const Patch*> largest(check.atlas.Rows().size() + 1);
    const std::vector<Patch> patches = PatchesOf(check);
    for (const Patch& patch : patches) {
        const Patch*& best = largest[static_cast<std::size_t>(patch.area)];
        if (best == nullptr || patch.hexes > best->hexes) best = &patch;
    }
    for (const Patch& patch : patches) {
        if (largest[static_cast<std::size_t>(patch.area)] == &patch) continue;
        check.Error(AreaName(patch.area) + " is not one patch: " + std::to_string(patch.hexes) +
                    " of its hexes, the first at " + Shown(patch.first) + ", do not join the rest");
    }
    for (int ordinal = 1; ordinal <= check.atlas.AreaCount(); ++ordinal) {
        if (largest[static_cast<std::size_t>(ordinal)] != nullptr) continue;
        check.Error(AreaName(ordinal) + " has no hex");
    }
}

// Two areas of one number that touch have no border between them; one message for a pair.
void CheckNeighbours(const GroundCheck& check) {
    std::map<std::pair<int, int>, Cell> firstTouch;
    check.ForEachPlayable([&](Cell cell) {
        const int area = check.grid.AreaOf(cell);
        for (Direction side : kHexSides) {
            const Cell next = Step(cell, side);
            if (area == 0 || !check.IsPlayable(next)) continue;
            const int other = check.grid.AreaOf(next);
            if (other <= area || check.At(next).areaId != check.At(cell).areaId) continue;
            firstTouch.try_emplace({area, other}, cell);
        }
    });
    for (const auto& [areas, cell] : firstTouch) {
        check.Error(AreaName(areas.first) + " and " + AreaName(areas.second) + " touch at " +
                    Shown(cell) + " and have the same number: expected different ones");
    }
}

// How often the sides of a hex change between bordering another number and not, going round. The
// drawing of borders compares neither column 0 nor the last row.
int BorderChanges(const GroundCheck& check, Cell cell) {
    const auto differs = [&](Direction side) {
        const Cell next = Step(cell, side);
        return next.x >= 1 && next.x < check.file.mapWidth && next.y >= 0 &&
               next.y < check.file.mapHeight - 1 && check.At(next).areaId != check.At(cell).areaId;
    };
    int changes = 0;
    bool last = differs(kHexSides[5]);
    for (Direction side : kHexSides) {
        const bool now = differs(side);
        changes += now != last ? 1 : 0;
        last = now;
    }
    return changes;
}

void CheckBorderPictures(const GroundCheck& check) {
    CellFaults necks;
    check.ForEachPlayable([&](Cell cell) {
        constexpr int kOneRun = 2;
        if (cell.y + 1 >= check.file.mapHeight || BorderChanges(check, cell) <= kOneRun) return;
        necks.Add(cell,
                  "other areas lie on several sides apart from each other, and no border is "
                  "drawn here: expected them in one run");
    });
    for (std::string& message : necks.Messages())
        check.Warning(std::move(message));
}

void CheckLastColumn(const GroundCheck& check) {
    const int last = check.file.mapWidth - 1;
    for (int y = 0; y < check.file.mapHeight; ++y) {
        const int number = check.At({last - 1, y}).areaId;
        if (check.At({last, y}).areaId == number) continue;
        check.Warning("cell " + Shown(Cell{last, y}) +
                      ": expected the last column to repeat the number " + std::to_string(number) +
                      " beside it, or the map's edge shows a border");
    }
}

}  // namespace

void CheckAreaHexes(const GroundCheck& check) {
    CheckSlotNumbers(check);
    CheckMembership(check);
    CheckPatches(check);
    CheckNeighbours(check);
    CheckBorderPictures(check);
    CheckLastColumn(check);
}

}  // namespace varnstride
