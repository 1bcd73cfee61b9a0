// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtFillAttributes.h"
#include "framework/model/ZAMPrtStrokeAttributes.h"
#include "framework/model/ZAMPrtTextAttributes.h"
#include "ZAMPrtInterpreterSVG/defs/ZAMPrintSVGReference.h"

#include <memory>
#include <optional>
#include <utility>

/// The attributes that an element hands down to its children: a plain value.
struct ZAMPrintSVGAttributeState {
    unsigned int _StrokeColourIndex = 0; ///< what "currentColor" means as a stroke
    unsigned int _FillColourIndex = 0;   ///< what "currentColor" means as a fill
    // The markers at the first vertex, at those in between and at the last one; null for none.
    std::shared_ptr<const ZAMPrintSVGReference> _MarkerStartRef;
    std::shared_ptr<const ZAMPrintSVGReference> _MarkerMidRef;
    std::shared_ptr<const ZAMPrintSVGReference> _MarkerEndRef;
    ZAMPrtDrawStyle _DrawStyle = ZAMPrtDrawStyle::Fill;
    ZAMPrtStrokeAttributes _StrokeAttributes;
    ZAMPrtFillAttributes _FillAttributes;
    ZAMPrtTextAttributes _TextAttributes;
};

/// What a kind of element saves of the state.
enum class ZAMPrintSVGSaved {
    All,   ///< containers and text
    Paint, ///< all but the text attributes: what the style of a shape sets there stays set
    Text,  ///< a container without a property of its own: only the shapes in it may leave something behind
    Nothing
};

/// Saves the state of a parser and writes it back at the end of the scope, so that nothing an element sets reaches its
/// siblings.
class ZAMPrintSVGStateScope {
public:
    explicit ZAMPrintSVGStateScope(ZAMPrintSVGAttributeState& state, ZAMPrintSVGSaved what = ZAMPrintSVGSaved::All)
        : _State(state), _What(what) {
        if (what == ZAMPrintSVGSaved::All || what == ZAMPrintSVGSaved::Paint) {
            _Saved = state;
        } else if (what == ZAMPrintSVGSaved::Text) {
            _SavedText = state._TextAttributes;
        }
    }
    ZAMPrintSVGStateScope(const ZAMPrintSVGStateScope&) = delete;
    ZAMPrintSVGStateScope& operator=(const ZAMPrintSVGStateScope&) = delete;
    ~ZAMPrintSVGStateScope() {
        if (_What == ZAMPrintSVGSaved::Text) {
            _State._TextAttributes = _SavedText;
        }
        if (!_Saved) {
            return;
        }
        if (_What == ZAMPrintSVGSaved::Paint) {
            _Saved->_TextAttributes = _State._TextAttributes;
        }
        _State = *std::move(_Saved);
    }

private:
    ZAMPrintSVGAttributeState& _State;
    std::optional<ZAMPrintSVGAttributeState> _Saved;
    ZAMPrtTextAttributes _SavedText;
    ZAMPrintSVGSaved _What;
};
