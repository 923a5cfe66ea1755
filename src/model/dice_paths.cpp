#include "model/dice_paths.h"

#include <algorithm>

namespace varnstride {
namespace {

constexpr int kGeneratorRange = 32768;

std::size_t FirstPossible(const std::vector<double>& probabilities, std::size_t from) {
    while (from < probabilities.size() && probabilities[from] <= 0.0)
        ++from;
    return from;
}

}  // namespace

int DicePaths::Choose(const std::vector<double>& probabilities) {
    if (next_ == forks_.size()) forks_.push_back({probabilities, FirstPossible(probabilities, 0)});
    return static_cast<int>(forks_[next_++].chosen);
}

int DicePaths::Throw(int sides) {
    return Choose(FaceChances(sides));
}

bool DicePaths::Advance() {
    next_ = 0;
    while (!forks_.empty()) {
        Fork& last = forks_.back();
        last.chosen = FirstPossible(last.probabilities, last.chosen + 1);
        if (last.chosen < last.probabilities.size()) return true;
        forks_.pop_back();
    }
    return false;
}

double DicePaths::Probability() const {
    double probability = 1.0;
    for (const Fork& fork : forks_)
        probability *= fork.probabilities[fork.chosen];
    return probability;
}

std::vector<double> FaceChances(int sides) {
    std::vector<double> chances;
    for (int face = 0; face < sides; ++face) {
        const int numbers = (kGeneratorRange - 1 - face) / sides + 1;
        chances.push_back(static_cast<double>(numbers) / kGeneratorRange);
    }
    return chances;
}

std::vector<double> CountChances(int dice, int sides, int face) {
    const double chance = FaceChances(sides)[static_cast<std::size_t>(face)];
    std::vector<double> chances{1.0};
    for (int die = 0; die < dice; ++die) {
        chances.push_back(0.0);
        for (std::size_t count = chances.size() - 1; count > 0; --count) {
            chances[count] = chances[count] * (1.0 - chance) + chances[count - 1] * chance;
        }
        chances[0] *= 1.0 - chance;
    }
    return chances;
}

}  // namespace varnstride
