#include "report/pages.h"

#include <limits>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <QApplication>
#include <QFontDatabase>
#include <QImage>

#include "graphics/qt/qt_canvas.h"
#include "report/qt/page_painter.h"
#include "tests/report/sample_report.h"
#include "tests/support/recording_canvas.h"

namespace kalvo::report {
namespace {

using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

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
    PageTexts(const Report& report, int page) : PageTexts() { drawPage(*this, report, page); }

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
        texts.push_back(plain);
        // Those in a chart stand in the chart's own coordinates.
        if (depth_ > 0) return;
        lines.push_back({plain, baseline.x - share * width, baseline.x + (1 - share) * width,
                         baseline.y, style.size});
    }
    void save() override { ++depth_; }
    void restore() override { --depth_; }

    std::vector<Line> lines;
    std::vector<std::string> texts;

 private:
    QImage image_{1, 1, QImage::Format_RGB32};
    QPainter painter_;
    graphics::QtCanvas measure_;
    int depth_ = 0;
};

std::vector<std::string> textsOf(const Report& report, int page = 1) {
    return PageTexts(report, page).texts;
}

class ReportPages : public testing::Test {
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

TEST_F(ReportPages, TheFirstIsTheAnswer) {
    // 3 turbines of 12 months of 10 days of 24 kWh; 70 % of them. 3 plants of 2 kWp, 5.5 kWh a day.
    EXPECT_THAT(textsOf(report),
                IsSupersetOf({"23 novembre 2026",
                              "ore 10:06",
                              "Trapani (TP)",
                              "Sicilia, Italia · 38,0176° N, 12,5362° E",
                              "Stime Centraline",
                              "Trapani Birgi (LICT), a 12 km",
                              "15,2 km/h (4,22 m/s) a 10 m dal suolo",
                              "15,6 km/h a 12 m, altezza del mozzo",
                              "1965–2023",
                              "3 turbine da 2 kW",
                              "6.048",
                              "8.640",
                              "2.880",
                              "2.016",
                              "3 impianti da 2 kWp",
                              "2.772",
                              "3.960",
                              "1.320",
                              "924",
                              "3 turbine",
                              "3 impianti",
                              "da 15.200 a 21.300 con l’errore tipico del vento",
                              "Lorda: 1 kWp 660 · 2 kWp 1.320 · 3 kWp 1.980 kWh/anno",
                              "720",
                              "330",
                              "Pagina 1 di 2"}));
    report.quantity = 1;
    report.region = report.country = "San Marino";
    EXPECT_THAT(textsOf(report), IsSupersetOf({"1 turbina da 2 kW", "una turbina",
                                               "San Marino · 38,0176° N, 12,5362° E"}));
    EXPECT_THAT(textsOf(report), Not(Contains("1 turbina")));
}

TEST_F(ReportPages, TheSecondShowsWindAndSky) {
    EXPECT_THAT(
        textsOf(report, 2),
        IsSupersetOf({"Trapani (TP)", "23 novembre 2026, ore 10:06", "< 2 km/h", "10", "120",
                      "sereno 120", "coperto 0", "10-20", "40-50 km/h", "Pagina 2 di 2"}));
    report.sky = {};
    EXPECT_THAT(textsOf(report, 2), Contains("Dati del cielo non disponibili"));
    EXPECT_THAT(textsOf(report, 2), Not(Contains("(giorni l’anno)")));
    // 300 of 400 hours from the north, the rest from the west-southwest.
    report.windBasis = WindBasis::kMeteoblue;
    report.rose = {{0, {100, 200}}, {11, {0, 0, 100}}};
    const std::string all = fmt::format("{}", fmt::join(textsOf(report, 2), " "));
    EXPECT_THAT(all, testing::HasSubstr("più di tutto N (75%) e WSW (25%)"));
}

TEST_F(ReportPages, TellWhatTheyRestOn) {
    report.isOnTheGlobe = true;
    report.windBasis = WindBasis::kFixedYield;
    report.stationWind.reset();
    report.latitude.reset();
    EXPECT_THAT(textsOf(report), IsSupersetOf({"Stime Centraline", "senza dati di vento del luogo",
                                               "Sicilia, Italia · Coordinate non note"}));
    EXPECT_THAT(textsOf(report), Not(Contains("Anni di misura")));
    report.windBasis = WindBasis::kMeteoblue;
    report.downloaded = {2026, 2, 3, 4, 5};
    report.hasDownloadedSky = true;
    EXPECT_THAT(textsOf(report), IsSupersetOf({"Meteoblue Online", "3 febbraio 2026, ore 4:05",
                                               "con il vento medio di Meteoblue",
                                               "con il cielo medio di Meteoblue"}));
}

TEST_F(ReportPages, KeepTheirFormWhateverTheyShow) {
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
            const PageTexts texts(reports[i], page);
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
    EXPECT_THAT(textsOf(reports[3]), IsSupersetOf({"in tutto", "∞"}));
    EXPECT_THAT(textsOf(reports[4]), IsSupersetOf({"–", "∞"}));
}

TEST_F(ReportPages, AChartAloneSaysWhatItIs) {
    const auto textsOfChart = [&](ChartKind kind) {
        PageTexts texts;
        drawChartPicture(texts, report, kind);
        return texts.texts;
    };
    EXPECT_THAT(textsOfChart(ChartKind::kWind),
                IsSupersetOf({"Vento mese per mese", "Trapani (TP) · Stime Centraline", "10-20"}));
    EXPECT_THAT(textsOfChart(ChartKind::kSky),
                IsSupersetOf({"Trapani (TP) · cielo medio della zona", "sereno 120"}));
    report.city = std::string(240, 'M');
    report.windBasis = WindBasis::kMeteoblue;
    EXPECT_THAT(textsOfChart(ChartKind::kRose),
                Contains(testing::EndsWith("… · Meteoblue Online")));
}

}  // namespace
}  // namespace kalvo::report
