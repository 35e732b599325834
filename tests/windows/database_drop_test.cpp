#include "canvas/ui/drop_field.h"
#include "database/connection.h"
#include "tests/windows/canvas_form.h"
#include "tests/windows/drops.h"

using namespace corvanta;

namespace {

class DroppedField : public CanvasForm {
protected:
    DroppedField()
    {
        form.commands.fieldDropped = [](QPoint at, const QByteArray &payload) {
            dropField({at.x(), at.y()}, payload.toStdString());
        };
        documentEvents().edited.listen([this](std::string_view) { ++edits; });
    }
    ~DroppedField() override { connection() = {}; }

    void drop(std::size_t button, const DroppedColumn &column, QPoint at)
    {
        connection().pressedButton = button;
        dropOn(form.pageArea(), "fld", QByteArray::fromStdString(dragOfColumn(column)), at);
    }

    int edits = 0;
};

const DroppedColumn name{"Customers", "R&D Name", 0, 40};

} // namespace

TEST_F(DroppedField, BecomesABoundObjectOfTheChosenKind)
{
    drop(textBoxButton, name, {30, 40});
    ASSERT_EQ(objectCount(page()), 1);
    const ObjectRecord &box = page().objects[0];
    EXPECT_EQ(box.kind, static_cast<std::int16_t>(Kind::TextBox));
    EXPECT_EQ(box.ctlname + "/" + box.datacol, "R&D Name/Customers.R&D Name");
    EXPECT_EQ(page().tbxextras[1].maxlen, 40);
    EXPECT_EQ(recordRect(0).topLeft(), QPoint(30, 40));
    EXPECT_EQ(child("tbx1").geometry(), recordRect(0));
    EXPECT_EQ(editing().curobj, 0);
    EXPECT_TRUE(child("trbox0").isVisible());
    EXPECT_EQ(edits, 1);
    EXPECT_TRUE(editing().pagedirty);

    drop(0, name, {399, 299});
    EXPECT_EQ(elementOf(page(), 1)->Caption, "R&&D Name");
    EXPECT_EQ(recordRect(1).bottomRight(), QPoint(399, 299));
    EXPECT_TRUE(page().objects[1].datacol.empty());
    EXPECT_EQ(edits, 2);
}

TEST_F(DroppedField, SeveralBecomeRowsInOneAct)
{
    const std::vector<DroppedColumn> columns{name, {"Customers", "Born", 3, 10}};
    dropOn(form.pageArea(), "fld", QByteArray::fromStdString(dragOfColumns(columns)), {390, 290});
    ASSERT_EQ(objectCount(page()), 4);
    EXPECT_EQ(edits, 1);
    EXPECT_EQ(elementOf(page(), 0)->Caption, "R&&D Name");
    EXPECT_EQ(page().objects[1].datacol + page().objects[3].datacol, "Customers.R&D NameCustomers.Born");
    EXPECT_EQ(page().tbxextras[2].inptype, 3);
    EXPECT_EQ(recordRect(3).bottomRight(), QPoint(399, 299)); // all of them stay on the page
    EXPECT_EQ(recordRect(1).right(), 399);
    EXPECT_LT(recordRect(1).bottom(), recordRect(3).top());
    EXPECT_LT(recordRect(0).right(), recordRect(1).left());
    EXPECT_EQ(editing().multcount, 4);
    placeColumns(columns);
    EXPECT_EQ(recordRect(4).left(), recordRect(6).left());
    for (std::int16_t i = 0; i < 4; ++i)
        EXPECT_FALSE(recordRect(i).intersects(recordRect(5)));
    EXPECT_TRUE(columnsOfDrag("Customers\tName\t0\t40\nrubbish").empty());
}
