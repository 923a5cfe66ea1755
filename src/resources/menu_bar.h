// The menu bar and the toolbar as data: which commands stand where, under which names and keys. The
// window builds its menus from here; what a command does is in app/commands.
#pragma once

#include <array>
#include <string_view>

namespace varnstride {

struct MenuItem {
    enum class Kind { Command, Tick, Radio, Separator, OpenSubmenu, CloseSubmenu };

    Kind kind = Kind::Separator;
    int id = 0;
    std::string_view text{};  // & stands before the letter that picks it
    std::string_view keys{};  // a shortcut of the window; single letters go through DispatchKey
};

struct Menu {
    std::string_view title;
    const MenuItem* items;
    std::size_t count;
};

namespace menu {

using enum MenuItem::Kind;

constexpr auto kFile = std::to_array<MenuItem>({
    {Command, 32850, "&Open ...", "Ctrl+O"},
    {Command, 32849, "&Save", "Ctrl+S"},
    {Command, 32857, "Save &As ...", "Ctrl+Shift+S"},
    {},
    {Command, 1051, "E&xit", "Ctrl+Q"},
});

constexpr auto kTurn = std::to_array<MenuItem>({
    {Command, 32858, "&Next", "Ctrl+N"},
    {Command, 33000, "&Undo", "Ctrl+Z"},
    {Command, 33005, "&Do Battle", "Ctrl+B"},
    {},
    {Command, 33006, "Cancel &Event Card for the turn"},
    {Command, 33011, "Cancel &Artillery Barrage"},
    {Command, 33013, "Cancel &Local Battle"},
    {},
    {Command, 32978, "End &Game Status"},
});

constexpr auto kUnits = std::to_array<MenuItem>({
    {Command, 33003, "&Ammo Resupply"},
    {Command, 32875, "&Cavalry Charge - Right Click Target"},
    {Command, 33002, "&Bayonet Charge - Right Click Target"},
    {Command, 32778, "Infantry &Double Time"},
    {Command, 32774, "R&otate Units"},
    {Command, 33001, "Unit &Hold"},
    {Command, 32781, "Re&move from map"},
    {},
    {Command, 32921, "De&tach Formation"},
    {Command, 32997, "Detachment Re-&Joins Unit"},
    {},
    {Command, 33020, "&Individual Artillery Fire"},
    {Command, 32784, "Artillery Bom&bardment"},
    {},
    {Command, 32930, "&Rally and Reform"},
    {Command, 32979, "&Formation Change"},
    {Command, 33008, "Cance&l Action"},
});

constexpr auto kReinforce = std::to_array<MenuItem>({
    {Command, 32790, "&Scheduled"},
    {Command, 32791, "&Arrived"},
    {Command, 32792, "&Releases"},
});

constexpr auto kStatus = std::to_array<MenuItem>({
    {Command, 32793, "&Strength"},
    {Command, 32962, "Army &Unit Listing"},
    {Command, 32970, "&Command Report"},
    {Command, 32974, "&Intelligence Report"},
    {Command, 32794, "&Objectives"},
    {Command, 32795, "&Victory ..."},
    {Command, 32960, "&Removed Units at Exit Areas"},
    {},
    {Command, 32890, "Scenario &Description"},
    {Command, 32897, "Scenario I&nformation"},
    {Command, 32995, "Scenario Se&ttings"},
});

constexpr auto kDisplay = std::to_array<MenuItem>({
    {Radio, 32868, "2D &Normal View"},
    {Radio, 32941, "2D &Zoom Out View"},
    {},
    {Command, 32830, "&Mini-Map"},
    {Command, 32831, "Areas &Visible to Player's Army"},
    {OpenSubmenu, 0, "&Highlight"},
    {Tick, 32805, "&Fixed Units"},
    {Tick, 32877, "&Disrupted Units"},
    {Tick, 32879, "&Routed Units"},
    {Tick, 32991, "&Elite and Veteran Units"},
    {Tick, 32834, "&Legendary Leaders"},
    {Tick, 32878, "Low &Ammo Units"},
    {Tick, 32904, "Units &Beyond Command Range"},
    {CloseSubmenu},
    {},
    {Tick, 32796, "Units &off"},
    {Tick, 32935, "Show Unit Health &Bar"},
    {Tick, 32955, "Show Unit B&ases"},
    {Tick, 32986, "Show &Losses on Map"},
    {Tick, 32969, "Show Unit &Formation"},
    {Tick, 32797, "Ob&jectives"},
    {Tick, 32798, "Lo&cations"},
    {Tick, 32800, "A&rea contours"},
    {Tick, 32943, "Display Arm&y Colours"},
    {Tick, 32809, "Unit &Information"},
});

constexpr auto kOptions = std::to_array<MenuItem>({
    {Tick, 32896, "&Computer A.I. ..."},
    {},
    {Tick, 32861, "Background &Music"},
    {Tick, 32808, "Background &Sound"},
    {Tick, 32903, "&Battle Sounds"},
    {},
    {Tick, 32956, "&Auto Save"},
    {Tick, 32977, "No &Replay"},
    {Tick, 32990, "No &Error Alert"},
    {Tick, 32996, "Combat Box &Timer"},
});

constexpr std::array<Menu, 7> kBar = {{
    {"&File", kFile.data(), kFile.size()},
    {"&Turn", kTurn.data(), kTurn.size()},
    {"&Units", kUnits.data(), kUnits.size()},
    {"&Reinforce", kReinforce.data(), kReinforce.size()},
    {"&Status", kStatus.data(), kStatus.size()},
    {"&Display", kDisplay.data(), kDisplay.size()},
    {"&Options", kOptions.data(), kOptions.size()},
}};

}  // namespace menu

// A toolbar button; a toggle stays down until the game releases it. Picture -1 is a gap.
struct ToolButton {
    int id = 0;
    int picture = -1;
    bool toggle = false;
    std::string_view tip{};
};

constexpr auto kToolbar = std::to_array<ToolButton>({
    {32858, 0, false, "Next Turn"},
    {},
    {33003, 1, true, "Ammo Resupply"},
    {32774, 2, true, "Rotate Units in the Area"},
    {32875, 3, true, "Cavalry charging"},
    {33020, 4, true, "Individual Artillery Fire"},
    {32979, 5, true, "Formation Change"},
    {32930, 6, false, "Rally and Reform"},
    {33005, 7, false, "Do Battle"},
    {32784, 8, true, "Artillery Dialog"},
    {32799, 9, true, "Display Command Range"},
    {},
    {33000, 10, false, "Undo"},
    {32830, 11, false, "Display Minimap"},
    {},
    {1051, 12, false, "Exit"},
});

}  // namespace varnstride
