// SPDX-License-Identifier: GPL-3.0-or-later
// The two forms in which readings are recorded: heading, lines, and a remark about lines that are
// missing. A form makes text; when a line is due, and how it gets into the file, is the recorder's
// business.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/computer.h"

namespace kelvra::measure {

// A slot of the sensor table in a pass, the spare element included.
struct RecordedSlot {
    std::string name;
    bool present = false;                          // there is a sensor in it
    bool measured = false;                         // in this measurement, or else in the next one
    std::optional<std::array<double, 2>> reading;  // of this pass: W, dBm
};

class RecordFormat {
public:
    virtual ~RecordFormat() = default;

    virtual std::string Heading(const std::vector<RecordedSlot>& slots) = 0;
    // Whether the file may have further headings. If not, the lines keep the columns of the first.
    virtual bool RepeatsHeading() const = 0;
    // A pass that began at that time. The slots are as many as in the last heading.
    virtual std::string Line(const platform::LocalTime& began,
                             const std::vector<RecordedSlot>& slots) const = 0;
    // A line that says something at that time; empty if the form has none.
    virtual std::string Remark(const platform::LocalTime& now, const std::string& text) const = 0;
};

// Fields that end with ";" and lines that end with CR LF, with date, time and numbers as the locale
// writes them. The heading names all slots. A line has the present sensors only, so the columns
// stand below their headings if all slots have one.
std::unique_ptr<RecordFormat> MakeTableFormat(platform::Computer& computer);

// Comma-separated values (RFC 4180) in UTF-8 with a decimal point in every locale, for programs.
// One heading names the time and, for each sensor that is switched on, its power in W and its level
// in dBm. Times are ISO 8601 with milliseconds and the offset from UTC. Numbers have as many digits
// as are needed to read the same value. What is missing or not finite is empty.
std::unique_ptr<RecordFormat> MakeAnalysisFormat();

}  // namespace kelvra::measure
