#include "sim/duel_plot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>

#include "display/font.h"

namespace varnstride::sim {
namespace {

constexpr int kWidth = 720;
constexpr int kChartHeight = 240;
constexpr Pixel kPaper = MakePixel(250, 247, 238);
constexpr Pixel kInk = MakePixel(50, 45, 40);
constexpr Pixel kLine = MakePixel(205, 198, 182);
constexpr Pixel kFrench = MakePixel(46, 84, 160);
constexpr Pixel kAllied = MakePixel(178, 62, 44);
constexpr Pixel kNeutral = MakePixel(120, 112, 96);

// By level, from a major defeat of the side that moves first to its major victory.
constexpr std::array<Pixel, 5> kLevelColours = {MakePixel(150, 36, 30), MakePixel(214, 122, 92),
                                                MakePixel(170, 164, 150), MakePixel(122, 160, 206),
                                                MakePixel(40, 76, 150)};
constexpr std::array kLevelNames = {"major defeat", "minor defeat", "draw", "minor victory",
                                    "major victory"};

struct Span {
    double low = 0.0;
    double high = 1.0;
};

// The inside of a chart: where a pair of values lies.
class Axes {
 public:
    Axes(Surface& surface, int chart, Span x, Span y)
        : surface_(surface),
          area_{70, chart * kChartHeight + 34, kWidth - 20, (chart + 1) * kChartHeight - 30},
          x_(x),
          y_(y) {}

    Point At(double x, double y) const {
        const double right = (x - x_.low) / (x_.high - x_.low);
        const double up = (y - y_.low) / (y_.high - y_.low);
        return {area_.left + static_cast<int>(std::lround(right * (area_.Width() - 1))),
                area_.bottom - 1 - static_cast<int>(std::lround(up * (area_.Height() - 1)))};
    }

    void Draw(const std::string& title) const {
        Fill(surface_, area_, kWhite);
        DrawOutline(surface_, area_, kLine);
        Write({area_.left, area_.top - 20}, title);
        for (int step = 0; step <= 4; ++step) {
            const double y = y_.low + (y_.high - y_.low) * step / 4;
            const std::string number = std::to_string(std::lround(y));
            const int row = At(x_.low, y).y;
            Fill(surface_, {area_.left, row, area_.right, row + 1}, kLine);
            Write({area_.left - 8 - TextWidth(number), row - kGlyphHeight / 2}, number);
        }
        const double range = x_.high - x_.low;
        const int steps = range <= 12 ? static_cast<int>(range) : 6;
        for (int step = 0; step <= steps; ++step) {
            const double x = x_.low + range * step / steps;
            const std::string number = std::to_string(std::lround(x));
            Write({At(x, y_.low).x - TextWidth(number) / 2, area_.bottom + 6}, number);
        }
    }

    void DrawPath(const std::map<int, double>& values, Pixel pixel) const {
        Point from{};
        for (auto value = values.begin(); value != values.end(); ++value) {
            const Point to = At(value->first, value->second);
            if (value != values.begin()) DrawStroke(from, to, pixel);
            from = to;
        }
    }

    void FillColumn(double left, double right, double bottom, double top, Pixel pixel) const {
        const Point low = At(left, bottom);
        const Point high = At(right, top);
        Fill(surface_, {low.x, high.y, std::max(high.x - 1, low.x + 1), low.y + 1}, pixel);
    }

    void Write(Point at, const std::string& text, Pixel pixel = kInk) const {
        DrawText(surface_, surface_.Bounds(), at, text, pixel);
    }
    Rect Area() const { return area_; }

 private:
    void DrawStroke(Point from, Point to, Pixel pixel) const {
        const int steps = std::max({std::abs(to.x - from.x), std::abs(to.y - from.y), 1});
        for (int step = 0; step <= steps; ++step) {
            const int x = from.x + (to.x - from.x) * step / steps;
            const int y = from.y + (to.y - from.y) * step / steps;
            Fill(surface_, {x, y, x + 2, y + 2}, pixel);
        }
    }

