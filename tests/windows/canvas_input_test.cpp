#include "canvas/gestures.h"
#include "canvas/selection.h"
#include "canvas/tab_order.h"
#include "canvas/ui/drop.h"
#include "tests/windows/canvas_form.h"
#include "tests/windows/drops.h"

#include <QAccessible>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>

using namespace corvanta;

namespace {

class CanvasInputTest : public CanvasForm {
protected:
    CanvasInputTest()
    {
        form.commands.openProperties = [this] { ++opened; };
        form.commands.deleteCurrent = [this] { ++deleted; };
        form.commands.openMenu = [this](char letter) { menus += letter; };
    }

    bool dropOnPage(const char *tag, const char *payload, QPoint at)
    {
        return dropOn(form.pageArea(), tag, payload, at);
    }

    int opened = 0, deleted = 0;
    std::string menus;
};

} // namespace

TEST_F(CanvasInputTest, EveryKindIsMovedByExactlyTheDraggedPixels)
{
    for (std::int16_t code = firstKind; code <= lastKind; ++code) {
        const auto kind = static_cast<Kind>(code);
        const auto index = add(kind, QRect(60, 50, 90, 40));
        const ControlReference control = controlOfObject(page(), index);
        QWidget &widget = control.element == 0
                              ? form.pageArea()
                              : child((kindRow(kind).prefix + std::to_string(control.element)).c_str());
        const QPoint inside = control.element == 0 ? QPoint(70, 60) : QPoint(10, 10);
        drag(widget, inside, QPoint(17, -8));
        EXPECT_EQ(recordRect(index), QRect(77, 42, 90, 40)) << "kind " << code;
        if (control.element != 0) {
            EXPECT_EQ(widget.geometry(), recordRect(index)) << "kind " << code;
        }
        EXPECT_TRUE(editing().pagedirty);
        EXPECT_EQ(editing().curobj, index);
        EXPECT_TRUE(child("trbox0").isVisible());
        EXPECT_EQ(child("trbox4").geometry(), QRect(164, 79, 5, 5));
        deleteObject(index);
        EXPECT_FALSE(child("trbox0").isVisible());
    }
}

