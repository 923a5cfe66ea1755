// The events of a battle as the driver prints them: one JSON object a line, in the order in which
// things happen.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "platform/headless/battle_events.h"

namespace varnstride {

class EventWriter : public BattleEvents {
 public:
    explicit EventWriter(std::ostream& out) : out_(out) {}

    void Phase(const Game& game) override;
    void Courier(const CourierMessage& message) override;
    void Box(const MessageBox& box, int answer) override;
    void Asked(const Dialog& dialog) override;
    void Result(const AttackReport& report) override;
    void Die(int sides, int value, bool logged) override;
    void Sounded(Sound sound) override;
    void Saved(const std::string& file, std::size_t bytes) override;
    // Cells are told by what differs from `atLoad`, the cells by rows as the load left them.
    void State(const Game& game, const std::vector<MapCell>& atLoad) override;
    void End(const std::string& reason) override;

 private:
    std::ostream& out_;
};

// "Orders", "BeginSide" and so on.
std::string NameOf(TurnPhase phase);

}  // namespace varnstride
