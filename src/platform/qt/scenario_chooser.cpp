#include "platform/qt/scenario_chooser.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>
#include <system_error>
#include <vector>

#include "atlases/built_in.h"
#include "files/battle_file.h"

namespace varnstride {
namespace {

namespace fs = std::filesystem;

QString NameOf(const fs::path& path) {
    QString name = QString::fromStdString(path.stem().string()).replace('_', ' ');
    if (!name.isEmpty()) name[0] = name[0].toUpper();
    return name;
}

std::vector<fs::path> ScenariosIn(const fs::path& folder) {
    std::vector<fs::path> paths;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (entry.path().extension() == ".scn") paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

QString TextOf(const fs::path& path) {
    const Result<BattleFile> read = ReadBattleFile(path.string(), BuiltInAtlases());
    if (!read.Ok()) return QString::fromStdString(read.Message());
    const BattleFile& file = read.Get();
    const auto strength = [&](int army) {
        int sum = 0;
        for (const Unit& unit : file.units[static_cast<std::size_t>(army)])
            sum += unit.strength;
        return sum;
    };
    int allied = 0;
    for (int army = 1; army < file.armyCount; ++army)
        allied += strength(army);
    return QString("%1\n\n%2 turns. Strength points: French %3, Allies %4.\n%5 %6")
        .arg(QString(file.header.scenarioDescription.data()).trimmed())
        .arg(file.header.lastTurn)
        .arg(strength(0))
        .arg(allied)
        .arg(file.header.scenarioAuthor.data())
        .arg(file.header.scenarioDate.data());
}

class Chooser : public QDialog {
 public:
    Chooser(const fs::path& folder, QWidget* parent) : QDialog(parent) {
        setWindowTitle("New Battle");
        setObjectName("scenarios");
        auto* rows = new QVBoxLayout(this);
        auto* columns = new QHBoxLayout;
        list_->setMinimumWidth(220);
        text_->setMinimumSize(420, 320);
        columns->addWidget(list_);
        columns->addWidget(text_, 1);
        rows->addLayout(columns);
        rows->addWidget(Buttons());
        for (const fs::path& path : ScenariosIn(folder))
            Add(path);
        connect(list_, &QListWidget::currentRowChanged, this, [this](int row) { Show(row); });
        connect(list_, &QListWidget::itemActivated, this, &QDialog::accept);
        list_->setCurrentRow(0);
        list_->setFocus();
    }

    std::string Path() const { return paths_[static_cast<std::size_t>(list_->currentRow())]; }

 private:
    QWidget* Buttons() {
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel);
        open_ = buttons->button(QDialogButtonBox::Open);
        open_->setEnabled(false);
        QPushButton* other = buttons->addButton("O&ther file ...", QDialogButtonBox::ActionRole);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        connect(other, &QPushButton::clicked, this, [this] { PickOther(); });
        return buttons;
    }

    void Add(const fs::path& path) {
        paths_.push_back(path.string());
        list_->addItem(NameOf(path));
    }

    void Show(int row) {
        open_->setEnabled(row >= 0);
        if (row >= 0) text_->setPlainText(TextOf(paths_[static_cast<std::size_t>(row)]));
    }

    void PickOther() {
        const QString path =
            QFileDialog::getOpenFileName(this, "Open Scenario", {}, "Scenarios (*.scn)");
        if (path.isEmpty()) return;
        Add(path.toStdString());
        list_->setCurrentRow(list_->count() - 1);
    }

    QListWidget* list_ = new QListWidget;
    QTextBrowser* text_ = new QTextBrowser;
    QPushButton* open_ = nullptr;
    std::vector<std::string> paths_;
};

}  // namespace

std::optional<std::string> ChooseScenarioFile(const fs::path& folder, QWidget* parent) {
    Chooser chooser(folder, parent);
    if (chooser.exec() != QDialog::Accepted) return std::nullopt;
    return chooser.Path();
}

}  // namespace varnstride
