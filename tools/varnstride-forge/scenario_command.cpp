#include "varnstride-forge/scenario_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "files/battle_file.h"
#include "forge/atlas_source.h"
#include "forge/scenario_compiler.h"
#include "forge/scenario_decompiler.h"
#include "forge/source_errors.h"
#include "forge/text_file.h"

namespace varnstride {
namespace {

constexpr int kContentMistake = 2;

struct ScenarioArguments {
    std::string input;
    std::string output;
    std::string atlases = "content/atlas";
    bool decompile = false;
    bool quiet = false;
};

int Refuse(const std::string& message) {
    std::cerr << message << (message.ends_with('\n') ? "" : "\n");
    return kContentMistake;
}

// The atlas files of a folder by name, so that every machine reads them in the same order.
Result<std::vector<std::string>> AtlasPaths(const std::string& folder) {
    std::error_code error;
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.path().extension() == ".atlas") paths.push_back(entry.path().string());
    }
    if (error) return Failure{folder + ": cannot be read: " + error.message()};
    if (paths.empty()) return Failure{folder + ": holds no .atlas file"};
    std::sort(paths.begin(), paths.end());
    return paths;
}

// Whether an atlas suits its battlefield is the business of the subcommand "atlas".
Result<AtlasCatalogue> ReadAtlases(const std::string& folder) {
    const Result<std::vector<std::string>> paths = AtlasPaths(folder);
    if (!paths.Ok()) return Failure{paths.Message()};
    std::vector<Atlas> atlases;
    for (const std::string& path : paths.Get()) {
        const Result<std::string> text = ReadTextFile(path);
        if (!text.Ok()) return Failure{text.Message()};
        SourceErrors errors(path);
        const AtlasSource source = ParseAtlasSource(text.Get(), errors);
        if (!errors.IsEmpty()) return Failure{errors.Text()};
        atlases.push_back(BuildAtlas(source));
    }
    return AtlasCatalogue(std::move(atlases));
}

int Compile(const ScenarioArguments& arguments, const AtlasCatalogue& atlases) {
    const Result<std::string> text = ReadTextFile(arguments.input);
    if (!text.Ok()) return Refuse(text.Message());
    SourceErrors errors(arguments.input);
    std::vector<std::string> warnings;
    const auto scenario = CompileScenario(text.Get(), atlases, errors, warnings);
    if (!arguments.quiet) {
        for (const std::string& warning : warnings)
            std::cerr << "warning: " << arguments.input << ": " << warning << "\n";
    }
    if (!scenario) return Refuse(errors.Text());
    const Result<Done> written = WriteBattleFile(arguments.output, scenario->file);
    return written.Ok() ? 0 : Refuse(written.Message());
}

int Decompile(const ScenarioArguments& arguments, const AtlasCatalogue& atlases) {
    const Result<BattleFile> file = ReadBattleFile(arguments.input, atlases);
    if (!file.Ok()) return Refuse(file.Message());
    const std::string text = DecompileScenario(file.Get(), atlases);
    if (arguments.output.empty()) {
        std::cout << text;
        return 0;
    }
    const Result<Done> written = WriteTextFile(arguments.output, text);
    return written.Ok() ? 0 : Refuse(written.Message());
}

int Run(const ScenarioArguments& arguments) {
    if (!arguments.decompile && arguments.output.empty()) {
        return Refuse("scenario: -o FILE.scn is missing");
    }
    const Result<AtlasCatalogue> atlases = ReadAtlases(arguments.atlases);
    if (!atlases.Ok()) return Refuse(atlases.Message());
    return arguments.decompile ? Decompile(arguments, atlases.Get())
                               : Compile(arguments, atlases.Get());
}

}  // namespace

void AddScenarioCommand(CLI::App& app, int& exitCode) {
    CLI::App* const scenario =
        app.add_subcommand("scenario", "Compile a scenario source, or turn a scenario into one");
    const auto arguments = std::make_shared<ScenarioArguments>();
    scenario->add_option("file", arguments->input, "The source; with --decompile the scenario")
        ->required();
    scenario->add_option("-o,--output", arguments->output,
                         "The file to write; with --decompile standard output by default");
    scenario->add_option("--atlases", arguments->atlases, "The folder of the atlas files")
        ->capture_default_str();
    scenario->add_flag("--decompile", arguments->decompile, "Write the source of a scenario");
    scenario->add_flag("--quiet", arguments->quiet, "Keep the warnings to itself");
    scenario->callback([arguments, &exitCode] { exitCode = Run(*arguments); });
}

}  // namespace varnstride
