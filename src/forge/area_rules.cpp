// What the rows of an atlas must be: their count and order, numbers, boxes and slots.
#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "forge/atlas_rules.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

std::string AreaName(int ordinal) {
    return "area " + std::to_string(ordinal);
}

void CheckCountAndOrder(const AtlasCheck& check) {
    if (check.AreaCount() != check.facts.areaCount) {
        check.errors.Add(check.source.mapLine, std::string(check.facts.name) + " has " +
                                                   std::to_string(check.facts.areaCount) +
                                                   " areas, here are " +
                                                   std::to_string(check.AreaCount()));
    }
    for (int ordinal = 1; ordinal <= check.AreaCount(); ++ordinal) {
        const SourceRow& area = check.Area(ordinal);
        if (area.ordinal == ordinal) continue;
        check.errors.Add(area.line, AreaName(area.ordinal) + " stands where " + AreaName(ordinal) +
                                        " is expected: ordinals count up from 1 without a gap");
    }
}

void CheckNumber(const AtlasCheck& check, const SourceRow& area) {
    if (area.row.areaId >= 21 && area.row.areaId <= 29) return;
    check.errors.Add(area.line, "number " + std::to_string(area.row.areaId) +
                                    ": expected an area number from 21 to 29");
}

void CheckBounds(const AtlasCheck& check, int line, std::string_view axis,
                 const std::optional<int>& above, const std::optional<int>& below) {
    if (!above || !below || *below - *above >= 2) return;
    check.errors.Add(line, "the " + std::string(axis) + " box " + std::to_string(*above) + ", " +
                               std::to_string(*below) +
                               " is empty: expected a gap, as a cell on a bound lies outside");
}

// Every slot cell belongs to one place of one area.
void CheckSlotsDiffer(const AtlasCheck& check) {
    std::map<std::pair<int, int>, int> ownerOf;
    for (int ordinal = 1; ordinal <= check.AreaCount(); ++ordinal) {
        for (Cell slot : check.Area(ordinal).row.Slots()) {
            const auto [owner, isNew] = ownerOf.try_emplace({slot.x, slot.y}, ordinal);
            if (isNew) continue;
            const std::string taken = owner->second == ordinal
                                          ? "stands twice in this area"
                                          : "is a slot of " + AreaName(owner->second) + " already";
            check.errors.Add(check.Area(ordinal).line,
                             Shown(slot) + " " + taken + ": expected a cell of its own");
        }
    }
}

void CheckSlotOnGround(const AtlasCheck& check, int line, Cell slot) {
    const Cell farthest = check.facts.farthestSlot;
    if (slot.x >= 1 && slot.x <= farthest.x && slot.y >= 0 && slot.y <= farthest.y) return;
    check.errors.Add(
        line, Shown(slot) + " lies off the ground of the slots: expected x from 1 to " +
                  std::to_string(farthest.x) + ", y from 0 to " + std::to_string(farthest.y));
}

void CheckFarthestSlot(const AtlasCheck& check, std::string_view axis, int found, int expected) {
    if (found >= expected) return;  // beyond it the slot itself is complained of
    check.errors.Add(check.source.mapLine, "the greatest " + std::string(axis) +
                                               " of all slots is " + std::to_string(found) +
                                               ": on " + std::string(check.facts.name) +
                                               " it must be " + std::to_string(expected));
}

// Of the areas of one number whose boxes hold the slot, the last is the one that the slot's cell
// answers for.
void CheckSlotAnswers(const AtlasCheck& check, int ordinal, Cell slot) {
    const SourceRow& area = check.Area(ordinal);
    if (!area.row.Holds(slot)) {
        check.errors.Add(area.line, Shown(slot) +
                                        " lies outside the area's own box: expected it "
                                        "strictly between the bounds");
        return;
    }
    for (int other = 1; other <= check.AreaCount(); ++other) {
        const AreaRow& row = check.Area(other).row;
        if (other == ordinal || row.areaId != area.row.areaId || !row.Holds(slot)) continue;
        const std::string shared = Shown(slot) + " also lies in the box of " + AreaName(other) +
                                   ", which has the same number";
        if (other > ordinal) {
            check.errors.Add(area.line, shared + " and, as the later one, takes the slot away");
        } else {
            check.warnings.Add(area.line, shared);
        }
    }
}

}  // namespace

void CheckAreas(const AtlasCheck& check) {
    CheckCountAndOrder(check);
    Cell farthest;
    for (int ordinal = 1; ordinal <= check.AreaCount(); ++ordinal) {
        const SourceRow& area = check.Area(ordinal);
        CheckNumber(check, area);
        CheckBounds(check, area.line, "x", area.row.xAbove, area.row.xBelow);
        CheckBounds(check, area.line, "y", area.row.yAbove, area.row.yBelow);
        for (Cell slot : area.row.Slots()) {
            CheckSlotOnGround(check, area.line, slot);
            CheckSlotAnswers(check, ordinal, slot);
            farthest = {std::max(farthest.x, slot.x), std::max(farthest.y, slot.y)};
        }
    }
    CheckSlotsDiffer(check);
    CheckFarthestSlot(check, "x", farthest.x, check.facts.farthestSlot.x);
    CheckFarthestSlot(check, "y", farthest.y, check.facts.farthestSlot.y);
}

}  // namespace varnstride
