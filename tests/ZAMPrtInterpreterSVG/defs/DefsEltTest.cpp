// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtAllElements.h"
#include "ZAMPrtInterpreterSVG/defs/ZAMListPtrZAMPrtDefsElt.h"

#include <gtest/gtest.h>

namespace {

using Definition = ZAMRef<ZAMPrtDefsElt>;

} // namespace

TEST(DefsEltTest, AFreshOneHoldsTheDefaults) {
    const Definition definition = ZAMNew<ZAMPrtDefsElt>();
    EXPECT_TRUE(definition->GetChildren().empty());
    EXPECT_EQ(definition->GetDrawStyle(), ZAMPrtDrawStyle::Stroke);
    EXPECT_EQ(definition->GetStrokeAttributes(), ZAMPrtStrokeAttributes());
    EXPECT_EQ(definition->GetFillAttributes(), ZAMPrtFillAttributes());
    EXPECT_EQ(definition->GetTextAttributes(), ZAMPrtTextAttributes());
    EXPECT_TRUE(definition->GetTransformAttributes().IsIdentity());
    EXPECT_EQ(definition->GetMetaObject().className, "ZAMPrtDefsElt");
    EXPECT_EQ(definition->GetMetaObject().component, "PrtKernel");
    EXPECT_TRUE(definition->IsAKindOf("ZAMPrtGraphicPrimitiveElt"));
    EXPECT_EQ(ZAMPrtDefsElt::CreateItself(), nullptr);
}

TEST(DefsEltTest, ChildrenComeAndGoByReference) {
    const Definition definition = ZAMNew<ZAMPrtDefsElt>();
    const auto first = ZAMNew<ZAMPrtCircleElt>();
    const auto second = ZAMNew<ZAMPrtLineElt>();
    ZAMPrtGraphicPrimitiveElt* const added[] = {first.Get(), second.Get(), nullptr, definition.Get(), first.Get()};
    for (ZAMPrtGraphicPrimitiveElt* const child : added) {
        definition->AddChild(child);
    }
    ASSERT_EQ(definition->GetChildren().size(), 3U);
    EXPECT_EQ(first->GetReferenceCount(), 3U);
    definition->RemoveChild(nullptr);
    definition->RemoveChild(definition.Get());
    definition->RemoveChild(first.Get());
    ASSERT_EQ(definition->GetChildren().size(), 2U);
    EXPECT_EQ(definition->GetChildren()[0].Get(), second.Get());
    EXPECT_EQ(first->GetReferenceCount(), 2U);
    EXPECT_EQ(definition->GetReferenceCount(), 1U);
}

TEST(DefsEltTest, ACopySharesItsChildrenAndADuplicateDoesNot) {
    const Definition definition = ZAMNew<ZAMPrtDefsElt>();
    const auto child = ZAMNew<ZAMPrtGroupElt>();
    child->SetID("child");
    definition->AddChild(child.Get());
    definition->SetDrawStyle(ZAMPrtDrawStyle::Fill);
    ZAMPrtStrokeAttributes stroke;
    stroke.SetStrokeWidth(3);
    definition->SetStrokeAttributes(stroke);
    ZAMPrtFillAttributes fill;
    fill.SetPatternRefPoint({1, 2});
    definition->SetFillAttributes(fill);
    ZAMPrtTextAttributes text;
    text.SetHeight(5);
    definition->SetTextAttributes(text);
    ZAMPrtTransformAttributes transform;
    transform.AddTranslation({6, 7});
    definition->SetTransformAttributes(transform);

    const Definition copy = ZAMNew<ZAMPrtDefsElt>(*definition);
    EXPECT_EQ(copy->GetChildren()[0].Get(), child.Get());
    EXPECT_EQ(child->GetReferenceCount(), 3U);
    const auto duplicate = definition->Duplicate();
    for (const ZAMPrtGraphicPrimitiveElt* element :
         {static_cast<ZAMPrtGraphicPrimitiveElt*>(copy.Get()), duplicate.Get()}) {
        const auto* const same = ZAMPrtCast<ZAMPrtDefsElt>(element);
        ASSERT_NE(same, nullptr);
        EXPECT_EQ(same->GetDrawStyle(), ZAMPrtDrawStyle::Fill);
        EXPECT_EQ(same->GetStrokeAttributes(), stroke);
        EXPECT_EQ(same->GetFillAttributes(), fill);
        EXPECT_EQ(same->GetTextAttributes(), text);
        EXPECT_EQ(same->GetTransformAttributes(), transform);
        EXPECT_EQ(same->GetChildren()[0]->GetID().View(), "child");
    }
    EXPECT_NE(duplicate->GetChildren()[0].Get(), child.Get());
    EXPECT_EQ(child->GetReferenceCount(), 3U);
}

TEST(DefsEltTest, TheListCountsFromOne) {
    ZAMListPtrZAMPrtDefsElt list;
    const Definition definitions[] = {ZAMNew<ZAMPrtDefsElt>(), ZAMNew<ZAMPrtDefsElt>()};
    for (const Definition& definition : definitions) {
        list.Append(definition);
    }
    EXPECT_EQ(&list[1], definitions[0].Get());
    EXPECT_EQ(&list[2], definitions[1].Get());
    list.RemoveLast();
    EXPECT_EQ(list.GetCount(), 1U);
    EXPECT_EQ(definitions[1]->GetReferenceCount(), 1U);
    EXPECT_EQ(definitions[0]->GetReferenceCount(), 2U);
}
