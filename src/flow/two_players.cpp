#include "flow/two_players.h"

#include <algorithm>
#include <string_view>

#include "actions/courier.h"
#include "flow/armies_arrived.h"
#include "flow/turn_effects.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr int kReplay = 2;

Snapshot TakeSnapshot(Game& game) {
    Snapshot snapshot;
    snapshot.units = game.units;
    snapshot.loss = game.loss;
    for (const PlayCell& cell : game.grid.PlayCells()) {
        snapshot.marks.push_back({static_cast<std::int16_t>(cell.occupantMirror),
                                  static_cast<std::int16_t>(cell.occupant),
                                  static_cast<std::int16_t>(cell.roadTile)});
    }
    snapshot.armiesArrived = ArmiesArrived(game);
    return snapshot;
}

bool IsKept(const Game& game, int army) {
    return game.Army(army).present == 1;
}

void PutUnits(Game& game, const Snapshot& snapshot) {
    for (int army = 0; army < kArmyCount; ++army) {
        if (!IsKept(game, army)) continue;
        const ArmyUnits& kept = snapshot.units[static_cast<std::size_t>(army)];
        for (int index : UnitIndices(game))
            game.At({army, index}) = kept[static_cast<std::size_t>(index)];
    }
}

// Column 0 is never exchanged: no slot lies there.
void PutMarks(Game& game, const Snapshot& snapshot) {
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 1; x < game.grid.Width(); ++x) {
            const Snapshot::Marks& kept =
                snapshot.marks[static_cast<std::size_t>(y * game.grid.Width() + x)];
            PlayCell& cell = game.grid.At({x, y});
            cell.occupantMirror = kept.occupantMirror;
            cell.occupant = kept.occupant;
            cell.roadTile = kept.roadTile;
        }
    }
}

void PutSnapshot(Game& game, const Snapshot& snapshot) {
    PutUnits(game, snapshot);
    PutMarks(game, snapshot);
    game.loss = snapshot.loss;
    FindStandingUnits(game, snapshot.armiesArrived);
}

bool HoldsSameUnits(const Game& game, const Snapshot& snapshot) {
    for (int army = 0; army < kArmyCount; ++army) {
        if (!IsKept(game, army)) continue;
        const ArmyUnits& kept = snapshot.units[static_cast<std::size_t>(army)];
        for (int index : UnitIndices(game)) {
            if (game.At({army, index}) != kept[static_cast<std::size_t>(index)]) return false;
        }
    }
    return true;
}

constexpr int kLabel = 1403;
constexpr int kEdit = 1402;
constexpr std::size_t kLongestPassword = 9;

std::string TypedPassword(const Dialog& dialog) {
    return dialog.At(kEdit).text.substr(0, kLongestPassword);
}

void SetPassword(Game& game) {
    ScenarioHeader& header = game.header;
    const bool second = header.passMode == kReplay || header.savedArmy != header.firstPlayer;
    Dialog dialog{.templateId = kSetPassword, .caption = "  Set Password"};
    dialog.AddLabel(kLabel, second ? "Second Player" : "First Player");
    dialog.AddEdit(kEdit, {});
    dialog.AddButton(kOk, "OK");
    game.person->Ask(dialog);
    auto& password = header.passMode == kReplay ? header.secondPassword : header.firstPassword;
    password.fill('\0');
    std::ranges::copy(TypedPassword(dialog), password.begin());
}

// A finished turn's file is opened by the other side, an unfinished one by its own.
std::string_view NameOfOpener(const Game& game) {
    if (game.state.gameTurn == 1) return {};
    const bool finished = game.turnLog.turnInProgress == 0;
    const Side opener = finished ? game.EnemySide() : game.OwnSide();
    return opener == Side::French ? "France" : "Allied Armies";
}

bool Opens(const Game& game, std::string_view typed) {
    return typed == game.header.firstPassword.data() || typed == game.header.secondPassword.data();
}

