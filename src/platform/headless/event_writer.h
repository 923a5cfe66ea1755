// The events of a battle as the driver prints them: one JSON object a line, in the order in which
// things happen.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "model/attack_report.h"
#include "model/dialog.h"
#include "model/game.h"

namespace varnstride {

class EventWriter {
 public:
    explicit EventWriter(std::ostream& out) : out_(out) {}

    void Phase(const Game& game);
    void Courier(const CourierMessage& message);
    void Box(const MessageBox& box, int answer);
    void Asked(const Dialog& dialog);
    void Result(const AttackReport& report);
    void Die(int sides, int value, bool logged);
    void Sounded(Sound sound);
    void Saved(const std::string& file, std::size_t bytes);
    // Cells are told by what differs from `atLoad`, the cells by rows as the load left them.
    void State(const Game& game, const std::vector<MapCell>& atLoad);
    void End(const std::string& reason);

 private:
    std::ostream& out_;
};

// "Orders", "BeginSide" and so on.
std::string NameOf(TurnPhase phase);

}  // namespace varnstride
