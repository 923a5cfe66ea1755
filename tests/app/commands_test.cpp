// Commands and keys: what is refused with which words, and what an order changes.
#include "app/commands.h"

#include <gtest/gtest.h>

#include "app/map_input.h"
#include "app/orders_field.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kOpen = 32850;
constexpr int kSave = 32849;
constexpr int kExit = 1051;
constexpr int kNext = 32858;
constexpr int kDoBattle = 33005;
constexpr int kEndGame = 32978;
constexpr int kCancelCard = 33006;
constexpr int kCancelAction = 33008;
constexpr int kCavalryCharge = 32875;
constexpr int kBayonetCharge = 33002;
constexpr int kDoubleTime = 32778;
constexpr int kHold = 33001;

const Words kNoPoints = {"sound Ding", "box End of Player Turn"};
const Unit kFoot = MakeUnit(UnitType::LineInfantry);

Words operator+(Words words, const Words& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

// Next --------------------------------------------------------------------------------------------

TEST(Next, EndsTheTurnOnOkAlone) {
    struct Case {
        bool locked;
        bool agrees;
        TurnPhase phase;
        int commandPoints;
        Words heard;
    };
    const Words asked = {"box Turn Advance Message"};
    const Case cases[] = {
        {false, true, TurnPhase::EndTurn, 0, asked + Words{"sound Tick"}},
        {false, false, TurnPhase::Orders, 5, asked},
        {true, true, TurnPhase::Orders, 5, {}},
    };
    for (const Case& given : cases) {
        OrdersField field;
        field.game.state.turnLocked = given.locked;
        field.game.turnLog.turnInProgress = 1;
        field.person.agrees = given.agrees;
        DispatchCommand(field.game, kNext);
        EXPECT_EQ(field.game.state.turnPhase, given.phase);
        EXPECT_EQ(field.CommandPoints(), given.commandPoints);
        EXPECT_EQ(field.game.turnLog.turnInProgress, given.phase == TurnPhase::Orders ? 1 : 0);
        EXPECT_EQ(field.person.Heard(), given.heard);
    }
}

TEST(Next, ByEmailGoesRoundTheAlliedArmiesBeforeItLocksTheTurn) {
    struct Case {
        int army;
        Words heard;
        int locked;
    };
    const Case cases[] = {
        {kFrench, {"box Turn Advance Message", "sound Tick"}, 1},
        {kBritish, {"box Next Allied Nation?", "sound Tick"}, 0},
        {kPrussian, {"box Turn Advance Message", "sound Tick"}, 1},
    };
    for (const Case& given : cases) {
        OrdersField field;
        field.game.state.gameMode = GameMode::PlayByEmail;
        field.game.Army(kBritish).present = field.game.Army(kPrussian).present = 1;
        field.game.state.currentArmy = given.army;
        DispatchCommand(field.game, kNext);
        EXPECT_EQ(field.person.Heard(), given.heard);
        EXPECT_EQ(field.game.state.turnLocked, given.locked);
        EXPECT_EQ(field.game.state.turnPhase, TurnPhase::EndTurn);
    }
}

TEST(Next, WithAutoSaveAsksForANameFirst) {
    OrdersField field;
    field.game.settings.autoSave = 1;
    DispatchCommand(field.game, kNext);
    EXPECT_EQ(field.person.Heard().back(), "box Help Box - For First 'Save' on Scenario");
}

// Orders ------------------------------------------------------------------------------------------

struct Order {
    std::string_view what;
    int id;
    Unit unit;
    int commandPoints;
    Words heard;
    UnitActivity activity;
    int bombardment = 0;
};

Unit Make(UnitType type, Formation formation, UnitStatus status = UnitStatus::Ordered) {
    Unit unit = MakeUnit(type);
    unit.formation = formation;
    unit.status = status;
    return unit;
}

TEST(Charge, IsPreparedOrRefusedInTheRightWords) {
    constexpr UnitType kHeavy = UnitType::HeavyCavalry;
    constexpr UnitType kCossack = UnitType::CossackCavalry;
    constexpr UnitType kLine = UnitType::LineInfantry;
    constexpr UnitActivity kNone = UnitActivity::None;
    constexpr UnitActivity kBayonet = UnitActivity::BayonetCharge;
    const Words few = {"sound Ding", "box Charge Requires 2 Command Points"};
    const Words cossack = {"sound Ding", "box Cossack Cavalry restriction"};
    const Order orders[] = {
        {"line", kCavalryCharge, Make(kHeavy, Formation::Line), 2, {}, UnitActivity::Charging},
        {"barrage", kCavalryCharge, Make(kHeavy, Formation::Line), 2, {}, kNone, 1},
        {"square",
         kCavalryCharge,
         Make(kHeavy, Formation::Square),
         2,
         {"sound Ding", "courier 276"},
         kNone},
        {"one point", kCavalryCharge, Make(kHeavy, Formation::Line), 1, few, kNone},
        {"no points", kCavalryCharge, Make(kHeavy, Formation::Line), 0, kNoPoints, kNone},
        {"cossacks", kCavalryCharge, Make(kCossack, Formation::Line), 2, cossack, kNone},
        {"both", kCavalryCharge, Make(kCossack, Formation::Line), 1, cossack + few, kNone},
        {"foot", kCavalryCharge, Make(kLine, Formation::Line), 2, {}, kNone},

        {"line", kBayonetCharge, Make(kLine, Formation::Line), 1, {}, kBayonet},
        {"disorder", kBayonetCharge, Make(kLine, Formation::NoFormation), 1, {}, kBayonet},
        {"square", kBayonetCharge, Make(kLine, Formation::Square), 1, {"courier 276"}, kNone},
        {"horse", kBayonetCharge, Make(kHeavy, Formation::Line), 1, {}, kNone},
        {"shaken", kBayonetCharge, Make(kLine, Formation::Line, UnitStatus::Shaken), 0,
         kNoPoints + Words{"sound Ding"}, kNone},
    };
    for (const Order& given : orders) {
        SCOPED_TRACE(given.what);
        OrdersField field;
        field.TakeInHand(field.Add(kFrench, 1, 1, given.unit));
        field.CommandPoints() = given.commandPoints;
        field.game.state.bombardmentMode = given.bombardment;
        DispatchCommand(field.game, given.id);
        EXPECT_EQ(field.game.InHand().activity, given.activity);
        EXPECT_EQ(field.CommandPoints(), given.commandPoints);
        EXPECT_EQ(field.person.Heard(), given.heard);
    }
}

TEST(DoubleTime, DoublesTheStepOfDrilledInfantry) {
    struct Case {
        std::string_view what;
        Unit unit;
        int actionPoints;
        int commandPoints;
        int disrupted;
        int pointsAfter;
        Words heard;
    };
    const Unit open = Make(UnitType::LightInfantry, Formation::OpenOrder);
    const Unit line = Make(UnitType::LineInfantry, Formation::Line);
    const Unit column = Make(UnitType::HeavyCavalry, Formation::AttackColumn);
    const Unit horse = Make(UnitType::HeavyCavalry, Formation::Line);
    const Case cases[] = {
        {"open order", open, 1, 3, 0, 2, {"sound Quick_March3"}},
        {"has two", open, 2, 3, 0, 2, {}},
        {"has moved", open, 0, 3, 0, 0, {"courier 29"}},
        {"in line", line, 1, 3, 0, 1, {"courier 30"}},
        {"horse", column, 1, 3, 0, 1, {"courier 28"}},
        {"all three", horse, 0, 3, 0, 0, {"courier 28", "courier 29", "courier 30"}},
        {"disrupted", open, 1, 3, 1, 1, {"sound Ding"}},
        {"no points", line, 1, 0, 0, 1, kNoPoints + Words{"courier 30"}},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.what);
        OrdersField field;
        field.game.settings.battleSounds = 1;
        Unit unit = given.unit;
        unit.actionPoints = given.actionPoints;
        unit.disrupted = given.disrupted;
        field.TakeInHand(field.Add(kFrench, 1, 1, unit));
        field.CommandPoints() = given.commandPoints;
        DispatchCommand(field.game, kDoubleTime);
        const bool stood = given.pointsAfter > given.actionPoints;
        EXPECT_EQ(field.game.InHand().actionPoints, given.pointsAfter);
        EXPECT_EQ(field.CommandPoints(), given.commandPoints - (stood ? 1 : 0));
        EXPECT_EQ(field.person.Heard(), given.heard);
    }
}

