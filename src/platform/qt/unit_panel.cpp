#include "platform/qt/unit_panel.h"

#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <array>

#include "model/areas.h"
#include "model/units_on_map.h"
#include "resources/type_names.h"

namespace varnstride {
namespace {

constexpr std::array kStatus = {"Gone", "Routed", "Shaken", "Unsteady", "Ordered"};
constexpr std::array kQuality = {"", "Elite", "Veteran", "Experienced", "Militia", "Conscript"};
constexpr std::array kFormation = {"Line",       "Attack Column", "Mixed Order", "Square",
                                   "Open Order", "March Column",  "No Formation"};

template <std::size_t Count, typename Value>
const char* WordOf(const std::array<const char*, Count>& words, Value value) {
    const auto index = static_cast<std::size_t>(value);
    return index < Count ? words[index] : "";
}

QString FactsOf(const Unit& unit) {
    return QString(
               "%1, %2\nStrength %3 of %4    Ammunition %5\nMorale %6 of %7, %8\n"
               "%9    Action Points %10")
        .arg(QString::fromUtf8(TypeNameOf(static_cast<int>(unit.type)).data()))
        .arg(WordOf(kQuality, unit.quality))
        .arg(unit.strength)
        .arg(unit.initialStrength)
        .arg(unit.ammunition)
        .arg(unit.morale)
        .arg(unit.maxMorale)
        .arg(WordOf(kStatus, unit.status))
        .arg(WordOf(kFormation, unit.formation))
        .arg(unit.actionPoints);
}

}  // namespace

UnitPanel::UnitPanel(int slot, QWidget* parent)
    : QFrame(parent), slot_(slot), name_(new QLabel(this)), facts_(new QLabel(this)) {
    setFrameStyle(QFrame::Box | QFrame::Raised);
    setAutoFillBackground(true);
    setObjectName("unitPanel" + QString::number(slot));
    setAccessibleName("Unit " + QString::number(slot));
    QFont bold = font();
    bold.setBold(true);
    name_->setFont(bold);
    name_->setWordWrap(true);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(8, 6, 8, 6);
    rows->addWidget(name_);
    rows->addWidget(facts_);
    hide();
}

void UnitPanel::ShowUnit(const Game& game) {
    const UnitId id = UnitStandingAt(game, OwnSlot(game, slot_ - 1));
    if (!id || SideOf(id.army) != game.OwnSide()) {
        hide();
        return;
    }
    const bool inHand = id.army == game.state.currentArmy && id.index == game.state.currentUnit;
    name_->setText(QString("%1  %2%3")
                       .arg(slot_)
                       .arg(QString::fromLatin1(game.At(id).name.data()))
                       .arg(inHand ? "  \u25c0" : ""));
    facts_->setText(FactsOf(game.At(id)));
    setLineWidth(inHand ? 3 : 1);
    show();
}

void UnitPanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) onClick(slot_);
}

}  // namespace varnstride
