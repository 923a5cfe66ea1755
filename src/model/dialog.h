// Questions to the person who plays, as data: a rule fills in what is shown, the person's answer
// comes back in the same record. How it is drawn, or whether it is, is not known here.
#pragma once

#include <string>
#include <vector>

namespace varnstride {

constexpr int kOk = 1;
constexpr int kCancel = 2;

struct Control {
    enum class Kind { Label, Edit, Tick, Radio, List, Button };

    int id = 0;
    Kind kind = Kind::Label;
    std::string text{};  // caption of a tick, radio or button; content of label and edit
    int value = 0;       // tick, radio: 0 or 1; list: the chosen line from 0, -1 none
    int group = 0;       // radio only: choosing one puts out the others of its group
    int picture = 0;     // button only: number of the picture on it; 0 none
    std::vector<std::string> lines{};  // list only
};

struct Dialog {
    int templateId = 0;
    std::string caption{};
    std::string heading{};  // fixed words over the controls
    std::vector<Control> controls{};
    int closedBy = 0;  // set by the person: the control that closed it; 0 closed without an answer

    // The control of that id, which must be one of the dialog's.
    Control& At(int id);
    const Control& At(int id) const;
    // The control of that id; nothing when the dialog has none.
    const Control* Find(int id) const;
    bool IsTicked(int id) const { return At(id).value != 0; }

    void AddLabel(int id, std::string text);
    void AddEdit(int id, std::string text);
    void AddTick(int id, std::string label, bool ticked);
    void AddRadio(int id, std::string label, bool ticked);
    // The radios that are added from here on form a group of their own. A radio that follows a
    // control of another kind starts one in any case.
    void StartRadioGroup() { ++radioGroup; }
    void AddList(int id, std::vector<std::string> lines);
    void AddButton(int id, std::string label);
    void AddPictureButton(int id, int picture);

    // Ticks a radio, which must be one of the dialog's, as a press on it does.
    void Choose(int radio);

    int radioGroup = 0;  // of the radio added last
};

enum class BoxButtons { Ok, OkCancel };

struct MessageBox {
    std::string caption{};
    std::string text;
    BoxButtons buttons = BoxButtons::Ok;
};

struct CourierMessage {
    int code = 0;
    std::string title;
    std::string text;
    int rider = 0;  // which picture of the army's riders, from 0
};

enum class FileKind { Scenario, Battle, MailedTurn };

struct FileQuestion {
    FileKind kind = FileKind::Scenario;
    bool saving = false;
};

}  // namespace varnstride
