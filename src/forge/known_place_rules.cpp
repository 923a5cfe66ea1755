// The places that rules of the game know by their cells: whole rows, militia places, streams,
// rivers, exits, blocked ground, batteries, entrances and objectives. Each must be found in the
// atlas, or the rule silently never applies.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "forge/atlas_rules.h"
#include "forge/source_text.h"

namespace varnstride {
namespace {

std::string AreaNames(const std::vector<int>& ordinals) {
    std::string text;
    for (int ordinal : ordinals)
        text += (text.empty() ? "" : ", ") + std::to_string(ordinal);
    return ordinals.empty() ? "none" : text;
}

template <typename Test>
std::vector<int> AreasThat(const AtlasCheck& check, Test test) {
    std::vector<int> found;
    for (int ordinal = 1; ordinal <= check.AreaCount(); ++ordinal) {
        if (test(check.Area(ordinal).row)) found.push_back(ordinal);
    }
    return found;
}

int CountIn(const NumberedBox& box, const SideSlots& slots) {
    return static_cast<int>(
        std::count_if(slots.begin(), slots.end(), [&](Cell slot) { return box.Holds(slot); }));
}

bool SameSet(const SideSlots& one, const SideSlots& other) {
    return std::is_permutation(one.begin(), one.end(), other.begin());
}

void CheckKnownRows(const AtlasCheck& check) {
    for (const KnownRow& known : check.facts.rows) {
        if (!check.HasArea(known.ordinal)) continue;  // the count of areas is complained of
        const SourceRow& area = check.Area(known.ordinal);
        if (area.row == known.row) continue;
        check.errors.Add(area.line, "area " + std::to_string(known.ordinal) + " is fixed on " +
                                        std::string(check.facts.name) + ": expected \"" +
                                        RowText(known.ordinal, known.row) + "\"");
    }
}

void CheckMilitiaPlace(const AtlasCheck& check, const KnownSlots& known) {
    const std::vector<int> places = AreasThat(check, [&](const AreaRow& row) {
        return SameSet(row.frenchSlots, known.french) || SameSet(row.alliedSlots, known.allied);
    });
    const bool exact = std::any_of(places.begin(), places.end(), [&](int ordinal) {
        const AreaRow& row = check.Area(ordinal).row;
        return row.frenchSlots == known.french && row.alliedSlots == known.allied;
    });
    if (exact) return;
    check.errors.Add(places.empty() ? check.source.mapLine : check.Area(places.front()).line,
                     "raised militia needs an area whose slots are, in this order, French " +
                         Shown(known.french) + ", Allied " + Shown(known.allied));
}

// The area whose slots of a side are the known ones; 0 when there is none.
int AreaOfSlots(const AtlasCheck& check, std::string_view water, std::string_view side,
                const SideSlots& known, SideSlots AreaRow::*slots) {
    const std::vector<int> found =
        AreasThat(check, [&](const AreaRow& row) { return SameSet(row.*slots, known); });
    if (found.empty()) {
        check.errors.Add(check.source.mapLine, "no area has the " + std::string(side) + " slots " +
                                                   Shown(known) + ": expected one, beside the " +
                                                   std::string(water));
        return 0;
    }
    const SourceRow& area = check.Area(found.front());
    if (area.row.*slots != known) {
        check.warnings.Add(area.line, "the " + std::string(side) + " slots beside the " +
                                          std::string(water) + " stand in another order than " +
                                          Shown(known));
    }
    return found.front();
}

void CheckWaterside(const AtlasCheck& check, const KnownSlots& known) {
    const std::string_view water = known.meaning == SlotMeaning::Stream ? "stream" : "river";
    const int french = AreaOfSlots(check, water, "French", known.french, &AreaRow::frenchSlots);
    const int allied = AreaOfSlots(check, water, "Allied", known.allied, &AreaRow::alliedSlots);
    if (french == 0 || allied == 0 || french == allied) return;
    check.warnings.Add(check.Area(french).line, "French slots beside the " + std::string(water) +
                                                    " stand here and the Allied slots " +
                                                    Shown(known.allied) + " in area " +
                                                    std::to_string(allied) + ": expected one area");
}

void CheckKnownSlots(const AtlasCheck& check) {
    for (const KnownSlots& known : check.facts.slots) {
        if (known.meaning == SlotMeaning::MilitiaPlace) {
            CheckMilitiaPlace(check, known);
        } else {
            CheckWaterside(check, known);
        }
    }
}

void CheckExits(const AtlasCheck& check) {
    for (const ExitPlace& exit : check.facts.exits) {
        const std::vector<int> touched = AreasThat(check, [&](const AreaRow& row) {
            return row.areaId == exit.box.areaId &&
                   CountIn(exit.box, SlotsOfArmy(row, exit.army)) > 0;
        });
        if (touched.size() == 1 && IsExitArea(check.Area(touched.front()).row, exit)) continue;
        check.errors.Add(touched.empty() ? check.source.mapLine : check.Area(touched.front()).line,
                         "the exit \"" + std::string(exit.text) +
                             "\" needs exactly one area of number " +
                             std::to_string(exit.box.areaId) + " with all three " +
                             (SideOf(exit.army) == Side::French ? "French" : "Allied") +
                             " slots within " + BoxText(exit.box) +
                             " and no other with one there; areas with one: " + AreaNames(touched));
    }
}

// On the lines of a box a unit is in or out by how the rule is read; slots keep off them.
void CheckSlotsOffLines(const AtlasCheck& check, const NumberedBox& box) {
    for (const SourceRow& area : check.source.rows) {
        if (area.row.areaId != box.areaId) continue;
        for (Cell slot : area.row.Slots()) {
            if (!box.Touches(slot)) continue;
            check.errors.Add(area.line, Shown(slot) + " lies on the edge of " + BoxText(box) +
                                            ": expected every slot of number " +
                                            std::to_string(box.areaId) +
                                            " clearly inside or outside");
        }
    }
}

constexpr int kMontStJean = 7;

void CheckBlockedGround(const AtlasCheck& check) {
    for (const NumberedBox& box : check.facts.blocked) {
        const std::vector<int> inside = AreasThat(check, [&](const AreaRow& row) {
            return row.areaId == box.areaId &&
                   CountIn(box, row.frenchSlots) + CountIn(box, row.alliedSlots) > 0;
        });
        if (inside.size() != 1) {
            check.errors.Add(check.source.mapLine,
                             "blocked ground: expected exactly one area of number " +
                                 std::to_string(box.areaId) + " with a slot within " +
                                 BoxText(box) + ", here are: " + AreaNames(inside));
        }
        if (check.facts.mapNumber == kMontStJean) CheckSlotsOffLines(check, box);
    }
}

void CheckBatteries(const AtlasCheck& check) {
    for (const NumberedBox& box : check.facts.batteries) {
        const std::vector<int> inside = AreasThat(check, [&](const AreaRow& row) {
            return row.areaId == box.areaId && CountIn(box, row.frenchSlots) > 0;
        });
        if (inside.size() != 1) {
            check.errors.Add(check.source.mapLine,
                             "battery: expected exactly one area of number " +
                                 std::to_string(box.areaId) + " with a French slot within " +
                                 BoxText(box) + ", here are: " + AreaNames(inside));
        } else if (CountIn(box, check.Area(inside.front()).row.frenchSlots) < kSlotsPerSide) {
            check.warnings.Add(
                check.Area(inside.front()).line,
                "not all French slots of this battery's area lie within " + BoxText(box));
        }
        if (check.facts.mapNumber == kMontStJean) CheckSlotsOffLines(check, box);
    }
}

void CheckEntrances(const AtlasCheck& check) {
    for (Cell entrance : check.facts.prussianEntrances) {
        const std::vector<int> found = AreasThat(
            check, [&](const AreaRow& row) { return row.frenchSlots.front() == entrance; });
        if (found.size() == 1) continue;
        check.errors.Add(check.source.mapLine,
                         "Prussian entrance: expected exactly one area with " + Shown(entrance) +
                             " as its first French slot, here are: " + AreaNames(found));
    }
}

void CheckObjectives(const AtlasCheck& check) {
    for (const ObjectivePlace& objective : check.facts.objectives) {
        const std::vector<int> found =
            AreasThat(check, [&](const AreaRow& row) { return row.Holds(objective.cell); });
        if (!found.empty()) continue;
        check.errors.Add(check.source.mapLine, "the objective " + std::string(objective.name) +
                                                   " at " + Shown(objective.cell) +
                                                   " lies in no area's box: expected it in one");
    }
}

int AreaOfFrenchSlot(const AtlasCheck& check, Cell slot) {
    const std::vector<int> found = AreasThat(check, [&](const AreaRow& row) {
        return std::count(row.frenchSlots.begin(), row.frenchSlots.end(), slot) > 0;
    });
    return found.empty() ? 0 : found.front();
}

void CheckMilitiaAtExits(const AtlasCheck& check) {
    for (const MilitiaAtExit& place : check.facts.militiaAtExits) {
        const int area = AreaOfFrenchSlot(check, place.frenchSlot);
        const ExitPlace& exit = check.facts.exits[place.exit];
        if (area == 0 || IsExitArea(check.Area(area).row, exit)) continue;
        check.warnings.Add(check.Area(area).line,
                           "this militia place is expected to be the exit \"" +
                               std::string(exit.text) + "\" as well: number " +
                               std::to_string(exit.box.areaId) + ", slots within " +
                               BoxText(exit.box));
    }
}

void CheckRiverCrossings(const AtlasCheck& check) {
    const auto crosses = [&](int from, int to) {
        return std::any_of(check.source.links.begin(), check.source.links.end(),
                           [&](const SourceLink& source) {
                               return source.link.from == from && source.link.to == to &&
                                      source.link.firstStep != FirstStep::None;
                           });
    };
    for (const RiverBanks& banks : check.facts.riverBanks) {
        const int one = AreaOfFrenchSlot(check, banks.one);
        const int other = AreaOfFrenchSlot(check, banks.other);
        if (one == 0 || other == 0) continue;
        for (const auto& [from, to] : {std::pair(one, other), std::pair(other, one)}) {
            if (crosses(from, to)) continue;
            check.warnings.Add(check.Area(from).line,
                               "expected a first step over the river from "
                               "area " +
                                   std::to_string(from) + " to area " + std::to_string(to));
        }
    }
}

}  // namespace

void CheckKnownPlaces(const AtlasCheck& check) {
    CheckKnownRows(check);
    CheckKnownSlots(check);
    CheckExits(check);
    CheckBlockedGround(check);
    CheckBatteries(check);
    CheckEntrances(check);
    CheckObjectives(check);
    CheckMilitiaAtExits(check);
    CheckRiverCrossings(check);
}

}  // namespace varnstride
