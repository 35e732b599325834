#include "canvas/selection.h"
#include "document/media.h"
#include "platform/post.h"
#include "tests/support/scripted_asking.h"
#include "tests/windows/canvas_form.h"
#include "tests/windows/drive_pictures.h"

#include <QScrollArea>
#include <QScrollBar>

#include <atomic>
#include <thread>
#include <utility>

using namespace corvanta;

namespace {

using std::chrono_literals::operator""min;
using std::string_literals::operator""s;

// The canvas over files that promise pictures of 5,700 by 5,700 pixels, which a thread decodes when the test lets it.
class CanvasPictures : public CanvasForm {
protected:
    ~CanvasPictures() override { held = false; }

    PixelsPtr decode(const PictureFile &file, const PictureView &view)
    {
        EXPECT_NE(std::this_thread::get_id(), eventLoop);
        while (held && std::this_thread::get_id() != eventLoop)
            std::this_thread::yield();
        ++decoded;
        if (file.path.ends_with("BAD.GIF"))
            return nullptr;
        const auto pixels = std::make_shared<QtPixels>();
        pixels->image = DrivePictures::filled(std::max(view.shownWidth, 1), std::max(view.shownHeight, 1), Qt::red);
        pixels->image.fill(Qt::red);
        pixels->bytes = bytesOfEach;
        return pixels;
    }
    std::int16_t button(const std::string &file, QRect place)
    {
        const std::int16_t index = add(Kind::Button, place);
        pictures.drive.add(file, "GIF89a\x44\x16\x44\x16"s);
        object(index).srcfile = file;
        elementOf(page(), index)->Caption.clear();
        EXPECT_TRUE(LoadButtonPicture(index, file));
        return index;
    }
    // Until nothing is asked for any more; the number of pictures that were decoded since the last time.
    int settle()
    {
        for (int round = 0, seen = -1; seen != decoded && round < 100; ++round) {
            seen = decoded;
            QCoreApplication::processEvents();
            EXPECT_TRUE(pictureCache()->finish(1min));
            runPostedJobs();
            QCoreApplication::processEvents();
        }
        return decoded - std::exchange(settled, decoded);
    }

    const std::thread::id eventLoop = std::this_thread::get_id();
    std::atomic<bool> held = false;
    std::atomic<int> decoded = 0;
    int settled = 0;
    std::uint64_t bytesOfEach = 4000;
    DrivePictures pictures{Decoding::InBackground,
                           [this](const PictureFile &file, const PictureView &view) { return decode(file, view); }};
};

TEST_F(CanvasPictures, AKeyIsAnsweredBeforeAnyOfThem)
{
    page().bkgwd = 3000;
    form.applyPageLayout();
    held = true;
    for (int i = 0; i < 200; ++i)
        button(std::to_string(i) + ".GIF", QRect(i % 20 * 20, i / 20 * 20, 18, 18));
    button("FAR.GIF", QRect(2900, 20, 18, 18));
    int keys = 0;
    form.commands.deleteCurrent = [&] { ++keys; };
    setCurrentObject(0);
    QCoreApplication::processEvents(); // paints, and asks for pictures
    QTest::keyClick(&form.pageArea(), Qt::Key_Delete);
    EXPECT_EQ(keys, 1);
    EXPECT_EQ(decoded, 0);
    EXPECT_NE(form.grab().toImage().pixelColor(form.pageArea().mapTo(&form, QPoint(9, 9))), QColor(Qt::red));
    held = false;
    EXPECT_EQ(settle(), 200) << "what is not seen is not decoded";
    const QImage shown = form.grab().toImage();
    for (int i = 0; i < 200; ++i)
        EXPECT_EQ(shown.pixelColor(form.pageArea().mapTo(&form, QPoint(i % 20 * 20 + 9, i / 20 * 20 + 9))),
                  QColor(Qt::red))
            << i;
    QScrollBar &scroll = *find<QScrollArea>(form, "").horizontalScrollBar();
    scroll.setValue(scroll.maximum());
    EXPECT_EQ(settle(), 1);
}

TEST_F(CanvasPictures, ThatPushEachOtherOutComeToRest)
{
    bytesOfEach = mostPictureBytes / 5;
    for (int i = 0; i < 6; ++i)
        button(std::to_string(i) + ".GIF", QRect(20 + i, 20 + i, 50, 50)); // over each other
    EXPECT_EQ(settle(), 6);
    EXPECT_EQ(settle(), 0);
    EXPECT_LE(pictureCache()->keptBytes(), mostPictureBytes / 2);
    form.repaintPage();
    EXPECT_GE(settle(), 4) << "they come back when they are painted again";
    EXPECT_EQ(settle(), 0);
}

TEST_F(CanvasPictures, WithoutPixelsAreToldAndTaken)
{
    const EventConnection failure = pictureEvents().unreadable.connect(dropUnreadablePicture);
    const std::int16_t index = button("BAD.GIF", QRect(20, 20, 50, 50));
    ScriptedAsking user;
    user.expectMessage("Couldn't load image file \"BAD.GIF\" into button.  To change the directory, use \"File... "
                       "Directory\".",
                       "LoadPicture Error");
    EXPECT_EQ(settle(), 1);
    EXPECT_FALSE(elementOf(page(), index)->picture);
    EXPECT_EQ(settle(), 0);
}

} // namespace
