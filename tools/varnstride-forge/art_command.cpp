#include "varnstride-forge/art_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "forge_art/catalogue.h"
#include "forge_art/sheet.h"

namespace varnstride {
namespace {

constexpr int kContentMistake = 2;

struct ArtArguments {
    std::string content = "content/art";
    std::string output;
    std::vector<std::string> only;  // names of sheets or families; all when empty
    bool list = false;
};

int Refuse(const std::string& message) {
    std::cerr << message << (message.ends_with('\n') ? "" : "\n");
    return kContentMistake;
}

bool Answers(const art::Picture& picture, const std::string& name) {
    return picture.family == name || picture.file == name ||
           std::filesystem::path(picture.file).stem().string() == name;
}

// The pictures that were asked for; a name that none answers to is told.
Result<std::vector<const art::Picture*>> Chosen(const std::vector<std::string>& names) {
    std::vector<const art::Picture*> chosen;
    for (const std::string& name : names) {
        const auto answers = [&](const art::Picture& picture) { return Answers(picture, name); };
        if (std::none_of(art::Catalogue().begin(), art::Catalogue().end(), answers)) {
            return Failure{"art: no sheet and no family is called \"" + name + "\""};
        }
    }
    for (const art::Picture& picture : art::Catalogue()) {
        const auto named = [&](const std::string& name) { return Answers(picture, name); };
        if (names.empty() || std::any_of(names.begin(), names.end(), named)) {
            chosen.push_back(&picture);
        }
    }
    return chosen;
}

int Write(const ArtArguments& arguments, const art::Picture& picture, const art::Studio& studio) {
    const QImage painted = picture.paint(studio);
    const std::string missing = studio.Missing();
    if (!missing.empty()) return Refuse(arguments.content + "/" + missing);
    const std::filesystem::path path = std::filesystem::path(arguments.output) / picture.file;
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    const Result<Done> written = art::WriteBitmap(path.string(), painted);
    return written.Ok() ? 0 : Refuse(written.Message());
}

int Run(const ArtArguments& arguments) {
    const auto chosen = Chosen(arguments.only);
    if (!chosen.Ok()) return Refuse(chosen.Message());
    if (arguments.list) {
        for (const art::Picture* picture : chosen.Get())
            std::cout << picture->family << "\t" << picture->file << "\n";
        return 0;
    }
    if (arguments.output.empty()) return Refuse("art: --out DIR is missing");
    const Result<art::Studio> studio = art::OpenStudio(arguments.content);
    if (!studio.Ok()) return Refuse(studio.Message());
    for (const art::Picture* picture : chosen.Get()) {
        if (const int code = Write(arguments, *picture, studio.Get())) return code;
    }
    return 0;
}

}  // namespace

void AddArtCommand(CLI::App& app, int& exitCode) {
    CLI::App* const art = app.add_subcommand("art", "Paint the pictures of the game");
    const auto arguments = std::make_shared<ArtArguments>();
    art->add_option("-o,--out", arguments->output,
                    "The data folder; pictures go into its folders Graphics and Units");
    art->add_option("--only", arguments->only, "Names of sheets or families; all by default");
    art->add_option("--content", arguments->content, "The folder of palette, uniforms, figures")
        ->capture_default_str();
    art->add_flag("--list", arguments->list, "Tell family and file of each picture, paint nothing");
    art->callback([arguments, &exitCode] { exitCode = Run(*arguments); });
}

}  // namespace varnstride
