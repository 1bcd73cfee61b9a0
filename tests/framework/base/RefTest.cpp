// SPDX-License-Identifier: MIT
#include "framework/base/ZAMBaseUnknown.h"
#include "framework/base/ZAMMetaObject.h"
#include "framework/base/ZAMRef.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

class Living : public ZAMBaseUnknown {
public:
    explicit Living(int& count) : _Count(count) { ++_Count; }
    Living(const Living& other) : ZAMBaseUnknown(other), _Count(other._Count) { ++_Count; }

protected:
    ~Living() override { --_Count; }

private:
    int& _Count;
};

class Derived : public Living {
public:
    using Living::Living;
};

// Memory is always out for this one.
class Unallocatable : public ZAMBaseUnknown {
public:
    static void* operator new(std::size_t /*size*/) { throw std::bad_alloc(); }
    static void operator delete(void* /*memory*/) {}
};

class FailsInside : public ZAMBaseUnknown {
public:
    FailsInside() { throw std::bad_alloc(); }
};

} // namespace

TEST(RefTest, EveryPathGivesBackWhatItTook) {
    int living = 0;
    {
        ZAMRef<Derived> first = ZAMNew<Derived>(living);
        EXPECT_EQ(first->GetReferenceCount(), 1U);
        const ZAMRef<Derived> copy = first;
        const ZAMRef<Living> asBase = copy;
        EXPECT_EQ(first->GetReferenceCount(), 3U);
        const ZAMRef<Derived> moved = std::move(first);
        EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move): that is what is asked
        EXPECT_EQ(moved->GetReferenceCount(), 3U);
        ZAMRef<Living> other = ZAMNew<Living>(living);
        other = asBase;
        EXPECT_EQ(living, 1);
        EXPECT_EQ(other, asBase);
        EXPECT_EQ(moved->GetReferenceCount(), 4U);
        const auto& itself = other;
        other = itself;
        EXPECT_EQ(moved->GetReferenceCount(), 4U);

        const ZAMRef<Living> twin = ZAMNew<Living>(*other); // a copy has a count of its own
        EXPECT_EQ(twin->GetReferenceCount(), 1U);
        EXPECT_EQ(living, 2);
        Living* const detached = other.Detach();
        EXPECT_EQ(detached->Release(), 3U);
        EXPECT_EQ(ZAMRef<Living>::Share(detached)->GetReferenceCount(), 4U);
        EXPECT_EQ(detached->AddRef(), 4U);
        ZAMRef<Living>::Adopt(detached) = {};
        EXPECT_EQ(moved->GetReferenceCount(), 3U);
    }
    EXPECT_EQ(living, 0);
    EXPECT_FALSE(ZAMRef<Living>::Share(nullptr));
}

TEST(RefTest, WithoutMemoryThereIsNull) {
    EXPECT_FALSE(ZAMNew<Unallocatable>());
    EXPECT_FALSE(ZAMNew<FailsInside>());
}

TEST(RefTest, ManyThreadsCountOneObject) {
    int living = 0;
    {
        const ZAMRef<Living> shared = ZAMNew<Living>(living);
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&shared] {
                for (int n = 0; n < 100'000; ++n) {
                    ZAMRef<Living> mine = shared;
                    mine = {};
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_EQ(shared->GetReferenceCount(), 1U);
    }
    EXPECT_EQ(living, 0);
}

TEST(MetaObjectTest, AClassIsAKindOfItsBases) {
    static constexpr ZAMMetaObject kBase{"Base", 1, nullptr, "", "", 8};
    constexpr ZAMMetaObject kDerived{"Derived", 1, &kBase, "", "", 16};
    EXPECT_TRUE(kDerived.IsAKindOf("Derived") && kDerived.IsAKindOf("Base"));
    EXPECT_TRUE(!kBase.IsAKindOf("Derived") && !kDerived.IsAKindOf("base") && !kDerived.IsAKindOf(""));
}
