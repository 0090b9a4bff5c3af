// SPDX-License-Identifier: GPL-3.0-or-later
// One line of a scenario, read word by word. After the first error every word reads as empty or as
// the smallest value, so that a statement need not check each word. The line may be any bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvra::virtual_sensors {

struct Unit {
    std::string_view name;
    double factor;
};

struct Quantity {
    double value;  // the number times the unit's factor
    std::string_view unit;
};

class Words {
public:
    // Splits at white space. Text in double quotes is one word; '#' outside them ends the line.
    explicit Words(std::string_view line);

    bool AtEnd() const { return next_ == words_.size(); }

    // Takes the next word if it is this one.
    bool Take(std::string_view word);

    // Takes the next word, which must be there. `what` names it in the message.
    std::string Text(std::string_view what);

    int64_t Whole(std::string_view what, int64_t smallest, int64_t largest);
    double Number(std::string_view what, double smallest, double largest);
    Quantity Measure(std::string_view what, std::span<const Unit> units, double smallest,
                     double largest);

    double Reading();  // any number, including "nan", "inf" and "-inf"
    double Time();     // 0 to 1e9 s; a 0 at the end needs no unit
    double Level(std::string_view what, std::string_view unit);  // dB or dBm, -300 to 300

    void Fail(std::string message);
    // Empty if there is no error.
    const std::string& Error() const { return error_; }

private:
    bool FailUnless(bool inRange, std::string_view what);

    std::vector<std::string> words_;
    std::size_t next_ = 0;
    std::string error_;
};

}  // namespace kelvra::virtual_sensors
