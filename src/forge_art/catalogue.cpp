#include "forge_art/catalogue.h"

#include <algorithm>

#include "forge_art/bars.h"
#include "forge_art/emblems.h"
#include "forge_art/ground.h"
#include "forge_art/marks.h"
#include "forge_art/mini_map.h"
#include "forge_art/overlays.h"
#include "forge_art/road_pieces.h"
#include "forge_art/sheet.h"
#include "forge_art/small_units.h"
#include "forge_art/terrain.h"
#include "forge_art/title.h"
#include "forge_art/top_bar_sheet.h"
#include "forge_art/troop_sheets.h"
#include "forge_art/ways.h"

namespace varnstride::art {
namespace {

using Painter = std::function<std::vector<Tile>(const Studio&)>;

Picture SheetPicture(std::string name, std::string family, int columns, Painter painter) {
    return {name + ".bmp", std::move(family),
            [painter = std::move(painter), columns](const Studio& studio) {
                return SheetOf(painter(studio), columns);
            }};
}

void AddGround(std::vector<Picture>& list) {
    list.push_back(SheetPicture("Graphics/Elevations6", "ground", 12,
                                [](const Studio& studio) { return PaintGround(studio, 0); }));
    list.push_back(SheetPicture("Graphics/Elevations8", "ground", 12,
                                [](const Studio& studio) { return PaintGround(studio, 72); }));
    list.push_back(SheetPicture("Graphics/Elevation3", "ground", 6, PaintSmallGround));
}

void AddTerrain(std::vector<Picture>& list) {
    list.push_back(SheetPicture("Graphics/Terrain21", "terrain", 12, PaintTerrain));
    list.push_back(SheetPicture("Graphics/Terrain23", "terrain", 12, PaintFrozenTerrain));
    list.push_back(SheetPicture("Graphics/Terrain12_2D", "terrain", 12, PaintSmallTerrain));
}

void AddWays(std::vector<Picture>& list) {
    list.push_back(SheetPicture("Graphics/Road6", "ways", 16, PaintWays));
    list.push_back(SheetPicture("Graphics/2d_mini_road", "ways", 16, PaintSmallWays));
    list.push_back(SheetPicture("Graphics/MiniRoad2", "ways", 16, PaintTinyWays));
}

void AddOverlays(std::vector<Picture>& list) {
    list.push_back(SheetPicture("Graphics/Edges19", "overlays", 12, PaintOverlays));
    list.push_back(SheetPicture("Graphics/2d_mini_edges2", "overlays", 12, PaintSmallOverlays));
    list.push_back(SheetPicture("Graphics/MiniEdge3", "overlays", 12, PaintTinyOverlays));
    list.push_back(SheetPicture("Graphics/Bridges2", "road_pieces", 7, PaintRoadPieces));
}

constexpr int kUnitColumns = 9;

// The family of a unit sheet is its army: "units.French".
void AddTroop(std::vector<Picture>& list, std::string_view name, const TroopSheets& sheets,
              Freshness freshness, bool hasBase) {
    if (name.empty()) return;
    const bool isFrench = sheets.troop.nation == Nation::French;
    const MusterLook look{isFrench ? Facing::Right : Facing::Left, freshness, hasBase};
    const int count = hasBase ? sheets.basedCount : sheets.count;
    const Troop troop = sheets.troop;
    list.push_back(SheetPicture(
        "Units/" + std::string(name), "units." + std::string(name.substr(0, name.find('_'))),
        std::min(count, kUnitColumns), [troop, look, count](const Studio& studio) {
            return PaintTroop(studio, troop, look, count);
        }));
}

void AddUnits(std::vector<Picture>& list) {
    for (const TroopSheets& sheets : AllTroopSheets()) {
        AddTroop(list, sheets.fresh, sheets, Freshness::Fresh, false);
        AddTroop(list, sheets.spent, sheets, Freshness::Spent, false);
        AddTroop(list, sheets.based, sheets, Freshness::Fresh, true);
    }
    list.push_back(SheetPicture("Units/Commander5", "units.leaders", 2,
                                [](const Studio& studio) { return PaintLeaders(studio, false); }));
    list.push_back(SheetPicture("Units/Commander5_trans", "units.leaders", 2,
                                [](const Studio& studio) { return PaintLeaders(studio, true); }));
}

// A sheet that is painted alike for both views, from the outline of their cells.
using HexPainter = std::vector<Tile> (*)(const Studio&, const HexShape&);

void AddForBothViews(std::vector<Picture>& list, const std::string& normal,
                     const std::string& small, int columns, HexPainter painter) {
    list.push_back(
        SheetPicture("Graphics/" + normal, "marks", columns,
                     [painter](const Studio& studio) { return painter(studio, kNormalHex); }));
    list.push_back(
        SheetPicture("Graphics/" + small, "marks", columns,
                     [painter](const Studio& studio) { return painter(studio, kSmallHex); }));
}

void AddMarks(std::vector<Picture>& list) {
    AddForBothViews(list, "Shade4", "mini_shade2", 2, PaintShade);
    AddForBothViews(list, "HexContours2", "Mini_HexContours", 8, PaintBorders);
    AddForBothViews(list, "Highlight5", "mini_highlight_box", 1, PaintHighlight);
    AddForBothViews(list, "Cursor1", "Hex_Zoom_out2", 2, PaintOutlines);
    list.push_back(SheetPicture("Graphics/Objective8", "marks", 6, PaintObjectives));
    list.push_back(SheetPicture("Graphics/mini_objectives2", "marks", 6, PaintSmallObjectives));
    list.push_back(SheetPicture("Graphics/Losses9", "marks", 10, PaintLosses));
    for (const bool small : {false, true}) {
        list.push_back(
            {small ? "Graphics/MouseMap2.bmp" : "Graphics/MouseMap.bmp", "marks",
             [small](const Studio&) { return PaintMouseMap(small ? kSmallHex : kNormalHex); }});
    }
}

void AddSmallUnits(std::vector<Picture>& list) {
    list.push_back(SheetPicture("Graphics/2d_mini_units", "small_units", 6, PaintSmallUnits));
    list.push_back(
        SheetPicture("Graphics/mini_counter_colours", "small_units", 6, PaintArmyColors));
    list.push_back(SheetPicture("Graphics/minimaps8", "mini_map", 11, PaintMiniMap));
}

struct BarSheet {
    const char* name;
    const char* color;
};

// The last four are bars that the game loads and has no use for yet.
constexpr BarSheet kBarSheets[] = {
    {"Thermometer_Elite", "bar.elite"},
    {"Thermometer_Veteran", "bar.veteran"},
    {"Thermometer_Experienced", "bar.experienced"},
    {"Thermometer_Militia", "bar.militia"},
    {"Unit_Thermometer_Green", "bar.veteran"},
    {"Unit_Thermometer_Yellow", "bar.elite"},
    {"Unit_Thermometer_Blue", "bar.experienced"},
    {"Unit_Thermometer_Red", "bar.low"},
};

void AddBars(std::vector<Picture>& list) {
    for (const BarSheet& bar : kBarSheets) {
        list.push_back(SheetPicture(
            std::string("Units/") + bar.name, "bars", 5,
            [color = bar.color](const Studio& studio) { return PaintMoraleBar(studio, color); }));
    }
    list.push_back(SheetPicture("Units/AmmoThermometer", "bars", 4, PaintAmmunition));
    list.push_back(SheetPicture("Graphics/3D_Unit_Bases", "bars", 6, PaintBases));
}

void AddCanvases(std::vector<Picture>& list) {
    list.push_back({"Graphics/Nap4.bmp", "canvases", PaintTopBarSheet});
    list.push_back({"Graphics/Emblems10.bmp", "canvases", PaintEmblems});
    list.push_back({"Graphics/Labels6.bmp", "canvases", PaintLabelSheet});
    list.push_back({"Graphics/Title Screen9D.bmp", "title", PaintTitle});
}

std::vector<Picture> AllPictures() {
    std::vector<Picture> list;
    AddGround(list);
    AddTerrain(list);
    AddWays(list);
    AddOverlays(list);
    AddUnits(list);
    AddMarks(list);
    AddSmallUnits(list);
    AddBars(list);
    AddCanvases(list);
    return list;
}

}  // namespace

const std::vector<Picture>& Catalogue() {
    static const std::vector<Picture> pictures = AllPictures();
    return pictures;
}

}  // namespace varnstride::art
