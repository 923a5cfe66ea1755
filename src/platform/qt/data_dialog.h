// A dialog of the game as a window: its controls one below the other, lists and prose in boxes that
// scroll, the buttons in a row at the foot. Usable by keyboard alone: Enter is the first button,
// Escape the one that declines.
#pragma once

#include <QDialog>
#include <map>
#include <optional>

#include "model/dialog.h"

class QVBoxLayout;

namespace varnstride {

class DataDialog : public QDialog {
 public:
    DataDialog(const Dialog& dialog, QWidget* parent);

    // Shows it and waits; the answer stands in the controls and in closedBy, 0 when the dialog was
    // closed without one.
    static void Ask(Dialog& dialog, QWidget* parent);

    void reject() override;

 private:
    void AddRow(const Control& control, QVBoxLayout& rows);
    void AddButtons(const Dialog& dialog, QVBoxLayout& rows);
    void CloseBy(int control);
    void TakeAnswers(Dialog& dialog) const;

    std::map<int, QWidget*> widgets_;
    std::optional<int> escape_;
    int closedBy_ = 0;
};

}  // namespace varnstride
