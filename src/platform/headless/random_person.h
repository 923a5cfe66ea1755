// A person without a plan: answers every dialog and box by the dice of his own and notes each
// answer as a script would queue it.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "model/person.h"

namespace varnstride {

// Dice that no rule draws from, the same on every machine.
class OwnDice {
 public:
    explicit OwnDice(unsigned seed) : engine_(seed) {}
    // 0 to sides - 1; sides is at least 1.
    int Throw(int sides) {
        return static_cast<int>(engine_() % static_cast<std::mt19937::result_type>(sides));
    }
    bool Chance(int percent) { return Throw(100) < percent; }

 private:
    std::mt19937 engine_;
};

class RandomPerson : public SilentPerson {
 public:
    explicit RandomPerson(OwnDice& dice) : dice_(dice) {}

    void Ask(Dialog& dialog) override;
    bool Confirm(const MessageBox& box) override;
    std::optional<std::string> ChooseFile(const FileQuestion& question) override;

    std::string fileToOpen;            // what the next chooser picks, once; no other picks anything
    std::vector<std::string> answers;  // lines of a script, in the order of the answers

 private:
    void Fill(Dialog& dialog, int id, std::string& line);
    int PickButton(const Dialog& dialog);

    OwnDice& dice_;
};

}  // namespace varnstride
