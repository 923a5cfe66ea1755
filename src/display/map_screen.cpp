#include "display/map_screen.h"

#include "display/labels.h"
#include "display/marks.h"
#include "display/unit_pass.h"

namespace varnstride {
namespace {

void DrawLabels(const Game& game, const Art& art, const MapView& view, const Rect& clip,
                Surface& frame) {
    for (const PlacedLabel& placed : PlacedLabels(game)) {
        DrawLabel(*art.Canvas(kLabelCanvas), frame, clip, view.CellToScreen(placed.cell),
                  game.labels[static_cast<std::size_t>(placed.label)]);
    }
}

}  // namespace

ViewKind ViewOf(const Settings& settings) {
    return settings.mapView == static_cast<int>(ViewKind::ZoomOut) ? ViewKind::ZoomOut
                                                                   : ViewKind::Normal;
}

void DrawScene(const Game& game, const Art& art, const MapView& view, WorldPicture& picture,
               Surface& frame) {
    const Scroller& scroll = view.Scroll();
    const Rect clip = Intersection(scroll.screenSpace, frame.Bounds());
    if (clip.IsEmpty()) return;
    const Rect shown = clip.Moved(scroll.ScreenToWorld({}));
    picture.Show(game, shown, frame, clip.TopLeft());
    const auto draw = [&](const TileList& tiles) {
        DrawTiles(tiles, frame, clip, scroll.WorldToScreen({}));
    };
    if (game.state.unitsOff == 0) draw(UnitTiles(game, art, view.Kind(), view.Plot()));
    const CellRange marked =
        CellsThatReach(view.Plot(), MarkReach(art, view.Kind()), shown, DrawnCells(game.grid));
    draw(MarkTiles(game, art, view.Kind(), view.Plot(), marked));
    if (view.Kind() == ViewKind::ZoomOut && game.settings.showLocations == 1)
        DrawLabels(game, art, view, clip, frame);
}

MapScreen::MapScreen(const Art& art, int clientWidth, int clientHeight)
    : art_(art), frame_(clientWidth, clientHeight), miniMap_(art) {
}

void MapScreen::SetUp(const Game& game) {
    view_.emplace(art_, ViewOf(game.settings), game.grid,
                  MapSpace(frame_.Width(), frame_.Height()));
    picture_.emplace(art_, view_->Kind(), view_->Plot());
    miniMapBuilt_ = false;
}

void MapScreen::Resize(int clientWidth, int clientHeight) {
    frame_ = Surface(clientWidth, clientHeight);
    if (view_) view_->SetScreenSpace(MapSpace(clientWidth, clientHeight));
}

const Surface& MapScreen::Draw(const Game& game) {
    if (!view_ || game.grid.Width() == 0) {
        Fill(frame_, frame_.Bounds(), kBlack);
        return frame_;
    }
    if (!view_->IsFor(ViewOf(game.settings), game.grid)) SetUp(game);
    DrawScene(game, art_, *view_, *picture_, frame_);
    DrawMiniMap(game);
    return frame_;
}

std::optional<Cell> MapScreen::CellAt(Point point, const Game& game) const {
    if (!view_) return std::nullopt;
    return game.grid.Clamped(view_->ScreenToCell(point));
}

void MapScreen::DrawMiniMap(const Game& game) {
    if (game.state.miniMapShown != 1) {
        miniMapBuilt_ = false;
        return;
    }
    if (!miniMapBuilt_) miniMap_.Build(game);
    miniMapBuilt_ = true;
    miniMap_.Draw(*view_, frame_.Width(), frame_, view_->Scroll().screenSpace.TopLeft());
}

}  // namespace varnstride
