#include "forge/scenario_roads.h"

#include <algorithm>
#include <array>
#include <bit>

#include "forge/hex_walk.h"
#include "forge/source_text.h"
#include "model/tile_sheets.h"

namespace varnstride {
namespace {

constexpr int kStreamTile = 3;
constexpr int kLakeTile = 4;
constexpr int kFirstRiverTile = 18;
constexpr int kLastRiverTile = 23;

bool IsRiver(const MapCell& cell) {
    return cell.terrainTile >= kFirstRiverTile && cell.terrainTile <= kLastRiverTile;
}

// What the roads make of a cell.
struct RoadCell {
    unsigned sides = 0;
    bool paved = false;
};

// Roads by cell of the grid, while they are read.
class RoadNet {
 public:
    explicit RoadNet(ScenarioBuild& build) : build_(build), cells_(build.file.cells.size()) {}

    void Read(const SourceLine& line);
    void Put();

 private:
    RoadCell& At(Cell cell) {
        return cells_[static_cast<std::size_t>(cell.y * build_.file.mapWidth + cell.x)];
    }
    void Join(Cell from, Cell to, bool paved) {
        At(from).sides |= SideBit(SideTowards(from, to));
        At(to).sides |= SideBit(SideTowards(to, from));
        At(from).paved |= paved;
        At(to).paved |= paved;
    }
    void Walk(const std::vector<Cell>& waypoints, bool paved, int line);

    ScenarioBuild& build_;
    std::vector<RoadCell> cells_;
};

std::optional<std::vector<Cell>> Waypoints(const ScenarioBuild& build, std::string_view words,
                                           int line) {
    std::vector<Cell> waypoints;
    bool wrong = false;
    for (std::string_view word : Words(words)) {
        const std::optional<Cell> cell = build.CellOnGrid(word, line);
        wrong = wrong || !cell;
        if (!cell) continue;
        if (!waypoints.empty() && waypoints.back() == *cell) {
            build.errors.Add(line, "the road does not connect: it names " + SourceCell(*cell) +
                                       " twice running, expected another cell");
            wrong = true;
        }
        waypoints.push_back(*cell);
    }
    if (!wrong && waypoints.size() < 2) {
        build.errors.Add(line, "the road does not connect anything: expected two cells or more");
        wrong = true;
    }
    if (wrong) return std::nullopt;
    return waypoints;
}

void RoadNet::Read(const SourceLine& line) {
    const std::size_t colon = line.text.find(':');
    const auto head = Words(line.text.substr(0, std::min(colon, line.text.size())));
    const bool known = !head.empty() && (head[0] == "paved" || head[0] == "track");
    if (!known || head.size() < 2 || colon == line.text.npos) {
        build_.errors.Add(line.number,
                          "expected \"paved NAME: x,y x,y ...\" or \"track NAME: x,y x,y ...\"");
        return;
    }
    const auto waypoints = Waypoints(build_, line.text.substr(colon + 1), line.number);
    if (waypoints) Walk(*waypoints, head[0] == "paved", line.number);
}

void RoadNet::Walk(const std::vector<Cell>& waypoints, bool paved, int line) {
    for (std::size_t leg = 1; leg < waypoints.size(); ++leg) {
        const std::vector<Cell> walk =
            HexWalk(waypoints[leg - 1], waypoints[leg], build_.file.mapWidth);
        for (std::size_t step = 1; step < walk.size(); ++step) {
            Join(walk[step - 1], walk[step], paved);
            if (!IsLake(build_.At(walk[step]))) continue;
            build_.errors.Add(line, "the road runs into the lake at " + SourceCell(walk[step]) +
                                        ": expected a way round, only streams and rivers are "
                                        "bridged");
        }
    }
}

// The sides beyond which more water lies; a stream joins rivers and lakes too.
unsigned WaterSides(ScenarioBuild& build, Cell cell) {
    unsigned sides = 0;
    for (int side = 0; side < kSides; ++side) {
        const Cell next = Beyond(cell, side);
        if (!build.Holds(next)) continue;
        const MapCell& neighbour = build.At(next);
        if (IsStreamOrRiver(neighbour) || IsLake(neighbour)) sides |= SideBit(side);
    }
    return sides;
}

// The bridge whose road joins most of the road's sides; among equals one that runs straight, and
// rather across the water than along it.
int BridgeFor(unsigned roadSides, unsigned waterSides) {
    const auto fitness = [&](const BridgeTile& bridge) {
        return 3 * std::popcount(bridge.sides & roadSides) -
               std::popcount(bridge.sides & waterSides);
    };
    return std::max_element(
               kBridges.begin(), kBridges.end(),
               [&](const BridgeTile& a, const BridgeTile& b) { return fitness(a) < fitness(b); })
        ->tile;
}

void RoadNet::Put() {
    ForEachCell(build_.file, [&](Cell place) {
        MapCell& cell = build_.At(place);
        const RoadCell& road = At(place);
        if (IsStreamOrRiver(cell)) {
            const unsigned water = WaterSides(build_, place);
            cell.featureTile = (IsRiver(cell) ? kRiver : kStream) + static_cast<int>(water);
            if (road.sides != 0) cell.roadTile = BridgeFor(road.sides, water);
        } else if (IsLake(cell)) {
            cell.featureTile = kRiver + static_cast<int>(WaterSides(build_, place));
        } else if (road.sides != 0) {
            cell.featureTile = (road.paved ? kPavedRoad : kTrack) + static_cast<int>(road.sides);
        }
    });
}

}  // namespace

bool IsStreamOrRiver(const MapCell& cell) {
    return cell.terrainTile == kStreamTile || IsRiver(cell);
}

bool IsLake(const MapCell& cell) {
    return cell.terrainTile == kLakeTile;
}

unsigned BridgeSides(const MapCell& cell) {
    if (!IsStreamOrRiver(cell)) return 0;
    for (const BridgeTile& bridge : kBridges) {
        if (bridge.tile == cell.roadTile) return bridge.sides;
    }
    return 0;
}

void ReadRoads(const ScenarioText& text, ScenarioBuild& build) {
    if (!build.HasGrid()) return;
    RoadNet net(build);
    if (const Section* const section = text.Find(SectionKind::Roads)) {
        for (const SourceLine& line : section->lines)
            net.Read(line);
    }
    net.Put();
}

}  // namespace varnstride
