// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/defs/ZAMPrintSVGDefinitions.h"

std::size_t ZAMPrintSVGDefinitions::Append(ZAMRef<ZAMPrtDefsElt> definition) {
    _Frames.emplace_back();
    _NotReady.push_back(_Frames.size());
    _List.Append(std::move(definition));
    return _List.GetCount();
}

ZAMPrintSVGDefinitions::Found ZAMPrintSVGDefinitions::Find(const ZAMPrintSVGReference& id) {
    const std::optional<Position> unfinished = IndexNewChildren(id);
    const auto matches = _Index.find(id);
    if (matches != _Index.end()) {
        auto& [position, isCompleted] = *matches->second.begin();
        if (!unfinished || position < *unfinished) {
            return {&_List[position.first], ChildAt(position), &isCompleted};
        }
    }
    return unfinished ? Found{&_List[unfinished->first], ChildAt(*unfinished), nullptr} : Found{};
}

// The last child of a definition that is open may still be without its id, so it is asked each time: gives the first
// such child that matches. Those before it have theirs for good.
std::optional<ZAMPrintSVGDefinitions::Position>
ZAMPrintSVGDefinitions::IndexNewChildren(const ZAMPrintSVGReference& id) {
    std::optional<Position> unfinished;
    std::erase_if(_NotReady, [&](std::size_t definition) {
        const std::size_t count = _List[definition].GetChildren().size();
        if (!_Frames[definition - 1].isOpen) {
            Index(definition, count);
            return true;
        }
        if (count > 0) {
            const Position last{definition, count - 1};
            Index(definition, count - 1);
            if (!unfinished && id.Matches(ChildAt(last)->GetID())) {
                unfinished = last;
            }
        }
        return false;
    });
    return unfinished;
}

void ZAMPrintSVGDefinitions::Index(std::size_t definition, std::size_t end) {
    const ZAMPrtChildSpan children = _List[definition].GetChildren();
    for (std::size_t& child = _Frames[definition - 1].indexed; child < end; ++child) {
        _Index[ZAMPrintSVGReference(children[child]->GetID())].try_emplace({definition, child}, false);
    }
}

ZAMPrtGraphicPrimitiveElt* ZAMPrintSVGDefinitions::ChildAt(const Position& position) const {
    return _List[position.first].GetChildren()[position.second].Get();
}

void ZAMPrintSVGDefinitions::RemoveLast(int count) {
    if (count > 0 &&
        static_cast<std::size_t>(count) == _List.GetCount()) { // the end of a document: no need to look each one up
        *this = {};
        return;
    }
    for (; count > 0; --count) {
        const std::size_t last = _List.GetCount();
        Forget(last);
        if (!_NotReady.empty() && _NotReady.back() == last) {
            _NotReady.pop_back();
        }
        _Frames.pop_back();
        _List.RemoveLast();
    }
}

void ZAMPrintSVGDefinitions::Forget(std::size_t definition) {
    const ZAMPrtChildSpan children = _List[definition].GetChildren();
    for (std::size_t child = 0; child < _Frames[definition - 1].indexed; ++child) {
        const auto matches = _Index.find(ZAMPrintSVGReference(children[child]->GetID()));
        if (matches != _Index.end() && matches->second.erase({definition, child}) > 0 && matches->second.empty()) {
            _Index.erase(matches);
        }
    }
}