TEST(Hold, NeedsAUnitPointsAndAnOpenTurn) {
    struct Case {
        int slot;
        int commandPoints;
        int locked;
        bool holds;
        Words heard;
    };
    const Case cases[] = {
        {2, 3, 0, true, {}},
        {0, 3, 0, false, {}},
        {2, 0, 0, false, kNoPoints},
        {2, 3, 1, false, {}},
    };
    for (const Case& given : cases) {
        OrdersField field;
        field.Add(kFrench, 1, 1, kFoot);
        const UnitId unit = field.Add(kFrench, 1, 2, kFoot);
        OnLeftClick(field.game, field.Ground(1));
        if (given.slot > 0) OnPanelClick(field.game, given.slot);
        field.person.Heard();
        field.CommandPoints() = given.commandPoints;
        field.game.state.turnLocked = given.locked;
        DispatchCommand(field.game, kHold);
        EXPECT_EQ(field.game.At(unit).activity == UnitActivity::Hold, given.holds);
        EXPECT_EQ(field.game.At(unit).actionPoints, given.holds ? 0 : 1);
        EXPECT_EQ(field.CommandPoints(), given.commandPoints - (given.holds ? 1 : 0));
        EXPECT_EQ(field.person.Heard(), given.heard);
        EXPECT_EQ(field.game.At({kFrench, 0}).activity, UnitActivity::None);
    }
}

