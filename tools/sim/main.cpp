// varnstride-sim: the game without a screen, for tests, batches and the curious.
#include <iostream>

#include "sim/subcommands.h"

using namespace varnstride::sim;

namespace {

constexpr int kWrongUse = 2;

// Help goes out with status 0, what is wrong with status 2 and one line.
int Explain(const CLI::App& app, const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    std::cerr << "varnstride-sim: " << error.what() << " (see varnstride-sim --help)\n";
    return kWrongUse;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    std::ios::sync_with_stdio(false);
    CLI::App app{
        "Plays Varnstride without a screen: the same rules, files, commands and clicks as "
        "in the window, with every dialog answered from a script."};
    app.require_subcommand(1);
    app.footer(
        "Exit status: 0 done; 2 a script, a file or an argument is wrong; 3 a duel broke a "
        "record.");
    AddRun(app);
    AddAtlas(app);
    AddDump(app);
    AddExplain(app);
    AddDuel(app);
    AddPicture(app);
    AddSignature(app);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        return Explain(app, error);
    } catch (const Refusal& refusal) {
        std::cerr << "varnstride-sim: " << refusal.what() << '\n';
        return refusal.status;
    }
    return 0;
}
