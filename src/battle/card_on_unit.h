// What event cards do to the unit in hand, on which the player has laid them. The table of cards in
// event_card_table.cpp names them. A refusal is told to the player, unless it is plain to see.
#pragma once

#include "model/game.h"

namespace varnstride {

// Refused: the unit is none for this card, which waits for another.
enum class CardUse { Spent, Refused };

// One Action Point more, in command: for any unit, for cavalry, for a field battery. A battery out
// of command stays so.
CardUse RouseUnit(Game& game);
CardUse RouseCavalry(Game& game);
CardUse RouseBattery(Game& game);

// One strength point more, for any fighting unit without guns or for infantry.
CardUse Reinforce(Game& game);
CardUse ReinforceInfantry(Game& game);

// A rally that succeeds, by one step. It is lost on a unit that has order.
CardUse RallyByCard(Game& game);

// Formations that ask for no nerve and no Command Point.
CardUse FormHastySquare(Game& game);
CardUse SendOutSkirmishers(Game& game);

CardUse LoseAmmunition(Game& game);
CardUse LoseActionPoints(Game& game);

}  // namespace varnstride
