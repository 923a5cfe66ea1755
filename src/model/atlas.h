// The atlas of a battlefield: its areas with their six slots, and the links between them. Areas
// are numbered from 1 in the order of the rows (the ordinal). An atlas never changes in play.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "model/area_set.h"
#include "model/army.h"
#include "model/cell.h"

namespace varnstride {

constexpr int kSlotsPerSide = 3;

// The six slots of an area: French first to third, Allied first to third.
using AreaSlots = std::array<Cell, 2 * kSlotsPerSide>;

struct AreaRow {
    int areaId = 0;  // 21 to 29, used again and again on a map
    // A cell of this areaId lies in the area when it is strictly inside the bounds that stand.
    std::optional<int> xAbove;
    std::optional<int> xBelow;
    std::optional<int> yAbove;
    std::optional<int> yBelow;
    std::array<Cell, kSlotsPerSide> frenchSlots{};
    std::array<Cell, kSlotsPerSide> alliedSlots{};

    bool Holds(Cell cell) const;
    AreaSlots Slots() const;

    friend bool operator==(const AreaRow&, const AreaRow&) = default;
};

enum class FirstStep { None, Open, FootOnly, FootOrRoad };
enum class SecondStep { None, Open, RoadOnly };

// A one-way link between two areas, given by ordinal.
struct AreaLink {
    int from = 0;
    int to = 0;
    FirstStep firstStep = FirstStep::None;
    SecondStep secondStep = SecondStep::None;
    int viaArea = 0;  // 0: none
    bool noBombardment = false;

    friend bool operator==(const AreaLink&, const AreaLink&) = default;
};

// What can be reached from one area, by kind of link.
struct AreaReach {
    AreaSet firstOpen;
    AreaSet firstFootOnly;
    AreaSet firstFootOrRoad;
    AreaSet secondOpen;
    AreaSet secondRoadOnly;
    AreaSet closedToBombardment;  // those of the second steps that a bombardment may not use
};

class Atlas {
 public:
    Atlas() = default;
    // Links name ordinals of rows; the caller has checked them.
    Atlas(int mapNumber, std::vector<AreaRow> rows, std::vector<AreaLink> links);

    int MapNumber() const { return mapNumber_; }
    int AreaCount() const { return static_cast<int>(rows_.size()); }
    const AreaRow& Row(int ordinal) const { return rows_[static_cast<std::size_t>(ordinal - 1)]; }
    const std::vector<AreaRow>& Rows() const { return rows_; }
    const std::vector<AreaLink>& Links() const { return links_; }
    const AreaReach& Reach(int ordinal) const { return reach_[static_cast<std::size_t>(ordinal)]; }

    // The area that a move between the two areas passes through; 0 when the link has none or
    // there is no such link.
    int ViaArea(int from, int to) const;

    // The greatest column and row of any slot.
    Cell FarthestSlot() const;

    // The areas by ordinal in the order in which their battles are fought.
    const std::vector<int>& BattleOrder() const { return battleOrder_; }

 private:
    int mapNumber_ = 0;
    std::vector<AreaRow> rows_;
    std::vector<AreaLink> links_;
    std::vector<AreaReach> reach_;
    std::vector<std::vector<std::uint8_t>> via_;
    std::vector<int> battleOrder_;
};

// All battlefields that a program knows.
class AtlasCatalogue {
 public:
    AtlasCatalogue() = default;
    explicit AtlasCatalogue(std::vector<Atlas> atlases) : atlases_(std::move(atlases)) {}

    // The atlas of a battlefield; nothing when the number has none.
    const Atlas* Find(int mapNumber) const;

 private:
    std::vector<Atlas> atlases_;
};

}  // namespace varnstride
