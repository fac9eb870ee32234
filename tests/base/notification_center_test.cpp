#include "base/notification_center.h"

#include <optional>

#include <gtest/gtest.h>

namespace kalvo::base {
namespace {

TEST(NotificationCenterTest, TellsEveryObserverOfTheNameInOrderWhileItLasts) {
    NotificationCenter center;
    std::string told;
    const auto first = center.observe("SelectTab1", [&] { told += 'a'; });
    const auto other = center.observe("SelectTab2", [&] { told += 'x'; });
    {
        const auto second = center.observe("SelectTab1", [&] { told += 'b'; });
        center.post("SelectTab1");
        center.post("SelectTab");
    }
    center.post("SelectTab1");
    EXPECT_EQ(told, "aba");
}

TEST(NotificationCenterTest, AnObserverMaySendAwayTheNextOne) {
    NotificationCenter center;
    int told = 0;
    std::optional<NotificationCenter::Observation> second;
    const auto first = center.observe("name", [&] { second.reset(); });
    second = center.observe("name", [&] { ++told; });
    center.post("name");
    EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace kalvo::base
