#include "platform/qt/map_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace varnstride {
namespace {

constexpr std::array<double, 4> kScales = {1.0, 1.5, 2.0, 3.0};

// The strip above the map and the line to its left are other widgets' here.
constexpr Point kMapCorner = MapSpace(0, 0).TopLeft();

std::size_t NearestScale(double wanted) {
    std::size_t nearest = 0;
    for (std::size_t index = 1; index < kScales.size(); ++index) {
        if (std::abs(kScales[index] - wanted) < std::abs(kScales[nearest] - wanted)) {
            nearest = index;
        }
    }
    return nearest;
}

QImage ImageOf(const Surface& frame) {
    return {reinterpret_cast<const uchar*>(frame.Row(0)), frame.Width(), frame.Height(),
            frame.Width() * 4, QImage::Format_RGB32};
}

}  // namespace

MapWidget::MapWidget(const Game& game, const Art& art) : game_(game), screen_(art, 1, 1) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(320, 200);
    setObjectName("map");
    setAccessibleName("Map");
}

void MapWidget::Invalidate() {
    stale_ = true;
    update();
}

void MapWidget::SetUp() {
    screen_.SetUp(game_);
    Invalidate();
}

void MapWidget::CentreOn(Cell cell) {
    if (MapView* view = screen_.View()) view->CentreOnCell(cell);
    Invalidate();
}

void MapWidget::ScrollBy(int dx, int dy) {
    if (MapView* view = screen_.View()) view->ScrollBy(dx, dy, true);
    Invalidate();
}

double MapWidget::Scale() const {
    if (chosenScale_) return *chosenScale_;
    return kScales[NearestScale(devicePixelRatioF())];
}

void MapWidget::Enlarge() {
    ChooseScale(1);
}
void MapWidget::Reduce() {
    ChooseScale(-1);
}

void MapWidget::ChooseScale(int step) {
    const int last = static_cast<int>(kScales.size()) - 1;
    const int index = std::clamp(static_cast<int>(NearestScale(Scale())) + step, 0, last);
    chosenScale_ = kScales[static_cast<std::size_t>(index)];
    FitFrame();
}

// The frame covers the widget; its own margin for the strip stays out of sight.
void MapWidget::FitFrame() {
    const double pixels = devicePixelRatioF() / Scale();
    const int mapWidth = static_cast<int>(std::ceil(width() * pixels));
    const int mapHeight = static_cast<int>(std::ceil(height() * pixels));
    screen_.Resize(mapWidth + kMapCorner.x, mapHeight + kMapCorner.y);
    Invalidate();
}

Point MapWidget::MapPoint(const QPointF& position) const {
    const QPointF pixel = position * devicePixelRatioF() / Scale();
    return Point{static_cast<int>(std::floor(pixel.x())), static_cast<int>(std::floor(pixel.y()))} +
           kMapCorner;
}

void MapWidget::paintEvent(QPaintEvent*) {
    const Surface& frame = stale_ ? screen_.Draw(game_) : screen_.Frame();
    stale_ = false;
    QPainter painter(this);
    const double scale = Scale();
    painter.scale(scale / devicePixelRatioF(), scale / devicePixelRatioF());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale != std::floor(scale));
    painter.drawImage(QPoint(-kMapCorner.x, -kMapCorner.y), ImageOf(frame));
}

void MapWidget::resizeEvent(QResizeEvent*) {
    FitFrame();
}

void MapWidget::mousePressEvent(QMouseEvent* event) {
    const Point point = MapPoint(event->position());
    switch (event->button()) {
        case Qt::LeftButton: onLeftClick(point); break;
        case Qt::RightButton: onRightClick(point); break;
        case Qt::MiddleButton: dragFrom_ = event->position(); break;
        default: event->ignore(); break;
    }
}

void MapWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) dragFrom_.reset();
}

void MapWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!dragFrom_) return;
    const Point from = MapPoint(*dragFrom_);
    const Point to = MapPoint(event->position());
    dragFrom_ = event->position();
    ScrollBy(from.x - to.x, from.y - to.y);
}

void MapWidget::wheelEvent(QWheelEvent* event) {
    constexpr double kPixelsANotch = 60.0;
    constexpr double kNotch = 120.0;
    const QPointF turned = event->angleDelta().toPointF() * kPixelsANotch / kNotch + wheelRest_;
    const QPoint whole(static_cast<int>(turned.x()), static_cast<int>(turned.y()));
    wheelRest_ = turned - whole;
    const bool sideways = event->modifiers().testFlag(Qt::ShiftModifier);
    ScrollBy(sideways ? -whole.y() : -whole.x(), sideways ? 0 : -whole.y());
}

}  // namespace varnstride
