#include "display/map_layers.h"

#include <array>
#include <span>

namespace varnstride {
namespace {

constexpr int kFirstFrozen = 72;
constexpr int kLastFrozen = 107;
constexpr int kOutlineTile = 1;
constexpr int kRoadMarker = 11;  // of the small ground sheet

bool HasRoadMarker(int roadTile) {
    return roadTile == 3 || (roadTile >= 8 && roadTile <= 10);
}

// Lists the layers of one cell.
class CellLayers {
 public:
    CellLayers(const Art& art, const LayerOptions& options, TileList& tiles)
        : art_(art), options_(options), tiles_(tiles) {}

    void Begin(const CellLook& look, Point at) {
        look_ = look;
        at_ = at;
    }

    void AddFloor() {
        AddGround();
        if (look_.feature != 0) Add(Sheet::Features, look_.feature);
        if (look_.overlay != kNoOverlay) Add(Sheet::Overlays, look_.overlay);
        if (options_.outline) Add(Sheet::Outline, kOutlineTile);
    }

    // Smoke does not show on shaded ground.
    void AddTerrain() {
        const bool frozen = look_.ground >= kFirstFrozen && look_.ground <= kLastFrozen;
        if (look_.terrain != kNoTerrainPicture)
            Add(frozen ? Sheet::FrozenTerrain : Sheet::Terrain, look_.terrain);
        const bool hidden = look_.shade != 0 && look_.road == kSmoke;
        if (look_.road != kNoRoad && !hidden) Add(Sheet::RoadPieces, look_.road);
        if (look_.shade != 0) Add(Sheet::Shade, look_.shade);
    }

    void AddBorder() { Add(Sheet::Borders, options_.contours ? look_.border : 0); }

    void AddSmall() {
        Add(Sheet::SmallGround, look_.ground / kGroundTilesPerBand);
        if (look_.overlay != kNoOverlay) Add(Sheet::SmallOverlays, look_.overlay);
        if (look_.feature != 0) Add(Sheet::SmallFeatures, look_.feature);
        if (look_.terrain != kNoTerrainPicture) Add(Sheet::SmallTerrain, look_.terrain);
        if (HasRoadMarker(look_.road)) Add(Sheet::SmallGround, kRoadMarker);
        if (look_.shade != 0) Add(Sheet::SmallShade, look_.shade);
        if (options_.objectives && look_.objective != 0)
            Add(Sheet::SmallObjectives, look_.objective);
        if (options_.outline) Add(Sheet::SmallOutline, kOutlineTile);
        Add(Sheet::SmallBorders, options_.contours ? look_.border : 0);
    }

 private:
    void AddGround() {
        if (look_.ground >= kGroundTiles) return;
        const bool high = look_.ground >= kGroundSheetTiles;
        Add(high ? Sheet::HighGround : Sheet::Ground,
            look_.ground - (high ? kGroundSheetTiles : 0));
    }
    void Add(Sheet sheet, int tile) { tiles_.push_back({&art_.At(sheet), tile, at_}); }

    const Art& art_;
    const LayerOptions options_;
    TileList& tiles_;
    CellLook look_;
    Point at_;
};

using Layers = void (CellLayers::*)();
constexpr std::array<Layers, 3> kNormalPasses = {&CellLayers::AddFloor, &CellLayers::AddTerrain,
                                                 &CellLayers::AddBorder};
constexpr std::array<Layers, 1> kZoomOutPasses = {&CellLayers::AddSmall};

std::span<const Layers> PassesOf(ViewKind view) {
    if (view == ViewKind::Normal) return kNormalPasses;
    return kZoomOutPasses;
}

constexpr std::array kNormalSheets = {
    Sheet::Ground,        Sheet::HighGround, Sheet::Features,   Sheet::Overlays, Sheet::Terrain,
    Sheet::FrozenTerrain, Sheet::Outline,    Sheet::RoadPieces, Sheet::Shade,    Sheet::Borders};
constexpr std::array kZoomOutSheets = {
    Sheet::SmallGround, Sheet::SmallOverlays, Sheet::SmallFeatures,   Sheet::SmallTerrain,
    Sheet::SmallShade,  Sheet::SmallOutline,  Sheet::SmallObjectives, Sheet::SmallBorders};

std::span<const Sheet> SheetsOf(ViewKind view) {
    if (view == ViewKind::Normal) return kNormalSheets;
    return kZoomOutSheets;
}

}  // namespace

CellLook LookOf(const Game& game, Cell cell) {
    const GroundCell& ground = game.grid.Ground(cell);
    return {
        ground.terrainTile,          ground.groundTile,     ground.overlayTile, ground.featureTile,
        game.grid.At(cell).roadTile, game.grid.Shade(cell), ground.borderTile,  ground.objective};
}

LayerOptions OptionsOf(const Settings& settings) {
    return {settings.areaContours != 0, settings.cellOutline == 1, settings.showObjectives == 1,
            settings.showLocations == 1};
}

CellRange DrawnCells(const Grid& grid) {
    return {{0, 0}, {grid.Width() - 2, grid.Height() - 1}};
}

Rect LayerReach(const Art& art, ViewKind view) {
    Rect reach;
    for (const Sheet sheet : SheetsOf(view))
        reach = Union(reach, art.At(sheet).Reach());
    return reach;
}

TileList StillTiles(const Game& game, const Art& art, ViewKind view, const Plotter& plotter,
                    const CellRange& cells) {
    TileList tiles;
    CellLayers layers(art, OptionsOf(game.settings), tiles);
    for (const Layers pass : PassesOf(view)) {
        for (int y = cells.first.y; y <= cells.last.y; ++y) {
            for (int x = cells.first.x; x <= cells.last.x; ++x) {
                layers.Begin(LookOf(game, {x, y}), plotter.PlotCell({x, y}));
                (layers.*pass)();
            }
        }
    }
    return tiles;
}

}  // namespace varnstride
