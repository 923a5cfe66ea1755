// varnstride-sim dump: prints a file.
#include <iostream>
#include <memory>

#include "atlases/built_in.h"
#include "files/battle_file.h"
#include "platform/headless/state_dump.h"
#include "sim/subcommands.h"

namespace varnstride::sim {
namespace {

void Print(const std::string& path) {
    const Result<BattleFile> file = ReadBattleFile(path, BuiltInAtlases());
    if (!file.Ok()) throw Refusal(file.Message());
    std::cout << FileAsJson(file.Get()).dump() << '\n';
}

}  // namespace

void AddDump(CLI::App& app) {
    CLI::App* command =
        app.add_subcommand("dump", "Prints a scenario, battle or turn file as JSON");
    const auto path = std::make_shared<std::string>();
    command->add_option("FILE", *path, "The file")->required();
    command->callback([path] { Print(*path); });
}

}  // namespace varnstride::sim
