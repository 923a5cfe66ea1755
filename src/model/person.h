// The one way from the rules to whoever plays: whatever they tell, ask or show goes through this
// interface and is answered before the call returns. The window, the script of the driver and the
// tests each have their own.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "model/attack_report.h"
#include "model/dialog.h"
#include "resources/sounds.h"

namespace varnstride {

// What a rule asks to be drawn again. Nothing of this changes the state.
enum class View {
    Map,
    Frame,
    TopBar,
    InfoBar,
    UnitPanels,
    NoUnitPanels,
    CentreOnSelected,
    Toolbar
};

class Person {
 public:
    virtual ~Person() = default;

    // Shows a dialog and waits; the answer stands in its controls and in closedBy.
    virtual void Ask(Dialog& dialog) = 0;
    // Shows a message box and waits; true for OK.
    virtual bool Confirm(const MessageBox& box) = 0;
    // Shows a dispatch and waits for it to be put away.
    virtual void Read(const CourierMessage& message) = 0;
    // Lets the person pick a file; nothing when the choice is cancelled.
    virtual std::optional<std::string> ChooseFile(const FileQuestion& question) = 0;

    // An attack is over; told in either way of showing results, before the result box opens.
    virtual void Fought(const AttackReport& report) = 0;
    // A battle has been written to a file of so many bytes.
    virtual void Saved(const std::string& path, std::size_t bytes) = 0;

    virtual void Play(Sound sound) = 0;
    virtual void Loop(Sound sound) = 0;
    virtual void Stop(Sound sound) = 0;
    virtual void Redraw(View view) = 0;
    virtual void Pause(int milliseconds) = 0;

    // Seconds since 1970: what the generator is seeded with at the head of a player turn.
    virtual unsigned Time() = 0;
    // Whether each dispatch draws one of its army's riders from the game's generator.
    virtual bool PaintsRiders() const = 0;
    // A die was thrown: 0 to sides - 1. Logged dice are those that a replay repeats.
    virtual void Rolled(int sides, int value, bool logged) = 0;
};

// Somebody who agrees to everything and looks at nothing: the person of a copy played on to see
// what would happen, and of a game that nobody watches.
class SilentPerson : public Person {
 public:
    void Ask(Dialog& dialog) override { dialog.closedBy = kOk; }
    bool Confirm(const MessageBox&) override { return true; }
    void Read(const CourierMessage&) override {}
    std::optional<std::string> ChooseFile(const FileQuestion&) override { return std::nullopt; }
    void Fought(const AttackReport&) override {}
    void Saved(const std::string&, std::size_t) override {}
    void Play(Sound) override {}
    void Loop(Sound) override {}
    void Stop(Sound) override {}
    void Redraw(View) override {}
    void Pause(int) override {}
    unsigned Time() override { return kDefaultTime; }
    bool PaintsRiders() const override { return false; }
    void Rolled(int, int, bool) override {}

    static constexpr unsigned kDefaultTime = 1815;
};

}  // namespace varnstride
