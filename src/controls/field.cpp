// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/field.h"

namespace kelvra::controls {

Field::Field(Control& parent, const FieldParts& parts) : range(parts.range) {
    if (!parts.caption.empty()) captionLabel.emplace(parent, parts.label, parts.caption);
    if (!parts.unit.empty()) unitLabel.emplace(parent, parts.label + "Unit", parts.unit);
}

void Field::Describe(Control& editor, const FieldParts& parts) {
    editor.tooltip = parts.tooltip;
    editor.access = {
        .name = parts.name, .helpTopic = parts.helpTopic, .explanation = parts.explanation};
    std::string& explanation = editor.access.explanation;
    const std::string sentence = RangeSentence(parts.range, parts.unit);
    if (!explanation.empty() && !sentence.empty()) explanation += ' ';
    explanation += sentence;
}

}  // namespace kelvra::controls
