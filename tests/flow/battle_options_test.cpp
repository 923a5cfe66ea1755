// What each control of the two dialogs of options does to the battle.

#include "flow/battle_options.h"

#include <gtest/gtest.h>

#include <functional>

#include "resources/dialog_ids.h"
#include "support/field.h"
#include "support/prepared_person.h"

namespace varnstride {
namespace {

class BattleOptions : public testing::Test {
 protected:
    BattleOptions() : field_({}) { game_.person = &person_; }

    Field field_;
    Game& game_ = field_.game;
    PreparedPerson person_;
};

using Values = std::vector<int>;
using Reading = std::function<Values(const Game&)>;

Values Fog(const Game& game) {
    return {game.header.fogNone, game.header.fogNormal, game.header.fogExtreme};
}
Values Clock(const Game& game) {
    return {game.state.stopClock5, game.state.stopClock10, game.state.stopClock15};
}
Values Sides(const Game& game) {
    return {game.settings.computerSide, game.state.computerPlays};
}
Values Chosen(const Game& game) {
    return {game.state.chosenFrench ? 1 : 0, game.state.chosenAllied ? 1 : 0};
}
Values Command(const Game& game) {
    return {game.Army(kFrench).commandControl, game.header.hardDifficulty};
}
Values Rules(const Game& game) {
    return {game.options.tacticalPlayOn, game.options.eventCardsOn, game.options.localInitiativeOn,
            game.options.smokeOn};
}

struct Row {
    const char* name;
    GameMode mode;
    Values pressed;
    Reading read;
    Values expected;
};

constexpr GameMode kLocal = GameMode::Local;
constexpr GameMode kMail = GameMode::PlayByEmail;

const Row kScenarioRows[] = {
    {"fog none when nothing is ticked", kLocal, {}, Fog, {1, 0, 0}},
    {"fog none", kLocal, {1297, 1295}, Fog, {1, 0, 0}},
    {"fog normal", kLocal, {1296}, Fog, {0, 1, 0}},
    {"fog extreme", kLocal, {1297}, Fog, {0, 0, 1}},
    {"command control stands ticked", kLocal, {}, Command, {1, 0}},
    {"no command control, hard", kLocal, {1299, 1470}, Command, {0, 1}},
    {"no clock", kLocal, {}, Clock, {0, 0, 0}},
    {"clock 5", kLocal, {1374}, Clock, {1, 0, 0}},
    {"clock 10", kLocal, {1375}, Clock, {0, 1, 0}},
    {"clock 15", kLocal, {1376}, Clock, {0, 0, 1}},
    {"clock off", kLocal, {1374, 1474}, Clock, {0, 0, 0}},
    {"computer plays the Allies unasked", kLocal, {}, Sides, {2, 2}},
    {"French chosen", kLocal, {1301}, Sides, {2, 2}},
    {"Allied chosen", kLocal, {1300}, Sides, {1, 1}},
    {"hot seat", kLocal, {1553}, Sides, {0, 0}},
    {"the clock does not put out the side", kLocal, {1300, 1376}, Sides, {1, 1}},
    {"French is kept", kLocal, {1301}, Chosen, {1, 0}},
    {"Allied is kept", kLocal, {1300}, Chosen, {0, 1}},
    {"nobody to play by e-mail", kMail, {1300}, Sides, {0, 0}},
    {"choice forgotten by e-mail", kMail, {1301}, Chosen, {0, 0}},
    {"two rules stand ticked", kLocal, {}, Rules, {1, 1, 0, 0}},
    {"the other two rules", kLocal, {1625, 1657, 1658, 1662}, Rules, {0, 0, 1, 1}},
};

TEST_F(BattleOptions, ScenarioControlsSetTheirFields) {
    for (const Row& row : kScenarioRows) {
        SCOPED_TRACE(row.name);
        Field field({});
        PreparedPerson person;
        field.game.person = &person;
        field.game.state.gameMode = row.mode;
        field.game.settings.computerSide = 1;
        field.game.state.stopClock10 = 1;
        Values pressed = row.pressed;
        pressed.push_back(kOk);
        person.Expect(kScenarioOptions, Press(pressed));
        AskScenarioOptions(field.game);
        EXPECT_EQ(row.read(field.game), row.expected);
    }
}

TEST_F(BattleOptions, ARuleInUseStaysInUse) {
    person_.Expect(kScenarioOptions, Press({1658, 1662, kOk}));
    person_.Expect(kScenarioOptions, Press({1625, 1657, kOk}));
    AskScenarioOptions(game_);
    AskScenarioOptions(game_);
    EXPECT_EQ(Rules(game_), (Values{1, 1, 1, 1}));
}

TEST_F(BattleOptions, OptionsOpenOnTheComputersSideWithTheClockEmpty) {
    game_.settings.computerSide = 2;
    game_.state.stopClock10 = 1;
    person_.Expect(kOptions, Press({kOk}));
    AskOptions(game_);
    const Dialog& shown = person_.asked.front();
    EXPECT_TRUE(shown.IsTicked(1380));
    EXPECT_FALSE(shown.IsTicked(1379) || shown.IsTicked(1381) || shown.IsTicked(1472));
    EXPECT_EQ(Sides(game_), (Values{2, 2}));
    EXPECT_EQ(Clock(game_), (Values{0, 0, 0}));
}

TEST_F(BattleOptions, OptionsSetSideAndClock) {
    game_.settings.computerSide = 2;
    person_.Expect(kOptions, Press({1381, 1473, kOk}));
    AskOptions(game_);
    EXPECT_EQ(Sides(game_), (Values{0, 0}));
    EXPECT_EQ(Clock(game_), (Values{0, 0, 1}));
}

TEST_F(BattleOptions, RefusedOptionsThenCancelledKeepTheSideRefused) {
    game_.state.currentArmy = kPrussian;
    person_.Expect(kOptions, Press({1380, 1471, kOk}));
    person_.Expect(kOptions, Press({kCancel}));
    AskOptions(game_);
    ASSERT_EQ(person_.asked.size(), 2u);
    EXPECT_EQ(person_.asked[0].At(1404).text, "");
    EXPECT_EQ(person_.asked[1].At(1404).text, "  Can not assign A/I to active player");
    EXPECT_EQ(person_.played, std::vector<Sound>{Sound::Ding});
    EXPECT_EQ(Sides(game_), (Values{2, 2}));
    EXPECT_EQ(Clock(game_), (Values{1, 0, 0}));
}

TEST_F(BattleOptions, CancelledOptionsChangeNothing) {
    game_.settings.computerSide = game_.state.computerPlays = 2;
    game_.state.stopClock5 = 1;
    person_.Expect(kOptions, Press({1379, 1473, kCancel}));
    AskOptions(game_);
    EXPECT_EQ(Sides(game_), (Values{2, 2}));
    EXPECT_EQ(Clock(game_), (Values{1, 0, 0}));
}

}  // namespace
}  // namespace varnstride
