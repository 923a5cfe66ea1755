// How long a frame of the normal view takes on a map of 120 x 92 cells that has something in every
// layer: the tiles drawn one by one, beside the same tiles drawn by another library and beside the
// bare copying of as many pixels; and a frame from the kept picture.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <random>

#include "bench/sdl_tiles.h"
#include "display/map_screen.h"
#include "display/marks.h"
#include "display/unit_pass.h"
#include "files/settings_file.h"
#include "support/field.h"

namespace varnstride {
namespace {

struct Screen {
    int width;
    int height;
};
constexpr Screen kFullHd{1920, 1080};
constexpr Screen kUltraHd{3840, 2160};

// 121 x 92 cells, the last column of which is never drawn; terrain, roads and the rest as thick as
// on a battlefield with many woods.
FieldPlan CrowdedPlan() {
    FieldPlan plan;
    plan.columns = 15;
    plan.rows = 4;
    plan.areaHeight = 23;
    plan.paint = [chance = std::mt19937(1815)](Cell at, MapCell& cell) mutable {
        const auto below = [&](int count) { return static_cast<int>(chance() % count); };
        constexpr int kOpenFields = 6;
        cell.groundTile = (at.x / 20 + at.y / 20) % 9 * kGroundTilesPerBand + below(6);
        cell.terrainTile = below(2) == 0 ? kNoTerrainPicture : below(kTerrainTiles);
        cell.featureTile = below(kOpenFields) == 0 ? below(kFeatureTiles) : 0;
        cell.overlayTile = below(3) == 0 ? below(kOverlayTiles) : kNoOverlay;
        cell.roadTile = below(kOpenFields) == 0 ? below(kRoadTiles) : kNoRoad;
        cell.objective = below(60) == 0 ? below(kObjectiveTiles) : 0;
        cell.labelIndex = below(400) == 0 ? 1 : 0;
    };
    return plan;
}

class CrowdedScene {
 public:
    explicit CrowdedScene(Screen screen)
        : art(VARNSTRIDE_DATA),
          field(CrowdedPlan()),
          view(art, ViewKind::Normal, field.game.grid, MapSpace(screen.width, screen.height)),
          frame(screen.width, screen.height) {
        Game& game = field.game;
        game.settings = DefaultSettings();
        game.settings.cellOutline = 1;
        game.header.fogNone = 1;
        std::strcpy(game.labels[1].labelText.data(), "Quatre Bras");
        for (int area = 1; area <= game.atlas->AreaCount(); ++area) {
            for (int slot = 1; slot <= kSlotsPerSide; ++slot) {
                field.Add(kFrench, area, slot, MakeUnit(UnitType::LineInfantry));
                field.Add(kPrussian, area, slot, MakeUnit(UnitType::Lancers));
            }
        }
        game.grid.FinishPictures();
        ShadeHalf();
        view.ScrollTo({40, 20}, true);
        ListTiles();
    }

    // Every other area, as a reach leaves it.
    void ShadeHalf() {
        Grid& grid = field.game.grid;
        grid.ShadeAll();
        AreaSet lit;
        for (int area = 1; area <= field.game.atlas->AreaCount(); area += 2)
            lit.Add(area);
        grid.Light(lit);
    }

    Rect Clip() const { return view.Scroll().screenSpace; }
    Point Shift() const { return view.Scroll().WorldToScreen({}); }

    Art art;
    Field field;
    MapView view;
    Surface frame;
    TileList tiles;  // still layers, units, marks

 private:
    void ListTiles() {
        const Rect shown = view.Scroll().Shown();
        const auto cells = [&](const Rect& reach) {
            return CellsThatReach(view.Plot(), reach, shown, DrawnCells(field.game.grid));
        };
        const auto add = [&](const TileList& more) {
            tiles.insert(tiles.end(), more.begin(), more.end());
        };
        add(StillTiles(field.game, art, ViewKind::Normal, view.Plot(),
                       cells(LayerReach(art, ViewKind::Normal))));
        add(UnitTiles(field.game, art, ViewKind::Normal, view.Plot()));
        add(MarkTiles(field.game, art, ViewKind::Normal, view.Plot(),
                      cells(MarkReach(art, ViewKind::Normal))));
    }
};

void CountPixels(benchmark::State& state, std::size_t pixels) {
    state.counters["pixels"] = static_cast<double>(pixels);
}

// The opaque pixels that the tiles lay down, those that later ones cover included.
std::size_t PixelsOf(const CrowdedScene& scene) {
    std::size_t pixels = 0;
    for (const PlacedTile& placed : scene.tiles) {
        if (!placed.set->Has(placed.tile)) continue;
        const Rect area = placed.set->At(placed.tile).destination.Moved(placed.at + scene.Shift());
        const Surface picture = placed.set->PictureOf(placed.tile);
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                const bool opaque = picture.At(x, y) != placed.set->Key();
                pixels += opaque && scene.Clip().Holds(area.TopLeft() + Point{x, y}) ? 1 : 0;
            }
        }
    }
    return pixels;
}