    Surface& surface_;
    Rect area_;
    Span x_;
    Span y_;
};

// A span of whole hundreds around the values, never empty.
Span Around(double low, double high, double unit) {
    const double floor = std::floor(low / unit) * unit;
    return {floor, std::max(std::ceil(high / unit) * unit, floor + unit)};
}

void PlotScores(Surface& surface, const std::vector<DuelResult>& duels) {
    constexpr int kColumns = 30;
    const auto [least, most] = std::minmax_element(
        duels.begin(), duels.end(),
        [](const auto& one, const auto& other) { return one.score < other.score; });
    const Span scores = Around(least->score, most->score + 1, 100);
    const double width = (scores.high - scores.low) / kColumns;
    std::array<std::array<int, 5>, kColumns> counts{};
    std::array<int, kColumns> totals{};
    for (const DuelResult& duel : duels) {
        const auto column = static_cast<std::size_t>((duel.score - scores.low) / width);
        ++counts[column][static_cast<std::size_t>(duel.level)];
        ++totals[column];
    }
    const int highest = *std::max_element(totals.begin(), totals.end());
    const Axes axes(surface, 0, scores, Around(0, highest, 4));
    axes.Draw("Duels by final score");
    for (std::size_t column = 0; column < counts.size(); ++column) {
        const double left = scores.low + width * static_cast<double>(column);
        int below = 0;
        for (std::size_t level = 0; level < kLevelColours.size(); ++level) {
            const int above = below + counts[column][level];
            if (above > below)
                axes.FillColumn(left, left + width, below, above, kLevelColours[level]);
            below = above;
        }
    }
    int x = axes.Area().right;
    for (std::size_t level = kLevelNames.size(); level-- > 0;) {
        x -= TextWidth(kLevelNames[level]) + 14;
        axes.Write({x, axes.Area().top - 20}, kLevelNames[level], kLevelColours[level]);
    }
}

// The mean over the duels that saw that turn.
template <typename Figure>
std::map<int, double> MeanByTurn(const std::vector<DuelResult>& duels, Figure figure) {
    std::map<int, double> sums;
    std::map<int, int> counts;
    for (const DuelResult& duel : duels) {
        for (const DuelTurn& turn : duel.course) {
            sums[turn.turn] += figure(turn);
            ++counts[turn.turn];
        }
    }
    for (auto& [turn, sum] : sums)
        sum /= counts[turn];
    return sums;
}

Span SpanOf(const std::map<int, double>& values, double unit) {
    Span span{0.0, 0.0};
    for (const auto& [turn, value] : values) {
        span.low = std::min(span.low, value);
        span.high = std::max(span.high, value);
    }
    return Around(span.low, span.high, unit);
}

Span TurnsOf(const std::map<int, double>& values) {
    const double first = values.empty() ? 0 : values.begin()->first;
    const double last = values.empty() ? 1 : values.rbegin()->first;
    return {first, std::max(last, first + 1)};
}

void PlotCourse(Surface& surface, const std::vector<DuelResult>& duels) {
    const auto score = MeanByTurn(duels, [](const DuelTurn& turn) { return turn.score; });
    const Axes scores(surface, 1, TurnsOf(score), SpanOf(score, 100));
    scores.Draw("Mean score by game turn");
    scores.DrawPath(score, kNeutral);

    const auto french = MeanByTurn(duels, [](const DuelTurn& turn) { return turn.frenchLoss; });
    const auto allied = MeanByTurn(duels, [](const DuelTurn& turn) { return turn.alliedLoss; });
    const Span one = SpanOf(french, 4);
    const Span other = SpanOf(allied, 4);
    const Axes losses(surface, 2, TurnsOf(french), {0, std::max(one.high, other.high)});
    losses.Draw("Mean strength points lost by game turn");
    losses.DrawPath(french, kFrench);
    losses.DrawPath(allied, kAllied);
    const Rect area = losses.Area();
    losses.Write({area.right - 120, area.top - 20}, "French", kFrench);
    losses.Write({area.right - 60, area.top - 20}, "Allied", kAllied);
}

}  // namespace

Surface PlotDuels(const std::vector<DuelResult>& duels) {
    Surface surface(kWidth, 3 * kChartHeight, kPaper);
    PlotScores(surface, duels);
    PlotCourse(surface, duels);
    return surface;
}

}  // namespace varnstride::sim