TEST(Undo, GivesAMoveBackByCommandAndByKey) {
    for (bool byKey : {false, true}) {
        OrdersField field;
        const UnitId unit = field.Add(kFrench, 1, 1, kFoot);
        OnLeftClick(field.game, field.Ground(1));
        OnRightClick(field.game, field.Ground(2));
        ASSERT_EQ(field.game.At(unit).Place(), field.SlotCell(Side::French, 2, 1));
        if (byKey) {
            DispatchKey(field.game, Key::U);
        } else {
            DispatchCommand(field.game, 33000);
        }
        EXPECT_EQ(field.game.At(unit).Place(), field.SlotCell(Side::French, 1, 1));
        EXPECT_EQ(field.game.At(unit).actionPoints, 1);
        EXPECT_EQ(field.CommandPoints(), 5);
        EXPECT_EQ(field.game.undo.undoAvailable, 0);
    }
}

TEST(DoBattle, IsForUnitsOfInitiativeBeforeTheEnemy) {
    struct Case {
        std::string_view what;
        UnitType type;
        int leadership;
        bool leader;
        bool enemy;
        int optionOn;
        int mode;
        Words heard;
    };
    constexpr UnitType kLine = UnitType::LineInfantry;
    constexpr UnitType kGuns = UnitType::FieldArtillery;
    const Words ding = {"sound Ding"};
    const Words failed = {"sound Ding", "courier 14"};
    const Case cases[] = {
        {"of initiative", kLine, 5, false, true, 1, 1, {}},
        {"nobody there", kLine, 5, false, false, 1, 0, ding},
        {"guns", kGuns, 5, false, true, 1, 0, ding},
        {"no initiative", kLine, 4, false, true, 1, 0, failed},
        {"led", kLine, 4, true, true, 1, 1, failed},
        {"option off", kLine, 5, false, true, 0, 0, ding},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.what);
        OrdersField field;
        Unit unit = MakeUnit(given.type);
        unit.leadership = given.leadership;
        field.TakeInHand(field.Add(kFrench, 1, 1, unit));
        if (given.leader) field.Add(kFrench, 1, 2, MakeUnit(UnitType::Leader));
        if (given.enemy) field.Add(kPrussian, 1, 1, kFoot);
        field.game.options.localInitiativeOn = given.optionOn;
        DispatchCommand(field.game, kDoBattle);
        EXPECT_EQ(field.game.state.localBattleMode, given.mode);
        EXPECT_EQ(field.person.Heard(), given.heard);
        DispatchCommand(field.game, kCancelAction);
        EXPECT_EQ(field.game.state.localBattleMode, 0);
    }
}

TEST(DoBattle, IsRefusedASecondTimeAndOnALockedTurn) {
    OrdersField field;
    field.TakeInHand(field.Add(kFrench, 1, 1, kFoot));
    field.game.InHand().reservedH = 1;
    DispatchCommand(field.game, kDoBattle);
    EXPECT_EQ(field.person.Heard(), Words{"box Do Battle"});
    field.game.state.turnLocked = 1;
    DispatchCommand(field.game, kDoBattle);
    EXPECT_EQ(field.person.Heard(), Words{});
}

TEST(CancelEventCard, ParesWithWhatHelpsAlone) {
    struct Case {
        int army;
        int card;
        int left;
        Words heard;  // by the command; the key leaves out the word of success
    };
    const Words done = {"box Events card"};
    const Words weather = {"sound Ding", "box Events card"};
    const Words refused = {"sound Ding", "box Cancel Event Card"};
    const Case cases[] = {
        {kFrench, 5, 0, done},        {kFrench, 7, 7, refused},     {kFrench, 15, 0, done},
        {kBritish, 15, 15, refused},  {kAustrian, 62, 62, refused}, {kPrussian, 15, 0, done},
        {kPrussian, 28, 28, refused}, {kRussian, 5, 5, refused},    {kFrench, 206, 206, weather},
        {kFrench, 0, 0, done},
    };
    for (const Case& given : cases) {
        for (bool byKey : {false, true}) {
            OrdersField field;
            field.game.state.currentArmy = given.army;
            field.game.state.eventCard = given.card;
            field.game.state.bombardmentMode = 1;
            if (byKey) {
                DispatchKey(field.game, Key::E);
            } else {
                DispatchCommand(field.game, kCancelCard);
            }
            const bool cancelled = given.heard == done;
            EXPECT_EQ(field.game.state.eventCard, given.left);
            EXPECT_EQ(field.game.state.bombardmentMode, cancelled ? 0 : 1);
            EXPECT_EQ(field.person.Heard(), byKey && cancelled ? Words{} : given.heard);
        }
    }
}

