// SPDX-License-Identifier: GPL-3.0-or-later
// A field: an editing control together with its caption, its unit and the range of its numbers.
// Help topic and tooltip are those of every control. The rules use a field as the text box, list
// ... that it is; front ends lay its parts out in a row.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "controls/kinds.h"
#include "controls/list.h"
#include "controls/option_group.h"
#include "controls/range.h"

namespace kelvra::controls {

struct FieldParts {
    std::string label{};    // name of the caption's label; the unit's label adds "Unit" to it
    std::string caption{};  // empty: no label; the control's text or the row's label serves
    std::string unit{};     // empty: none
    int helpTopic = 0;
    std::string tooltip{};
    Range range{};              // in the unit
    std::string name{};         // what it is, if it has no caption
    std::string explanation{};  // if it has no tooltip
};

class Field {
public:
    Field(Control& parent, const FieldParts& parts);

    std::optional<Label> captionLabel;
    std::optional<Label> unitLabel;
    const Range range;

protected:
    // The explanation ends with the range.
    static void Describe(Control& editor, const FieldParts& parts);
};

template <class Editor>
class FieldOf : public Editor, public Field {
public:
    // `own` is what the kind of control takes after its declaration.
    template <class... Own>
    FieldOf(Control& parent, const std::string& name, const FieldParts& parts, Own&&... own)
        : Editor(parent, name, std::forward<Own>(own)...), Field(parent, parts) {
        Describe(*this, parts);
    }

    const Field* AsField() const override { return this; }
};

using TextField = FieldOf<TextBox>;
using CheckField = FieldOf<CheckBox>;
using ListField = FieldOf<List>;
using OptionField = FieldOf<OptionGroup>;

}  // namespace kelvra::controls
