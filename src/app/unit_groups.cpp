#include "app/unit_groups.h"

#include <cstring>
#include <vector>

#include "actions/courier.h"
#include "actions/detachments.h"
#include "actions/top_bar.h"
#include "actions/unit_in_hand.h"
#include "app/guards.h"
#include "model/areas.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr std::array<int, kSlotsPerSide> kRotateTicks = {1677, 1678, 1679};

void SelectAreaOfUnit(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    SelectArea(game);
}

void ShowGroups(Game& game) {
    ShowUnitPanels(game);
    DrawTopBar(game);
    game.person->Redraw(View::Map);
}

bool IsSteady(const Unit& unit) {
    return unit.status > UnitStatus::Shaken;
}

bool StandsInOwnSlot(const Game& game, UnitId id) {
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        if (game.At(id).Place() == OwnSlot(game, slot)) return true;
    }
    return false;
}

bool IsSameUnit(const Unit& unit, const Unit& other) {
    return std::strcmp(unit.name.data(), other.name.data()) == 0;
}

// The first steady namesake of the area joins; routed ones on the way are named.
void JoinNamesake(Game& game) {
    const UnitId inHand = game.InHandId();
    for (int index : UnitIndices(game)) {
        const UnitId id{inHand.army, index};
        if (id == inHand || !IsOnMap(game, id) || !StandsInOwnSlot(game, id)) continue;
        if (!IsSameUnit(game.At(id), game.At(inHand))) continue;
        if (game.At(id).status == UnitStatus::Routed) {
            ShowCourier(game, 22);
            continue;
        }
        VacateSlot(game, id);
        JoinUnits(game, id);
        return;
    }
}

std::vector<UnitId> UnitsInSlots(const Game& game) {
    std::vector<UnitId> units;
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const UnitId id = UnitStandingAt(game, OwnSlot(game, slot));
        const bool own = id && id.army == game.state.currentArmy && IsOnMap(game, id);
        units.push_back(own ? id : UnitId{});
    }
    return units;
}

Dialog RotateDialog(const Game& game, const std::vector<UnitId>& units) {
    Dialog dialog{.templateId = kRotateUnits, .caption = "Choose only 2 Units to rotate"};
    for (std::size_t slot = 0; slot < units.size(); ++slot) {
        dialog.AddTick(kRotateTicks[slot], units[slot] ? game.At(units[slot]).name.data() : "",
                       false);
    }
    dialog.AddButton(kOk, "OK");
    dialog.AddButton(kCancel, "Cancel");
    return dialog;
}

std::vector<std::size_t> TickedSlots(const Dialog& dialog) {
    std::vector<std::size_t> ticked;
    for (std::size_t slot = 0; slot < kRotateTicks.size(); ++slot) {
        if (dialog.IsTicked(kRotateTicks[slot])) ticked.push_back(slot);
    }
    return ticked;
}

// Asks until two units are ticked or the dialog is given up.
void AskWhichToRotate(Game& game) {
    const std::vector<UnitId> units = UnitsInSlots(game);
    Dialog dialog = RotateDialog(game, units);
    for (;;) {
        game.person->Ask(dialog);
        if (dialog.closedBy != kOk) return;
        const std::vector<std::size_t> ticked = TickedSlots(dialog);
        if (ticked.size() == kSlotsPerSide) ShowCourier(game, 272);
        if (ticked.size() == 2 && units[ticked[0]] && units[ticked[1]]) {
            SwapUnits(game, units[ticked[0]], units[ticked[1]]);
            return;
        }
    }
}

}  // namespace

void DetachFormation(Game& game) {
    const bool points = HasCommandPoints(game);
    if (!points || !HasUnitInHand(game) || !IsTurnOpen(game)) return;
    SelectAreaOfUnit(game);
    const Unit& unit = game.InHand();
    if (!IsSteady(unit)) Alert(game);
    if (game.state.ownSlotsFilled > 1) ShowCourier(game, 27);
    if (game.state.ownSlotsFilled != 1 || !IsSteady(unit)) return;
    if (unit.outOfCommand != 0) {
        ShowCourier(game, 26);
    } else if (LargestDetachment(unit) == 0) {
        ShowCourier(game, 24);
    } else {
        DetachUnit(game);
        ShowGroups(game);
    }
}

void RejoinDetachment(Game& game) {
    const bool points = HasCommandPoints(game);
    if (!points || !HasUnitInHand(game) || !IsTurnOpen(game)) return;
    SelectAreaOfUnit(game);
    const bool steady = IsSteady(game.InHand());
    if (game.state.ownSlotsFilled < 2 || !steady) game.person->Play(Sound::Ding);
    if (game.state.ownSlotsFilled > 1 && steady) JoinNamesake(game);
    if (game.InHand().status == UnitStatus::Routed) ShowCourier(game, 23);
    ShowGroups(game);
}

void RotateUnits(Game& game) {
    if (HasCommandPoints(game) && IsTurnOpen(game)) {
        LoadOwnSlots(game);
        AskWhichToRotate(game);
        ShowGroups(game);
    }
    ReleaseButtons(game);
}

}  // namespace varnstride
