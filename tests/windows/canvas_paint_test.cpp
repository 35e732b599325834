#include "canvas/ui/paint.h"
#include "document/encoding.h"
#include "document/objects.h"
#include "tests/windows/drive_pictures.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

using namespace corvanta;

namespace {

constexpr QRgb backdrop = 0xFFFF00FF, white = 0xFFFFFFFF, black = 0xFF000000, red = 0xFFFF0000;
constexpr QSize canvasSize(260, 160);

// A page with one new object, painted alone onto a backdrop.
struct Painted {
    Page p;
    std::int16_t index;

    explicit Painted(Kind kind) : index(createVisual(p, encodeInt16(static_cast<std::int16_t>(kind)))) {}

    Element &element() { return *elementOf(p, index); }
    ObjectRecord &record() { return p.objects[static_cast<std::size_t>(index)]; }
    QImage image(const QRect &rect, const LiveState &live = {}) const
    {
        QImage picture(canvasSize, QImage::Format_RGB32);
        picture.fill(backdrop);
        QPainter painter(&picture);
        paintObject(painter, p, index, rect, live);
        return picture;
    }
};

// The smallest rectangle that holds all pixels that pass.
QRect extent(const QImage &image, const auto &passes)
{
    QRect found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (passes(image.pixel(x, y)))
                found |= QRect(x, y, 1, 1);
    return found;
}

bool painted(QRgb pixel) { return pixel != backdrop; }
// Smoothed text has pixels of many shades.
bool reddish(QRgb pixel) { return qRed(pixel) - std::max(qGreen(pixel), qBlue(pixel)) > 50; }
bool greenish(QRgb pixel) { return qGreen(pixel) - std::max(qRed(pixel), qBlue(pixel)) > 50; }

} // namespace

TEST(CanvasPaint, BoundFieldsShowTheirNamesOnRequest)
{
    const QRect place(0, 0, 120, 24);
    for (const Kind kind : {Kind::TextBox, Kind::ComboBox, Kind::File, Kind::Label}) {
        Painted bound(kind), captioned(kind);
        bound.record().ctlname = "city";
        EXPECT_EQ(bound.image(place, {.bindings = true}), captioned.image(place));
        bound.record().datacol = "customers.city";
        EXPECT_EQ(bound.image(place), captioned.image(place));
        if (kind != Kind::Label)
            captioned.element().Caption = "<city>";
        EXPECT_EQ(bound.image(place, {.bindings = true}), captioned.image(place));
        EXPECT_TRUE(bound.image(place, {.emptied = true, .bindings = true}) ==
                    captioned.image(place, {.emptied = true}));
    }
}

TEST(CanvasPaint, EveryKindFillsItsRectangleAndNothingBesideIt)
{
    const QRect place(20, 10, 120, 60);
    for (std::int16_t code = firstKind; code <= lastKind; ++code) {
        Painted object(static_cast<Kind>(code));
        if (code == static_cast<std::int16_t>(Kind::Label) || code == static_cast<std::int16_t>(Kind::Url))
            object.element().BackStyle = 1;
        EXPECT_EQ(extent(object.image(place), painted), place) << "kind " << code;
    }
}

TEST(CanvasPaint, TheBevelIsAsWideAsStoredButAtMostTen)
{
    for (const auto &[stored, shown] : {std::pair{0, 0}, {1, 1}, {4, 4}, {10, 10}, {99, 10}, {-3, 0}}) {
        Painted button(Kind::Button);
        button.element().Caption.clear();
        button.element().BevelWidth = static_cast<std::int16_t>(stored);
        const QImage image = button.image(QRect(10, 10, 100, 60));
        const QRgb face = image.pixel(60, 40);
        int width = 0;
        while (image.pixel(11 + width, 40) != face)
            ++width;
        EXPECT_EQ(width, shown) << stored;
        if (shown == 0)
            continue;
        EXPECT_GT(qGray(image.pixel(11, 40)), qGray(face)) << "light comes from the top left";
        EXPECT_LT(qGray(image.pixel(108, 40)), qGray(face));
        EXPECT_NE(image.pixel(109 - shown, 40), face);
        EXPECT_EQ(image.pixel(108 - shown, 40), face);
    }
}

TEST(CanvasPaint, AnAmpersandUnderlinesAndTwoAreOne)
{
    const auto ink = [](const char *caption) {
        Painted button(Kind::Button);
        button.element().Caption = caption;
        button.element().font.ForeColor = 0x0000FF;
        return button.image(QRect(10, 10, 200, 40));
    };
    EXPECT_NE(ink("Save"), ink("&Save"));
    EXPECT_NEAR(extent(ink("Save"), reddish).width(), extent(ink("&Save"), reddish).width(), 2);
    EXPECT_GT(extent(ink("A&&B"), reddish).width(), extent(ink("AB"), reddish).width());
    EXPECT_GT(extent(ink("One\r\nTwo"), reddish).height(), extent(ink("One Two"), reddish).height() + 8);
}

