#include "varnstride-forge/atlas_command.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "forge/atlas_compiler.h"
#include "forge/atlas_rules.h"
#include "forge/atlas_source.h"
#include "forge/link_counts.h"
#include "forge/source_errors.h"
#include "forge/text_file.h"

namespace varnstride {
namespace {

constexpr int kContentMistake = 2;

// The atlas files of one run, and what there is to say about them.
struct AtlasFiles {
    std::vector<AtlasSource> atlases;  // those without an error
    std::string errors;
    std::string warnings;
};

// Rules are applied to a file that could be read as a whole: judging half an atlas would only
// repeat the mistake in other words.
void AddFile(AtlasFiles& files, const std::string& path) {
    const Result<std::string> text = ReadTextFile(path);
    if (!text.Ok()) {
        files.errors += text.Message() + "\n";
        return;
    }
    SourceErrors errors(path);
    SourceErrors warnings(path);
    AtlasSource atlas = ParseAtlasSource(text.Get(), errors);
    if (errors.IsEmpty()) CheckAtlas(atlas, errors, warnings);
    for (const AtlasSource& other : files.atlases) {
        if (other.mapNumber != atlas.mapNumber) continue;
        errors.Add(atlas.mapLine, "another file of this run is map " +
                                      std::to_string(atlas.mapNumber) + " already");
    }
    if (errors.IsEmpty()) files.atlases.push_back(std::move(atlas));
    files.errors += errors.Text();
    files.warnings += warnings.Text();
}

AtlasFiles ReadAtlasFiles(const std::vector<std::string>& paths) {
    AtlasFiles files;
    for (const std::string& path : paths)
        AddFile(files, path);
    if (HoldsAllBattlefields(files.atlases)) {
        for (const std::string& line : OddLinkCounts(CountLinks(files.atlases))) {
            files.warnings += line + "\n";
        }
    }
    return files;
}

std::string AsWarnings(const std::string& lines) {
    std::string text;
    std::istringstream rest(lines);
    for (std::string line; std::getline(rest, line);)
        text += "warning: " + line + "\n";
    return text;
}

int CheckFiles(const std::vector<std::string>& paths) {
    const AtlasFiles files = ReadAtlasFiles(paths);
    std::cerr << files.errors << AsWarnings(files.warnings);
    return files.errors.empty() ? 0 : kContentMistake;
}

// Leaves the warnings to the check: a build repeats itself too often.
int CompileFiles(const std::vector<std::string>& paths, const std::string& output) {
    const AtlasFiles files = ReadAtlasFiles(paths);
    std::cerr << files.errors;
    if (!files.errors.empty()) return kContentMistake;
    const Result<Done> written = WriteTextFile(output, AtlasesAsCode(files.atlases));
    if (!written.Ok()) std::cerr << written.Message() << "\n";
    return written.Ok() ? 0 : kContentMistake;
}

}  // namespace

void AddAtlasCommand(CLI::App& app, int& exitCode) {
    CLI::App* const atlas = app.add_subcommand("atlas", "The areas and links of battlefields");
    atlas->require_subcommand(1);
    const auto paths = std::make_shared<std::vector<std::string>>();
    const auto output = std::make_shared<std::string>();

    CLI::App* const check = atlas->add_subcommand("check", "Report every mistake of atlas files");
    check->add_option("file", *paths, "Atlas files")->required();
    check->callback([paths, &exitCode] { exitCode = CheckFiles(*paths); });

    CLI::App* const compile =
        atlas->add_subcommand("compile", "Write atlas files as the C++ source of their table");
    compile->add_option("file", *paths, "Atlas files")->required();
    compile->add_option("-o,--output", *output, "The source to write")->required();
    compile->callback([paths, output, &exitCode] { exitCode = CompileFiles(*paths, *output); });
}

}  // namespace varnstride
