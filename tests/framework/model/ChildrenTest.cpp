// SPDX-License-Identifier: MIT
#include "framework/base/ZAMAllocationBudget.h"
#include "framework/model/ZAMPrtAllElements.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using Group = ZAMRef<ZAMPrtGroupElt>;

constexpr std::size_t kBudget = 1000;

std::size_t Spent() {
    return kBudget - ZAMAllocationBudget::GetLeft();
}

// So many groups, one in the other.
Group MakeChain(int height) {
    Group top = ZAMNew<ZAMPrtGroupElt>();
    for (int i = 1; i < height; ++i) {
        const Group parent = ZAMNew<ZAMPrtGroupElt>();
        parent->AddChild(top.Get());
        top = parent;
    }
    return top;
}

} // namespace

TEST(ChildrenTest, WhatIsFreshIsFreeAndWhatIsReusedCosts) {
    const ZAMAllocationBudget budget(kBudget);
    const Group chain = MakeChain(3);
    const Group first = ZAMNew<ZAMPrtGroupElt>();
    const Group second = ZAMNew<ZAMPrtGroupElt>();
    first->AddChild(chain.Get());
    EXPECT_EQ(Spent(), 0U);
    first->AddChild(chain.Get());
    EXPECT_EQ(Spent(), 3U);
    second->AddChild(chain.Get());
    EXPECT_EQ(Spent(), 6U);
    first->RemoveChild(chain.Get()); // nothing is given back
    first->RemoveChild(chain.Get());
    first->AddChild(chain.Get());
    EXPECT_EQ(Spent(), 9U);
    second->AddChild(second.Get()); // what is refused costs nothing
    second->AddChild(nullptr);
    EXPECT_EQ(Spent(), 9U);
}

TEST(ChildrenTest, CopiesCostOnceAndTheirPartsAreNotFresh) {
    const ZAMAllocationBudget budget(kBudget);
    const Group chain = MakeChain(3);
    const Group parent = ZAMNew<ZAMPrtGroupElt>();
    const auto copy = chain->Duplicate();
    EXPECT_EQ(Spent(), 3U);
    parent->AddChild(copy.Get());
    EXPECT_EQ(Spent(), 3U);
    parent->AddChild(copy->GetChildren()[0].Get()); // has a parent already
    EXPECT_EQ(Spent(), 5U);
}

TEST(ChildrenTest, LongListsAndTextsCostMore) {
    const auto polygon = ZAMNew<ZAMPrtPolygonElt>();
    const auto text = ZAMNew<ZAMPrtTextElt>();
    const std::vector<ZAMMathPoint2D> points(64);
    for (const auto& [count, cost] : {std::pair{31, 1U}, {32, 2U}, {64, 3U}}) {
        polygon->SetPoints(points.data(), count);
        EXPECT_EQ(polygon->GetCost(), cost);
    }
    for (const auto& [bytes, cost] : {std::pair{255U, 1U}, {256U, 2U}, {1000U, 4U}}) {
        text->SetText(std::string(bytes, 'x'));
        EXPECT_EQ(text->GetCost(), cost);
    }
    const ZAMAllocationBudget budget(kBudget);
    EXPECT_TRUE(polygon->Duplicate());
    EXPECT_TRUE(text->Duplicate());
    EXPECT_EQ(Spent(), 7U);
}

TEST(ChildrenTest, ASpentBudgetRefusesAndEndsAllGrowth) {
    const ZAMAllocationBudget budget(5);
    const Group chain = MakeChain(3);
    const Group parent = ZAMNew<ZAMPrtGroupElt>();
    const auto circle = ZAMNew<ZAMPrtCircleElt>();
    parent->AddChild(chain.Get());
    parent->AddChild(chain.Get());
    EXPECT_EQ(parent->GetChildren().size(), 2U);
    EXPECT_FALSE(budget.IsSpent());
    parent->AddChild(chain.Get());
    EXPECT_TRUE(budget.IsSpent());
    EXPECT_EQ(parent->GetChildren().size(), 2U);
    EXPECT_EQ(chain->GetReferenceCount(), 3U);
    EXPECT_FALSE(circle->Duplicate());
    EXPECT_FALSE(ZAMNew<ZAMPrtCircleElt>());
}

// Every level holds the one below twice: drawing the last would take 2^60 steps.
TEST(ChildrenTest, DoublingEndsWithTheBudget) {
    const ZAMAllocationBudget budget(kBudget);
    Group top = ZAMNew<ZAMPrtGroupElt>();
    for (int level = 0; level < 60; ++level) {
        const Group parent = ZAMNew<ZAMPrtGroupElt>();
        if (!parent) {
            break;
        }
        parent->AddChild(top.Get());
        parent->AddChild(top.Get());
        top = parent;
    }
    EXPECT_TRUE(budget.IsSpent());
    EXPECT_FALSE(top->Duplicate());
}

TEST(ChildrenTest, HeightCountsAlongTheLongestWay) {
    const Group tallest = MakeChain(256);
    const Group tooTall = MakeChain(257);
    const Group parent = ZAMNew<ZAMPrtGroupElt>();
    parent->AddChild(MakeChain(2).Get());
    parent->AddChild(tooTall.Get());
    EXPECT_EQ(parent->GetChildren().size(), 1U);
    parent->AddChild(tallest.Get());
    EXPECT_EQ(parent->GetChildren().size(), 2U);
    const Group above = ZAMNew<ZAMPrtGroupElt>();
    above->AddChild(parent.Get());
    EXPECT_TRUE(above->GetChildren().empty());
    EXPECT_EQ(tallest->Duplicate()->GetChildren().size(), 1U);
}

// The owner may be anywhere below, also where a part is shared.
TEST(ChildrenTest, NoWayLeadsBackToTheOwner) {
    const Group owner = ZAMNew<ZAMPrtGroupElt>();
    const Group between = ZAMNew<ZAMPrtGroupElt>();
    const Group top = ZAMNew<ZAMPrtGroupElt>();
    between->AddChild(ZAMNew<ZAMPrtCircleElt>().Get());
    between->AddChild(owner.Get());
    top->AddChild(between.Get());
    top->AddChild(between.Get());
    owner->AddChild(top.Get());
    owner->AddChild(between.Get());
    EXPECT_TRUE(owner->GetChildren().empty());
    between->RemoveChild(owner.Get());
    owner->AddChild(between.Get()); // no longer below
    EXPECT_EQ(owner->GetChildren().size(), 1U);
}
