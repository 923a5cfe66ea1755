// What the links of an atlas must be: between areas that exist, of kinds that the moves know, and
// so that nobody on foot is shut in. Links that are fixed on a battlefield are compared as well.
#include <algorithm>
#include <string>
#include <vector>

#include "forge/atlas_rules.h"

namespace varnstride {
namespace {

std::string Between(int from, int to) {
    return "the link from " + std::to_string(from) + " to " + std::to_string(to);
}

std::string Between(const AreaLink& link) {
    return Between(link.from, link.to);
}

const SourceLink* FindLink(const AtlasCheck& check, int from, int to) {
    const auto found = std::find_if(
        check.source.links.begin(), check.source.links.end(),
        [&](const SourceLink& link) { return link.link.from == from && link.link.to == to; });
    return found == check.source.links.end() ? nullptr : &*found;
}

bool HasFirstStep(const AtlasCheck& check, int from, int to) {
    const SourceLink* const link = FindLink(check, from, to);
    return link != nullptr && link->link.firstStep != FirstStep::None;
}

// Whether the link's areas can be looked at further.
bool CheckEnds(const AtlasCheck& check, const SourceLink& source) {
    const AreaLink& link = source.link;
    bool sound = true;
    const auto expectArea = [&](int ordinal) {
        if (check.HasArea(ordinal)) return;
        sound = false;
        check.errors.Add(source.line, "there is no area " + std::to_string(ordinal) +
                                          ": expected an ordinal from 1 to " +
                                          std::to_string(check.AreaCount()));
    };
    expectArea(link.from);
    expectArea(link.to);
    if (link.viaArea != 0) expectArea(link.viaArea);
    return sound;
}

void CheckKinds(const AtlasCheck& check, const SourceLink& source) {
    const AreaLink& link = source.link;
    const bool bothSteps = link.firstStep != FirstStep::None && link.secondStep != SecondStep::None;
    if (bothSteps &&
        (link.firstStep != FirstStep::FootOnly || link.secondStep != SecondStep::RoadOnly)) {
        check.warnings.Add(source.line, Between(link) +
                                            " has a first and a second step: that is usual only "
                                            "as foot with second-road");
    }
    if (link.viaArea == link.from) {
        check.errors.Add(source.line,
                         Between(link) + " goes via the area that it leaves: expected another");
    }
    if (link.noBombardment && link.secondStep == SecondStep::None) {
        check.errors.Add(source.line, Between(link) +
                                          " is closed to bombardment: expected that on a second "
                                          "step only");
    }
    const AreaLink plainSelf{link.from, link.from, FirstStep::Open};
    if (link.from == link.to && link != plainSelf) {
        check.errors.Add(source.line, "area " + std::to_string(link.from) +
                                          " links to itself: expected that as \"open self\" and "
                                          "nothing else");
    }
}

void CheckNumbersDiffer(const AtlasCheck& check, const SourceLink& source) {
    const AreaLink& link = source.link;
    if (link.firstStep == FirstStep::None || link.from == link.to) return;
    const int number = check.Area(link.from).row.areaId;
    if (number != check.Area(link.to).row.areaId) return;
    check.errors.Add(source.line, Between(link) + " is a first step between two areas of number " +
                                      std::to_string(number) +
                                      ": expected different numbers, or no border is drawn "
                                      "between them");
}

void CheckViaIsStepped(const AtlasCheck& check, const SourceLink& source) {
    const AreaLink& link = source.link;
    if (link.secondStep == SecondStep::None || link.viaArea == 0) return;
    if (HasFirstStep(check, link.from, link.viaArea) &&
        HasFirstStep(check, link.viaArea, link.to)) {
        return;
    }
    check.warnings.Add(source.line, Between(link) + " goes via " + std::to_string(link.viaArea) +
                                        ", which is not a first step from the one and to the "
                                        "other");
}

void CheckCounted(const AtlasCheck& check, std::string_view what, int found, int expected) {
    if (found == expected) return;
    check.errors.Add(check.source.mapLine,
                     std::string(what) + ": here are " + std::to_string(found) + ", " +
                         std::string(check.facts.name) + " must have " + std::to_string(expected));
}

void CheckSpecialCounts(const AtlasCheck& check) {
    int selfLinks = 0;
    int closed = 0;
    for (const SourceLink& source : check.source.links) {
        selfLinks += source.link.from == source.link.to ? 1 : 0;
        closed += source.link.noBombardment ? 1 : 0;
    }
    CheckCounted(check, "areas linked to themselves", selfLinks, check.facts.selfLinks);
    CheckCounted(check, "links closed to bombardment", closed, check.facts.closedToBombardment);
}

// First steps between different areas, all of which can be taken on foot.
using StepTable = std::vector<std::vector<int>>;

StepTable FirstSteps(const AtlasCheck& check, bool backwards) {
    StepTable steps(check.source.rows.size() + 1);
    for (const SourceLink& source : check.source.links) {
        const AreaLink& link = source.link;
        if (link.firstStep == FirstStep::None || link.from == link.to) continue;
        const auto from = static_cast<std::size_t>(backwards ? link.to : link.from);
        steps[from].push_back(backwards ? link.from : link.to);
    }
    return steps;
}

std::vector<bool> ReachedFromFirstArea(const StepTable& steps) {
    std::vector<bool> reached(steps.size());
    std::vector<int> open = {1};
    reached[1] = true;
    while (!open.empty()) {
        const auto area = static_cast<std::size_t>(open.back());
        open.pop_back();
        for (int next : steps[area]) {
            if (reached[static_cast<std::size_t>(next)]) continue;
            reached[static_cast<std::size_t>(next)] = true;
            open.push_back(next);
        }
    }
    return reached;
}

void CheckFootReach(const AtlasCheck& check) {
    if (check.source.rows.empty()) return;
    const StepTable out = FirstSteps(check, false);
    const StepTable in = FirstSteps(check, true);
    const std::vector<bool> reached = ReachedFromFirstArea(out);
    const std::vector<bool> returns = ReachedFromFirstArea(in);
    for (int ordinal = 1; ordinal <= check.AreaCount(); ++ordinal) {
        const auto area = static_cast<std::size_t>(ordinal);
        const int line = check.Area(ordinal).line;
        const std::string name = "area " + std::to_string(ordinal);
        if (out[area].empty()) {
            check.errors.Add(line, name + " has no first step out: expected one at least");
        } else if (!returns[area]) {
            check.warnings.Add(line, "on foot no way leads from " + name + " to area 1");
        }
        if (in[area].empty()) {
            check.errors.Add(line, name + " has no first step in: expected one at least");
        } else if (!reached[area]) {
            check.warnings.Add(line, "on foot no way leads from area 1 to " + name);
        }
    }
}

int LineOfLinksFrom(const AtlasCheck& check, int from) {
    for (const SourceLink& source : check.source.links) {
        if (source.link.from == from) return source.line;
    }
    return check.source.mapLine;
}

void CheckKnownLinks(const AtlasCheck& check) {
    const std::string fixed = " is fixed on " + std::string(check.facts.name);
    for (const AreaLink& known : check.facts.links) {
        const SourceLink* const found = FindLink(check, known.from, known.to);
        if (found != nullptr && found->link == known) continue;
        const int line = found != nullptr ? found->line : LineOfLinksFrom(check, known.from);
        check.errors.Add(
            line,
            Between(known) + fixed + ": expected \"" + LinkText(known) + "\", here is " +
                (found != nullptr ? "\"" + LinkText(found->link) + "\"" : std::string("none")));
    }
    if (!check.facts.allLinksKnown) return;
    for (const SourceLink& source : check.source.links) {
        const bool isKnown = std::any_of(
            check.facts.links.begin(), check.facts.links.end(), [&](const AreaLink& known) {
                return known.from == source.link.from && known.to == source.link.to;
            });
        if (isKnown) continue;
        check.errors.Add(source.line, std::string(check.facts.name) + " has no link from " +
                                          std::to_string(source.link.from) + " to " +
                                          std::to_string(source.link.to) + ": expected none");
    }
}

}  // namespace

void CheckLinks(const AtlasCheck& check) {
    bool endsSound = true;
    for (const SourceLink& source : check.source.links) {
        if (!CheckEnds(check, source)) {
            endsSound = false;
            continue;
        }
        CheckKinds(check, source);
        CheckNumbersDiffer(check, source);
        CheckViaIsStepped(check, source);
    }
    CheckSpecialCounts(check);
    CheckKnownLinks(check);
    if (endsSound) CheckFootReach(check);
}

}  // namespace varnstride
