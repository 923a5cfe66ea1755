// The order of the layers, what the options switch, and that the kept picture of the still layers
// never shows anything that is no longer so.
#include <gtest/gtest.h>

#include <random>

#include "display/map_layers.h"
#include "display/map_screen.h"
#include "display/marks.h"
#include "display/painted_art.h"
#include "support/field.h"

namespace varnstride {
namespace {

using Numbers = std::vector<std::pair<Sheet, int>>;

// The tiles as sheet and number, for art that is asked nothing else.
Numbers NumbersOf(const Art& art, const TileList& tiles) {
    Numbers numbers;
    for (const PlacedTile& placed : tiles) {
        for (std::size_t sheet = 0; sheet < kSheetCount; ++sheet) {
            if (placed.set == &art.At(static_cast<Sheet>(sheet)))
                numbers.emplace_back(static_cast<Sheet>(sheet), placed.tile);
        }
    }
    return numbers;
}

// A field whose cell (2, 1) is painted, with every option off.
class Scene {
 public:
    explicit Scene(const MapCell& painted) : field(PlanOf(painted)) {
        field.game.settings = {};
        field.game.settings.mapView = 1;
        field.game.grid.LightAll();
    }

    Numbers Still(ViewKind view) { return NumbersOf(art, TilesOf(view, {{2, 1}, {2, 1}})); }
    TileList TilesOf(ViewKind view, const CellRange& cells) {
        return StillTiles(field.game, art, view, {32, 64}, cells);
    }
    Numbers Marks(ViewKind view) {
        return NumbersOf(art,
                         MarkTiles(field.game, art, view, {32, 64}, DrawnCells(field.game.grid)));
    }

    Field field;
    Art art;

