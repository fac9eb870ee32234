// The whole path of an online place over a real connection: a text typed into the window, the
// search, the climate page, its three charts, and the figures on the screen.

#include <algorithm>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>

#include "net/qt/curl_http_session.h"
#include "tests/app/screen_fixture.h"
#include "tests/support/run_until.h"
#include "tests/support/tls_server.h"

namespace kalvo::app {
namespace {

using testing::HasSubstr;
using tests::TlsAnswer;
using tests::TlsServer;

struct TrustingSession final : net::CurlHttpSession {
    TrustingSession() : CurlHttpSession(TlsServer::defaultIdentity()) {}
};

std::string chart(const std::string& series, const std::string& value, int count) {
    std::string values = value;
    for (int i = 1; i < count; ++i) values += "," + value;
    return R"({"series":[{"name":")" + series + R"(","data":[)" + values + "]}]}";
}

TEST(OnlineRoadTest, LeadsFromATypedTextToTheFiguresOnTheScreen) {
    TlsServer server;
    const std::string host = server.origin().substr(std::string("https:").size());
    const auto placeholder = [&](const std::string& name) {
        return "<div id='blooimage' data-url='" + host + "/chart?type=" + name + "&amp;a=1'></div>";
    };
    server.answer("/en/server/search/query3?query=Roma",
                  TlsAnswer::ok(R"({"results":[{"name":"Roma","country":"Italy","lat":41.9,)"
                                R"("lon":12.5,"url":"roma","iso2":"IT"}]})"));
    server.answer("/en/weather/forecast/modelclimate/roma",
                  TlsAnswer::ok(std::string(600'000, ' ') + placeholder("wind_speeds") +
                                placeholder("wind_rose") + placeholder("cloud_coverage")));
    server.answer("/chart?type=wind_speeds&a=1", TlsAnswer::ok(chart("20-30 km/h", "2", 12)));
    server.answer("/chart?type=wind_rose&a=1", TlsAnswer::ok(chart("20-30 km/h", "7.5", 16)));
    server.answer("/chart?type=cloud_coverage&a=1", TlsAnswer::ok(chart("Sunny", "10", 12)));

    TestServices<TrustingSession> world(KALVO_SOURCE_DIR "/resources",
                                        {server.origin(), server.origin()});
    RecordingUrlOpener urlOpener;
    base::NotificationCenter notifications;
    Kalvo_TreskApp application(world.services, notifications, urlOpener);
    const std::unique_ptr<QMainWindow> window(application.openWindow());
    window->setAttribute(Qt::WA_DeleteOnClose, false);

    for (QLineEdit* field : window->findChildren<QLineEdit*>()) {
        if (field->placeholderText() != "Digita comune o città...") continue;
        QTest::keyClicks(field, "Roma");
        QTest::keyClick(field, Qt::Key_Return);
    }
    const ContentView& state = qobject_cast<MainScreen*>(window->centralWidget())->state();
    ASSERT_TRUE(tests::runUntil([&] {
        return !state.isFetchingOnline && state.detailsText.ends_with("(Meteoblue Online)");
    }));

    const auto labels = window->findChildren<QLabel*>();
    const auto shown = [&](const QString& text) {
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
            return label->isVisible() && label->accessibleName().contains(text);
        });
    };
    // All 365 days at 48 kWh, and 120 sunny days at 2 x 5.5 kWh.
    EXPECT_TRUE(shown("IT - produzione singola turbina 2 kW: 17.520 kWh/anno (Meteoblue Online)"));
    EXPECT_THAT(state.resultText, HasSubstr("Produzione Lorda: 17.520 kWh/anno"));
    EXPECT_THAT(state.pvResultText, HasSubstr("Produzione Solare Lorda: 1.320 kWh/anno"));
    EXPECT_EQ(state.currentRoseData.at(15), (engine::ClassCounts{0, 0, 0, 0, 8, 0, 0}));
    EXPECT_TRUE(world.diagnostics.lines.empty());
}

}  // namespace
}  // namespace kalvo::app
