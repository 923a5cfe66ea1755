// How the driver's person answers: what is queued, the defaults, and dialogs that will not close.
#include "platform/headless/scripted_person.h"

#include <gtest/gtest.h>

#include <sstream>

#include "platform/headless/event_writer.h"

namespace varnstride {
namespace {

class ScriptedPersonTest : public testing::Test {
 protected:
    int AskAndClose(Dialog dialog) {
        person.Ask(dialog);
        return dialog.closedBy;
    }

    std::ostringstream out;
    EventWriter events{out};
    ScriptedPerson person{events};
};

Dialog WithButtons(int templateId, const std::vector<int>& buttons) {
    Dialog dialog{.templateId = templateId};
    for (int button : buttons)
        dialog.AddButton(button, "");
    return dialog;
}

Dialog Refusable() {
    Dialog dialog{.templateId = 320};
    dialog.AddRadio(1379, "French", true);
    dialog.AddRadio(1380, "Allied", false);
    dialog.StartRadioGroup();
    dialog.AddRadio(1471, "5 Minutes", true);
    dialog.AddEdit(1402, "3");
    dialog.AddList(1285, {"first", "second"});
    dialog.AddButton(kOk, "OK");
    dialog.AddButton(kCancel, "Cancel");
    return dialog;
}

TEST_F(ScriptedPersonTest, ClosesAnUnansweredDialogByItsDefault) {
    struct Case {
        int templateId;
        std::vector<int> buttons;
        int answer;
    };
    const Case kCases[] = {
        {143, {1, 1071}, 1}, {475, {1071}, 1071}, {567, {1648, 1649}, 1648},
        {269, {1, 1550}, 1}, {636, {1, 2}, 1},    {305, {1, 2}, 2},
        {364, {1}, 0},       {342, {1498, 2}, 2}, {614, {1, 2}, 2},
        {150, {1367, 2}, 2}, {643, {1071}, 1071},
    };
    for (const Case& each : kCases) {
        EXPECT_EQ(AskAndClose(WithButtons(each.templateId, each.buttons)), each.answer)
            << each.templateId;
    }
}

TEST_F(ScriptedPersonTest, SetsControlsAndTakesAnswersInOrder) {
    person.Queue(DialogAnswer{320, {{1380}, {1402, "2 x"}, {1285, "1"}, {1}}}, 1);
    person.Queue(DialogAnswer{320, {{1471, "0"}, {2}}}, 2);
    Dialog first = Refusable();
    person.Ask(first);
    EXPECT_EQ(first.closedBy, kOk);
    EXPECT_FALSE(first.IsTicked(1379));
    EXPECT_TRUE(first.IsTicked(1380));
    EXPECT_TRUE(first.IsTicked(1471));
    EXPECT_EQ(first.At(1402).text, "2 x");
    EXPECT_EQ(first.At(1285).value, 1);
    Dialog second = Refusable();
    person.Ask(second);
    EXPECT_EQ(second.closedBy, kCancel);
    EXPECT_FALSE(second.IsTicked(1471));
    EXPECT_EQ(out.str(),
              "{\"event\":\"dialog\",\"template\":320,\"controls\":{\"1379\":0,\"1380\":1,"
              "\"1471\":1,\"1402\":\"2 x\",\"1285\":[\"first\",\"second\"]},\"answer\":1}\n"
              "{\"event\":\"dialog\",\"template\":320,\"controls\":{\"1379\":1,\"1380\":0,"
              "\"1471\":0,\"1402\":\"3\",\"1285\":[\"first\",\"second\"]},\"answer\":2}\n");
}

TEST_F(ScriptedPersonTest, RefusesAnswersThatDoNotFit) {
    struct Case {
        AnswerStep step;
        const char* message;
    };
    const Case kCases[] = {
        {{1500}, "dialog 320 has no control 1500; it has: 1379, 1380, 1471, 1402, 1285, 1, 2"},
        {{1402}, "dialog 320 needs a text for control 1402"},
        {{1285}, "dialog 320 needs a line for its list 1285: write 1285=0 for the first"},
        {{1285, "2"}, "dialog 320 takes 0 to 1 for control 1285, not \"2\""},
        {{1379, "yes"}, "dialog 320 takes 0 to 1 for control 1379, not \"yes\""},
        {{1}, "dialog 320 is closed by control 1: it comes last"},
    };
    for (const Case& each : kCases) {
        person.Queue(DialogAnswer{320, {each.step, {1}}}, 7);
        Dialog dialog = Refusable();
        try {
            person.Ask(dialog);
            ADD_FAILURE() << each.message;
        } catch (const ScriptError& error) {
            EXPECT_STREQ(error.what(), each.message);
            EXPECT_EQ(error.line, 7);
        }
    }
}

TEST_F(ScriptedPersonTest, CancelsADialogThatComesBackAndGivesUpInTheEnd) {
    EXPECT_EQ(AskAndClose(Refusable()), kOk);
    EXPECT_EQ(AskAndClose(Refusable()), kCancel);
    person.BeginStep();
    EXPECT_EQ(AskAndClose(Refusable()), kOk);
    for (int time = 0; time < 1000; ++time)
        EXPECT_EQ(AskAndClose(Refusable()), kCancel);
    EXPECT_THROW(AskAndClose(Refusable()), ScriptError);
}

TEST_F(ScriptedPersonTest, ClosesWithoutAnAnswerWhatHasNoCancel) {
    Dialog dialog{.templateId = 304};
    dialog.AddEdit(1402, "");
    dialog.AddButton(kOk, "OK");
    EXPECT_EQ(AskAndClose(dialog), kOk);
    EXPECT_EQ(AskAndClose(dialog), 0);
}

TEST_F(ScriptedPersonTest, AnswersBoxesAndChoosersFromTheirQueues) {
    person.Queue(BoxAnswer{2});
    person.Queue(FileAnswer{"a.cmb"});
    const MessageBox question{.caption = "c", .text = "t", .buttons = BoxButtons::OkCancel};
    EXPECT_FALSE(person.Confirm(question));
    EXPECT_TRUE(person.Confirm(question));
    EXPECT_EQ(person.ChooseFile({FileKind::Battle, false}), "a.cmb");
    EXPECT_EQ(person.ChooseFile({FileKind::Battle, false}), std::nullopt);
    EXPECT_EQ(person.filesOpened, 1);
}

}  // namespace
}  // namespace varnstride
