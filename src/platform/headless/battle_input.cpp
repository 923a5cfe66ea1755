#include "platform/headless/battle_input.h"

#include "app/commands.h"
#include "app/map_input.h"
#include "flow/two_players.h"

namespace varnstride {
namespace {

struct Performer {
    Game& game;

    void operator()(const GiveCommand& command) { DispatchCommand(game, command.id); }
    void operator()(const PressKey& press) { DispatchKey(game, press.key); }
    void operator()(const ClickMap& click) {
        if (click.left) {
            OnLeftClick(game, click.cell);
        } else {
            OnRightClick(game, click.cell);
        }
    }
    void operator()(const ClickPanel& click) { OnPanelClick(game, click.panel); }
    void operator()(const PressCard& press) { OnCardStripPress(game, press.card); }
    void operator()(const TickClock& clock) {
        for (int second = 0; second < clock.seconds; ++second)
            StopClockTick(game);
    }
};

struct ScriptWriter {
    std::string operator()(const GiveCommand& command) {
        return "command " + std::to_string(command.id);
    }
    std::string operator()(const PressKey& press) { return "key " + NameOf(press.key); }
    std::string operator()(const ClickMap& click) {
        return (click.left ? "left " : "right ") + std::to_string(click.cell.x) + " " +
               std::to_string(click.cell.y);
    }
    std::string operator()(const ClickPanel& click) {
        return "panel " + std::to_string(click.panel);
    }
    std::string operator()(const PressCard& press) { return "strip " + std::to_string(press.card); }
    std::string operator()(const TickClock& clock) {
        return "tick " + std::to_string(clock.seconds);
    }
};

}  // namespace

void Perform(Game& game, const BattleInput& input) {
    std::visit(Performer{game}, input);
}

std::string ToScript(const BattleInput& input) {
    return std::visit(ScriptWriter{}, input);
}

}  // namespace varnstride
