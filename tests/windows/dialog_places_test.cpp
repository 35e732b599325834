#include "platform/qt/dialogs.h"
#include "platform/qt/window_switch.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace corvanta {
namespace {

// Whether the middle of what is shown, frame and all, is the middle of the screen, and nothing is beyond it.
void expectCentred(const QDialog &dialog)
{
    const QRect screen = dialog.screen()->availableGeometry(), frame = dialog.frameGeometry();
    EXPECT_NE(frame.size(), dialog.size());
    EXPECT_TRUE(screen.contains(frame)) << frame.width() << 'x' << frame.height();
    EXPECT_LE((frame.center() - screen.center()).manhattanLength(), 4) << frame.x() << ',' << frame.y();
}

TEST(DialogPlaces, CentredWithTheirFrameAndScrolledWithoutRoom)
{
    QWidget other; // whose frame the dialogs will have
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    for (const int rows : {3, 60}) {
        QDialog dialog;
        Fields fields = addFields(*startDialog(dialog, "many", "Many"));
        QLineEdit *last = nullptr;
        for (int i = 0; i < rows; ++i)
            last = addTextRow(fields, "line", "Line:");
        const QPushButton *ok = addButtons(dialog, {{"ok", "OK", {}}}).front();
        CentreDialog(dialog);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        expectCentred(dialog);
        last->setFocus();
        EXPECT_FALSE(last->visibleRegion().isEmpty() || ok->visibleRegion().isEmpty()) << rows;
        fields.grid->setRowMinimumHeight(0, 900); // as by a choice that shows more fields
        EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.findChild<QWidget *>("scrolled"); }));
        EXPECT_TRUE(dialog.screen()->availableGeometry().contains(dialog.frameGeometry())) << rows;
    }
}

TEST(DialogPlaces, ASwitchedOffWindowGivesWayToItsDialog)
{
    QWidget main, canvas;
    switchableWindows() = [&]() -> std::vector<QWidget *> { return {&main, &canvas}; };
    for (QWidget *window : {&main, &canvas})
        window->show();
    auto *dialog = new QDialog;
    showSwitchingOff(dialog);
    for (QWidget *window : {&main, &canvas}) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == dialog; })) << "of " << window;
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton);
        EXPECT_FALSE(window->isEnabled());
    }
    dialog->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return main.isEnabled() && canvas.isEnabled(); }));
    switchableWindows() = {};
}

} // namespace
} // namespace corvanta
