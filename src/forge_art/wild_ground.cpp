#include "forge_art/wild_ground.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "forge_art/chance.h"
#include "forge_art/color.h"
#include "forge_art/plate.h"
#include "forge_art/trees.h"

namespace varnstride::art {
namespace {

QRect RoomOf(const HexShape& hex) {
    return QRect(-hex.width / 2 - 6, hex.Top() - 6, hex.width + 12, hex.Bottom() - hex.Top() + 12);
}

double ScaleOf(const HexShape& hex) {
    return hex.width / 32.0;
}

// Three blades from one root.
void DrawReed(Tile& tile, int x, int y, QRgb color, int height) {
    for (int i = 0; i < height; ++i) {
        tile.Set(x, y - i, color);
        if (i > 0) tile.Set(x - 1 - i / 3, y - i, color);
        if (i > 1) tile.Set(x + 1 + i / 3, y - i, color);
    }
}

// A stroke of water: light above, dark below, pointed at both ends.
void DrawPool(Tile& tile, const Palette& palette, int x, int y, int half) {
    for (int i = -half; i <= half; ++i) {
        tile.Set(x + i, y, palette["water.stream"]);
        if (std::abs(i) < half - 1) {
            tile.Set(x + i, y - 1, palette["water.edge"]);
            tile.Set(x + i, y + 1, palette["water.gleam"]);
        }
    }
}

// Furrows that join from cell to cell and let roads shine through.
void PutFurrows(Tile& tile, const Palette& palette, const HexShape& hex) {
    for (int y = hex.Top(); y < hex.Bottom(); ++y) {
        for (int x = -hex.width / 2; x < hex.width / 2; ++x) {
            if (!hex.Contains(x, y)) continue;
            const int place = ((x + y) % 4 + 4) % 4;
            if (place == 0) tile.Set(x, y, palette["crop.ear"]);
            if (place == 1) tile.Set(x, y, palette["crop.rye"]);
        }
    }
}

}  // namespace

Tile PaintMarsh(const Studio& studio, const HexShape& hex, bool isSwamp, int variant) {
    const Palette& palette = studio.palette;
    Tile tile(RoomOf(hex));
    Chance chance(static_cast<std::uint32_t>(variant) + (isSwamp ? 520 : 500));
    const int half = hex.width / 2;
    const int step = hex.width > 16 ? 7 : 5;
    for (int y = hex.Top() + 3; y < hex.Bottom() - 3; y += step) {
        for (int x = -half + chance.Below(6); x < half; x += chance.Below(6) + step + 2) {
            const int length = chance.Below(half / 5 + 1) + half / 5;
            if (!hex.Contains(x - length, y) || !hex.Contains(x + length, y)) continue;
            DrawPool(tile, palette, x, y, length);
            if (chance.OneIn(isSwamp ? 1 : 2)) {
                DrawReed(tile, x + chance.Below(3) - 1, y - 1, palette["reed"], half / 4);
            }
        }
    }
    if (!isSwamp) return tile;
    Plate plate(RoomOf(hex));
    const double reach = hex.width * 0.34;
    std::vector<Plant> plants;
    for (int i = 0; i < 4; ++i) {
        plants.push_back({chance.Between(-reach, reach), chance.Between(-reach, reach),
                          chance.Between(2.2, 3.4) * ScaleOf(hex), chance.Between(0.5, 1.0)});
    }
    DrawPlants(plate, palette, plants, chance);
    tile.Lay(plate.Pressed());
    return tile;
}

Tile PaintLake(const Studio& studio, const HexShape& hex) {
    Plate plate(RoomOf(hex));
    plate.Disc(0.5, 0.5, 8 * ScaleOf(hex), studio.palette["water.river"]);
    Tile tile = plate.Pressed();
    tile.Lay(PaintRipples(studio, hex, 7));
    return tile;
}

Tile PaintReeds(const Studio& studio, const HexShape& hex, int variant) {
    Tile tile(RoomOf(hex));
    Chance chance(static_cast<std::uint32_t>(variant) + 540);
    const int reach = hex.width / 4;
    for (int i = 0; i < 3; ++i) {
        const int x = chance.Below(2 * reach) - reach;
        const int y = chance.Below(2 * reach) - reach + 3;
        DrawReed(tile, x, y, studio.palette["reed"], hex.width > 16 ? 3 : 1);
    }
    return tile;
}

Tile PaintRipples(const Studio& studio, const HexShape& hex, int variant) {
    Tile tile(RoomOf(hex));
    Chance chance(static_cast<std::uint32_t>(variant) + 560);
    for (int i = 0; i < (hex.width > 16 ? 4 : 1); ++i) {
        const int x = chance.Below(10) - 5;
        const int y = chance.Below(8) - 4;
        const int length = 2 + chance.Below(3);
        for (int k = 0; k < length; ++k)
            tile.Set(x + k, y, studio.palette["water.gleam"]);
    }
    return tile;
}

Tile PaintRocks(const Studio& studio, const HexShape& hex, int variant) {
    const Palette& palette = studio.palette;
    Plate plate(RoomOf(hex));
    Chance chance(static_cast<std::uint32_t>(variant) + 580);
    const double scale = ScaleOf(hex);
    const double reach = hex.width * 0.36;
    std::vector<Plant> rocks;
    for (int i = 0; i < 9; ++i) {
        rocks.push_back({chance.Between(-reach, reach), chance.Between(-reach, reach * 1.1),
                         chance.Between(1.6, 3.8) * scale, 0});
    }
    std::stable_sort(rocks.begin(), rocks.end(),
                     [](const Plant& a, const Plant& b) { return a.y < b.y; });
    for (const Plant& rock : rocks) {
        const double x = rock.x, y = rock.y, r = rock.radius;
        plate.Oval(x + r * 0.5, y + r * 0.1, r * 1.1, r * 0.5, palette["shadow.ground"]);
        plate.Area({{x - r, y},
                    {x - r * 0.7, y - r},
                    {x + r * 0.1, y - r * 1.5},
                    {x + r * 0.9, y - r * 0.7},
                    {x + r, y + 0.2},
                    {x, y + r * 0.4}},
                   palette["rock.line"]);
        plate.Area({{x - r * 0.75, y - 0.1},
                    {x - r * 0.5, y - r * 0.9},
                    {x + r * 0.05, y - r * 1.2},
                    {x + r * 0.1, y + r * 0.1}},
                   palette["rock.light"]);
        plate.Area({{x + r * 0.1, y + r * 0.1},
                    {x + r * 0.05, y - r * 1.2},
                    {x + r * 0.7, y - r * 0.6},
                    {x + r * 0.75, y}},
                   palette["rock.shade"]);
    }
    return plate.Pressed();
}

Tile PaintQuarry(const Studio& studio, const HexShape& hex) {
    Plate plate(RoomOf(hex));
    const Palette& palette = studio.palette;
    const double scale = ScaleOf(hex);
    for (int ring = 0; ring < 3; ++ring) {
        const double reach = (14 - ring * 4.2) * scale;
        plate.Oval(0, 0, reach, reach * 0.92, palette["rock.line"]);
        plate.Oval(0.6 * scale, 0.9 * scale, reach - 0.9 * scale, reach * 0.92 - 0.9 * scale,
                   Mix(palette["rock.light"], palette["rock.shade"], 0.2 + ring * 0.3));
    }
    for (int i = 0; i < 22; ++i) {
        const double angle = i * 0.2856;
        const double x = std::cos(angle) * scale;
        const double y = std::sin(angle) * 0.92 * scale;
        plate.Line(x * 13.6, y * 13.6, x * 10.4, y * 10.4, 0.8 * scale, palette["rock.line"]);
    }
    return plate.Pressed();
}

Tile PaintSheaves(const Studio& studio, const HexShape& hex) {
    Tile tile(RoomOf(hex));
    if (hex.width < kNormalHex.width) {
        PutFurrows(tile, studio.palette, hex);
        return tile;
    }
    Chance chance(601);
    const int half = hex.width / 2;
    const int count = 9;
    for (int i = 0; i < count; ++i) {
        const int x = chance.Below(hex.width - 6) - half + 3;
        const int y = chance.Below(hex.rowStep - 4) - half + 2;
        tile.Set(x, y, studio.palette["crop.ear"]);
        tile.Set(x, y - 1, studio.palette["crop.ear"]);
        tile.Set(x + 1, y, studio.palette["crop.stalk"]);
    }
    return tile;
}

Tile PaintFlowers(const Studio& studio, const HexShape& hex, int variant) {
    Tile tile(RoomOf(hex));
    Chance chance(static_cast<std::uint32_t>(variant) + 620);
    const int reach = hex.width / 2 - 4;
    for (int i = 0; i < (hex.width > 16 ? 12 : 3); ++i) {
        const int x = chance.Below(2 * reach) - reach;
        const int y = chance.Below(2 * reach) - reach;
        const char* const color = chance.OneIn(3) ? "flower.red" : "flower.white";
        tile.Set(x, y, studio.palette[color]);
        tile.Set(x, y + 1, studio.palette["crop.green"]);
    }
    return tile;
}

}  // namespace varnstride::art
