#include "actions/top_bar.h"

#include "model/score.h"

namespace varnstride {
namespace {

bool HasTopBar(int army) {
    return army == kFrench || army == kBritish || army == kPrussian;
}

}  // namespace

void DrawTopBar(Game& game) {
    if (HasTopBar(game.state.currentArmy)) {
        ComputeVictoryScore(game);
        if (game.header.gameEnded == 1) {
            RecomputeMorale(game, ArmiesCounted::PresentExactlyOne);
            ApplyArmyRoutRule(game);
        }
    }
    game.person->Redraw(View::TopBar);
}

}  // namespace varnstride
