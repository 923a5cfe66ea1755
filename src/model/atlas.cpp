#include "model/atlas.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace varnstride {
namespace {

// On Quatre Bras the battles of area 18 are fought before those of 16 and 17.
std::vector<int> BattleOrderOf(int mapNumber, int areaCount) {
    std::vector<int> order(static_cast<std::size_t>(areaCount));
    std::iota(order.begin(), order.end(), 1);
    constexpr int kQuatreBras = 1;
    if (mapNumber == kQuatreBras && areaCount >= 18) {
        std::rotate(order.begin() + 15, order.begin() + 17, order.begin() + 18);
    }
    return order;
}

AreaSet& SetOf(AreaReach& reach, FirstStep step) {
    switch (step) {
        case FirstStep::FootOnly: return reach.firstFootOnly;
        case FirstStep::FootOrRoad: return reach.firstFootOrRoad;
        default: return reach.firstOpen;
    }
}

void AddLink(AreaReach& reach, const AreaLink& link) {
    if (link.firstStep != FirstStep::None) SetOf(reach, link.firstStep).Add(link.to);
    if (link.secondStep == SecondStep::None) return;
    (link.secondStep == SecondStep::Open ? reach.secondOpen : reach.secondRoadOnly).Add(link.to);
    if (link.noBombardment) reach.closedToBombardment.Add(link.to);
}

}  // namespace

bool AreaRow::Holds(Cell cell) const {
    return (!xAbove || cell.x > *xAbove) && (!xBelow || cell.x < *xBelow) &&
           (!yAbove || cell.y > *yAbove) && (!yBelow || cell.y < *yBelow);
}

AreaSlots AreaRow::Slots() const {
    return {frenchSlots[0], frenchSlots[1], frenchSlots[2],
            alliedSlots[0], alliedSlots[1], alliedSlots[2]};
}

Atlas::Atlas(int mapNumber, std::vector<AreaRow> rows, std::vector<AreaLink> links)
    : mapNumber_(mapNumber), rows_(std::move(rows)), links_(std::move(links)) {
    const std::size_t count = rows_.size() + 1;
    reach_.resize(count);
    via_.assign(count, std::vector<std::uint8_t>(count, 0));
    for (const AreaLink& link : links_) {
        const auto from = static_cast<std::size_t>(link.from);
        AddLink(reach_[from], link);
        via_[from][static_cast<std::size_t>(link.to)] = static_cast<std::uint8_t>(link.viaArea);
    }
    battleOrder_ = BattleOrderOf(mapNumber_, AreaCount());
}

int Atlas::ViaArea(int from, int to) const {
    return via_[static_cast<std::size_t>(from)][static_cast<std::size_t>(to)];
}

Cell Atlas::FarthestSlot() const {
    Cell farthest;
    for (const AreaRow& row : rows_) {
        for (Cell slot : row.Slots()) {
            farthest = {std::max(farthest.x, slot.x), std::max(farthest.y, slot.y)};
        }
    }
    return farthest;
}

const Atlas* AtlasCatalogue::Find(int mapNumber) const {
    const auto found = std::find_if(atlases_.begin(), atlases_.end(), [&](const Atlas& atlas) {
        return atlas.MapNumber() == mapNumber;
    });
    return found == atlases_.end() ? nullptr : &*found;
}

}  // namespace varnstride
