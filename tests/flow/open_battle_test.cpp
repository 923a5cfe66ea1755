// What opening a scenario, a battle and a mailed turn makes of the file, and what a file that
// cannot be opened leaves alone.

#include "flow/open_battle.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/units_on_map.h"
#include "resources/dialog_ids.h"
#include "support/battle_on_disk.h"

namespace varnstride {
namespace {

class OpenBattle : public testing::Test {
 protected:
    void TearDown() override { EXPECT_TRUE(person_.IsDone()) << "an answer was not asked for"; }

    void SetPasswordsOfFile() {
        std::ranges::copy(std::string_view("first"), disk_.Content().header.firstPassword.begin());
        std::ranges::copy(std::string_view("second"),
                          disk_.Content().header.secondPassword.begin());
    }

    void StartNew(std::vector<int> options = {kOk}) {
        person_.Pick(disk_.Write("a.scn"));
        person_.Expect(kScenarioOptions, Press(std::move(options)));
        StartNewBattle(game_);
    }

    // A battle of turn 3, saved in the turn of that army.
    void MakeRunning(int army, int inProgress) {
        Game& content = disk_.Content();
        content.header.savedTurn = content.state.gameTurn = 3;
        content.header.savedArmy = army;
        content.turnLog.turnInProgress = inProgress;
    }

    void Continue(const std::string& name = "a.cmb") {
        person_.Pick(disk_.Write(name));
        if (disk_.Content().header.playByEmail == 0) person_.Expect(kOptions, Press({1381, kOk}));
        ContinueExistingBattle(game_);
    }

    Unit& Content(int army, int index) { return disk_.Content().At({army, index}); }

