// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMBaseUnknown.h"
#include "framework/base/ZAMMetaObject.h"
#include "framework/base/ZAMRef.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/model/ZAMPrtTransformAttributes.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

class ZAMPrtGraphicPrimitiveElt;

/// The children of an element, as they are handed out: in drawing order, each with the reference that the container
/// holds.
using ZAMPrtChildSpan = std::span<const ZAMRef<ZAMPrtGraphicPrimitiveElt>>;

/// Any element of the print model.
///
/// The model is what stands between reading a document and drawing it. It holds numbers in user units (90 to the inch,
/// y upward) and resolved values: no units or percentages, no inheritance, no relative commands, no references that are
/// still to be looked up. Colours are indices into the colour table of the image element above.
class ZAM_EXPORT ZAMPrtGraphicPrimitiveElt : public ZAMBaseUnknown {
public:
    static constexpr std::string_view ClassName() { return "ZAMPrtGraphicPrimitiveElt"; }
    static const ZAMMetaObject& MetaObject();

    /// The constant description of the element's class.
    [[nodiscard]] virtual const ZAMMetaObject& GetMetaObject() const = 0;
    /// The name of the element's class: kinds are told apart by comparing it with a class's ClassName().
    [[nodiscard]] virtual std::string_view IsA() const = 0;
    [[nodiscard]] bool IsAKindOf(std::string_view className) const { return GetMetaObject().IsAKindOf(className); }
    /// Elements are not created by name: always null.
    static ZAMPrtGraphicPrimitiveElt* CreateItself() { return nullptr; }

    /// A deep copy, or null when memory is out. Costs the thread's ZAMAllocationBudget what the copy costs.
    [[nodiscard]] virtual ZAMRef<ZAMPrtGraphicPrimitiveElt> Duplicate() const = 0;
    /// What it takes to draw the element, without its children: 1, and more for long lists of points and long texts.
    [[nodiscard]] virtual std::size_t GetCost() const { return 1; }

    /// The element's children; valid until they change, empty for an element that is no container.
    [[nodiscard]] virtual ZAMPrtChildSpan GetChildren() const { return {}; }

    void SetID(std::string_view id) { SetText(&Texts::id, id); }
    [[nodiscard]] const ZAMUnicodeString& GetID() const { return GetTexts().id; }
    void SetTitle(std::string_view title) { SetText(&Texts::title, title); }
    [[nodiscard]] std::string_view GetTitle() const { return GetTexts().title; }
    void SetDescription(std::string_view description) { SetText(&Texts::description, description); }
    [[nodiscard]] std::string_view GetDescription() const { return GetTexts().description; }

    [[nodiscard]] const ZAMPrtTransformAttributes& GetTransformAttributes() const {
        return _Transform ? *_Transform : kNoTransform;
    }
    void SetTransformAttributes(const ZAMPrtTransformAttributes& transform);

protected:
    ZAMPrtGraphicPrimitiveElt() = default;
    ZAMPrtGraphicPrimitiveElt(const ZAMPrtGraphicPrimitiveElt& other);
    ~ZAMPrtGraphicPrimitiveElt() override = default;

    /// Makes a fresh copy independent of its source; containers replace the children they share by copies.
    virtual void OwnChildren() {}

private:
    friend class ZAMPrtChildren;

    struct Texts {
        ZAMUnicodeString id;
        ZAMUnicodeString title;
        ZAMUnicodeString description;
    };
    static const Texts kNoTexts;
    static const ZAMPrtTransformAttributes kNoTransform;

    void SetText(ZAMUnicodeString Texts::*which, std::string_view text);
    [[nodiscard]] const Texts& GetTexts() const { return _Texts ? *_Texts : kNoTexts; }

    bool _WasAttached = false; // a container took it as a child once
    // A path is many small pieces, and a piece has neither a transform nor texts: null then.
    std::unique_ptr<ZAMPrtTransformAttributes> _Transform;
    std::unique_ptr<Texts> _Texts;
};

/// The element as a `T`, or null when its class is not exactly `T`.
template <class T> T* ZAMPrtCast(ZAMPrtGraphicPrimitiveElt* element) {
    return element != nullptr && element->IsA() == T::ClassName() ? static_cast<T*>(element) : nullptr;
}
template <class T> const T* ZAMPrtCast(const ZAMPrtGraphicPrimitiveElt* element) {
    return element != nullptr && element->IsA() == T::ClassName() ? static_cast<const T*>(element) : nullptr;
}
