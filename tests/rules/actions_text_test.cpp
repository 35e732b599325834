#include "actions/action.h"
#include "document/encoding.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

using Bytes = std::string;
using namespace std::string_literals;

struct Layout {
    Action action;
    Bytes bytes;
};

TEST(ActionText, EveryLayoutIsTheLiteralBytesBothWays)
{
    const Layout layouts[] = {
        {{0, {}}, "\0\0"s},
        {{1, {"MAIN"}}, "\x01\0\x04\0MAIN"s},
        {{4, {"ann"}}, "\x04\0\x03\0ann"s},
        {{8, {"-1"}}, "\x08\0\xFF\xFF"s},
        {{9, {"2"}}, "\x09\0\x02\0"s},
        {{10, {"u"}}, "\x0A\0\x01\0u"s},
        {{12, {"h", "a", "c"}}, "\x0C\0\x01\0h\x01\0a\x01\0c"s},
        {{13, {"a", ""}}, "\x0D\0\x01\0a\0\0"s},
        {{507, {"s", "h", "q"}}, "\xFB\x01\x01\0s\x01\0h\x01\0q"s},
        {{508, {}}, "\xFC\x01"s},
        {{509, {"x"}}, "\xFD\x01\x01\0x"s},
        {{510, {"x"}}, "\xFE\x01\x01\0x"s},
        {{511, {"x"}}, "\xFF\x01\x01\0x"s},
        {{523, {"t", "m"}}, "\x0B\x02\x01\0t\x01\0m"s},
        {{-5, {}}, "\xFB\xFF"s},
    };
    for (const Layout &layout : layouts) {
        SCOPED_TRACE(layout.action.code);
        EXPECT_EQ(encodeAction(layout.action), layout.bytes);
        EXPECT_EQ(ActionCode(layout.bytes), layout.action.code);
        EXPECT_EQ(decodeAction(layout.bytes).values, layout.action.values);
    }
}

TEST(ActionText, MissingValuesReadAsZeroOrEmpty)
{
    EXPECT_EQ(ActionCode(""), 0);
    EXPECT_EQ(ActionCode("\x09"), 9);
    EXPECT_EQ(decodeAction("\xFB\x01"s).values, (std::vector<std::string>{"", "", ""}));
    EXPECT_EQ(decodeAction("\x08\0\x05"s).values, (std::vector<std::string>{"5"}));
    EXPECT_EQ(decodeAction("\x01\0\x09\0MA"s).values, (std::vector<std::string>{"MA"}));
    EXPECT_EQ(decodeAction("\x0B\x02\xFF\xFFtext"s).values, (std::vector<std::string>{"", ""}));
    EXPECT_EQ(encodeAction({8, {"70000"}}), "\x08\0\xFF\x7F"s) << "a number keeps to 16 bits";
    EXPECT_EQ(encodeAction({8, {}}), "\x08\0\0\0"s);
}

} // namespace

} // namespace corvanta
