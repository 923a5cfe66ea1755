// What an attack came to, told to the person once its losses are booked: the result box or the
// numbers on the map show it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/unit.h"

namespace varnstride {

// One thing that counted in a strike, in the order of the reckoning.
struct StrikeTerm {
    enum class Kind {
        Size,      // sets the scale
        Scale,     // multiplies the scale
        Base,      // points that the scale multiplies
        Flat,      // points that it does not
        AfterCap,  // points that count once the strike has been held to its limit
        Halving,   // halves the strike in the end
    };

    Kind kind = Kind::Flat;
    std::string_view name;  // static text
    double amount = 0.0;
};

struct AttackReport {
    UnitId attacker;
    UnitId target;
    std::string attackerName;
    std::string targetName;
    int attackStrike = 0;
    int defenceStrike = 0;
    int defenderHit = 0;                   // morale the target lost to the blow
    int attackerHit = 0;                   // morale the attacker lost to the answer
    int defenderLoss = 0;                  // strength points
    int attackerLoss = 0;                  // strength points
    std::vector<StrikeTerm> attackTerms;   // what attackStrike was made of
    std::vector<StrikeTerm> defenceTerms;  // the same of defenceStrike; empty without an answer
    std::vector<std::string> lines;        // the list of the result box: what counted in the strike
};

}  // namespace varnstride
