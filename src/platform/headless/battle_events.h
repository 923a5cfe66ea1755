// Whoever listens to a battle that a script plays: what happens comes here in its order. One writes
// it down as JSON, another tells it in words.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/attack_report.h"
#include "model/dialog.h"
#include "model/game.h"

namespace varnstride {

class BattleEvents {
 public:
    virtual ~BattleEvents() = default;

    virtual void Phase(const Game& game) = 0;
    virtual void Courier(const CourierMessage& message) = 0;
    virtual void Box(const MessageBox& box, int answer) = 0;
    virtual void Asked(const Dialog& dialog) = 0;
    virtual void Result(const AttackReport& report) = 0;
    virtual void Die(int sides, int value, bool logged) = 0;
    virtual void Sounded(Sound sound) = 0;
    virtual void Saved(const std::string& file, std::size_t bytes) = 0;
    // Cells are told by what differs from `atLoad`, the cells by rows as the load left them.
    virtual void State(const Game& game, const std::vector<MapCell>& atLoad) = 0;
    virtual void End(const std::string& reason) = 0;

    // A battle has been opened, and a command of the script or a pass is over.
    virtual void Opened(const Game&) {}
    virtual void StepDone(const Game&) {}
};

}  // namespace varnstride
