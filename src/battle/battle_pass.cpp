#include "battle/battle_pass.h"

#include "actions/top_bar.h"
#include "battle/fight_area.h"
#include "model/areas.h"

namespace varnstride {

void RunBattlePass(Game& game) {
    game.state.battlePassRunning = 1;
    game.person->Redraw(View::NoUnitPanels);
    for (int ordinal : game.atlas->BattleOrder()) {
        SelectAreaByOrdinal(game, ordinal);
        FightArea(game);
    }
    game.state.battlePassRunning = 0;
    DrawTopBar(game);
}

}  // namespace varnstride
