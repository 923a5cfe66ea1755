// The event cards by number: when each acts, and what it does.
#pragma once

#include "battle/card_on_unit.h"

namespace varnstride {

// One card acts in one way, or, being none of ours, in no way at all.
struct EventCard {
    int number = 0;
    void (*press)(Game&) = nullptr;      // on the press of its picture
    CardUse (*onUnit)(Game&) = nullptr;  // on a unit pointed at; acts on the unit in hand
    bool onArea = false;                 // rouses every unit of an area pointed at
};

// A number without a card gives one that does nothing.
const EventCard& EventCardOf(int number);

}  // namespace varnstride
