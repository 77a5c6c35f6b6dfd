#include "config/number.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

#include "config/config_map.h"

constexpr double Largest = std::numeric_limits<double>::max();
constexpr double Infinite = std::numeric_limits<double>::infinity();

TEST(Number, ReadsWhatATextBeginsWith) {
    const std::string manyZeros(400, '0');
    const std::pair<double, std::vector<std::string>> rows[] = {
        {0, {"", "-", ".", "e5", "abc", "&H", "-&H10", "--1", "0e99999999999999999999"}},
        {0, {"1e-400", "1e-99999999999999999999", "." + manyZeros + "1"}},
        {1, {"1\r2", "1e", "1e-", "1.", "." + manyZeros + "1e401"}},
        {123, {"1 2\n\t3", "123}4", "+123x", "0000000000000123"}},
        {-1.5, {"-1.5.5", "-15d-1", "-.15E+1"}},
        {1000, {"1e3", "1e3e3", "1D+3", "&H3e8", "& h3E8g", "&o17508"}},
        {9007199254740991, {"&H1FFFFFFFFFFFFF", "&O377777777777777777", "9007199254740991"}},
        {Largest, {"1e400", "1e99999999999999999999", std::string(400, '9'), "&H1" + manyZeros}},
        {-Largest, {"-1d400"}},
    };
    for (const auto& [number, texts] : rows) {
        for (const std::string& text : texts) {
            EXPECT_EQ(NumberValue(text), number) << text;
        }
    }
}

TEST(Number, IsWrittenInItsShortestForm) {
    const std::pair<std::string, std::vector<ConfigValue>> rows[] = {
        {"0", {false, -0.0, 0.0F, std::numeric_limits<double>::quiet_NaN()}},
        {"1", {true, std::int16_t{1}, 1.0F}},
        {"-2147483648", {INT_MIN, -2147483648.0}},
        {"-0.1", {-0.1F, -0.1}},
        {"0.1234568", {0.1234567891F}},
        {"0.333333333333333", {1.0 / 3}},
        {"1234567", {1234567.0F, 1234567}},
        {"1E+07", {1e7F}},
        {"-1.5E-07", {-1.5e-7}},
        {"1.79769313486232E+308", {Infinite}},
    };
    for (const auto& [text, values] : rows) {
        for (const ConfigValue& value : values) {
            EXPECT_EQ(value.AsText(), text);
        }
    }
}

TEST(Number, IsConvertedFromEveryKindOfValue) {
    const std::tuple<ConfigValue, double, std::int32_t> rows[] = {
        {std::make_shared<ConfigMap>(), 0, 0},
        {true, 1, 1},
        {" 1 2.5x", 12.5, 12},
        {13.5F, 13.5, 14},
        {-0.5, -0.5, 0},
        {-2147483648.5, -2147483648.5, INT_MIN},
        {Infinite, Infinite, INT_MAX}};
    for (const auto& [value, number, whole] : rows) {
        EXPECT_EQ(value.AsNumber(), number);
        EXPECT_EQ(value.AsWhole(), whole);
    }
    EXPECT_EQ(ConfigValue(std::numeric_limits<double>::quiet_NaN()).AsWhole(), 0);
}
