// Tells a battle in plain words on the terminal: what is ordered and fought, who marches, breaks or
// dies, with a map where the script asks for one. The events themselves go on to a report.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/headless/event_writer.h"

namespace varnstride::demo {

class Narrator : public BattleEvents {
 public:
    Narrator(std::ostream& terminal, std::ostream& report) : out_(terminal), report_(report) {}

    void Phase(const Game& game) override;
    void Courier(const CourierMessage& message) override;
    void Box(const MessageBox& box, int answer) override;
    void Asked(const Dialog& dialog) override { report_.Asked(dialog); }
    void Result(const AttackReport& report) override;
    void Die(int sides, int value, bool logged) override { report_.Die(sides, value, logged); }
    void Sounded(Sound sound) override { report_.Sounded(sound); }
    void Saved(const std::string& file, std::size_t bytes) override;
    void State(const Game& game, const std::vector<MapCell>& atLoad) override;
    void End(const std::string& reason) override;
    void Opened(const Game& game) override;
    void StepDone(const Game& game) override;

 private:
    void Say(const std::string& words);
    void TellChanges(const Game& game);
    void TellReopened(const Game& game);

    std::ostream& out_;
    EventWriter report_;
    std::vector<ArmyUnits> units_;  // as the last step left them
    std::optional<Game> saved_;     // as the last save found it
    bool saving_ = false;
    bool legendShown_ = false;
};

}  // namespace varnstride::demo
