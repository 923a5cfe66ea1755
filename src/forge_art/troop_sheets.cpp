#include "forge_art/troop_sheets.h"

#include <array>

namespace varnstride::art {
namespace {

using enum Arrangement;
using enum Calibre;

constexpr int kMost = 9;
constexpr int kMostLight = 5;  // light infantry without a base is never stronger
constexpr int kBatteries = 4;

constexpr std::array<TroopSheets, 15> kTroopSheets = {{
    // fresh, spent, based, {uniform, head, body, horses, arrangement, calibre, nation, color}
    {"French_Skirm",
     "French_Skirm2",
     "French_Skirm_trans",
     {"french.light", "shako", "", "", Skirmish, Light, Nation::French, false},
     kMostLight,
     kMost},
    {"French_Skirm_Col",
     "French_Skirm_Col2",
     "French_Skirm_Col_trans",
     {"french.light", "shako", "", "", Column, Light, Nation::French, false},
     kMostLight,
     kMost},
    {"French_Inf_Line1",
     "French_Inf_Line2",
     "French_Inf_Line1_trans",
     {"french.line", "shako", "", "", Line, Light, Nation::French, true},
     kMost,
     kMost},
    {"French_Inf_Col1",
     "French_Inf_Col2",
     "French_Inf_Col1_trans",
     {"french.line", "shako", "", "", Column, Light, Nation::French, true},
     kMost,
     kMost},
    {"French_Guard_Inf",
     "French_Guard_Inf2",
     "French_Guard_Inf_trans",
     {"french.guard", "bearskin", "", "", Line, Light, Nation::French, true},
     kMost,
     kMost},
    {"French_Guard_Col1",
     "French_Guard_Col2",
     "French_Guard_Col_trans",
     {"french.guard", "bearskin", "", "", Column, Light, Nation::French, true},
     kMost,
     kMost},
    {"French_Dragoon_Dismounted",
     "French_Dragoon_Dismounted2",
     "French_Dragoon_Dismounted_trans",
     {"french.dragoon", "helmet", "", "", Skirmish, Light, Nation::French, false},
     kMost,
     kMost},
    {"French_LC",
     "French_LC2",
     "French_LC_trans",
     {"french.chasseur", "shako", "sabre", "bay,brown,bay,chestnut", Horse, Light, Nation::French,
      false},
     kMost,
     kMost},
    {"French_Lancers",
     "French_Lancers2",
     "French_Lancers_trans",
     {"french.lancer", "helmet", "lance", "bay,chestnut,brown", Horse, Light, Nation::French,
      false},
     kMost,
     kMost},
    {"French_HC",
     "French_HC2",
     "French_HC_trans",
     {"french.cuirassier", "helmet", "cuirass", "black,brown,black,bay", Horse, Light,
      Nation::French, false},
     kMost,
     kMost},
    {"French_MC",
     "French_MC2",
     "French_MC_trans",
     {"french.dragoon", "helmet", "sabre", "bay,chestnut,bay,brown", Horse, Light, Nation::French,
      false},
     kMost,
     kMost},
    {"",
     "",
     "French_Guard_Cav_trans",
     {"french.guardhorse", "bearskin", "sabre", "black", Horse, Light, Nation::French, false},
     kMost,
     kMost},
    {"French_Artillery_Light",
     "French_Artillery_Light2",
     "French_Artillery_Light_trans",
     {"french.artillery", "shako", "sabre", "bay", Guns, Light, Nation::French, false},
     kBatteries,
     kBatteries},
    {"French_Artillery",
     "French_Artillery2",
     "French_Artillery_trans",
     {"french.artillery", "shako", "sabre", "bay", Guns, Medium, Nation::French, false},
     kBatteries,
     kBatteries},
    {"French_Artillery_Heavy",
     "French_Artillery_Heavy2",
     "French_Artillery_Heavy_trans",
     {"french.artillery", "bearskin", "sabre", "bay", Guns, Heavy, Nation::French, false},
     kBatteries,
     kBatteries},
}};

constexpr std::array<Troop, 1> kLeaders = {{
    {"french.leader", "bicorne", "point", "grey", Leader, Light, Nation::French, false},
}};

}  // namespace

std::span<const TroopSheets> AllTroopSheets() {
    return kTroopSheets;
}

std::vector<Tile> PaintLeaders(const Studio& studio, bool hasBase) {
    std::vector<Tile> tiles;
    for (const Troop& leader : kLeaders) {
        const Facing facing = leader.nation == Nation::French ? Facing::Right : Facing::Left;
        for (const Freshness freshness : {Freshness::Spent, Freshness::Fresh}) {
            for (Tile& tile : PaintTroop(studio, leader, {facing, freshness, hasBase}, 1))
                tiles.push_back(std::move(tile));
        }
    }
    return tiles;
}

}  // namespace varnstride::art
