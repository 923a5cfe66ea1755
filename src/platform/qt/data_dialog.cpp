#include "platform/qt/data_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <optional>

#include "resources/dialog_ids.h"
#include "resources/event_card_texts.h"

namespace varnstride {
namespace {

using Kind = Control::Kind;

constexpr int kProseLength = 90;  // characters from which on a text wraps

// Dialogs that carry no caption of their own.
struct Caption {
    int templateId;
    const char* text;
};
constexpr std::array<Caption, 4> kCaptions = {{
    {398, "Varnstride"},
    {269, "Game End"},
    {636, "Start Turn"},
    {245, "Battle Result"},
}};

// Words over the first control of a group.
struct GroupTitle {
    int templateId;
    int control;
    const char* text;
};
constexpr std::array<GroupTitle, 5> kGroupTitles = {{
    {kScenarioOptions, 1295, "Fog of War"},
    {kScenarioOptions, 1374, "Stop Clock"},
    {kScenarioOptions, 1300, "Player (Non-PBEM)"},
    {kOptions, 1379, "Computer A/I plays :-"},
    {kOptions, 1471, "Stop Clock"},
}};

QString CaptionOf(const Dialog& dialog) {
    if (!dialog.caption.empty()) return QString::fromStdString(dialog.caption);
    const auto found = std::find_if(kCaptions.begin(), kCaptions.end(), [&](const Caption& row) {
        return row.templateId == dialog.templateId;
    });
    return found == kCaptions.end() ? "Varnstride" : found->text;
}

// What Escape and the close button of the window mean: Cancel where there is one, OK on a notice,
// no answer where one was asked for besides, and nothing at all where a choice has to be made.
std::optional<int> EscapeOf(const Dialog& dialog) {
    if (dialog.Find(kCancel) != nullptr) return kCancel;
    const auto asks = [](const Control& control) {
        return control.kind != Kind::Label && control.kind != Kind::Button;
    };
    const bool notice = std::none_of(dialog.controls.begin(), dialog.controls.end(), asks);
    const auto buttons =
        std::count_if(dialog.controls.begin(), dialog.controls.end(),
                      [](const Control& control) { return control.kind == Kind::Button; });
    if (buttons == 0 || (dialog.Find(kOk) != nullptr && notice)) return kOk;
    if (dialog.Find(kOk) != nullptr) return 0;
    return std::nullopt;
}

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The one button of the Card Draw dialog is the card itself; a turn without a card has a blank one.
QString ButtonText(const Dialog& dialog, const Control& control) {
    if (dialog.templateId != kCardDraw) return QString::fromStdString(control.text);
    const EventCardText card = EventCardTextOf(control.picture);
    if (card.title.empty()) return "No event card this turn";
    return Text(card.title) + "\n\n" + Text(card.sense);
}

QLabel* MakeLabel(const std::string& text) {
    auto* label = new QLabel(QString::fromStdString(text));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (text.size() > kProseLength) {
        label->setWordWrap(true);
        label->setMinimumWidth(label->fontMetrics().averageCharWidth() * kProseLength);
    }
    return label;
}

QListWidget* MakeList(const Control& control) {
    constexpr int kLeastRows = 4;
    constexpr int kMostRows = 20;
    auto* list = new QListWidget;
    int widest = 0;
    for (const std::string& line : control.lines) {
        list->addItem(QString::fromStdString(line));
        widest = std::max(
            widest, list->fontMetrics().horizontalAdvance(list->item(list->count() - 1)->text()));
    }
    if (control.value >= 0) list->setCurrentRow(control.value);
    const int rows = std::clamp(static_cast<int>(control.lines.size()), kLeastRows, kMostRows);
    list->setMinimumHeight((rows + 1) * (list->fontMetrics().height() + 2));
    list->setMinimumWidth(std::min(widest + 48, list->screen()->availableSize().width() / 2));
    return list;
}

}  // namespace

DataDialog::DataDialog(const Dialog& dialog, QWidget* parent)
    : QDialog(parent), escape_(EscapeOf(dialog)) {
    setWindowTitle(CaptionOf(dialog).trimmed());
    setObjectName("dialog" + QString::number(dialog.templateId));
    auto* rows = new QVBoxLayout(this);
    if (!dialog.heading.empty()) rows->addWidget(MakeLabel(dialog.heading));
    std::map<int, QButtonGroup*> groups;
    for (const Control& control : dialog.controls) {
        if (control.kind == Kind::Button) continue;
        for (const GroupTitle& title : kGroupTitles) {
            if (title.templateId != dialog.templateId || title.control != control.id) continue;
            rows->addSpacing(6);
            rows->addWidget(MakeLabel(title.text));
        }
        AddRow(control, *rows);
        if (control.kind != Kind::Radio) continue;
        QButtonGroup*& group = groups[control.group];
        if (group == nullptr) group = new QButtonGroup(this);
        group->addButton(static_cast<QRadioButton*>(widgets_[control.id]));
    }
    AddButtons(dialog, *rows);
}

void DataDialog::AddRow(const Control& control, QVBoxLayout& rows) {
    const QString text = QString::fromStdString(control.text);
    QWidget* widget = nullptr;
    switch (control.kind) {
        case Kind::Label:
            if (control.text.empty()) return;
            widget = MakeLabel(control.text);
            break;
        case Kind::Edit: widget = new QLineEdit(text); break;
        case Kind::Tick: {
            auto* box = new QCheckBox(text);
            box->setChecked(control.value != 0);
            widget = box;
            break;
        }
        case Kind::Radio: {
            auto* radio = new QRadioButton(text);
            radio->setAutoExclusive(false);
            radio->setChecked(control.value != 0);
            widget = radio;
            break;
        }
        case Kind::List: widget = MakeList(control); break;
        case Kind::Button: return;
    }
    widgets_[control.id] = widget;
    rows.addWidget(widget);
}

void DataDialog::AddButtons(const Dialog& dialog, QVBoxLayout& rows) {
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    bool first = true;
    for (const Control& control : dialog.controls) {
        if (control.kind != Kind::Button) continue;
        auto* button = new QPushButton(ButtonText(dialog, control));
        button->setDefault(first);
        button->setAutoDefault(true);
        first = false;
        connect(button, &QPushButton::clicked, this, [this, id = control.id] { CloseBy(id); });
        foot->addWidget(button);
        widgets_[control.id] = button;
    }
    if (first) {
        auto* button = new QPushButton("OK");
        button->setDefault(true);
        connect(button, &QPushButton::clicked, this, [this] { CloseBy(kOk); });
        foot->addWidget(button);
    }
    rows.addSpacing(6);
    rows.addLayout(foot);
}

void DataDialog::CloseBy(int control) {
    closedBy_ = control;
    accept();
}

void DataDialog::TakeAnswers(Dialog& dialog) const {
    for (Control& control : dialog.controls) {
        const auto found = widgets_.find(control.id);
        if (found == widgets_.end()) continue;
        if (auto* edit = qobject_cast<QLineEdit*>(found->second)) {
            control.text = edit->text().toStdString();
        } else if (auto* list = qobject_cast<QListWidget*>(found->second)) {
            control.value = list->currentRow();
        } else if (control.kind == Kind::Tick || control.kind == Kind::Radio) {
            control.value = static_cast<QAbstractButton*>(found->second)->isChecked() ? 1 : 0;
        }
    }
}

// A notice is put away by Escape as by OK; a choice that has to be made stays.
void DataDialog::reject() {
    if (escape_) CloseBy(*escape_);
}

void DataDialog::Ask(Dialog& dialog, QWidget* parent) {
    DataDialog window(dialog, parent);
    window.exec();
    window.TakeAnswers(dialog);
    dialog.closedBy = window.closedBy_;
}

}  // namespace varnstride
