#include "charts/wind_table_view.h"

#include <gtest/gtest.h>

#include "tests/support/recording_clipboard.h"

namespace kalvo::charts {
namespace {

TEST(WindTableViewTest, CopiesATabSeparatedTableWithZerosWhereThereIsNothing) {
    WindTableView view{{{"Gen", {1, 4, 7, 9, 6, 3, 1}},
                        {"Feb", {28}},
                        {"Ago", {-2, 0, 0, 1234567, 0, 0, 0, 99}},
                        {"Dic", {0, 0, 0, 0, 0, 0, 31}},
                        {"Dec", {5, 5, 5, 5, 5, 5, 5}}}};
    tests::RecordingClipboard clipboard;
    view.copyToClipboard(clipboard);
    EXPECT_EQ(clipboard.contents,
              "Velocità\tGen\tFeb\tMar\tApr\tMag\tGiu\tLug\tAgo\tSet\tOtt\tNov\tDic\n"
              "< 2 km/h\t1\t28\t0\t0\t0\t0\t0\t-2\t0\t0\t0\t0\n"
              "2-5 km/h\t4\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\n"
              "5-10 km/h\t7\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\n"
              "10-20 km/h\t9\t0\t0\t0\t0\t0\t0\t1234567\t0\t0\t0\t0\n"
              "20-30 km/h\t6\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\n"
              "30-40 km/h\t3\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\n"
              "40-50 km/h\t1\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t31");
}

}  // namespace
}  // namespace kalvo::charts
