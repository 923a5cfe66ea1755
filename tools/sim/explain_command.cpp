// varnstride-sim explain: what an attack in a saved position would come to, and why.
#include <iomanip>
#include <iostream>
#include <memory>
#include <sstream>

#include "atlases/built_in.h"
#include "battle/forecast.h"
#include "platform/headless/fresh_game.h"
#include "resources/army_names.h"
#include "resources/courier_texts.h"
#include "resources/type_names.h"
#include "sim/position.h"
#include "sim/subcommands.h"

namespace varnstride::sim {
namespace {

struct Question {
    std::string file;
    int army = 0;
    int unit = 0;
    std::vector<int> target;
    bool bombard = false;
    int tactic = -1;
    int response = -1;
};

AttackPlan PlanOf(const Question& question) {
    AttackPlan plan{.attacker = {question.army, question.unit},
                    .target = {question.target[0], question.target[1]},
                    .bombard = question.bombard};
    if (question.tactic >= 0) plan.tactics = TacticsPlayed{question.tactic, question.response};
    return plan;
}

std::string StatusName(UnitStatus status) {
    constexpr const char* kNames[] = {"gone", "Routed", "Shaken", "Unsteady", "Ordered"};
    return kNames[static_cast<std::size_t>(status)];
}

std::string Percent(double probability) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(2) << probability * 100.0 << " %";
    return text.str();
}

std::string Described(const Game& game, UnitId id) {
    const Unit& unit = game.At(id);
    std::ostringstream text;
    text << unit.name.data() << " (" << ArmyName(id.army) << ", "
         << TypeNameOf(static_cast<int>(unit.type)) << ", strength " << unit.strength << ", morale "
         << unit.morale << " of " << unit.maxMorale << ", " << StatusName(unit.status) << ')';
    return text.str();
}

std::string AmountOf(const StrikeTerm& term) {
    std::ostringstream text;
    switch (term.kind) {
        case StrikeTerm::Kind::Size: text << "size " << term.amount; break;
        case StrikeTerm::Kind::Scale:
        case StrikeTerm::Kind::Halving: text << "x " << term.amount; break;
        case StrikeTerm::Kind::Base:
            text << std::showpos << term.amount << std::noshowpos << " scaled";
            break;
        case StrikeTerm::Kind::Flat:
        case StrikeTerm::Kind::AfterCap: text << std::showpos << term.amount; break;
    }
    return text.str();
}

void PrintReckonings(const char* title, const std::vector<Chance<Reckoning>>& reckonings) {
    for (const auto& [reckoning, probability] : reckonings) {
        std::cout << '\n' << title << ", in " << Percent(probability) << " of cases\n";
        for (const StrikeTerm& term : reckoning.terms) {
            std::cout << "  " << std::left << std::setw(42) << term.name << AmountOf(term) << '\n';
        }
        std::cout << "  " << std::left << std::setw(42) << "makes" << reckoning.strike << '\n';
    }
}

void PrintSide(const SideOutcome& side) {
    std::cout << std::right << std::setw(6) << side.strengthLost << std::setw(8) << side.morale
              << "  " << std::left << std::setw(10) << StatusName(side.status);
}

void PrintOutcomes(const std::vector<Chance<AttackOutcome>>& outcomes) {
    std::cout << "\nOutcomes      target                      attacker\n"
              << "              lost  morale  status        lost  morale  status\n";
    for (const auto& [outcome, probability] : outcomes) {
        std::cout << "  " << std::right << std::setw(8) << Percent(probability) << "  ";
        PrintSide(outcome.target);
        std::cout << "  ";
        PrintSide(outcome.attacker);
        std::cout << '\n';
    }
}

void PrintDispatches(const std::vector<Chance<int>>& dispatches) {
    if (!dispatches.empty()) std::cout << "\nDispatches\n";
    for (const auto& [code, expected] : dispatches) {
        std::cout << "  " << std::fixed << std::setprecision(2) << expected << " times  "
                  << CourierTextOf(code) << '\n';
    }
}

void Explain(const Question& question) {
    SilentPerson nobody;
    Game game = FreshGame(BuiltInAtlases(), nobody, HeadlessSettings());
    OpenPosition(game, question.file);
    const AttackPlan plan = PlanOf(question);
    const Result<AttackForecast> result = ForecastAttack(game, plan);
    if (!result.Ok()) throw Refusal(question.file + ": " + result.Message());
    const AttackForecast& forecast = result.Get();
    std::cout << "Attacker  " << Described(game, plan.attacker) << '\n'
              << "Target    " << Described(game, plan.target) << '\n'
              << "A blow is struck in " << Percent(forecast.goesIn) << " of cases.\n";
    PrintReckonings("The strike", forecast.attacks);
    PrintReckonings("The answer", forecast.answers);
    PrintOutcomes(forecast.outcomes);
    PrintDispatches(forecast.dispatches);
}

}  // namespace

void AddExplain(CLI::App& app) {
    CLI::App* command = app.add_subcommand(
        "explain", "Reckons an attack in a saved position and lists every outcome with its chance");
    command->footer(
        "The attack is fought as the battle at the end of the turn would, by units as they stand "
        "in the file; whether a barrage carries so far is not asked.");
    const auto question = std::make_shared<Question>();
    command->add_option("FILE", question->file, "A scenario, battle or turn file")->required();
    command->add_option("--army", question->army, "The army of the attacker")->required();
    command->add_option("--unit", question->unit, "The number of the attacker")->required();
    command->add_option("--target", question->target, "Army and number of the target: 1,7")
        ->delimiter(',')
        ->expected(2)
        ->required();
    command->add_flag("--bombard", question->bombard, "A barrage from a distance");
    CLI::Option* tactic = command->add_option("--tactic", question->tactic, "Tactic, 0 to 9")
                              ->check(CLI::Range(0, 9));
    CLI::Option* response =
        command->add_option("--response", question->response, "The target's response, 0 to 9")
            ->check(CLI::Range(0, 9));
    tactic->needs(response);
    response->needs(tactic);
    command->callback([question] { Explain(*question); });
}

}  // namespace varnstride::sim
