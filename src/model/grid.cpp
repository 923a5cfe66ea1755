#include "model/grid.h"

#include <algorithm>
#include <array>

#include "model/atlas.h"
#include "model/tile_sheets.h"

namespace varnstride {
namespace {

AreaMembership MembershipOf(int width, int height, const std::vector<GroundCell>& ground,
                            const Atlas& atlas) {
    AreaMembership membership;
    membership.areasOf.resize(ground.size());
    membership.areaOf.resize(ground.size());
    membership.cellsOf.resize(static_cast<std::size_t>(atlas.AreaCount()) + 1);
    for (int ordinal = 1; ordinal <= atlas.AreaCount(); ++ordinal) {
        const AreaRow& row = atlas.Row(ordinal);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const auto index = static_cast<std::size_t>(y * width + x);
                if (ground[index].areaId != row.areaId || !row.Holds({x, y})) continue;
                membership.areasOf[index].Add(ordinal);
                membership.areaOf[index] = static_cast<std::uint8_t>(ordinal);
                if (x + 1 < width) {
                    membership.cellsOf[static_cast<std::size_t>(ordinal)].push_back({x, y});
                }
            }
        }
    }
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto index = static_cast<std::size_t>(y * width + x);
            if (ground[index].objective != 0) membership.objectives.push_back({x, y});
        }
    }
    return membership;
}

constexpr std::array<int, 64> BorderTiles() {
    std::array<int, 64> tiles{};
    for (std::size_t tile = 0; tile < kPicturedBorders.size(); ++tile) {
        tiles[static_cast<std::size_t>(kPicturedBorders[tile])] = static_cast<int>(tile);
    }
    return tiles;
}
constexpr std::array<int, 64> kTileOfPattern = BorderTiles();

constexpr Direction kBorderBits[6] = {Direction::West, Direction::NorthWest, Direction::NorthEast,
                                      Direction::East, Direction::SouthEast, Direction::SouthWest};

int BorderTileOf(const Grid& grid, Cell cell) {
    unsigned pattern = 0;
    for (Direction side : kBorderBits) {
        const Cell neighbour = Step(cell, side);
        const bool compared = neighbour.x >= 1 && neighbour.x < grid.Width() && neighbour.y >= 0 &&
                              neighbour.y < grid.Height() - 1;
        const bool differs = compared && grid.Ground(neighbour).areaId != grid.Ground(cell).areaId;
        pattern = pattern << 1 | (differs ? 1U : 0U);
    }
    return kTileOfPattern[pattern];
}

constexpr int kFirstPlainedTile = 48;
constexpr int kLastPlainedTile = 53;

}  // namespace

Grid::Grid(int width, int height, const std::vector<MapCell>& cells, const Atlas& atlas)
    : width_(width), height_(height) {
    std::vector<GroundCell> ground;
    std::vector<int> shade;
    ground.reserve(cells.size());
    shade.reserve(cells.size());
    play_.reserve(cells.size());
    for (const MapCell& cell : cells) {
        ground.push_back({cell.terrainTile, cell.groundTile, cell.overlayTile, cell.objective,
                          cell.areaId, cell.featureTile, cell.labelIndex, cell.borderTile});
        play_.push_back({cell.occupant, cell.occupantMirror, cell.moveMark, cell.selected,
                         cell.highlight, cell.roadTile});
        shade.push_back(cell.shade);
    }
    standing_.resize(cells.size());
    membership_ = std::make_shared<AreaMembership>(MembershipOf(width, height, ground, atlas));
    ground_ = std::make_shared<std::vector<GroundCell>>(std::move(ground));
    shadeAsRead_ = std::make_shared<std::vector<int>>(std::move(shade));
}

Cell Grid::Clamped(Cell cell) const {
    return {std::clamp(cell.x, 1, width_ - 2), std::clamp(cell.y, 0, height_ - 1)};
}

MapCell Grid::Whole(Cell cell) const {
    const GroundCell& ground = Ground(cell);
    const PlayCell& play = At(cell);
    return {play.occupant,      ground.terrainTile, ground.groundTile,   ground.overlayTile,
            Shade(cell),        play.moveMark,      play.selected,       play.highlight,
            ground.objective,   ground.areaId,      play.occupantMirror, play.roadTile,
            ground.featureTile, ground.labelIndex,  ground.borderTile};
}

int Grid::Shade(Cell cell) const {
    const bool last = cell.x == width_ - 1;
    if (!last && membership_->areasOf[Index(cell)].Meets(lit_)) return 0;
    switch (last ? lastColumn_ : tone_) {
        case Tone::Lit: return 0;
        case Tone::Shaded: return 1;
        case Tone::AsRead: break;
    }
    return (*shadeAsRead_)[Index(cell)];
}

void Grid::LightPlayable() {
    tone_ = Tone::Lit;
    lit_ = {};
}

void Grid::ShadePlayable() {
    tone_ = Tone::Shaded;
    lit_ = {};
}

void Grid::LightAll() {
    LightPlayable();
    lastColumn_ = Tone::Lit;
}

void Grid::ShadeAll() {
    ShadePlayable();
    lastColumn_ = Tone::Shaded;
}

void Grid::FinishPictures() {
    std::vector<GroundCell> ground = *ground_;
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            GroundCell& cell = ground[Index({x, y})];
            if (cell.terrainTile >= kFirstPlainedTile && cell.terrainTile <= kLastPlainedTile) {
                cell.terrainTile = kNoTerrainPicture;
            }
            if (x + 1 < width_ && y + 1 < height_) cell.borderTile = BorderTileOf(*this, {x, y});
        }
    }
    ground_ = std::make_shared<std::vector<GroundCell>>(std::move(ground));
}

}  // namespace varnstride