void DrawnTiles(benchmark::State& state, Screen screen) {
    CrowdedScene scene(screen);
    for (auto _ : state) {
        DrawTiles(scene.tiles, scene.frame, scene.Clip(), scene.Shift());
        benchmark::ClobberMemory();
    }
    CountPixels(state, PixelsOf(scene));
}

void SdlDrawnTiles(benchmark::State& state, Screen screen) {
    CrowdedScene scene(screen);
    const SdlTiles tiles(scene.tiles);
    const SdlSurface target = SdlTiles::MakeTarget(screen.width, screen.height);
    for (auto _ : state) {
        tiles.Draw(scene.tiles, target.get(), scene.Clip(), scene.Shift());
        benchmark::ClobberMemory();
    }
    DrawTiles(scene.tiles, scene.frame, scene.Clip(), scene.Shift());
    if (!(SdlTiles::Picture(target.get()) == scene.frame))
        state.SkipWithError("the two pictures differ");
}

// As many pixels as the tiles lay down, copied by rows of a tile.
void CopiedPixels(benchmark::State& state, Screen screen) {
    CrowdedScene scene(screen);
    constexpr std::size_t kRow = 32;
    const std::size_t pixels = PixelsOf(scene);
    const std::size_t room = static_cast<std::size_t>(screen.width * screen.height) - kRow;
    const Surface from(screen.width, screen.height, kWhite);
    for (auto _ : state) {
        for (std::size_t copied = 0; copied < pixels; copied += kRow) {
            std::memcpy(scene.frame.Row(0) + copied % room, from.Row(0) + copied % room,
                        kRow * sizeof(Pixel));
        }
        benchmark::ClobberMemory();
    }
}

// Another frame in which nothing of the still layers has changed, scrolled a little.
void KeptFrame(benchmark::State& state, Screen screen) {
    CrowdedScene scene(screen);
    WorldPicture picture(scene.art, ViewKind::Normal, scene.view.Plot());
    int way = 8;
    for (auto _ : state) {
        scene.view.ScrollBy(0, way = -way, true);
        DrawScene(scene.field.game, scene.art, scene.view, picture, scene.frame);
        benchmark::ClobberMemory();
    }
}

// A frame after a unit has been taken in hand: all shade is another.
void FrameAfterShading(benchmark::State& state, Screen screen) {
    CrowdedScene scene(screen);
    WorldPicture picture(scene.art, ViewKind::Normal, scene.view.Plot());
    bool lit = false;
    for (auto _ : state) {
        lit = !lit;
        if (lit) {
            scene.field.game.grid.LightAll();
        } else {
            scene.field.game.grid.ShadeAll();
        }
        DrawScene(scene.field.game, scene.art, scene.view, picture, scene.frame);
        benchmark::ClobberMemory();
    }
}

BENCHMARK_CAPTURE(DrawnTiles, ours, kFullHd)->Name("1920 x 1080/tiles");
BENCHMARK_CAPTURE(SdlDrawnTiles, sdl, kFullHd)->Name("1920 x 1080/sdl");
BENCHMARK_CAPTURE(CopiedPixels, copied, kFullHd)->Name("1920 x 1080/copy");
BENCHMARK_CAPTURE(KeptFrame, kept, kFullHd)->Name("1920 x 1080/frame");
BENCHMARK_CAPTURE(FrameAfterShading, shading, kFullHd)->Name("1920 x 1080/shaded");
BENCHMARK_CAPTURE(DrawnTiles, ours, kUltraHd)->Name("3840 x 2160/tiles");
BENCHMARK_CAPTURE(SdlDrawnTiles, sdl, kUltraHd)->Name("3840 x 2160/sdl");
BENCHMARK_CAPTURE(CopiedPixels, copied, kUltraHd)->Name("3840 x 2160/copy");
BENCHMARK_CAPTURE(KeptFrame, kept, kUltraHd)->Name("3840 x 2160/frame");
BENCHMARK_CAPTURE(FrameAfterShading, shading, kUltraHd)->Name("3840 x 2160/shaded");

}  // namespace
}  // namespace varnstride
