#include "display/top_bar_picture.h"

#include <array>
#include <optional>
#include <string>

#include "display/font.h"
#include "display/unit_sprites.h"
#include "model/score.h"

namespace varnstride {
namespace {

constexpr Rect At(int x, int y, int width, int height) {
    return {x, y, x + width, y + height};
}

// Where the pieces of a nation lie on the canvas.
struct NationPieces {
    int backgroundX;  // one column of the strip
    Point pointsLabel;
    Point icon;
    Point victoryLabel;
    int digitsY;
    int wordsY;
    int defeatX;
    int victoryX;
    Pixel plain;  // without a canvas
};

constexpr std::array<NationPieces, kNations> kPieces = {{
    // background  points     icon       victory   digits words defeat victory
    {170, {1, 0}, {151, 0}, {1, 64}, 128, 64, 30, 0, MakePixel(60, 84, 150)},
    {180, {1, 21}, {150, 21}, {1, 85}, 147, 85, 87, 57, MakePixel(160, 52, 44)},
    {190, {1, 42}, {150, 43}, {1, 106}, 167, 106, 142, 113, MakePixel(70, 76, 92)},
}};

constexpr std::array<int, 10> kDigitX = {3, 24, 43, 64, 83, 104, 123, 143, 163, 186};
constexpr int kSignY = 182;
constexpr int kBackgroundY = 184;

enum class Sign { None, Defeat, Victory };
struct LevelRow {
    int wordX;
    const char* word;
    Sign sign;
};
// By level: major defeat to major victory.
constexpr std::array<LevelRow, 5> kLevels = {{
    {87, "Major Defeat", Sign::Defeat},
    {126, "Minor Defeat", Sign::Defeat},
    {167, "Draw", Sign::None},
    {126, "Minor Victory", Sign::Victory},
    {87, "Major Victory", Sign::Victory},
}};

// The level for the side of the army in turn.
const LevelRow& LevelOf(const Game& game) {
    const int level = LevelOfFirstSide(game);
    const bool first = SideOf(game.header.firstPlayer) == game.OwnSide();
    return kLevels[static_cast<std::size_t>(first ? level : 4 - level)];
}

// Only the tens and the units are shown.
struct Digits {
    std::optional<int> tens;
    int units;
};
Digits DigitsOf(int number) {
    Digits digits{std::nullopt, number % 10};
    if (number >= 10) digits.tens = number / 10 % 10;
    return digits;
}

void CopyPiece(const Surface& canvas, Surface& strip, const Rect& to, Point from) {
    Copy(canvas, At(from.x, from.y, to.Width(), to.Height()), strip, to.TopLeft());
}

void CopyBackground(const Surface& canvas, Surface& strip, const NationPieces& pieces) {
    constexpr int kColumnWidth = 10;
    constexpr std::array kHeights = {0, 15, 30};
    for (int x = 0; x < kTopBarWidth; x += kColumnWidth) {
        for (const int y : kHeights) {
            CopyPiece(canvas, strip, At(x, y, kColumnWidth, std::min(15, kTopBarHeight - y)),
                      {pieces.backgroundX, kBackgroundY});
        }
    }
}

void CopyPoints(const Surface& canvas, Surface& strip, const NationPieces& pieces, int points) {
    const auto copyDigit = [&](int digit, int x) {
        CopyPiece(canvas, strip, At(x, 9, 10, 15),
                  {kDigitX[static_cast<std::size_t>(digit)], pieces.digitsY});
    };
    const Digits digits = DigitsOf(points);
    if (digits.tens) copyDigit(*digits.tens, 165);
    copyDigit(digits.units, digits.tens ? 175 : 165);
}

void CopyLevel(const Surface& canvas, Surface& strip, const NationPieces& pieces,
               const LevelRow& level) {
    CopyPiece(canvas, strip, At(400, 5, 40, 20), {level.wordX, pieces.wordsY});
    if (level.sign == Sign::None) return;
    CopyPiece(canvas, strip, At(450, 6, 27, 17),
              {level.sign == Sign::Defeat ? pieces.defeatX : pieces.victoryX, kSignY});
}

void CopyPieces(const Surface& canvas, Surface& strip, const NationPieces& pieces, int points,
                const LevelRow& level) {
    CopyBackground(canvas, strip, pieces);
    CopyPiece(canvas, strip, At(5, 5, 149, 20), pieces.pointsLabel);
    CopyPiece(canvas, strip, At(250, 5, 20, 20), pieces.icon);
    CopyPiece(canvas, strip, At(300, 5, 85, 20), pieces.victoryLabel);
    CopyPoints(canvas, strip, pieces, points);
    CopyLevel(canvas, strip, pieces, level);
}

void WriteWords(Surface& strip, const NationPieces& pieces, int points, const LevelRow& level) {
    const Rect bar = At(0, 0, kTopBarWidth, kTopBarHeight);
    const auto write = [&](int x, std::string_view text) {
        DrawText(strip, bar, {x, 11}, text, kWhite);
    };
    Fill(strip, bar, pieces.plain);
    const Digits digits = DigitsOf(points);
    const std::string shown =
        (digits.tens ? std::to_string(*digits.tens) : "") + std::to_string(digits.units);
    write(5, "Command Points");
    write(165, shown);
    write(300, "Victory Level");
    write(400, level.word);
}

}  // namespace

void DrawTopBarPicture(const Game& game, const Surface* canvas, Surface& strip) {
    const auto nation = NationOf(game.state.currentArmy);
    if (!nation) return;
    const NationPieces& pieces = kPieces[*nation];
    const int points = std::max(game.ArmyInPlay().commandPoints, 0);
    if (canvas != nullptr) {
        CopyPieces(*canvas, strip, pieces, points, LevelOf(game));
    } else {
        WriteWords(strip, pieces, points, LevelOf(game));
    }
}

}  // namespace varnstride
