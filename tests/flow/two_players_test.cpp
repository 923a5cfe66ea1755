// Play by e-mail without its files: snapshots, passwords, the hand-over; and the Stop Clock.

#include "flow/two_players.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/units_on_map.h"
#include "resources/dialog_ids.h"
#include "support/field.h"
#include "support/prepared_person.h"

namespace varnstride {
namespace {

class TwoPlayers : public testing::Test {
 protected:
    TwoPlayers() : field_({}) {
        game_.person = &person_;
        game_.state.gameMode = GameMode::PlayByEmail;
        game_.state.gameTurn = 3;
        game_.header.firstPlayer = kPrussian;
        game_.header.savedArmy = game_.state.turnCursor = game_.state.currentArmy = kPrussian;
        french_ = field_.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
        prussian_ = field_.Add(kPrussian, 2, 1, MakeUnit(UnitType::LineInfantry));
    }

    void TearDown() override { EXPECT_TRUE(person_.IsDone()) << "an answer was not asked for"; }

    // What a battle pass may do: a loss, a retreat, smoke.
    void Fight() {
        game_.At(french_).strength -= 2;
        game_.loss.frenchLossSP += 2;
        ShiftUnit(game_, prussian_, field_.SlotCell(Side::Allied, 3, 2));
        game_.grid.At({0, 2}).roadTile = kSmoke;
        game_.grid.At({1, 2}).roadTile = kSmoke;
        game_.grid.At({1, 2}).occupantMirror = 7;
    }

    bool IsBeforeFight() const {
        const Cell old = field_.SlotCell(Side::Allied, 2, 1);
        return game_.At(french_).strength == 6 && game_.loss.frenchLossSP == 0 &&
               game_.At(prussian_).Place() == old && UnitStandingAt(game_, old) == prussian_ &&
               game_.grid.At(old).occupant == kPrussian + 1 &&
               game_.grid.At({1, 2}).roadTile == kNoRoad &&
               game_.grid.At({1, 2}).occupantMirror == 0;
    }

    bool IsAfterFight() const {
        const Cell old = field_.SlotCell(Side::Allied, 2, 1);
        const Cell now = field_.SlotCell(Side::Allied, 3, 2);
        return game_.At(french_).strength == 4 && game_.loss.frenchLossSP == 2 &&
               game_.At(prussian_).Place() == now && UnitStandingAt(game_, now) == prussian_ &&
               !UnitStandingAt(game_, old) && game_.grid.At(old).occupant == 0 &&
               game_.grid.At(now).occupant == kPrussian + 1 &&
               game_.grid.At({1, 2}).roadTile == kSmoke &&
               game_.grid.At({1, 2}).occupantMirror == 7;
    }

