#include "objects/ui/manyobj.h"
#include "tests/support/fresh_page.h"
#include "tests/support/modal_driver.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

namespace corvanta {

namespace {
class SharedDialogs : public FreshPage {};
} // namespace

TEST_F(SharedDialogs, ChangeOnlyWhatIsTouched)
{
    const std::vector<std::int16_t> both = {addAt(Kind::TextBox, 10, 10, 50, 20),
                                            addAt(Kind::TextBox, 100, 10, 60, 20)};
    object(0).keyreq = "a";
    object(1).objflags = readonlyFlag;
    ModalDriver driver;
    for (const bool change : {false, true}) {
        driver.expect("manyobj", [change](QWidget &dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Properties of 2 Objects");
            auto &keyreq = find<QLineEdit>(dialog, "keyreq");
            auto &readonly = find<QCheckBox>(dialog, "readonly");
            EXPECT_EQ(keyreq.placeholderText(), "(different)");
            EXPECT_EQ(readonly.checkState(), Qt::PartiallyChecked);
            EXPECT_EQ(find<QLineEdit>(dialog, "pheight").text(), "20");
            if (change) {
                QTest::keyClicks(&keyreq, "staff");
                readonly.click();
                emit find<QComboBox>(dialog, "alignment").activated(2);
            }
            press(dialog, "ok");
        });
        OpenSharedProperties(both);
        EXPECT_EQ(editing().pagedirty, change);
        for (const std::int16_t index : both) {
            EXPECT_EQ(object(index).keyreq, change ? "staff" : index == 0 ? "a" : "");
            EXPECT_EQ(object(index).has(readonlyFlag), change || index == 1);
            EXPECT_EQ(object(index).alignment, change ? 2 : 0);
        }
    }
}

} // namespace corvanta
