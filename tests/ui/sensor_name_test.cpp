// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sensor_name.h"

#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

class SensorNameTest : public testing::Test, public test::WholeKelvra {};

TEST_F(SensorNameTest, ANameIsStoredForTheDeviceListAndAnEmptyOneIsTheChannel) {
    StartWith(2);
    auto& box = program->forms.setupForm.SensLogicalName;
    const struct {
        const char* typed;
        const char* name;
    } cases[] = {{" left ", " left "}, {"", "1"}};
    for (const auto& c : cases) {
        box.Type(c.typed);
        box.Press("Enter");
        EXPECT_EQ(program->table[0].LogicalName, c.name);
        EXPECT_EQ(box.Text(), c.name);
        EXPECT_EQ(Cell(0, 0).text, c.name);
        EXPECT_EQ(program->forms.setupForm.SensSelect.Items()[0].text, c.name);
    }
    EXPECT_EQ(fake.computer.registry,
              (std::vector<std::string>{"HKLM\\SOFTWARE\\Halvex\\TeskDll\\Sensors|PS-101;1|left",
                                        "HKLM\\SOFTWARE\\Halvex\\TeskDll\\Sensors|PS-101;1|1"}));
}

}  // namespace kelvra::ui
