// The subcommands of varnstride-sim. Each adds itself to the command line and, when it is the one
// given, does its work and throws a Refusal for what is wrong.
#pragma once

#include <CLI/CLI.hpp>
#include <stdexcept>
#include <string>

namespace varnstride::sim {

// Ends the program with a status and one line on standard error.
struct Refusal : std::runtime_error {
    explicit Refusal(const std::string& message, int exitStatus = 2)
        : std::runtime_error(message), status(exitStatus) {}
    int status;
};

void AddRun(CLI::App& app);
void AddAtlas(CLI::App& app);
void AddDump(CLI::App& app);
void AddExplain(CLI::App& app);
void AddDuel(CLI::App& app);
void AddPicture(CLI::App& app);
void AddSignature(CLI::App& app);

}  // namespace varnstride::sim
