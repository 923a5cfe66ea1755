#include "display/mini_map.h"

#include <array>
#include <span>

#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr Pixel kBoxColor = MakePixel(255, 0, 0);
constexpr int kMargin = 16;  // pixels to the right of and below the cells
constexpr int kObjectiveTile = 32;

struct TileRange {
    int first;
    int last;
    int mini;
};

// Rules in their order: a later one that fits overwrites an earlier one.
constexpr std::array<TileRange, 19> kTerrainRules = {{
    // terrainTile   mini tile
    {4, 4, 29},   {12, 14, 25}, {63, 65, 25}, {15, 17, 27}, {30, 35, 27},
    {42, 47, 27}, {54, 62, 27}, {72, 75, 27}, {24, 26, 26}, {6, 8, 24},
    {36, 41, 28}, {79, 89, 28}, {98, 98, 28}, {27, 29, 24}, {18, 23, 29},
    {66, 71, 17}, {0, 2, 4},    {3, 3, 25},   {76, 77, 25},
}};
constexpr TileRange kRoadPieces[] = {{3, 3, 11}, {8, 10, 11}};
constexpr TileRange kLateTerrainRules[] = {{84, 85, 30}, {90, 97, 31}, {99, 101, 26}};

void Apply(std::span<const TileRange> rules, int number, int& mini) {
    for (const TileRange& rule : rules) {
        if (number >= rule.first && number <= rule.last) mini = rule.mini;
    }
}

// Height bands of six ground tiles; they begin again behind the eighteenth.
int GroundTileOf(int groundTile) {
    constexpr int kSecondStart = 108;
    return (groundTile < kSecondStart ? groundTile : groundTile - kSecondStart) /
           kGroundTilesPerBand;
}

// By occupant; 0 for one that is not shown.
constexpr std::array<int, kArmyCount + 1> kUnitTiles = {0, 19, 18, 23, 20, 21, 22, 0};

bool HidesUnits(const Game& game, Cell cell) {
    const int terrain = game.grid.Ground(cell).terrainTile;
    return terrain >= 90 && terrain <= 97 && game.grid.At(cell).occupantMirror <= 0;
}

bool IsSeen(const Game& game, Cell cell, int army) {
    if (SideOf(army) == game.OwnSide()) return true;
    const UnitId standing = UnitStandingAt(game, cell);
    return standing && standing.army == army &&
           (game.header.fogNone == 1 || game.At(standing).visible == 1);
}

constexpr std::string_view kNeeds768 =
    "Jump Map will not display if screen resolution less than 1024 x 768";

struct RoomRow {
    int screenHeight;  // above it
    int mapHeight;     // below it
};
constexpr RoomRow kRooms[] = {{580, 102}, {760, 152}, {790, 162}};

struct RefusalRow {
    int firstHeight;  // of the screen
    int lastHeight;
    int mapHeight;  // above it
    std::string_view text;
};
constexpr RefusalRow kRefusals[] = {
    {0, 609, 100, kNeeds768},
    {610, 767, 150, "Jump Map will not display if screen resolution less than 1280 x 800"},
    {768, 798, 160, "Jump Map will not display if screen resolution less than 1280 x 1024"},
};

}  // namespace

int MiniTileOf(const Game& game, Cell cell) {
    const GroundCell& ground = game.grid.Ground(cell);
    const PlayCell& play = game.grid.At(cell);
    int mini = GroundTileOf(ground.groundTile);
    Apply(kTerrainRules, ground.terrainTile, mini);
    Apply(kRoadPieces, play.roadTile, mini);
    Apply(kLateTerrainRules, ground.terrainTile, mini);
    if (play.occupant > 0 && !HidesUnits(game, cell) && IsSeen(game, cell, play.occupant - 1)) {
        const int unit = kUnitTiles[static_cast<std::size_t>(play.occupant)];
        if (unit > 0) mini = unit;
    }
    return ground.objective > 0 ? kObjectiveTile : mini;
}

