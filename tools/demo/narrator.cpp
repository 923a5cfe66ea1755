#include "demo/narrator.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "demo/tellings.h"
#include "model/units_on_map.h"
#include "platform/headless/state_compare.h"
#include "platform/headless/state_dump.h"
#include "platform/headless/text_map.h"
#include "resources/army_names.h"

namespace varnstride::demo {
namespace {

// "16.30" of 16.3; the clock counts 9.60 for a moment where it means 10.00.
std::string Hour(double clockHours) {
    const int hundredths = static_cast<int>(clockHours * 100 + 0.5);
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%d.%02d", hundredths / 100, hundredths % 100);
    return text.data();
}

// Runs of blanks and line ends become one blank.
std::string Squeezed(std::string_view text) {
    std::string words;
    for (char letter : text) {
        const bool blank = letter == ' ' || letter == '\n' || letter == '\r' || letter == '\t';
        if (!blank) words += letter;
        if (blank && !words.empty() && words.back() != ' ') words += ' ';
    }
    while (!words.empty() && words.back() == ' ')
        words.pop_back();
    return words;
}

// The fields that a file carries of armies, units and losses; what is in hand or lit is nobody's.
bool IsOfTheBattle(const std::string& difference) {
    return difference.starts_with("army") || difference.starts_with("unit") ||
           difference.starts_with("loss");
}

}  // namespace

void Narrator::Say(const std::string& words) {
    out_ << "  " << ToUtf8(words) << '\n';
}

void Narrator::Phase(const Game& game) {
    report_.Phase(game);
    const GameState& state = game.state;
    if (state.turnPhase == TurnPhase::EndTurn) {
        Say("The orders are given. Wherever both sides stand in an area, they fight.");
    }
    if (state.turnPhase != TurnPhase::StartTurn) return;
    out_ << "\nTurn " << state.gameTurn << ", " << Hour(state.clockHours) << ": the "
         << ArmyTitle(state.currentArmy) << "\n";
}

void Narrator::Courier(const CourierMessage& message) {
    report_.Courier(message);
    Say("Dispatch: " + Squeezed(message.text));
}

void Narrator::Box(const MessageBox& box, int answer) {
    report_.Box(box, answer);
    Say("Notice: " + Squeezed(box.text));
}

void Narrator::Result(const AttackReport& report) {
    report_.Result(report);
    for (const std::string& line : TellAttack(report))
        Say(line);
}

void Narrator::Saved(const std::string& file, std::size_t bytes) {
    report_.Saved(file, bytes);
    Say("The battle is saved to " + file + ", " + std::to_string(bytes) + " bytes.");
    saving_ = true;
}

void Narrator::State(const Game& game, const std::vector<MapCell>& atLoad) {
    report_.State(game, atLoad);
    out_ << '\n' << DrawTextMap(game, false) << '\n';
    if (!legendShown_) out_ << TextMapLegend() << '\n';
    legendShown_ = true;
    Say(TellStanding(game));
}

void Narrator::End(const std::string& reason) {
    report_.End(reason);
}

void Narrator::Opened(const Game& game) {
    if (game.state.existingBattle) {
        TellReopened(game);
    } else {
        for (const std::string& line : TellBattle(game))
            Say(line);
    }
    units_ = game.units;
}

void Narrator::TellReopened(const Game& game) {
    out_ << '\n';
    if (!saved_) {
        Say("A saved battle is opened.");
        return;
    }
    std::vector<std::string> differences = Differences(game, *saved_);
    std::erase_if(differences, [](const std::string& line) { return !IsOfTheBattle(line); });
    if (differences.empty()) {
        Say("The battle is opened again. Every unit stands as it was saved.");
        return;
    }
    Say("The battle is opened again, and differs from what was saved:");
    for (const std::string& line : differences)
        Say("  " + line);
}

void Narrator::StepDone(const Game& game) {
    if (!units_.empty()) TellChanges(game);
    if (saving_) saved_ = game;
    saving_ = false;
}

void Narrator::TellChanges(const Game& game) {
    for (int army = 0; army < kArmyCount; ++army) {
        for (int index : UnitIndices(game)) {
            const UnitId id{army, index};
            const Unit& was =
                units_[static_cast<std::size_t>(army)][static_cast<std::size_t>(index)];
            for (const std::string& line : TellUnit(game, id, was))
                Say(line);
        }
    }
    units_ = game.units;
}

}  // namespace varnstride::demo
