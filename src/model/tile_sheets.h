// How many pictures each layer of a cell has, and what the numbers of the feature layer mean. The
// art is drawn to these figures and files are checked against them.
#pragma once

#include <array>

namespace varnstride {

constexpr int kGroundTiles = 144;  // six pictures a height band
constexpr int kGroundTilesPerBand = 6;
constexpr int kTerrainTiles = 102;
constexpr int kOverlayTiles = 142;
constexpr int kRoadTiles = 21;
constexpr int kObjectiveTiles = 12;
constexpr int kBorderTiles = 32;
constexpr int kLossMarks = 100;

// The feature layer: a base by kind plus a mask of the sides that the road or water runs through,
// bit 0 north-east, then clockwise.
constexpr int kPavedRoad = 0;
constexpr int kTrack = 64;
constexpr int kStream = 128;
constexpr int kRiver = 192;
constexpr int kFeatureTiles = 256;

// Bridges stand in the road layer, by the two sides that the road over them joins. The small map
// shows those with the numbers 3 and 8 to 10.
constexpr int kBridgeEastWest = 8;
constexpr int kBridgeNorthEastSouthWest = 9;
constexpr int kBridgeNorthWestSouthEast = 10;
struct BridgeTile {
    int tile;
    unsigned sides;
};
constexpr std::array<BridgeTile, 15> kBridges = {{
    {kBridgeEastWest, 18},
    {kBridgeNorthEastSouthWest, 9},
    {kBridgeNorthWestSouthEast, 36},
    {2, 3},
    {3, 5},
    {4, 17},
    {5, 33},
    {6, 6},
    {11, 10},
    {12, 34},
    {13, 12},
    {14, 20},
    {15, 24},
    {16, 40},
    {17, 48},
}};

// Border pictures by the sides beyond which another area number lies. The pattern's bits are, from
// the highest: W NW NE E SE SW. A pattern that is not listed has no picture.
constexpr std::array<int, kBorderTiles> kPicturedBorders = {
    0b000000, 0b100000, 0b110000, 0b111000, 0b111100, 0b111110, 0b111111, 0b100001,
    0b100011, 0b100111, 0b101111, 0b110111, 0b111011, 0b111101, 0b011111, 0b110011,
    0b111001, 0b011110, 0b001111, 0b110001, 0b011100, 0b001110, 0b000111, 0b000011,
    0b000110, 0b001100, 0b011000, 0b010000, 0b001000, 0b000100, 0b000010, 0b000001};

// Slopes stand in the overlay layer: a picture for each set of sides beyond which the ground is
// lower. They take the numbers that are neither a palisade nor nothing.
constexpr int SlopeTile(unsigned lowerSides) {
    const int mask = static_cast<int>(lowerSides);
    if (mask < 34) return mask - 1;
    return mask < 53 ? mask : mask + 17;
}

// Woods with a ride for a road, by the sides between which it runs; a road that fits none takes
// the one that keeps all sides free.
struct WoodRide {
    int tile;
    unsigned sides;
};
constexpr unsigned kAllSides = 63;
constexpr std::array<WoodRide, 18> kWoodlandRides = {{
    {30, 18},
    {31, 9},
    {32, 36},
    {33, 3},
    {34, 5},
    {35, 17},
    {54, 33},
    {55, 6},
    {56, 10},
    {57, 34},
    {58, 12},
    {59, 20},
    {60, 24},
    {61, 40},
    {72, 48},
    {73, 21},
    {74, 42},
    {75, kAllSides},
}};
constexpr std::array<WoodRide, 4> kForestRides = {{
    {44, 18},
    {45, 9},
    {46, 36},
    {47, kAllSides},
}};

}  // namespace varnstride
