// A script of the headless driver: one command a line, words split at blanks, a text with blanks in
// double quotes, # for comments. It is read whole and checked before anything of it is played.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "app/commands.h"
#include "model/cell.h"
#include "model/result.h"

namespace varnstride {

// What an answer does to one control; the last of an answer closes the dialog.
struct AnswerStep {
    int control = 0;
    std::optional<std::string> value{};  // after '='
};

struct DialogAnswer {
    int templateId = 0;
    std::vector<AnswerStep> steps;  // at least one
};
struct BoxAnswer {
    int button = 1;
};
struct FileAnswer {
    std::string path;
};

struct SeedTime {
    unsigned time = 0;
};
struct SetValue {
    std::string field;
    double value = 0;
};
struct TickMailBox {
    bool ticked = false;
};
struct OpenBattle {
    std::string path;
    bool existing = false;
};
struct SaveBattle {
    std::string path;
};
struct GiveCommand {
    int id = 0;
};
struct PressKey {
    Key key = Key::A;
};
struct ClickMap {
    Cell cell;
    bool left = true;
};
struct ClickPanel {
    int panel = 1;
};
struct PressCard {
    int card = 1;
};
struct RunPasses {
    int count = 0;  // 0: until a pass ends in the orders
};
struct TickClock {
    int seconds = 0;
};
struct DumpState {};
struct QuitScript {};

using ScriptAction =
    std::variant<SeedTime, SetValue, TickMailBox, OpenBattle, SaveBattle, GiveCommand, PressKey,
                 ClickMap, ClickPanel, PressCard, DialogAnswer, BoxAnswer, FileAnswer, RunPasses,
                 TickClock, DumpState, QuitScript>;

struct ScriptCommand {
    int line = 0;
    ScriptAction action;
};

struct Script {
    std::string name;  // as messages name it
    std::vector<ScriptCommand> commands;
};

// Reads a script. The first wrong line fails with "NAME:LINE: what is wrong; expected: ...".
Result<Script> ParseScript(std::string_view text, const std::string& name);

// A message about a line of a script.
std::string AtLine(const std::string& script, int line, const std::string& message);

// The key of a name as scripts write it, and back.
std::optional<Key> KeyOf(std::string_view name);
std::string NameOf(Key key);

}  // namespace varnstride
