// The words of the courier messages by code. Codes from 200 on are about one unit, whose name is
// the title.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace varnstride {

constexpr int kFirstUnitCode = 200;

struct CourierText {
    int code;
    std::string_view text;
};

constexpr std::array kCourierTexts = {
    CourierText{1, "Unit in March Column does not initiate attack"},
    CourierText{2, "Infantry will not attack cavalry in Open terrain"},
    CourierText{3, "Cossacks will only attack a Unit half their strength or less"},
    CourierText{4, "Enemy target distance not found"},
    CourierText{5, "Cavalry stopped short of making contact with enemy unit"},
    CourierText{7, "Moved unit unable to conduct coordinated attack - Attack Breaks Down"},
    CourierText{8, "Area full - Unit unable to move in"},
    CourierText{9, "Routing unit unable to fall back"},
    CourierText{10, "Shaken Unit can not enter area contested by the enemy"},
    CourierText{13, "Unable to change formation - Close Terrain"},
    CourierText{14, "Local Leader fails Initiative Test"},
    CourierText{15, "Morale Test - HQ Unit can not rally"},
    CourierText{16, "Morale Test - Unit Rallied"},
    CourierText{17, "Morale Test - Unit unable to rally - enemy too close"},
    CourierText{18, "Morale Test - Unit failed to rally"},
    CourierText{19, "Army Briefing - No Intelligence Report available"},
    CourierText{20, "No action points available to resupply"},
    CourierText{21, "Unit Fully Supplied"},
    CourierText{22, "Can not join routed unit"},
    CourierText{23, "Routed unit can not join group"},
    CourierText{24, "Unit too small or not able to split"},
    CourierText{26, "Can not split unit when Fixed"},
    CourierText{27, "Too many units in area or wrong army"},
    CourierText{28,
                "Only drilled Light Infantry, Line Infantry and Guard / Grenadier Units may use "
                "Double Time"},
    CourierText{29, "Unit has already moved or has no Action Points"},
    CourierText{30, "Formation not suitable for Double Time"},
    CourierText{31, "No Command Points Remaining"},
    CourierText{38, "No enemy unit in area"},
    CourierText{40, "Local Commander stopped unit before contact"},
    CourierText{41, "Insufficient Command Points Remaining"},
    CourierText{42, "Visibility less than 100m, Movement Reduced. Bombardment halted"},
    CourierText{44, "Reinforcements have arrived"},
    CourierText{45, "Unable to reach objective due to enemy interception"},
    CourierText{46, "Difficulty Level - Hard - Undo option not available"},
    CourierText{47, "No Movement or Formation Change Occurred"},
    CourierText{48, "Progress blocked by friendly units"},
    CourierText{52, "Units need to be the same type and in the same organisation"},
    CourierText{53, "Maximum number of Units reached or Order Cancelled"},
    CourierText{
        58, "Unit failed to change formation due to Unit Status, existing formation or troop type"},
    CourierText{59, "Unit failed to change formation due to local enemy presence"},
    CourierText{60, "Not applicable to non-infantry units"},
    CourierText{61, "Allied Armies rarely used 'Mixed Order' formation"},
    CourierText{62, "Unit too small to form Mixed Order"},
    CourierText{64, "Can not form Square in Close Terrain"},
    CourierText{79, "Defender resistance crumbles"},
    CourierText{83, "Unable to change formation - Close Terrain - Unit no longer in formation"},
    CourierText{88, "Fog lifted or Heavy Rain stopped - Visibility recovered"},
    CourierText{89,
                "Fog lifted or Heavy Rain stopped - Visibility improved but artillery bombardment "
                "still prevented"},
    CourierText{90, "Visibility poor. Bombardment halted"},
    CourierText{91, "Attack stalled due to damp powder in muskets and cannon"},
    CourierText{93, "All Units seek to recover morale"},
    CourierText{96,
                "If your army morale is below 20% and the enemy army morale is above 40%, your "
                "army will rout and the battle will be lost"},
    CourierText{206, "Long distance shooting ineffective"},
    CourierText{211, "Defender unable to fall back"},
    CourierText{212, "Unit fired upon / attacked whilst retreating and suffered losses"},
    CourierText{232, "Unit does not require ammo"},
    CourierText{233, "Unit not capable of skirmishing"},
    CourierText{234, "Not a Cavalry Unit"},
    CourierText{235, "Foot Artillery Unit not chosen"},
    CourierText{236, "HQ Units are not eligible"},
    CourierText{237, "Unit chosen is not routing or rallying"},
    CourierText{239, "Unit in Square formation can not move"},
    CourierText{243, "Reinforcements failed to arrive - delayed by poor leadership"},
    CourierText{249, "Cavalry Charge"},
    CourierText{250, "Unit Moves towards Victory Area"},
    CourierText{251, "Unit General Advance"},
    CourierText{254, "Unit not capable of forming square"},
    CourierText{263, "Can not form Square from 'Open Order' skirmishing"},
    CourierText{265, "Detachment or remaining unit too small"},
    CourierText{266, "Unit Changing Formation"},
    CourierText{267, "Can not form Square when Unit disrupted"},
    CourierText{268, "Non-retreating Unit"},
    CourierText{269, "Unit rallying"},
    CourierText{270, "Do Battle"},
    CourierText{271, "Artillery Barrage sets building on fire"},
    CourierText{272, "Only tick two Units to rotate"},
    CourierText{273, "Unit moves to attack"},
    CourierText{274, "Leader moves"},
    CourierText{275, "Bayonet Charge"},
    CourierText{276, "Unit must be in Line or Attack Column to charge"},
    CourierText{277, "Non-Infantry Units are not eligible"},
    CourierText{278, "Cavalry morale fails, Unit pulls up short of making contact with the enemy"},
    CourierText{280, "Unit morale fails. Unit routs. "},
    CourierText{281, "Can not conduct Bayonet Charge against Cavalry"},
    CourierText{282, "Can not undo Cavalry move on enemy infantry"},
    CourierText{284, "Routed Unit moving suffers losses (stragglers / deserters)"},
    CourierText{285, "Cavalry unit follows up retreating enemy unit into adjacent area"},
    CourierText{286, "Unit low on ammo - Unable to initiate attack"},
    CourierText{287, "Artillery Barrage"},
    CourierText{292, "Unit already at maximum strength"},
    CourierText{294, "Unit not eligible for Artillery Bombardment"},
    CourierText{295, "Dismounted Cavalry can not re-mount in Close terrain"},
    CourierText{297, "No friendly unit within one area to resupply from"},
};

// The words of a code; nothing for one that has none.
constexpr std::string_view CourierTextOf(int code) {
    const auto found =
        std::find_if(kCourierTexts.begin(), kCourierTexts.end(),
                     [code](const CourierText& entry) { return entry.code == code; });
    return found == kCourierTexts.end() ? std::string_view{} : found->text;
}

}  // namespace varnstride
