#include "battle/battle_pass.h"

#include "actions/top_bar.h"

namespace varnstride {

void RunBattlePass(Game& game) {
    game.state.battlePassRunning = 1;
    game.person->Redraw(View::NoUnitPanels);
    game.state.battlePassRunning = 0;
    DrawTopBar(game);
}

}  // namespace varnstride
