// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtChildren.h"

/// Gives an element class children, on top of the attributes of `Base`.
template <class Base> class ZAM_EXPORT ZAMPrtContainerOf : public Base {
public:
    /// Appends a child and takes a reference; see ZAMPrtChildren::Add for what is ignored.
    void AddChild(ZAMPrtGraphicPrimitiveElt* child) { _Children.Add(*this, child); }
    /// Removes the first occurrence of a child and gives its reference back.
    void RemoveChild(ZAMPrtGraphicPrimitiveElt* child) { _Children.Remove(child); }
    [[nodiscard]] ZAMPrtChildSpan GetChildren() const override { return _Children.GetSpan(); }

protected:
    void OwnChildren() override { _Children.Own(); }

private:
    ZAMPrtChildren _Children;
};
