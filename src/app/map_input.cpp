#include "app/map_input.h"

#include "actions/courier.h"
#include "actions/top_bar.h"
#include "actions/unit_in_hand.h"
#include "app/card_clicks.h"
#include "app/guards.h"
#include "battle/barrage.h"
#include "battle/called_attack.h"
#include "battle/move_order.h"
#include "flow/map_filters.h"
#include "model/areas.h"
#include "model/reach.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

// An order that waits for its target keeps the unit in hand and the shade as they are.
bool NoModeIsOn(const Game& game) {
    return game.state.bombardmentMode == 0 && game.state.localBattleMode == 0;
}

bool IsCharging(const Game& game) {
    return game.InHand().activity == UnitActivity::Charging;
}

// A click, key or command has run its course.
void EndClick(Game& game) {
    game.state.roadMover = false;
}

void MoveCursor(Game& game) {
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 0; x + 1 < game.grid.Width(); ++x) {
            game.grid.At({x, y}).selected = 0;
        }
    }
    game.grid.At(game.state.selectedCell).selected = 1;
}

void LetGoOfUnit(Game& game) {
    GameState& state = game.state;
    state.selectedSlot = 0;
    if (NoModeIsOn(game) && !IsCharging(game)) state.currentUnit = 0;
    state.ownSlotsFilled = state.moveCost = state.moveBlocked = 0;
}

void TakeChargeBack(Unit& unit) {
    if (unit.activity == UnitActivity::Charging || unit.activity == UnitActivity::BayonetCharge) {
        unit.activity = UnitActivity::None;
    }
}

// The next move of a unit that stands alone before the enemy costs more. The unit itself is taken
// in hand by its panel.
void MarkContactOfLoneUnit(Game& game) {
    const UnitId lone = UnitStandingAt(game, FirstOwnSlot(game));
    if (!lone || lone.army != game.state.currentArmy) return;
    const int unitInHand = game.state.currentUnit;
    game.state.currentUnit = lone.index;
    MarkLeavingContact(game);
    game.state.currentUnit = unitInHand;
}

void TakeLoneUnit(Game& game) {
    game.state.leavingContact = false;
    if (game.state.ownSlotsFilled != 1 || !NoModeIsOn(game)) return;
    game.state.selectedSlot = 1;
    if (!IsCharging(game)) MarkContactOfLoneUnit(game);
}

void ShowPanelsOfArea(Game& game) {
    if (NoModeIsOn(game) && !IsCharging(game)) ShowUnitPanels(game);
}

// Where several units stand, and for a Square, the area alone lights up.
void ShadeForArea(Game& game) {
    if (!NoModeIsOn(game)) return;
    if (game.state.ownSlotsFilled == 0) {
        game.state.selectedSlot = 0;
        game.person->Redraw(View::NoUnitPanels);
        game.grid.LightPlayable();
        return;
    }
    if (IsCharging(game)) return;
    const Unit& unit = game.InHand();
    const bool square = unit.formation == Formation::Square && unit.actionPoints > 0;
    if (game.state.ownSlotsFilled == 1 && !square) {
        ShadeReach(game);
    } else {
        ShadeReachWith(game, 0);
    }
}

// A local battle that waits for its target ends when the unit cannot fight it any more.
void EndHopelessLocalBattle(Game& game) {
    int& mode = game.state.localBattleMode;
    if (mode == 0 || game.options.localInitiativeOn != 1) return;
    if (!HasCommandPoints(game)) mode = 0;
    constexpr int kLeastAmmunition = 2;
    const Unit& unit = game.InHand();
    const bool powderArm = unit.type < UnitType::LightCavalry;
    if (mode == 0 || unit.ammunition >= kLeastAmmunition || !powderArm) return;
    mode = 0;
    ShowCourier(game, 286);
}

void SelectInArea(Game& game, Cell clicked) {
    const UnitId unitInHand = game.InHandId();
    LetGoOfUnit(game);
    TakeChargeBack(game.At(unitInHand));
    ApplyCardToArea(game);
    SelectArea(game);
    TakeLoneUnit(game);
    ShowPanelsOfArea(game);
    ShadeForArea(game);
    if (game.ArmyInPlay().commandPoints == 0) game.person->Play(Sound::Ding);
    FightCalledAttack(game, clicked);
    EndHopelessLocalBattle(game);
}

void ClickOn(Game& game, Cell cell) {
    GameState& state = game.state;
    state.miniMapShown = 0;
    ReleaseButtons(game);
    state.selectedCell = game.grid.Clamped(cell);
    MoveCursor(game);
    SelectArea(game);
    game.person->Redraw(View::InfoBar);
    if (state.mapScrolledByJump != 0) game.person->Redraw(View::CentreOnSelected);
    DrawTopBar(game);
    if (state.turnPhase == TurnPhase::Orders) SelectInArea(game, cell);
    if (IsTurnOpen(game)) game.turnLog.turnInProgress = 1;
    EndClick(game);
}

void BuyCard(Game& game, int card) {
    if (game.settings.noErrorAlert != 1) game.person->Play(Sound::Tick);
    --game.ArmyInPlay().commandPoints;
    game.options.cardInPlay = card;
    game.options.cardEffect = card;
    DrawTopBar(game);
}

// A second press only shows the card that is in play.
void ShowCardInPlay(Game& game) {
    constexpr int kFirstCardPicture = 55;
    Alert(game);
    game.state.cardShown = 1;
    game.state.courierCode = kFirstCardPicture - 1 + game.options.cardInPlay;
    Dialog reminder{.templateId = kCardReminder};
    reminder.AddButton(kOk, "OK");
    game.person->Ask(reminder);
    game.state.cardShown = 0;
}

}  // namespace

void OnLeftClick(Game& game, Cell cell) {
    if (game.state.mapReady == 0) return;
    game.state.mapScrolledByJump = 0;
    ClickOn(game, cell);
}

void OnJumpMapClick(Game& game, Cell cell) {
    if (game.state.mapReady == 0) return;
    game.state.mapScrolledByJump = 1;
    ClickOn(game, cell);
}

void OnRightClick(Game& game, Cell cell) {
    if (game.state.mapReady == 0) return;
    SwitchFiltersOff(game);
    ClearHighlight(game);
    game.state.targetCell = game.grid.Clamped(cell);
    MoveOrder(game);
    DrawTopBar(game);
    EndClick(game);
}

void TakeSlotInHand(Game& game, int slot) {
    LayAimDown(game);
    game.state.selectedSlot = slot;
    if (game.state.battlePassRunning != 0) return;
    ShowUnitPanels(game);
    ShadeReach(game);
}

void OnPanelClick(Game& game, int panel) {
    if (game.state.mapReady == 0) return;
    TakeSlotInHand(game, panel);
    ApplyCardToSlot(game, panel);
    EndClick(game);
}

void OnCardStripPress(Game& game, int card) {
    if (game.state.mapReady == 0 || !HasCommandPoints(game)) return;
    if (game.options.cardInPlay == 0) {
        BuyCard(game, card);
    } else if (game.state.cardShown == 0) {
        ShowCardInPlay(game);
    }
}

}  // namespace varnstride
