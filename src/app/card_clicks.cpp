#include "app/card_clicks.h"

#include "actions/unit_in_hand.h"
#include "app/guards.h"
#include "battle/event_card_table.h"
#include "model/areas.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

// A card that was not played is lost with the end of the turn, when a mailed turn is locked too.
bool CardWaits(const Game& game) {
    return IsTurnOpen(game) && game.options.eventCardsOn > 0 && game.state.eventCard > 0 &&
           game.state.eventCard < kFirstWeatherCard;
}

const EventCard& WaitingCard(const Game& game) {
    return EventCardOf(game.state.eventCard);
}

// The unit of the slot on which a card can fall: not an ally's, nor a wagon.
UnitId UnitForCard(const Game& game, int slot) {
    const UnitId id = UnitStandingAt(game, OwnSlot(game, slot - 1));
    const bool fits = id && id.army == game.state.currentArmy && IsOnMap(game, id) &&
                      IsFighting(game.At(id).type);
    return fits ? id : UnitId{};
}

CardUse PlayOnSlot(Game& game, int slot) {
    const EventCard& card = WaitingCard(game);
    const UnitId unit = UnitForCard(game, slot);
    if (!unit || card.onUnit == nullptr) return CardUse::Spent;
    game.state.currentUnit = unit.index;
    return card.onUnit(game);
}

// An area where nobody profits is none for the card.
CardUse PlayOnWholeArea(Game& game) {
    CardUse use = CardUse::Refused;
    for (int slot = 1; slot <= kSlotsPerSide; ++slot) {
        const UnitId unit = UnitForCard(game, slot);
        if (!unit) continue;
        game.state.currentUnit = unit.index;
        use = RouseUnit(game);
    }
    return use;
}

CardUse PlayOnLoneUnit(Game& game) {
    return game.state.ownSlotsFilled == 1 ? PlayOnSlot(game, 1) : CardUse::Refused;
}

bool AttackWaits(const Game& game) {
    return game.state.bombardmentMode != 0 || game.state.localBattleMode != 0;
}

}  // namespace

void ApplyCardToSlot(Game& game, int slot) {
    if (!CardWaits(game)) return;
    if (WaitingCard(game).onArea) {
        PlayOnWholeArea(game);
    } else if (PlayOnSlot(game, slot) == CardUse::Refused) {
        return;
    }
    game.state.eventCard = 0;
    ShowUnitPanels(game);
}

void ApplyCardToArea(Game& game) {
    if (!CardWaits(game) || game.grid.AreaOf(game.state.selectedCell) == 0) return;
    SelectArea(game);
    const int unitInHand = game.state.currentUnit;
    const bool onArea = WaitingCard(game).onArea;
    const CardUse use = onArea ? PlayOnWholeArea(game) : PlayOnLoneUnit(game);
    if (!onArea || AttackWaits(game)) game.state.currentUnit = unitInHand;
    if (use == CardUse::Refused) return;
    game.state.eventCard = 0;
    game.person->Redraw(View::UnitPanels);
}

}  // namespace varnstride
