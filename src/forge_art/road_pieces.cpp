#include "forge_art/road_pieces.h"

#include <QPainterPath>
#include <bit>
#include <cmath>

#include "forge_art/chance.h"
#include "forge_art/color.h"
#include "forge_art/hex_shape.h"
#include "forge_art/plate.h"
#include "model/grid.h"
#include "model/tile_sheets.h"

namespace varnstride::art {
namespace {

const QRect kRoom(-30, -34, 60, 68);

// The road over a bridge: from side to side of the cell, as roads of the feature layer run.
QPainterPath RoadPath(unsigned sides) {
    const int first = std::countr_zero(sides);
    const int second = std::bit_width(sides) - 1;
    QPainterPath path;
    path.moveTo(kNormalHex.Gate(first) * 1.42);
    path.lineTo(kNormalHex.Gate(first));
    path.quadTo(QPointF(0, 0), kNormalHex.Gate(second));
    path.lineTo(kNormalHex.Gate(second) * 1.42);
    return path;
}

// The piece of a path between two shares of its length.
QPainterPath Piece(const QPainterPath& path, double from, double to) {
    QPainterPath piece;
    piece.moveTo(path.pointAtPercent(from));
    for (int i = 1; i <= 12; ++i)
        piece.lineTo(path.pointAtPercent(from + (to - from) * i / 12));
    return piece;
}

Tile PaintBridge(const Palette& palette, unsigned sides) {
    Plate plate(kRoom);
    const QPainterPath path = RoadPath(sides);
    plate.Curve(path, 5.6, palette["road.edge"]);
    plate.Curve(path, 3.6, palette["road.paved"]);
    const QPainterPath arch = Piece(path, 0.30, 0.70);
    plate.Brush().save();
    plate.Brush().translate(1.6, 2.2);
    plate.Curve(arch, 8.6, palette["water.shadow"]);
    plate.Brush().restore();
    plate.Curve(arch, 9.4, palette["line.building"]);
    plate.Curve(arch, 7.8, palette["bridge.wall"]);
    plate.Curve(arch, 5.8, palette["bridge.joint"]);
    plate.Curve(arch, 4.6, palette["road.paved"]);
    return plate.Pressed();
}

// Clouds of powder smoke; where they thin out every second pixel shows the ground.
Tile PaintSmoke(const Palette& palette) {
    Plate plate(kRoom);
    Chance chance(901);
    for (int i = 0; i < 12; ++i) {
        const double x = chance.Between(-16, 16);
        const double y = -16 + i * 2.8;  // from the back to the front
        const double radius = chance.Between(4.5, 8.5);
        plate.Disc(x, y, radius, palette["smoke.shade"]);
        plate.Disc(x - 0.8, y - 1.0, radius - 1.2, palette["smoke.body"]);
        plate.Disc(x - 1.8, y - 2.0, radius * 0.5, palette["smoke.light"]);
    }
    const Tile solid = plate.Pressed();
    Tile smoke = solid;
    for (int y = kRoom.top(); y <= kRoom.bottom(); ++y) {
        for (int x = kRoom.left(); x <= kRoom.right(); ++x) {
            const bool isEdge = solid.IsEmptyAt(x - 3, y) || solid.IsEmptyAt(x + 3, y) ||
                                solid.IsEmptyAt(x, y - 3) || solid.IsEmptyAt(x, y + 3);
            if (isEdge && ((x + y) & 1) != 0) smoke.Clear(x, y);
        }
    }
    return smoke;
}

void DrawFlame(Plate& plate, double x, double y, double height, QRgb color) {
    QPainterPath flame;
    flame.moveTo(x - height * 0.32, y);
    flame.cubicTo(x - height * 0.5, y - height * 0.5, x - height * 0.05, y - height * 0.5, x,
                  y - height);
    flame.cubicTo(x + height * 0.12, y - height * 0.5, x + height * 0.52, y - height * 0.45,
                  x + height * 0.32, y);
    flame.closeSubpath();
    plate.Brush().setPen(Qt::NoPen);
    plate.Brush().setBrush(QColor(color));
    plate.Brush().drawPath(flame);
}

Tile PaintFire(const Palette& palette) {
    Plate plate(kRoom);
    Chance chance(911);
    for (int i = 0; i < 7; ++i) {
        const double rise = i * 3.4;
        plate.Disc(3 + rise * 0.5 + chance.Between(-2, 2), -8 - rise, 3.2 + i * 0.5,
                   palette[i % 2 == 0 ? "smoke.soot" : "smoke.dark"]);
    }
    for (const double x : {-8.0, 6.0, -1.0}) {
        const double height = x == -1.0 ? 17 : 12;
        DrawFlame(plate, x, 4, height + 2.5, palette["fire.line"]);
        DrawFlame(plate, x, 3.4, height, palette["fire.red"]);
        DrawFlame(plate, x, 3, height * 0.7, palette["fire.orange"]);
        DrawFlame(plate, x, 2.6, height * 0.4, palette["fire.yellow"]);
    }
    return plate.Pressed();
}

}  // namespace

std::vector<Tile> PaintRoadPieces(const Studio& studio) {
    std::vector<Tile> tiles(kRoadTiles);
    tiles[kSmoke] = PaintSmoke(studio.palette);
    tiles[kFire] = PaintFire(studio.palette);
    for (const BridgeTile& bridge : kBridges)
        tiles[static_cast<std::size_t>(bridge.tile)] = PaintBridge(studio.palette, bridge.sides);
    return tiles;
}

}  // namespace varnstride::art
