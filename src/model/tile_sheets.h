// How many pictures each layer of a cell has, and what the numbers of the feature layer mean. The
// art is drawn to these figures and files are checked against them.
#pragma once

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

// Bridges stand in the road layer, by the way in which the road runs.
constexpr int kBridgeEastWest = 11;
constexpr int kBridgeNorthEastSouthWest = 12;
constexpr int kBridgeNorthWestSouthEast = 13;

}  // namespace varnstride
