#include "support/prepared_person.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varnstride {
namespace {

template <typename Value>
Value TakeFirst(std::deque<Value>& queue) {
    Value first = std::move(queue.front());
    queue.pop_front();
    return first;
}

void PressOne(Dialog& dialog, int id) {
    Control& control = dialog.At(id);
    if (control.kind == Control::Kind::Radio) dialog.Choose(id);
    if (control.kind == Control::Kind::Tick) control.value = 1 - control.value;
    if (control.kind == Control::Kind::Button) dialog.closedBy = id;
}

}  // namespace

void PreparedPerson::Ask(Dialog& dialog) {
    asked.push_back(dialog);
    dialog.closedBy = kCancel;
    std::deque<Answer>& waiting = answers_[dialog.templateId];
    if (waiting.empty()) {
        ADD_FAILURE() << "nobody expected dialog " << dialog.templateId;
        return;
    }
    TakeFirst(waiting)(dialog);
}

bool PreparedPerson::Confirm(const MessageBox& box) {
    boxes.push_back(box.caption + "|" + box.text);
    if (whileBoxIsOpen) whileBoxIsOpen();
    return true;
}

std::optional<std::string> PreparedPerson::ChooseFile(const FileQuestion& question) {
    choosers.push_back(question);
    if (!picks_.empty()) return TakeFirst(picks_);
    ADD_FAILURE() << "nobody expected the choice of a file";
    return std::nullopt;
}

std::vector<int> PreparedPerson::TemplatesAsked() const {
    std::vector<int> templates;
    for (const Dialog& dialog : asked)
        templates.push_back(dialog.templateId);
    return templates;
}

bool PreparedPerson::IsDone() const {
    return picks_.empty() &&
           std::ranges::all_of(answers_, [](const auto& entry) { return entry.second.empty(); });
}

PreparedPerson::Answer Press(std::vector<int> controls) {
    return [controls = std::move(controls)](Dialog& dialog) {
        for (int id : controls)
            PressOne(dialog, id);
    };
}

PreparedPerson::Answer Type(int edit, std::string text, int button) {
    return [edit, text = std::move(text), button](Dialog& dialog) {
        dialog.At(edit).text = text;
        dialog.closedBy = button;
    };
}

}  // namespace varnstride
