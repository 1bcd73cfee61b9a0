// SPDX-License-Identifier: MIT
#include "prepress/document/ZAMPrepressElement.h"

void ZAMPrepressElement::Set(std::string_view attribute, std::string_view value) {
    for (Attribute& each : attributes) {
        if (each.name == attribute) {
            each.value = value;
            return;
        }
    }
    attributes.push_back({attribute, value});
}

void ZAMPrepressElement::Remove(std::string_view attribute) {
    std::erase_if(attributes, [attribute](const Attribute& each) { return each.name == attribute; });
}
