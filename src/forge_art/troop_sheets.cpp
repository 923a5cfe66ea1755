#include "forge_art/troop_sheets.h"

#include <array>

#include "forge_art/horse.h"

namespace varnstride::art {
namespace {

using enum Arrangement;
using enum Calibre;

constexpr int kMost = 9;
constexpr int kMostLight = 5;  // light infantry without a base is never stronger
constexpr int kBatteries = 4;

// clang-format off
constexpr std::array kTroopSheets = {
    // fresh, spent, based,
    //     {uniform, head, body, horses, arrangement, calibre, nation, color}, counts
    TroopSheets{"French_Skirm", "French_Skirm2", "French_Skirm_trans",
     {"french.light", "shako", "", "", Skirmish, Light, Nation::French, false}, kMostLight, kMost},
    TroopSheets{"French_Skirm_Col", "French_Skirm_Col2", "French_Skirm_Col_trans",
     {"french.light", "shako", "", "", Column, Light, Nation::French, false}, kMostLight, kMost},
    TroopSheets{"French_Inf_Line1", "French_Inf_Line2", "French_Inf_Line1_trans",
     {"french.line", "shako", "", "", Line, Light, Nation::French, true}, kMost, kMost},
    TroopSheets{"French_Inf_Col1", "French_Inf_Col2", "French_Inf_Col1_trans",
     {"french.line", "shako", "", "", Column, Light, Nation::French, true}, kMost, kMost},
    TroopSheets{"French_Guard_Inf", "French_Guard_Inf2", "French_Guard_Inf_trans",
     {"french.guard", "bearskin", "", "", Line, Light, Nation::French, true}, kMost, kMost},
    TroopSheets{"French_Guard_Col1", "French_Guard_Col2", "French_Guard_Col_trans",
     {"french.guard", "bearskin", "", "", Column, Light, Nation::French, true}, kMost, kMost},
    TroopSheets{"French_Dragoon_Dismounted", "French_Dragoon_Dismounted2", "French_Dragoon_Dismounted_trans",
     {"french.dragoon", "helmet", "", "", Skirmish, Light, Nation::French, false}, kMost, kMost},
    TroopSheets{"French_LC", "French_LC2", "French_LC_trans",
     {"french.chasseur", "shako", "sabre", "bay,brown,bay,chestnut", Horse, Light, Nation::French, false}, kMost, kMost},
    TroopSheets{"French_Lancers", "French_Lancers2", "French_Lancers_trans",
     {"french.lancer", "helmet", "lance", "bay,chestnut,brown", Horse, Light, Nation::French, false}, kMost, kMost},
    TroopSheets{"French_HC", "French_HC2", "French_HC_trans",
     {"french.cuirassier", "helmet", "cuirass", "black,brown,black,bay", Horse, Light, Nation::French, false}, kMost, kMost},
    TroopSheets{"French_MC", "French_MC2", "French_MC_trans",
     {"french.dragoon", "helmet", "sabre", "bay,chestnut,bay,brown", Horse, Light, Nation::French, false}, kMost, kMost},
    TroopSheets{"", "", "French_Guard_Cav_trans",
     {"french.guardhorse", "bearskin", "sabre", "black", Horse, Light, Nation::French, false}, kMost, kMost},
    TroopSheets{"French_Artillery_Light", "French_Artillery_Light2", "French_Artillery_Light_trans",
     {"french.artillery", "shako", "sabre", "bay", Guns, Light, Nation::French, false}, kBatteries, kBatteries},
    TroopSheets{"French_Artillery", "French_Artillery2", "French_Artillery_trans",
     {"french.artillery", "shako", "sabre", "bay", Guns, Medium, Nation::French, false}, kBatteries, kBatteries},
    TroopSheets{"French_Artillery_Heavy", "French_Artillery_Heavy2", "French_Artillery_Heavy_trans",
     {"french.artillery", "bearskin", "sabre", "bay", Guns, Heavy, Nation::French, false}, kBatteries, kBatteries},
    TroopSheets{"British_Skirm", "British_Skirm2", "British_Skirm_trans",
     {"british.light", "stovepipe", "", "", Skirmish, Light, Nation::British, false}, kMostLight, kMost},
    TroopSheets{"British_Skirm_Col", "British_Skirm_Col2", "British_Skirm_Col_trans",
     {"british.light", "stovepipe", "", "", Column, Light, Nation::British, false}, kMostLight, kMost},
    TroopSheets{"British_Inf_Line1", "British_Inf_Line2", "British_Inf_Line1_trans",
     {"british.line", "stovepipe", "", "", Line, Light, Nation::British, true}, kMost, kMost},
    TroopSheets{"British_Inf_Col1", "British_Inf_Col2", "British_Inf_Col1_trans",
     {"british.line", "stovepipe", "", "", Column, Light, Nation::British, true}, kMost, kMost},
    TroopSheets{"British_Guard_Inf", "British_Guard_Inf2", "British_Guard_Inf_trans",
     {"british.guard", "tallplume", "", "", Line, Light, Nation::British, true}, kMost, kMost},
    TroopSheets{"British_Guard_Col1", "British_Guard_Col2", "British_Guard_Col_trans",
     {"british.guard", "tallplume", "", "", Column, Light, Nation::British, true}, kMost, kMost},
    TroopSheets{"British_Dragoon_Dismounted", "British_Dragoon_Dismounted2", "British_Dragoon_Dismounted_trans",
     {"british.dragoon", "greekhelmet", "", "", Skirmish, Light, Nation::British, false}, kMost, kMost},
    TroopSheets{"British_Cav_Light", "British_Cav_Light2", "British_Cav_Light_trans",
     {"british.hussar", "shako", "raised", "bay,brown,chestnut", Horse, Light, Nation::British, false}, kMost, kMost},
    TroopSheets{"British_Lancers", "British_Lancers2", "British_Lancers_trans",
     {"british.lancer", "czapka", "lance", "black,brown", Horse, Light, Nation::British, false}, kMost, kMost},
    TroopSheets{"British_Cav_Medium", "British_Cav_Medium2", "British_Cav_Medium_trans",
     {"british.dragoon", "greekhelmet", "raised", "black,bay,grey,brown", Horse, Light, Nation::British, false}, kMost, kMost},
    TroopSheets{"", "", "British_Cav_Heavy_trans",
     {"british.dragoon", "greekhelmet", "sabre", "black", Horse, Light, Nation::British, false}, kMost, kMost},
    TroopSheets{"British_Artillery_Light", "British_Artillery_Light2", "British_Artillery_Light_trans",
     {"british.artillery", "stovepipe", "sabre", "bay", Guns, Light, Nation::British, false}, kBatteries, kBatteries},
    TroopSheets{"British_Artillery", "British_Artillery2", "British_Artillery_trans",
     {"british.artillery", "stovepipe", "sabre", "bay", Guns, Medium, Nation::British, false}, kBatteries, kBatteries},
    TroopSheets{"British_Artillery_Heavy", "British_Artillery_Heavy2", "British_Artillery_Heavy_trans",
     {"british.artillery", "stovepipe", "sabre", "bay", Guns, Heavy, Nation::British, false}, kBatteries, kBatteries},
    TroopSheets{"Prussian_Skirm", "Prussian_Skirm2", "Prussian_Skirm_trans",
     {"prussian.fusilier", "covered", "", "", Skirmish, Light, Nation::Prussian, false}, kMostLight, kMost},
    TroopSheets{"Prussian_Grenadier_Col3", "Prussian_Grenadier_Col4", "Prussian_Grenadier_Col3_trans",
     {"prussian.grenadier", "tallplume", "", "", Column, Light, Nation::Prussian, true}, kMost, kMost},
    TroopSheets{"Prussian_Inf_Line3", "Prussian_Inf_Line4", "Prussian_Inf_Line3_trans",
     {"prussian.line", "covered", "", "", Line, Light, Nation::Prussian, true}, kMost, kMost},
    TroopSheets{"Prussian_Grenadiers", "Prussian_Grenadiers2", "Prussian_Grenadiers_trans",
     {"prussian.grenadier", "tallplume", "", "", Line, Light, Nation::Prussian, true}, kMost, kMost},
    TroopSheets{"Prussian_Inf_Col3", "Prussian_Inf_Col4", "Prussian_Inf_Col3_trans",
     {"prussian.line", "covered", "", "", Column, Light, Nation::Prussian, true}, kMost, kMost},
    TroopSheets{"Prussian_Dragoon_Dismounted", "Prussian_Dragoon_Dismounted2", "Prussian_Dragoon_Dismounted_trans",
     {"prussian.dragoon", "covered", "", "", Skirmish, Light, Nation::Prussian, false}, kMost, kMost},
    TroopSheets{"Prussian_Cav_Light", "Prussian_Cav_Light2", "Prussian_Cav_Light_trans",
     {"prussian.hussar", "covered", "raised", "bay,brown,black", Horse, Light, Nation::Prussian, false}, kMost, kMost},
    TroopSheets{"Prussian_Lancers", "Prussian_Lancers2", "Prussian_Lancers_trans",
     {"prussian.uhlan", "czapka", "lance", "bay,chestnut,brown", Horse, Light, Nation::Prussian, false}, kMost, kMost},
    TroopSheets{"Prussian_Cav_Medium", "Prussian_Cav_Medium2", "Prussian_Cav_Medium_trans",
     {"prussian.dragoon", "covered", "sabre", "bay,brown,chestnut", Horse, Light, Nation::Prussian, false}, kMost, kMost},
    TroopSheets{"Prussian_Cav_Heavy", "Prussian_Cav_Heavy2", "Prussian_Cav_Heavy_trans",
     {"prussian.cuirassier", "greekhelmet", "sabre", "black,brown", Horse, Light, Nation::Prussian, false}, kMost, kMost},
    TroopSheets{"Prussian_Artillery_Light", "Prussian_Artillery_Light2", "Prussian_Artillery_Light_trans",
     {"prussian.artillery", "covered", "sabre", "bay", Guns, Light, Nation::Prussian, false}, kBatteries, kBatteries},
    TroopSheets{"Prussian_Artillery", "Prussian_Artillery2", "Prussian_Artillery_trans",
     {"prussian.artillery", "covered", "sabre", "bay", Guns, Medium, Nation::Prussian, false}, kBatteries, kBatteries},
    TroopSheets{"Prussian_Artillery_Heavy", "Prussian_Artillery_Heavy2", "Prussian_Artillery_Heavy_trans",
     {"prussian.artillery", "covered", "sabre", "bay", Guns, Heavy, Nation::Prussian, false}, kBatteries, kBatteries},
};
// clang-format on

struct LeaderGroup {
    Troop general;
    std::string_view aide;  // uniform of those who ride with him
};

constexpr std::array<LeaderGroup, 3> kLeaders = {{
    {{"french.leader", "bicorne", "point", "white", Leader, Light, Nation::French, false},
     "french.aide"},
    {{"british.leader", "bicorne", "point", "chestnut", Leader, Light, Nation::British, false},
     "british.aide"},
    {{"prussian.leader", "cap", "point", "grey", Leader, Light, Nation::Prussian, false},
     "prussian.aide"},
}};

}  // namespace

std::span<const TroopSheets> AllTroopSheets() {
    return kTroopSheets;
}

std::vector<Tile> PaintLeaders(const Studio& studio, bool hasBase) {
    std::vector<Tile> tiles;
    for (const LeaderGroup& group : kLeaders) {
        const bool isFrench = group.general.nation == Nation::French;
        const Facing facing = isFrench ? Facing::Right : Facing::Left;
        for (const Freshness freshness : {Freshness::Spent, Freshness::Fresh}) {
            tiles.push_back(Mustered(PostLeader(studio, group.general, group.aide), studio,
                                     {facing, freshness, hasBase}));
        }
    }
    return tiles;
}

}  // namespace varnstride::art
