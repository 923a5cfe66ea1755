#include "app/status_dialogs.h"

#include <array>
#include <string>
#include <string_view>

#include "actions/courier.h"
#include "battle/weather.h"
#include "model/score.h"
#include "resources/army_names.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

void AddNumber(Dialog& dialog, int id, int number) {
    dialog.AddLabel(id, std::to_string(number));
}

void AddOkAndCancel(Dialog& dialog) {
    dialog.AddButton(kOk, "OK");
    dialog.AddButton(kCancel, "Cancel");
}

// Victory -----------------------------------------------------------------------------------------

constexpr std::array<std::string_view, 5> kLevels = {"Major Defeat", "Minor Defeat", "Draw",
                                                     "Minor Victory", "Major Victory"};

std::string_view LevelOfArmyInPlay(const Game& game) {
    const bool firstSide = SideOf(game.state.currentArmy) == SideOf(game.header.firstPlayer);
    const int level = LevelOfFirstSide(game);
    return kLevels[static_cast<std::size_t>(firstSide ? level : 4 - level)];
}

void MakeScoreAfresh(Game& game) {
    RecomputeMorale(game, ArmiesCounted::PresentExactlyOne);
    ComputeVictoryScore(game);
    if (game.header.gameEnded == 1) ApplyArmyRoutRule(game);
}

void AddLosses(Dialog& dialog, const LossBlock& loss) {
    AddNumber(dialog, 1004, loss.alliedLossSP);
    AddNumber(dialog, 1005, loss.alliedLossPoints / 10);
    AddNumber(dialog, 1006, loss.frenchLossSP);
    AddNumber(dialog, 1007, loss.frenchLossPoints / 10);
}

void AddLimits(Dialog& dialog, const ScenarioHeader& header) {
    AddNumber(dialog, 1014, header.majorDefeatLimit);
    AddNumber(dialog, 1016, header.minorDefeatLimit);
    AddNumber(dialog, 1015, header.minorVictoryLimit);
    AddNumber(dialog, 1017, header.majorVictoryLimit);
}

// Scenario Information ----------------------------------------------------------------------------

struct WeatherName {
    int leastVisibility;
    std::string_view name;
    std::string_view inDesert;
};

// From the clearest down.
constexpr std::array<WeatherName, 10> kWeather = {{
    {20, "Clear", "Clear"},
    {18, "Overcast", "Slight Haze"},
    {15, "Slight Haze", "Heat Haze"},
    {10, "Light Rain", "Sand Squalls"},
    {8, "Light Fog or Squalls", "Sand Squalls"},
    {6, "Heavy Rain", "Dust Cloud"},
    {5, "Fog", "Sand Storm"},
    {4, "Thick Fog", "Sand Storm"},
    {3, "Dawn/Dusk", "Dawn/Dusk"},
    {2, "Night", "Night"},
}};

int GroundTileAt(const Game& game, Cell cell) {
    return game.grid.Holds(cell) ? game.grid.Ground(cell).groundTile : 0;
}

std::string NameOfWeather(const Game& game) {
    const int ground = GroundTileAt(game, {1, 1});
    const bool desert = ground >= 36 && ground <= 71;
    for (const WeatherName& weather : kWeather) {
        if (game.header.visibility >= weather.leastVisibility) {
            return std::string(desert ? weather.inDesert : weather.name);
        }
    }
    return {};
}

std::string NameOfGround(const Game& game) {
    constexpr int kUnnamed = 72;
    constexpr int kLastFrozen = 107;
    const int ground = GroundTileAt(game, game.state.selectedCell);
    if (ground == kUnnamed) return {};
    return ground > kUnnamed && ground <= kLastFrozen ? "Frozen / Snow" : "Firm";
}

// Scenario Settings -------------------------------------------------------------------------------

std::string_view FogLine(const ScenarioHeader& header) {
    if (header.fogExtreme == 1) return "Extreme Fog-of-War  ON";
    return header.fogNormal == 1 ? "Fog-of-War  ON" : "Fog-of-War  OFF";
}

std::string_view StopClockLine(const GameState& state) {
    if (state.stopClock5 == 1) return "Stop Clock set at 5 minutes";
    if (state.stopClock10 == 1) return "Stop Clock set at 10 minutes";
    return state.stopClock15 == 1 ? "Stop Clock set at 15 minutes" : "Stop Clock  OFF";
}

std::string OnOrOff(std::string_view option, int value) {
    return std::string(option) + (value == 1 ? "  ON" : "  OFF");
}

constexpr int kFirstSettingsLine = 1402;

}  // namespace

