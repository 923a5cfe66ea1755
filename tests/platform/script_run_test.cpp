// Whole scripts on a tiny battle: the events, the state, and what a wrong script leaves behind.
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "model/generator.h"
#include "platform/tiny_battle.h"

namespace varnstride {
namespace {

using nlohmann::json;

// The French hot seat: no cards, no tactics, fog as the scenario has it.
constexpr const char* kOptions = "answer 302 1295 1553 1299=0 1625=0 1657=0 1\n";

class ScriptRunTest : public testing::Test {
 protected:
    std::string Begin() const { return kOptions + ("new " + battle.scenario) + "\npass\n"; }
    // The state that a script's last dump shows.
    json StateAfter(const std::string& script) const {
        std::string events = battle.Play(script + "dump\nquit\n");
        events.resize(events.size() - LastLine(events).size() - 1);
        return json::parse(LastLine(events));
    }

    TinyBattle battle;
};

TEST_F(ScriptRunTest, TellsTheEventsOfATurnInTheirOrder) {
    EXPECT_EQ(
        battle.Play(Begin() + "set noDelays 1\ncommand 32858\npass\n"),
        R"({"event":"dialog","template":302,"controls":{"1295":1,"1296":0,"1297":0,"1299":0,)"
        R"("1470":0,"1374":0,"1375":0,"1376":0,"1474":0,"1300":0,"1301":0,"1553":1,"1625":0,)"
        R"("1657":0,"1658":0,"1662":0},"answer":1})"
        "\n"
        R"({"event":"phase","phase":"BeginSide","army":0,"turn":1})"
        "\n"
        R"({"event":"phase","phase":"StartTurn","army":0,"turn":1})"
        "\n"
        R"({"event":"box","caption":"Turn Advance Message","text":"       OK to advance turn?","answer":1})"
        "\n"
        R"({"event":"sound","name":"Tick"})"
        "\n"
        R"({"event":"phase","phase":"EndTurn","army":0,"turn":1})"
        "\n"
        R"({"event":"phase","phase":"BeginSide","army":3,"turn":1})"
        "\n"
        R"({"event":"phase","phase":"StartTurn","army":3,"turn":1})"
        "\n"
        R"({"event":"dialog","template":144,"controls":{"1225":"Prussian","1146":"0","1111":"0","1147":"0","1110":"0","1174":"0","1425":"100"},"answer":1})"
        "\n"
        R"({"event":"end","reason":"script"})"
        "\n");
}

TEST_F(ScriptRunTest, ShowsTheStateByTheNamesOfItsFields) {
    const json state = StateAfter(Begin() + "left 3 1\npanel 2\n");
    EXPECT_EQ(state["game"]["selectedSlot"], 2);
    EXPECT_EQ(state["game"]["selectedCell"], (json{3, 1}));
    EXPECT_EQ(state["game"]["turnInProgress"], 1);
    EXPECT_EQ(state["game"]["clockHours"], 9.3);
    EXPECT_EQ(state["header"]["lastTurn"], 3);
    EXPECT_EQ(state["armies"].size(), 7U);
    ASSERT_EQ(state["units"].size(), 7U);
    ASSERT_EQ(state["units"][0].size(), 2U);
    EXPECT_EQ(state["units"][0][1]["index"], 2);
    EXPECT_EQ(state["units"][0][1]["name"], "Hussars");
    EXPECT_EQ(state["units"][3][0]["type"], 2);
}

TEST_F(ScriptRunTest, TellsOfCellsOnlyWhatTheBattleHasChanged) {
    EXPECT_EQ(StateAfter(Begin())["cells"], json::array());
    const json cells = StateAfter(Begin() + "left 3 1\npanel 2\nright 9 1\n")["cells"];
    const auto find = [&](int x, int y) {
        for (const json& cell : cells) {
            if (cell["x"] == x && cell["y"] == y) return cell;
        }
        return json();
    };
    EXPECT_EQ(find(3, 1)["occupant"], 0);
    EXPECT_EQ(find(9, 1)["occupant"], 1);
}

TEST_F(ScriptRunTest, KeepsSettingsOverANewBattleAndNothingElse) {
    EXPECT_EQ(StateAfter("set pinLevel 3\n" + Begin())["game"]["pinLevel"], 0);
    EXPECT_EQ(StateAfter(Begin() + "set pinLevel 3\n")["game"]["pinLevel"], 3);
    const std::string refused = Begin() + "set eventCard 205\ncommand 33006\n";
    const std::string alert = R"({"event":"sound","name":"Ding"})";
    EXPECT_NE(battle.Play(refused).find(alert), std::string::npos);
    EXPECT_EQ(battle.Play("set noErrorAlert 1\n" + refused).find(alert), std::string::npos);
}

TEST_F(ScriptRunTest, GoesOnWithABattleThatItHasSaved) {
    const std::string saved = battle.Path("saved.cmb");
    const std::string played = Begin() + "left 3 1\npanel 2\nright 9 1\nsave " + saved + "\n";
    const json before = StateAfter(played);
    const json after = StateAfter(played + "load " + saved + "\npass\n");
    for (const char* part : {"header", "time", "loss", "options", "armies", "units"}) {
        EXPECT_EQ(after[part], before[part]) << part;
    }
    EXPECT_EQ(json::parse(LastLine(battle.Play(played + "answer box 1\ncommand 1051\ndump\n"))),
              (json{{"event", "end"}, {"reason", "quit"}}));
}

TEST_F(ScriptRunTest, PrintsNothingWhenALineOrAFileIsWrong) {
    EXPECT_EQ(battle.Play(Begin() + "left 1\n"),
              "tiny.script:4: too few words; expected: left X Y");
    std::ofstream(battle.Path("bad.scn")) << "not a battle";
    const std::string message = battle.Play(Begin() + "load " + battle.Path("bad.scn") + "\n");
    EXPECT_EQ(message.rfind("tiny.script:4: " + battle.Path("bad.scn"), 0), 0U) << message;
    EXPECT_EQ(battle.Play("left 1 1\n"), "tiny.script:1: no battle is open; expected: new FILE");
}

TEST_F(ScriptRunTest, TracesDiceWhenItIsTold) {
    Generator generator;
    generator.Seed(4711);
    const std::string tune = R"({"event":"die","n":10,"value":)" +
                             std::to_string(generator.Next() % 10) + R"(,"logged":false})";
    const std::string script = "time 4711\nset backgroundMusic 1\n" + Begin();
    EXPECT_EQ(battle.Play(script).find("\"die\""), std::string::npos);
    EXPECT_NE(battle.Play("set traceDice 1\n" + script).find(tune), std::string::npos);
}

}  // namespace
}  // namespace varnstride
