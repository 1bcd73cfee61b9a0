// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/document/ZAMPrepressTree.h"

/// Makes a group show no more of its content than the box, in the content's own coordinates: by a clipPath that becomes
/// its first child. The group has had no clip-path before.
void ZAMPrepressSetClip(ZAMPrepressElement& group, const ZAMMathBox2D& box, ZAMPrepressIds& ids, ZAMPrepressTree& tree);

/// A new group for the element's place, with its transform, that shows no more of it than the box.
ZAMPrepressElement& ZAMPrepressWrapToClip(ZAMPrepressElement& element, const ZAMMathBox2D& box, ZAMPrepressIds& ids,
                                          ZAMPrepressTree& tree);

/// A new group for the element's place, with its transform.
ZAMPrepressElement& ZAMPrepressWrap(ZAMPrepressElement& element, ZAMPrepressTree& tree);
