#include "forge_art/title.h"

#include <cmath>

#include "forge_art/chance.h"
#include "forge_art/color.h"
#include "forge_art/emblems.h"
#include "forge_art/foot.h"
#include "forge_art/guns.h"
#include "forge_art/horse.h"
#include "forge_art/houses.h"
#include "forge_art/muster.h"
#include "forge_art/plate.h"
#include "forge_art/trees.h"

namespace varnstride::art {
namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr int kHorizon = 300;

double Wave(double x, double phase) {
    return std::sin(x * 0.011 + phase) * 14 + std::sin(x * 0.029 + phase * 2.3) * 5;
}

// A land of one colour from its crest down to the lower edge, lit along the crest.
void DrawRidge(Plate& plate, double top, double phase, QRgb color) {
    QPolygonF land;
    land << QPointF(0, kHeight);
    for (int x = 0; x <= kWidth; x += 4)
        land << QPointF(x, top + Wave(x, phase));
    land << QPointF(kWidth, kHeight);
    plate.Area(land, color);
    for (int x = 0; x < kWidth; x += 4) {
        plate.Line(x, top + Wave(x, phase) + 1, x + 4, top + Wave(x + 4, phase) + 1, 2.4,
                   Scaled(color, 1.08));
    }
}

void DrawSky(Plate& plate, const Palette& palette) {
    for (int y = 0; y < kHorizon + 40; ++y) {
        const double share = static_cast<double>(y) / (kHorizon + 40);
        plate.Box(0, y, kWidth, 1.3, Mix(palette["sky.high"], palette["sky.low"], share));
    }
    plate.Disc(610, 214, 42, palette["sky.sunhalo"]);
    plate.Disc(610, 214, 30, palette["sky.sun"]);
}

void DrawCloud(Plate& plate, Chance& chance, double x, double y, double size, QRgb light,
               QRgb shade) {
    for (int pass = 0; pass < 2; ++pass) {
        Chance same = chance;
        for (int i = 0; i < 11; ++i) {
            const double dx = same.Between(-1.6, 1.6) * size;
            const double dy = same.Between(-0.34, 0.34) * size;
            const double radius = same.Between(0.28, 0.6) * size * (1 - std::abs(dx) / size * 0.34);
            plate.Disc(x + dx - pass * size * 0.07, y + dy - pass * size * 0.1,
                       radius * (pass == 0 ? 1 : 0.84), pass == 0 ? shade : light);
        }
    }
    chance = Chance(static_cast<std::uint32_t>(x * 7 + y));
}

void DrawSmoke(Plate& plate, const Palette& palette) {
    Chance chance(1501);
    const double places[][3] = {
        {180, 352, 34}, {120, 340, 26}, {470, 346, 30}, {560, 356, 38}, {640, 342, 24}};
    for (const auto& place : places) {
        DrawCloud(plate, chance, place[0], place[1], place[2], palette["smoke.light"],
                  palette["smoke.shade"]);
    }
}

// Rows of corn that run towards the viewer.
void DrawFurrows(Plate& plate, const Palette& palette) {
    for (int i = -18; i <= 18; ++i) {
        const double far = 400 + i * 26.0;
        const double near = 400 + i * 74.0;
        plate.Line(far, 408 + Wave(far, 2.6), near, kHeight, 2.0 + std::abs(i % 3),
                   palette["title.furrow"]);
    }
}

void DrawVillage(Plate& plate, const Palette& palette) {
    Chance chance(1601);
    plate.Brush().save();
    plate.Brush().translate(330, 352);
    plate.Brush().scale(1.9, 1.9);
    DrawPlants(plate, palette,
               {{-44, -2, 5, 0.7}, {-36, 0, 4, 0.4}, {34, -2, 5, 0.8}, {42, 0, 4, 0.5}}, chance);
    DrawHouse(plate, palette, -24, 0, 12, Roof::Red);
    DrawGabledHouse(plate, palette, 22, 1, 9, Roof::Slate);
    DrawChurch(plate, palette, -2, 2);
    DrawHouse(plate, palette, 12, 6, 11, Roof::Red);
    DrawGabledHouse(plate, palette, -14, 7, 9, Roof::Red);
    plate.Brush().restore();
    plate.Brush().save();
    plate.Brush().translate(705, 322);
    plate.Brush().scale(2.2, 2.2);
    DrawWindmill(plate, palette, 0, 0);
    plate.Brush().restore();
}

Tile PaintScene(const Studio& studio) {
    const Palette& palette = studio.palette;
    Plate plate(QRect(0, 0, kWidth, kHeight));
    DrawSky(plate, palette);
    Chance chance(1401);
    DrawCloud(plate, chance, 150, 176, 54, palette["cloud.light"], palette["cloud.shade"]);
    DrawCloud(plate, chance, 440, 204, 38, palette["cloud.light"], palette["cloud.shade"]);
    DrawCloud(plate, chance, 730, 150, 48, palette["cloud.light"], palette["cloud.shade"]);
    DrawRidge(plate, kHorizon - 12, 0.4, palette["title.far"]);
    DrawRidge(plate, kHorizon + 18, 1.7, palette["title.middle"]);
    DrawVillage(plate, palette);
    DrawRidge(plate, 372, 4.1, palette["title.near"]);
    DrawSmoke(plate, palette);
    DrawRidge(plate, 404, 2.6, palette["title.corn"]);
    DrawFurrows(plate, palette);
    return plate.Pressed();
}

constexpr Troop Foot(std::string_view uniform, std::string_view head, Nation nation) {
    return {uniform, head, "", "", Arrangement::Line, Calibre::Medium, nation, true};
}

constexpr Troop Riders(std::string_view uniform, std::string_view head, std::string_view body,
                       std::string_view horses, Nation nation) {
    return {uniform, head, body, horses, Arrangement::Horse, Calibre::Medium, nation, false};
}

constexpr Troop kLigne = Foot("french.line", "shako", Nation::French);
constexpr Troop kGuard = Foot("french.guard", "bearskin", Nation::French);
constexpr Troop kRedcoats = Foot("british.line", "stovepipe", Nation::British);
constexpr Troop kPrussians = Foot("prussian.line", "covered", Nation::Prussian);
constexpr Troop kGunners = Foot("british.artillery", "stovepipe", Nation::British);
constexpr Troop kCuirassiers =
    Riders("french.cuirassier", "helmet", "cuirass", "black,brown,bay", Nation::French);
constexpr Troop kLancers =
    Riders("french.lancer", "helmet", "lance", "bay,chestnut,brown", Nation::French);
constexpr Troop kGeneral = Riders("french.leader", "bicorne", "point", "white", Nation::French);

// A body of men in the picture, from the back to the front.
struct Body {
    std::vector<Posted> men;
    QPoint at;
    int scale;
    Facing facing;
};

std::vector<Body> Armies(const Studio& studio) {
    const auto line = [&](const Troop& troop, int strength) {
        return PostLine(studio, troop, strength);
    };
    return {
        {PostColumn(studio, kPrussians, 2), {742, 372}, 1, Facing::Left},
        {PostColumn(studio, kPrussians, 2), {700, 368}, 1, Facing::Left},
        {PostColumn(studio, kLigne, 2), {60, 376}, 1, Facing::Right},
        {PostColumn(studio, kLigne, 2), {108, 372}, 1, Facing::Right},
        {line(kRedcoats, 1), {520, 430}, 2, Facing::Left},
        {PostGuns(studio, kGunners, 1, false), {628, 432}, 2, Facing::Left},
        {line(kRedcoats, 1), {724, 440}, 2, Facing::Left},
        {PostHorse(studio, kLancers, 1), {92, 446}, 2, Facing::Right},
        {PostHorse(studio, kCuirassiers, 2), {252, 462}, 2, Facing::Right},
        {line(kRedcoats, 2), {606, 506}, 2, Facing::Left},
        {line(kGuard, 2), {108, 524}, 2, Facing::Right},
        {line(kLigne, 2), {254, 534}, 2, Facing::Right},
        {PostLeader(studio, kGeneral, "french.aide"), {396, 540}, 2, Facing::Right},
        {line(kRedcoats, 2), {724, 534}, 2, Facing::Left},
    };
}

// The smoke of a volley before a line.
void PutVolley(QImage& picture, const Palette& palette, double x, double y, double size) {
    Plate plate(QRect(0, 0, kWidth, kHeight));
    Chance chance(static_cast<std::uint32_t>(x));
    DrawCloud(plate, chance, x, y, size, palette["smoke.light"], palette["smoke.shade"]);
    Put(picture, plate.Pressed(), {0, 0});
}

void PutArmies(QImage& picture, const Studio& studio) {
    for (const Body& body : Armies(studio)) {
        const MusterLook look{body.facing, Freshness::Fresh, false};
        Put(picture, Mustered(body.men, studio, look), body.at, body.scale);
        const bool fires = body.facing == Facing::Left && body.scale == 2;
        if (fires) PutVolley(picture, studio.palette, body.at.x() - 78, body.at.y() - 14, 20);
    }
}

void PutFrame(QImage& picture, const Palette& palette) {
    constexpr int kMargin = 16;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const int depth = std::min({x, y, kWidth - 1 - x, kHeight - 1 - y});
            if (depth >= kMargin) continue;
            const bool line = depth == kMargin - 1 || depth == kMargin - 2 || depth == kMargin - 5;
            const QRgb paper = Scaled(palette["report.paper"], 0.98 + 0.03 * NoiseAt(x, y, 77));
            picture.setPixel(x, y, line ? palette["emblem.line"] : paper);
        }
    }
}

