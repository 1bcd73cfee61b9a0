// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMAllocationBudget.h"

#include <concepts>
#include <new>
#include <utility>

/// Owns one reference to a ZAMBaseUnknown object, or none.
template <class T> class ZAMRef {
public:
    ZAMRef() noexcept = default;
    ZAMRef(const ZAMRef& other) noexcept : ZAMRef(Share(other._Object)) {}
    ZAMRef(ZAMRef&& other) noexcept : _Object(std::exchange(other._Object, nullptr)) {}
    template <std::derived_from<T> Derived>
    // NOLINTNEXTLINE(google-explicit-constructor): converts as a pointer to a derived class does.
    ZAMRef(ZAMRef<Derived> other) noexcept : _Object(other.Detach()) {}
    ZAMRef& operator=(ZAMRef other) noexcept {
        std::swap(_Object, other._Object);
        return *this;
    }
    ~ZAMRef() {
        if (_Object != nullptr) {
            _Object->Release();
        }
    }

    /// Takes over the caller's reference.
    static ZAMRef Adopt(T* object) noexcept { return ZAMRef(object); }

    /// Takes a reference of its own; null gives null.
    static ZAMRef Share(T* object) noexcept {
        if (object != nullptr) {
            object->AddRef();
        }
        return ZAMRef(object);
    }

    /// Hands the reference to the caller, who releases it.
    [[nodiscard]] T* Detach() noexcept { return std::exchange(_Object, nullptr); }

    [[nodiscard]] T* Get() const noexcept { return _Object; }
    T& operator*() const noexcept { return *_Object; }
    T* operator->() const noexcept { return _Object; }
    explicit operator bool() const noexcept { return _Object != nullptr; }
    bool operator==(const ZAMRef&) const noexcept = default;

private:
    explicit ZAMRef(T* object) noexcept : _Object(object) {}

    T* _Object = nullptr;
};

/// The allocator of reference-counted objects: a new T with its first reference, or null when memory is out or the
/// thread's ZAMAllocationBudget is spent.
template <class T, class... Arguments> [[nodiscard]] ZAMRef<T> ZAMNew(Arguments&&... arguments) noexcept {
    if (ZAMAllocationBudget::IsCurrentSpent()) {
        return {};
    }
    try {
        return ZAMRef<T>::Adopt(new T(std::forward<Arguments>(arguments)...));
    } catch (const std::bad_alloc&) {
        return {};
    }
}
