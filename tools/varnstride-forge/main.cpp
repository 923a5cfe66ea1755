// varnstride-forge turns content that people write into what the game loads. Each kind of content
// is a subcommand with a file of its own.
#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>

#include "varnstride-forge/art_command.h"
#include "varnstride-forge/atlas_command.h"
#include "varnstride-forge/scenario_command.h"

namespace {

constexpr int kUsageMistake = 1;
constexpr int kBreakdown = 3;  // memory or the system, nothing that the content could mend

int Run(int argc, char** argv) {
    CLI::App app("Checks and compiles the content of Varnstride", "varnstride-forge");
    app.require_subcommand(1);
    int exitCode = 0;
    varnstride::AddArtCommand(app, exitCode);
    varnstride::AddAtlasCommand(app, exitCode);
    varnstride::AddScenarioCommand(app, exitCode);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kUsageMistake;
    }
    return exitCode;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "varnstride-forge: " << error.what() << "\n";
        return kBreakdown;
    }
}
