#include "battle/forecast.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "battle/area_forces.h"
#include "battle/attack.h"
#include "battle/enemy_slots.h"
#include "battle/tactics.h"
#include "model/areas.h"
#include "model/dice_paths.h"
#include "model/units_on_map.h"
#include "resources/army_names.h"

namespace varnstride {
namespace {

bool TermComesFirst(const StrikeTerm& one, const StrikeTerm& other) {
    return std::tie(one.kind, one.name, one.amount) <
           std::tie(other.kind, other.name, other.amount);
}

struct ByReckoning {
    bool operator()(const Reckoning& one, const Reckoning& other) const {
        if (one.strike != other.strike) return one.strike < other.strike;
        return std::lexicographical_compare(one.terms.begin(), one.terms.end(), other.terms.begin(),
                                            other.terms.end(), TermComesFirst);
    }
};

// Hears what an attack is told with.
class Listener : public SilentPerson {
 public:
    void Fought(const AttackReport& report) override { report_ = report; }
    void Read(const CourierMessage& message) override { codes_.push_back(message.code); }

    void Forget() {
        report_.reset();
        codes_.clear();
    }
    const std::optional<AttackReport>& Report() const { return report_; }
    const std::vector<int>& Codes() const { return codes_; }

 private:
    std::optional<AttackReport> report_;
    std::vector<int> codes_;
};

// Adds up the paths that come to the same.
class Tally {
 public:
    void Add(const AttackOutcome& outcome, const Listener& listener, double probability) {
        outcomes_[outcome] += probability;
        for (int code : listener.Codes())
            dispatches_[code] += probability;
        if (!listener.Report()) return;
        const AttackReport& report = *listener.Report();
        goesIn_ += probability;
        attacks_[{report.attackStrike, report.attackTerms}] += probability;
        if (report.defenceTerms.empty()) return;
        answers_[{report.defenceStrike, report.defenceTerms}] += probability;
    }

    AttackForecast Forecast() const {
        return {goesIn_, Listed(outcomes_), Listed(attacks_), Listed(answers_),
                Listed(dispatches_)};
    }

 private:
    template <typename Case, typename Order>
    static std::vector<Chance<Case>> Listed(const std::map<Case, double, Order>& cases) {
        std::vector<Chance<Case>> list;
        list.reserve(cases.size());
        for (const auto& [what, probability] : cases)
            list.push_back({what, probability});
        std::stable_sort(list.begin(), list.end(), [](const auto& one, const auto& other) {
            return one.probability > other.probability;
        });
        return list;
    }

    double goesIn_ = 0.0;
    std::map<AttackOutcome, double> outcomes_;
    std::map<Reckoning, double, ByReckoning> attacks_;
    std::map<Reckoning, double, ByReckoning> answers_;
    std::map<int, double> dispatches_;
};

std::string NameOf(UnitId id) {
    const std::string_view name = ArmyName(id.army);
    const std::string army = name.empty() ? "army " + std::to_string(id.army) : std::string(name);
    return army + " unit " + std::to_string(id.index);
}

bool IsRecord(UnitId id) {
    return id.army >= 0 && id.army <= kLastPlayingArmy && id.index > 0 && id.index < kUnitsPerArmy;
}

std::optional<std::string> WhyNotOnMap(const Game& game, UnitId id) {
    if (!IsRecord(id)) return "there is no such unit: " + NameOf(id);
    if (!IsOnMap(game, id)) return NameOf(id) + " is not on the map";
    return std::nullopt;
}

bool IsTacticNumber(int number) {
    return number >= 0 && number <= static_cast<int>(Tactic::CavalrySwarmAttack);
}

// Nothing when the plan can be carried out.
std::optional<std::string> Objection(const Game& game, const AttackPlan& plan) {
    if (auto why = WhyNotOnMap(game, plan.attacker)) return why;
    if (auto why = WhyNotOnMap(game, plan.target)) return why;
    if (SideOf(plan.attacker.army) == SideOf(plan.target.army)) {
        return NameOf(plan.attacker) + " and " + NameOf(plan.target) + " are on the same side";
    }
    const Unit& attacker = game.At(plan.attacker);
    if (plan.bombard &&
        !IsBetween(attacker.type, UnitType::MortarArtillery, UnitType::FieldArtillery)) {
        return NameOf(plan.attacker) + " has no guns to bombard with";
    }
    const int area = game.grid.AreaOf(attacker.Place());
    if (!plan.bombard && area != game.grid.AreaOf(game.At(plan.target).Place())) {
        return NameOf(plan.attacker) + " and " + NameOf(plan.target) +
               " do not stand in the same area";
    }
    if (plan.tactics &&
        (!IsTacticNumber(plan.tactics->tactic) || !IsTacticNumber(plan.tactics->response))) {
        return "tactics and responses are numbers from 0 to 9";
    }
    return std::nullopt;
}

// The copy that all paths start from: nothing is waited for, heard or logged.
Game Prepared(const Game& game, const AttackPlan& plan, Person& person, DicePaths& paths) {
    Game copy = game;
    copy.person = &person;
    copy.generator.Follow(&paths);
    copy.beforePass = copy.afterPass = {};
    copy.state.rollLogActive = 0;
    copy.settings.quickResults = copy.settings.noDelays = 1;
    copy.settings.battleSounds = 0;
    SetUpAttack(copy, plan);
    return copy;
}

SideOutcome OutcomeOf(const Game& before, const Game& after, UnitId id) {
    const Unit& unit = after.At(id);
    return {before.At(id).strength - unit.strength, unit.morale, unit.status};
}

void PlayTactics(Game& game, const TacticsPlayed& tactics) {
    constexpr int kSeveral = 2;
    game.options.tacticalPlayOn = 1;
    game.battle.attackingSlots = kSeveral;
    game.battle.chosenTactic = tactics.tactic;
    game.battle.tacticalResponse = tactics.response;
    game.battle.tacticalAdvantage = AdvantageOf(tactics.tactic, tactics.response);
    game.battle.requiredLeadership = LeadershipFor(tactics.tactic);
}

}  // namespace

void SetUpAttack(Game& game, const AttackPlan& plan) {
    GameState& state = game.state;
    BattleState& battle = game.battle;
    battle = {};
    Unit& attacker = game.At(plan.attacker);
    state.currentArmy = plan.attacker.army;
    state.currentUnit = plan.attacker.index;
    state.selectedCell = game.At(plan.bombard ? plan.target : plan.attacker).Place();
    SelectArea(game);
    FillEnemySlots(game);
    ComputeTerrainDefence(game);
    battle.primaryCell = attacker.Place();
    attacker.canMove = 1;
    state.moveCost = 0;
    state.bombardmentMode = plan.bombard ? 1 : 0;
    if (plan.bombard) {
        attacker.actionPoints = 0;
    } else {
        GatherAttackers(game);
    }
    if (plan.tactics) PlayTactics(game, *plan.tactics);
}

Result<AttackForecast> ForecastAttack(const Game& game, const AttackPlan& plan) {
    if (auto why = Objection(game, plan)) return Failure{*why};
    Listener listener;
    DicePaths paths;
    const Game start = Prepared(game, plan, listener, paths);
    Game played = start;
    Tally tally;
    do {
        played = start;
        listener.Forget();
        ResolveAttackOn(played, plan.target);
        tally.Add({OutcomeOf(game, played, plan.target), OutcomeOf(game, played, plan.attacker)},
                  listener, paths.Probability());
    } while (paths.Advance());
    return tally.Forecast();
}

}  // namespace varnstride