void ShowVictory(Game& game) {
    MakeScoreAfresh(game);
    const bool french = game.OwnSide() == Side::French;
    Dialog dialog{.templateId = kVictory, .caption = "Victory Dialog"};
    AddLosses(dialog, game.loss);
    dialog.AddLabel(1020, std::string(ArmyName(game.header.firstPlayer)));
    AddNumber(dialog, 1090, game.state.objectivePoints);
    AddLimits(dialog, game.header);
    AddNumber(dialog, 1018, game.state.victoryScore);
    AddNumber(dialog, 1425, french ? game.state.frenchMorale : game.state.alliedMorale);
    dialog.AddLabel(1231, std::string(LevelOfArmyInPlay(game)));
    dialog.AddLabel(1402, std::string(ArmyName(game.state.currentArmy)));
    AddOkAndCancel(dialog);
    game.person->Ask(dialog);
}

void ShowIntelligence(Game& game) {
    constexpr int kNoReport = 19;
    if (game.ArmyInPlay().hasGroupAssignments != 1) {
        ShowCourier(game, kNoReport);
        return;
    }
    const auto army = static_cast<std::size_t>(game.state.currentArmy);
    Dialog dialog{.templateId = kIntelligenceReport, .caption = "Intelligence Report"};
    dialog.AddLabel(1402, game.briefings[army].text.data());
    dialog.AddButton(kOk, "OK");
    game.person->Ask(dialog);
}

void ShowScenarioDescription(Game& game) {
    Dialog dialog{.templateId = kScenarioDescription, .caption = "Scenario Description"};
    dialog.AddLabel(1364, game.header.scenarioAuthor.data());
    dialog.AddLabel(1365, game.header.scenarioDate.data());
    dialog.AddLabel(1366, game.header.scenarioDescription.data());
    AddNumber(dialog, 1402, game.header.lastTurn);
    AddOkAndCancel(dialog);
    game.person->Ask(dialog);
    game.state.fileChosen = dialog.closedBy == kOk ? 1 : 0;
}

void ShowScenarioInformation(Game& game) {
    constexpr int kMetresOfVisibility = 20;
    game.state.clockHours = NormalisedClock(game.state.clockHours);
    Dialog dialog{.templateId = kScenarioInformation, .caption = "Scenario Information"};
    AddNumber(dialog, 1383, static_cast<int>(game.state.clockHours * 100));
    AddNumber(dialog, 1384, game.time.dawnHour * 100);
    AddNumber(dialog, 1385, game.time.duskHour * 100);
    dialog.AddLabel(1402, std::to_string(game.header.visibility * kMetresOfVisibility) + "m");
    dialog.AddLabel(1386, NameOfWeather(game));
    if (game.time.rainChance > 0) AddNumber(dialog, 1388, game.time.rainChance);
    if (game.time.cloudChance > 0) AddNumber(dialog, 1389, game.time.cloudChance);
    dialog.AddLabel(1401, std::to_string(game.time.windSpeed) + "mph");
    dialog.AddLabel(1436, NameOfGround(game));
    dialog.AddButton(kOk, "OK");
    game.person->Ask(dialog);
}

void ShowScenarioSettings(Game& game) {
    const std::array<std::string, 7> lines = {
        std::string(FogLine(game.header)),
        OnOrOff("Command Control", game.Army(kFrench).commandControl),
        std::string(StopClockLine(game.state)),
        OnOrOff("Event Cards in Use", game.options.eventCardsOn),
        OnOrOff("Tactical Play Option", game.options.tacticalPlayOn),
        OnOrOff("Local Initiative Option", game.options.localInitiativeOn),
        OnOrOff("Battlefield Smoke Option", game.options.smokeOn),
    };
    Dialog dialog{.templateId = kScenarioSettings, .caption = "Scenario Settings"};
    for (std::size_t line = 0; line < lines.size(); ++line) {
        dialog.AddLabel(kFirstSettingsLine + static_cast<int>(line), lines[line]);
    }
    dialog.AddButton(kOk, "OK");
    game.person->Ask(dialog);
}

void AskEndGameStatus(Game& game) {
    if (game.header.gameEnded == 0) {
        game.person->Confirm({" ", "Game End not reached"});
        return;
    }
    constexpr int kFirstArmy = 1500;
    Dialog dialog{.templateId = kEndGameStatus, .caption = "End Game Status"};
    for (int army = kFrench; army <= kRussian; ++army) {
        dialog.AddRadio(kFirstArmy + army, std::string(ArmyTitle(army)), false);
    }
    AddOkAndCancel(dialog);
    game.person->Ask(dialog);
    if (dialog.closedBy != kOk) return;
    for (int army = kFrench; army <= kRussian; ++army) {
        if (game.Army(army).present == 0 || !dialog.IsTicked(kFirstArmy + army)) continue;
        game.state.currentArmy = army;
        game.state.endGameArmy = army;
    }
}

}  // namespace varnstride
