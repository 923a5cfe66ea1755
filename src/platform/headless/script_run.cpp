#include "platform/headless/script_run.h"

#include <set>

#include "files/battle_file.h"
#include "flow/game_pass.h"
#include "flow/open_battle.h"
#include "flow/save_battle.h"
#include "platform/headless/battle_input.h"
#include "platform/headless/fresh_game.h"
#include "platform/headless/scripted_person.h"
#include "platform/headless/state_dump.h"

namespace varnstride {
namespace {

constexpr int kMostPasses = 1000;

// The files to open that the script does not write before, each of which must be good.
Result<Done> CheckFiles(const Script& script, const AtlasCatalogue& atlases) {
    std::set<std::string> written;
    for (const ScriptCommand& command : script.commands) {
        if (const auto* save = std::get_if<SaveBattle>(&command.action)) written.insert(save->path);
        if (const auto* file = std::get_if<FileAnswer>(&command.action)) written.insert(file->path);
        const auto* open = std::get_if<OpenBattle>(&command.action);
        if (open == nullptr || written.contains(open->path)) continue;
        const Result<BattleFile> file = ReadBattleFile(open->path, atlases);
        if (!file.Ok()) return Failure{AtLine(script.name, command.line, file.Message())};
        written.insert(open->path);
    }
    return Done{};
}

class ScriptRun {
 public:
    ScriptRun(const AtlasCatalogue& atlases, BattleEvents& events)
        : events_(events),
          person_(events_),
          game_(FreshGame(atlases, person_, HeadlessSettings())) {}

    // Plays to the end of the script, or of the program.
    void Play(const Script& script) {
        for (const ScriptCommand& command : script.commands) {
            line = command.line;
            person_.BeginStep();
            std::visit([this](const auto& action) { Do(action); }, command.action);
            NoteOpenedBattle();
            events_.StepDone(game_);
            if (HasQuit()) break;
        }
        events_.End(EndReason());
    }

    int line = 0;  // in play

 private:
    void Do(const SeedTime& seed) { person_.SetTime(seed.time); }
    void Do(const SetValue& set) { SetField(game_, person_.switches, set.field, set.value); }
    void Do(const TickMailBox& box) { byMail_ = box.ticked; }
    void Do(const OpenBattle& open);
    void Do(const SaveBattle& save);
    void Do(const DialogAnswer& answer) { person_.Queue(answer, line); }
    void Do(const BoxAnswer& answer) { person_.Queue(answer); }
    void Do(const FileAnswer& answer) { person_.Queue(answer); }
    void Do(const RunPasses& passes);
    void Do(const DumpState&) { events_.State(game_, cellsAtLoad_); }
    void Do(const QuitScript&) { quit_ = true; }
    // Everything that a person does to a battle in hand.
    template <typename Input>
    void Do(const Input& input) {
        NeedBattle();
        Perform(game_, BattleInput{input});
    }

    void NeedBattle() const {
        if (game_.atlas == nullptr)
            throw ScriptError(line, "no battle is open; expected: new FILE");
    }
    void Pass();
    void NoteOpenedBattle();
    bool HasQuit() const { return quit_ || game_.state.programEnded; }
    std::string EndReason() const;

    BattleEvents& events_;
    ScriptedPerson person_;
    Game game_;
    bool byMail_ = false;
    bool quit_ = false;
    std::optional<TurnPhase> lastPhase_;  // of the pass before
    std::vector<MapCell> cellsAtLoad_;
    int filesNoted_ = 0;
};

void ScriptRun::Do(const OpenBattle& open) {
    const Result<BattleFile> file = ReadBattleFile(open.path, *game_.atlases);
    if (!file.Ok()) throw ScriptError(line, file.Message());
    game_ = FreshGame(*game_.atlases, person_, game_.settings);
    game_.state.gameMode = byMail_ ? GameMode::PlayByEmail : GameMode::Local;
    game_.state.existingBattle = open.existing;
    lastPhase_.reset();
    person_.PickNext(open.path);
    if (open.existing) {
        ContinueExistingBattle(game_);
    } else {
        StartNewBattle(game_);
    }
}

void ScriptRun::Do(const SaveBattle& save) {
    NeedBattle();
    person_.PickNext(save.path);
    SaveBattleFileAs(game_);
}

void ScriptRun::Do(const RunPasses& passes) {
    const int most = passes.count == 0 ? kMostPasses : passes.count;
    for (int done = 0; done < most && !HasQuit(); ++done) {
        Pass();
        if (passes.count == 0 && game_.state.turnPhase == TurnPhase::Orders) return;
    }
}

void ScriptRun::Pass() {
    const TurnPhase phase = game_.state.turnPhase;
    if (lastPhase_ != phase) events_.Phase(game_);
    lastPhase_ = phase;
    person_.BeginStep();
    RunGamePass(game_);
    NoteOpenedBattle();
    events_.StepDone(game_);
}

// Cells are told by what has changed in them since their battle was opened, whichever way it was.
void ScriptRun::NoteOpenedBattle() {
    if (filesNoted_ == person_.filesOpened) return;
    filesNoted_ = person_.filesOpened;
    cellsAtLoad_ = WholeCells(game_.grid);
    events_.Opened(game_);
}

std::string ScriptRun::EndReason() const {
    if (HasQuit()) return "quit";
    return game_.header.gameEnded == 1 ? "game over" : "script";
}

}  // namespace

Result<Done> RunScript(const Script& script, const AtlasCatalogue& atlases, BattleEvents& events) {
    const Result<Done> files = CheckFiles(script, atlases);
    if (!files.Ok()) return files;
    ScriptRun run(atlases, events);
    try {
        run.Play(script);
    } catch (const ScriptError& error) {
        return Failure{AtLine(script.name, error.line > 0 ? error.line : run.line, error.what())};
    }
    return Done{};
}

}  // namespace varnstride
