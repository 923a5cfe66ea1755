// What stands on the event cards: the title and the sense of each, in a line.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace varnstride {

struct EventCardText {
    int number;
    std::string_view title;
    std::string_view sense;
};

constexpr auto kEventCardTexts = std::to_array<EventCardText>({
    {1, "Marshal Ney", "Point at a cavalry unit: 1 Action Point more."},
    {2, "Les Grognards", "1 Command Point more."},
    {3, "March to the Sound of the Guns", "A reinforcement comes a turn sooner."},
    {4, "Imperial indecision", "No Elite or Veteran unit moves this turn."},
    {5, "Act with Boldness", "Point at any unit: 1 Action Point more."},
    {6, "Napoleon Appears", "1 Command Point more."},
    {7, "Napoleon's illness", "Every strike is 1 weaker this turn."},
    {8, "Vive l'Empereur!", "Point at a shaken or routed unit: it rallies a step."},
    {9, "Call up the militia", "A militia unit joins the army."},
    {10, "Charge!", "Point at a cavalry unit: 1 Action Point more."},
    {11, "Rally Command", "Point at a shaken or routed unit: it rallies a step."},
    {12, "Drive everything before you!", "Point at a cavalry unit: 1 Action Point more."},
    {13, "Reinforcements Arrive", "Point at a unit: 1 strength point more."},
    {14, "Steady Lads!", "No morale test when the enemy comes on."},
    {15, "Caution!", "Cautious leaders stop their units before contact."},
    {16, "Watch and Wait", "Nobody but the guns moves this turn."},
    {17, "Damned Good Ground", "Point at an area: each unit there has 1 Action Point more."},
    {18, "Lethargy and Confusion", "2 Command Points less."},
    {19, "Command Friction", "1 Command Point less."},
    {20, "Now is the Time!", "Point at a unit: 1 strength point more."},
    {21, "Call up the militia", "A militia unit joins the army."},
    {22, "Caution", "Cautious leaders stop their units before contact."},
    {23, "March to the Sound of the Guns", "A reinforcement comes a turn sooner."},
    {24, "Watch and Wait", "Nobody but the guns moves this turn."},
    {25, "Rally to Old Forwards!", "Point at a shaken or routed unit: it rallies a step."},
    {26, "von Feseiples's Luck", "1 Command Point more."},
    {27, "Prussian Determination", "No morale test when the enemy comes on."},
    {28, "Coordination Crisis", "Anglo-Dutch and Prussians keep out of each other's areas."},
    {29, "von Zieten leads", "Point at a unit: 1 strength point more."},
    {30, "Hold the Line!", "Point at an infantry unit: 1 strength point more."},
    {31, "Hasty Square", "Point at an infantry unit: it forms square at no cost."},
    {32, "Light Infantry Skirmish", "Point at light infantry: it goes to Open Order at no cost."},
    {33, "Call Forth Reserves", "A new unit comes to the edge of the map."},
    {34, "Short Supply", "Point at a unit: it loses all its ammunition."},
    {35, "Give them the Cold Steel!", "Point at a cavalry unit: 1 Action Point more."},
    {36, "Artillery Reposition", "Point at a field battery: 1 Action Point more."},
    {37, "Hold and Fire", "The infantry neither moves nor attacks this turn."},
    {38, "Break the Square!", "Horse and guns strike 1 harder this turn."},
    {39, "Artillery support attack", "Horse and guns strike 1 harder this turn."},
    {60, "Fear of Ambush", "Nobody enters close terrain this turn."},
    {61, "Mistaken Orders", "Point at a unit: it loses all its Action Points."},
    {62, "Breakfast!", "Point at a unit: it loses all its Action Points."},
    {63, "Commander orders Forced March", "Point at any unit: 1 Action Point more."},
    {64, "Misdirection", "Point at a unit: it loses all its Action Points."},
    {65, "Street Fighting", "Tactical Card 3 is in play at no cost."},
    {100, "Napoleon Humbugs Allies", "Point at an area: each unit there has 1 Action Point more."},
    {205, "Heavy Rain!!", "Powder is damp: the infantry does not fight this turn."},
    {206, "Thick Fog", "Musket fire is halved."},
    {208, "Night Fall", "Light troops alone move."},
});

// The text of a card; one without title for a number that has no picture.
constexpr EventCardText EventCardTextOf(int number) {
    const auto found =
        std::find_if(kEventCardTexts.begin(), kEventCardTexts.end(),
                     [number](const EventCardText& card) { return card.number == number; });
    return found == kEventCardTexts.end() ? EventCardText{number, {}, {}} : *found;
}

}  // namespace varnstride
