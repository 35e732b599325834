#pragma once

#include "canvas/running.h"
#include "canvas/ui/editform.h"
#include "document/objects.h"

#include <QTest>

#include <gtest/gtest.h>

namespace corvanta {

// The canvas window over a new page of 400 by 300 pixels.
class CanvasForm : public testing::Test {
protected:
    CanvasForm()
    {
        page() = Page();
        editing() = {};
        editing().msgflag = true;
        page().bkgwd = 400;
        page().bkght = 300;
        form.show();
        editing().pagedirty = false;
    }
    ~CanvasForm() override
    {
        clearObjects();
        page() = Page();
        editing() = {};
    }

    std::int16_t add(Kind kind, QRect place)
    {
        const std::int16_t index = addObject(kind);
        setObjectGeometry(index, static_cast<std::int16_t>(place.top()), static_cast<std::int16_t>(place.left()),
                          static_cast<std::int16_t>(place.height()), static_cast<std::int16_t>(place.width()));
        editing().pagedirty = false;
        return index;
    }
    static QRect recordRect(std::int16_t index)
    {
        const ObjectRecord &o = page().objects[static_cast<std::size_t>(index)];
        return {o.pleft, o.ptop, o.pwidth, o.pheight};
    }
    template <class Control = QWidget> Control &child(const char *name)
    {
        auto *found = form.findChild<Control *>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    bool has(const char *name) const { return form.findChild<QWidget *>(QString::fromLatin1(name)) != nullptr; }
    // A press, a move and a release of the left button, in pixels of the widget.
    static void drag(QWidget &widget, QPoint from, QPoint by)
    {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        QTest::mouseMove(&widget, from + by);
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, from + by);
    }
    QPoint centre(const char *name) { return child(name).rect().center(); }

    Editform form;
};

} // namespace corvanta
