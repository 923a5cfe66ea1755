// The panel of one own slot of the area in hand: who stands there and in what state. A click takes
// the unit in hand.
#pragma once

#include <QFrame>
#include <functional>

#include "model/game.h"

class QLabel;

namespace varnstride {

class UnitPanel : public QFrame {
 public:
    // Slot 1 to 3.
    UnitPanel(int slot, QWidget* parent);

    std::function<void(int slot)> onClick;

    // Shows the unit of the slot, or nothing when it is free.
    void ShowUnit(const Game& game);

 protected:
    void mousePressEvent(QMouseEvent* event) override;

 private:
    int slot_;
    QLabel* name_;
    QLabel* facts_;
};

}  // namespace varnstride
