// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"

#include "framework/model/ZAMPrtEltOf.h"

const ZAMMetaObject& ZAMPrtGraphicPrimitiveElt::MetaObject() {
    static constexpr ZAMMetaObject kMetaObject =
        ZAMPrtMetaObjectOf(ClassName(), nullptr, sizeof(ZAMPrtGraphicPrimitiveElt));
    return kMetaObject;
}

ZAMPrtGraphicPrimitiveElt::ZAMPrtGraphicPrimitiveElt(const ZAMPrtGraphicPrimitiveElt& other)
    : ZAMBaseUnknown(other), _Transform(other._Transform), _Id(other._Id),
      _Texts(other._Texts ? std::make_unique<RareTexts>(*other._Texts) : nullptr) {}

ZAMPrtGraphicPrimitiveElt::RareTexts& ZAMPrtGraphicPrimitiveElt::Texts() {
    if (!_Texts) {
        _Texts = std::make_unique<RareTexts>();
    }
    return *_Texts;
}
