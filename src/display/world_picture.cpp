#include "display/world_picture.h"

namespace varnstride {
namespace {

constexpr int kBlockSize = 512;          // pixels, either way
constexpr std::size_t kMostBlocks = 96;  // of a megabyte each; beyond, those out of view go

Rect BlockArea(std::pair<int, int> place) {
    const Point corner{place.second * kBlockSize, place.first * kBlockSize};
    return {corner.x, corner.y, corner.x + kBlockSize, corner.y + kBlockSize};
}

// Calls visit(place) for every block that an area touches, by rows.
template <typename Visit>
void ForEachBlock(const Rect& area, Visit visit) {
    for (int y = FloorDivide(area.top, kBlockSize); y * kBlockSize < area.bottom; ++y) {
        for (int x = FloorDivide(area.left, kBlockSize); x * kBlockSize < area.right; ++x)
            visit(std::pair{y, x});
    }
}

bool AreSame(const MapLabel& a, const MapLabel& b) {
    return a.labelText == b.labelText && a.labelStyleRow == b.labelStyleRow &&
           a.labelStyleBlock == b.labelStyleBlock;
}

}  // namespace

WorldPicture::WorldPicture(const Art& art, ViewKind view, const Plotter& plotter)
    : art_(art), view_(view), plotter_(plotter), reach_(LayerReach(art, view)) {
}

void WorldPicture::Show(const Game& game, const Rect& world, Surface& frame, Point target) {
    blocksDrawn_ = 0;
    if (world.IsEmpty()) return;
    ForgetIfAllChanged(game);
    NoteChanges(game, world);
    ForEachBlock(world, [&](Place place) {
        const Block& block = UpToDate(game, place);
        const Rect area = BlockArea(place);
        const Rect seen = Intersection(area, world);
        Copy(block.pixels, seen.Moved(Point{} - area.TopLeft()), frame,
             target + seen.TopLeft() - world.TopLeft());
    });
    DropUnseen(world);
}

void WorldPicture::ForgetIfAllChanged(const Game& game) {
    const LayerOptions options = OptionsOf(game.settings);
    const bool sameMap = game.grid.Width() == width_ && game.grid.Height() == height_;
    std::vector<PlacedLabel> placed = PlacedLabels(game);
    const bool sameLabels = placed == labelsPlaced_ && std::equal(labels_.begin(), labels_.end(),
                                                                  game.labels.begin(), AreSame);
    if (sameMap && sameLabels && options == options_) return;
    labelsPlaced_ = std::move(placed);
    width_ = game.grid.Width();
    height_ = game.grid.Height();
    options_ = options;
    labels_ = game.labels;
    blocks_.clear();
    looks_.assign(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), CellLook{});
}

// Only cells that can show in the view are compared; the blocks out of view keep showing what
// looks_ says of the others.
void WorldPicture::NoteChanges(const Game& game, const Rect& world) {
    const Rect blocks{FloorDivide(world.left, kBlockSize) * kBlockSize,
                      FloorDivide(world.top, kBlockSize) * kBlockSize,
                      (FloorDivide(world.right, kBlockSize) + 1) * kBlockSize,
                      (FloorDivide(world.bottom, kBlockSize) + 1) * kBlockSize};
    const CellRange cells = CellsThatReach(plotter_, reach_, blocks, DrawnCells(game.grid));
    for (int y = cells.first.y; y <= cells.last.y; ++y) {
        for (int x = cells.first.x; x <= cells.last.x; ++x) {
            CellLook& shown =
                looks_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                       static_cast<std::size_t>(x)];
            const CellLook look = LookOf(game, {x, y});
            if (look == shown) continue;
            shown = look;
            MakeStale(reach_.Moved(plotter_.PlotCell({x, y})));
        }
    }
}

void WorldPicture::MakeStale(const Rect& area) {
    ForEachBlock(area, [&](Place place) {
        const auto found = blocks_.find(place);
        if (found == blocks_.end()) return;
        Rect& stale = found->second.stale;
        stale = Union(stale, Intersection(area, BlockArea(place)));
    });
}

WorldPicture::Block& WorldPicture::UpToDate(const Game& game, Place place) {
    const Rect area = BlockArea(place);
    const auto [found, isNew] = blocks_.try_emplace(place);
    Block& block = found->second;
    if (isNew) block = {Surface(kBlockSize, kBlockSize), area};
    if (block.stale.IsEmpty()) return block;
    Draw(game, block.stale, block, Point{} - area.TopLeft());
    block.stale = {};
    ++blocksDrawn_;
    return block;
}

void WorldPicture::Draw(const Game& game, const Rect& area, Block& block, Point shift) const {
    const Rect clip = area.Moved(shift);
    Fill(block.pixels, clip, kBlack);
    const CellRange cells = CellsThatReach(plotter_, reach_, area, DrawnCells(game.grid));
    DrawTiles(StillTiles(game, art_, view_, plotter_, cells), block.pixels, clip, shift);
    if (view_ == ViewKind::Normal && options_.labels) DrawLabels(game, area, block.pixels, shift);
}

// In the zoom-out view labels lie over the units and are no still layer.
void WorldPicture::DrawLabels(const Game& game, const Rect& area, Surface& surface,
                              Point shift) const {
    for (const PlacedLabel& placed : labelsPlaced_) {
        DrawLabel(*art_.Canvas(kLabelCanvas), surface, area.Moved(shift),
                  plotter_.PlotCell(placed.cell) + shift,
                  game.labels[static_cast<std::size_t>(placed.label)]);
    }
}

void WorldPicture::DropUnseen(const Rect& world) {
    if (blocks_.size() <= kMostBlocks) return;
    std::erase_if(blocks_, [&](const auto& entry) {
        return Intersection(BlockArea(entry.first), world).IsEmpty();
    });
}

}  // namespace varnstride