TEST_F(CanvasInputTest, TheOutlineMovesWhileTheObjectStaysAndEscEndsIt)
{
    add(Kind::Label, QRect(60, 50, 90, 40));
    QWidget &label = child("lbl1");
    QTest::mousePress(&label, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(child("boxline0").isVisible());
    QTest::mouseMove(&label, QPoint(25, 15));
    EXPECT_EQ(child("boxline0").geometry(), QRect(80, 60, 90, 1));
    EXPECT_EQ(child("boxline3").height(), 40);
    const QColor line = form.pageArea().grab().toImage().pixelColor(160, 60);
    EXPECT_GT(line.red() - line.green(), 100) << "it contrasts with the grey page";
    EXPECT_EQ(label.pos(), QPoint(60, 50));
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(child("boxline0").isVisible());
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(25, 15));
    EXPECT_EQ(label.pos(), QPoint(60, 50));
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(CanvasInputTest, HandlesResizeAndShowTheirPointers)
{
    const auto index = add(Kind::Button, QRect(100, 100, 80, 40));
    QTest::mouseClick(&child("but1"), Qt::LeftButton);
    EXPECT_FALSE(editing().pagedirty);
    EXPECT_EQ(child("trbox3").cursor().shape(), Qt::SizeHorCursor);
    EXPECT_EQ(child("trbox6").cursor().shape(), Qt::SizeBDiagCursor);
    drag(child("trbox3"), centre("trbox3"), QPoint(30, 0));
    EXPECT_EQ(recordRect(index).topLeft(), QPoint(100, 100));
    EXPECT_NEAR(recordRect(index).width(), 110, 1);
    drag(child("trbox0"), centre("trbox0"), QPoint(500, 500));
    EXPECT_EQ(recordRect(index).size(), QSize(4, 4));
    EXPECT_EQ(child("but1").geometry(), recordRect(index));
}

TEST_F(CanvasInputTest, CtrlClicksGatherAGroupThatMovesTogether)
{
    const auto first = add(Kind::Label, QRect(20, 20, 50, 20));
    const auto second = add(Kind::TextBox, QRect(100, 60, 50, 24));
    QTest::mouseClick(&child("lbl1"), Qt::LeftButton);
    QTest::mouseClick(&child("tbx1"), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_FALSE(child("trbox0").isVisible());
    EXPECT_TRUE(child("trboxf0").isVisible());
    EXPECT_TRUE(child("trboxf15").isVisible());
    EXPECT_FALSE(has("trboxf16"));
    drag(child("tbx1"), QPoint(5, 5), QPoint(-300, 10));
    EXPECT_EQ(recordRect(first), QRect(0, 30, 50, 20)) << "the group stops at the page's edge";
    EXPECT_EQ(recordRect(second), QRect(80, 70, 50, 24));
    EXPECT_EQ(child("trboxf0").pos(), QPoint(-2, 28));
    EXPECT_FALSE(child("multbox").isVisible());
    QTest::mouseClick(&form.pageArea(), Qt::LeftButton, {}, QPoint(300, 250));
    EXPECT_FALSE(child("trboxf0").isVisible());
    EXPECT_EQ(editing().curobj, noObject);
}

TEST_F(CanvasInputTest, DoubleClicksOpenProperties)
{
    add(Kind::Label, QRect(20, 20, 50, 20));
    QTest::mouseClick(&child("lbl1"), Qt::LeftButton);
    QTest::mouseDClick(&child("lbl1"), Qt::LeftButton);
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(child("trbox0").isVisible());
    QTest::mouseDClick(&form.pageArea(), Qt::LeftButton, {}, QPoint(300, 250));
    EXPECT_EQ(opened, 1) << "nothing is current";
    QTest::mouseClick(&child("lbl1"), Qt::LeftButton);
    QTest::mouseDClick(&child("lbl1"), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(opened, 1) << "Ctrl selects";
    add(Kind::Image, QRect(200, 100, 80, 80));
    QTest::mouseDClick(&form.pageArea(), Qt::LeftButton, {}, QPoint(220, 150));
    EXPECT_EQ(opened, 2);
}

TEST_F(CanvasInputTest, AButtonTellsADoubleClickByItsTimer)
{
    add(Kind::Button, QRect(20, 20, 80, 30));
    QTest::mouseClick(&child("but1"), Qt::LeftButton);
    QTest::mouseClick(&child("but1"), Qt::LeftButton);
    EXPECT_EQ(opened, 1);
    auto &tmdclk = *form.findChild<QTimer *>("tmdclk");
    QTest::mouseClick(&child("but1"), Qt::LeftButton);
    EXPECT_TRUE(tmdclk.isActive());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tmdclk.isActive(); }, 5000));
    QTest::mouseClick(&child("but1"), Qt::LeftButton);
    EXPECT_EQ(opened, 1);
}

TEST_F(CanvasInputTest, KeysReachTheirCommands)
{
    QTest::keyClick(&form.pageArea(), Qt::Key_Delete);
    EXPECT_EQ(deleted, 0);
    add(Kind::Label, QRect(20, 20, 50, 20));
    QTest::mouseClick(&child("lbl1"), Qt::LeftButton);
    QTest::keyClick(&form.pageArea(), Qt::Key_Delete);
    EXPECT_EQ(deleted, 1);
    QTest::keyClick(&form.pageArea(), Qt::Key_Return, Qt::AltModifier);
    EXPECT_EQ(opened, 1);
    for (const Qt::Key key : {Qt::Key_F, Qt::Key_P, Qt::Key_O, Qt::Key_H, Qt::Key_X})
        QTest::keyClick(&form.pageArea(), key, Qt::AltModifier);
    EXPECT_EQ(menus, "FPOH");
    QTest::keyRelease(&form.pageArea(), Qt::Key_Delete);
    QTest::keyPress(&form.pageArea(), Qt::Key_Delete);
    QFocusEvent toDialog(QEvent::FocusOut);
    QCoreApplication::sendEvent(&form.pageArea(), &toDialog);
    QTest::keyRelease(&form.pageArea(), Qt::Key_Delete);
    EXPECT_EQ(deleted, 1) << "only a key that goes down and comes up on the canvas deletes";
}

