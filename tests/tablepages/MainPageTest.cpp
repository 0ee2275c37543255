#include <gtest/gtest.h>

#include "tablepages/ReportHost.h"

namespace ostrel::test {

TEST(MainPage, PlainTable) {
    ReportHost host;
    host.Table({"Item", "Price"}, {{"Apples", "1.20"}, {"Pears", "0"}, {"", "3"}});
    host.right.Put(2, true);
    EXPECT_TRUE(host.Make());
    ExpectGolden("plain.txt", host.Family());
}

} // namespace ostrel::test
