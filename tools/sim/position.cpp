#include "sim/position.h"

#include "files/battle_file.h"
#include "flow/armies_arrived.h"
#include "model/units_on_map.h"
#include "sim/subcommands.h"

namespace varnstride::sim {

void OpenPosition(Game& game, const std::string& path) {
    const Result<BattleFile> file = ReadBattleFile(path, *game.atlases);
    if (!file.Ok()) throw Refusal(file.Message());
    PutIntoGame(file.Get(), FileKind::Battle, game);
    game.state.gameTurn = game.header.savedTurn;
    game.state.turnCursor = game.state.currentArmy = game.header.savedArmy;
    game.state.unitLimit = kUnitsPerArmy;
    FindStandingUnits(game, ArmiesArrived(game));
}

}  // namespace varnstride::sim
