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
    controls.push_back({id, Control::Kind::Label, std::move(text), 0, {}});
}

void Dialog::AddEdit(int id, std::string text) {
    controls.push_back({id, Control::Kind::Edit, std::move(text), 0, {}});
}

void Dialog::AddTick(int id, std::string label, bool ticked) {
    controls.push_back({id, Control::Kind::Tick, std::move(label), ticked ? 1 : 0, {}});
}

void Dialog::AddRadio(int id, std::string label, bool ticked) {
    controls.push_back({id, Control::Kind::Radio, std::move(label), ticked ? 1 : 0, {}});
}

void Dialog::AddList(int id, std::vector<std::string> lines) {
    controls.push_back({id, Control::Kind::List, {}, -1, std::move(lines)});
}

void Dialog::AddButton(int id, std::string label) {
    controls.push_back({id, Control::Kind::Button, std::move(label), 0, {}});
}

}  // namespace varnstride
