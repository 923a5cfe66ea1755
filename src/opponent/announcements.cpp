#include "opponent/announcements.h"

#include <string>

#include "actions/courier.h"
#include "actions/top_bar.h"
#include "resources/army_names.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

void CentreOnUnitInHand(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    game.person->Redraw(View::CentreOnSelected);
}

}  // namespace

void AnnounceTurn(Game& game) {
    constexpr int kArmy = 1403;
    game.person->Redraw(View::Map);
    DrawTopBar(game);
    Dialog dialog{.templateId = kStartTurn, .caption = "Start Turn"};
    dialog.AddLabel(kArmy, std::string(ArmyTitle(game.state.currentArmy)));
    dialog.AddButton(kOk, "OK");
    game.person->Ask(dialog);
}

bool MovesAreShown(const Game& game) {
    return game.header.fogNone == 1;
}

void Announce(Game& game, int code) {
    const Cell cell = game.InHand().Place();
    game.grid.At(cell).highlight = 1;
    CentreOnUnitInHand(game);
    ShowCourier(game, code);
    game.grid.At(cell).highlight = 0;
}

void AnnounceIfShown(Game& game, int code) {
    if (MovesAreShown(game)) Announce(game, code);
}

void ShowUnitInHand(Game& game) {
    if (MovesAreShown(game)) CentreOnUnitInHand(game);
}

}  // namespace varnstride
