// A place on the hex grid. Columns run east, rows run south; odd rows stand half a hex to the
// right. (0, 0) means "no cell": a unit off the map holds it and the objective walks skip it.
#pragma once

namespace varnstride {

struct Cell {
    int x = 0;
    int y = 0;

    friend constexpr bool operator==(const Cell&, const Cell&) = default;
};

constexpr Cell kNoCell{};

// The eight ways of walking. North and South jump two rows, to the hex straight above or below.
enum class Direction {
    North = 0,
    NorthEast = 1,
    East = 2,
    SouthEast = 3,
    South = 4,
    SouthWest = 5,
    West = 6,
    NorthWest = 7,
};

// The neighbour of a cell; it may lie off the grid.
constexpr Cell Step(Cell from, Direction direction) {
    const int odd = from.y & 1;
    switch (direction) {
        case Direction::North: return {from.x, from.y - 2};
        case Direction::NorthEast: return {from.x + odd, from.y - 1};
        case Direction::East: return {from.x + 1, from.y};
        case Direction::SouthEast: return {from.x + odd, from.y + 1};
        case Direction::South: return {from.x, from.y + 2};
        case Direction::SouthWest: return {from.x - 1 + odd, from.y + 1};
        case Direction::West: return {from.x - 1, from.y};
        case Direction::NorthWest: return {from.x - 1 + odd, from.y - 1};
    }
    return from;
}

// The six sides of a hex, clockwise from the north-east.
constexpr Direction kHexSides[6] = {Direction::NorthEast, Direction::East, Direction::SouthEast,
                                    Direction::SouthWest, Direction::West, Direction::NorthWest};

}  // namespace varnstride
