#include "model/dialog.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace varnstride {

const Control* Dialog::Find(int id) const {
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [&](const Control& control) { return control.id == id; });
    return found == controls.end() ? nullptr : &*found;
}

const Control& Dialog::At(int id) const {
    const Control* control = Find(id);
    assert(control != nullptr);
    return *control;
}

Control& Dialog::At(int id) {
    return const_cast<Control&>(std::as_const(*this).At(id));
}

void Dialog::AddLabel(int id, std::string text) {
    controls.push_back({.id = id, .kind = Control::Kind::Label, .text = std::move(text)});
}

void Dialog::AddEdit(int id, std::string text) {
    controls.push_back({.id = id, .kind = Control::Kind::Edit, .text = std::move(text)});
}

void Dialog::AddTick(int id, std::string label, bool ticked) {
    controls.push_back(
        {.id = id, .kind = Control::Kind::Tick, .text = std::move(label), .value = ticked ? 1 : 0});
}

void Dialog::AddRadio(int id, std::string label, bool ticked) {
    if (controls.empty() || controls.back().kind != Control::Kind::Radio) StartRadioGroup();
    controls.push_back({.id = id,
                        .kind = Control::Kind::Radio,
                        .text = std::move(label),
                        .value = ticked ? 1 : 0,
                        .group = radioGroup});
}

void Dialog::AddList(int id, std::vector<std::string> lines) {
    controls.push_back(
        {.id = id, .kind = Control::Kind::List, .value = -1, .lines = std::move(lines)});
}

void Dialog::AddButton(int id, std::string label) {
    controls.push_back({.id = id, .kind = Control::Kind::Button, .text = std::move(label)});
}

void Dialog::AddPictureButton(int id, int picture) {
    controls.push_back({.id = id, .kind = Control::Kind::Button, .picture = picture});
}

void Dialog::Choose(int radio) {
    const int group = At(radio).group;
    for (Control& control : controls) {
        if (control.kind == Control::Kind::Radio && control.group == group) control.value = 0;
    }
    At(radio).value = 1;
}

}  // namespace varnstride
