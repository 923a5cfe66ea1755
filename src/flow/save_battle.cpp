#include "flow/save_battle.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "battle/barrage.h"
#include "files/battle_file.h"
#include "flow/turn_effects.h"
#include "flow/two_players.h"

namespace varnstride {
namespace {

constexpr int kReplay = 2;

bool IsByEmail(const Game& game) {
    return game.state.gameMode == GameMode::PlayByEmail;
}

bool IsFinishedMailedTurn(const Game& game) {
    return IsByEmail(game) && game.state.turnLocked == 1;
}

bool IsScenarioName(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char letter) { return std::tolower(letter); });
    return extension == ".scn";
}

void NoteWhenSaved(Game& game) {
    if (game.state.turnLocked != 1) game.header.savedArmy = game.state.currentArmy;
    game.header.savedTurn = game.state.gameTurn;
    game.time.clockField = static_cast<int>(game.state.clockHours * 100);
}

BattleFile FileOfTurn(const Game& game) {
    BattleFile file = TakeFromGame(game);
    const bool goesOn = !IsByEmail(game) || game.turnLog.turnInProgress == 1;
    if (goesOn) WriteTurnTag(game, file.turnLog.rollLog);
    return file;
}

// Whether the battle stands in the file; if not, the person knows why.
bool Write(Game& game, const std::string& path) {
    if (IsScenarioName(path)) {
        game.person->Confirm({"Help Box", "   Use 'Save As' to avoid writing over Scenario file"});
        return false;
    }
    NoteWhenSaved(game);
    game.person->Redraw(View::InfoBar);
    const Result<Done> written = WriteBattleFile(path, FileOfTurn(game));
    if (!written.Ok()) {
        game.person->Confirm({" ", written.Message()});
        return false;
    }
    std::error_code unreadable;
    game.person->Saved(path, std::filesystem::file_size(path, unreadable));
    return true;
}

void TellSaved(Game& game, const char* finishedTurn) {
    game.person->Confirm({" ", IsFinishedMailedTurn(game) ? finishedTurn : "Battle file is saved"});
}

// Save As alone marks a finished turn as one to be replayed.
void PrepareMailedTurn(Game& game) {
    game.header.playByEmail = 1;
    game.state.turnPhase = TurnPhase::Orders;
    game.turnLog.turnInProgress = game.state.turnLocked == 1 ? 0 : 1;
    if (game.state.turnLocked == 1) game.header.passMode = kReplay;
}

std::string WithExtension(const std::string& path, FileKind kind) {
    if (std::filesystem::path(path).has_extension()) return path;
    return path + (kind == FileKind::MailedTurn ? ".emb" : ".cmb");
}

void AskAndWrite(Game& game) {
    const FileKind kind = IsByEmail(game) ? FileKind::MailedTurn : FileKind::Battle;
    const auto chosen = game.person->ChooseFile({.kind = kind, .saving = true});
    if (!chosen) return;
    const std::string path = WithExtension(*chosen, kind);
    if (!Write(game, path)) return;
    game.filePath = path;
    game.person->Redraw(View::InfoBar);
    TellSaved(game, "Battle file is ready to be E-mailed to your opponent");
}

}  // namespace

void SaveBattleFile(Game& game) {
    LayAimDown(game);
    const bool exchanged = IsFinishedMailedTurn(game);
    if (exchanged) ExchangeForSave(game);
    if (Write(game, game.filePath)) {
        TellSaved(game, "Battle file is saved and ready to be E-mailed to your opponent");
    }
    game.person->Redraw(View::Frame);
    if (exchanged) PutBackAfterPass(game);
}

void SaveBattleFileAs(Game& game) {
    LayAimDown(game);
    game.state.fileNameKnown = 1;
    const bool exchanged = IsFinishedMailedTurn(game);
    if (exchanged) ExchangeForSave(game);
    if (IsByEmail(game)) PrepareMailedTurn(game);
    AskAndWrite(game);
    if (exchanged) PutBackAfterPass(game);
}

}  // namespace varnstride
