// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtGroupElt.h"
#include "ZAMPrtInterpreterSVG/defs/ZAMPrintSVGDefinitions.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string_view>
#include <vector>

namespace {

// A document that nobody wrote: definitions within definitions, whose content ends with them or does not, and look-ups
// at every turn. Each is compared with a walk over all that is defined.
class RandomDocument {
public:
    explicit RandomDocument(unsigned int seed) : _Random(seed) {}

    void Run() {
        for (int i = 0; i < 40; ++i) {
            int definitions = 0;
            Step(0, definitions);
        }
    }

    [[nodiscard]] int GetHits() const { return _Hits; }

private:
    static constexpr std::string_view kIds[] = {"",  "a", "A", "b", "ab", "Ab",     "a ",
                                                "é", "É", "s", "ſ", "K",  "\u212A", "an-id-of-some-length"};

    unsigned int Below(unsigned int end) { return std::uniform_int_distribution<unsigned int>(0, end - 1)(_Random); }
    std::string_view AnyId() { return kIds[Below(std::size(kIds))]; }

    // One thing that may stand among the content of a container; `definitions` counts for that container.
    void Step(int depth, int& definitions) {
        LookUp();
        switch (depth < 5 ? Below(4) : 0) {
        case 0:
            LookUp();
            break;
        case 1:
            Container(depth);
            break;
        default:
            Define(depth, definitions);
        }
    }

    // What is defined in here ends with it.
    void Container(int depth) {
        int definitions = 0;
        for (unsigned int steps = Below(4); steps > 0; --steps) {
            Step(depth + 1, definitions);
        }
        _Registry.RemoveLast(definitions);
        for (; definitions > 0; --definitions) {
            for (const auto& child : _List.back()->GetChildren()) {
                _Completed.erase(child.Get());
            }
            _List.pop_back();
        }
    }

    // Children get their id while they are the last.
    void Define(int depth, int& definitions) {
        const auto definition = ZAMNew<ZAMPrtDefsElt>();
        const ZAMPrintSVGDefinitions::OpenScope open(_Registry, definition);
        ++definitions;
        _List.push_back(definition);
        _Open.insert(definition.Get());
        for (unsigned int children = Below(4); children > 0; --children) {
            const auto child = ZAMNew<ZAMPrtGroupElt>();
            definition->AddChild(child.Get());
            LookUp();
            child->SetID(AnyId());
            LookUp();
            Below(2) == 0 ? Container(depth) : Step(depth + 1, definitions);
        }
        _Open.erase(definition.Get());
    }

    void LookUp() {
        const std::string_view id = AnyId();
        const ZAMPrintSVGDefinitions::Found found = _Registry.Find(ZAMPrintSVGReference(id));
        for (const auto& definition : _List) {
            for (const auto& child : definition->GetChildren()) {
                if (ZAMUnicodeString(id).Compare(child->GetID()) > 0) {
                    Check(*definition, *child, found);
                    return;
                }
            }
        }
        EXPECT_EQ(found.element, nullptr) << id;
    }

    void Check(const ZAMPrtDefsElt& definition, const ZAMPrtGraphicPrimitiveElt& child,
               const ZAMPrintSVGDefinitions::Found& found) {
        ++_Hits;
        EXPECT_EQ(found.definition, &definition);
        ASSERT_EQ(found.element, &child);
        const bool isBeingRead = _Open.contains(&definition) && definition.GetChildren().back().Get() == &child;
        ASSERT_EQ(found.isCompleted == nullptr, isBeingRead);
        if (!isBeingRead) {
            EXPECT_EQ(*found.isCompleted, _Completed.contains(&child));
            if (Below(2) == 0) {
                *found.isCompleted = true;
                _Completed.insert(&child);
            }
        }
    }

    std::mt19937 _Random;
    ZAMPrintSVGDefinitions _Registry;
    std::vector<ZAMRef<ZAMPrtDefsElt>> _List;
    std::set<const ZAMPrtDefsElt*> _Open;
    std::set<const ZAMPrtGraphicPrimitiveElt*> _Completed;
    int _Hits = 0;
};

} // namespace

TEST(DefinitionsTest, FindWhatAWalkWouldFind) {
    int hits = 0;
    for (unsigned int seed = 0; seed < 300 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomDocument document(seed);
        document.Run();
        hits += document.GetHits();
    }
    EXPECT_GT(hits, 10'000);
}

TEST(DefinitionsTest, HoldTheirDefinitionsUntilTheyAreRemoved) {
    const auto definition = ZAMNew<ZAMPrtDefsElt>();
    {
        ZAMPrintSVGDefinitions registry;
        EXPECT_EQ(registry.Find(ZAMPrintSVGReference("")).element, nullptr);
        for (int i = 0; i < 3; ++i) {
            const ZAMPrintSVGDefinitions::OpenScope open(registry, definition);
        }
        EXPECT_EQ(definition->GetReferenceCount(), 4U);
        registry.RemoveLast(2);
        registry.RemoveLast(0);
        EXPECT_EQ(definition->GetReferenceCount(), 2U);
    }
    EXPECT_EQ(definition->GetReferenceCount(), 1U);
}
