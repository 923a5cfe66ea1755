// What a script may say, and how a wrong line is told.
#include "platform/headless/script.h"

#include <gtest/gtest.h>

namespace varnstride {
namespace {

TEST(Script, TellsTheFirstWrongLineAndWhatWasExpected) {
    struct Case {
        const char* text;
        const char* message;
    };
    const Case kCases[] = {
        {"dump\n\nlefty 1 2\n",
         "s:3: unknown command \"lefty\"; expected: one of time, set, pbem, new, load, save, "
         "command, key, left, right, panel, strip, answer, pass, tick, dump, quit"},
        {"left 1", "s:1: too few words; expected: left X Y"},
        {"left 1 2 3", "s:1: too many words; expected: left X Y"},
        {"left 1 x", "s:1: \"x\" is no whole number 0 or more; expected: left X Y"},
        {"right -1 2", "s:1: \"-1\" is no whole number 0 or more; expected: right X Y"},
        {"time soon", "s:1: \"soon\" is no whole number 0 or more; expected: time N"},
        {"panel 4",
         "s:1: \"4\" is no whole number from 1 to 3; expected: panel N, with N from 1 to 3"},
        {"pbem 2", "s:1: \"2\" is no whole number from 0 to 1; expected: pbem 0 or pbem 1"},
        {"pass 0", "s:1: \"0\" is no whole number 1 or more; expected: pass or pass N"},
        {"key a",
         "s:1: \"a\" is no key; expected: key NAME, with A to Z, 1, 2, 3, Tab, Shift, F1 or F2"},
        {"set computerside 1",
         "s:1: no setting and no field of the game is called computerside; expected: set FIELD N"},
        {"set computerSide 3", "s:1: computerSide takes 0 to 2; expected: set FIELD N"},
        {"set computerSide many", "s:1: \"many\" is no number; expected: set FIELD N"},
        {"set gameTurn 1.5", "s:1: gameTurn takes a whole number; expected: set FIELD N"},
        {"set selectedCell 1",
         "s:1: selectedCell does not hold a single number; expected: set FIELD N"},
        {"new \"a file",
         "s:1: a quoted text does not end on its line; expected: a closing double "
         "quote"},
        {"answer 302 1297 1=1",
         "s:1: the last control of an answer closes the dialog and takes no value; expected: "
         "answer TEMPLATE CONTROL..., answer box 1, answer box 2 or answer file PATH"},
        {"answer box 3",
         "s:1: \"3\" is no whole number from 1 to 2; expected: answer TEMPLATE CONTROL..., answer "
         "box 1, answer box 2 or answer file PATH"},
    };
    for (const Case& each : kCases) {
        const Result<Script> script = ParseScript(each.text, "s");
        ASSERT_FALSE(script.Ok()) << each.text;
        EXPECT_EQ(script.Message(), each.message);
    }
}

TEST(Script, ReadsQuotesCommentsAndValues) {
    const Result<Script> script = ParseScript(
        "  # nothing here\n"
        "new \"a file.scn\"   # begins\r\n"
        "answer 305 1402=\"two words\" 1\n"
        "key Shift\n"
        "set clockHours 9.3",
        "s");
    ASSERT_TRUE(script.Ok()) << script.Message();
    const std::vector<ScriptCommand>& commands = script.Get().commands;
    ASSERT_EQ(commands.size(), 4U);
    EXPECT_EQ(commands[0].line, 2);
    EXPECT_EQ(std::get<OpenBattle>(commands[0].action).path, "a file.scn");
    const auto& answer = std::get<DialogAnswer>(commands[1].action);
    ASSERT_EQ(answer.steps.size(), 2U);
    EXPECT_EQ(answer.steps[0].control, 1402);
    EXPECT_EQ(answer.steps[0].value, "two words");
    EXPECT_EQ(answer.steps[1].control, 1);
    EXPECT_EQ(std::get<PressKey>(commands[2].action).key, Key::Shift);
    EXPECT_EQ(std::get<SetValue>(commands[3].action).value, 9.3);
}

}  // namespace
}  // namespace varnstride