void WriteCentred(QImage& picture, const Studio& studio, int y, const char* text, int factor,
                  QRgb color, QRgb shadow) {
    const LetterCase& letters = studio.lettering.text;
    Tile tile(picture.rect());
    const int x = (kWidth - letters.WidthOf(text, factor)) / 2;
    for (int step = factor; step > 0; --step)
        letters.Write(tile, {x + step / 2, y + step / 2}, text, shadow, factor);
    letters.Write(tile, {x, y}, text, color, factor);
    tile.Recolor([&](QRgb pixel, int, int row) {
        const double share = static_cast<double>(row - y) / (8 * factor);
        return pixel == color ? Scaled(pixel, 1.14 - 0.34 * share) : pixel;
    });
    Put(picture, tile, {0, 0});
}

}  // namespace

QImage PaintTitle(const Studio& studio) {
    const Palette& palette = studio.palette;
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    Put(picture, PaintScene(studio), {0, 0});
    PutArmies(picture, studio);
    WriteCentred(picture, studio, 52, "VARNSTRIDE", 9, palette["flag.gold"], palette["title.ink"]);
    WriteCentred(picture, studio, 136, "June 1815", 3, palette["report.paper"],
                 palette["title.ink"]);
    PutFrame(picture, palette);
    return picture;
}

}  // namespace varnstride::art
