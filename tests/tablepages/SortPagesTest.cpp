#include <gtest/gtest.h>

#include "tablepages/ReportHost.h"

namespace ostrel::test {

TEST(SortPages, Plain) {
    ReportHost host;
    host.Table({"Item", "Unit Price"}, {{"pears", "10"}, {"Apples", "2"}, {"apples", "1.5"}});
    host.Options().PageTableColumnSort.Put(1, true);
    host.Options().PageTableColumnSort.Put(2, true);
    host.Options().PageTableColumnOrder.Put(2, "Numeric");
    host.Options().PageTableOrderUseNames = true;
    host.Options().PageTableOrderUpTT = "Up";
    host.Options().PageTableOrderDownTT = "Down";
    host.Options().PageTableRecordNumber = true;
    EXPECT_TRUE(host.Make());
    ExpectGolden("sorted.txt", host.Family());
}

} // namespace ostrel::test
