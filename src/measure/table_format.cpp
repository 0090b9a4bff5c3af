// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/record_format.h"
#include "util/text.h"

namespace kelvra::measure {

namespace {

constexpr const char* LineEnd = "\r\n";
constexpr const char* FieldEnd = " ;";

// Of a remark, padded to ten characters.
constexpr const char* RemarkKind = "comment___";

class TableFormat final : public RecordFormat {
public:
    explicit TableFormat(platform::Computer& computer) : computer_(computer) {}

    std::string Heading(const std::vector<RecordedSlot>& slots) override {
        std::string heading = "Date;Time;";
        for (const RecordedSlot& slot : slots) {
            const std::string name = util::CleanText(slot.name);
            heading.append(name).append(" (W);").append(name).append(" (dBm);");
        }
        return heading + LineEnd;
    }

    bool RepeatsHeading() const override { return true; }

    std::string Line(const platform::LocalTime& began,
                     const std::vector<RecordedSlot>& slots) const override {
        std::string line = computer_.DateText(began) + FieldEnd;
        line.append(computer_.TimeText(began)).append(FieldEnd);
        for (const RecordedSlot& slot : slots) {
            if (!slot.present) continue;
            for (const std::size_t quantity : {0, 1}) {
                if (slot.reading) line += ValueText((*slot.reading)[quantity]);
                line += FieldEnd;
            }
        }
        return line + LineEnd;
    }

    // The time has the fraction of its second behind it: "12:00:01.250".
    std::string Remark(const platform::LocalTime& now, const std::string& text) const override {
        constexpr int decimals = 3;
        constexpr double msPerSecond = 1000;
        const std::string fraction =
            util::FixedText(now.ms / msPerSecond, decimals, computer_.Numbers()).substr(1);
        return computer_.TimeText(now) + fraction + ";  <" + RemarkKind + ">; " + text + LineEnd;
    }

private:
    // A number and its unit, which is empty.
    std::string ValueText(double value) const {
        return util::GeneralText(value, computer_.Numbers()) + " ";
    }

    platform::Computer& computer_;
};

}  // namespace

std::unique_ptr<RecordFormat> MakeTableFormat(platform::Computer& computer) {
    return std::make_unique<TableFormat>(computer);
}

}  // namespace kelvra::measure
