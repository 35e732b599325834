#include "objects/shared_properties.h"
#include "tests/support/fresh_page.h"
#include "tests/support/scripted_asking.h"

#include <set>

namespace corvanta {

namespace {

class SharedPropertiesOf : public FreshPage {
protected:
    static std::size_t field(const std::string &name)
    {
        for (std::size_t i = 0; i < sharedFieldCount; ++i)
            if (sharedFields()[i].name == name)
                return i;
        ADD_FAILURE() << name;
        return 0;
    }
    static std::set<std::string> names(const SharedFields &fields)
    {
        std::set<std::string> found;
        for (std::size_t i = 0; i < sharedFieldCount; ++i)
            if (fields[i])
                found.insert(sharedFields()[i].name);
        return found;
    }
};

} // namespace

TEST_F(SharedPropertiesOf, KindsAreTheFieldsThatAllHave)
{
    const std::vector<std::pair<std::vector<Kind>, std::set<std::string>>> cases = {
        {{Kind::TextBox, Kind::File},
         {"pheight", "pwidth", "keyreq", "sptext", "condobjname", "col", "font", "readonly", "exludesql", "invisible"}},
        {{Kind::Button, Kind::Label}, {"pheight", "pwidth", "keyreq", "sptext", "font", "alignment"}},
        {{Kind::HotSpot, Kind::Animation}, {"keyreq", "sptext", "hover"}},
        {{Kind::Label, Kind::Ticker}, {"pheight", "pwidth", "keyreq", "sptext", "col", "font", "bstyle"}},
        {{Kind::Animation, Kind::Animation}, {"keyreq", "sptext", "hover", "strictime"}},
    };
    for (const auto &[kinds, expected] : cases) {
        clearObjects();
        std::vector<std::int16_t> indices;
        for (const Kind kind : kinds)
            indices.push_back(addAt(kind, 10, 10, 50, 20));
        EXPECT_EQ(names(LoadSharedProperties(indices).common), expected);
    }
}

TEST_F(SharedPropertiesOf, ObjectsChangeInWhatWasTouchedAndInOneEdit)
{
    std::vector<std::string> acts;
    const auto edited = documentEvents().edited.connect([&](std::string_view act) { acts.emplace_back(act); });
    const std::vector<std::int16_t> both = {addAt(Kind::Label, 10, 10, 50, 20), addAt(Kind::Button, 100, 10, 60, 20)};
    object(0).sptext = "one";
    const SharedProperties shared = LoadSharedProperties(both);
    EXPECT_EQ(names(shared.different), (std::set<std::string>{"pwidth", "sptext"}));

    PropertyFields values = shared.values;
    values.pwidth = "80";
    values.pheight = "999";
    values.keyreq = "staff";
    SharedFields touched;
    touched.set(field("pwidth")).set(field("keyreq"));
    EXPECT_TRUE(ConfirmSharedProperties(both, values, touched).stored);
    EXPECT_EQ(object(0).pwidth, 80);
    EXPECT_EQ(object(1).pwidth, 80);
    EXPECT_EQ(object(0).pheight, 20);
    EXPECT_EQ(object(1).keyreq, "staff");
    EXPECT_EQ(object(0).sptext, "one");
    EXPECT_EQ(object(1).sptext, "");
    EXPECT_TRUE(ConfirmSharedProperties(both, values, {}).stored);
    EXPECT_EQ(acts, std::vector<std::string>{"Properties of 2 objects"});

    ScriptedAsking asking;
    asking.expectMessage("Invalid label \"Height\".", "Properties Error");
    const std::string before = serialisePage(page());
    values.pheight = "301";
    touched.set(field("pheight"));
    EXPECT_FALSE(ConfirmSharedProperties(both, values, touched).stored);
    EXPECT_EQ(serialisePage(page()), before);
    EXPECT_EQ(acts.size(), 1U);
}

TEST_F(SharedPropertiesOf, AColourIsCheckedForTransparentLabelsToo)
{
    const std::vector<std::int16_t> both = {addAt(Kind::Label, 10, 10, 50, 20), addAt(Kind::Label, 90, 10, 50, 20)};
    for (const std::int16_t index : both)
        elementOf(page(), index)->BackStyle = 0;
    PropertyFields values = LoadSharedProperties(both).values;
    values.col = "blue";
    ScriptedAsking asking;
    asking.expectMessage("Invalid \"BackColor\".  A color is one to eight hexadecimal digits.", "Properties Error");
    EXPECT_EQ(ConfirmSharedProperties(both, values, SharedFields().set(field("col"))).focus, "col");
}

} // namespace corvanta
