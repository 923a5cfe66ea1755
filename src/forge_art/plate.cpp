#include "forge_art/plate.h"

#include <QPainterPath>
#include <array>

namespace varnstride::art {
namespace {

constexpr int kFineness = 4;
constexpr int kEnough = kFineness * kFineness / 2;

// What the fine pixels of one pixel add up to.
struct Blend {
    int count = 0;
    std::array<int, 3> sums{};

    void Add(QRgb color) {
        if (qAlpha(color) == 0) return;
        ++count;
        sums[0] += qRed(color);
        sums[1] += qGreen(color);
        sums[2] += qBlue(color);
    }
    QRgb Color() const { return qRgb(sums[0] / count, sums[1] / count, sums[2] / count); }
};

Blend BlendAt(const QImage& fine, int x, int y) {
    Blend blend;
    for (int dy = 0; dy < kFineness; ++dy) {
        const auto* const line =
            reinterpret_cast<const QRgb*>(fine.constScanLine(y * kFineness + dy)) + x * kFineness;
        for (int dx = 0; dx < kFineness; ++dx)
            blend.Add(line[dx]);
    }
    return blend;
}

}  // namespace

Plate::Plate(QRect area)
    : image_(area.size() * kFineness, QImage::Format_ARGB32), topLeft_(area.topLeft()) {
    image_.fill(0);
    painter_.begin(&image_);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.scale(kFineness, kFineness);
    painter_.translate(-topLeft_.x(), -topLeft_.y());
}

void Plate::Oval(double x, double y, double radiusX, double radiusY, QRgb color) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(QColor(color));
    painter_.drawEllipse(QPointF(x, y), radiusX, radiusY);
}

void Plate::Area(const QPolygonF& corners, QRgb color) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(QColor(color));
    painter_.drawPolygon(corners);
}

void Plate::Box(double x, double y, double width, double height, QRgb color) {
    Area(QPolygonF(QRectF(x, y, width, height)), color);
}

void Plate::Line(double x1, double y1, double x2, double y2, double width, QRgb color) {
    painter_.setPen(QPen(QColor(color), width, Qt::SolidLine, Qt::FlatCap));
    painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void Plate::Curve(const QPainterPath& path, double width, QRgb color) {
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(QColor(color), width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter_.drawPath(path);
}

Tile Plate::Pressed() {
    Tile tile(QRect(topLeft_, image_.size() / kFineness));
    const QRect area = tile.Area();
    for (int y = 0; y < area.height(); ++y) {
        for (int x = 0; x < area.width(); ++x) {
            const Blend blend = BlendAt(image_, x, y);
            if (blend.count >= kEnough) tile.Set(area.left() + x, area.top() + y, blend.Color());
        }
    }
    return tile;
}

}  // namespace varnstride::art
