#include "canvas/ui/drop_field.h"
#include "database/connection.h"
#include "document/events.h"
#include "platform/qt/drag.h"
#include "tests/windows/canvas_form.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>

#include <memory>

using namespace corvanta;

namespace {

class DroppedField : public CanvasForm {
protected:
    DroppedField()
    {
        form.commands.fieldDropped = [](QPoint at, const QByteArray &payload) {
            dropField({at.x(), at.y()}, payload.toStdString());
        };
        documentEvents().edited = [this] { ++edits; };
    }
    ~DroppedField() override
    {
        documentEvents().edited = nullptr;
        connection() = {};
    }

    void drop(std::size_t button, const DroppedColumn &column, QPoint at)
    {
        connection().pressedButton = button;
        const std::unique_ptr<QMimeData> data(dragData("fld", QByteArray::fromStdString(dragOfColumn(column))));
        QDragEnterEvent enter(at, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(&form.pageArea(), &enter);
        QDropEvent event(at, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(&form.pageArea(), &event);
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

TEST_F(DroppedField, OnlySomeKindsAndPagesTakeIt)
{
    std::string taken;
    for (std::size_t button = 0; button < kindButtons.size(); ++button) {
        const std::int16_t before = objectCount(page());
        drop(button, name, {10, 10});
        taken += objectCount(page()) > before ? '1' : '0';
    }
    EXPECT_EQ(taken, "111001111");
    const int before = edits;
    page().PageType = static_cast<std::int16_t>(PageKind::Menu);
    drop(textBoxButton, name, {10, 10});
    dropField({10, 10}, "no column");
    EXPECT_EQ(edits, before);
    EXPECT_EQ(objectCount(page()), 7);
}
