// Roads found again in the feature pictures of a file: cells whose sides meet are followed from a
// road's end to its other end, and the way is written with as few cells as give it back.
#include <algorithm>
#include <array>
#include <vector>

#include "forge/hex_walk.h"
#include "forge/scenario_roads.h"
#include "model/tile_sheets.h"

namespace varnstride {
namespace {

constexpr int kMasks = 64;  // pictures of one kind of road

// A picture of a road on a lake is none that a source could draw.
bool IsRoad(const MapCell& cell) {
    return cell.featureTile > kPavedRoad && cell.featureTile < kStream && !IsLake(cell);
}

bool IsTrack(const MapCell& cell) {
    return IsRoad(cell) && cell.featureTile >= kTrack;
}

unsigned RoadSides(const MapCell& cell) {
    return IsRoad(cell) ? static_cast<unsigned>(cell.featureTile % kMasks) : BridgeSides(cell);
}

// Whether the cell lets a road through that side. A bridge takes what its neighbours send it.
bool Opens(const MapCell& cell, int side, const MapCell& neighbour) {
    if ((RoadSides(cell) & SideBit(side)) != 0) return true;
    return BridgeSides(cell) != 0 && IsRoad(neighbour);
}

class RoadTrace {
 public:
    RoadTrace(const BattleFile& file, bool paved) : file_(file), left_(file.cells.size()) {
        ForEachCell(file, [&](Cell cell) {
            for (int side = 0; side < kSides; ++side) {
                if (Joins(cell, side, paved)) Left(cell) |= SideBit(side);
            }
        });
    }

    // The roads as runs of neighbouring cells: first those that have an end, then the rings.
    std::vector<std::vector<Cell>> Roads() {
        std::vector<std::vector<Cell>> roads;
        for (const bool ends : {true, false}) {
            ForEachCell(file_, [&](Cell cell) {
                while (Left(cell) != 0 && (!ends || IsEnd(cell)))
                    roads.push_back(Follow(cell));
            });
        }
        return roads;
    }

 private:
    unsigned& Left(Cell cell) {
        return left_[static_cast<std::size_t>(cell.y * file_.mapWidth + cell.x)];
    }
    bool IsEnd(Cell cell) {
        int ways = 0;
        for (int side = 0; side < kSides; ++side)
            ways += (Left(cell) & SideBit(side)) != 0 ? 1 : 0;
        return ways % 2 == 1;
    }

    bool Joins(Cell cell, int side, bool paved) const {
        const Cell next = Beyond(cell, side);
        if (next.x < 0 || next.x >= file_.mapWidth || next.y < 0 || next.y >= file_.mapHeight) {
            return false;
        }
        const MapCell& here = CellOf(file_, cell);
        const MapCell& there = CellOf(file_, next);
        const bool meet = Opens(here, side, there) && Opens(there, OppositeSide(side), here);
        return meet && paved == (!IsTrack(here) && !IsTrack(there));
    }

    // Goes straight on where it can, and takes away what it has walked.
    std::vector<Cell> Follow(Cell start) {
        std::vector<Cell> road = {start};
        int ahead = 0;
        while (Left(road.back()) != 0) {
            const Cell here = road.back();
            while ((Left(here) & SideBit(ahead)) == 0)
                ahead = (ahead + 1) % kSides;
            const Cell next = Beyond(here, ahead);
            Left(here) &= ~SideBit(ahead);
            Left(next) &= ~SideBit(OppositeSide(ahead));
            road.push_back(next);
        }
        return road;
    }

    const BattleFile& file_;
    std::vector<unsigned> left_;  // by cell: the sides that no road has taken yet
};

bool IsWalked(const std::vector<Cell>& road, std::size_t first, std::size_t last, int columns) {
    const std::vector<Cell> walk = HexWalk(road[first], road[last], columns);
    return walk.size() == last - first + 1 &&
           std::equal(walk.begin(), walk.end(), road.begin() + static_cast<std::ptrdiff_t>(first));
}

std::string WaypointText(const std::vector<Cell>& road, int columns) {
    std::string text = SourceCell(road.front());
    std::size_t at = 0;
    while (at + 1 < road.size()) {
        std::size_t reach = at + 1;
        while (reach + 1 < road.size() && IsWalked(road, at, reach + 1, columns))
            ++reach;
        text += " " + SourceCell(road[reach]);
        at = reach;
    }
    return text;
}

}  // namespace

std::string WriteRoads(const BattleFile& file) {
    std::string text;
    int number = 0;
    for (const bool paved : {true, false}) {
        for (const std::vector<Cell>& road : RoadTrace(file, paved).Roads()) {
            text += std::string(paved ? "paved" : "track") + " Road " + std::to_string(++number) +
                    ": " + WaypointText(road, file.mapWidth) + "\n";
        }
    }
    return text.empty() ? text : "[roads]\n" + text + "\n";
}

}  // namespace varnstride
