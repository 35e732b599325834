#pragma once

#include "canvas/running.h"
#include "canvas/ui/editform.h"
#include "tests/support/fresh_page.h"
#include "tests/support/modal_driver.h"

#include <QTest>

namespace corvanta {

// The canvas window over a new page of 400 by 300 pixels.
class CanvasForm : public FreshPage {
protected:
    CanvasForm()
    {
        editing().msgflag = true;
        form.show();
        editing().pagedirty = false;
    }
    ~CanvasForm() override { clearObjects(); }

    static std::int16_t add(Kind kind, QRect place)
    {
        return addAt(kind, place.x(), place.y(), place.width(), place.height());
    }
    static QRect recordRect(int index)
    {
        const ObjectRecord &o = object(index);
        return {o.pleft, o.ptop, o.pwidth, o.pheight};
    }
    template <class Control = QWidget> Control &child(const char *name) { return find<Control>(form, name); }
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