// File --------------------------------------------------------------------------------------------

TEST(Open, LeavesTheBattleBehindAndGoesToTheStartScreenWithoutAFile) {
    OrdersField field;
    const UnitId unit = field.Add(kFrench, 1, 1, kFoot);
    field.game.state.gameTurn = 7;
    field.game.state.unitLimit = 300;
    field.game.state.fileNameKnown = 1;
    field.game.turnLog.turnInProgress = 1;
    field.game.loss.frenchLossSP = 4;
    DispatchCommand(field.game, kOpen);
    const GameState& state = field.game.state;
    EXPECT_EQ(state.turnPhase, TurnPhase::StartScreen);
    EXPECT_EQ(state.gameTurn, 1);
    EXPECT_EQ(state.fileNameKnown, 0);
    EXPECT_EQ(state.unitLimit, 300);
    EXPECT_EQ(state.mapReady, 1);
    EXPECT_EQ(field.game.turnLog.turnInProgress, 0);
    EXPECT_EQ(field.game.loss.frenchLossSP, 0);
    EXPECT_EQ(field.game.At(unit).strength, 0);
    EXPECT_EQ(field.game.grid.At(field.SlotCell(Side::French, 1, 1)).occupant, 0);
}

TEST(File, SaveWithoutANameTellsHowAndExitAsks) {
    OrdersField field;
    DispatchCommand(field.game, kSave);
    EXPECT_EQ(field.person.Heard(), Words{"box Help Box"});
    for (bool agrees : {false, true}) {
        field.person.agrees = agrees;
        DispatchCommand(field.game, kExit);
        EXPECT_EQ(field.person.Heard(), Words{"box Exit Message"});
        EXPECT_EQ(field.game.state.programEnded, agrees);
    }
}

TEST(Commands, WaitForABattle) {
    OrdersField field;
    field.game.state.mapReady = 0;
    DispatchCommand(field.game, kNext);
    DispatchKey(field.game, Key::V);
    DispatchCommand(field.game, 12345);
    EXPECT_EQ(field.person.Heard(), Words{});
}

// Status ------------------------------------------------------------------------------------------

TEST(Victory, SpeaksToTheSideInPlay) {
    struct Case {
        int score;  // of the first side, in points
        int firstPlayer;
        int army;
        std::string level;
    };
    const Case cases[] = {
        {-200, kFrench, kFrench, "Major Defeat"},
        {-100, kFrench, kFrench, "Minor Defeat"},
        {-99, kFrench, kFrench, "Draw"},
        {100, kFrench, kFrench, "Minor Victory"},
        {200, kFrench, kFrench, "Major Victory"},
        {200, kFrench, kPrussian, "Major Defeat"},
        {200, kPrussian, kBritish, "Major Victory"},
        {-100, kPrussian, kFrench, "Minor Victory"},
    };
    for (const Case& given : cases) {
        OrdersField field;
        field.game.header.majorDefeatLimit = -200;
        field.game.header.minorDefeatLimit = -100;
        field.game.header.minorVictoryLimit = 100;
        field.game.header.majorVictoryLimit = 200;
        field.game.header.firstPlayer = given.firstPlayer;
        field.game.state.currentArmy = given.army;
        const bool frenchLose = (given.score < 0) == (given.firstPlayer == kFrench);
        int& loss =
            frenchLose ? field.game.loss.frenchLossPoints : field.game.loss.alliedLossPoints;
        loss = 10 * std::abs(given.score);
        std::string level;
        std::string score;
        field.person.answers = [&](Dialog& dialog) {
            level = dialog.At(1231).text;
            score = dialog.At(1018).text;
        };
        DispatchKey(field.game, Key::V);
        EXPECT_EQ(level, given.level);
        EXPECT_EQ(score, std::to_string(given.score));
    }
}

TEST(EndGameStatus, ShowsTheReportsOfAnArmyThatTookPart) {
    OrdersField field;
    DispatchCommand(field.game, kEndGame);
    EXPECT_EQ(field.person.Heard(), Words{"box  "});
    field.game.header.gameEnded = 1;
    field.game.Army(kPrussian).present = 1;
    for (int army : {kPrussian, kRussian}) {
        field.person.answers = [&](Dialog& dialog) { dialog.Choose(1500 + army); };
        DispatchCommand(field.game, kEndGame);
        EXPECT_EQ(field.game.state.currentArmy, kPrussian);
        EXPECT_EQ(field.game.state.endGameArmy, kPrussian);
    }
}

}  // namespace
}  // namespace varnstride
