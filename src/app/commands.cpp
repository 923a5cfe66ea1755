#include "app/commands.h"

#include <algorithm>
#include <array>

#include "app/army_listing.h"
#include "app/artillery_orders.h"
#include "app/care_orders.h"
#include "app/display_options.h"
#include "app/file_menu.h"
#include "app/formation_dialog.h"
#include "app/map_input.h"
#include "app/objectives_dialog.h"
#include "app/reinforcement_lists.h"
#include "app/status_dialogs.h"
#include "app/strength_dialog.h"
#include "app/turn_menu.h"
#include "app/unit_groups.h"
#include "app/unit_orders.h"
#include "battle/barrage.h"
#include "flow/battle_options.h"
#include "flow/command_report.h"
#include "flow/save_battle.h"

namespace varnstride {
namespace {

using Handler = void (*)(Game&);

// An order to a unit is given with no gun aimed.
template <Handler order>
void Order(Game& game) {
    LayAimDown(game);
    order(game);
}

enum class Needs { Nothing, Battle };

struct Command {
    int id;
    Handler run;
    Needs needs = Needs::Battle;
};

constexpr auto kCommands = std::to_array<Command>({
    // File
    {32850, OpenScenario, Needs::Nothing},
    {32849, Save},
    {32857, SaveBattleFileAs},
    {1051, Exit, Needs::Nothing},
    // Turn
    {32858, EndTurnByPlayer},
    {33000, Order<UndoByCommand>},
    {33005, PrepareLocalBattle},
    {32978, AskEndGameStatus},
    {33006, CancelEventCard},
    {33011, CancelBarrage},
    {33013, CancelLocalBattle},
    // Units
    {32875, PrepareCavalryCharge},
    {33002, Order<PrepareBayonetCharge>},
    {32778, Order<DoubleTime>},
    {33001, Order<HoldUnit>},
    {33003, Order<Resupply>},
    {32774, Order<RotateUnits>},
    {32781, Order<LeaveMap>},
    {32921, Order<DetachFormation>},
    {32997, Order<RejoinDetachment>},
    {33020, Order<AimUnitInHand>},
    {32784, Order<ChooseGunToAim>},
    {32930, Order<RallyAndReform>},
    {32979, Order<ChangeFormationByCommand>},
    {33008, CancelAction},
    // Reinforce
    {32790, ShowReinforcementSchedule},
    {32791, ShowArrivedUnits},
    {32792, ShowReleaseSchedule},
    // Status
    {32793, ShowStrength},
    {32962, ShowArmyUnitListing},
    {32970, ShowCommandReport},
    {32974, ShowIntelligence},
    {32794, ShowObjectives},
    {32795, ShowVictory},
    {32960, ShowRemovedUnits},
    {32890, ShowScenarioDescription},
    {32897, ShowScenarioInformation},
    {32995, ShowScenarioSettings},
    // Display
    {32796, ToggleOption<&GameState::unitsOff>},
    {32935, ToggleSetting<&Settings::healthBars>},
    {32955, ToggleSetting<&Settings::showUnitBases>},
    {32986, ToggleQuickResults},
    {32969, ToggleSetting<&Settings::showFormation>},
    {32797, ToggleSetting<&Settings::showObjectives>},
    {32798, ToggleSetting<&Settings::showLocations>},
    {32800, ToggleSetting<&Settings::areaContours>},
    {32943, ToggleSetting<&Settings::armyColours>},
    {32809, ToggleUnitPanels},
    {32868, ShowNormalView},
    {32941, ShowZoomOutView},
    {32799, ToggleCommandRange},
    {32831, ShowVisibleAreas},
    {32830, ToggleMiniMap},
    // Display, Highlight
    {32805, ToggleMapFilter<&GameState::highlightFixed>},
    {32877, ToggleMapFilter<&GameState::highlightDisrupted>},
    {32879, ToggleMapFilter<&GameState::highlightRouted>},
    {32991, ToggleMapFilter<&GameState::highlightElite>},
    {32834, ToggleMapFilter<&GameState::highlightLeaders>},
    {32878, ToggleMapFilter<&GameState::highlightLowAmmo>},
    {32904, ToggleOutOfCommandFilter},
    // Options
    {32861, ToggleMusic},
    {32808, ToggleAmbientSound},
    {32903, ToggleSetting<&Settings::battleSounds>},
    {32956, ToggleSetting<&Settings::autoSave>},
    {32977, ToggleSetting<&Settings::noReplay>},
    {32990, ToggleSetting<&Settings::noErrorAlert>},
    {32996, ToggleOption<&GameState::combatBoxTimer>},
    {32896, AskOptions},
});

template <int slot>
void TakeSlot(Game& game) {
    OnPanelClick(game, slot);
}

struct KeyStroke {
    Key key;
    Handler run;
};

constexpr auto kKeys = std::to_array<KeyStroke>({
    {Key::Tab, ToggleSetting<&Settings::showFormation>},
    {Key::Shift, ToggleMapFilter<&GameState::highlightFixed>},
    {Key::One, TakeSlot<1>},
    {Key::Two, TakeSlot<2>},
    {Key::Three, TakeSlot<3>},
    {Key::A, ShowStrength},
    {Key::B, ToggleOutOfCommandFilter},
    {Key::C, ToggleSetting<&Settings::armyColours>},
    {Key::D, ToggleCommandRange},
    {Key::E, CancelEventCardByKey},
    {Key::F, Order<ChangeFormationByKey>},
    {Key::I, ToggleUnitPanels},
    {Key::J, ToggleMiniMapByKey},
    {Key::L, ToggleMapFilter<&GameState::highlightLeaders>},
    {Key::R, ToggleMapFilter<&GameState::highlightRouted>},
    {Key::U, Order<UndoByKey>},
    {Key::V, ShowVictory},
    {Key::F1, ShowZoomOutView},
    {Key::F2, ShowNormalView},
});

void Run(Game& game, Handler handler) {
    handler(game);
    game.state.roadMover = false;
}

}  // namespace

void DispatchCommand(Game& game, int id) {
    const auto command = std::find_if(kCommands.begin(), kCommands.end(),
                                      [id](const Command& entry) { return entry.id == id; });
    if (command == kCommands.end()) return;
    if (command->needs == Needs::Battle && game.state.mapReady == 0) return;
    Run(game, command->run);
}

void DispatchKey(Game& game, Key key) {
    const auto stroke = std::find_if(kKeys.begin(), kKeys.end(),
                                     [key](const KeyStroke& entry) { return entry.key == key; });
    if (stroke != kKeys.end() && game.state.mapReady != 0) Run(game, stroke->run);
}

}  // namespace varnstride
