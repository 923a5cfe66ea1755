#include "battle/event_card_table.h"

#include <algorithm>
#include <array>

#include "battle/card_press.h"

namespace varnstride {
namespace {

constexpr auto kCards = std::to_array<EventCard>({
    // French
    {.number = 100, .onArea = true},              // Napoleon Humbugs Allies
    {.number = 1, .onUnit = RouseCavalry},        // Marshal Ney
    {.number = 2, .press = GainCommandPoint},     // Les Grognards
    {.number = 3, .press = HastenReinforcement},  // March to the Sound of the Guns
    {.number = 4, .press = HoldBestUnits},        // Imperial indecision
    {.number = 5, .onUnit = RouseUnit},           // Act with Boldness
    {.number = 6, .press = GainCommandPoint},     // Napoleon Appears
    {.number = 7, .press = ChangeStrikes},        // Napoleon's illness
    {.number = 8, .onUnit = RallyByCard},         // Vive l'Empereur!
    {.number = 9, .press = CallUpMilitia},        // Call up the militia
    // British
    {.number = 10, .onUnit = RouseCavalry},         // Charge!
    {.number = 11, .onUnit = RallyByCard},          // Rally Command
    {.number = 12, .onUnit = RouseCavalry},         // Drive everything before you!
    {.number = 13, .onUnit = Reinforce},            // Reinforcements Arrive
    {.number = 14, .press = SteadyNerves},          // Steady Lads!
    {.number = 15, .press = HaltBeforeContact},     // Caution!
    {.number = 16, .press = WatchAndWait},          // Watch and Wait
    {.number = 17, .onArea = true},                 // Damned Good Ground
    {.number = 18, .press = LoseTwoCommandPoints},  // Lethargy and Confusion
    {.number = 19, .press = LoseCommandPoint},      // Command Friction
    // Prussian
    {.number = 20, .onUnit = Reinforce},           // Now is the Time!
    {.number = 21, .press = CallUpMilitia},        // Call up the militia
    {.number = 22, .press = HaltBeforeContact},    // Caution
    {.number = 23, .press = HastenReinforcement},  // March to the Sound of the Guns
    {.number = 24, .press = WatchAndWait},         // Watch and Wait
    {.number = 25, .onUnit = RallyByCard},         // Rally to Old Forwards!
    {.number = 26, .press = GainCommandPoint},     // von Feseiples's Luck
    {.number = 27, .press = SteadyNerves},         // Prussian Determination
    {.number = 28, .press = KeepAlliesApart},      // Coordination Crisis
    {.number = 29, .onUnit = Reinforce},           // von Zieten leads
    // Austrian
    {.number = 30, .onUnit = ReinforceInfantry},   // Hold the Line!
    {.number = 31, .onUnit = FormHastySquare},     // Hasty Square
    {.number = 32, .onUnit = SendOutSkirmishers},  // Light Infantry Skirmish
    {.number = 33, .press = CallUpMilitia},        // Call Forth Reserves
    {.number = 34, .onUnit = LoseAmmunition},      // Short Supply
    {.number = 35, .onUnit = RouseCavalry},        // Give them the Cold Steel!
    {.number = 36, .onUnit = RouseBattery},        // Artillery Reposition
    {.number = 37, .press = HoldFoot},             // Hold and Fire
    {.number = 38, .press = ChangeStrikes},        // Break the Square!
    {.number = 39, .press = ChangeStrikes},        // Artillery support attack
    // In place of cards that could not work
    {.number = 60, .press = AvoidCloseGround},   // Fear of Ambush
    {.number = 61, .onUnit = LoseActionPoints},  // Mistaken Orders
    {.number = 62, .onUnit = LoseActionPoints},  // Breakfast!
    {.number = 63, .onUnit = RouseUnit},         // Commander orders Forced March
    {.number = 64, .onUnit = LoseActionPoints},  // Misdirection
    {.number = 65, .press = FightInTheStreets},  // Street Fighting
});

constexpr EventCard kNoCard;

}  // namespace

const EventCard& EventCardOf(int number) {
    const auto card = std::find_if(kCards.begin(), kCards.end(), [number](const EventCard& entry) {
        return entry.number == number;
    });
    return card == kCards.end() ? kNoCard : *card;
}

}  // namespace varnstride