    BattleOnDisk disk_;
    std::unique_ptr<Program> program_ = disk_.NewProgram();
    Game& game_ = program_->game;
    PreparedPerson& person_ = program_->person;
};

TEST_F(OpenBattle, ANewBattleBeginsWithItsFirstSide) {
    disk_.Content().header.passMode = 0;
    StartNew({1553, kOk});
    EXPECT_EQ(person_.choosers.front().kind, FileKind::Scenario);
    EXPECT_EQ(game_.state.turnPhase, TurnPhase::BeginSide);
    EXPECT_EQ(game_.header.passMode, 1);
    EXPECT_EQ(game_.state.clockHours, 9.30);
    EXPECT_EQ(game_.state.selectedCell, (Cell{12, 3}));
    EXPECT_EQ(game_.state.mapReady, 1);
    EXPECT_EQ(game_.state.opponentMark, 1);
    EXPECT_EQ(game_.state.fileNameKnown, 0);
}

TEST_F(OpenBattle, ANewBattleByEmailStartsItsTurnWithAPassword) {
    game_.state.gameMode = GameMode::PlayByEmail;
    person_.Expect(kSetPassword, Type(1402, "secret", kOk));
    StartNew();
    EXPECT_EQ(game_.state.turnPhase, TurnPhase::StartTurn);
    EXPECT_STREQ(game_.header.firstPassword.data(), "secret");
}

TEST_F(OpenBattle, EveryUnitOfANewBattleGetsItsActionPoints) {
    Content(kPrussian, 2) = MakeUnit(UnitType::LineInfantry);
    Content(kPrussian, 2).actionPoints = 0;
    Content(kPrussian, 2).arrivalTurn = 4;
    StartNew();
    EXPECT_EQ(game_.At({kPrussian, 2}).actionPoints, 1);
}

TEST_F(OpenBattle, TheUnitLimitCoversTheHighestRecordAndNeverFalls) {
    StartNew();
    EXPECT_EQ(game_.state.unitLimit, 200);
    Content(kPrussian, 598) = MakeUnit(UnitType::LineInfantry);
    Content(kPrussian, 598).arrivalTurn = 5;
    StartNew();
    EXPECT_EQ(game_.state.unitLimit, 599);
    Content(kPrussian, 598) = {};
    StartNew();
    EXPECT_EQ(game_.state.unitLimit, 599);
}

TEST_F(OpenBattle, LossesAreWorkedOutFromOneArmyOfEachSide) {
    const auto lose = [&](int army, int index, UnitType type, int lost) {
        disk_.Content().Army(army).present = 1;
        Unit& unit = Content(army, index) = MakeUnit(type);
        unit.strength = 0;
        unit.initialStrength = lost;
    };
    disk_.Content().loss = {.frenchLossSP = 90, .alliedLossSP = 91, .frenchLossPoints = 92};
    lose(kFrench, 300, UnitType::CossackCavalry, 1);
    lose(kFrench, 301, UnitType::FieldArtillery, 2);
    lose(kFrench, 302, UnitType::MortarArtillery, 4);
    lose(kFrench, 303, UnitType::SupplyWagon, 8);
    lose(kPrussian, 300, UnitType::LineInfantry, 16);
    StartNew();
    EXPECT_EQ(game_.loss.frenchLossSP, 3);
    EXPECT_EQ(game_.loss.alliedLossSP, 16);
    EXPECT_EQ(game_.loss.frenchLossPoints, 92);
    lose(kRussian, 300, UnitType::CossackCavalry, 32);
    lose(kRussian, 301, UnitType::LightCavalry, 64);
    StartNew();
    EXPECT_EQ(game_.loss.alliedLossSP, 64);
}

TEST_F(OpenBattle, LoadingFinishesTheMap) {
    disk_.Content().grid.At({3, 3}).highlight = 1;
    disk_.Content().grid.At({24, 3}).highlight = 1;  // the last column keeps its marks
    disk_.Content().grid.ShadeAll();
    StartNew();
    EXPECT_EQ(game_.grid.At({3, 3}).highlight, 0);
    EXPECT_EQ(game_.grid.At({24, 3}).highlight, 1);
    EXPECT_EQ(game_.grid.Shade({3, 3}), 0);
    EXPECT_EQ(game_.grid.Shade({24, 3}), 1);
    EXPECT_NE(game_.grid.Ground({7, 3}).borderTile, 0);
}

TEST_F(OpenBattle, ARunningBattleGoesOnWithTheOrders) {
    MakeRunning(kPrussian, 0);
    disk_.Content().header.fogExtreme = 1;
    Continue();
    EXPECT_EQ(person_.choosers.front().kind, FileKind::Battle);
    EXPECT_EQ(person_.TemplatesAsked(), std::vector<int>{kOptions});
    EXPECT_EQ(game_.state.turnPhase, TurnPhase::Orders);
    EXPECT_EQ(game_.state.currentArmy, kPrussian);
    EXPECT_EQ(game_.state.turnCursor, kPrussian);
    EXPECT_EQ(game_.state.gameTurn, 3);
    EXPECT_EQ(game_.header.fogExtreme, 1);
    EXPECT_EQ(game_.state.fileNameKnown, 1);
    EXPECT_EQ(game_.filePath, disk_.PathOf("a.cmb"));
}

TEST_F(OpenBattle, ATurnInProgressIsNoNewStart) {
    disk_.Content().turnLog.turnInProgress = 1;
    Continue();
    EXPECT_EQ(person_.TemplatesAsked(), std::vector<int>{kOptions});
}

TEST_F(OpenBattle, AnEndedBattleIsLockedWithoutQuestions) {
    MakeRunning(kFrench, 0);
    disk_.Content().header.gameEnded = 1;
    person_.Pick(disk_.Write("a.cmb"));
    ContinueExistingBattle(game_);
    EXPECT_TRUE(person_.asked.empty());
    EXPECT_EQ(game_.state.turnLocked, 1);
}

TEST_F(OpenBattle, AMailedTurnIsReplayedOrGoneOnWith) {
    SetPasswordsOfFile();
    disk_.Content().header.playByEmail = 1;
    for (const auto& [inProgress, phase] :
         {std::pair{0, TurnPhase::ResumeFile}, std::pair{1, TurnPhase::Orders}}) {
        MakeRunning(kFrench, inProgress);
        person_.Expect(kPasswordCheck, Type(1402, "second", kOk));
        Continue("a.emb");  // with the box of the start screen not ticked
        EXPECT_EQ(game_.state.gameMode, GameMode::PlayByEmail);
        EXPECT_EQ(game_.state.turnPhase, phase);
    }
    EXPECT_EQ(person_.choosers[0].kind, FileKind::Battle);
    EXPECT_EQ(person_.choosers[1].kind, FileKind::MailedTurn);
}

TEST_F(OpenBattle, TheSecondPlayersFirstOpeningSetsHisPassword) {
    disk_.Content().header.playByEmail = 1;
    disk_.Content().header.passMode = 2;
    person_.Expect(kSetPassword, Type(1402, "other", kOk));
    Continue("a.emb");
    EXPECT_STREQ(game_.header.secondPassword.data(), "other");
    EXPECT_EQ(game_.state.turnPhase, TurnPhase::ResumeFile);
}

TEST_F(OpenBattle, ADeclinedPasswordEndsTheProgram) {
    SetPasswordsOfFile();
    MakeRunning(kFrench, 1);
    disk_.Content().header.playByEmail = 1;
    person_.Expect(kPasswordCheck, Press({kCancel}));
    Continue("a.emb");
    EXPECT_TRUE(game_.state.programEnded);
}

TEST_F(OpenBattle, APersonWhoMustNotMoveFirstHandsOver) {
    disk_.Content().header.playByEmail = 1;
    StartNew({1300, kOk});
    EXPECT_EQ(game_.state.turnPhase, TurnPhase::HandOver);
    EXPECT_EQ(person_.boxes, std::vector<std::string>{" |The French Player is the First Player"});
}

// The game turn runs Prussian, French, British.
TEST_F(OpenBattle, UnitsDueThisTurnStandWhenTheirArmyHasHadItsHead) {
    MakeRunning(kFrench, 1);
    disk_.Content().header.firstPlayer = kPrussian;
    const UnitId british = disk_.Ground().Add(kBritish, 1, 1, MakeUnit(UnitType::LineInfantry));
    for (const UnitId id : {UnitId{kFrench, 1}, UnitId{kPrussian, 1}, british})
        disk_.Content().At(id).arrivalTurn = 3;
    disk_.Content().grid.At(disk_.Content().At(british).Place()).occupant = 0;
    Continue();
    EXPECT_TRUE(IsOnMap(game_, {kPrussian, 1}));
    EXPECT_TRUE(IsOnMap(game_, {kFrench, 1}));
    EXPECT_FALSE(IsOnMap(game_, british));
}

TEST_F(OpenBattle, AScenariosUnitsDueInTheFirstTurnStillWait) {
    Content(kFrench, 1).arrivalTurn = 1;
    StartNew();
    EXPECT_FALSE(IsOnMap(game_, {kFrench, 1}));
    EXPECT_TRUE(IsOnMap(game_, {kPrussian, 1}));
}

TEST_F(OpenBattle, TheWeatherCardComesBack) {
    MakeRunning(kFrench, 1);
    const std::pair<int, std::pair<int, int>> rows[] = {
        {0, {0, 0}}, {1, {0, 1}}, {2, {205, 0}}, {3, {206, 0}}, {4, {207, 0}}, {5, {208, 0}}};
    for (const auto& [code, expected] : rows) {
        disk_.Content().options.weatherCardCode = code;
        game_.state = {};
        Continue();
        EXPECT_EQ(game_.state.eventCard, expected.first) << code;
        EXPECT_EQ(game_.state.strikeDrawCard, expected.second) << code;
    }
}

TEST_F(OpenBattle, AFileThatIsNoBattleChangesNothing) {
    MakeRunning(kPrussian, 1);
    Continue();
    const std::string bad = disk_.WriteGarbage("bad.cmb");
    game_.state.fileChosen = 0;
    const std::string before = Everything(game_);
    for (const auto open : {StartNewBattle, ContinueExistingBattle, OpenFromMenu}) {
        person_.boxes.clear();
        person_.Pick(bad);
        open(game_);
        EXPECT_TRUE(Everything(game_) == before);
        ASSERT_EQ(person_.boxes.size(), 1u);
        EXPECT_EQ(person_.boxes[0].substr(0, 2), " |");
        EXPECT_NE(person_.boxes[0].find("bad.cmb"), std::string::npos);
    }
}

TEST_F(OpenBattle, ACancelledChoiceAtTheStartScreenChangesNothing) {
    const std::string before = Everything(game_);
    for (const auto open : {StartNewBattle, ContinueExistingBattle}) {
        person_.Pick(std::nullopt);
        open(game_);
        EXPECT_EQ(Everything(game_), before);
    }
}

TEST_F(OpenBattle, ACancelledFileOpenGoesBackToTheStartScreen) {
    MakeRunning(kPrussian, 1);
    Continue();
    person_.Pick(std::nullopt);
    OpenFromMenu(game_);
    EXPECT_EQ(game_.state.turnPhase, TurnPhase::StartScreen);
    EXPECT_EQ(game_.At({kFrench, 1}).strength, 0);
    EXPECT_FALSE(UnitStandingAt(game_, disk_.Ground().SlotCell(Side::French, 1, 1)));
}

TEST_F(OpenBattle, FileOpenStartsANewBattleFromAFinishedMailedTurn) {
    Content(kFrench, 400) = MakeUnit(UnitType::LineInfantry);
    Content(kFrench, 400).arrivalTurn = 7;
    MakeRunning(kPrussian, 1);
    Continue();
    game_.state.gameMode = GameMode::PlayByEmail;
    game_.state.turnLocked = game_.state.stopClock5 = 1;
    game_.state.eventCard = 14;
    MakeRunning(kFrench, 0);
    disk_.Content().header.savedTurn = 1;
    person_.Pick(disk_.Write("b.scn"));
    person_.Expect(kScenarioOptions, Press({kOk}));
    OpenFromMenu(game_);
    EXPECT_EQ(game_.state.turnPhase, TurnPhase::BeginSide);
    EXPECT_EQ(game_.state.gameMode, GameMode::Local);
    EXPECT_EQ(game_.state.turnLocked, 0);
    EXPECT_EQ(game_.state.stopClock5, 0);
    EXPECT_EQ(game_.state.eventCard, 0);
    EXPECT_EQ(game_.state.fileNameKnown, 0);
    EXPECT_EQ(game_.state.unitLimit, 401);
    EXPECT_FALSE(game_.state.existingBattle);
}

}  // namespace
}  // namespace varnstride
