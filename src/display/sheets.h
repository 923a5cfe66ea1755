// The sheets of the map scene, the jump map and the bars: where each lies in the data folder, how
// many tiles it must hold and what stands in for one that is missing. The sheets of unit sprites
// are named in unit_sprites.h.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "model/tile_sheets.h"

namespace varnstride {

enum class Sheet {
    // The normal view.
    Ground,
    HighGround,
    Features,
    Overlays,
    Terrain,
    FrozenTerrain,
    RoadPieces,
    Shade,
    Borders,
    Objectives,
    Highlight,
    Losses,
    Outline,
    UnitBases,
    Ammunition,
    EliteMorale,
    VeteranMorale,
    ExperiencedMorale,
    MilitiaMorale,
    Leaders,
    LeadersOnBases,
    // The zoom-out view.
    SmallGround,
    SmallFeatures,
    SmallOverlays,
    SmallTerrain,
    SmallShade,
    SmallBorders,
    SmallObjectives,
    SmallHighlight,
    SmallOutline,
    SmallUnits,
    ArmyColours,
    // The jump map.
    MiniGround,
    MiniEdges,
    MiniRoads,
};
constexpr std::size_t kSheetCount = static_cast<std::size_t>(Sheet::MiniRoads) + 1;

constexpr int kGroundSheetTiles = kGroundTiles / 2;  // the other half is on a sheet of its own
constexpr int kGroundBands = kGroundTiles / kGroundTilesPerBand;

enum class StandIn { Hex, SmallHex, Plate, SmallPlate, Dot, Sprite };

// What a file must hold.
struct SheetNeed {
    std::string_view file;
    int tiles;
    int firstSeen;  // tiles below it show nothing
    StandIn standIn;
};

struct SheetRow {
    Sheet sheet;
    SheetNeed need;
};

constexpr std::array<SheetRow, kSheetCount> kSheetRows = {{
    // sheet, file, tiles, first seen, stand-in
    {Sheet::Ground, {"Graphics/Elevations6.bmp", kGroundSheetTiles, 0, StandIn::Hex}},
    {Sheet::HighGround, {"Graphics/Elevations8.bmp", kGroundSheetTiles, 0, StandIn::Hex}},
    {Sheet::Features, {"Graphics/Road6.bmp", kFeatureTiles, 1, StandIn::Plate}},
    {Sheet::Overlays, {"Graphics/Edges19.bmp", kOverlayTiles, 0, StandIn::Plate}},
    {Sheet::Terrain, {"Graphics/Terrain21.bmp", kTerrainTiles, 0, StandIn::Plate}},
    {Sheet::FrozenTerrain, {"Graphics/Terrain23.bmp", kTerrainTiles, 0, StandIn::Plate}},
    {Sheet::RoadPieces, {"Graphics/Bridges2.bmp", kRoadTiles, 0, StandIn::Plate}},
    {Sheet::Shade, {"Graphics/Shade4.bmp", 2, 1, StandIn::Plate}},
    {Sheet::Borders, {"Graphics/HexContours2.bmp", kBorderTiles, 1, StandIn::Plate}},
    {Sheet::Objectives, {"Graphics/Objective8.bmp", kObjectiveTiles, 1, StandIn::Plate}},
    {Sheet::Highlight, {"Graphics/Highlight5.bmp", 1, 0, StandIn::Plate}},
    {Sheet::Losses, {"Graphics/Losses9.bmp", kLossMarks, 0, StandIn::Plate}},
    {Sheet::Outline, {"Graphics/Cursor1.bmp", 2, 0, StandIn::Plate}},
    {Sheet::UnitBases, {"Graphics/3D_Unit_Bases.bmp", 6, 0, StandIn::Plate}},
    {Sheet::Ammunition, {"Units/AmmoThermometer.bmp", 4, 0, StandIn::Dot}},
    {Sheet::EliteMorale, {"Units/Thermometer_Elite.bmp", 5, 0, StandIn::Dot}},
    {Sheet::VeteranMorale, {"Units/Thermometer_Veteran.bmp", 5, 0, StandIn::Dot}},
    {Sheet::ExperiencedMorale, {"Units/Thermometer_Experienced.bmp", 5, 0, StandIn::Dot}},
    {Sheet::MilitiaMorale, {"Units/Thermometer_Militia.bmp", 5, 0, StandIn::Dot}},
    {Sheet::Leaders, {"Units/Commander5.bmp", 6, 0, StandIn::Sprite}},
    {Sheet::LeadersOnBases, {"Units/Commander5_trans.bmp", 6, 0, StandIn::Sprite}},
    {Sheet::SmallGround, {"Graphics/Elevation3.bmp", kGroundBands, 0, StandIn::SmallHex}},
    {Sheet::SmallFeatures, {"Graphics/2d_mini_road.bmp", kFeatureTiles, 1, StandIn::SmallPlate}},
    {Sheet::SmallOverlays, {"Graphics/2d_mini_edges2.bmp", kOverlayTiles, 0, StandIn::SmallPlate}},
    {Sheet::SmallTerrain, {"Graphics/Terrain12_2D.bmp", kTerrainTiles, 0, StandIn::SmallPlate}},
    {Sheet::SmallShade, {"Graphics/mini_shade2.bmp", 2, 1, StandIn::SmallPlate}},
    {Sheet::SmallBorders, {"Graphics/Mini_HexContours.bmp", kBorderTiles, 1, StandIn::SmallPlate}},
    {Sheet::SmallObjectives,
     {"Graphics/mini_objectives2.bmp", kObjectiveTiles, 1, StandIn::SmallPlate}},
    {Sheet::SmallHighlight, {"Graphics/mini_highlight_box.bmp", 1, 0, StandIn::SmallPlate}},
    {Sheet::SmallOutline, {"Graphics/Hex_Zoom_out2.bmp", 2, 0, StandIn::SmallPlate}},
    {Sheet::SmallUnits, {"Graphics/2d_mini_units.bmp", 24, 0, StandIn::SmallPlate}},
    {Sheet::ArmyColours, {"Graphics/mini_counter_colours.bmp", 6, 0, StandIn::SmallPlate}},
    {Sheet::MiniGround, {"Graphics/minimaps8.bmp", 33, 0, StandIn::Dot}},
    {Sheet::MiniEdges, {"Graphics/MiniEdge3.bmp", kOverlayTiles, 1, StandIn::Dot}},
    {Sheet::MiniRoads, {"Graphics/MiniRoad2.bmp", kFeatureTiles, 1, StandIn::Dot}},
}};

constexpr bool AreSheetRowsInOrder() {
    for (std::size_t index = 0; index < kSheetCount; ++index) {
        if (kSheetRows[index].sheet != static_cast<Sheet>(index)) return false;
    }
    return true;
}
static_assert(AreSheetRowsInOrder());

}  // namespace varnstride
