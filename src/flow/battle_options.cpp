#include "flow/battle_options.h"

#include "actions/courier.h"
#include "actions/sides.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

namespace scenario {
constexpr int kFogNone = 1295;
constexpr int kFogNormal = 1296;
constexpr int kFogExtreme = 1297;
constexpr int kCommandControl = 1299;
constexpr int kHard = 1470;
constexpr int kClock5 = 1374;
constexpr int kClock10 = 1375;
constexpr int kClock15 = 1376;
constexpr int kClockOff = 1474;
constexpr int kAllied = 1300;
constexpr int kFrenchSide = 1301;
constexpr int kHotSeat = 1553;
constexpr int kTacticalPlay = 1625;
constexpr int kEventCards = 1657;
constexpr int kLocalInitiative = 1658;
constexpr int kSmokeOn = 1662;
}  // namespace scenario

namespace options {
constexpr int kComputerFrench = 1379;
constexpr int kComputerAllied = 1380;
constexpr int kComputerNone = 1381;
constexpr int kClock5 = 1471;
constexpr int kClock10 = 1472;
constexpr int kClock15 = 1473;
constexpr int kStatus = 1404;
}  // namespace options

Dialog ScenarioOptionsDialog() {
    using namespace scenario;
    Dialog dialog{.templateId = kScenarioOptions, .caption = "Scenario Options"};
    dialog.AddRadio(kFogNone, "None", false);
    dialog.AddRadio(kFogNormal, "Normal", false);
    dialog.AddRadio(kFogExtreme, "Extreme", false);
    dialog.AddTick(kCommandControl, "Command Control", true);
    dialog.AddTick(kHard, "Difficulty Level - Hard", false);
    dialog.AddRadio(kClock5, "5 Minutes", false);
    dialog.AddRadio(kClock10, "10 Minutes", false);
    dialog.AddRadio(kClock15, "15 Minutes", false);
    dialog.AddRadio(kClockOff, "Off", false);
    dialog.StartRadioGroup();
    dialog.AddRadio(kAllied, "Allied", false);
    dialog.AddRadio(kFrenchSide, "French", false);
    dialog.AddRadio(kHotSeat, "Hot Seat", false);
    dialog.AddTick(kTacticalPlay, "Tactical Play", true);
    dialog.AddTick(kEventCards, "Event Cards", true);
    dialog.AddTick(kLocalInitiative, "Local Initiative", false);
    dialog.AddTick(kSmokeOn, "Battlefield Smoke", false);
    dialog.AddButton(kOk, "OK");
    return dialog;
}

void SetFog(ScenarioHeader& header, const Dialog& dialog) {
    header.fogNormal = dialog.IsTicked(scenario::kFogNormal) ? 1 : 0;
    header.fogExtreme = header.fogNormal == 0 && dialog.IsTicked(scenario::kFogExtreme) ? 1 : 0;
    header.fogNone = header.fogNormal == 0 && header.fogExtreme == 0 ? 1 : 0;
}

void SetClock(GameState& state, const Dialog& dialog, int clock5, int clock10, int clock15) {
    state.stopClock5 = dialog.IsTicked(clock5) ? 1 : 0;
    state.stopClock10 = dialog.IsTicked(clock10) ? 1 : 0;
    state.stopClock15 = dialog.IsTicked(clock15) ? 1 : 0;
}

// By e-mail both sides are played by people, whatever was ticked.
void SetSides(Game& game, const Dialog& dialog) {
    GameState& state = game.state;
    const bool local = state.gameMode == GameMode::Local;
    state.chosenFrench = local && dialog.IsTicked(scenario::kFrenchSide);
    state.chosenAllied = local && dialog.IsTicked(scenario::kAllied);
    state.computerPlays = kComputerPlaysAllies;
    if (state.chosenAllied) state.computerPlays = kComputerPlaysFrench;
    if (!local || dialog.IsTicked(scenario::kHotSeat)) state.computerPlays = 0;
    game.settings.computerSide = state.computerPlays;
}

// A rule once in use stays in use for the battles of this run.
void AddRulesInUse(OptionBlock& rules, const Dialog& dialog) {
    if (dialog.IsTicked(scenario::kTacticalPlay)) rules.tacticalPlayOn = 1;
    if (dialog.IsTicked(scenario::kEventCards)) rules.eventCardsOn = 1;
    if (dialog.IsTicked(scenario::kLocalInitiative)) rules.localInitiativeOn = 1;
    if (dialog.IsTicked(scenario::kSmokeOn)) rules.smokeOn = 1;
}

Dialog OptionsDialog(int computerPlays) {
    using namespace options;
    Dialog dialog{.templateId = kOptions, .caption = "Options"};
    dialog.AddRadio(kComputerFrench, "French", computerPlays == kComputerPlaysFrench);
    dialog.AddRadio(kComputerAllied, "Allied", computerPlays == kComputerPlaysAllies);
    dialog.AddRadio(kComputerNone, "None", computerPlays == 0);
    dialog.AddTick(kClock5, "5 Minutes", false);
    dialog.AddTick(kClock10, "10 Minutes", false);
    dialog.AddTick(kClock15, "15 Minutes", false);
    dialog.AddLabel(kStatus, {});
    dialog.AddButton(kOk, "OK");
    dialog.AddButton(kCancel, "Cancel");
    return dialog;
}

void BringIntoLine(Game& game) {
    if (game.settings.computerSide > 0) game.state.computerPlays = game.settings.computerSide;
}

int ComputerSideTicked(const Dialog& dialog) {
    if (dialog.IsTicked(options::kComputerFrench)) return kComputerPlaysFrench;
    return dialog.IsTicked(options::kComputerAllied) ? kComputerPlaysAllies : 0;
}

void SetOptions(Game& game, const Dialog& dialog) {
    game.state.computerPlays = ComputerSideTicked(dialog);
    game.settings.computerSide = game.state.computerPlays;
    SetClock(game.state, dialog, options::kClock5, options::kClock10, options::kClock15);
}

}  // namespace

void AskScenarioOptions(Game& game) {
    Dialog dialog = ScenarioOptionsDialog();
    game.person->Ask(dialog);
    SetFog(game.header, dialog);
    game.Army(kFrench).commandControl = dialog.IsTicked(scenario::kCommandControl) ? 1 : 0;
    game.header.hardDifficulty = dialog.IsTicked(scenario::kHard) ? 1 : 0;
    SetClock(game.state, dialog, scenario::kClock5, scenario::kClock10, scenario::kClock15);
    SetSides(game, dialog);
    AddRulesInUse(game.options, dialog);
}

void AskOptions(Game& game) {
    BringIntoLine(game);
    Dialog dialog = OptionsDialog(game.state.computerPlays);
    for (;;) {
        game.person->Ask(dialog);
        BringIntoLine(game);
        if (dialog.closedBy != kOk) return;
        SetOptions(game, dialog);
        if (!IsComputerSide(game.state.computerPlays, game.state.currentArmy)) return;
        Alert(game);
        dialog.At(options::kStatus).text = "  Can not assign A/I to active player";
    }
}

}  // namespace varnstride
