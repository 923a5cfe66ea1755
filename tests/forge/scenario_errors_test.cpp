// Slips in a good source, each with the line and the words that must be told about it. A slip that
// leads to one message more or less than expected fails too.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "atlas_texts.h"
#include "files/battle_checks.h"
#include "forge_run.h"
#include "toy_scenario.h"

namespace varnstride {
namespace {

// A message expected in the line of the mutated source that holds `at` (the first such line); an
// empty `at` stands for the file as a whole.
struct Expected {
    std::string_view at;
    std::string_view fragment;
};

struct BrokenSource {
    const char* name;
    std::vector<Slip> slips;
    std::vector<Expected> expected;
};

int LineWith(const std::string& text, std::string_view part) {
    const std::size_t place = text.find(part);
    if (place == std::string::npos) return -1;
    return 1 + static_cast<int>(std::count(
                   text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n'));
}

const std::vector<BrokenSource>& BrokenSources() {
    static const std::vector<BrokenSource> sources = {
        // Sections and keys.
        {"UnknownSection", {{"[roads]", "[rodes]"}}, {{"[rodes]", "unknown section [rodes]"}}},
        {"SectionOfNoArmy",
         {{"[briefing Prussian]", "[briefing Pruss]"}},
         {{"[briefing Pruss]", "unknown army \"Pruss\": expected French, British"}}},
        {"TwoSections",
         {{"[units French]", "[labels]\n[units French]"}},
         {{"[labels]\n[", "a second"}}},
        {"TextBeforeSections", {{"; A toy.", "Hello"}}, {{"Hello", "expected a heading"}}},
        {"OpenHeading", {{"[roads]\npaved", "[roads\n;"}, {"track", ";"}}, {{"[roads", "\"]\""}}},
        {"MissingSection",
         {{"[armies]\nFrench = 5\nPrussian = 4\n", ""}, {"first = French\n", ""}},
         {{"[battle]", "no \"first\""}, {"Landwehr", "[armies] is missing"}}},
        {"UnknownKey",
         {{"wind = 5", "wint = 5"}},
         {{"wint", "unknown key \"wint\""}, {"[battle]", "no \"wind\""}}},
        {"TwoKeys", {{"dusk = 21", "dusk = 21\ndusk = 20"}}, {{"dusk = 20", "a second \"dusk\""}}},
        {"NoKey", {{"dusk = 21", "dusk = 21\ndusk"}}, {{"dusk\n", "\"key = value\""}}},
        {"NoBattlefield", {{"map = 5", "map = 6"}}, {{"map = 6", "has an atlas"}}},
        {"GridTooSmall", {{"grid = 12 x 8", "grid = 11 x 8"}}, {{"grid", "at least 12 x 7"}}},
        {"GridUnreadable", {{"grid = 12 x 8", "grid = twelve"}}, {{"grid", "COLUMNS x ROWS"}}},
        {"NumberOutOfRange",
         {{"rain = 10", "rain = 110"}},
         {{"rain", "from 0 to 100, found \"110\""}}},
        {"NoTimeOfDay", {{"start = 9.05", "start = 9.5"}}, {{"start", "HOURS.MINUTES"}}},
        {"LimitsNotRising", {{"-30, -10, 10", "-30, 20, 10"}}, {{"limits", "rising"}}},
        {"LongAuthor",
         {{"A. Tester", "Somebody of a very long name indeed"}},
         {{"author", "at most 29 characters, found 35"}}},
        {"FirstArmyAbsent",
         {{"first = French", "first = Russian"}},
         {{"first", "Russian is not in [armies]"}}},
        {"UnknownRules", {{"fog = 1", "fog = 1\nrules = lax"}}, {{"rules", "strict, loose"}}},
        // Maps.
        {"UnknownLetter", {{". c c", "Q c c"}}, {{"Q c c", "row 3 has \"Q\" at cell 0,3"}}},
        {"LettersTogether", {{"f f ~ .", "ff ~ . ."}}, {{"ff ~", "row 0 has \"ff\" at cell 3,0"}}},
        {"ShortRow",
         {{". w w . . L", ". w w . . ."}, {"L . . . . .", "L . . . ."}},
         {{". w w", "row 7 has 11 cells: expected 12"}}},
        {"MissingRow",
         {{"\n . . . f f ~", "\n; . . . f f ~"}},
         {{". . . . . ~ . . . v v .", "row 1 begins with 0 blanks: expected 1"},
          {" . w w", "has 7 rows: expected 8"}}},
        {"AreaNumber",
         {{"[areas]\n1", "[areas]\n0"}},
         {{"0 1 1 1", "row 0 has \"0\" at cell 0,0: expected 1 to 9"}}},
        {"Height", {{"2 5 4 3", "2 5 6 3"}}, {{"2 5 6 3", "\"6\" at cell 10,7"}}},
        {"Overlay", {{". p . . .", ". x . . ."}}, {{". x .", "expected p or ."}}},
        // Roads and places.
        {"RoadOffGrid", {{"0,4 11,4", "0,4 12,4"}}, {{"High Road", "12,4 is off the grid"}}},
        {"RoadOfOneCell", {{"2,4 2,0", "2,4"}}, {{"Mill Lane", "does not connect"}}},
        {"RoadStandsStill", {{"2,4 2,0", "2,4 2,4 2,0"}}, {{"Mill Lane", "2,4 twice"}}},
        {"RoadIntoLake", {{"2,4 2,0", "2,4 5,7"}}, {{"Mill Lane", "lake at 5,7"}}},
        {"RoadOfNoKind", {{"track Mill", "path Mill"}}, {{"path Mill", "\"track NAME:"}}},
        {"NoCell", {{"2,4 2,0", "2,4 2;0"}}, {{"Mill Lane", "\"x,y\", found \"2;0\""}}},
        {"LongLabel",
         {{"\"Wood\"", "\"A wood that has far too long a name\""}},
         {{"A wood", "at most 29"}}},
        {"LabelWithoutQuotes", {{"\"Wood\"", "Wood"}}, {{"3,0 Wood", "in quotes"}}},
        {"TwoLabels", {{"9,2 \"Upper", "3,0 \"Upper"}}, {{"3,0 \"Upper", "has a label already"}}},
        {"LabelStyle", {{"style 1 2", "style 1"}}, {{"Upper", "\"style ROW BLOCK\""}}},
        {"ObjectiveWorth", {{"9,2 100", "9,2 75"}}, {{"9,2 75", "expected 50, 100"}}},
        {"ExitOfNoArmy", {{"exit French", "exit Frensh"}}, {{"Frensh", "unknown army"}}},
        {"TwoObjectives", {{"6,5 exit", "9,2 exit"}}, {{"9,2 exit", "objective already"}}},
        {"ArmyTwice",
         {{"Prussian = 4", "French = 4"}, {"[units Prussian]", "[units British]"}},
         {{"French = 4", "second time"}, {"[units British]", "does not name the army British"}}},
        {"NoCommandPoints",
         {{"Prussian = 4", "Prussian = few"}, {"Guns ", "     "}},
         {{"Prussian = few", "Command Points"},
          {"4     |", "column \"name\""},
          {"[units Prussian]", "does not name"}}},
        // Units.
        {"UnknownType", {{"| Leader ", "| Chief  "}}, {{"Old Fritz", "\"Chief\": expected Light"}}},
        {"UnknownColumn",
         {{"| other\n4", "| odd\n4"}, {"morale=11", "-"}},
         {{"index |", "unknown column \"odd\": expected some of index"}}},
        {"ColumnTwice",
         {{"| ammunition |", "| at         |"},
          {"| 5          |", "| 10,6       |"},
          {"| -          | morale", "| 8,6        | morale"}},
         {{"index |", "\"at\" stands here twice"}}},
        {"ColumnsOfRow", {{"| 1,1 |", "|"}}, {{"Old Fritz", "has 12 columns: expected 13"}}},
        {"NoMorale", {{"| 22     | 10,6", "| -      | 10,6"}}, {{"Guns", "column \"morale\""}}},
        {"NoNumber", {{"| 5        |", "| five     |"}}, {{"1st Foot", "strength: expected"}}},
        {"TwoInASlot",
         {{"| 3,1 |", "| 1,1 |"}},
         {{"1st Foot", "\"1st Foot\" stands at 1,1 where the unit of line"}}},
        {"OnNoSlot",
         {{"| 3,1 |", "| 3,2 |"}},
         {{"1st Foot", "3,2, which is no French slot: expected one, in its area 1,1, 3,1 or 1,3"}}},
        {"OnAnEnemySlot", {{"| 3,1 |", "| 2,6 |"}}, {{"1st Foot", "no French slot"}}},
        {"UnitNowhere", {{"| 2,4 | 2 80%", "| -   | 2 80%"}}, {{"2nd Foot", "column \"at\""}}},
        {"UnitOffGrid",
         {{"| 3,1 |", "| 3,9 |"}},
         {{"1st Foot", "at: expected a cell of the grid"}}},
        {"ArrivesOnTurnOne", {{"2 80%", "1 80%"}}, {{"2nd Foot", "from turn 2 on"}}},
        {"ArrivesByNoChance", {{"2 80%", "2    "}}, {{"2nd Foot", "TURN CHANCE%"}}},
        {"IndexTaken",
         {{"-     | Land", "4     | Land"}},
         {{"Landwehr", "record 4 is taken by the unit on line"}}},
        {"IndexTooHigh", {{"4     | Guns", "600   | Guns"}}, {{"Guns", "from 1 to 599"}}},
        {"OtherField", {{"visible=1", "visibel=1"}}, {{"2nd Foot", "unknown field \"visibel\""}}},
        {"OtherValue",
         {{"visible=1", "status=9 "}},
         {{"2nd Foot", "status is 9, expected 0 to 4"}}},
        // Free texts and overrides.
        {"LongBriefing",
         {{"Hold the village.",
           std::string_view("0123456789012345678901234567890123456789012345678901234567\n"
                            "0123456789012345678901234567890123456789012345678901234567\n"
                            "0123456789012345678901234567890123456789012345678901234567\n"
                            "0123456789012345678901234567890123456789012345678901234567\n"
                            "0123456789012345678901234567890123456789012345678901234567\n"
                            "0123456789012345678901234567890123456789012345678901234567\n"
                            "0123456789012345678901234567890123456789012345678901234567\n"
                            "0123456789012345678901234567890123456789012345678901234567\n"
                            "0123456789012345678901234567")}},
         {{"[briefing", "at most 499 characters, found 500"}}},
        {"CellField",
         {{"[armies]", "[cells]\n1,1 ground=3\n[armies]"}},
         {{"1,1 ground", "unknown field \"ground\""}}},
        {"CellValue",
         {{"[armies]", "[cells]\n1,1 featureTile=256\n[armies]"}},
         {{"1,1 feature", "featureTile is 256, expected 0 to 255"}}},
        {"CellOffGrid",
         {{"[armies]", "[cells]\n1,8 groundTile=3\n[armies]"}},
         {{"1,8 ground", "off the grid"}}},
        {"FieldBlock",
         {{"[armies]", "[fields]\nheadr.visibility = 3\n[armies]"}},
         {{"headr", "BLOCK.FIELD = VALUE"}}},
        {"FieldNumber",
         {{"[armies]", "[fields]\nheader.visibility = 40000\n[armies]"}},
         {{"header.v", "-32768 to 32767"}}},
        {"FieldText",
         {{"[armies]", "[fields]\nunit French 2.name = \"a\\g0\"\n[armies]"}},
         {{"unit French 2", "in quotes"}}},
        {"FieldBytes",
         {{"[armies]", "[fields]\nsize.reserved = 0102030405\n[armies]"}},
         {{"size.", "at most 4 bytes, found 5"}}},
        {"FileAsAWhole",
         {{"[armies]", "[fields]\nheader.gameEnded = 2\n[armies]"}},
         {{"", "gameEnded is 2"}}},
        // Everything at once.
        {"Many",
         {{"turns = 6", "turns = 0"},
          {". c c", "Q c c"},
          {"0,4 11,4", "0,4 12,4"},
          {"9,2 100", "9,2 75"},
          {"| Leader ", "| Chief  "},
          {"| 3,1 |", "| 3,2 |"}},
         {{"turns", "from 1 to 999"},
          {"Q c c", "\"Q\""},
          {"High Road", "off the grid"},
          {"9,2 75", "unknown worth"},
          {"Old Fritz", "Chief"},
          {"1st Foot", "no French slot"}}},
    };
    return sources;
}

TEST(ScenarioErrors, EachSlipIsToldInItsLine) {
    for (const BrokenSource& broken : BrokenSources()) {
        SCOPED_TRACE(broken.name);
        const std::string text = WithSlips(ToyText(), broken.slips);
        const std::string told = ErrorsOf(text, ToyAtlases());
        std::size_t wanted = 0;
        for (const Expected& expected : broken.expected) {
            if (expected.fragment.empty()) continue;
            ++wanted;
            const int line = expected.at.empty() ? 0 : LineWith(text, expected.at);
            EXPECT_TRUE(Tells(told, line, expected.fragment))
                << "expected in line " << line << ": " << expected.fragment << "\ntold:\n"
                << told;
        }
        EXPECT_EQ(static_cast<std::size_t>(std::count(told.begin(), told.end(), '\n')), wanted)
            << told;
    }
}

TEST(ScenarioErrors, LooseRulesTakeWhatAFileMayHold) {
    const std::string text = WithSlips(ToyText(), {{"fog = 1", "fog = 1\nrules = loose"},
                                                   {"| 2,4 | 2 80%", "| -   | 2 80%"},
                                                   {"Guns ", "-    "}});
    EXPECT_EQ(ErrorsOf(text, ToyAtlases()), "");
    EXPECT_NE(ErrorsOf(WithSlips(text, {{"| 3,1 |", "| 3,2 |"}}), ToyAtlases()), "");
}

// Whatever a slip of the hand makes of a source, it ends in messages or in a sound file.
TEST(ScenarioErrors, DamagedSourcesAreRefusedOrSound) {
    constexpr std::string_view kTyped = "0123456789,.-|=[]\"\\; \n~#Lw%";
    std::mt19937 chance(1815);
    int refused = 0;
    for (int round = 0; round < 400; ++round) {
        std::string text = ToyText();
        for (int slips = 1 + static_cast<int>(chance() % 3); slips > 0; --slips) {
            const std::size_t at = chance() % text.size();
            const std::size_t lost = chance() % 3 == 0 ? chance() % 40 : chance() % 2;
            text.replace(at, std::min(lost, text.size() - at), 1, kTyped[chance() % kTyped.size()]);
        }
        SourceErrors errors("t");
        std::vector<std::string> warnings;
        const auto scenario = CompileScenario(text, ToyAtlases(), errors, warnings);
        ASSERT_EQ(scenario.has_value(), errors.IsEmpty());
        if (!scenario) ++refused;
        if (!scenario) continue;
        ASSERT_EQ(FindFault(scenario->file, ToyAtlases()).value_or(""), "") << text;
    }
    EXPECT_GT(refused, 200);
    EXPECT_LT(refused, 400);
}

class ScenarioRun : public ForgeRun {};

TEST_F(ScenarioRun, NothingIsWrittenWithAMistake) {
    const std::string good =
        ReadTextFile(VARNSTRIDE_SOURCE_DIR "/content/scenarios/gilly_rearguard.scenario").Get();
    const std::string options = " --atlases '" VARNSTRIDE_SOURCE_DIR "/content/atlas'";
    Write("good.scenario", good);
    Write("bad.scenario", WithSlips(good, {{"turns = 7", "turns = seven"}}));
    EXPECT_EQ(Run("scenario bad.scenario -o a.scn" + options), 2);
    EXPECT_TRUE(Told().starts_with("bad.scenario:9: turns: expected ")) << Told();
    EXPECT_FALSE(std::filesystem::exists(Path("a.scn")));
    EXPECT_EQ(Run("scenario good.scenario -o a.scn" + options), 0) << Told();
    const std::string before = ReadTextFile(Path("a.scn")).Get();
    EXPECT_EQ(Run("scenario bad.scenario -o a.scn" + options), 2);
    EXPECT_EQ(ReadTextFile(Path("a.scn")).Get(), before);
    EXPECT_EQ(Run("scenario --decompile a.scn -o again.scenario" + options), 0) << Told();
    EXPECT_EQ(Run("scenario again.scenario -o b.scn" + options), 0) << Told();
    EXPECT_EQ(ReadTextFile(Path("b.scn")).Get(), before);
    EXPECT_EQ(Run("scenario --decompile good.scenario" + options), 2);
    EXPECT_NE(Told().find("good.scenario: this is no scenario"), std::string::npos) << Told();
}

}  // namespace
}  // namespace varnstride
