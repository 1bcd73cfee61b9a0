// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"

/// Element classes in the order in which their names are tried.
template <class... Types> struct ZAMPrtTypeList {
    /// Calls `visitor` with the element as the first listed class that it is. False when it is none of them.
    template <class Element, class Visitor> static bool Visit(Element* element, Visitor&& visitor) {
        return (VisitAs<Types>(element, visitor) || ...);
    }
    /// True when the element is of one of the listed classes.
    static bool Holds(const ZAMPrtGraphicPrimitiveElt* element) {
        return ((ZAMPrtCast<Types>(element) != nullptr) || ...);
    }

private:
    template <class Type, class Element, class Visitor> static bool VisitAs(Element* element, Visitor& visitor) {
        auto* typed = ZAMPrtCast<Type>(element);
        if (typed == nullptr) {
            return false;
        }
        visitor(*typed);
        return true;
    }
};