TEST_F(CanvasInputTest, ADragEndsWithWhateverTakesTheMouse)
{
    add(Kind::Ticker, QRect(60, 50, 90, 40));
    const auto &objtimer = *form.findChild<QTimer *>("objtimer");
    QMenu menu;
    QDialog question(&form);
    question.setModal(true);
    const std::vector<std::function<void()>> takers{
        [&] { menu.popup({}); },
        [&] { question.show(); },
        [&] { form.hide(); },
        [&] { form.setEnabled(false); },
    };
    for (const auto &take : takers) {
        form.activateWindow();
        form.pageArea().setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        QTest::mousePress(&child("tkr1"), Qt::LeftButton, {}, QPoint(5, 5));
        QTest::mouseMove(&child("tkr1"), QPoint(25, 15));
        EXPECT_TRUE(child("boxline0").isVisible() && !objtimer.isActive());
        take();
        EXPECT_FALSE(gesture().dragging || child("boxline0").isVisible());
        EXPECT_TRUE(objtimer.isActive());
        menu.close();
        question.close();
        form.show();
        form.setEnabled(true);
    }
    EXPECT_EQ(recordRect(0), QRect(60, 50, 90, 40));
}

TEST_F(CanvasInputTest, ADragAtTheBorderScrollsOnAndTheStatusPanelTellsThePlace)
{
    page().bkgwd = 3000;
    form.applyPageLayout();
    const auto near = add(Kind::Label, QRect(60, 50, 90, 40)), far = add(Kind::Label, QRect(2500, 50, 90, 40));
    const auto status = [&] { return child<QLabel>("statusline").text(); };
    const auto &bar = *form.findChild<QScrollArea *>()->horizontalScrollBar();
    const QPoint border(form.width() + 20, 60);
    QWidget &label = child("lbl1");
    QTest::mousePress(&label, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(&label, label.mapFrom(&form, border));
    EXPECT_EQ(status(),
              QString("Left %1, top %2, width 90, height 40").arg(child("boxline0").x()).arg(child("boxline0").y()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() > 300; }, 5000));
    EXPECT_GT(child("boxline0").x(), bar.value()) << "the object stays under the pointer";
    QTest::keyClick(&form.pageArea(), Qt::Key_Escape);
    EXPECT_EQ(status(), "");
    const int before = bar.value();
    EXPECT_EQ(recordRect(near).x(), 60);
    selectObject(far);
    EXPECT_GT(bar.value(), before) << "what becomes current comes into sight";
    EXPECT_TRUE(QRect(QPoint(), form.size()).contains(child("lbl2").mapTo(&form, QPoint(45, 20))));
    QTest::keyClick(&form.pageArea(), Qt::Key_Tab);
    EXPECT_EQ(editing().curobj, near);
    EXPECT_LE(bar.value(), 60);
}

TEST_F(CanvasInputTest, TheReferenceObjectAndTheTabNumbersShow)
{
    add(Kind::Button, QRect(20, 20, 50, 20));
    const auto second = add(Kind::TextBox, QRect(100, 60, 50, 24));
    selectAllObjects();
    const auto colour = [&](const char *marker) { return child(marker).grab().toImage().pixelColor(0, 0); };
    EXPECT_NE(colour("trboxf0"), colour("trboxf8"));
    const QColor reference = colour("trboxf0");
    setCurrentObject(second);
    EXPECT_EQ(colour("trboxf8"), reference);
    EXPECT_NE(colour("trboxf0"), reference);

    startTabOrder();
    EXPECT_TRUE(child("tabbadges").isVisible());
    QTest::mouseClick(&child("tbx1"), Qt::LeftButton);
    QTest::mouseClick(&child("but1"), Qt::LeftButton);
    EXPECT_EQ(object(second).tbindex, 1);
    EXPECT_EQ(object(0).tbindex, 2);
    QTest::keyClick(&form.pageArea(), Qt::Key_Escape);
    EXPECT_FALSE(child("tabbadges").isVisible());
    EXPECT_TRUE(hasMembers()) << "clicks in the mode select nothing";
}

