// varnstride-sim atlas: prints the atlas of a battlefield.
#include <algorithm>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <tuple>

#include "atlases/built_in.h"
#include "sim/subcommands.h"

namespace varnstride::sim {
namespace {

using Json = nlohmann::ordered_json;

Json BoundAsJson(const std::optional<int>& bound) {
    return bound ? Json(*bound) : Json(nullptr);
}

Json SlotsAsJson(const std::array<Cell, kSlotsPerSide>& slots) {
    Json list = Json::array();
    for (Cell slot : slots)
        list.push_back({slot.x, slot.y});
    return list;
}

Json RowAsJson(int ordinal, const AreaRow& row) {
    return {{"ordinal", ordinal},
            {"areaId", row.areaId},
            {"xAbove", BoundAsJson(row.xAbove)},
            {"xBelow", BoundAsJson(row.xBelow)},
            {"yAbove", BoundAsJson(row.yAbove)},
            {"yBelow", BoundAsJson(row.yBelow)},
            {"french", SlotsAsJson(row.frenchSlots)},
            {"allied", SlotsAsJson(row.alliedSlots)}};
}

Json NameOf(FirstStep step) {
    switch (step) {
        case FirstStep::None: return nullptr;
        case FirstStep::Open: return "Open";
        case FirstStep::FootOnly: return "FootOnly";
        case FirstStep::FootOrRoad: return "FootOrRoad";
    }
    return nullptr;
}

Json NameOf(SecondStep step) {
    switch (step) {
        case SecondStep::None: return nullptr;
        case SecondStep::Open: return "Open";
        case SecondStep::RoadOnly: return "RoadOnly";
    }
    return nullptr;
}

Json LinkAsJson(const AreaLink& link) {
    return {{"from", link.from},
            {"to", link.to},
            {"firstStep", NameOf(link.firstStep)},
            {"secondStep", NameOf(link.secondStep)},
            {"via", link.viaArea == 0 ? Json(nullptr) : Json(link.viaArea)},
            {"noBombardment", link.noBombardment}};
}

Json AtlasAsJson(const Atlas& atlas) {
    Json rows = Json::array();
    for (int ordinal = 1; ordinal <= atlas.AreaCount(); ++ordinal) {
        rows.push_back(RowAsJson(ordinal, atlas.Row(ordinal)));
    }
    std::vector<AreaLink> links = atlas.Links();
    std::stable_sort(links.begin(), links.end(), [](const AreaLink& one, const AreaLink& other) {
        return std::tie(one.from, one.to) < std::tie(other.from, other.to);
    });
    Json list = Json::array();
    for (const AreaLink& link : links)
        list.push_back(LinkAsJson(link));
    return {{"map", atlas.MapNumber()}, {"rows", rows}, {"links", list}};
}

void Print(int mapNumber) {
    const Atlas* atlas = BuiltInAtlases().Find(mapNumber);
    if (atlas == nullptr) {
        throw Refusal("map " + std::to_string(mapNumber) + " is no battlefield of the game");
    }
    std::cout << AtlasAsJson(*atlas).dump() << '\n';
}

}  // namespace

void AddAtlas(CLI::App& app) {
    CLI::App* command =
        app.add_subcommand("atlas", "Prints the areas and links of a battlefield as JSON");
    const auto mapNumber = std::make_shared<int>(0);
    command->add_option("MAP", *mapNumber, "The number of the battlefield")->required();
    command->callback([mapNumber] { Print(*mapNumber); });
}

}  // namespace varnstride::sim