 private:
    static FieldPlan PlanOf(const MapCell& painted) {
        FieldPlan plan;
        plan.paint = [painted](Cell cell, MapCell& made) {
            const int areaId = made.areaId;
            if (cell == Cell{2, 1}) made = painted;
            made.areaId = areaId;
        };
        return plan;
    }
};

TEST(NormalView, LaysTheLayersOfACellInTheirOrder) {
    MapCell cell{.terrainTile = 12, .groundTile = 30, .overlayTile = 7, .objective = 3};
    cell.featureTile = 9;
    cell.roadTile = 11;
    cell.borderTile = 4;
    Scene scene(cell);
    scene.field.game.settings.areaContours = scene.field.game.settings.cellOutline = 1;
    scene.field.game.grid.ShadeAll();
    EXPECT_EQ(scene.Still(ViewKind::Normal), (Numbers{{Sheet::Ground, 30},
                                                      {Sheet::Features, 9},
                                                      {Sheet::Overlays, 7},
                                                      {Sheet::Outline, 1},
                                                      {Sheet::Terrain, 12},
                                                      {Sheet::RoadPieces, 11},
                                                      {Sheet::Shade, 1},
                                                      {Sheet::Borders, 4}}));
    EXPECT_EQ(scene.Still(ViewKind::ZoomOut), (Numbers{{Sheet::SmallGround, 5},
                                                       {Sheet::SmallOverlays, 7},
                                                       {Sheet::SmallFeatures, 9},
                                                       {Sheet::SmallTerrain, 12},
                                                       {Sheet::SmallShade, 1},
                                                       {Sheet::SmallOutline, 1},
                                                       {Sheet::SmallBorders, 4}}));
    scene.field.game.settings.showObjectives = 1;
    EXPECT_EQ(scene.Still(ViewKind::ZoomOut)[5], (std::pair{Sheet::SmallObjectives, 3}));
    EXPECT_EQ(scene.Marks(ViewKind::Normal), (Numbers{{Sheet::Objectives, 3}}));
    EXPECT_EQ(scene.Marks(ViewKind::ZoomOut), Numbers{});
}

TEST(NormalView, FinishesTheFloorOfAllCellsBeforeTheirTerrain) {
    Scene scene({.terrainTile = 1, .groundTile = 2});
    const TileList tiles = scene.TilesOf(ViewKind::Normal, {{2, 1}, {3, 2}});
    ASSERT_EQ(NumbersOf(scene.art, tiles), (Numbers{{Sheet::Ground, 2},
                                                    {Sheet::Ground, 0},
                                                    {Sheet::Ground, 0},
                                                    {Sheet::Ground, 0},
                                                    {Sheet::Terrain, 1},
                                                    {Sheet::Borders, 0},
                                                    {Sheet::Borders, 0},
                                                    {Sheet::Borders, 0},
                                                    {Sheet::Borders, 0}}));
    const Point places[] = {{80, 32}, {112, 32}, {64, 64}, {96, 64}};
    for (std::size_t cell = 0; cell < 4; ++cell)
        EXPECT_TRUE(tiles[cell].at == places[cell]) << cell;
}

TEST(StillLayers, FollowTheNumbersOfTheCell) {
    const struct {
        const char* name;
        int ground;
        int terrain;
        int road;
        bool shaded;
        Numbers normal;
        Numbers zoomedOut;
    } cases[] = {
        {"high ground",
         100 + 8,
         5,
         20,
         false,
         {{Sheet::HighGround, 36}},
         {{Sheet::SmallGround, 18}}},
        {"no such ground", 144, 5, 20, false, {}, {{Sheet::SmallGround, 24}}},
        {"frozen, first",
         72,
         9,
         20,
         false,
         {{Sheet::HighGround, 0}, {Sheet::FrozenTerrain, 9}},
         {{Sheet::SmallGround, 12}, {Sheet::SmallTerrain, 9}}},
        {"frozen, last",
         107,
         9,
         20,
         false,
         {{Sheet::HighGround, 35}, {Sheet::FrozenTerrain, 9}},
         {{Sheet::SmallGround, 17}, {Sheet::SmallTerrain, 9}}},
        {"thawed",
         108,
         9,
         20,
         false,
         {{Sheet::HighGround, 36}, {Sheet::Terrain, 9}},
         {{Sheet::SmallGround, 18}, {Sheet::SmallTerrain, 9}}},
        {"smoke",
         0,
         5,
         1,
         false,
         {{Sheet::Ground, 0}, {Sheet::RoadPieces, 1}},
         {{Sheet::SmallGround, 0}}},
        {"smoke in the shade",
         0,
         5,
         1,
         true,
         {{Sheet::Ground, 0}, {Sheet::Shade, 1}},
         {{Sheet::SmallGround, 0}, {Sheet::SmallShade, 1}}},
        {"fire in the shade",
         0,
         5,
         7,
         true,
         {{Sheet::Ground, 0}, {Sheet::RoadPieces, 7}, {Sheet::Shade, 1}},
         {{Sheet::SmallGround, 0}, {Sheet::SmallShade, 1}}},
        {"a road marker",
         0,
         5,
         8,
         false,
         {{Sheet::Ground, 0}, {Sheet::RoadPieces, 8}},
         {{Sheet::SmallGround, 0}, {Sheet::SmallGround, 11}}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        MapCell cell{.terrainTile = each.terrain, .groundTile = each.ground};
        cell.roadTile = each.road;
        Scene scene(cell);
        if (each.shaded) scene.field.game.grid.ShadeAll();
        Numbers normal = each.normal;
        normal.emplace_back(Sheet::Borders, 0);
        Numbers zoomedOut = each.zoomedOut;
        zoomedOut.emplace_back(Sheet::SmallBorders, 0);
        EXPECT_EQ(scene.Still(ViewKind::Normal), normal);
        EXPECT_EQ(scene.Still(ViewKind::ZoomOut), zoomedOut);
    }
}

TEST(Marks, LieInTheirOrder) {
    Scene scene({.objective = 2});
    PlayCell& cell = scene.field.game.grid.At({2, 1});
    cell.highlight = 1;
    cell.moveMark = 17;
    EXPECT_EQ(scene.Marks(ViewKind::Normal), (Numbers{{Sheet::Highlight, 0}}));
    scene.field.game.settings.quickResults = scene.field.game.settings.showObjectives = 1;
    EXPECT_EQ(scene.Marks(ViewKind::Normal), (Numbers{{Sheet::Objectives, 2},
                                                      {Sheet::Highlight, 0},
                                                      {Sheet::Losses, 0},
                                                      {Sheet::Losses, 17}}));
    EXPECT_EQ(scene.Marks(ViewKind::ZoomOut), (Numbers{{Sheet::SmallHighlight, 0}}));
}

// A map with something everywhere, wider and higher than the view.
FieldPlan CrowdedPlan(unsigned seed) {
    FieldPlan plan;
    plan.columns = 6;
    plan.rows = 6;
    plan.paint = [engine = std::mt19937(seed)](Cell, MapCell& cell) mutable {
        const auto below = [&](int count) { return static_cast<int>(engine() % count); };
        cell.groundTile = below(kGroundTiles);
        cell.terrainTile = below(3) == 0 ? below(kTerrainTiles) : kNoTerrainPicture;
        cell.overlayTile = below(4) == 0 ? below(kOverlayTiles) : kNoOverlay;
        cell.featureTile = below(4) == 0 ? below(kFeatureTiles) : 0;
        cell.objective = below(20) == 0 ? below(kObjectiveTiles) : 0;
        cell.labelIndex = below(80) == 0 ? 1 + below(3) : 0;
    };
    return plan;
}

void Name(Game& game, std::size_t label, const char* text) {
    std::copy_n(text, std::char_traits<char>::length(text) + 1,
                game.labels[label].labelText.begin());
}

void ChangeSomething(Game& game, std::mt19937& engine) {
    const auto below = [&](int count) { return static_cast<int>(engine() % count); };
    const Cell cell{below(game.grid.Width()), below(game.grid.Height())};
    AreaSet area;
    area.Add(1 + below(game.atlas->AreaCount()));
    constexpr int Settings::*kOptions[] = {&Settings::areaContours, &Settings::showLocations,
                                           &Settings::cellOutline, &Settings::showObjectives};
    switch (below(8)) {
        case 0: game.grid.ShadeAll(); break;
        case 1: game.grid.LightAll(); break;
        case 2:
        case 3: game.grid.Light(area); break;
        case 4:
            Name(game, 1 + static_cast<std::size_t>(below(3)), below(2) ? "Frasnes" : "Gembloux");
            break;
        case 5: game.settings.*kOptions[below(4)] ^= 1; break;
        default: game.grid.At(cell).roadTile = below(kRoadTiles); break;
    }
}

TEST(WorldPicture, ShowsWhatDrawingAfreshWouldShow) {
    const Art art = PaintArt();
    Field field(CrowdedPlan(11));
    Game& game = field.game;
    std::mt19937 engine(12);
    for (const ViewKind kind : {ViewKind::Normal, ViewKind::ZoomOut}) {
        game.settings.mapView = static_cast<int>(kind);
        MapView view(art, kind, game.grid, {10, 20, 320, 260});
        WorldPicture kept(art, kind, view.Plot());
        for (int round = 0; round < 30; ++round) {
            for (int change = static_cast<int>(engine() % 4); change > 0; --change)
                ChangeSomething(game, engine);
            view.ScrollTo({static_cast<int>(engine() % 1600), static_cast<int>(engine() % 1300)},
                          round % 5 != 0);
            Surface frame(330, 270, kWhite);
            Surface expected = frame;
            DrawScene(game, art, view, kept, frame);
            WorldPicture fresh(art, kind, view.Plot());
            DrawScene(game, art, view, fresh, expected);
            ASSERT_EQ(frame, expected) << "round " << round;
        }
    }
}

// The same scene without blocks and without leaving out what is not seen.
TEST(WorldPicture, LosesNothingAtTheEdgesOfItsBlocks) {
    const Art art = PaintArt();
    Field field(CrowdedPlan(13));
    Game& game = field.game;
    game.settings.areaContours = 1;
    for (const ViewKind kind : {ViewKind::Normal, ViewKind::ZoomOut}) {
        game.settings.mapView = static_cast<int>(kind);
        const MapView view(art, kind, game.grid, {0, 0, 1600, 1300});
        const Rect world = view.Scroll().worldSpace;
        Surface expected(world.Width(), world.Height());
        DrawTiles(StillTiles(game, art, kind, view.Plot(), DrawnCells(game.grid)), expected,
                  expected.Bounds(), Point{} - world.TopLeft());
        Surface shown(world.Width(), world.Height(), kWhite);
        WorldPicture(art, kind, view.Plot()).Show(game, world, shown, {0, 0});
        EXPECT_EQ(shown, expected);
    }
}

TEST(WorldPicture, DrawsOnlyWhatChanged) {
    const Art art = PaintArt();
    Field field(CrowdedPlan(14));
    MapView view(art, ViewKind::Normal, field.game.grid, {0, 0, 1100, 900});
    WorldPicture picture(art, ViewKind::Normal, view.Plot());
    const auto blocksDrawn = [&] {
        Surface frame(1100, 900);
        picture.Show(field.game, view.Scroll().Shown(), frame, {0, 0});
        return picture.BlocksDrawn();
    };
    EXPECT_EQ(blocksDrawn(), 6);
    EXPECT_EQ(blocksDrawn(), 0);
    field.game.grid.At({8, 8}).roadTile = 3;
    EXPECT_EQ(blocksDrawn(), 1);
}

}  // namespace
}  // namespace varnstride
