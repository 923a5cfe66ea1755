#include "app/artillery_orders.h"

#include <vector>

#include "actions/courier.h"
#include "actions/unit_in_hand.h"
#include "app/guards.h"
#include "battle/barrage.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr int kGunList = 1285;
constexpr int kLocate = 1023;
constexpr int kFire = 1367;

Dialog GunDialog(const Game& game, const std::vector<UnitId>& guns) {
    std::vector<std::string> names;
    for (UnitId gun : guns)
        names.emplace_back(game.At(gun).name.data());
    Dialog dialog{.templateId = kBombardmentList,
                  .caption = "Artillery available for Bombardment",
                  .heading = "When Firing - Left Click Mouse on Target Area"};
    dialog.AddList(kGunList, names);
    dialog.AddButton(kLocate, "Locate");
    dialog.AddButton(kFire, "Fire");
    dialog.AddButton(kCancel, "Cancel");
    return dialog;
}

// Asks until a gun is chosen or the list is put away.
UnitId AskForGun(Game& game, const std::vector<UnitId>& guns, Dialog& dialog) {
    for (;;) {
        game.person->Ask(dialog);
        if (dialog.closedBy != kLocate && dialog.closedBy != kFire) return {};
        const int line = dialog.At(kGunList).value;
        if (line >= 0) return guns[static_cast<std::size_t>(line)];
    }
}

void LocateGun(Game& game, UnitId gun) {
    const Cell place = game.At(gun).Place();
    game.state.currentUnit = gun.index;
    game.grid.LightAll();
    game.state.selectedCell = place;
    game.person->Redraw(View::CentreOnSelected);
    ShowUnitPanels(game);
    game.grid.At(place).highlight = 1;
}

void AskWhichGun(Game& game) {
    const std::vector<UnitId> guns = FindAbleGuns(game);
    Dialog dialog = GunDialog(game, guns);
    const UnitId gun = AskForGun(game, guns, dialog);
    if (!gun) {
        game.grid.LightAll();
    } else if (dialog.closedBy == kLocate) {
        LocateGun(game, gun);
    } else {
        game.waiting.heldUnit = game.state.currentUnit;
        AimGun(game, gun);
    }
}

bool IsSpent(const Unit& unit) {
    return unit.ammunition == 0 || unit.actionPoints == 0 || unit.status == UnitStatus::Routed;
}

}  // namespace

void ChooseGunToAim(Game& game) {
    const bool charging = game.InHand().activity == UnitActivity::Charging;
    if (HasCommandPoints(game) && IsTurnOpen(game) && !charging) AskWhichGun(game);
    ReleaseButtons(game);
}

void AimUnitInHand(Game& game) {
    constexpr int kNotEligible = 294;
    const UnitId gun = game.InHandId();
    if (!IsGunOnMap(game, gun)) ShowCourier(game, kNotEligible);
    if (IsSpent(game.InHand())) ShowCourier(game, kNotEligible);
    if (IsReadyToBombard(game, gun)) {
        if (HasEnemyInArea(game, gun)) {
            ShowCourier(game, kNotEligible);
        } else {
            game.waiting.heldUnit = gun.index;
            AimGun(game, gun);
        }
    }
    ReleaseButtons(game);
}

}  // namespace varnstride
