// SPDX-License-Identifier: MIT
#include "framework/base/ZAMAllocationBudget.h"
#include "framework/base/ZAMBaseUnknown.h"
#include "framework/base/ZAMRef.h"

#include <gtest/gtest.h>
#include <limits>
#include <thread>

namespace {

constexpr std::size_t kUnlimited = std::numeric_limits<std::size_t>::max();

class Object : public ZAMBaseUnknown {};

} // namespace

TEST(AllocationBudgetTest, WithoutOneNothingIsLimited) {
    EXPECT_EQ(ZAMAllocationBudget::GetCurrent(), nullptr);
    ZAMAllocationBudget::Earn(109);
    EXPECT_TRUE(ZAMAllocationBudget::Spend(kUnlimited));
    EXPECT_TRUE(ZAMAllocationBudget::Spend(kUnlimited));
    EXPECT_TRUE(ZAMAllocationBudget::SpendPixels(kUnlimited));
    EXPECT_EQ(ZAMAllocationBudget::GetLeft(), kUnlimited);
    EXPECT_FALSE(ZAMAllocationBudget::IsCurrentSpent());
    EXPECT_TRUE(ZAMNew<Object>());
}

TEST(AllocationBudgetTest, OnceSpentItStaysSpent) {
    const ZAMAllocationBudget budget(20);
    EXPECT_TRUE(ZAMAllocationBudget::Spend(0));
    EXPECT_TRUE(ZAMAllocationBudget::Spend(20));
    EXPECT_EQ(ZAMAllocationBudget::GetLeft(), 0U);
    EXPECT_TRUE(ZAMAllocationBudget::Spend(0)); // it suffices as long as nobody asks for more
    EXPECT_FALSE(budget.IsSpent());
    EXPECT_TRUE(ZAMNew<Object>());
    ZAMAllocationBudget::Earn(109);
    EXPECT_EQ(ZAMAllocationBudget::GetLeft(), 10U);
    EXPECT_FALSE(ZAMAllocationBudget::Spend(11));
    EXPECT_TRUE(budget.IsSpent());
    EXPECT_EQ(ZAMAllocationBudget::GetLeft(), 0U);
    EXPECT_FALSE(ZAMNew<Object>());
    ZAMAllocationBudget::Earn(109);
    EXPECT_FALSE(ZAMAllocationBudget::Spend(0));
    EXPECT_TRUE(ZAMAllocationBudget::IsCurrentSpent());
}

TEST(AllocationBudgetTest, EarningEndsAtTheLargestNumber) {
    const ZAMAllocationBudget budget(kUnlimited - 1);
    ZAMAllocationBudget::Earn(109);
    EXPECT_EQ(ZAMAllocationBudget::GetLeft(), kUnlimited - 1);
}

TEST(AllocationBudgetTest, PicturesThatAreTooLargeSpendNothing) {
    const ZAMAllocationBudget budget(1);
    EXPECT_FALSE(ZAMAllocationBudget::SpendPixels(ZAMLimits::kPicturePixelsOfAll + 1));
    EXPECT_TRUE(ZAMAllocationBudget::SpendPixels(ZAMLimits::kPicturePixelsOfAll - 1));
    EXPECT_FALSE(ZAMAllocationBudget::SpendPixels(2));
    EXPECT_TRUE(ZAMAllocationBudget::SpendPixels(1));
    EXPECT_FALSE(budget.IsSpent());
    EXPECT_TRUE(ZAMAllocationBudget::Spend(1));
}

TEST(AllocationBudgetTest, TheInnermostOfAThreadCounts) {
    const ZAMAllocationBudget outer(5);
    {
        const ZAMAllocationBudget inner(1);
        EXPECT_EQ(ZAMAllocationBudget::GetCurrent(), &inner);
        EXPECT_FALSE(ZAMAllocationBudget::Spend(2));
        std::thread([] { EXPECT_EQ(ZAMAllocationBudget::GetCurrent(), nullptr); }).join();
    }
    EXPECT_EQ(ZAMAllocationBudget::GetCurrent(), &outer);
    EXPECT_FALSE(outer.IsSpent());
    EXPECT_EQ(ZAMAllocationBudget::GetLeft(), 5U);
    EXPECT_TRUE(ZAMNew<Object>());
}

TEST(AllocationBudgetTest, APathThatIsTooLongSpendsIt) {
    EXPECT_EQ(ZAMAllocationBudget::GetMostPathCommands(), kUnlimited);
    ZAMAllocationBudget::EndLongPath(); // nothing is there to be spent
    const ZAMAllocationBudget budget(1, 7);
    EXPECT_EQ(ZAMAllocationBudget::GetMostPathCommands(), 7U);
    EXPECT_FALSE(budget.HasLongPath());
    ZAMAllocationBudget::EndLongPath();
    EXPECT_TRUE(budget.HasLongPath());
    EXPECT_TRUE(budget.IsSpent());
}
