#include "platform/qt/window_person.h"

#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTimer>
#include <ctime>

#include "platform/qt/data_dialog.h"
#include "platform/qt/scenario_chooser.h"

namespace varnstride {
namespace {

struct KindRow {
    FileKind kind;
    const char* title;
    const char* filter;
};

constexpr KindRow kKinds[] = {
    {FileKind::Scenario, "Scenario", "Scenarios (*.scn)"},
    {FileKind::Battle, "Battle", "Battles (*.cmb)"},
    {FileKind::MailedTurn, "Turn", "Turns by e-mail (*.emb)"},
};

const KindRow& RowOf(FileKind kind) {
    return kKinds[static_cast<std::size_t>(kind)];
}

QString BattlesFolder() {
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/Varnstride";
    QDir().mkpath(folder);
    return folder;
}

}  // namespace

void WindowPerson::Ask(Dialog& dialog) {
    DataDialog::Ask(dialog, window);
}

bool WindowPerson::Confirm(const MessageBox& box) {
    QMessageBox message(window);
    message.setWindowTitle(QString::fromStdString(box.caption).trimmed());
    message.setText(QString::fromStdString(box.text).trimmed());
    message.setTextFormat(Qt::PlainText);
    const bool asks = box.buttons == BoxButtons::OkCancel;
    message.setStandardButtons(asks ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    message.setDefaultButton(QMessageBox::Ok);
    return message.exec() == QMessageBox::Ok;
}

void WindowPerson::Read(const CourierMessage& message) {
    Dialog dispatch{.templateId = 641, .caption = "Courier Message"};
    dispatch.AddLabel(1403, message.title);
    dispatch.AddLabel(1402, message.text);
    dispatch.AddButton(kOk, "OK");
    DataDialog::Ask(dispatch, window);
}

std::optional<std::string> WindowPerson::ChooseFile(const FileQuestion& question) {
    if (question.kind == FileKind::Scenario && !question.saving) {
        return ChooseScenarioFile(data_ / "Scenarios", window);
    }
    const KindRow& row = RowOf(question.kind);
    const QString folder =
        lastFolder_.empty() ? BattlesFolder() : QString::fromStdString(lastFolder_.string());
    const auto choose =
        question.saving ? QFileDialog::getSaveFileName : QFileDialog::getOpenFileName;
    const QString title = QString(question.saving ? "Save %1" : "Open %1").arg(row.title);
    const QString path = choose(window, title, folder, row.filter, nullptr, {});
    if (path.isEmpty()) return std::nullopt;
    lastFolder_ = std::filesystem::path(path.toStdString()).parent_path();
    return path.toStdString();
}

// The window lives on: it is painted, moved and resized, only orders wait.
void WindowPerson::Pause(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

unsigned WindowPerson::Time() {
    return time_ ? *time_ : static_cast<unsigned>(std::time(nullptr));
}

}  // namespace varnstride
