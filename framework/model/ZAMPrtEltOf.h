// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMMetaObject.h"
#include "framework/base/ZAMRef.h"
#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"

#include <cstddef>
#include <new>
#include <string_view>

/// The meta object of an element class.
constexpr ZAMMetaObject ZAMPrtMetaObjectOf(std::string_view name, const ZAMMetaObject* base, std::size_t size) {
    return {name, 1, base, "ZAMnull", "PrtKernel", size};
}

/// Gives the element class `Self` what every element class has. `Self` derives from `ZAMPrtEltOf<Self, Base>`, where
/// Base is an element class or one of the attribute carriers, and declares its name (`kClassName`) and its members,
/// nothing else.
template <class Self, class Base> class ZAM_EXPORT ZAMPrtEltOf : public Base {
public:
    static constexpr std::string_view ClassName() { return Self::kClassName; }

    static const ZAMMetaObject& MetaObject() {
        static const ZAMMetaObject metaObject = ZAMPrtMetaObjectOf(ClassName(), &Base::MetaObject(), sizeof(Self));
        return metaObject;
    }

    [[nodiscard]] const ZAMMetaObject& GetMetaObject() const override { return MetaObject(); }
    [[nodiscard]] std::string_view IsA() const override { return Self::kClassName; }

    [[nodiscard]] ZAMRef<ZAMPrtGraphicPrimitiveElt> Duplicate() const override {
        if (!ZAMAllocationBudget::Spend(this->GetCost())) {
            return {};
        }
        const ZAMRef<Self> copy = ZAMNew<Self>(static_cast<const Self&>(*this));
        try {
            if (copy) {
                static_cast<ZAMPrtEltOf&>(*copy).OwnChildren();
            }
        } catch (const std::bad_alloc&) {
            return {};
        }
        return copy;
    }

protected:
    using Base::OwnChildren;
};
