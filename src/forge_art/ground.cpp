#include "forge_art/ground.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "forge_art/chance.h"
#include "forge_art/color.h"
#include "forge_art/hex_shape.h"
#include "model/tile_sheets.h"

namespace varnstride::art {
namespace {

constexpr int kTilesPerSheet = 72;
constexpr int kBands = kGroundTiles / kGroundTilesPerBand;
constexpr int kRoadMarkBand = 11;
constexpr double kFringe = 3.4;

// How the six pictures of a band differ: three of grass, three of crops in furrows.
struct Cover {
    const char* crop;  // colour of the crop; empty for grass
    double cropShare;  // how much of it covers the ground
    int furrowAcross;  // furrows run where across * x + down * y is a multiple of the period
    int furrowDown;
    int furrowPeriod;
    double furrowDepth;
};

// Furrows must repeat with the cells, (32,0) and (16,32), or fields would not join.
constexpr std::array<Cover, kGroundTilesPerBand> kCovers = {{
    {"", 0, 0, 0, 1, 0},
    {"", 0, 0, 0, 1, 0},
    {"", 0, 0, 0, 1, 0},
    {"crop.rye", 0.62, 1, 1, 4, 0.10},
    {"crop.green", 0.52, 1, 2, 8, 0.10},
    {"crop.fallow", 0.50, 1, -1, 4, 0.09},
}};

bool HasCrops(int band) {
    constexpr int kFirstSand = 6;
    constexpr int kLastFrozen = 17;
    return band < kFirstSand || band > kLastFrozen;
}

// A soft patch of lighter or darker wash that fades before the cell ends.
struct Patch {
    double x, y, radius, strength;
};

std::array<Patch, 5> PatchesOf(Chance& chance) {
    std::array<Patch, 5> patches;
    for (Patch& patch : patches) {
        patch = {chance.Between(-10, 10), chance.Between(-14, 14), chance.Between(5, 9),
                 chance.Between(-1, 1)};
    }
    return patches;
}

double WashAt(const std::array<Patch, 5>& patches, int x, int y) {
    double wash = 0;
    for (const Patch& patch : patches) {
        const double distance = std::hypot(x - patch.x, y - patch.y) / patch.radius;
        if (distance < 1) wash += patch.strength * (1 - distance * distance);
    }
    return std::clamp(wash, -1.0, 1.0);
}

// How far the ragged border reaches over the cells drawn before, at a pixel.
double FringeAt(int x, int y, std::uint32_t salt) {
    return kFringe * (0.65 * NoiseAt(x / 3, y / 3, salt) + 0.35 * NoiseAt(x, y, salt + 1));
}

bool IsCovered(int x, int y, bool ragged, std::uint32_t salt) {
    if (kNormalHex.Contains(x, y)) return true;
    if (!ragged) return false;
    const double later =
        std::max({kNormalHex.Beyond(kEast, x, y), kNormalHex.Beyond(kSouthEast, x, y),
                  kNormalHex.Beyond(kSouthWest, x, y)});
    return later <= 0 && kNormalHex.Beyond(x, y) < FringeAt(x, y, salt);
}

// Folds a number into 0 to period - 1.
int Folded(int value, int period) {
    return (value % period + period) % period;
}

class GroundPainter {
 public:
    GroundPainter(const Studio& studio, int number)
        : palette_(studio.palette),
          band_(number / kGroundTilesPerBand),
          cover_(kCovers[HasCrops(band_) ? static_cast<std::size_t>(number % kGroundTilesPerBand)
                                         : 0]),
          base_(BandColor(studio, band_)),
          salt_(static_cast<std::uint32_t>(number) + 1),
          chance_(salt_) {}

    // Tile 0 keeps to its cell: the extent of the map and the mouse map are taken from it.
    Tile Paint() {
        const bool ragged = salt_ != 1;
        const auto patches = PatchesOf(chance_);
        Tile tile(QRect(-22, -27, 40, 50));
        for (int y = -27; y < kNormalHex.Bottom(); ++y) {
            for (int x = -22; x < 18; ++x) {
                if (!IsCovered(x, y, ragged, salt_)) continue;
                tile.Set(x, y, ColorAt(x, y, WashAt(patches, x, y)));
            }
        }
        if (cover_.cropShare == 0) AddTufts(tile);
        return tile;
    }

