#include "app/formation_dialog.h"

#include <array>

#include "actions/courier.h"
#include "actions/unit_in_hand.h"
#include "app/guards.h"
#include "battle/formation_change.h"
#include "model/areas.h"
#include "model/reach.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

struct NamedButton {
    FormationButton button;
    const char* name;
};

constexpr std::array<NamedButton, 7> kButtons = {{
    {FormationButton::Line, "Line"},
    {FormationButton::AttackColumn, "Attack Column"},
    {FormationButton::MixedOrder, "Mixed Order"},
    {FormationButton::Square, "Square"},
    {FormationButton::OpenOrder, "Open Order"},
    {FormationButton::MarchColumn, "March Column"},
    {FormationButton::Dismount, "Dismount or Remount"},
}};

bool KeepsItsFormation(UnitType type) {
    return IsFieldGun(type) || type == UnitType::Leader;
}

void ShowChange(Game& game) {
    game.person->Redraw(View::Map);
    game.state.selectedCell = game.InHand().Place();
    ShowUnitPanels(game);
    game.state.selectedCell = game.InHand().Place();
    ShadeReach(game);
    if (game.state.courierCode == 0) return;
    Alert(game);
    ShowCourier(game, game.state.courierCode);
}

void AskForFormation(Game& game) {
    game.state.courierCode = 0;
    Dialog dialog{.templateId = kFormationChange, .caption = "Formation Change"};
    for (const NamedButton& entry : kButtons) {
        dialog.AddButton(static_cast<int>(entry.button), entry.name);
    }
    dialog.AddButton(kCancel, "Cancel");
    game.person->Ask(dialog);
    for (const NamedButton& entry : kButtons) {
        if (dialog.closedBy == static_cast<int>(entry.button)) {
            OrderFormation(game, entry.button);
        }
    }
    ShowChange(game);
}

// Says what stands against any change; whether the unit may go on to the dialog.
bool MayChange(Game& game) {
    const bool points = HasCommandPoints(game);
    const Unit& unit = game.InHand();
    if (unit.actionPoints == 0) Alert(game);
    if (KeepsItsFormation(unit.type)) {
        Refuse(game, "Formation Change", "Artillery and Leader Units do not change formation");
    }
    return points && unit.actionPoints > 0 && !KeepsItsFormation(unit.type) && IsTurnOpen(game);
}

enum class ShadeAfterwards { Yes, No };

void ChangeFormation(Game& game, ShadeAfterwards shade) {
    if (!HasUnitInHand(game)) return;
    game.state.selectedCell = game.InHand().Place();
    SelectArea(game);
    game.state.closeSlots = 0;
    const bool mayChange = MayChange(game);
    if (BreakMarchOnDenseGround(game)) {
        game.person->Redraw(View::Map);
        if (shade == ShadeAfterwards::Yes) ShadeReach(game);
    } else if (mayChange) {
        AskForFormation(game);
    }
    ReleaseButtons(game);
}

}  // namespace

void ChangeFormationByCommand(Game& game) {
    ChangeFormation(game, ShadeAfterwards::Yes);
}

void ChangeFormationByKey(Game& game) {
    ChangeFormation(game, ShadeAfterwards::No);
}

}  // namespace varnstride
