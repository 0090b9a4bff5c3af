// SPDX-License-Identifier: GPL-3.0-or-later
// A field: an editing control together with its caption and unit. Help topic and tooltip are those
// of every control. The rules use a field as the text box, list ... that it is; front ends lay its
// parts out in a row.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "controls/kinds.h"
#include "controls/list.h"
#include "controls/option_group.h"

namespace kelvra::controls {

struct FieldParts {
    std::string label{};    // name of the caption's label; the unit's label adds "Unit" to it
    std::string caption{};  // empty: no label; the control's text or the row's label serves
    std::string unit{};     // empty: none
    int helpTopic = 0;
};

class Field {
public:
    Field(Control& parent, const FieldParts& parts) {
        if (!parts.caption.empty()) captionLabel.emplace(parent, parts.label, parts.caption);
        if (!parts.unit.empty()) unitLabel.emplace(parent, parts.label + "Unit", parts.unit);
    }

    std::optional<Label> captionLabel;
    std::optional<Label> unitLabel;
};

template <class Editor>
class FieldOf : public Editor, public Field {
public:
    // `own` is what the kind of control takes after its declaration.
    template <class... Own>
    FieldOf(Control& parent, const std::string& name, const FieldParts& parts, Own&&... own)
        : Editor(parent, name, std::forward<Own>(own)...), Field(parent, parts) {
        this->access.helpTopic = parts.helpTopic;
    }

    const Field* AsField() const override { return this; }
};

using TextField = FieldOf<TextBox>;
using CheckField = FieldOf<CheckBox>;
using ListField = FieldOf<List>;
using OptionField = FieldOf<OptionGroup>;

}  // namespace kelvra::controls
