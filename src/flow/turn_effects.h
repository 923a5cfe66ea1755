// What decides the rest of a player turn and has no field of its own in a file: the effects of an
// event card that last one turn, the weather's own card, the state of the generator. The roll log
// carries them; opening and saving a battle call here, and so does the replay of a mailed turn.
#pragma once

#include "model/game.h"

namespace varnstride {

using RollLog = std::array<std::int16_t, kRollLogSize>;

// The card or strike effect that weatherCardCode stands for.
void RestoreWeatherCard(Game& game);

// The effects of the army in play at the head of the roll log, for the replay of its battles.
void RecordEffects(Game& game);
void ReplayEffects(Game& game);

// Writes the tag by which a turn saved before its end goes on with the same dice and effects into
// the log of a file.
void WriteTurnTag(const Game& game, RollLog& log);

// Puts back what the tag of the file just opened holds and clears it; nothing happens when the file
// has none.
void TakeTurnTag(Game& game);

}  // namespace varnstride
