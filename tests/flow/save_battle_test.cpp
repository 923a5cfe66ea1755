// What a save writes and leaves in memory, in local play and by e-mail, and that a battle saved and
// opened goes on as if it had not been.

#include "flow/save_battle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "flow/open_battle.h"
#include "flow/two_players.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"
#include "support/battle_on_disk.h"

namespace varnstride {
namespace {

constexpr std::size_t kTag = 2480;
constexpr std::int16_t kTagWord = 0x5653;

class SaveBattle : public testing::Test {
 protected:
    SaveBattle() {
        Game& content = disk_.Content();
        content.header.savedTurn = content.state.gameTurn = 3;
        content.turnLog.turnInProgress = 1;
        content.header.fogNone = 1;
        content.header.passMode = 1;
        std::ranges::copy(std::string_view("pass"), content.header.firstPassword.begin());
        Open(*program_, disk_.Write("a.cmb"));
    }

    void TearDown() override { EXPECT_TRUE(person_.IsDone()) << "an answer was not asked for"; }

    void Open(Program& program, const std::string& path) {
        program.person.Pick(path);
        if (disk_.Read(path).header.playByEmail == 0) {
            program.person.Expect(kOptions, Press({1381, kOk}));
        } else {
            program.person.Expect(kPasswordCheck, Type(1402, "pass", kOk));
        }
        ContinueExistingBattle(program.game);
        person_.boxes.clear();
    }

    std::string SaveAs(const std::string& name) {
        person_.Pick(disk_.PathOf(name));
        SaveBattleFileAs(game_);
        return disk_.PathOf(name);
    }

    // A turn by e-mail whose battles have cost the French a strength point.
    void FinishMailedTurn() {
        game_.state.gameMode = GameMode::PlayByEmail;
        game_.header.playByEmail = 1;
        game_.turnLog.turnInProgress = 0;
        game_.state.alliesApart = true;
        TakeBeforePass(game_);
        game_.state.alliesApart = false;
        game_.turnLog.rollLog[1] = 77;
        game_.At({kFrench, 1}).strength = 5;
        game_.loss.frenchLossSP = 1;
        game_.state.turnLocked = 1;
    }

