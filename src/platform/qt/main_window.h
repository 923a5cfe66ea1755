// The window of the game: menus, toolbar, strip, map and unit panels around one Game. It passes
// every input on to the game as a plain command, key or click and runs the phase machine until it
// waits for orders again.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <array>
#include <map>
#include <string>

#include "display/art.h"
#include "model/game.h"
#include "platform/qt/window_person.h"

class QAction;

namespace varnstride {

class MapWidget;
class TopStrip;
class UnitPanel;

class MainWindow : public QMainWindow {
 public:
    // The game stands at its start screen, with its settings read; all must outlive the window,
    // which writes the settings to that file when the player leaves.
    MainWindow(Game& game, WindowPerson& person, const Art& art, std::string settingsFile);

    // Shows the start screen and goes on from there; called once the window is on the screen.
    void Begin();

 protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }  // Tab is a key of the game
    void resizeEvent(QResizeEvent* event) override;

 private:
    void BuildMenus();
    void BuildToolbar();
    void BuildWindowKeys();
    void ConnectMap();
    QAction* AddAction(int id, const QString& text, const QString& keys);

    // Carries an input out, unless the game is busy, and lets the phases run on.
    template <typename Input>
    void Give(Input input);
    void RunPhases();
    void ShowState();
    void Draw(View view);
    void PlacePanels();
    void LeftClick(Point point);
    void RightClick(Point point);
    void Leave();

    Game& game_;
    WindowPerson& person_;
    std::string settingsFile_;
    MapWidget* map_;
    TopStrip* strip_;
    std::array<UnitPanel*, 3> panels_{};
    std::multimap<int, QAction*> actions_;  // by command
    QTimer second_;
    bool busy_ = false;
    bool panelsShown_ = false;
    Cell lastGrid_;
};

}  // namespace varnstride
