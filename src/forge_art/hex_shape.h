// The outline of a cell in pixels, for both views. Cells stand on their points, fit without gap or
// overlap, and the mouse maps are cut from the same outline as the ground.
#pragma once

#include <QPoint>
#include <QPointF>
#include <array>

namespace varnstride::art {

// The sides of a cell as the masks of roads and streams number them.
enum Side { kNorthEast, kEast, kSouthEast, kSouthWest, kWest, kNorthWest };
constexpr int kSideCount = 6;

struct HexShape {
    int width;    // from the western to the eastern side
    int rowStep;  // from a row to the next
    int slant;    // height of the pointed part above and below

    int Top() const { return -(slant + (rowStep - slant) / 2); }
    int Bottom() const { return Top() + rowStep + slant; }  // the first row below the cell
    // Half the width of the cell in a row of pixels; 0 above and below the cell.
    int HalfWidth(int y) const;
    // Whether a pixel belongs to the cell whose anchor is (0,0).
    bool Contains(int x, int y) const { return x >= -HalfWidth(y) && x < HalfWidth(y); }

    // The anchor of the cell beyond a side.
    QPoint Neighbour(int side) const;
    // The middle of a side.
    QPointF Gate(int side) const;
    // Where a side begins and ends, clockwise; a side's end is the next one's beginning.
    QPointF Corner(int side) const;
    // How far a point lies beyond the line of a side; below 0 inside.
    double Beyond(int side, double x, double y) const;
    // How far a point lies beyond the nearest of all sides; below 0 inside.
    double Beyond(double x, double y) const;
};

constexpr HexShape kNormalHex{32, 32, 10};
constexpr HexShape kSmallHex{16, 16, 5};

}  // namespace varnstride::art
