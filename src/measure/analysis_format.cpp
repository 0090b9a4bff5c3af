// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <set>

#include "measure/record_format.h"
#include "platform/clock.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::measure {

namespace {

constexpr const char* LineEnd = "\r\n";
constexpr const char* Units[] = {" (W)", " (dBm)"};

class AnalysisFormat final : public RecordFormat {
public:
    std::string Heading(const std::vector<RecordedSlot>& slots) override {
        columns_.clear();
        std::set<std::string> names;
        std::string heading = "Time";
        for (std::size_t slot = 0; slot < slots.size(); ++slot) {
            if (!slots[slot].present || !slots[slot].measured) continue;
            columns_.push_back(slot);
            const std::string name = UniqueName(slots[slot].name, slot, names);
            for (const char* unit : Units) heading.append(",").append(util::CsvField(name + unit));
        }
        return heading + LineEnd;
    }

    bool RepeatsHeading() const override { return false; }

    std::string Line(const platform::LocalTime& began,
                     const std::vector<RecordedSlot>& slots) const override {
        std::string line = platform::IsoText(began);
        for (const std::size_t slot : columns_) {
            const auto& reading = slots[slot].reading;
            for (const std::size_t quantity : {0, 1}) {
                line += ',';
                if (reading && std::isfinite((*reading)[quantity]))
                    line += util::ShortestNumberText((*reading)[quantity]);
            }
        }
        return line + LineEnd;
    }

    std::string Remark(const platform::LocalTime&, const std::string&) const override { return {}; }

private:
    // Names may repeat, columns may not.
    static std::string UniqueName(const std::string& given, std::size_t slot,
                                  std::set<std::string>& names) {
        std::string name = util::ShownText(util::CleanText(given));
        while (!names.insert(name).second)
            name.append(" [").append(util::TrimmedNumberText(slot + 1)).append("]");
        return name;
    }

    std::vector<std::size_t> columns_;  // the slots of the heading
};

}  // namespace

std::unique_ptr<RecordFormat> MakeAnalysisFormat() {
    return std::make_unique<AnalysisFormat>();
}

}  // namespace kelvra::measure
