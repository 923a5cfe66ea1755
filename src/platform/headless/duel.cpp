#include "platform/headless/duel.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "actions/sides.h"
#include "flow/game_pass.h"
#include "flow/open_battle.h"
#include "flow/save_battle.h"
#include "flow/start_of_turn.h"
#include "model/invariants.h"
#include "model/person.h"
#include "model/score.h"
#include "platform/headless/fresh_game.h"

namespace varnstride {
namespace {

// Picks the file of the duel, agrees to all else, and lets the time pass by one at every turn.
class Onlooker : public SilentPerson {
 public:
    explicit Onlooker(const DuelPlan& plan) : plan_(plan), time_(plan.seed) {}

    std::optional<std::string> ChooseFile(const FileQuestion& question) override {
        return question.saving ? plan_.save : plan_.file;
    }
    // While a file is opened or written, nothing else speaks.
    bool Confirm(const MessageBox& box) override {
        lastBox = box.text;
        return true;
    }
    void Saved(const std::string&, std::size_t) override { saved = true; }
    unsigned Time() override { return time_++; }

    std::string lastBox;
    bool saved = false;

 private:
    const DuelPlan& plan_;
    unsigned time_;
};

bool IsScenario(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char letter) { return std::tolower(letter); });
    return extension == ".scn";
}

// The turn that a saved battle was left in is played on by the computer.
void TakeOver(Game& game) {
    game.settings.computerSide = game.state.computerPlays = kComputerPlaysBoth;
    if (game.state.turnPhase == TurnPhase::Orders) LetComputerPlay(game);
}

Result<Done> Open(Game& game, const DuelPlan& plan, const Onlooker& onlooker) {
    if (IsScenario(plan.file)) {
        StartNewBattle(game);
    } else {
        ContinueExistingBattle(game);
    }
    if (game.state.fileChosen == 0) return Failure{onlooker.lastBox};
    if (game.header.playByEmail != 0) {
        return Failure{plan.file + ": a turn of play by e-mail; the computer plays none"};
    }
    if (game.header.gameEnded == 0) TakeOver(game);
    return Done{};
}

bool IsOver(const Game& game, const DuelPlan& plan, int firstTurn) {
    const bool played = plan.turns > 0 && game.state.gameTurn >= firstTurn + plan.turns;
    return game.header.gameEnded == 1 || played;
}

DuelTurn StandingOf(const Game& game, int turn) {
    return {turn, game.state.victoryScore, game.loss.frenchLossSP, game.loss.alliedLossSP};
}

std::string FirstBroken(const Game& game, const char* where) {
    const auto broken = BrokenInvariants(game, Overspending::ByTheComputer);
    if (broken.empty()) return {};
    return "turn " + std::to_string(game.state.gameTurn) + ", army " +
           std::to_string(game.state.currentArmy) + ", " + where + ": " + broken.front();
}

const char* NameOf(TurnPhase phase) {
    switch (phase) {
        case TurnPhase::Orders: return "orders";
        case TurnPhase::BeginSide: return "before the turn";
        case TurnPhase::StartTurn: return "orders of the computer";
        case TurnPhase::EndTurn: return "end of the turn";
        case TurnPhase::ResumeFile:
        case TurnPhase::StartScreen:
        case TurnPhase::HandOver: break;
    }
    return "opening";
}

void PlayOn(Game& game, const DuelPlan& plan, DuelResult& result) {
    const int firstTurn = game.state.gameTurn;
    while (!IsOver(game, plan, firstTurn) && result.broken.empty()) {
        const int turn = game.state.gameTurn;
        const TurnPhase phase = game.state.turnPhase;
        RunGamePass(game);
        if (plan.check) result.broken = FirstBroken(game, NameOf(phase));
        if (game.state.gameTurn == turn && game.header.gameEnded == 0) continue;
        if (game.header.gameEnded == 0) ComputeVictoryScore(game);
        result.course.push_back(StandingOf(game, turn));
    }
}

void Conclude(const Game& game, DuelResult& result) {
    result.turns = result.course.empty() ? 0 : result.course.back().turn;
    result.ended = game.header.gameEnded == 1;
    result.level = LevelOfFirstSide(game);
    result.frenchFirst = SideOf(game.header.firstPlayer) == Side::French;
    result.score = game.state.victoryScore;
    result.loss = game.loss;
    result.frenchMorale = game.state.frenchMorale;
    result.alliedMorale = game.state.alliedMorale;
}

// A battle is saved while somebody's orders are open. One that has been cut off is taken to the
// head of the next turn.
void OpenForOrders(Game& game) {
    game.settings.computerSide = game.state.computerPlays = 0;
    while (game.state.turnPhase != TurnPhase::Orders)
        RunGamePass(game);
}

}  // namespace

Result<DuelResult> PlayDuel(const DuelPlan& plan, const AtlasCatalogue& atlases) {
    Onlooker onlooker(plan);
    Game game = FreshGame(atlases, onlooker, HeadlessSettings());
    const Result<Done> opened = Open(game, plan, onlooker);
    if (!opened.Ok()) return Failure{opened.Message()};
    DuelResult result;
    result.seed = plan.seed;
    PlayOn(game, plan, result);
    Conclude(game, result);
    if (plan.save.empty()) return result;
    OpenForOrders(game);
    SaveBattleFileAs(game);
    if (!onlooker.saved) return Failure{onlooker.lastBox};
    return result;
}

}  // namespace varnstride
