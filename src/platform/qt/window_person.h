// The person at the window: whatever a rule tells, asks or shows becomes a dialog, a message box or
// a new picture, and is answered before the call returns.
#pragma once

#include <QPointer>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

#include "model/person.h"

namespace varnstride {

class WindowPerson : public Person {
 public:
    // The folder of the game's own files, where scenarios stand; a fixed time makes each battle
    // repeatable.
    WindowPerson(std::filesystem::path data, std::optional<unsigned> time)
        : data_(std::move(data)), time_(time) {}

    // Set before the first rule runs.
    QPointer<QWidget> window;
    std::function<void(View)> onRedraw;

    void Ask(Dialog& dialog) override;
    bool Confirm(const MessageBox& box) override;
    void Read(const CourierMessage& message) override;
    std::optional<std::string> ChooseFile(const FileQuestion& question) override;
    void Fought(const AttackReport&) override {}
    void Saved(const std::string&, std::size_t) override {}
    void Play(Sound) override {}
    void Loop(Sound) override {}
    void Stop(Sound) override {}
    void Redraw(View view) override { onRedraw(view); }
    void Pause(int milliseconds) override;
    unsigned Time() override;
    bool PaintsRiders() const override { return true; }
    void Rolled(int, int, bool) override {}

 private:
    std::filesystem::path data_;
    std::optional<unsigned> time_;
    std::filesystem::path lastFolder_;
};

}  // namespace varnstride