 private:
    QRgb ColorAt(int x, int y, double wash) const {
        constexpr double kWashDepth = 0.022;
        constexpr double kGrain = 0.026;
        QRgb color = base_;
        double light = 1 + wash * kWashDepth + (NoiseAt(x, y, salt_ + 7) - 0.5) * kGrain;
        if (cover_.cropShare > 0) {
            color = Mix(base_, palette_[cover_.crop], cover_.cropShare);
            light += FurrowLight(x, y);
        }
        return Scaled(color, light);
    }

    double FurrowLight(int x, int y) const {
        const int place =
            Folded(cover_.furrowAcross * x + cover_.furrowDown * y, cover_.furrowPeriod);
        if (place == 0) return -cover_.furrowDepth;
        return place == 1 ? cover_.furrowDepth * 0.35 : 0;
    }

    // Small strokes of the pen where grass stands higher.
    void AddTufts(Tile& tile) {
        const int count = chance_.Below(4);
        for (int i = 0; i < count; ++i) {
            const int x = chance_.Below(24) - 12;
            const int y = chance_.Below(28) - 14;
            const QRgb stroke = Scaled(base_, chance_.Between(0.84, 0.90));
            tile.Set(x, y, stroke);
            tile.Set(x + 1, y - 1, stroke);
            tile.Set(x - 1, y - 1, stroke);
            if (chance_.OneIn(2)) tile.Set(x + 3, y, Scaled(base_, 0.9));
        }
    }

    const Palette& palette_;
    int band_;
    Cover cover_;
    QRgb base_;
    std::uint32_t salt_;
    Chance chance_;
};

Tile PaintSmallCell(QRgb base, std::uint32_t salt) {
    Tile tile(QRect(-8, kSmallHex.Top(), 16, kSmallHex.Bottom() - kSmallHex.Top()));
    for (int y = kSmallHex.Top(); y < kSmallHex.Bottom(); ++y) {
        for (int x = -8; x < 8; ++x) {
            if (!kSmallHex.Contains(x, y)) continue;
            tile.Set(x, y, Scaled(base, 0.985 + 0.03 * NoiseAt(x, y, salt)));
        }
    }
    return tile;
}

// The mark stands for a bridge whichever way it runs.
Tile PaintRoadMark(const Palette& palette) {
    Tile tile(QRect(-4, -4, 8, 8));
    for (int y = -4; y < 4; ++y) {
        for (int x = -4; x < 4; ++x) {
            const bool isCorner = std::abs(x + 0.5) + std::abs(y + 0.5) > 6;
            const bool isEdge = std::abs(x + 0.5) + std::abs(y + 0.5) > 4;
            if (!isCorner) tile.Set(x, y, palette[isEdge ? "road.edge" : "road.paved"]);
        }
    }
    return tile;
}

}  // namespace

QRgb BandColor(const Studio& studio, int band) {
    constexpr int kFirstSand = 6;
    constexpr int kFirstDry = 9;
    constexpr int kFirstFrozen = 12;
    constexpr int kFirstAgain = 18;
    const auto color = [&](const char* kind, int step) {
        return studio.palette[std::string("ground.") + kind + std::to_string(step)];
    };
    if (band >= kFirstAgain) return color("meadow.", band - kFirstAgain);
    if (band >= kFirstFrozen) return color("frozen.", band - kFirstFrozen);
    if (band >= kFirstDry) return color("dry.", band - kFirstDry);
    if (band >= kFirstSand) return color("sand.", band - kFirstSand);
    return color("meadow.", band);
}

std::vector<Tile> PaintGround(const Studio& studio, int first) {
    std::vector<Tile> tiles;
    for (int i = 0; i < kTilesPerSheet; ++i)
        tiles.push_back(GroundPainter(studio, first + i).Paint());
    return tiles;
}

std::vector<Tile> PaintSmallGround(const Studio& studio) {
    std::vector<Tile> tiles;
    for (int band = 0; band < kBands; ++band) {
        tiles.push_back(band == kRoadMarkBand ? PaintRoadMark(studio.palette)
                                              : PaintSmallCell(BandColor(studio, band),
                                                               static_cast<std::uint32_t>(band)));
    }
    return tiles;
}

}  // namespace varnstride::art
