// varnstride-demo: plays a script and tells in plain words what happens. ./play runs it.
#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "atlases/built_in.h"
#include "demo/narrator.h"
#include "platform/headless/script_run.h"

namespace varnstride::demo {
namespace {

constexpr int kRefused = 2;

int Refuse(const std::string& message) {
    std::cerr << "varnstride-demo: " << message << '\n';
    return kRefused;
}

int Play(const std::string& path, const std::string& reportPath) {
    std::ifstream in(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    if (!in) return Refuse(path + ": the script cannot be read");
    const Result<Script> script = ParseScript(text, path);
    if (!script.Ok()) return Refuse(script.Message());
    std::ofstream report(reportPath, std::ios::binary);
    if (!report) return Refuse(reportPath + ": the report cannot be written");
    Narrator narrator(std::cout, report);
    const Result<Done> played = RunScript(script.Get(), BuiltInAtlases(), narrator);
    report.close();
    if (!played.Ok()) return Refuse(played.Message());
    if (!report) return Refuse(reportPath + ": the report cannot be written");
    std::cout << "\nEvery event of this battle is written down in " << reportPath << '\n';
    return 0;
}

}  // namespace
}  // namespace varnstride::demo

int main(int argc, char** argv) {
    CLI::App app("Plays a script and tells in plain words what happens", "varnstride-demo");
    std::string script;
    std::string report;
    app.add_option("SCRIPT", script, "The script to play")->required();
    app.add_option("REPORT", report, "The file for the events, one JSON object a line")->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const int status = app.exit(error);
        return status == 0 ? 0 : varnstride::demo::kRefused;
    }
    return varnstride::demo::Play(script, report);
}
