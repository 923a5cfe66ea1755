#include "battle/strike_ledger.h"

#include <algorithm>

#include "battle/strike_tables.h"

namespace varnstride {

void StrikeLedger::SetSize(std::string_view name, double size) {
    terms_.push_back({StrikeTerm::Kind::Size, name, size});
}

void StrikeLedger::Scale(std::string_view name, double factor) {
    terms_.push_back({StrikeTerm::Kind::Scale, name, factor});
}

void StrikeLedger::AddBase(std::string_view name, int points) {
    AddPoints(StrikeTerm::Kind::Base, name, points);
}

void StrikeLedger::AddFlat(std::string_view name, int points) {
    AddPoints(StrikeTerm::Kind::Flat, name, points);
}

void StrikeLedger::AddAfterCap(std::string_view name, int points) {
    AddPoints(StrikeTerm::Kind::AfterCap, name, points);
}

void StrikeLedger::Halve(std::string_view name) {
    terms_.push_back({StrikeTerm::Kind::Halving, name, 0.5});
}

double StrikeLedger::CurrentScale() const {
    double scale = 0.0;
    for (const StrikeTerm& term : terms_) {
        if (term.kind == StrikeTerm::Kind::Size) scale = term.amount;
        if (term.kind == StrikeTerm::Kind::Scale) scale *= term.amount;
    }
    return scale;
}

int StrikeLedger::Value() const {
    int value = static_cast<int>(Sum(StrikeTerm::Kind::Base) * CurrentScale());
    value = std::min(value + Sum(StrikeTerm::Kind::Flat), kStrikeLimit);
    value = std::max(value + Sum(StrikeTerm::Kind::AfterCap), 0);
    return Has(StrikeTerm::Kind::Halving) ? value / 2 : value;
}

int StrikeLedger::Sum(StrikeTerm::Kind kind) const {
    int sum = 0;
    for (const StrikeTerm& term : terms_) {
        if (term.kind == kind) sum += static_cast<int>(term.amount);
    }
    return sum;
}

bool StrikeLedger::Has(StrikeTerm::Kind kind) const {
    return std::any_of(terms_.begin(), terms_.end(),
                       [&](const StrikeTerm& term) { return term.kind == kind; });
}

void StrikeLedger::AddPoints(StrikeTerm::Kind kind, std::string_view name, int points) {
    if (points != 0) terms_.push_back({kind, name, static_cast<double>(points)});
}

}  // namespace varnstride
