// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/legal_notes.h"

#include <string_view>
#include <utility>

#include "ui/rich_text.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {

constexpr std::string_view Own =
    "Copyright (C) 2026 The Kelvra developers\n"
    "\n"
    "This program is free software: you can redistribute it and/or modify it under the terms of "
    "the GNU General Public License as published by the Free Software Foundation, either version 3 "
    "of the License, or (at your option) any later version.\n"
    "\n"
    "This program is distributed in the hope that it will be useful, but WITHOUT ANY WARRANTY; "
    "without even the implied warranty of MERCHANTABILITY or FITNESS FOR A PARTICULAR PURPOSE. See "
    "the GNU General Public License for more details.\n"
    "\n"
    "The text of the licence is in the file LICENSE that comes with the program; it is also at "
    "https://www.gnu.org/licenses/gpl-3.0.html. The pictures and the guide have the same "
    "licence.\n";

// What the programs are linked with. `files` are the names by which the programs ask for a shared
// library; the notes show them.
struct Component {
    std::string_view name;
    std::string_view use;  // by which program
    std::string_view files;
    std::string_view holder;
    std::string_view licence;
    std::string_view where;  // the text of the licence
};

constexpr std::string_view Both = "both programs";
constexpr std::string_view Desktop = "the desktop program";

constexpr Component Components[] = {
    {"Qt 6", Desktop,
     "libQt6Core.so.6, libQt6Gui.so.6, libQt6Widgets.so.6, libQt6Svg.so.6, libQt6PrintSupport.so.6",
     "Copyright (C) The Qt Company Ltd. and other contributors",
     "GNU Lesser General Public License, version 3",
     "https://www.gnu.org/licenses/lgpl-3.0.html; what Qt itself contains: "
     "https://doc.qt.io/qt-6/licenses-used-in-qt.html"},
    {"QCustomPlot", Desktop, "libQCustomPlotQt6.so.2.1",
     "Copyright (C) 2011-2021 Emanuel Eichhammer", "GNU General Public License, version 3 or later",
     "https://www.gnu.org/licenses/gpl-3.0.html"},
    {"GNU C++ library", Both, "libstdc++.so.6", "Copyright (C) Free Software Foundation, Inc.",
     "GNU General Public License, version 3 or later, with the GCC Runtime Library Exception, "
     "version 3.1",
     "https://www.gnu.org/licenses/gcc-exception-3.1.html"},
    {"GCC support library", Both, "libgcc_s.so.1", "Copyright (C) Free Software Foundation, Inc.",
     "GNU General Public License, version 3 or later, with the GCC Runtime Library Exception, "
     "version 3.1",
     "https://www.gnu.org/licenses/gcc-exception-3.1.html"},
    {"GNU C library", Both,
     "libc.so.6, libm.so.6, libdl.so.2, ld-linux-x86-64.so.2, "
     "ld-linux-aarch64.so.1",
     "Copyright (C) Free Software Foundation, Inc. and others",
     "GNU Lesser General Public License, version 2.1 or later",
     "https://www.gnu.org/licenses/old-licenses/lgpl-2.1.html"},
    {"CLI11", Both, "compiled in",
     "Copyright (c) 2017-2021 University of Cincinnati, developed by Henry Schreiner under NSF "
     "AWARD 1414736 and by the respective contributors. All rights reserved.",
     "BSD licence with three clauses", "at the end of these notes"},
};

// The licence of CLI11 asks for its text wherever the program goes.
constexpr std::string_view CliLicence =
    "Redistribution and use in source and binary forms of CLI11, with or without modification, are "
    "permitted provided that the following conditions are met:\n"
    "\n"
    "1. Redistributions of source code must retain the above copyright notice, this list of "
    "conditions and the following disclaimer.\n"
    "2. Redistributions in binary form must reproduce the above copyright notice, this list of "
    "conditions and the following disclaimer in the documentation and/or other materials provided "
    "with the distribution.\n"
    "3. Neither the name of the copyright holder nor the names of its contributors may be used to "
    "endorse or promote products derived from this software without specific prior written "
    "permission.\n"
    "\n"
    "THIS SOFTWARE IS PROVIDED BY THE COPYRIGHT HOLDERS AND CONTRIBUTORS \"AS IS\" AND ANY EXPRESS "
    "OR IMPLIED WARRANTIES, INCLUDING, BUT NOT LIMITED TO, THE IMPLIED WARRANTIES OF "
    "MERCHANTABILITY AND FITNESS FOR A PARTICULAR PURPOSE ARE DISCLAIMED. IN NO EVENT SHALL THE "
    "COPYRIGHT OWNER OR CONTRIBUTORS BE LIABLE FOR ANY DIRECT, INDIRECT, INCIDENTAL, SPECIAL, "
    "EXEMPLARY, OR CONSEQUENTIAL DAMAGES (INCLUDING, BUT NOT LIMITED TO, PROCUREMENT OF SUBSTITUTE "
    "GOODS OR SERVICES; LOSS OF USE, DATA, OR PROFITS; OR BUSINESS INTERRUPTION) HOWEVER CAUSED "
    "AND ON ANY THEORY OF LIABILITY, WHETHER IN CONTRACT, STRICT LIABILITY, OR TORT (INCLUDING "
    "NEGLIGENCE OR OTHERWISE) ARISING IN ANY WAY OUT OF THE USE OF THIS SOFTWARE, EVEN IF ADVISED "
    "OF THE POSSIBILITY OF SUCH DAMAGE.\n";

// Each line of the text.
void AddLines(std::string& document, std::string_view text) {
    while (!text.empty()) {
        const util::SplitText line = util::SplitAtFirst(text, '\n');
        AddRtfLine(document, line.before);
        text = line.after;
    }
}

void AddHeading(std::string& document, std::string_view text) {
    AddRtfLine(document, text, {.bold = true});
}

void AddComponent(std::string& document, const Component& component) {
    AddRtfLine(document, "");
    AddRtfLine(document, component.name, {.newLine = false, .bold = true});
    AddRtfLine(document, " (" + std::string(component.files) + ")");
    AddRtfLine(document, component.holder);
    for (const auto& [label, value] :
         {std::pair("Used by ", component.use), std::pair("Licence: ", component.licence),
          std::pair("Its text: ", component.where)})
        AddRtfLine(document, label + std::string(value));
}

}  // namespace

std::string LegalNotes() {
    std::string document = RtfBeginning();
    AddHeading(document, "Kelvra");
    AddLines(document, Own);
    AddRtfLine(document, "");
    AddHeading(document, "What Kelvra is linked with");
    for (const Component& component : Components) AddComponent(document, component);
    AddRtfLine(document, "");
    AddHeading(document, "Licence of CLI11");
    AddLines(document, CliLicence);
    return ShownRtf(document);
}

}  // namespace kelvra::ui
