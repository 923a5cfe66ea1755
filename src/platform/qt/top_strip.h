// The strip over the map: Command Points and score as a picture, the words of the ground and the
// turn, the Stop Clock, the file in hand, and the three tactical card buttons.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "display/art.h"
#include "model/game.h"

class QLabel;
class QPushButton;

namespace varnstride {

class TopStrip : public QWidget {
 public:
    // The art must outlive the strip.
    TopStrip(const Art& art, QWidget* parent);

    std::function<void(int card)> onCard;

    void ShowState(const Game& game);

 private:
    const Art& art_;
    Surface bar_;
    QLabel* picture_;
    QLabel* ground_;
    QLabel* turn_;
    QLabel* clock_;
    QLabel* file_;
    std::array<QPushButton*, 3> cards_{};
};

}  // namespace varnstride