void CheckPassword(Game& game) {
    Dialog dialog{.templateId = kPasswordCheck, .caption = "  Password Check"};
    dialog.AddLabel(kLabel, std::string(NameOfOpener(game)));
    dialog.AddEdit(kEdit, {});
    dialog.AddButton(kOk, "OK");
    dialog.AddButton(kCancel, "Cancel");
    for (;;) {
        game.person->Ask(dialog);
        if (dialog.closedBy != kOk) {
            game.state.gameMode = GameMode::Quit;
            return;
        }
        if (Opens(game, TypedPassword(dialog))) return;
        Alert(game);
    }
}

constexpr int kSecondsPerMinute = 60;

bool HasClock(const GameState& state) {
    return state.stopClock5 == 1 || state.stopClock10 == 1 || state.stopClock15 == 1;
}

bool TimeIsUp(const GameState& state) {
    const int minutes = state.stopClockSeconds / kSecondsPerMinute;
    return (state.stopClock5 == 1 && minutes >= 5) || (state.stopClock10 == 1 && minutes >= 10) ||
           (state.stopClock15 == 1 && minutes >= 15);
}

}  // namespace

void TakeBeforePass(Game& game) {
    game.beforePass = TakeSnapshot(game);
    game.beforePass.ofBattleInHand = true;
    RecordEffects(game);
}

void ExchangeForSave(Game& game) {
    if (!game.beforePass.ofBattleInHand) return;
    game.afterPass = TakeSnapshot(game);
    game.afterPass.rollLog.assign(game.turnLog.rollLog.begin(), game.turnLog.rollLog.end());
    PutSnapshot(game, game.beforePass);
}

void PutBackAfterPass(Game& game) {
    if (game.beforePass.ofBattleInHand) PutSnapshot(game, game.afterPass);
}

bool HasAfterPass(const Game& game) {
    const auto cells =
        static_cast<std::size_t>(game.grid.Width()) * static_cast<std::size_t>(game.grid.Height());
    return !game.afterPass.units.empty() && game.afterPass.marks.size() == cells &&
           std::ranges::equal(game.afterPass.rollLog, game.turnLog.rollLog) &&
           HoldsSameUnits(game, game.beforePass);
}

void RestoreAfterPass(Game& game) {
    PutSnapshot(game, game.afterPass);
}

void CheckPasswords(Game& game) {
    const bool firstTurn = game.state.gameTurn == 1;
    const bool unstarted =
        game.state.currentArmy == game.header.firstPlayer && game.turnLog.turnInProgress == 0;
    if (firstTurn && unstarted) {
        SetPassword(game);
    } else if (!firstTurn && game.header.gameEnded == 1) {
        game.person->Confirm({"Game End", "Password not required"});
    } else {
        CheckPassword(game);
    }
}

bool HandOverFirstTurn(Game& game) {
    GameState& state = game.state;
    if (state.gameTurn != 1 || state.currentArmy != game.header.firstPlayer) return false;
    const bool frenchFirst = game.OwnSide() == Side::French;
    if (!(frenchFirst ? state.chosenAllied : state.chosenFrench)) return false;
    game.person->Confirm({" ", frenchFirst ? "The French Player is the First Player"
                                           : "The Allied Player is the First Player"});
    state.turnPhase = TurnPhase::HandOver;
    return true;
}

void StopClockTick(Game& game) {
    GameState& state = game.state;
    if (!HasClock(state) || state.turnLocked != 0 || state.turnPhase == TurnPhase::EndTurn) return;
    ++state.stopClockSeconds;
    game.person->Redraw(View::InfoBar);
    if (TimeIsUp(state)) state.turnPhase = TurnPhase::EndTurn;
}

std::string StopClockText(const GameState& state) {
    const int minutes = state.stopClockSeconds / kSecondsPerMinute;
    std::string text = "Clock ";
    if (minutes > 0) text += std::to_string(minutes) + " mins ";
    return text + std::to_string(state.stopClockSeconds % kSecondsPerMinute) + " secs";
}

}  // namespace varnstride
