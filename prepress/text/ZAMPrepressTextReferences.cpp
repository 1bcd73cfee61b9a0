// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextReferences.h"

#include "prepress/geometry/ZAMPrepressLength.h"

const ZAMPrepressElement* ZAMPrepressTextReferences::FindTarget(const ZAMPrepressElement& element) {
    if (!_Ids) {
        _Ids.emplace(_Tree);
    }
    return _Ids->FindLink(element.Get("xlink:href"));
}

const ZAMPrepressTextReferences::Path* ZAMPrepressTextReferences::FindPath(const ZAMPrepressElement& textPath) {
    const ZAMPrepressElement* const target = FindTarget(textPath);
    if (target == nullptr) {
        return nullptr;
    }
    const auto [known, isNew] = _Paths.try_emplace(target);
    if (isNew) {
        const auto path = ZAMPrepressPath::Of(*target);
        const auto map = ZAMPrepressReadTransform(target->Get("transform")).value_or(ZAMMathAffine2D());
        const ZAMPrepressPathLine line(path.value_or(ZAMPrepressPath()), map);
        const double authorLength = ZAMPrepressNumberOr(*target, "pathLength", 0.0);
        known->second =
            std::make_unique<const Path>(Path{line, authorLength > 0.0 ? line.GetLength() / authorLength : 1.0});
    }
    return known->second->line.GetLength() > 0.0 ? known->second.get() : nullptr;
}