TEST(CanvasPaint, LabelsAreTransparentBorderedAndAligned)
{
    const QRect place(10, 10, 200, 30);
    Painted label(Kind::Label);
    label.element().Caption = "Text";
    label.element().font.ForeColor = 0x0000FF;
    label.element().BackStyle = 0;
    EXPECT_EQ(label.image(place).pixel(180, 30), backdrop);
    label.element().BorderStyle = 1;
    EXPECT_EQ(label.image(place).pixel(209, 39), black);
    EXPECT_EQ(label.image(place).pixel(180, 30), backdrop);
    label.element().BackStyle = 1;
    label.element().BackColor = 0x00FF00;
    EXPECT_EQ(label.image(place).pixel(180, 30), 0xFF00FF00);
    EXPECT_LT(extent(label.image(place), reddish).right(), 60);
    label.record().alignment = 1;
    EXPECT_GT(extent(label.image(place), reddish).left(), 160);
    label.record().alignment = 2;
    EXPECT_NEAR(extent(label.image(place), reddish).center().x(), 109, 3);
}

TEST(CanvasPaint, GridColumnsHaveTheirWidthInPixels)
{
    Painted grid(Kind::Grid);
    grid.p.gridcolumns = {{"Name\tT.Name", 750}, {"City\tT.City", 1500}, {}};
    const QImage image = grid.image(QRect(0, 0, 250, 100));
    const int row = 30; // below the header: the lines between the columns
    for (const int line : {2 + 50 - 1, 2 + 150 - 1}) {
        EXPECT_NE(image.pixel(line, row), white) << line;
        EXPECT_EQ(image.pixel(line + 1, row), white);
        EXPECT_EQ(image.pixel(line - 1, row), white);
    }
    EXPECT_EQ(image.pixel(200, 8), white) << "no header beyond the last column";
}

TEST(CanvasPaint, AnAnimationShowsItsFirstFrameOrTheOneThatPlays)
{
    Painted animation(Kind::Animation);
    const QRect place(0, 0, 40, 40);
    Frame first, second;
    const DrivePictures pictures;
    first.picture = pictures.load("RED.PNG", DrivePictures::filled(40, 40, red));
    second.picture = pictures.load("GREEN.PNG", DrivePictures::filled(40, 40, 0xFF00FF00));
    storeFrames(animation.p, animation.index, {first, second});
    EXPECT_EQ(extent(animation.image(place), reddish), QRect(1, 1, 38, 38)) << "inside its border";
    const QImage playing = animation.image(place, {.frame = 2, .bordered = false});
    EXPECT_EQ(extent(playing, greenish), place);
}

TEST(CanvasPaint, PageDrawnObjectsLieBelowControlsAndHotSpotsShowWhatIsBelow)
{
    editing() = {};
    Page p;
    p.bkgwd = 200;
    p.bkght = 100;
    p.bkgcol = 0x00FF00;
    const auto button = createVisual(p, encodeInt16(1));
    const auto image = createVisual(p, encodeInt16(6));
    const DrivePictures pictures;
    p.imgpictures[1].picture = pictures.load("RED.PNG", DrivePictures::filled(4, 4, red));
    p.objects[static_cast<std::size_t>(image)].srcfile = "x.bmp";
    const ObjectRecord &o = p.objects[static_cast<std::size_t>(button)];
    QImage picture(200, 100, QImage::Format_RGB32);
    QPainter painter(&picture);
    paintPageBackground(painter, p, QRect(0, 0, 200, 100));
    EXPECT_EQ(picture.pixel(0, 0), 0xFF00FF00);
    p.objects[static_cast<std::size_t>(image)].srcfile.clear();
    paintPage(painter, p);
    EXPECT_NE(picture.pixel(o.pleft + 5, o.ptop + 5), red);
    EXPECT_EQ(picture.pixel(55, 28), red);
    createVisual(p, encodeInt16(2));
    paintPage(painter, p);
    EXPECT_NE(picture.pixel(75, 40), red) << "the area is tinted";
    EXPECT_GT(qRed(picture.pixel(75, 40)), 150) << "and translucent";
}

TEST(CanvasPaint, AButtonsCaptionFollowsItsAlignment)
{
    Painted button(Kind::Button);
    button.element().Caption = "I";
    button.element().BevelWidth = 0;
    int before = 0;
    for (const std::int16_t alignment : {0, 2, 1}) { // left, centre, right
        button.record().alignment = alignment;
        const QRect text = extent(button.image(QRect(0, 0, 200, 40)).copy(2, 8, 196, 24),
                                  [](QRgb pixel) { return qGray(pixel) < 100; });
        EXPECT_GT(text.left(), before) << alignment;
        before = text.left() + 30;
    }
}

TEST(CanvasPaint, HotSpotsLieOverImagesAsTheyAreHit)
{
    Page p;
    for (const Kind kind : {Kind::HotSpot, Kind::Image, Kind::Button, Kind::ImageDb, Kind::HotSpot})
        createVisual(p, encodeInt16(static_cast<std::int16_t>(kind)));
    EXPECT_EQ(drawnOnPage(p), (std::vector<std::int16_t>{1, 3, 0, 4}));
}
