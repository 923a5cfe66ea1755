// Every way in which the dice of a procedure can fall, one after the other, each with its exact
// probability. A forecast plays copies of a game whose generator is driven by one of these.
#pragma once

#include <cstddef>
#include <vector>

namespace varnstride {

class DicePaths {
 public:
    // The next die on the path being walked: which of its outcomes falls, by their probabilities.
    // Outcomes that cannot fall are passed over.
    int Choose(const std::vector<double>& probabilities);

    // A die of so many sides, as the generator's 32768 numbers make it.
    int Throw(int sides);

    // Goes on to the next path; false when all have been walked.
    bool Advance();

    // Of the path that has been walked.
    double Probability() const;

 private:
    struct Fork {
        std::vector<double> probabilities;
        std::size_t chosen;
    };

    std::vector<Fork> forks_;
    std::size_t next_ = 0;
};

// The chances of 0 to sides - 1.
std::vector<double> FaceChances(int sides);

// The chances that 0 to dice of so many dice show that face.
std::vector<double> CountChances(int dice, int sides, int face);

}  // namespace varnstride
