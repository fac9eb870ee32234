#include "report/pages.h"

#include <limits>
#include <map>
#include <sstream>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <QApplication>
#include <QFontDatabase>
#include <QImage>

#include "graphics/qt/qt_canvas.h"
#include "report/qt/page_painter.h"
#include "tests/report/sample_report.h"
#include "tests/support/recording_canvas.h"
#include "tests/support/transcript.h"

namespace kalvo::report {
namespace {

using testing::Contains;
using testing::HasSubstr;

/// Keeps the texts of a page with where they begin and end, measured in the real font.
class PageTexts final : public tests::RecordingCanvas {
 public:
    struct Line {
        std::string text;
        double left;
        double right;
        double baseline;
        double size;
    };

    PageTexts() : painter_(&image_), measure_(painter_, kPageSize) {}

    [[nodiscard]] double textWidth(std::string_view words,
                                   const graphics::TextStyle& style) const override {
        return measure_.textWidth(words, style);
    }
    void drawTextLine(std::string_view words,
                      graphics::Point baseline,
                      graphics::TextAlignment alignment,
                      const graphics::TextStyle& style) override {
        const double width = textWidth(words, style);
        const double share = alignment == graphics::TextAlignment::kLeft     ? 0
                             : alignment == graphics::TextAlignment::kCenter ? 0.5
                                                                             : 1;
        std::string plain(words);
        for (std::size_t at = 0; (at = plain.find("\u00a0", at)) != std::string::npos;) {
            plain.replace(at, 2, " ");
        }
        if (rows.empty() || baseline.y != lastBaseline_) rows.emplace_back();
        rows.back() += (rows.back().empty() ? "" : " | ") + plain;
        lastBaseline_ = baseline.y;
        // Those in a chart stand in the chart's own coordinates.
        if (depth_ > 0) return;
        lines.push_back({plain, baseline.x - share * width, baseline.x + (1 - share) * width,
                         baseline.y, style.size});
    }
    void save() override { ++depth_; }
    void restore() override { --depth_; }

    std::vector<Line> lines;
    std::vector<std::string> rows;  // the texts that follow each other on one baseline

 private:
    QImage image_{1, 1, QImage::Format_RGB32};
    QPainter painter_;
    graphics::QtCanvas measure_;
    int depth_ = 0;
    double lastBaseline_ = 0;
};

class ReportPagesTest : public testing::Test {
 protected:
    static void SetUpTestSuite() {
        for (const char* face : {"Regular", "SemiBold"}) {
            QFontDatabase::addApplicationFont(
                QStringLiteral(KALVO_SOURCE_DIR "/resources/fonts/KalvoInter-%1.ttf").arg(face));
        }
        QApplication::setFont(QFont(QStringLiteral("Kalvo Inter")));
        loadTabularFonts(base::Bundle(KALVO_SOURCE_DIR "/resources"));
    }

    Report report = sampleReport();
};

TEST_F(ReportPagesTest, AnswerAndTellWhatTheyRestOn) {
    std::map<std::string, std::vector<std::string>> ordinaryRows;
    tests::expectTranscript("report/transcripts/pages.txt", [&](const std::string& question) {
        std::istringstream lines(question);
        std::string answer;
        for (std::string line; std::getline(lines, line);) {
            if (line == "one turbine in San Marino") {
                report.quantity = 1;
                report.region = report.country = "San Marino";
            }
            if (line == "sky unknown") report.sky = {};
            if (line == "on the globe, wind unknown") {
                report.isOnTheGlobe = true;
                report.windBasis = WindBasis::kFixedYield;
                report.stationWind.reset();
                report.latitude.reset();
            }
            if (line == "downloaded") {
                report.windBasis = WindBasis::kMeteoblue;
                report.downloaded = {2026, 2, 3, 4, 5};
                report.hasDownloadedSky = true;
                report.rose = {{0, {100, 200}}, {11, {0, 0, 100}}};
            }
            if (line == "as before") report = sampleReport();
            if (line == "long names") report.city = std::string(240, 'M');
            PageTexts drawn;
            const int number = line.back() - '0';
            if (line.starts_with("page ")) drawPage(drawn, report, number);
            if (line.starts_with("chart ")) drawChartPicture(drawn, report, ChartKind(number));
            const auto list = [&answer](const auto& some, const auto& others, const char* sign) {
                for (const std::string& row : some) {
                    if (!testing::Value(others, Contains(row))) answer += sign + row + "\n";
                }
            };
            const auto& ordinary = ordinaryRows[line];
            list(drawn.rows, ordinary, "");
            list(ordinary, drawn.rows, "without ");
            if (ordinary.empty()) ordinaryRows[line] = drawn.rows;
        }
        return answer;
    });
}

TEST_F(ReportPagesTest, KeepTheirFormWhateverTheyShow) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    std::vector<Report> reports(6, report);
    for (int i = 0; i < 40; ++i) reports[1].city += " Àlta風力";
    reports[1].stationWind->station = std::string(300, 'W');
    reports[2].city = reports[2].province = reports[2].region = std::string(240, 'M');
    reports[3].quantity = kMost;
    reports[3].turbineGross = 72.0 * static_cast<double>(kMost);
    reports[3].plantGross.fill(1e300);
    for (auto& [month, counts] : reports[3].distribution)
        counts = {kMost, kMost, 1, 2, 3, 4, -kMost};
    reports[3].rose = {{3, {kMost, kMost}}, {99, {1}}};
    reports[3].sky.sunny.assign(30, 1e300);
    reports[3].windMonths = engine::CalculationEngine::calculateMonthlyWindProduction(
        reports[3].distribution, 2, kMost);
    reports[4].plantGross.fill(std::numeric_limits<double>::infinity());
    reports[4].turbineGross = std::nan("");
    reports[4].windMonths.reset();
    reports[4].stationWind.reset();
    reports[5].quantity = 999'999'999;
    reports[5].isOnTheGlobe = true;
    reports[5].latitude = 90;
    for (std::size_t i = 0; i < reports.size(); ++i) {
        SCOPED_TRACE(i);
        for (const int page : {1, 2}) {
            PageTexts texts;
            drawPage(texts, reports[i], page);
            if (page == 1 && (i == 3 || i == 4)) {
                EXPECT_THAT(texts.rows, Contains(HasSubstr(i == 3 ? "in tutto" : "∞")));
            }
            for (const PageTexts::Line& line : texts.lines) {
                EXPECT_GE(line.left, 48 - 0.01) << line.text;
                EXPECT_LE(line.right, 547.28 + 0.01) << line.text;
                EXPECT_GE(line.baseline, 48) << line.text;
                EXPECT_LE(line.baseline, 793.9) << line.text;
                EXPECT_GE(line.size, 8.5) << line.text;
                // No two texts run into each other, beside or below.
                for (const PageTexts::Line& other : texts.lines) {
                    const bool isBeside =
                        line.right <= other.left + 0.1 || other.right <= line.left + 0.1;
                    const bool isBelow = std::abs(line.baseline - other.baseline) > 9.5;
                    EXPECT_TRUE(&other == &line || isBeside || isBelow)
                        << line.text << " | " << other.text;
                }
            }
        }
    }
}

}  // namespace
}  // namespace kalvo::report
