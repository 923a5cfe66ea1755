#include "battle/loss_notice.h"

#include "resources/army_names.h"

namespace varnstride {

void ShowLossNotice(Game& game, const LossNotice& notice, UnitId id, int loss) {
    Dialog report{.templateId = notice.templateId, .caption = notice.caption};
    report.AddLabel(1402, std::string(ArmyTitle(id.army)));
    report.AddLabel(1403, game.At(id).name.data());
    report.AddLabel(1404, std::to_string(loss));
    report.AddButton(kOk, "OK");
    game.person->Ask(report);
}

}  // namespace varnstride
