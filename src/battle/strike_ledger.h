// The reckoning of one strike: every thing that counts in it by name. The value of the strike, and
// what a player is told of how it came about, are both read from here.
#pragma once

#include <string_view>
#include <vector>

#include "model/attack_report.h"

namespace varnstride {

class StrikeLedger {
 public:
    // The scale starts again at that size. Names must be static text.
    void SetSize(std::string_view name, double size);
    void Scale(std::string_view name, double factor);
    // Points that the scale multiplies, points that it does not, and points that count only once
    // the sum has been held to the limit. 0 points are left out.
    void AddBase(std::string_view name, int points);
    void AddFlat(std::string_view name, int points);
    void AddAfterCap(std::string_view name, int points);
    void Halve(std::string_view name);

    // Size times all factors.
    double CurrentScale() const;
    // The strike, 0 to 50: base times scale without its fraction, then the rest.
    int Value() const;

    const std::vector<StrikeTerm>& Terms() const { return terms_; }

 private:
    int Sum(StrikeTerm::Kind kind) const;
    bool Has(StrikeTerm::Kind kind) const;
    void AddPoints(StrikeTerm::Kind kind, std::string_view name, int points);

    std::vector<StrikeTerm> terms_;
};

}  // namespace varnstride