TEST_F(CanvasInputTest, WhatIsDrawnOnThePageIsAccessibleToo)
{
    const auto spot = add(Kind::HotSpot, QRect(20, 30, 80, 40));
    add(Kind::Button, QRect(150, 30, 80, 40));
    elementOf(page(), 1)->Caption = "&Go";
    documentEvents().objectChanged(1);
    QAccessibleInterface *area = QAccessible::queryAccessibleInterface(&form.pageArea());
    const auto named = [&](const QString &name) -> QAccessibleInterface * {
        for (int i = 0; i < area->childCount(); ++i)
            if (area->child(i)->text(QAccessible::Name) == name && area->indexOfChild(area->child(i)) == i)
                return area->child(i);
        return nullptr;
    };
    EXPECT_NE(named("Button Go"), nullptr);
    QAccessibleInterface *drawn = named("Hot Spot HotSpot1");
    ASSERT_NE(drawn, nullptr);
    EXPECT_EQ(drawn->rect(), QRect(form.pageArea().mapToGlobal(QPoint(20, 30)), QSize(80, 40)));
    const QPoint inside = drawn->rect().center();
    EXPECT_EQ(area->childAt(inside.x(), inside.y()), drawn);
    deleteObject(spot);
    EXPECT_FALSE(drawn->isValid());
}

TEST_F(CanvasInputTest, AToolIsDroppedAtThePointAndKeptOnThePage)
{
    EXPECT_TRUE(dropOnPage("obj", "1", QPoint(30, 40)));
    EXPECT_EQ(recordRect(0), QRect(30, 40, 85, 25));
    EXPECT_EQ(editing().curobj, 0);
    EXPECT_TRUE(child("trbox0").isVisible());
    EXPECT_TRUE(editing().pagedirty);
    dropOnPage("obj", "1", QPoint(390, 295));
    EXPECT_EQ(recordRect(1), QRect(315, 275, 85, 25));
    EXPECT_FALSE(dropOnPage("obj", "14", QPoint(10, 10)) && objectCount(page()) > 2);
    QByteArray field;
    form.commands.fieldDropped = [&](QPoint at, const QByteArray &payload) {
        field = payload + QByteArray::number(at.x());
    };
    dropOnPage("fld", "Orders\tId", QPoint(7, 8));
    EXPECT_EQ(field, "Orders\tId7");
    EXPECT_EQ(droppedRect({0, 0, 500, 20}, {50, 60}, {400, 300}), (Rect{0, 60, 500, 20}));
}

TEST_F(CanvasInputTest, TickersRunOnObjtimerAndPauseWhileTheyArePressed)
{
    auto &objtimer = *form.findChild<QTimer *>("objtimer");
    EXPECT_FALSE(objtimer.isActive());
    const auto index = add(Kind::Ticker, QRect(20, 20, 150, 26));
    EXPECT_TRUE(objtimer.isActive());
    const auto offset = [&] { return static_cast<Visual &>(child("tkr1")).live().textOffset; };
    EXPECT_TRUE(QTest::qWaitFor([&] { return offset() < -3; }, 5000));
    QTest::mousePress(&child("tkr1"), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(objtimer.isActive());
    QTest::mouseRelease(&child("tkr1"), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(objtimer.isActive());
    deleteObject(index);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !objtimer.isActive(); }, 5000));
}
