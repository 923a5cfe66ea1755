// varnstride-sim run: plays a script and prints what happens.
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>

#include "atlases/built_in.h"
#include "platform/headless/event_writer.h"
#include "platform/headless/script_run.h"
#include "sim/subcommands.h"

namespace varnstride::sim {
namespace {

constexpr const char* kHelp = R"(Commands of a script, one a line; # starts a comment:
  time N               the number that seeds the generator from now on
  set FIELD N          a setting or a field of the game; traceDice, riders
  pbem 0|1             the check box of the start screen
  new FILE             a fresh program that begins the scenario FILE
  load FILE            a fresh program that goes on with the battle FILE
  save FILE            Save As
  command ID           a command of the menus by its number
  key NAME             A to Z, 1, 2, 3, Tab, Shift, F1, F2
  left X Y, right X Y  a click on the hex
  panel N, strip N     a click on a unit panel or a tactical card, 1 to 3
  answer TEMPLATE CONTROL[=VALUE]... BUTTON
                       waits for the next dialog of that template
  answer box 1|2       waits for the next message box: OK or Cancel
  answer file PATH     waits for the next file chooser
  pass [N]             runs the game to the next orders, or N passes
  tick N               N seconds of the clock
  dump                 prints the whole state
  quit                 ends the script
Events go to standard output, one JSON object a line.)";

std::string ReadAll(std::istream& in) {
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string ReadScript(const std::string& path) {
    if (path.empty()) return ReadAll(std::cin);
    std::ifstream in(path, std::ios::binary);
    std::string text = in ? ReadAll(in) : std::string();
    if (!in || in.bad()) throw Refusal(path + ": the script cannot be read");
    return text;
}

void Run(const std::string& path) {
    const Result<Script> script =
        ParseScript(ReadScript(path), path.empty() ? "standard input" : path);
    if (!script.Ok()) throw Refusal(script.Message());
    EventWriter events(std::cout);
    const Result<Done> played = RunScript(script.Get(), BuiltInAtlases(), events);
    std::cout.flush();
    if (!played.Ok()) throw Refusal(played.Message());
    if (!std::cout) throw Refusal("the events cannot be written");
}

}  // namespace

void AddRun(CLI::App& app) {
    CLI::App* command = app.add_subcommand("run", "Plays a script and prints the events");
    command->footer(kHelp);
    const auto path = std::make_shared<std::string>();
    command->add_option("SCRIPT", *path, "The script; standard input when none is given");
    command->callback([path] { Run(*path); });
}

}  // namespace varnstride::sim
