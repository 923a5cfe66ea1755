// A surface for shapes: painted four times finer than the tile and then pressed, so that colours
// blend inside a picture while its edge stays hard towards the transparent colour. Without
// antialiasing of the painter's own, the result is the same on every machine.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPolygonF>

#include "forge_art/tile.h"

namespace varnstride::art {

class Plate {
 public:
    // For pixels of this area round the anchor.
    explicit Plate(QRect area);
    Plate(const Plate&) = delete;
    Plate& operator=(const Plate&) = delete;

    // Paints in tile coordinates.
    QPainter& Brush() { return painter_; }

    void Disc(double x, double y, double radius, QRgb color) { Oval(x, y, radius, radius, color); }
    void Oval(double x, double y, double radiusX, double radiusY, QRgb color);
    void Area(const QPolygonF& corners, QRgb color);
    void Box(double x, double y, double width, double height, QRgb color);
    void Line(double x1, double y1, double x2, double y2, double width, QRgb color);
    void Curve(const QPainterPath& path, double width, QRgb color);

    // What was painted; a pixel is opaque when at least half of it is covered.
    Tile Pressed();

 private:
    QImage image_;
    QPoint topLeft_;
    QPainter painter_;
};

}  // namespace varnstride::art
