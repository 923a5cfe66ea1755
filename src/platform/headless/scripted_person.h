// The person of the headless driver: answers every question from what the script has queued, and
// tells everything that happens as events.
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>

#include "model/person.h"
#include "platform/headless/battle_events.h"
#include "platform/headless/script.h"
#include "platform/headless/settable_fields.h"

namespace varnstride {

// An answer that does not fit its dialog, or a dialog that no default closes. Line 0: the line that
// is being played.
struct ScriptError : std::runtime_error {
    ScriptError(int where, const std::string& what) : std::runtime_error(what), line(where) {}
    int line;
};

class ScriptedPerson : public Person {
 public:
    explicit ScriptedPerson(BattleEvents& events) : events_(events) {}

    // Answers wait in one queue a dialog, first in first out; boxes and files have a queue each.
    void Queue(const DialogAnswer& answer, int line);
    void Queue(const BoxAnswer& answer) { boxes_.push_back(answer.button); }
    void Queue(const FileAnswer& answer) { files_.push_back(answer.path); }
    // The path that the very next chooser picks.
    void PickNext(const std::string& path) { files_.push_front(path); }
    void SetTime(unsigned time) { time_ = time; }
    // A new command or pass begins: what is asked from here on is no repeat.
    void BeginStep() { lastUnanswered_.reset(); }

    DriverSwitches switches;
    int filesOpened = 0;  // choices of a file to open that were not cancelled

    void Ask(Dialog& dialog) override;
    bool Confirm(const MessageBox& box) override;
    void Read(const CourierMessage& message) override;
    std::optional<std::string> ChooseFile(const FileQuestion& question) override;
    void Fought(const AttackReport& report) override { events_.Result(report); }
    void Saved(const std::string& path, std::size_t bytes) override { events_.Saved(path, bytes); }
    void Play(Sound sound) override { events_.Sounded(sound); }
    void Loop(Sound) override {}
    void Stop(Sound) override {}
    void Redraw(View) override {}
    void Pause(int) override {}
    unsigned Time() override { return time_; }
    bool PaintsRiders() const override { return switches.riders == 1; }
    void Rolled(int sides, int value, bool logged) override;

 private:
    struct Waiting {
        DialogAnswer answer;
        int line;
    };

    std::optional<Waiting> TakeAnswer(int templateId);
    void AnswerByDefault(Dialog& dialog);

    BattleEvents& events_;
    std::map<int, std::deque<Waiting>> dialogs_;
    std::deque<int> boxes_;
    std::deque<std::string> files_;
    unsigned time_ = SilentPerson::kDefaultTime;
    std::optional<Dialog> lastUnanswered_;  // as it was shown
    int repeats_ = 0;
};

// The control that closes a dialog for which no answer waits.
int DefaultAnswer(const Dialog& dialog);

}  // namespace varnstride
