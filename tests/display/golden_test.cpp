// Whole pictures with painted art: a made-up field that has something in every layer, the Gilly
// map, the jump map and the strip over the map.
#include <gtest/gtest.h>

#include "atlases/built_in.h"
#include "display/golden_picture.h"
#include "display/map_screen.h"
#include "display/painted_art.h"
#include "display/top_bar_picture.h"
#include "files/battle_file.h"
#include "files/settings_file.h"
#include "model/units_on_map.h"
#include "support/field.h"

namespace varnstride {
namespace {

const Art& PaintedArt() {
    static const Art art = PaintArt();
    return art;
}

Surface Draw(const Game& game, const Rect& space, Cell corner) {
    MapView view(PaintedArt(), ViewOf(game.settings), game.grid, space);
    view.ScrollTo(view.Plot().PlotCell(corner), true);
    WorldPicture picture(PaintedArt(), view.Kind(), view.Plot());
    Surface frame(space.right, space.bottom, MakePixel(90, 0, 90));
    DrawScene(game, PaintedArt(), view, picture, frame);
    return frame;
}

// Rows of ground bands, columns of terrain; roads, overlays, smoke, objectives and labels between.
FieldPlan PatchworkPlan() {
    FieldPlan plan;
    plan.rows = 3;
    plan.paint = [](Cell at, MapCell& cell) {
        cell.groundTile = at.y * 8 % kGroundTiles;
        if (at.x % 3 == 1) cell.terrainTile = at.x + at.y;
        if (at.x % 4 == 2) cell.featureTile = 1 + at.y;
        if (at.y % 4 == 3) cell.overlayTile = at.x;
        if (at.x % 5 == 3 && at.y % 3 == 0) cell.roadTile = at.y % 2 == 0 ? kSmoke : 9;
        if (at == Cell{6, 4}) cell.objective = 4;
        if (at == Cell{3, 3}) cell.labelIndex = 1;
        if (at == Cell{4, 10}) cell.labelIndex = 2;
    };
    return plan;
}

void Name(Game& game, std::size_t label, std::string_view text, int row, int block) {
    std::copy(text.begin(), text.end(), game.labels[label].labelText.begin());
    game.labels[label].labelStyleRow = row;
    game.labels[label].labelStyleBlock = block;
}

class Patchwork : public testing::Test {
 protected:
    Patchwork() : field(PatchworkPlan()), game(field.game) {
        game.settings = DefaultSettings();
        game.settings.quickResults = 1;
        game.header.fogNone = 1;
        game.grid.FinishPictures();
        game.grid.ShadeAll();
        AreaSet lit;
        lit.Add(1);
        lit.Add(5);
        game.grid.Light(lit);
        Name(game, 1, "Quatre Bras", 0, 0);
        Name(game, 2, "Mont [St Jean] 7", 1, 1);
        field.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
        field.Add(kFrench, 4, 2, MakeUnit(UnitType::Leader));
        field.Add(kPrussian, 1, 2, MakeUnit(UnitType::Lancers));
        field.Add(kBritish, 5, 1, MakeUnit(UnitType::MediumCavalry));
        game.grid.At({3, 1}).highlight = 1;
        game.grid.At({5, 4}).moveMark = 42;
    }

    Field field;
    Game& game;
};

TEST_F(Patchwork, LooksAsItDidInTheNormalView) {
    ExpectGolden(Draw(game, {7, 9, 327, 289}, {1, 0}), "patchwork_normal");
}

TEST_F(Patchwork, LooksAsItDidOnBasesWithoutContours) {
    game.settings.showUnitBases = 1;
    game.settings.areaContours = game.settings.showLocations = game.settings.showObjectives = 0;
    game.settings.cellOutline = 1;
    ExpectGolden(Draw(game, {0, 0, 200, 200}, {2, 2}), "patchwork_bases");
}

TEST_F(Patchwork, LooksAsItDidInTheZoomOutView) {
    game.settings.mapView = 2;
    ExpectGolden(Draw(game, {7, 9, 307, 209}, {1, 0}), "patchwork_zoomed_out");
}

TEST_F(Patchwork, HasItsJumpMapAndItsStrip) {
    game.state.miniMapShown = 1;
    game.settings.mapView = 1;
    MapScreen screen(PaintedArt(), 1300, 300);
    screen.SetUp(game);
    Surface picture(300, 240);
    Copy(screen.Draw(game), {0, 60, 300, 260}, picture, {0, 40});
    game.Army(kFrench).commandPoints = 137;
    DrawTopBarPicture(game, nullptr, picture);
    ExpectGolden(picture, "patchwork_jump_map");
}

// Every pixel of the canvas tells where it lies on it.
TEST_F(Patchwork, CopiesTheStripFromItsCanvas) {
    Surface canvas(300, 240);
    for (int y = 0; y < canvas.Height(); ++y) {
        for (int x = 0; x < canvas.Width(); ++x)
            canvas.At(x, y) = MakePixel(x & 255, y, x >> 8);
    }
    game.header.majorDefeatLimit = -20;
    game.header.minorDefeatLimit = -10;
    game.header.minorVictoryLimit = 10;
    game.header.majorVictoryLimit = 20;
    game.header.firstPlayer = kBritish;
    const struct {
        int army, points, score;
        Point word, sign, firstDigit;
        bool hasSign;
    } cases[] = {
        {kFrench, 7, -20, {87, 64}, {0, 182}, {143, 128}, true},
        {kBritish, 42, 10, {126, 85}, {57, 182}, {83, 147}, true},
        {kPrussian, 120, -15, {126, 106}, {142, 182}, {43, 167}, true},
        {kFrench, 0, 0, {167, 64}, {}, {3, 128}, false},
    };
    for (const auto& each : cases) {
        game.state.currentArmy = each.army;
        game.Army(each.army).commandPoints = each.points;
        game.state.victoryScore = each.score;
        Surface strip(kTopBarWidth, kTopBarHeight, kWhite);
        DrawTopBarPicture(game, &canvas, strip);
        EXPECT_EQ(strip.At(400, 5), canvas.At(each.word.x, each.word.y)) << each.army;
        EXPECT_EQ(strip.At(165, 9), canvas.At(each.firstDigit.x, each.firstDigit.y)) << each.army;
        EXPECT_EQ(strip.At(450, 6) == canvas.At(each.sign.x, each.sign.y), each.hasSign);
    }
}

class Gilly : public testing::Test {
 protected:
    Gilly() : game(BuiltInAtlases(), person) {
        const std::string path = std::string(VARNSTRIDE_SCENARIOS) + "/gilly_rearguard.scn";
        const Result<BattleFile> file = ReadBattleFile(path, BuiltInAtlases());
        EXPECT_TRUE(file.Ok()) << (file.Ok() ? "" : file.Message());
        if (!file.Ok()) return;
        PutIntoGame(file.Get(), FileKind::Scenario, game);
        FindStandingUnits(game, 0);
        game.settings = DefaultSettings();
        game.grid.LightPlayable();
        game.grid.FinishPictures();
    }

    SilentPerson person;
    Game game;
};

TEST_F(Gilly, LooksAsItDidInTheNormalView) {
    ExpectGolden(Draw(game, {0, 0, 360, 280}, {6, 43}), "gilly_normal");
}

TEST_F(Gilly, LooksAsItDidInTheZoomOutView) {
    game.settings.mapView = 2;
    ExpectGolden(Draw(game, {0, 0, 360, 280}, {1, 35}), "gilly_zoomed_out");
}

}  // namespace
}  // namespace varnstride
