// varnstride-sim picture: the map of a saved position as a PNG file, without a window.
#include <iostream>
#include <memory>
#include <optional>

#include "atlases/built_in.h"
#include "display/map_screen.h"
#include "display/png_writer.h"
#include "files/safe_write.h"
#include "files/settings_file.h"
#include "model/record_fields.h"
#include "platform/headless/fresh_game.h"
#include "sim/data_folder.h"
#include "sim/position.h"
#include "sim/subcommands.h"

namespace varnstride::sim {
namespace {

namespace fs = std::filesystem;

struct Wish {
    std::string file;
    std::string out;
    fs::path data;
    int view = 1;
    std::vector<int> size = {1280, 800};
    std::vector<int> centre;
    bool whole = false;
    bool jumpMap = false;
    std::vector<std::string> options;  // NAME=VALUE
};

// The field of Settings of that name.
int* FindSetting(Settings& settings, const std::string& name) {
    int* found = nullptr;
    RecordFields<Settings>::ForEach([&](const char* field, int Settings::*member, Width) {
        if (name == field) found = &(settings.*member);
    });
    return found;
}

void Switch(Settings& settings, const std::string& option) {
    const std::size_t equals = option.find('=');
    int* setting = FindSetting(settings, option.substr(0, equals));
    const std::string value =
        equals == std::string::npos ? std::string() : option.substr(equals + 1);
    if (setting == nullptr || (value != "0" && value != "1"))
        throw Refusal("--option " + option + ": expected a setting, = and 0 or 1");
    *setting = value == "1" ? 1 : 0;
}

Settings SettingsOf(const Wish& wish) {
    Settings settings = DefaultSettings();
    settings.mapView = wish.view;
    for (const std::string& option : wish.options)
        Switch(settings, option);
    return settings;
}

// Without a wish for a cell, the one in the middle of the map.
Cell CentreOf(const Wish& wish, const Grid& grid) {
    if (wish.centre.empty()) return {grid.Width() / 2, grid.Height() / 2};
    const Cell cell{wish.centre[0], wish.centre[1]};
    if (!grid.Holds(cell)) throw Refusal(wish.file + ": --centre lies off the map");
    return cell;
}

Surface Draw(const Wish& wish, const Game& game, const Art& art) {
    MapView view(art, ViewOf(game.settings), game.grid, {0, 0, wish.size[0], wish.size[1]});
    if (wish.whole) {
        const Rect world = view.Scroll().worldSpace;
        view.SetScreenSpace({0, 0, world.Width(), world.Height()});
    }
    const Rect space = view.Scroll().screenSpace;
    const Point centre = view.Plot().PlotCell(CentreOf(wish, game.grid));
    view.ScrollTo(centre - Point{space.Width() / 2, space.Height() / 2}, true);
    Surface frame(space.Width(), space.Height());
    WorldPicture picture(art, view.Kind(), view.Plot());
    DrawScene(game, art, view, picture, frame);
    if (wish.jumpMap) {
        MiniMap miniMap(art);
        miniMap.Build(game);
        miniMap.Draw(view, space.Width(), frame, {0, 0});
    }
    return frame;
}

void Paint(const Wish& wish) {
    SilentPerson nobody;
    Game game = FreshGame(BuiltInAtlases(), nobody, SettingsOf(wish));
    OpenPosition(game, wish.file);
    game.grid.FinishPictures();
    const Art art(wish.data.empty() ? DataFolder() : wish.data);
    for (const std::string& complaint : art.Complaints())
        std::cerr << "varnstride-sim: " << complaint << '\n';
    const Result<Done> written = WriteSafely(wish.out, EncodePng(Draw(wish, game, art)));
    if (!written.Ok()) throw Refusal(written.Message());
}

}  // namespace

void AddPicture(CLI::App& app) {
    constexpr int kLargest = 16384;
    CLI::App* command = app.add_subcommand(
        "picture", "Draws the map of a scenario, battle or turn file into a PNG file");
    command->footer(
        "Pictures that are missing or damaged are named on standard error; plain lettered tiles "
        "stand in for them.");
    const auto wish = std::make_shared<Wish>();
    command->add_option("FILE", wish->file, "A scenario, battle or turn file")->required();
    command->add_option("--out", wish->out, "The PNG file to write")->required();
    command->add_option("--view", wish->view, "1 the normal view, 2 zoomed out")
        ->check(CLI::Range(1, 2));
    command->add_option("--size", wish->size, "Width and height in pixels: 1280x800")
        ->delimiter('x')
        ->expected(2)
        ->check(CLI::Range(1, kLargest));
    command->add_option("--centre", wish->centre, "The cell in the middle: 18,30")
        ->delimiter(',')
        ->expected(2);
    command->add_flag("--whole", wish->whole, "The whole map, whatever its size");
    command->add_flag("--jump-map", wish->jumpMap, "With the jump map over it");
    command->add_option("--option", wish->options, "A setting to switch: showUnitBases=1");
    command->add_option("--data", wish->data,
                        "The folder that holds Graphics and Units; by default the game's own");
    command->callback([wish] { Paint(*wish); });
}

}  // namespace varnstride::sim
