#include "platform/qt/top_strip.h"

#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <filesystem>

#include "app/info_bar.h"
#include "display/top_bar_picture.h"
#include "flow/two_players.h"

namespace varnstride {
namespace {

QString Plain(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace

TopStrip::TopStrip(const Art& art, QWidget* parent)
    : QWidget(parent),
      art_(art),
      bar_(kTopBarWidth, kTopBarHeight),
      picture_(new QLabel(this)),
      ground_(new QLabel(this)),
      turn_(new QLabel(this)),
      clock_(new QLabel(this)),
      file_(new QLabel(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 2, 6, 2);
    row->setSpacing(14);
    row->addWidget(picture_);
    const auto column = [row](QLabel* above, QLabel* below) {
        auto* lines = new QVBoxLayout;
        lines->setSpacing(0);
        lines->addWidget(above);
        lines->addWidget(below);
        row->addLayout(lines);
    };
    column(ground_, turn_);
    row->addStretch();
    column(clock_, file_);
    for (int card = 1; card <= 3; ++card) {
        auto* button = new QPushButton(QString("Card %1").arg(card));
        button->setFocusPolicy(Qt::NoFocus);
        button->setMaximumWidth(button->fontMetrics().horizontalAdvance(button->text()) + 16);
        button->setToolTip(QString("Tactical Card %1").arg(card));
        connect(button, &QPushButton::clicked, this, [this, card] { onCard(card); });
        cards_[static_cast<std::size_t>(card - 1)] = button;
        row->addWidget(button);
    }
    picture_->hide();
    for (QPushButton* card : cards_)
        card->hide();
}

void TopStrip::ShowState(const Game& game) {
    const bool open = game.state.mapReady != 0;
    for (QWidget* widget : {static_cast<QWidget*>(picture_), static_cast<QWidget*>(ground_)})
        widget->setVisible(open);
    for (QPushButton* card : cards_)
        card->setVisible(open && game.options.tacticalPlayOn == 1);
    if (!open) return;
    DrawTopBarPicture(game, art_.Canvas(kTopBarCanvas), bar_);
    const QImage image(reinterpret_cast<const uchar*>(bar_.Row(0)), bar_.Width(), bar_.Height(),
                       bar_.Width() * 4, QImage::Format_RGB32);
    picture_->setPixmap(QPixmap::fromImage(image));
    const InfoBar info = DescribeInfoBar(game);
    ground_->setText(Plain(info.terrain));
    turn_->setText(Plain(info.turn) + "   Time of Day " + Plain(info.time) + " Hours");
    const GameState& state = game.state;
    const bool timed = state.stopClock5 + state.stopClock10 + state.stopClock15 > 0;
    clock_->setText(timed ? Plain(StopClockText(state)) : QString());
    file_->setText(Plain(std::filesystem::path(game.filePath).filename().string()));
}

}  // namespace varnstride
