#include "sim/duel_summary.h"

#include <array>
#include <cmath>
#include <iomanip>

namespace varnstride::sim {
namespace {

constexpr std::array kOutcomes = {"major defeat", "minor defeat", "draw", "minor victory",
                                  "major victory"};

struct Spread {
    double mean = 0.0;
    double deviation = 0.0;
    int least = 0;
    int most = 0;
};

template <typename Figure>
Spread SpreadOf(const std::vector<DuelResult>& duels, Figure figure) {
    const double count = static_cast<double>(duels.size());
    Spread spread{.least = figure(duels.front()), .most = figure(duels.front())};
    for (const DuelResult& duel : duels) {
        spread.mean += figure(duel) / count;
        spread.least = std::min(spread.least, figure(duel));
        spread.most = std::max(spread.most, figure(duel));
    }
    for (const DuelResult& duel : duels) {
        const double off = figure(duel) - spread.mean;
        spread.deviation += off * off / count;
    }
    spread.deviation = std::sqrt(spread.deviation);
    return spread;
}

template <typename Figure>
void PrintSpread(std::ostream& out, const char* title, const std::vector<DuelResult>& duels,
                 Figure figure) {
    const Spread spread = SpreadOf(duels, figure);
    out << "  " << std::left << std::setw(22) << title << std::right << std::fixed
        << std::setprecision(1) << std::setw(9) << spread.mean << std::setw(9) << spread.deviation
        << std::setw(8) << spread.least << std::setw(8) << spread.most << '\n';
}

void PrintLevels(std::ostream& out, const std::vector<DuelResult>& duels) {
    std::array<int, kOutcomes.size()> counts{};
    for (const DuelResult& duel : duels)
        ++counts[static_cast<std::size_t>(duel.level)];
    out << duels.size() << " duels, told for the " << (duels[0].frenchFirst ? "French" : "Allies")
        << ", who move first\n";
    for (std::size_t level = kOutcomes.size(); level-- > 0;) {
        const double percent = 100.0 * counts[level] / static_cast<double>(duels.size());
        out << "  " << std::left << std::setw(22) << kOutcomes[level] << std::right << std::setw(9)
            << counts[level] << std::fixed << std::setprecision(1) << std::setw(8) << percent
            << " %\n";
    }
}

}  // namespace

void PrintSummary(std::ostream& out, const std::vector<DuelResult>& duels) {
    PrintLevels(out, duels);
    out << "                             mean   spread   least    most\n";
    PrintSpread(out, "score", duels, [](const DuelResult& duel) { return duel.score; });
    PrintSpread(out, "French strength lost", duels,
                [](const DuelResult& duel) { return duel.loss.frenchLossSP; });
    PrintSpread(out, "Allied strength lost", duels,
                [](const DuelResult& duel) { return duel.loss.alliedLossSP; });
    PrintSpread(out, "French morale", duels,
                [](const DuelResult& duel) { return duel.frenchMorale; });
    PrintSpread(out, "Allied morale", duels,
                [](const DuelResult& duel) { return duel.alliedMorale; });
    PrintSpread(out, "game turns", duels, [](const DuelResult& duel) { return duel.turns; });
}

void PrintCourse(std::ostream& out, const std::vector<DuelResult>& duels) {
    out << "seed,turn,score,frenchLoss,alliedLoss\n";
    for (const DuelResult& duel : duels) {
        for (const DuelTurn& turn : duel.course) {
            out << duel.seed << ',' << turn.turn << ',' << turn.score << ',' << turn.frenchLoss
                << ',' << turn.alliedLoss << '\n';
        }
    }
}

}  // namespace varnstride::sim
