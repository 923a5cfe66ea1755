#include "platform/qt/tool_icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <array>

namespace varnstride {
namespace {

// All signs are drawn on a field of 24 x 24.
constexpr int kField = 24;
constexpr int kDensity = 3;  // so that they stay sharp where the desktop is enlarged

using Sign = void (*)(QPainter&);

void Polygon(QPainter& painter, std::initializer_list<QPointF> points) {
    painter.drawPolygon(QPolygonF(QList<QPointF>(points)));
}
void Lines(QPainter& painter, std::initializer_list<QPointF> points) {
    painter.drawPolyline(QPolygonF(QList<QPointF>(points)));
}

void HourGlass(QPainter& p) {
    Lines(p, {{6, 3}, {18, 3}});
    Lines(p, {{6, 21}, {18, 21}});
    Lines(p, {{8, 3}, {8, 7}, {12, 12}, {8, 17}, {8, 21}});
    Lines(p, {{16, 3}, {16, 7}, {12, 12}, {16, 17}, {16, 21}});
    Polygon(p, {{9, 20}, {15, 20}, {12, 16}});
}
void Barrel(QPainter& p) {
    p.drawEllipse(QRectF(6, 3, 12, 5));
    Lines(p, {{6, 5.5}, {5, 12}, {6, 19}});
    Lines(p, {{18, 5.5}, {19, 12}, {18, 19}});
    p.drawArc(QRectF(6, 16, 12, 5), 180 * 16, 180 * 16);
    p.drawArc(QRectF(5, 9, 14, 5), 180 * 16, 180 * 16);
}
void Rotation(QPainter& p) {
    p.drawArc(QRectF(5, 5, 14, 14), 30 * 16, 130 * 16);
    p.drawArc(QRectF(5, 5, 14, 14), 210 * 16, 130 * 16);
    Polygon(p, {{20, 4}, {20, 10}, {15, 8}});
    Polygon(p, {{4, 20}, {4, 14}, {9, 16}});
}
void Sabres(QPainter& p) {
    p.drawArc(QRectF(-9, 1, 26, 26), 0, 62 * 16);
    p.drawArc(QRectF(7, 1, 26, 26), 118 * 16, 62 * 16);
    Lines(p, {{14, 15}, {20, 15}});
    Lines(p, {{4, 15}, {10, 15}});
}
void Gun(QPainter& p) {
    p.drawEllipse(QRectF(4, 11, 9, 9));
    Lines(p, {{8.5, 11}, {8.5, 20}});
    Lines(p, {{4, 15.5}, {13, 15.5}});
    Polygon(p, {{7, 10}, {20, 5}, {21, 8}, {9, 13}});
}
void Ranks(QPainter& p) {
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column)
            p.drawRect(QRectF(4 + 4.4 * column, 5 + 5.4 * row, 2.4, 2.4));
    }
}
void Flag(QPainter& p) {
    Lines(p, {{6, 2}, {6, 22}});
    Polygon(p, {{6, 3}, {19, 5}, {15, 8.5}, {19, 12}, {6, 12}});
}
void CrossedSwords(QPainter& p) {
    Lines(p, {{4, 4}, {19, 19}});
    Lines(p, {{20, 4}, {5, 19}});
    Lines(p, {{14, 19}, {19, 14}});
    Lines(p, {{5, 14}, {10, 19}});
}
void Bomb(QPainter& p) {
    p.drawEllipse(QRectF(4, 8, 13, 13));
    Lines(p, {{14, 9}, {18, 5}});
    Lines(p, {{18, 2}, {18, 5}, {22, 5}});
}
void Telescope(QPainter& p) {
    Polygon(p, {{3, 14}, {18, 5}, {21, 10}, {5, 18}});
    Lines(p, {{12, 14}, {8, 22}});
    Lines(p, {{12, 14}, {17, 22}});
}
void Back(QPainter& p) {
    p.drawArc(QRectF(5, 7, 14, 12), -90 * 16, 200 * 16);
    Polygon(p, {{4, 8}, {10, 4}, {10, 12}});
}
void Sheet(QPainter& p) {
    Lines(p, {{3, 5}, {9, 3}, {15, 6}, {21, 4}, {21, 19}, {15, 21}, {9, 18}, {3, 20}, {3, 5}});
    Lines(p, {{9, 3}, {9, 18}});
    Lines(p, {{15, 6}, {15, 21}});
}
void Door(QPainter& p) {
    Lines(p, {{13, 3}, {5, 3}, {5, 21}, {13, 21}});
    Lines(p, {{10, 12}, {17, 12}});
    Polygon(p, {{16, 8}, {21, 12}, {16, 16}});
}

constexpr std::array<Sign, 13> kSigns = {HourGlass, Barrel, Rotation,      Sabres, Gun,
                                         Ranks,     Flag,   CrossedSwords, Bomb,   Telescope,
                                         Back,      Sheet,  Door};

QPixmap Draw(Sign sign, const QColor& colour) {
    QPixmap pixmap(kField * kDensity, kField * kDensity);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kDensity, kDensity);
    painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    sign(painter);
    return pixmap;
}

}  // namespace

QIcon ToolIcon(int picture, const QPalette& palette) {
    return QIcon(
        Draw(kSigns[static_cast<std::size_t>(picture)], palette.color(QPalette::ButtonText)));
}

}  // namespace varnstride
