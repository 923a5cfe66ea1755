// A person who answers as a test says and notes what it is told: "box <caption>", "courier <code>",
// "dialog <template>", "sound <name>", "loop <name>", in the order in which it comes.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "model/person.h"

namespace varnstride {

class RecordingPerson : public SilentPerson {
 public:
    bool agrees = true;                    // to every message box
    std::function<void(Dialog&)> answers;  // sets the controls of a dialog; OK closes it

    // What was told since the last call.
    std::vector<std::string> Heard() { return std::exchange(heard_, {}); }

    void Ask(Dialog& dialog) override {
        Note("dialog " + std::to_string(dialog.templateId));
        dialog.closedBy = kOk;
        if (answers) answers(dialog);
    }
    bool Confirm(const MessageBox& box) override {
        Note("box " + box.caption);
        return agrees;
    }
    void Read(const CourierMessage& message) override {
        Note("courier " + std::to_string(message.code));
    }
    void Play(Sound sound) override { Note("sound " + std::string(NameOf(sound))); }
    void Loop(Sound sound) override { Note("loop " + std::string(NameOf(sound))); }

 private:
    void Note(std::string what) { heard_.push_back(std::move(what)); }

    std::vector<std::string> heard_;
};

}  // namespace varnstride
