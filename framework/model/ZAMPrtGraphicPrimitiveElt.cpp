// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"

#include "framework/model/ZAMPrtEltOf.h"

const ZAMMetaObject& ZAMPrtGraphicPrimitiveElt::MetaObject() {
    static constexpr ZAMMetaObject kMetaObject =
        ZAMPrtMetaObjectOf(ClassName(), nullptr, sizeof(ZAMPrtGraphicPrimitiveElt));
    return kMetaObject;
}

const ZAMPrtGraphicPrimitiveElt::Texts ZAMPrtGraphicPrimitiveElt::kNoTexts;
const ZAMPrtTransformAttributes ZAMPrtGraphicPrimitiveElt::kNoTransform;

ZAMPrtGraphicPrimitiveElt::ZAMPrtGraphicPrimitiveElt(const ZAMPrtGraphicPrimitiveElt& other)
    : ZAMBaseUnknown(other),
      _Transform(other._Transform ? std::make_unique<ZAMPrtTransformAttributes>(*other._Transform) : nullptr),
      _Texts(other._Texts ? std::make_unique<Texts>(*other._Texts) : nullptr) {}

void ZAMPrtGraphicPrimitiveElt::SetTransformAttributes(const ZAMPrtTransformAttributes& transform) {
    if (_Transform) {
        *_Transform = transform;
    } else if (!transform.IsIdentity()) {
        _Transform = std::make_unique<ZAMPrtTransformAttributes>(transform);
    }
}

void ZAMPrtGraphicPrimitiveElt::SetText(ZAMUnicodeString Texts::*which, std::string_view text) {
    if (!_Texts && !text.empty()) {
        _Texts = std::make_unique<Texts>();
    }
    if (_Texts) {
        (*_Texts).*which = text;
    }
}
