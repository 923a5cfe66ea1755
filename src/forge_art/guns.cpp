#include "forge_art/guns.h"

#include <cmath>
#include <string>

#include "forge_art/color.h"
#include "forge_art/foot.h"
#include "forge_art/horse.h"
#include "forge_art/plate.h"

namespace varnstride::art {
namespace {

const char* CarriageColor(Nation nation) {
    switch (nation) {
        case Nation::French: return "carriage.olive";
        case Nation::British: return "carriage.grey";
        default: return "carriage.blue";
    }
}

void DrawWheel(Plate& plate, const Palette& palette, QRgb wood, double x, double radius) {
    plate.Oval(x, -radius, radius * 0.92, radius, palette["gun.line"]);
    plate.Oval(x, -radius, radius * 0.92 - 0.9, radius - 0.9, wood);
    plate.Oval(x, -radius, radius * 0.92 - 1.7, radius - 1.7, palette["gun.gap"]);
    for (int i = 0; i < 4; ++i) {
        const double angle = i * 0.7854 + 0.2;
        const double dx = std::cos(angle) * (radius - 1);
        const double dy = std::sin(angle) * (radius - 1);
        plate.Line(x - dx, -radius - dy, x + dx, -radius + dy, 0.9, wood);
    }
    plate.Disc(x, -radius, 1.1, palette["gun.line"]);
}

// A gun that points to the right, its wheel on the ground at (0,0).
Tile PaintGun(const Studio& studio, const Troop& troop) {
    const Palette& palette = studio.palette;
    const QRgb wood = palette[CarriageColor(troop.nation)];
    const double size =
        troop.calibre == Calibre::Light ? 0.9 : (troop.calibre == Calibre::Medium ? 1.0 : 1.15);
    Plate plate(QRect(-18, -16, 36, 20));
    plate.Brush().scale(size, size);
    plate.Area({{-13, -0.4}, {-12.4, -2.2}, {2, -6.6}, {4, -4.6}, {-10, 0}}, palette["gun.line"]);
    plate.Area({{-12, -1.0}, {1.6, -5.8}, {2.6, -4.9}, {-10.4, -0.6}}, wood);
    plate.Area({{-4.4, -9.0}, {10.4, -10.0}, {10.4, -6.9}, {-4.4, -4.9}}, palette["gun.line"]);
    plate.Area({{-3.8, -8.4}, {9.8, -9.4}, {9.8, -8.3}, {-3.8, -7.0}}, palette["gun.light"]);
    plate.Area({{-3.8, -7.0}, {9.8, -8.3}, {9.8, -7.4}, {-3.8, -5.5}}, palette["gun.shade"]);
    plate.Disc(-5, -7, 1.1, palette["gun.shade"]);
    plate.Box(9.4, -10.3, 1.6, 3.8, palette["gun.shade"]);
    DrawWheel(plate, palette, wood, 0, 4.8);
    return plate.Pressed();
}

void AddCrew(std::vector<Posted>& men, const Studio& studio, const Troop& troop, QPoint gun) {
    men.push_back({FootFigure(studio, troop, "gunner"), gun + QPoint(-7, -5), 5});
    men.push_back({FootFigure(studio, troop, "rammer"), gun + QPoint(7, -4), 5});
    men.push_back({FootFigure(studio, troop, "gunner"), gun + QPoint(-15, 2), 5});
    men.push_back({FootFigure(studio, troop, "officer"), gun + QPoint(-9, 5), 5});
}

}  // namespace

std::vector<Posted> PostGuns(const Studio& studio, const Troop& troop, int strength, bool mounted) {
    constexpr int kGunFooting = 13;
    std::vector<Posted> battery;
    for (int i = 0; i < strength; ++i) {
        const QPoint place(strength == 1 ? 5 : 2 + i * 4, strength == 1 ? 6 : -3 + i * 17);
        battery.push_back({PaintGun(studio, troop), place, kGunFooting});
        AddCrew(battery, studio, troop, place);
        if (mounted) {
            battery.push_back({RiderFigure(studio, troop, i == 0 ? "walk" : "trot", "bay"),
                               place + QPoint(-26, -2), kHorseFooting});
        }
    }
    return battery;
}

}  // namespace varnstride::art
