// varnstride-forge turns content that people write into what the game loads. Each kind of content
// is a subcommand with a file of its own.
#include <CLI/CLI.hpp>

#include "varnstride-forge/atlas_command.h"
#include "varnstride-forge/scenario_command.h"

int main(int argc, char** argv) {
    constexpr int kUsageMistake = 1;
    CLI::App app("Checks and compiles the content of Varnstride", "varnstride-forge");
    app.require_subcommand(1);
    int exitCode = 0;
    varnstride::AddAtlasCommand(app, exitCode);
    varnstride::AddScenarioCommand(app, exitCode);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kUsageMistake;
    }
    return exitCode;
}
