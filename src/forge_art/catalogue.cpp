#include "forge_art/catalogue.h"

#include "forge_art/ground.h"
#include "forge_art/overlays.h"
#include "forge_art/road_pieces.h"
#include "forge_art/sheet.h"
#include "forge_art/terrain.h"
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
    list.push_back(SheetPicture("Units/" + std::string(name),
                                "units." + std::string(name.substr(0, name.find('_'))),
                                kUnitColumns, [troop, look, count](const Studio& studio) {
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

std::vector<Picture> AllPictures() {
    std::vector<Picture> list;
    AddGround(list);
    AddTerrain(list);
    AddWays(list);
    AddOverlays(list);
    AddUnits(list);
    return list;
}

}  // namespace

const std::vector<Picture>& Catalogue() {
    static const std::vector<Picture> pictures = AllPictures();
    return pictures;
}

}  // namespace varnstride::art
