#include "forge_art/muster.h"

#include <algorithm>

#include "forge_art/color.h"

namespace varnstride::art {
namespace {

const QRect kRoom(-64, -90, 128, 140);

void LayShadow(Tile& tile, const Posted& man, QRgb shadow) {
    const int half = man.footing / 2;
    for (int row = -1; row <= 1; ++row) {
        for (int x = -half + (row == 0 ? 0 : 1); x <= half + 2; ++x)
            tile.Set(man.place.x() + x + row + 1, man.place.y() + row, shadow);
    }
}

// A figure with a dark line round it, coloured by what it bounds, so that a crowd keeps the colour
// of its coats.
Tile WithLine(const Tile& figure, QRgb ink) {
    return Outlined(figure, [&](int x, int y) {
        QRgb beside = 0;
        for (const QPoint step : {QPoint(0, 1), QPoint(1, 0), QPoint(-1, 0), QPoint(0, -1)}) {
            if (beside == 0) beside = figure.At(x + step.x(), y + step.y());
        }
        return Mix(Scaled(beside, 0.38), ink, 0.45);
    });
}

// The colours of men who have done what they can for this turn: dust lies on them.
void Fade(Tile& tile, QRgb dust) {
    tile.Recolor([dust](QRgb color, int, int) {
        const int light = Lightness(color);
        return Mix(Mix(color, qRgb(light, light, light), 0.30), dust, 0.38);
    });
}

}  // namespace

Tile Mustered(std::vector<Posted> men, const Studio& studio, const MusterLook& look) {
    if (look.facing == Facing::Left) {
        for (Posted& man : men) {
            man.figure = Mirrored(man.figure);
            man.place.setX(-man.place.x());
        }
    }
    std::stable_sort(men.begin(), men.end(),
                     [](const Posted& a, const Posted& b) { return a.place.y() < b.place.y(); });
    Tile figures(kRoom);
    for (const Posted& man : men)
        figures.Lay(WithLine(man.figure, studio.palette["unit.line"]), man.place);
    if (look.freshness == Freshness::Spent) Fade(figures, studio.palette["unit.dust"]);
    Tile tile(kRoom);
    if (!look.hasBase) {
        for (const Posted& man : men)
            if (man.footing > 0) LayShadow(tile, man, studio.palette["shadow.unit"]);
    }
    tile.Lay(figures);
    return tile;
}

}  // namespace varnstride::art
