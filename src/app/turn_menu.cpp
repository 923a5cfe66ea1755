#include "app/turn_menu.h"

#include <algorithm>
#include <array>

#include "actions/courier.h"
#include "actions/undo.h"
#include "app/file_menu.h"
#include "app/guards.h"
#include "battle/barrage.h"
#include "model/census.h"

namespace varnstride {
namespace {

void EndTurn(Game& game) {
    game.ArmyInPlay().commandPoints = 0;
    game.state.turnPhase = TurnPhase::EndTurn;
    game.person->Play(Sound::Tick);
    game.turnLog.turnInProgress = 0;
    game.person->Redraw(View::Frame);
}

bool AgreesToAdvance(Game& game) {
    return game.person->Confirm(
        {"Turn Advance Message", "       OK to advance turn?", BoxButtons::OkCancel});
}

// By e-mail an Allied player plays one army after the other before he sends the file.
bool HasFurtherAlliedArmy(const Game& game) {
    if (game.state.gameMode != GameMode::PlayByEmail || game.OwnSide() == Side::French)
        return false;
    return std::any_of(game.armies.begin() + game.state.currentArmy + 1, game.armies.end(),
                       [](const ArmyRecord& army) { return army.present > 0; });
}

void GoToNextAlliedArmy(Game& game) {
    if (game.person->Confirm(
            {"Next Allied Nation?", "       OK to advance?", BoxButtons::OkCancel})) {
        EndTurn(game);
    }
}

void ShowOrderUndone(Game& game) {
    game.person->Redraw(View::Map);
    game.person->Redraw(View::UnitPanels);
    game.person->Redraw(View::TopBar);
}

bool HasInitiative(const Unit& unit) {
    constexpr int kOwnInitiative = 5;
    return unit.leadership >= kOwnInitiative;
}

// A unit of initiative, or one led, may fight the enemy of its own area; guns may not.
void LookForLocalBattle(Game& game) {
    game.state.targetCell = game.InHand().Place();
    CensusOwnAtTarget(game);
    if (!HasInitiative(game.InHand()) && game.census.ownLeaders == 0) return;
    if (!IsFieldGun(game.InHand().type)) {
        CensusEnemy(game);
        if (game.census.enemyCount > 0) {
            game.state.localBattleMode = 1;
            game.waiting.heldUnit = game.state.currentUnit;
            return;
        }
    }
    game.person->Play(Sound::Ding);
}

struct HarmfulCards {
    std::array<int, 2> armies;
    std::array<int, 5> cards;  // 0 fills up
};

constexpr std::array<HarmfulCards, 3> kHarmfulCards = {{
    {{kFrench, kFrench}, {4, 7, 64, 0, 0}},
    {{kBritish, kAustrian}, {15, 16, 18, 19, 62}},
    {{kPrussian, kPrussian}, {22, 24, 28, 60, 61}},
}};

// An army without a deck of its own cannot cancel at all.
bool MayCancelCard(const Game& game) {
    for (const HarmfulCards& deck : kHarmfulCards) {
        if (std::count(deck.armies.begin(), deck.armies.end(), game.state.currentArmy) == 0) {
            continue;
        }
        const int card = game.state.eventCard;
        return card == 0 || std::count(deck.cards.begin(), deck.cards.end(), card) == 0;
    }
    return false;
}

// Whether the card was given up.
bool GiveUpEventCard(Game& game) {
    if (game.state.eventCard >= kFirstWeatherCard) {
        Refuse(game, "Events card", "Can not cancel General Events such as Weather");
        return false;
    }
    if (!MayCancelCard(game)) {
        Refuse(game, "Cancel Event Card",
               "Player not allowed to cancel this Event Card only those which have positve "
               "benefits");
        return false;
    }
    game.state.eventCard = 0;
    CancelBarrage(game);
    game.grid.LightAll();
    return true;
}

}  // namespace

void EndTurnByPlayer(Game& game) {
    if (!IsTurnOpen(game)) return;
    if (HasFurtherAlliedArmy(game)) {
        GoToNextAlliedArmy(game);
        return;
    }
    if (!AgreesToAdvance(game)) return;
    EndTurn(game);
    AutoSaveTurn(game);
    if (game.state.gameMode == GameMode::PlayByEmail) game.state.turnLocked = 1;
}

void UndoByCommand(Game& game) {
    UndoLastOrder(game, UndoBy::Command);
    ShowOrderUndone(game);
}

void UndoByKey(Game& game) {
    UndoLastOrder(game, UndoBy::Key);
    ShowOrderUndone(game);
}

void PrepareLocalBattle(Game& game) {
    if (!IsTurnOpen(game)) return;
    const bool points = HasCommandPoints(game);
    if (game.InHand().reservedH == 1) {
        game.person->Confirm(
            {"Do Battle", "Unit already conducted battle this turn by Leadership Initiative "});
        return;
    }
    const bool optionOn = game.options.localInitiativeOn == 1;
    if (optionOn && points) LookForLocalBattle(game);
    const bool initiative = HasInitiative(game.InHand());
    if (!optionOn || !initiative) game.person->Play(Sound::Ding);
    if (!initiative) ShowCourier(game, 14);
}

void CancelEventCard(Game& game) {
    if (GiveUpEventCard(game)) game.person->Confirm({"Events card", "Event card cancelled"});
}

void CancelEventCardByKey(Game& game) {
    GiveUpEventCard(game);
}

void CancelBarrage(Game& game) {
    LayAimDown(game);
}

void CancelLocalBattle(Game& game) {
    game.state.localBattleMode = 0;
}

void CancelAction(Game& game) {
    CancelBarrage(game);
    CancelLocalBattle(game);
    game.InHand().activity = UnitActivity::None;
    game.grid.LightAll();
}

}  // namespace varnstride
