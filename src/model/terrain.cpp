#include "model/terrain.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace varnstride {
namespace {

struct TileRange {
    int first;
    int last;
};

template <std::size_t N>
constexpr bool IsIn(int tile, const std::array<TileRange, N>& ranges) {
    return std::any_of(ranges.begin(), ranges.end(), [tile](TileRange range) {
        return tile >= range.first && tile <= range.last;
    });
}

constexpr std::array<TileRange, 5> kOpen = {{{0, 0}, {2, 2}, {5, 5}, {36, 37}, {48, 53}}};
constexpr std::array<TileRange, 2> kShallow = {{{3, 3}, {76, 77}}};
constexpr std::array<TileRange, 1> kSwamp = {{{63, 65}}};
constexpr std::array<TileRange, 2> kMarsh = {{{12, 14}, {63, 65}}};
constexpr std::array<TileRange, 4> kWoodland = {{{15, 17}, {30, 35}, {54, 61}, {72, 75}}};
constexpr std::array<TileRange, 2> kBuilding = {{{39, 41}, {84, 89}}};
constexpr std::array<TileRange, 3> kPalisade = {{{53, 69}, {104, 104}, {123, 141}}};

bool Between(int tile, int first, int last) {
    return tile >= first && tile <= last;
}

std::string_view WordsForOpen(int groundTile) {
    if (Between(groundTile, 36, 53)) return "     Sand";
    if (Between(groundTile, 72, 107)) return "  Frozen Ground";
    return "     Clear";
}

struct GroundWords {
    bool (*is)(const GroundCell&);
    std::string_view words;
    std::string_view bridged;  // words instead where a road crosses the water
};

bool IsPlainMarsh(const GroundCell& cell) {
    return IsMarsh(cell) && !IsSwamp(cell);
}
bool IsNamedBuilding(const GroundCell& cell) {
    constexpr int kUnnamedBuilding = 41;
    return IsBuilding(cell) && cell.terrainTile != kUnnamedBuilding;
}

constexpr GroundWords kGroundWords[] = {
    {IsField, "     Field", {}},
    {IsShallow, "  Shallow Water", "    Bridge"},
    {IsLake, "     Lake/Sea", {}},
    {IsSwamp, "     Swamp", {}},
    {IsPlainMarsh, "     Marsh", {}},
    {IsOrchard, "     Orchard", {}},
    {IsRough, "     Rough", {}},
    {IsWoodland, "   Woodlands", {}},
    {IsRiver, "     River", "    Bridge"},
    {IsVillage, "     Village", {}},
    {IsVineyard, "    Vineyards", {}},
    {IsForest, "     Forest", {}},
    {IsNamedBuilding, "     Building", {}},
    {IsImpassable, "   Impassable", {}},
    {IsRocks, "     Rocks", {}},
    {IsTower, "   Tower", {}},
    {IsTents, "    Tents", {}},
};

}  // namespace

bool IsOpen(const GroundCell& cell) {
    return IsIn(cell.terrainTile, kOpen);
}
bool IsField(const GroundCell& cell) {
    return cell.terrainTile == 1;
}
bool IsShallow(const GroundCell& cell) {
    return IsIn(cell.terrainTile, kShallow);
}
bool IsLake(const GroundCell& cell) {
    return cell.terrainTile == 4;
}
bool IsOrchard(const GroundCell& cell) {
    return Between(cell.terrainTile, 6, 8);
}
bool IsRough(const GroundCell& cell) {
    return Between(cell.terrainTile, 9, 11);
}
bool IsSwamp(const GroundCell& cell) {
    return IsIn(cell.terrainTile, kSwamp);
}
bool IsMarsh(const GroundCell& cell) {
    return IsIn(cell.terrainTile, kMarsh);
}
bool IsWoodland(const GroundCell& cell) {
    return IsIn(cell.terrainTile, kWoodland);
}
bool IsRiver(const GroundCell& cell) {
    return Between(cell.terrainTile, 18, 23);
}
bool IsVillage(const GroundCell& cell) {
    return Between(cell.terrainTile, 24, 26);
}
bool IsVineyard(const GroundCell& cell) {
    return Between(cell.terrainTile, 27, 29);
}
bool IsForest(const GroundCell& cell) {
    return Between(cell.terrainTile, 42, 47);
}
bool IsBuilding(const GroundCell& cell) {
    return IsIn(cell.terrainTile, kBuilding);
}
bool IsImpassable(const GroundCell& cell) {
    return cell.terrainTile == 38;
}
bool IsRocks(const GroundCell& cell) {
    return Between(cell.terrainTile, 66, 71);
}
bool IsTower(const GroundCell& cell) {
    return cell.terrainTile == 86;
}
bool IsTents(const GroundCell& cell) {
    return Between(cell.terrainTile, 99, 101);
}
bool HasPalisade(const GroundCell& cell) {
    return IsIn(cell.overlayTile, kPalisade);
}
bool IsBurning(const PlayCell& cell) {
    return cell.roadTile == kFire;
}

bool IsDense(const GroundCell& cell) {
    return IsForest(cell) || IsVillage(cell) || IsBuilding(cell) || IsOrchard(cell) ||
           IsRocks(cell);
}

bool IsBuiltUp(const GroundCell& cell) {
    return IsVillage(cell) || IsBuilding(cell) || IsForest(cell);
}

bool IsNotOpen(const GroundCell& cell) {
    return !IsOpen(cell);
}

int CountSlotsThat(const Game& game, const AreaSlots& slots, bool (*test)(const GroundCell&)) {
    const auto count = std::count_if(slots.begin(), slots.end(), [&](Cell slot) {
        return game.grid.Holds(slot) && test(game.grid.Ground(slot));
    });
    return static_cast<int>(count);
}

int CountCloseSlots(Game& game) {
    return game.state.closeSlots = CountSlotsThat(game, game.state.currentAreaSlots, IsNotOpen);
}

int CountDenseSlots(Game& game) {
    return game.state.closeSlots = CountSlotsThat(game, game.state.currentAreaSlots, IsDense);
}

int CountBuiltUpSlots(Game& game) {
    return game.state.closeSlots = CountSlotsThat(game, game.state.currentAreaSlots, IsBuiltUp);
}

std::string DescribeTerrain(const Game& game, Cell cell) {
    const GroundCell& ground = game.grid.Ground(cell);
    std::string line = "Terrain :  ";
    if (HasPalisade(ground)) return line += "     Palisade";
    if (IsOpen(ground)) line += WordsForOpen(ground.groundTile);
    const bool bridged = game.grid.At(cell).roadTile != kNoRoad;
    for (const GroundWords& entry : kGroundWords) {
        if (!entry.is(ground)) continue;
        line += bridged && !entry.bridged.empty() ? entry.bridged : entry.words;
    }
    return line;
}

}  // namespace varnstride
