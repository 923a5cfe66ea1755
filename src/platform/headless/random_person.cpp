#include "platform/headless/random_person.h"

#include <utility>

namespace varnstride {
namespace {

constexpr int kFillPercent = 30;
constexpr int kOkPercent = 70;

}  // namespace

void RandomPerson::Fill(Dialog& dialog, int id, std::string& line) {
    Control& control = dialog.At(id);
    const auto note = [&](int value) {
        line += " " + std::to_string(id) + "=" + std::to_string(value);
    };
    switch (control.kind) {
        case Control::Kind::Tick: note(control.value = dice_.Throw(2)); break;
        case Control::Kind::Radio:
            dialog.Choose(id);
            note(1);
            break;
        case Control::Kind::Edit:
            control.text = std::to_string(dice_.Throw(8));
            line += " " + std::to_string(id) + "=" + control.text;
            break;
        case Control::Kind::List:
            if (control.lines.empty()) break;
            note(control.value = dice_.Throw(static_cast<int>(control.lines.size())));
            break;
        case Control::Kind::Label:
        case Control::Kind::Button: break;
    }
}

int RandomPerson::PickButton(const Dialog& dialog) {
    std::vector<int> buttons;
    for (const Control& control : dialog.controls) {
        if (control.kind == Control::Kind::Button) buttons.push_back(control.id);
    }
    if (buttons.empty()) return kOk;
    if (dialog.Find(kOk) != nullptr && dice_.Chance(kOkPercent)) return kOk;
    return buttons[static_cast<std::size_t>(dice_.Throw(static_cast<int>(buttons.size())))];
}

void RandomPerson::Ask(Dialog& dialog) {
    std::string line = "answer " + std::to_string(dialog.templateId);
    for (std::size_t index = 0; index < dialog.controls.size(); ++index) {
        if (dice_.Chance(kFillPercent)) Fill(dialog, dialog.controls[index].id, line);
    }
    dialog.closedBy = PickButton(dialog);
    answers.push_back(line + " " + std::to_string(dialog.closedBy));
}

bool RandomPerson::Confirm(const MessageBox& box) {
    const bool agreed = box.buttons == BoxButtons::Ok || dice_.Chance(kOkPercent);
    answers.push_back(agreed ? "answer box 1" : "answer box 2");
    return agreed;
}

std::optional<std::string> RandomPerson::ChooseFile(const FileQuestion& question) {
    if (question.saving || fileToOpen.empty()) return std::nullopt;
    return std::exchange(fileToOpen, {});
}

}  // namespace varnstride
