// The map in the window: shows the frame of a MapScreen at a whole or one and a half times its
// size, and turns the mouse into clicks on cells. It holds no rule.
#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>
#include <optional>

#include "display/map_screen.h"

namespace varnstride {

class MapWidget : public QWidget {
 public:
    // The game and the art must outlive the widget.
    MapWidget(const Game& game, const Art& art);

    // What the mouse asks for; the point counts as the game's own window corner does.
    std::function<void(Point)> onLeftClick;
    std::function<void(Point)> onRightClick;

    MapScreen& Screen() { return screen_; }

    // Something of the map may look different now.
    void Invalidate();
    // A battle was opened: the view begins at the top left corner.
    void SetUp();
    void CentreOn(Cell cell);
    void ScrollBy(int dx, int dy);

    // How many points of the screen a pixel of the map measures: 1, 1.5, 2 or 3. Nothing chosen:
    // by the density of the screen.
    double Scale() const;
    void Enlarge();
    void Reduce();

    QSize sizeHint() const override { return {1024, 640}; }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    void ChooseScale(int step);
    void FitFrame();
    Point MapPoint(const QPointF& position) const;

    const Game& game_;
    MapScreen screen_;
    std::optional<double> chosenScale_;
    std::optional<QPointF> dragFrom_;
    QPointF wheelRest_;
    bool stale_ = true;
};

}  // namespace varnstride
