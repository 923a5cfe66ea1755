// Plays a script: a program of its own with its settings, its battle and its person, one command
// after another, and the phase machine when the script says so.
#pragma once

#include "model/atlas.h"
#include "model/result.h"
#include "platform/headless/battle_events.h"
#include "platform/headless/script.h"

namespace varnstride {

// Plays the script and tells its events, the last one `end`. Fails with a message that names the
// script and the line: at once, before anything is told, when a file to open is bad, unless the
// script itself writes it; at its line for what shows only in play.
Result<Done> RunScript(const Script& script, const AtlasCatalogue& atlases, BattleEvents& events);

}  // namespace varnstride