    Field field_;
    Game& game_ = field_.game;
    PreparedPerson person_;
    UnitId french_;
    UnitId prussian_;
};

TEST_F(TwoPlayers, ASaveSwapsTheStateBeforeThePassInAndOut) {
    TakeBeforePass(game_);
    Fight();
    ASSERT_TRUE(IsAfterFight());
    ExchangeForSave(game_);
    EXPECT_TRUE(IsBeforeFight());
    EXPECT_EQ(game_.grid.At({0, 2}).roadTile, kSmoke);  // column 0 stays
    PutBackAfterPass(game_);
    EXPECT_TRUE(IsAfterFight());
}

TEST_F(TwoPlayers, ASaveSwapsNothingWithoutASnapshotOfTheBattleInHand) {
    Fight();
    ExchangeForSave(game_);
    PutBackAfterPass(game_);
    EXPECT_TRUE(IsAfterFight());
}

TEST_F(TwoPlayers, OnlyThePresentArmiesAreSwapped) {
    const UnitId british = field_.Add(kBritish, 3, 1, MakeUnit(UnitType::LineInfantry));
    game_.Army(kBritish).present = 2;
    TakeBeforePass(game_);
    game_.At(british).strength = 1;
    ExchangeForSave(game_);
    EXPECT_EQ(game_.At(british).strength, 1);
}

// The Prussians open the game turn; the French are due to arrive in it, but their turn is not yet.
TEST_F(TwoPlayers, UnitsDueStandAgainOnlyWhenTheirArmyHasArrived) {
    game_.At(french_).arrivalTurn = game_.At(prussian_).arrivalTurn = game_.state.gameTurn;
    TakeBeforePass(game_);
    Fight();
    ExchangeForSave(game_);
    PutBackAfterPass(game_);
    EXPECT_TRUE(IsOnMap(game_, prussian_));
    EXPECT_FALSE(IsOnMap(game_, french_));
}

TEST_F(TwoPlayers, TheAfterStateServesNoOtherTurnThanItsOwn) {
    TakeBeforePass(game_);
    EXPECT_FALSE(HasAfterPass(game_));
    game_.turnLog.rollLog[1] = 4;
    Fight();
    ExchangeForSave(game_);
    EXPECT_TRUE(HasAfterPass(game_));  // as the file just written opens
    game_.turnLog.rollLog[1] = 5;
    EXPECT_FALSE(HasAfterPass(game_));
    game_.turnLog.rollLog[1] = 4;
    game_.At(french_).morale = 1;
    EXPECT_FALSE(HasAfterPass(game_));
    game_.At(french_).morale = 8;
    ASSERT_TRUE(HasAfterPass(game_));
    RestoreAfterPass(game_);
    EXPECT_TRUE(IsAfterFight());
}

void SetPasswords(Game& game, std::string_view first, std::string_view second) {
    std::ranges::copy(first, game.header.firstPassword.begin());
    std::ranges::copy(second, game.header.secondPassword.begin());
}

TEST_F(TwoPlayers, PasswordsAreSetByThePlayerWhoseFirstTurnItIs) {
    struct Row {
        int passMode;
        const char* label;
        const char* first;
        const char* second;
    };
    for (const Row& row : {Row{1, "First Player", "Vorwaerts", "old"},
                           Row{2, "Second Player", "older", "Vorwaerts"}}) {
        SetPasswords(game_, "older", "old");
        game_.state.gameTurn = 1;
        game_.header.passMode = row.passMode;
        person_.Expect(kSetPassword, Type(1402, "Vorwaerts!!", kOk));
        CheckPasswords(game_);
        EXPECT_EQ(person_.asked.back().At(1403).text, row.label);
        EXPECT_STREQ(game_.header.firstPassword.data(), row.first);
        EXPECT_STREQ(game_.header.secondPassword.data(), row.second);
        game_.header.firstPassword.fill('\0');
        game_.header.secondPassword.fill('\0');
    }
}

TEST_F(TwoPlayers, PasswordCheckNamesTheSideThatOpens) {
    struct Row {
        int turn;
        int army;
        int inProgress;
        const char* name;
    };
    for (const Row& row : {Row{3, kPrussian, 0, "France"}, Row{3, kFrench, 0, "Allied Armies"},
                           Row{3, kPrussian, 1, "Allied Armies"}, Row{3, kFrench, 1, "France"},
                           Row{1, kFrench, 0, ""}, Row{1, kPrussian, 1, ""}}) {
        game_.state.gameTurn = row.turn;
        game_.state.currentArmy = row.army;
        game_.turnLog.turnInProgress = row.inProgress;
        SetPasswords(game_, "first", "second");
        person_.Expect(kPasswordCheck, Type(1402, "first", kOk));
        CheckPasswords(game_);
        EXPECT_EQ(person_.asked.back().At(1403).text, row.name);
    }
}

TEST_F(TwoPlayers, EitherPasswordOpensAWrongOneAsksAgain) {
    SetPasswords(game_, "first", "second");
    for (const char* typed : {"First", "", "firs", "second"})
        person_.Expect(kPasswordCheck, Type(1402, typed, kOk));
    CheckPasswords(game_);
    EXPECT_EQ(person_.played.size(), 3u);
    EXPECT_EQ(game_.state.gameMode, GameMode::PlayByEmail);
}

TEST_F(TwoPlayers, ADeclinedPasswordEndsTheGame) {
    SetPasswords(game_, "first", "second");
    person_.Expect(kPasswordCheck, Type(1402, "first", kCancel));
    CheckPasswords(game_);
    EXPECT_EQ(game_.state.gameMode, GameMode::Quit);
}

TEST_F(TwoPlayers, AnEndedGameNeedsNoPassword) {
    game_.header.gameEnded = 1;
    CheckPasswords(game_);
    EXPECT_EQ(person_.boxes, std::vector<std::string>{"Game End|Password not required"});
    EXPECT_TRUE(person_.asked.empty());
}

TEST_F(TwoPlayers, TheFirstTurnIsHandedOverToTheSideThatOwnsIt) {
    struct Row {
        int turn;
        int army;
        bool french;
        bool allied;
        const char* told;
    };
    for (const Row& row :
         {Row{1, kPrussian, true, false, " |The Allied Player is the First Player"},
          Row{1, kFrench, false, true, " |The French Player is the First Player"},
          Row{1, kPrussian, false, true, nullptr}, Row{1, kFrench, true, false, nullptr},
          Row{1, kPrussian, false, false, nullptr}, Row{2, kPrussian, true, false, nullptr}}) {
        person_.boxes.clear();
        game_.state.turnPhase = TurnPhase::StartScreen;
        game_.state.gameTurn = row.turn;
        game_.state.currentArmy = game_.header.firstPlayer = row.army;
        game_.state.chosenFrench = row.french;
        game_.state.chosenAllied = row.allied;
        EXPECT_EQ(HandOverFirstTurn(game_), row.told != nullptr);
        EXPECT_EQ(game_.state.turnPhase == TurnPhase::HandOver, row.told != nullptr);
        EXPECT_EQ(person_.boxes,
                  row.told ? std::vector<std::string>{row.told} : std::vector<std::string>{});
    }
}

TEST_F(TwoPlayers, TheStopClockEndsTheTurnToTheSecond) {
    struct Row {
        int GameState::*clock;
        int seconds;
    };
    for (const Row& row : {Row{&GameState::stopClock5, 300}, Row{&GameState::stopClock10, 600},
                           Row{&GameState::stopClock15, 900}}) {
        game_.state.turnPhase = TurnPhase::Orders;
        game_.state.stopClockSeconds = 0;
        game_.state.*row.clock = 1;
        for (int second = 1; second < row.seconds; ++second)
            StopClockTick(game_);
        EXPECT_EQ(game_.state.turnPhase, TurnPhase::Orders);
        StopClockTick(game_);
        EXPECT_EQ(game_.state.turnPhase, TurnPhase::EndTurn);
        StopClockTick(game_);
        EXPECT_EQ(game_.state.stopClockSeconds, row.seconds);
        game_.state.*row.clock = 0;
    }
}

TEST_F(TwoPlayers, AFinishedTurnHasNoClock) {
    game_.state.stopClock5 = game_.state.turnLocked = 1;
    game_.state.turnPhase = TurnPhase::Orders;
    game_.state.stopClockSeconds = 299;
    StopClockTick(game_);
    EXPECT_EQ(game_.state.turnPhase, TurnPhase::Orders);
}

TEST_F(TwoPlayers, TheClockIsToldInMinutesAndSeconds) {
    const std::pair<int, const char*> rows[] = {{0, "Clock 0 secs"},
                                                {59, "Clock 59 secs"},
                                                {60, "Clock 1 mins 0 secs"},
                                                {725, "Clock 12 mins 5 secs"}};
    for (const auto& [seconds, text] : rows) {
        game_.state.stopClockSeconds = seconds;
        EXPECT_EQ(StopClockText(game_.state), text);
    }
}

}  // namespace
}  // namespace varnstride
