#include "battle/event_cards.h"

#include <algorithm>
#include <array>

#include "actions/top_bar.h"
#include "battle/event_card_table.h"
#include "model/dice.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr int kDeckSize = 10;
constexpr int kAnyArmy = -1;

struct Deck {
    int army;
    std::array<int, kDeckSize> cards;  // by what the die shows; 0 no card
};

constexpr Deck kFrenchDeck = {kFrench, {100, 1, 2, 3, 4, 5, 6, 7, 8, 9}};
constexpr Deck kBritishDeck = {kBritish, {10, 11, 12, 13, 14, 15, 16, 17, 18, 19}};
constexpr Deck kPrussianDeck = {kPrussian, {20, 21, 22, 23, 24, 25, 26, 27, 28, 29}};
constexpr Deck kAustrianDeck = {kAustrian, {30, 31, 32, 33, 34, 35, 36, 37, 38, 39}};
constexpr Deck kGuestDeck = {kAnyArmy, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}};  // an army with no own

using Maps = std::array<int, 3>;  // 0 fills up

// The decks that lie ready on a group of battlefields; the first that fits the army is drawn from.
struct Table {
    Maps maps;
    std::array<const Deck*, 4> decks;
};

constexpr std::array<Table, 3> kTables = {{
    {{1, 2, 7}, {&kFrenchDeck, &kBritishDeck, &kPrussianDeck, &kGuestDeck}},
    {{3, 4, 8}, {&kFrenchDeck, &kPrussianDeck, &kGuestDeck, nullptr}},
    {{5, 6, 0}, {&kFrenchDeck, &kAustrianDeck, nullptr, nullptr}},
}};

bool IsPlayedOn(const Game& game, const Maps& maps) {
    return std::find(maps.begin(), maps.end(), game.header.mapNumber) != maps.end();
}

const Deck* DeckInPlay(const Game& game) {
    for (const Table& table : kTables) {
        if (!IsPlayedOn(game, table.maps)) continue;
        for (const Deck* deck : table.decks) {
            if (deck == nullptr) return nullptr;
            if (deck->army == game.state.currentArmy || deck->army == kAnyArmy) return deck;
        }
    }
    return nullptr;
}

template <typename Test>
bool NoUnitOnMap(const Game& game, Test test) {
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        if (IsOnMap(game, id) && test(game.At(id))) return false;
    }
    return true;
}

bool Always(const Game&) {
    return true;
}
bool HasNoCavalry(const Game& game) {
    return NoUnitOnMap(game, [](const Unit& unit) { return IsMounted(unit.type); });
}
bool HasNobodyToRally(const Game& game) {
    return NoUnitOnMap(game, [](const Unit& unit) { return unit.status < UnitStatus::Unsteady; });
}

// Cards that could not work on a battlefield, or for an army as it stands, and what comes instead.
struct StandIn {
    Maps maps;
    int army;
    int card;
    bool (*isNeeded)(const Game&);
    int instead;
};

constexpr std::array<StandIn, 9> kStandIns = {{
    {{1, 2, 0}, kPrussian, 28, Always, 60},
    {{1, 2, 7}, kPrussian, 26, Always, 61},
    {{1, 2, 7}, kFrench, 1, HasNoCavalry, 64},
    {{1, 2, 7}, kBritish, 10, HasNoCavalry, 63},
    {{1, 2, 7}, kBritish, 12, HasNoCavalry, 63},
    {{1, 2, 7}, kFrench, 8, HasNobodyToRally, 65},
    {{1, 2, 7}, kBritish, 11, HasNobodyToRally, 62},
    {{3, 4, 8}, kPrussian, 28, Always, 60},
    {{8, 0, 0}, kPrussian, 29, Always, 61},
}};

int CardOrStandIn(const Game& game, int card) {
    for (const StandIn& entry : kStandIns) {
        if (entry.card == card && entry.army == game.state.currentArmy &&
            IsPlayedOn(game, entry.maps) && entry.isNeeded(game)) {
            return entry.instead;
        }
    }
    return card;
}

// At Gilly the French always open with boldness.
bool IsFrenchOpeningAtGilly(const Game& game) {
    constexpr int kGilly = 4;
    return game.header.mapNumber == kGilly && game.state.currentArmy == kFrench &&
           game.state.gameTurn == 1;
}

}  // namespace

void DrawEventCard(Game& game) {
    constexpr int kActWithBoldness = 5;
    const Deck* deck = DeckInPlay(game);
    if (deck == nullptr) return;
    const auto drawn = static_cast<std::size_t>(Die(game, kDeckSize));
    game.state.eventCard =
        IsFrenchOpeningAtGilly(game) ? kActWithBoldness : CardOrStandIn(game, deck->cards[drawn]);
}

void ShowEventCard(Game& game) {
    constexpr int kPicture = 1071;
    Dialog dialog{.templateId = kCardDraw, .caption = "Card Draw"};
    dialog.AddPictureButton(kPicture, game.state.eventCard);
    game.person->Ask(dialog);
    const EventCard& card = EventCardOf(game.state.eventCard);
    if (card.press != nullptr) card.press(game);
    DrawTopBar(game);
}

void ClearCardEffects(Game& game) {
    GameState& state = game.state;
    state.strikeDrawCard = 0;
    state.steadyNerves = 0;
    state.haltBeforeContact = false;
    state.noCloseEntry = false;
    state.alliesApart = false;
    if (game.options.weatherCardCode == kStrikeCardCode) game.options.weatherCardCode = 0;
}

}  // namespace varnstride