    BattleOnDisk disk_;
    std::unique_ptr<Program> program_ = disk_.NewProgram();
    Game& game_ = program_->game;
    PreparedPerson& person_ = program_->person;
};

TEST_F(SaveBattle, ABattleSavedInsideATurnGoesOnExactly) {
    game_.generator.Seed(0x9ABCDEF0U);
    game_.state.eventCard = 27;
    game_.state.steadyNerves = 1;
    game_.state.steadyNervesArmy = kPrussian;
    game_.state.haltBeforeContact = game_.state.noCloseEntry = true;
    game_.state.bombardmentState = 2;
    game_.state.clockHours = 10.30;
    game_.options.cardInPlay = 5;
    game_.turnLog.rollLog[2490] = 9;
    game_.At({kFrench, 1}).reservedH = 1;
    ShiftUnit(game_, {kPrussian, 1}, disk_.Ground().SlotCell(Side::Allied, 2, 3));

    const std::string path = SaveAs("b.cmb");
    EXPECT_EQ(game_.turnLog.rollLog[kTag], 0);  // the tag is the file's alone
    EXPECT_EQ(disk_.Read(path).turnLog.rollLog[kTag], kTagWord);
    const auto second = disk_.NewProgram();
    Open(*second, path);
    game_.turnLog.rollLog[2490] = 0;  // the tag's room
    EXPECT_TRUE(Everything(second->game) == Everything(game_));
    EXPECT_EQ(second->game.generator.Next(), game_.generator.Next());
}

TEST_F(SaveBattle, EachOneTurnEffectTravelsOnItsOwn) {
    struct Row {
        void (*set)(GameState&);
        std::int16_t bit;
    };
    const Row rows[] = {{[](GameState& state) { state.strikeDrawCard = 1; }, 1},
                        {[](GameState& state) { state.steadyNerves = 1; }, 2},
                        {[](GameState& state) { state.haltBeforeContact = true; }, 4},
                        {[](GameState& state) { state.noCloseEntry = true; }, 8},
                        {[](GameState& state) { state.alliesApart = true; }, 16}};
    for (const Row& row : rows) {
        const GameState clean = game_.state;
        row.set(game_.state);
        const std::string path = SaveAs("b.cmb");
        EXPECT_EQ(disk_.Read(path).turnLog.rollLog[kTag + 4], row.bit);
        const auto second = disk_.NewProgram();
        Open(*second, path);
        EXPECT_TRUE(Everything(second->game) == Everything(game_)) << row.bit;
        game_.state = clean;
    }
}

TEST_F(SaveBattle, AFileWithoutATagStartsPlain) {
    game_.generator.Seed(99);
    const auto second = disk_.NewProgram();
    Open(*second, disk_.PathOf("a.cmb"));
    EXPECT_EQ(second->game.generator.State(), 1u);
    EXPECT_EQ(second->game.state.eventCard, 0);
}

TEST_F(SaveBattle, AMailedTurnInProgressCarriesTheTag) {
    game_.state.gameMode = GameMode::PlayByEmail;
    game_.turnLog.turnInProgress = 0;
    game_.generator.Seed(4711);
    const std::string path = SaveAs("b.emb");
    EXPECT_EQ(person_.choosers.back().kind, FileKind::MailedTurn);
    EXPECT_EQ(person_.boxes, std::vector<std::string>{" |Battle file is saved"});
    const auto second = disk_.NewProgram();
    Open(*second, path);
    EXPECT_EQ(second->game.turnLog.turnInProgress, 1);
    EXPECT_EQ(second->game.header.playByEmail, 1);
    EXPECT_EQ(second->game.generator.State(), 4711u);
    EXPECT_EQ(second->game.state.turnPhase, TurnPhase::Orders);
}

TEST_F(SaveBattle, SaveAsOfAFinishedTurnMailsTheStateBeforeThePass) {
    FinishMailedTurn();
    person_.whileBoxIsOpen = [&] { EXPECT_EQ(game_.At({kFrench, 1}).strength, 6); };
    const BattleFile file = disk_.Read(SaveAs("b.emb"));
    EXPECT_EQ(file.units[kFrench][1].strength, 6);
    EXPECT_EQ(file.loss.frenchLossSP, 0);
    EXPECT_EQ(file.header.passMode, 2);
    EXPECT_EQ(file.turnLog.turnInProgress, 0);
    EXPECT_EQ(file.turnLog.rollLog[0], 16);
    EXPECT_EQ(file.turnLog.rollLog[1], 77);
    EXPECT_EQ(file.turnLog.rollLog[kTag], 0);
    EXPECT_EQ(game_.At({kFrench, 1}).strength, 5);
    EXPECT_EQ(game_.loss.frenchLossSP, 1);
    EXPECT_EQ(game_.header.passMode, 2);
    EXPECT_EQ(person_.boxes,
              std::vector<std::string>{" |Battle file is ready to be E-mailed to your opponent"});
}

TEST_F(SaveBattle, SaveOfAFinishedTurnLeavesThePassModeOfTheTurn) {
    FinishMailedTurn();
    game_.header.savedArmy = kPrussian;  // as the locked turn has left it
    SaveBattleFile(game_);
    const BattleFile file = disk_.Read(game_.filePath);
    EXPECT_EQ(file.units[kFrench][1].strength, 6);
    EXPECT_EQ(file.header.passMode, 1);
    EXPECT_EQ(file.header.savedArmy, kPrussian);
    EXPECT_EQ(game_.At({kFrench, 1}).strength, 5);
    EXPECT_EQ(person_.boxes,
              std::vector<std::string>{
                  " |Battle file is saved and ready to be E-mailed to your opponent"});
}

TEST_F(SaveBattle, SaveNotesTurnArmyAndClock) {
    game_.state.currentArmy = kPrussian;
    game_.state.gameTurn = 7;
    game_.state.clockHours = 16.30;
    SaveBattleFile(game_);
    const BattleFile file = disk_.Read(disk_.PathOf("a.cmb"));
    EXPECT_EQ(file.header.savedArmy, kPrussian);
    EXPECT_EQ(file.header.savedTurn, 7);
    EXPECT_EQ(file.time.clockField, 1630);
    EXPECT_EQ(person_.saved, std::vector<std::string>{disk_.PathOf("a.cmb")});
    EXPECT_EQ(person_.boxes, std::vector<std::string>{" |Battle file is saved"});
}

TEST_F(SaveBattle, ANameWithoutExtensionGetsThatOfTheMode) {
    SaveAs("local");
    EXPECT_EQ(game_.filePath, disk_.PathOf("local.cmb"));
    game_.state.gameMode = GameMode::PlayByEmail;
    SaveAs("mailed");
    EXPECT_EQ(game_.filePath, disk_.PathOf("mailed.emb"));
    SaveAs("old.name");
    EXPECT_EQ(game_.filePath, disk_.PathOf("old.name"));
}

TEST_F(SaveBattle, ACancelledSaveAsWritesNothing) {
    FinishMailedTurn();
    person_.Pick(std::nullopt);
    SaveBattleFileAs(game_);
    EXPECT_TRUE(person_.saved.empty() && person_.boxes.empty());
    EXPECT_EQ(game_.At({kFrench, 1}).strength, 5);
    EXPECT_EQ(game_.filePath, disk_.PathOf("a.cmb"));
    EXPECT_EQ(game_.header.passMode, 2);
}

TEST_F(SaveBattle, AScenarioIsNeverWrittenOver) {
    game_.filePath = disk_.Write("a.scn");
    game_.state.fileNameKnown = 0;
    const auto written = std::filesystem::last_write_time(game_.filePath);
    person_.Pick(std::nullopt);
    SaveBattleFileAs(game_);  // given up, which makes the name count as known
    SaveBattleFile(game_);
    SaveAs("A.SCN");
    EXPECT_TRUE(person_.saved.empty());
    EXPECT_FALSE(std::filesystem::exists(disk_.PathOf("A.SCN")));
    EXPECT_EQ(std::filesystem::last_write_time(game_.filePath), written);
    EXPECT_EQ(person_.boxes,
              std::vector<std::string>(
                  2, "Help Box|   Use 'Save As' to avoid writing over Scenario file"));
}

TEST_F(SaveBattle, AFailedSaveIsToldAndTheGameGoesOn) {
    FinishMailedTurn();
    SaveAs("no/such/folder/b.emb");
    ASSERT_EQ(person_.boxes.size(), 1u);
    EXPECT_NE(person_.boxes[0].find("b.emb"), std::string::npos);
    EXPECT_NE(person_.boxes[0].find("No such file or directory"), std::string::npos);
    EXPECT_TRUE(person_.saved.empty());
    EXPECT_EQ(game_.filePath, disk_.PathOf("a.cmb"));
    EXPECT_EQ(game_.At({kFrench, 1}).strength, 5);
}

}  // namespace
}  // namespace varnstride
