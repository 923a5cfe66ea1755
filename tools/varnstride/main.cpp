// varnstride: the game in its window.
#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPainter>
#include <QSplashScreen>
#include <QStandardPaths>
#include <QTimer>
#include <iostream>
#include <optional>

#include "atlases/built_in.h"
#include "display/art.h"
#include "files/data_folder.h"
#include "files/settings_file.h"
#include "platform/qt/main_window.h"
#include "platform/qt/window_person.h"

using namespace varnstride;

namespace {

constexpr int kWrongUse = 2;
constexpr int kUsualResultPause = 1600;  // milliseconds

struct Wish {
    std::string data;
    std::string settings;
    std::optional<unsigned> time;
    std::vector<int> size;
};

std::string SettingsFile(const Wish& wish) {
    if (!wish.settings.empty()) return wish.settings;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(folder);
    return (folder + "/Settings.dat").toStdString();
}

QPixmap LoadingPicture() {
    QPixmap picture(420, 120);
    picture.fill(QColor(244, 236, 214));
    QPainter painter(&picture);
    painter.setPen(QColor(70, 50, 30));
    painter.drawRect(picture.rect().adjusted(4, 4, -5, -5));
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 2.0);
    painter.setFont(font);
    painter.drawText(picture.rect().adjusted(0, 0, 0, -30), Qt::AlignCenter, "Varnstride");
    return picture;
}

// Whatever could not be loaded is named once, before the first screen.
void TellOfGaps(const Art& art) {
    for (const std::string& complaint : art.Complaints())
        std::cerr << "varnstride: " << complaint << '\n';
}

int Play(const Wish& wish) {
    const std::optional<std::filesystem::path> data =
        wish.data.empty() ? FindDataFolder() : std::filesystem::path(wish.data);
    if (!data) {
        std::cerr << "varnstride: no folder of the game's files beside the program\n";
        return kWrongUse;
    }
    QSplashScreen loading(LoadingPicture());
    loading.show();
    loading.showMessage("Loading pictures ...", Qt::AlignBottom | Qt::AlignHCenter);
    QApplication::processEvents();
    const Art art(*data);
    TellOfGaps(art);

    const std::string settingsFile = SettingsFile(wish);
    WindowPerson person(*data, wish.time);
    Game game(BuiltInAtlases(), person);
    game.settings = ReadSettings(settingsFile);
    const int pause = game.settings.resultPauseSetting;
    game.state.resultPause = pause == 0 ? kUsualResultPause : pause;
    MainWindow window(game, person, art, settingsFile);
    if (wish.size.empty()) {
        window.showMaximized();
    } else {
        window.resize(wish.size[0], wish.size[1]);
        window.show();
    }
    loading.finish(&window);
    QTimer::singleShot(0, &window, [&window] { window.Begin(); });
    return QApplication::exec();
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const QApplication application(argumentCount, arguments);
    QApplication::setApplicationName("varnstride");
    Wish wish;
    CLI::App app{"Varnstride: the battles of June 1815, in a window."};
    app.add_option(
        "--data", wish.data,
        "The folder that holds Scenarios, Graphics and Units; by default the game's own");
    app.add_option("--settings", wish.settings, "The file of the settings, read and written");
    app.add_option("--time", wish.time,
                   "The number that seeds every turn, so that a battle can be repeated");
    app.add_option("--size", wish.size, "Width and height of the window, which is else maximised")
        ->delimiter('x')
        ->expected(2);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return app.exit(error);
        std::cerr << "varnstride: " << error.what() << " (see varnstride --help)\n";
        return kWrongUse;
    }
    return Play(wish);
}
