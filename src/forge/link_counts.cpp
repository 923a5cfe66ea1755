#include "forge/link_counts.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string_view>
#include <utility>

#include "forge/battlefield_facts.h"

namespace varnstride {
namespace {

using LinkTable = std::map<std::pair<int, int>, AreaLink>;

LinkTable TableOf(const AtlasSource& atlas) {
    LinkTable table;
    for (const SourceLink& source : atlas.links) {
        table.emplace(std::pair(source.link.from, source.link.to), source.link);
    }
    return table;
}

void CountKind(LinkCounts& counts, const AreaLink& link) {
    const bool second = link.secondStep != SecondStep::None;
    switch (link.firstStep) {
        case FirstStep::Open: ++counts.firstOpen; break;
        case FirstStep::FootOnly: ++(second ? counts.footWithRoad : counts.footOnly); break;
        case FirstStep::FootOrRoad: ++counts.footOrRoad; break;
        case FirstStep::None:
            if (link.secondStep == SecondStep::Open) ++counts.secondOpen;
            if (link.secondStep == SecondStep::RoadOnly) ++counts.secondRoad;
            if (!second) ++counts.viaAlone;
            break;
    }
}

void CountVia(LinkCounts& counts, const AreaLink& link, const LinkTable& table) {
    if (link.viaArea == 0) {
        counts.secondWithoutVia += link.secondStep != SecondStep::None ? 1 : 0;
        return;
    }
    counts.firstWithVia += link.firstStep != FirstStep::None ? 1 : 0;
    const bool joined = table.contains({link.from, link.viaArea}) &&
                        (link.viaArea == link.to || table.contains({link.viaArea, link.to}));
    counts.viaApart += joined ? 0 : 1;
}

void CountDifference(LinkCounts& counts, const AreaLink& link, const LinkTable& table) {
    if (link.firstStep == FirstStep::None && link.secondStep == SecondStep::None) return;
    ++counts.withStep;
    const auto reverse = table.find({link.to, link.from});
    const bool same = reverse != table.end() && reverse->second.firstStep == link.firstStep &&
                      reverse->second.secondStep == link.secondStep;
    counts.differing += same ? 0 : 1;
}

struct ExpectedCount {
    std::string_view what;
    int LinkCounts::*count;
    int expected;
    int toleranceInHundred;
};

constexpr ExpectedCount kExpectedCounts[] = {
    {"links", &LinkCounts::all, 3390, 10},
    {"first steps open", &LinkCounts::firstOpen, 1063, 30},
    {"first steps on foot alone", &LinkCounts::footOnly, 221, 30},
    {"first steps on foot with a second by road", &LinkCounts::footWithRoad, 60, 30},
    {"first steps on foot or by road", &LinkCounts::footOrRoad, 180, 30},
    {"second steps open alone", &LinkCounts::secondOpen, 1211, 30},
    {"second steps by road alone", &LinkCounts::secondRoad, 508, 30},
    {"links that only pass", &LinkCounts::viaAlone, 140, 30},
    {"second steps without a via", &LinkCounts::secondWithoutVia, 170, 30},
    {"first steps with a via", &LinkCounts::firstWithVia, 120, 30},
    {"vias not linked to both ends", &LinkCounts::viaApart, 80, 30},
};

constexpr int kLeastDiffering = 5;  // in a hundred links with a step
constexpr int kMostDiffering = 20;

}  // namespace

LinkCounts CountLinks(std::span<const AtlasSource> atlases) {
    LinkCounts counts;
    for (const AtlasSource& atlas : atlases) {
        const LinkTable table = TableOf(atlas);
        for (const SourceLink& source : atlas.links) {
            ++counts.all;
            CountKind(counts, source.link);
            CountVia(counts, source.link, table);
            CountDifference(counts, source.link, table);
        }
    }
    return counts;
}

bool HoldsAllBattlefields(std::span<const AtlasSource> atlases) {
    const std::span<const BattlefieldFacts> battlefields = AllBattlefields();
    return std::all_of(battlefields.begin(), battlefields.end(), [&](const auto& facts) {
        return std::any_of(atlases.begin(), atlases.end(), [&](const AtlasSource& atlas) {
            return atlas.mapNumber == facts.mapNumber;
        });
    });
}

std::vector<std::string> OddLinkCounts(const LinkCounts& counts) {
    std::vector<std::string> lines;
    for (const ExpectedCount& row : kExpectedCounts) {
        const int found = counts.*row.count;
        const int allowed = row.expected * row.toleranceInHundred / 100;
        if (std::abs(found - row.expected) <= allowed) continue;
        lines.push_back("all battlefields together have " + std::to_string(found) + " " +
                        std::string(row.what) + ": expected " +
                        std::to_string(row.expected - allowed) + " to " +
                        std::to_string(row.expected + allowed));
    }
    const int inHundred = counts.withStep == 0 ? 0 : counts.differing * 100 / counts.withStep;
    if (inHundred < kLeastDiffering || inHundred > kMostDiffering) {
        lines.push_back("of all battlefields' links " + std::to_string(inHundred) +
                        " in a hundred differ from their reverse: expected " +
                        std::to_string(kLeastDiffering) + " to " + std::to_string(kMostDiffering));
    }
    return lines;
}

}  // namespace varnstride
