#include "platform/headless/scripted_person.h"

#include <algorithm>
#include <array>

namespace varnstride {
namespace {

constexpr int kClosed = 0;  // without an answer
constexpr int kMostRepeats = 1000;
constexpr int kCourierTemplate = 641;
constexpr int kResultBoxTemplate = 245;  // told by the event of its attack

struct Default {
    int templateId;
    int answer;
};

// Dialogs that a plain OK, or the first button, would not close as nobody's answer should.
constexpr std::array kDefaults = {
    Default{150, kCancel},  // bombardment list
    Default{269, kOk},      // game end
    Default{305, kCancel},  // password check
    Default{342, kCancel},  // formation change
    Default{364, kClosed},  // detach
    Default{398, kCancel},  // start screen
    Default{475, 1071},     // card draw
    Default{614, kCancel},  // rotate
    Default{636, kOk},      // start turn
};

bool HasButton(const Dialog& dialog, int id) {
    const Control* control = dialog.Find(id);
    return control != nullptr && control->kind == Control::Kind::Button;
}

const Control* FirstButton(const Dialog& dialog) {
    for (const Control& control : dialog.controls) {
        if (control.kind == Control::Kind::Button) return &control;
    }
    return nullptr;
}

// Whether an answer to the dialog can be refused: there is something to fill in or to choose from.
bool CanBeRefused(const Dialog& dialog) {
    return std::any_of(dialog.controls.begin(), dialog.controls.end(), [](const Control& control) {
        return control.kind != Control::Kind::Label && control.kind != Control::Kind::Button;
    });
}

bool ShowsTheSame(const Dialog& left, const Dialog& right) {
    return left.templateId == right.templateId &&
           std::equal(left.controls.begin(), left.controls.end(), right.controls.begin(),
                      right.controls.end(), [](const Control& one, const Control& other) {
                          return one.id == other.id && one.text == other.text &&
                                 one.value == other.value && one.lines == other.lines;
                      });
}

std::string Named(const Dialog& dialog) {
    return "dialog " + std::to_string(dialog.templateId);
}

std::string ControlsOf(const Dialog& dialog) {
    std::string ids;
    for (const Control& control : dialog.controls) {
        ids += (ids.empty() ? "" : ", ") + std::to_string(control.id);
    }
    return ids.empty() ? "none" : ids;
}

[[noreturn]] void Refuse(const Dialog& dialog, int line, const std::string& what) {
    throw ScriptError(line, Named(dialog) + " " + what);
}

int ValueOf(const Dialog& dialog, const AnswerStep& step, int most, int line) {
    const std::string& text = *step.value;
    const bool digits = !text.empty() && text.size() < 6 &&
                        std::all_of(text.begin(), text.end(),
                                    [](char letter) { return letter >= '0' && letter <= '9'; });
    if (digits && std::stoi(text) <= most) return std::stoi(text);
    Refuse(dialog, line,
           "takes 0 to " + std::to_string(most) + " for control " + std::to_string(step.control) +
               ", not \"" + text + "\"");
}

void ChooseLine(Dialog& dialog, Control& list, const AnswerStep& step, int line) {
    if (!step.value) {
        Refuse(dialog, line,
               "needs a line for its list " + std::to_string(step.control) + ": write " +
                   std::to_string(step.control) + "=0 for the first");
    }
    list.value = ValueOf(dialog, step, static_cast<int>(list.lines.size()) - 1, line);
}

void TickOrChoose(Dialog& dialog, Control& control, const AnswerStep& step, int line) {
    const int value = step.value ? ValueOf(dialog, step, 1, line) : 1;
    if (control.kind == Control::Kind::Radio && value == 1) {
        dialog.Choose(control.id);
    } else {
        control.value = value;
    }
}

void Set(Dialog& dialog, const AnswerStep& step, int line) {
    const std::string number = std::to_string(step.control);
    if (dialog.Find(step.control) == nullptr) {
        Refuse(dialog, line, "has no control " + number + "; it has: " + ControlsOf(dialog));
    }
    Control& control = dialog.At(step.control);
    switch (control.kind) {
        case Control::Kind::Edit:
            if (!step.value) Refuse(dialog, line, "needs a text for control " + number);
            control.text = *step.value;
            return;
        case Control::Kind::List: ChooseLine(dialog, control, step, line); return;
        case Control::Kind::Tick:
        case Control::Kind::Radio: TickOrChoose(dialog, control, step, line); return;
        case Control::Kind::Label: Refuse(dialog, line, "only shows control " + number);
        case Control::Kind::Button:
            Refuse(dialog, line, "is closed by control " + number + ": it comes last");
    }
}

void Close(Dialog& dialog, int control, int line) {
    const bool known = control == kClosed || control == kOk || control == kCancel ||
                       FirstButton(dialog) == nullptr || HasButton(dialog, control);
    if (!known) {
        Refuse(dialog, line,
               "has no button " + std::to_string(control) + "; it has: " + ControlsOf(dialog));
    }
    dialog.closedBy = control;
}

void Answer(Dialog& dialog, const DialogAnswer& answer, int line) {
    for (std::size_t step = 0; step + 1 < answer.steps.size(); ++step) {
        Set(dialog, answer.steps[step], line);
    }
    Close(dialog, answer.steps.back().control, line);
}

}  // namespace

int DefaultAnswer(const Dialog& dialog) {
    for (const Default& entry : kDefaults) {
        if (entry.templateId == dialog.templateId) return entry.answer;
    }
    const Control* first = FirstButton(dialog);
    if (first == nullptr || HasButton(dialog, kOk)) return kOk;
    return first->id;
}

void ScriptedPerson::Queue(const DialogAnswer& answer, int line) {
    dialogs_[answer.templateId].push_back({answer, line});
}

std::optional<ScriptedPerson::Waiting> ScriptedPerson::TakeAnswer(int templateId) {
    const auto queue = dialogs_.find(templateId);
    if (queue == dialogs_.end() || queue->second.empty()) return std::nullopt;
    Waiting first = std::move(queue->second.front());
    queue->second.pop_front();
    return first;
}

void ScriptedPerson::AnswerByDefault(Dialog& dialog) {
    const bool repeated = lastUnanswered_ && ShowsTheSame(*lastUnanswered_, dialog);
    repeats_ = repeated ? repeats_ + 1 : 0;
    if (repeats_ > kMostRepeats) {
        throw ScriptError(0, Named(dialog) + " was asked " + std::to_string(kMostRepeats) +
                                 " times over without a waiting answer");
    }
    lastUnanswered_ = dialog;
    if (!repeated) {
        dialog.closedBy = DefaultAnswer(dialog);
    } else {
        dialog.closedBy = HasButton(dialog, kCancel) ? kCancel : kClosed;
    }
}

void ScriptedPerson::Ask(Dialog& dialog) {
    if (const std::optional<Waiting> waiting = TakeAnswer(dialog.templateId)) {
        lastUnanswered_.reset();
        Answer(dialog, waiting->answer, waiting->line);
    } else if (CanBeRefused(dialog)) {
        AnswerByDefault(dialog);
    } else {
        dialog.closedBy = DefaultAnswer(dialog);
    }
    if (dialog.templateId != kResultBoxTemplate) events_.Asked(dialog);
}

bool ScriptedPerson::Confirm(const MessageBox& box) {
    int answer = kOk;
    if (!boxes_.empty()) {
        answer = box.buttons == BoxButtons::Ok ? kOk : boxes_.front();
        boxes_.pop_front();
    }
    events_.Box(box, answer);
    return answer == kOk;
}

void ScriptedPerson::Read(const CourierMessage& message) {
    TakeAnswer(kCourierTemplate);
    events_.Courier(message);
}

std::optional<std::string> ScriptedPerson::ChooseFile(const FileQuestion& question) {
    if (files_.empty()) return std::nullopt;
    std::string path = std::move(files_.front());
    files_.pop_front();
    if (!question.saving) ++filesOpened;
    return path;
}

void ScriptedPerson::Rolled(int sides, int value, bool logged) {
    if (switches.traceDice == 1) events_.Die(sides, value, logged);
}

}  // namespace varnstride
