#include "platform/headless/random_player.h"

#include <array>

#include "flow/game_pass.h"
#include "flow/open_battle.h"
#include "model/units_on_map.h"
#include "platform/headless/fresh_game.h"

namespace varnstride {
namespace {

constexpr int kEndOfTurn = 32858;

// Everything in the menus but opening, saving, leaving and the manuals.
constexpr std::array kCommands = {
    33000, 33005, 32978, 33006, 33011, 33013, 33003, 32875, 33002, 32778, 32774, 33001,
    32781, 32921, 32997, 33020, 32784, 32930, 32979, 33008, 32790, 32791, 32792, 32793,
    32962, 32970, 32974, 32794, 32795, 32960, 32890, 32897, 32995, 32947, 32796, 32935,
    32955, 32986, 32969, 32797, 32798, 32800, 32943, 32809, 32861, 32808, 32903, 32990,
    32868, 32941, 32805, 32877, 32879, 32991, 32834, 32878, 32904, 32799, 32831, 32830,
};
// Those that order something; asked for as often as all the others together.
constexpr std::size_t kOrders = 20;

constexpr int kTriesForTarget = 40;
constexpr int kTriesForUnit = 50;

// What follows from a click on units, in percent.
constexpr int kChooseAmongSeveral = 60;
constexpr int kUseUnitInHand = 30;

// How often, in percent, any other input is of a kind; the rest are commands of the menus.
constexpr int kSelect = 34;
constexpr int kMove = 30;
constexpr int kStray = 8;
constexpr int kPanel = 9;
constexpr int kKey = 5;
constexpr int kCard = 1;
constexpr int kClock = 1;
constexpr int kEnd = 4;

}  // namespace

RandomPlayer::RandomPlayer(const AtlasCatalogue& atlases, unsigned seed)
    : dice_(seed),
      person_(dice_, seed),
      game_(FreshGame(atlases, person_, HeadlessSettings())),
      script_{"time " + std::to_string(seed)} {
}

Result<Done> RandomPlayer::OpenScenario(const std::string& path) {
    person_.fileToOpen = path;
    StartNewBattle(game_);
    if (game_.state.fileChosen != 1) return Failure{path + ": not opened"};
    Note("new \"" + path + "\"");
    return Done{};
}

void RandomPlayer::Step() {
    if (game_.state.turnPhase != TurnPhase::Orders) {
        RunGamePass(game_);
        Note("pass 1");
        return;
    }
    const BattleInput input = ThinkOfSomething();
    Perform(game_, input);
    Note(ToScript(input));
}

bool RandomPlayer::IsOver() const {
    return game_.state.programEnded || game_.header.gameEnded == 1;
}

std::string RandomPlayer::Script() const {
    std::string text;
    for (const std::string& line : script_)
        text += line + "\n";
    return text;
}

// A script queues its answers before the command that asks for them.
void RandomPlayer::Note(const std::string& line) {
    for (const std::string& answer : person_.answers)
        script_.push_back(answer);
    person_.answers.clear();
    script_.push_back(line);
}

BattleInput RandomPlayer::ThinkOfSomething() {
    const bool mayChoose = game_.state.ownSlotsFilled > 1 && game_.state.selectedSlot == 0;
    if (mayChoose && dice_.Chance(kChooseAmongSeveral)) return ClickPanel{1 + dice_.Throw(3)};
    if (game_.state.selectedSlot > 0 && dice_.Chance(kUseUnitInHand)) {
        return ClickMap{Target(), false};
    }
    int roll = dice_.Throw(100);
    const auto falls = [&roll](int share) { return (roll -= share) < 0; };
    if (falls(kSelect)) return ClickMap{OwnUnitCell(), true};
    if (falls(kMove)) return ClickMap{Target(), false};
    if (falls(kStray)) return ClickMap{AnyCell(), dice_.Chance(50)};
    if (falls(kPanel)) return ClickPanel{1 + dice_.Throw(3)};
    if (falls(kKey)) return PressKey{static_cast<Key>(dice_.Throw(static_cast<int>(Key::F2) + 1))};
    if (falls(kCard)) return PressCard{1 + dice_.Throw(3)};
    if (falls(kClock)) return TickClock{1 + dice_.Throw(120)};
    if (falls(kEnd)) return GiveCommand{kEndOfTurn};
    const std::size_t choices = dice_.Chance(50) ? kOrders : kCommands.size();
    return GiveCommand{kCommands[static_cast<std::size_t>(dice_.Throw(static_cast<int>(choices)))]};
}

Cell RandomPlayer::OwnUnitCell() {
    return UnitCell(game_.state.currentArmy);
}

Cell RandomPlayer::EnemyUnitCell() {
    if (game_.OwnSide() == Side::Allied) return UnitCell(kFrench);
    int army = kBritish;
    for (int tries = 0; tries < kTriesForUnit && game_.Army(army).present == 0; ++tries) {
        army = kBritish + dice_.Throw(kLastPlayingArmy);
    }
    return UnitCell(army);
}

Cell RandomPlayer::UnitCell(int army) {
    for (int tries = 0; tries < kTriesForUnit; ++tries) {
        const UnitId id{army, 1 + dice_.Throw(game_.state.unitLimit - 1)};
        if (IsOnMap(game_, id)) return game_.At(id).Place();
    }
    return AnyCell();
}

Cell RandomPlayer::SlotCell() {
    const AreaSlots slots = game_.atlas->Row(1 + dice_.Throw(game_.atlas->AreaCount())).Slots();
    return slots[static_cast<std::size_t>(dice_.Throw(static_cast<int>(slots.size())))];
}

// Where the unit in hand can go: to the enemy as often as anywhere.
Cell RandomPlayer::Target() {
    const bool seeksEnemy = dice_.Chance(50);
    Cell cell = SlotCell();
    for (int tries = 0; tries < kTriesForTarget && !game_.grid.IsLit(cell); ++tries) {
        cell = seeksEnemy ? EnemyUnitCell() : SlotCell();
    }
    return cell;
}

Cell RandomPlayer::AnyCell() {
    const int x = dice_.Throw(game_.grid.Width());
    return {x, dice_.Throw(game_.grid.Height())};
}

}  // namespace varnstride
