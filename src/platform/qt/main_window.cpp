#include "platform/qt/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>
#include <optional>

#include "app/commands.h"
#include "app/map_input.h"
#include "app/menu_state.h"
#include "files/settings_file.h"
#include "flow/game_pass.h"
#include "flow/two_players.h"
#include "platform/qt/map_widget.h"
#include "platform/qt/tool_icons.h"
#include "platform/qt/top_strip.h"
#include "platform/qt/unit_panel.h"
#include "resources/menu_bar.h"

namespace varnstride {
namespace {

constexpr int kExit = 1051;
constexpr int kPanelWidth = 252;

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The key of the game; nothing for any other.
std::optional<Key> KeyOf(const QKeyEvent& event) {
    const int key = event.key();
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return static_cast<Key>(key - Qt::Key_A);
    if (key >= Qt::Key_1 && key <= Qt::Key_3) {
        return static_cast<Key>(static_cast<int>(Key::One) + key - Qt::Key_1);
    }
    switch (key) {
        case Qt::Key_Tab: return Key::Tab;
        case Qt::Key_Shift: return Key::Shift;
        case Qt::Key_F1: return Key::F1;
        case Qt::Key_F2: return Key::F2;
        default: return std::nullopt;
    }
}

Point ArrowOf(int key) {
    switch (key) {
        case Qt::Key_Left: return {-kArrowScroll, 0};
        case Qt::Key_Right: return {kArrowScroll, 0};
        case Qt::Key_Up: return {0, -kArrowScroll};
        case Qt::Key_Down: return {0, kArrowScroll};
        default: return {};
    }
}

}  // namespace

MainWindow::MainWindow(Game& game, WindowPerson& person, const Art& art, std::string settingsFile)
    : game_(game),
      person_(person),
      settingsFile_(std::move(settingsFile)),
      map_(new MapWidget(game, art)),
      strip_(new TopStrip(art, this)) {
    setWindowTitle("Varnstride Version 1.06A");
    auto* centre = new QWidget(this);
    auto* rows = new QVBoxLayout(centre);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(strip_);
    rows->addWidget(map_, 1);
    setCentralWidget(centre);
    BuildMenus();
    BuildToolbar();
    BuildWindowKeys();
    ConnectMap();
    person_.window = this;
    person_.onRedraw = [this](View view) { Draw(view); };
    second_.setInterval(1000);
    connect(&second_, &QTimer::timeout, this, [this] {
        if (game_.state.mapReady == 0 || game_.state.programEnded) return;
        StopClockTick(game_);
        strip_->ShowState(game_);
        if (!busy_) RunPhases();
    });
    map_->setFocus();
}

void MainWindow::Begin() {
    second_.start();
    RunPhases();
}

QAction* MainWindow::AddAction(int id, const QString& text, const QString& keys) {
    auto* action = new QAction(text, this);
    if (!keys.isEmpty()) action->setShortcut(QKeySequence(keys));
    connect(action, &QAction::triggered, this,
            [this, id] { Give([this, id] { DispatchCommand(game_, id); }); });
    actions_.emplace(id, action);
    return action;
}

void MainWindow::BuildMenus() {
    for (const Menu& menu : menu::kBar) {
        QMenu* top = menuBar()->addMenu(Text(menu.title));
        connect(top, &QMenu::aboutToShow, this, [this] { ShowState(); });
        QMenu* open = top;
        for (std::size_t index = 0; index < menu.count; ++index) {
            const MenuItem& item = menu.items[index];
            using enum MenuItem::Kind;
            switch (item.kind) {
                case Separator: open->addSeparator(); break;
                case OpenSubmenu: open = top->addMenu(Text(item.text)); break;
                case CloseSubmenu: open = top; break;
                case Command:
                case Tick:
                case Radio: {
                    QAction* action = AddAction(item.id, Text(item.text), Text(item.keys));
                    action->setCheckable(item.kind != Command);
                    open->addAction(action);
                    break;
                }
            }
        }
    }
}

void MainWindow::BuildToolbar() {
    QToolBar* bar = addToolBar("Toolbar");
    bar->setObjectName("toolbar");
    bar->setMovable(false);
    bar->setIconSize({24, 24});
    for (const ToolButton& button : kToolbar) {
        if (button.picture < 0) {
            bar->addSeparator();
            continue;
        }
        QAction* action = AddAction(button.id, Text(button.tip), {});
        action->setIcon(ToolIcon(button.picture, palette()));
        action->setToolTip(Text(button.tip));
        action->setCheckable(button.toggle);
        bar->addAction(action);
    }
}

void MainWindow::BuildWindowKeys() {
    const auto add = [this](const QKeySequence& keys, auto run) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
    };
    add(QKeySequence(Qt::Key_F11),
        [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    add(QKeySequence("Ctrl++"), [this] { map_->Enlarge(); });
    add(QKeySequence("Ctrl+="), [this] { map_->Enlarge(); });
    add(QKeySequence("Ctrl+-"), [this] { map_->Reduce(); });
}

void MainWindow::ConnectMap() {
    map_->onLeftClick = [this](Point point) { Give([this, point] { LeftClick(point); }); };
    map_->onRightClick = [this](Point point) { Give([this, point] { RightClick(point); }); };
    strip_->onCard = [this](int card) { Give([this, card] { OnCardStripPress(game_, card); }); };
    for (int slot = 1; slot <= 3; ++slot) {
        auto* panel = new UnitPanel(slot, map_);
        panel->onClick = [this](int clicked) {
            Give([this, clicked] { OnPanelClick(game_, clicked); });
        };
        panels_[static_cast<std::size_t>(slot - 1)] = panel;
    }
}

void MainWindow::LeftClick(Point point) {
    if (game_.state.mapReady == 0) return;
    if (game_.state.miniMapShown == 1) {
        if (const std::optional<Cell> cell = JumpCell(point, game_.grid)) {
            OnJumpMapClick(game_, *cell);
            return;
        }
    }
    if (const auto cell = map_->Screen().CellAt(point, game_)) OnLeftClick(game_, *cell);
}

void MainWindow::RightClick(Point point) {
    if (game_.state.mapReady == 0) return;
    if (const auto cell = map_->Screen().CellAt(point, game_)) OnRightClick(game_, *cell);
}

template <typename Input>
void MainWindow::Give(Input input) {
    if (!busy_) {
        busy_ = true;
        input();
        busy_ = false;
        RunPhases();
    }
    ShowState();
}

void MainWindow::RunPhases() {
    busy_ = true;
    while (!game_.state.programEnded && game_.state.turnPhase != TurnPhase::Orders)
        RunGamePass(game_);
    busy_ = false;
    if (game_.state.programEnded) {
        Leave();
        return;
    }
    ShowState();
}

void MainWindow::ShowState() {
    for (const auto& [id, action] : actions_) {
        const bool toggle = action->isCheckable();
        if (toggle) action->setChecked(IsMenuItemChecked(game_, id));
        action->setEnabled(IsMenuItemEnabled(game_, id));
    }
    const Cell grid{game_.grid.Width(), game_.grid.Height()};
    if (grid != lastGrid_) map_->SetUp();
    lastGrid_ = grid;
    strip_->ShowState(game_);
    PlacePanels();
    map_->Invalidate();
}

void MainWindow::Draw(View view) {
    switch (view) {
        case View::CentreOnSelected:
            if (lastGrid_ != Cell{game_.grid.Width(), game_.grid.Height()}) ShowState();
            map_->CentreOn(game_.state.selectedCell);
            return;
        case View::TopBar:
        case View::InfoBar: strip_->ShowState(game_); return;
        case View::UnitPanels:
            panelsShown_ = true;
            PlacePanels();
            return;
        case View::NoUnitPanels:
            panelsShown_ = false;
            PlacePanels();
            return;
        case View::Map:
        case View::Frame: map_->Invalidate(); return;
        case View::Toolbar: return;
    }
}

// One below the other at the right end of the map.
void MainWindow::PlacePanels() {
    int y = 6;
    for (UnitPanel* panel : panels_) {
        const bool shown =
            panelsShown_ && game_.state.mapReady != 0 && game_.settings.hideUnitPanels == 0;
        if (shown) {
            panel->ShowUnit(game_);
        } else {
            panel->hide();
        }
        if (panel->isHidden()) continue;
        panel->setFixedWidth(kPanelWidth);
        panel->adjustSize();
        panel->move(map_->width() - kPanelWidth - 6, y);
        y += panel->height() + 6;
    }
}

void MainWindow::resizeEvent(QResizeEvent*) {
    PlacePanels();
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    const Point step = ArrowOf(event->key());
    if (step == Point{}) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    map_->ScrollBy(step.x, step.y);
}

// Keys act as they come up, so that a key that is held gives one order.
void MainWindow::keyReleaseEvent(QKeyEvent* event) {
    const std::optional<Key> key = KeyOf(*event);
    const bool plain = (event->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
    if (event->isAutoRepeat() || !key || !plain) {
        QMainWindow::keyReleaseEvent(event);
        return;
    }
    Give([this, key] { DispatchKey(game_, *key); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (game_.state.programEnded) {
        event->accept();
        return;
    }
    event->ignore();
    Give([this] { DispatchCommand(game_, kExit); });
}

void MainWindow::Leave() {
    second_.stop();
    const Result<Done> written = WriteSettings(settingsFile_, game_.settings);
    if (!written.Ok()) {
        QMessageBox::warning(this, "Varnstride", QString::fromStdString(written.Message()));
    }
    hide();
    qApp->quit();
}

}  // namespace varnstride
