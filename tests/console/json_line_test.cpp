// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/json_line.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "console/output.h"

namespace kelvra::console {
namespace {

TEST(JsonLine, PutsCommasAndBracketsWhereTheyBelong) {
    JsonLine json;
    json.BeginObject().Member("a", 1).Key("b").BeginList().EndList();
    json.Key("c").BeginList().Value(true).Null().BeginObject().EndObject().Value("x").EndList();
    json.Member("d", false).EndObject();
    EXPECT_EQ(json.Text(), R"({"a":1,"b":[],"c":[true,null,{},"x"],"d":false})");
}

TEST(JsonLine, NumbersReadBackTheSameAndWhatIsNotFiniteIsNull) {
    using Limits = std::numeric_limits<double>;
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {0, "0"},
        {-0.5, "-0.5"},
        {0.1, "0.1"},
        {1e300, "1e+300"},
        {5e-324, "5e-324"},
        {NAN, "null"},
        {Limits::infinity(), "null"},
        {-Limits::infinity(), "null"},
    };
    for (const auto& c : cases) EXPECT_EQ(JsonLine().Value(c.value).Text(), c.text);
    EXPECT_EQ(JsonLine().Value(std::numeric_limits<std::int64_t>::min()).Text(),
              "-9223372036854775808");
}

TEST(JsonLine, TextsAreEscapedAndAlwaysValid) {
    const struct {
        std::string text;
        std::string quoted;
    } cases[] = {
        {"", R"("")"},
        {R"(a"b\c/)", R"("a\"b\\c/")"},
        {"\t\r\n", R"("\t\r\n")"},
        {std::string("\0\x1f\x7f", 3), "\"\\u0000\\u001F\x7f\""},
        {"\u00b5\u20ac", "\"\u00b5\u20ac\""},
        {"a\xff"
         "b",
         "\"a\ufffd"
         "b\""},
        {"\xe2\x82", "\"\ufffd\ufffd\""},            // cut off
        {"\xc0\x80", "\"\ufffd\ufffd\""},            // longer than need be
        {"\xed\xa0\x80", "\"\ufffd\ufffd\ufffd\""},  // half of a pair
    };
    for (const auto& c : cases) EXPECT_EQ(JsonLine().Value(c.text).Text(), c.quoted);
}

TEST(JsonLine, ColoursAreRedGreenBlue) {
    EXPECT_EQ(JsonLine().Colour(controls::Green).Text(), "\"#00FF00\"");
    EXPECT_EQ(JsonLine().Colour(controls::DarkBlue).Text(), "\"#0000C0\"");
    EXPECT_EQ(JsonLine().Colour(controls::Yellow).Text(), "\"#FFFF00\"");
}

TEST(OneLine, EveryLineBreakBecomesOneMark) {
    EXPECT_EQ(OneLine("a\r\nb\nc\rd\n\re\r"), R"(a\nb\nc\nd\n\ne\n)");
}

}  // namespace
}  // namespace kelvra::console