void MiniMap::Build(const Game& game) {
    width_ = game.grid.Width();
    height_ = game.grid.Height();
    cells_.assign(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), {});
    for (int y = 0; y < height_; ++y) {
        for (int x = 1; x + 1 < width_; ++x) {
            const GroundCell& ground = game.grid.Ground({x, y});
            cells_[static_cast<std::size_t>(y * width_ + x)] = {
                MiniTileOf(game, {x, y}), ground.overlayTile, ground.featureTile};
        }
    }
    const Rect cellRect = art_.At(Sheet::MiniGround).At(0).destination;
    scroller_.screenSpace = {0, 0, width_ * 4 + kMargin, height_ * 4 + kMargin};
    scroller_.worldSpace = WorldOf(plotter_, cellRect, width_, height_);
    scroller_.anchor = scroller_.worldSpace.TopLeft();
    surface_ = Surface(scroller_.screenSpace.Width(), scroller_.screenSpace.Height());
}

void MiniMap::DrawCells() {
    for (int y = 0; y < height_; ++y) {
        for (int x = 1; x + 1 < width_; ++x) {
            const MiniCell& cell = cells_[static_cast<std::size_t>(y * width_ + x)];
            const Point at = scroller_.WorldToScreen(plotter_.PlotCell({x, y}));
            const auto draw = [&](Sheet sheet, int tile) {
                DrawTile(art_.At(sheet), surface_, surface_.Bounds(), at, tile);
            };
            draw(Sheet::MiniGround, cell.base);
            if (cell.edge > 0) draw(Sheet::MiniEdges, cell.edge);
            if (cell.road > 0) draw(Sheet::MiniRoads, cell.road);
        }
    }
}

void MiniMap::DrawViewBox(const MapView& view, int screenWidth) {
    constexpr int kNarrowScreen = 1200;
    constexpr int kWideScreen = 1500;
    constexpr int kScale = 8;  // of the normal view to this one
    constexpr int kBoxShift = 20;
    if (view.Kind() != ViewKind::Normal || screenWidth <= kNarrowScreen) return;
    const bool wide = screenWidth >= kWideScreen;
    const Point size = wide ? Point{210, 150} : Point{166, 120};
    const Point anchor = view.Scroll().anchor;
    const Point corner = Point{anchor.x / kScale, anchor.y / kScale} -
                         scroller_.worldSpace.TopLeft() + Point{0, kBoxShift};
    DrawOutline(surface_, {corner.x, corner.y, corner.x + size.x, corner.y + size.y}, kBoxColor);
}

void MiniMap::Draw(const MapView& view, int screenWidth, Surface& frame, Point target) {
    Fill(surface_, surface_.Bounds(), kBlack);
    DrawCells();
    DrawViewBox(view, screenWidth);
    Copy(surface_, {0, 0, width_ * 4 + kMargin / 2, height_ * 4 + kMargin}, frame, target);
}

std::optional<Cell> JumpCell(Point point, const Grid& grid) {
    if (point.x <= 5 || point.x >= grid.Width() * 8) return std::nullopt;
    if (point.y <= 80 || point.y >= grid.Height() * 8) return std::nullopt;
    return Cell{(point.x - 10) / 4, (point.y - 85) / 4};
}

JumpMapRoom RoomForJumpMap(int screenHeight, int mapHeight) {
    for (const RoomRow& room : kRooms) {
        if (screenHeight > room.screenHeight && mapHeight < room.mapHeight) return {};
    }
    for (const RefusalRow& row : kRefusals) {
        if (screenHeight >= row.firstHeight && screenHeight <= row.lastHeight &&
            mapHeight > row.mapHeight) {
            return {false, row.text};
        }
    }
    return {false, {}};
}

std::string_view JumpMapKeyWarning(int screenHeight, int mapHeight) {
    return screenHeight < 768 && mapHeight > 100 ? kNeeds768 : std::string_view{};
}

}  // namespace varnstride
