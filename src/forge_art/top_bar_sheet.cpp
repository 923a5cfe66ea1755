#include "forge_art/top_bar_sheet.h"

#include <array>
#include <cmath>
#include <string>

#include "forge_art/color.h"
#include "forge_art/emblems.h"
#include "forge_art/flags.h"
#include "forge_art/plate.h"

namespace varnstride::art {
namespace {

constexpr int kWidth = 232;
constexpr int kHeight = 320;

// Where an army's pieces stand. Rows of an army lie 19 to 22 pixels below those of the one before.
struct ArmyRow {
    Nation nation;
    const char* paper;
    int labelTop;
    int flagWidth;
    int iconX;
    int victoryTop;
    int digitTop;
    int columnX;
    int victorySignX;
    int defeatSignX;
};

constexpr std::array<ArmyRow, 3> kRows = {{
    // nation, paper, label, flag, icon, victory, digits, column, signs of victory and defeat
    {Nation::French, "report.french", 0, 40, 151, 64, 128, 170, 0, 30},
    {Nation::British, "report.british", 21, 30, 150, 85, 147, 180, 57, 87},
    {Nation::Prussian, "report.prussian", 42, 32, 150, 106, 167, 190, 113, 142},
}};

constexpr std::array<int, 10> kDigitX = {3, 24, 43, 64, 83, 104, 123, 143, 163, 186};
constexpr int kDigitWidth = 10;
constexpr int kDigitHeight = 15;
constexpr int kSignTop = 182;
constexpr int kColumnTop = 184;

void DrawStar(Plate& plate, QPointF middle, double radius, QRgb color) {
    QPolygonF star;
    for (int i = 0; i < 10; ++i) {
        const double angle = i * 0.62832 - 1.5708;
        const double reach = radius * (i % 2 == 0 ? 1.0 : 0.42);
        star << middle + QPointF(std::cos(angle), std::sin(angle)) * reach;
    }
    plate.Area(star, color);
}

void DrawSigns(Plate& plate, const Palette& palette, const ArmyRow& row) {
    const QPointF victory(row.victorySignX + 13.5, kSignTop + 8);
    DrawLaurel(plate, palette, victory, 6.4);
    DrawStar(plate, victory, 4.4, palette["counter.star"]);
    const QPointF defeat(row.defeatSignX + 13.5, kSignTop + 8.5);
    for (const double side : {-1.0, 1.0}) {
        plate.Line(defeat.x() - 7 * side, defeat.y() - 6, defeat.x() + 7 * side, defeat.y() + 6,
                   3.4, palette["emblem.line"]);
        plate.Line(defeat.x() - 6.6 * side, defeat.y() - 5.6, defeat.x() + 6.6 * side,
                   defeat.y() + 5.6, 1.8, palette["banner.cloth"]);
    }
}

void DrawPapers(Plate& plate, const Palette& palette, const ArmyRow& row) {
    const QRgb paper = palette[row.paper];
    plate.Box(0, row.labelTop, kWidth, 21, paper);
    plate.Box(0, row.victoryTop, kWidth, 20, paper);
    plate.Box(0, row.digitTop, kWidth, kDigitHeight, paper);
    plate.Box(row.columnX, kColumnTop, 10, kDigitHeight, paper);
    plate.Box(row.victorySignX, kSignTop, 27, 17, paper);
    plate.Box(row.defeatSignX, kSignTop, 27, 17, paper);
}

void DrawPictures(Plate& plate, const Palette& palette, const ArmyRow& row) {
    const double flagTop = row.labelTop + 1;
    plate.Box(1, flagTop, row.flagWidth, 19, palette["emblem.line"]);
    DrawFlag(plate, palette, QRectF(2, flagTop + 1, row.flagWidth - 2, 17), row.nation);
    const QPointF icon(row.iconX + 10, row.labelTop + 10);
    DrawStar(plate, icon, 9.4, palette["emblem.line"]);
    DrawStar(plate, icon, 7.2, palette["flag.gold"]);
    DrawLaurel(plate, palette, {10, row.victoryTop + 10.0}, 6.6);
    DrawSigns(plate, palette, row);
}

void WriteWords(Tile& tile, const Studio& studio, const ArmyRow& row) {
    const QRgb ink = studio.palette["bar.ink"];
    const LetterCase& text = studio.lettering.text;
    text.Write(tile, {row.flagWidth + 6, row.labelTop + 6}, "Command Points", ink);
    text.Write(tile, {24, row.victoryTop + 6}, "Victory", ink);
    const std::array<std::pair<int, const char*>, 3> levels = {
        {{87, "Major"}, {126, "Minor"}, {167, "Draw"}}};
    for (const auto& [x, word] : levels)
        text.Write(tile, {x + 2, row.victoryTop + 6}, word, ink);
    for (std::size_t digit = 0; digit < kDigitX.size(); ++digit) {
        const std::string name = std::to_string(digit);
        const int width = (studio.lettering.digits.WidthOf(name) - 1) * 2;
        studio.lettering.digits.Write(
            tile, {kDigitX[digit] + (kDigitWidth - width) / 2, row.digitTop + 1}, name, ink, 2);
    }
}

}  // namespace

QImage PaintTopBarSheet(const Studio& studio) {
    const Palette& palette = studio.palette;
    Plate plate(QRect(0, 0, kWidth, kHeight));
    plate.Box(0, 0, kWidth, kHeight, palette["report.paper"]);
    for (const ArmyRow& row : kRows)
        DrawPapers(plate, palette, row);
    for (const ArmyRow& row : kRows)
        DrawPictures(plate, palette, row);
    DrawFlag(plate, palette, QRectF(0, 200, 30, 25), Nation::Austrian);
    DrawFlag(plate, palette, QRectF(0, 286, 25, 25), Nation::Russian);
    Tile tile = plate.Pressed();
    for (const ArmyRow& row : kRows)
        WriteWords(tile, studio, row);
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    Put(picture, tile, {0, 0});
    return picture;
}

}  // namespace varnstride::art
