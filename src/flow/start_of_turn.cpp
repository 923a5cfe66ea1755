#include "flow/start_of_turn.h"

#include "actions/courier.h"
#include "actions/pinning.h"
#include "actions/reinforcements.h"
#include "actions/sides.h"
#include "actions/top_bar.h"
#include "battle/event_cards.h"
#include "battle/weather.h"
#include "flow/background_sound.h"
#include "flow/command_control.h"
#include "flow/command_report.h"
#include "flow/fog_of_war.h"
#include "flow/game_pass.h"
#include "flow/map_filters.h"
#include "model/score.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"
#include "opponent/opponent_turn.h"

namespace varnstride {
namespace {

void ClearWhatLastsOneTurn(Game& game) {
    GameState& state = game.state;
    state.currentUnit = 0;
    if (state.eventCard < kFirstWeatherCard) state.eventCard = 0;
    game.options.cardInPlay = 0;
    game.options.cardEffect = 0;
    state.cardShown = 0;
}

// On the first game turn there was no turn change before that would have done this.
void OpenFirstGameTurn(Game& game) {
    if (game.state.gameTurn != 1) return;
    if (game.state.currentArmy == game.header.firstPlayer) AdvanceWeather(game);
    if (game.settings.backgroundSound == 1) StartAmbient(game);
    for (int index : UnitIndices(game)) {
        Unit& unit = game.At({game.state.currentArmy, index});
        if (unit.strength > 0 && unit.arrivalTurn <= game.state.gameTurn) {
            unit.actionPoints = ComputeActionPoints(unit, game.header.visibility);
        }
    }
}

void TellOfWeather(Game& game) {
    constexpr int kBombardmentSight = 10;
    constexpr int kSquallSight = 8;
    constexpr double kHalfHour = 0.3;
    GameState& state = game.state;
    if (!IsHumanArmy(game)) return;
    if (state.clockHours == game.time.duskHour + kHalfHour) ShowCourier(game, 42);
    if (state.bombardmentState <= 0 || game.header.visibility < kSquallSight) return;
    state.bombardmentState = 2;
    ShowCourier(game, game.header.visibility >= kBombardmentSight ? 88 : 89);
}

void ReadyUnitsForBattle(Game& game) {
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        if (IsOnMap(game, id)) game.At(id).canMove = 1;
    }
}

int OwnMorale(const Game& game) {
    return game.OwnSide() == Side::French ? game.state.frenchMorale : game.state.alliedMorale;
}

// An army in crisis loses its routed units faster, all but the best.
void DrainRoutedUnits(Game& game) {
    constexpr int kDrain = 8;
    for (int index : UnitIndices(game)) {
        Unit& unit = game.At({game.state.currentArmy, index});
        const bool steady = unit.quality == Quality::Elite || unit.quality == Quality::Veteran;
        if (unit.status == UnitStatus::Routed && !steady) LoseMorale(unit, kDrain);
    }
}

void ReportOnArmy(Game& game) {
    constexpr int kNearRout = 30;
    constexpr int kCrisis = 51;
    const bool firstOfAll =
        game.state.gameTurn == 1 && game.state.currentArmy == game.header.firstPlayer;
    if (game.turnLog.turnInProgress != 0 || firstOfAll) return;
    RecomputeMorale(game, ArmiesCounted::PresentExactlyOne);
    const bool computers = IsComputerSide(game.state.computerPlays, game.state.currentArmy);
    if (OwnMorale(game) < kNearRout && !computers) ShowCourier(game, 96);
    if (OwnMorale(game) < kCrisis) DrainRoutedUnits(game);
    if (!IsHumanViewer(game)) return;
    game.person->Redraw(View::Frame);
    ShowCommandReport(game);
    game.person->Redraw(View::Frame);
}

void ClearMoveMarks(Game& game) {
    for (PlayCell& cell : game.grid.PlayCells())
        cell.moveMark = 0;
}

void SelectMapCentre(Game& game) {
    if (game.turnLog.turnInProgress != 0) return;
    game.state.selectedCell = {game.grid.Width() / 2, game.grid.Height() / 2};
    game.person->Redraw(View::CentreOnSelected);
}

void TakeCardOfTurn(Game& game) {
    if (game.options.eventCardsOn != 1) return;
    if (game.state.eventCard < kFirstWeatherCard) DrawEventCard(game);
    ClearCardEffects(game);
    if (IsHumanViewer(game)) ShowEventCard(game);
}

// Nothing is in hand when a person's orders begin.
void BeginOrders(Game& game) {
    GameState& state = game.state;
    if (state.gameMode == GameMode::Local && !IsHumanViewer(game)) return;
    state.turnPhase = TurnPhase::Orders;
    state.currentUnit = state.selectedSlot = state.moveCost = 0;
    state.leavingContact = false;
    state.opponentMark = 1;
}

}  // namespace

void RunStartOfTurn(Game& game) {
    ClearWhatLastsOneTurn(game);
    ResetCommandPoints(game);
    OpenFirstGameTurn(game);
    TellOfWeather(game);
    ReleaseFixedUnits(game);
    ReadyUnitsForBattle(game);
    ArriveReinforcements(game);
    game.grid.LightAll();
    ReportOnArmy(game);
    if (game.state.reinforcementsArrived != 0 && HumanOrOpenMap(game)) ShowCourier(game, 44);
    game.person->Redraw(View::InfoBar);
    ClearHighlight(game);
    SwitchFiltersOff(game);
    if (game.Army(kFrench).commandControl == 1) ApplyCommandControl(game);
    ApplyFogOfWar(game);
    StartTurnAreaPass(game);
    ClearHighlight(game);
    game.grid.LightPlayable();
    RestartBackgroundSound(game);
    game.person->Redraw(View::Toolbar);
    SelectMapCentre(game);
    if (IsHumanViewer(game)) game.person->Redraw(View::NoUnitPanels);
    TakeCardOfTurn(game);
    DrawTopBar(game);
    LetComputerPlay(game);
    if (game.state.turnPhase == TurnPhase::StartTurn) BeginOrders(game);
}

void LetComputerPlay(Game& game) {
    if (!IsComputerTurn(game)) return;
    ClearMoveMarks(game);
    game.person->Redraw(View::NoUnitPanels);
    game.person->Redraw(View::Frame);
    RunOpponentTurn(game);
    game.grid.LightAll();
    ClearMoveMarks(game);
    game.state.turnPhase = TurnPhase::EndTurn;
}

}  // namespace varnstride
