#include "canvas/player.h"
#include "canvas/running.h"
#include "platform/multimedia.h"
#include "tests/rules/canvas_page.h"
#include "tests/support/stepped_clock.h"

namespace corvanta {
namespace {

// A page with a canvas whose running list is watched, and a clock that the tests move.
class CanvasRunning : public CanvasPage {
protected:
    CanvasRunning()
    {
        clearRunning();
        documentEvents().objectCreated.listen(objectEntersCanvas);
        runningEvents().enableTimer.listen([this](bool on) { timer = on; });
        runningEvents().tickerTextWidth = [](std::int16_t) { return 120; };
        runningEvents().tickerInnerWidth = [](std::int16_t) { return 600; };
        runningEvents().tickerMoved.listen([this](std::int16_t, int left) { tickerLeft = left; });
        runningEvents().showFrame.listen([this](std::int16_t, int number) { shown.push_back(number); });
        playerEvents().previewBegins.listen([this](std::int16_t) { preview = true; });
        playerEvents().previewEnds.listen([this](std::int16_t) { preview = false; });
        multimediaCommand() = [this](const std::string &command) {
            commands.push_back(command);
            return 0;
        };
    }
    ~CanvasRunning() override
    {
        closePlayer();
        clearRunning();
        runningEvents() = {};
        playerEvents() = {};
        multimediaCommand() = {};
    }

    // A current animation of frames with these durations, in tenths of a second.
    std::int16_t addAnimation(const std::vector<std::int16_t> &durations)
    {
        const std::int16_t index = add(Kind::Animation, {0, 0, 50, 50});
        std::vector<Frame> frames;
        for (const std::int16_t duration : durations)
            frames.emplace_back().duration = duration;
        object(index).srcfile = "one.bmp\t\ttwo.bmp\tding.wav\tthree.bmp";
        storeFrames(page(), index, frames);
        setCurrentObject(index);
        return index;
    }
    AnimationExtras &extras() { return page().aniextras[1]; }

    void tickAfter(std::uint32_t milliseconds)
    {
        clock.step(milliseconds);
        timerStep();
    }

    SteppedClock clock{1'000'000};
    bool timer = false, preview = false;
    int tickerLeft = -1;
    std::vector<int> shown;
    std::vector<std::string> commands;
};

TEST_F(CanvasRunning, TickerScrollsOutAndEntersAgain)
{
    add(Kind::Ticker, {10, 10, 40, 20});
    page().tkrextras[1] = 4; // pixels, 60 twips
    EXPECT_TRUE(timer);
    EXPECT_EQ(tickerLeft, 0);
    timerStep();
    EXPECT_EQ(tickerLeft, -60);
    timerStep();
    EXPECT_EQ(tickerLeft, -120);
    timerStep();
    EXPECT_EQ(tickerLeft, 600);
    timerStep();
    EXPECT_EQ(tickerLeft, 540);
}

TEST_F(CanvasRunning, OnlyTheButtonThatHoldsATickerLetsItGo)
{
    editing().msgflag = true;
    const std::int16_t index = add(Kind::Ticker, {10, 10, 40, 20});
    pressTicker(1);
    pressTicker(2);
    releaseTicker(2);
    add(Kind::Ticker, {10, 50, 40, 20});
    EXPECT_FALSE(timer);
    releaseTicker(1);
    EXPECT_TRUE(timer);
    for (const auto &end : {std::function<void()>(mouseTaken), {[index] { deleteObject(index); }}}) {
        pressTicker(1);
        EXPECT_FALSE(timer);
        end();
        EXPECT_TRUE(timer);
    }
}

TEST_F(CanvasRunning, FramesStayForTheirDuration)
{
    addAnimation({2, 5, 1});
    startAnimation(1);
    EXPECT_EQ(shown, std::vector<int>{1});
    tickAfter(199);
    EXPECT_EQ(shown.size(), 1U);
    tickAfter(1);
    EXPECT_EQ(shown, (std::vector<int>{1, 2}));
    tickAfter(700); // 2 tenths late
    tickAfter(0);
    EXPECT_EQ(shown, (std::vector<int>{1, 2, 3}));
    tickAfter(100);
    EXPECT_EQ(shown, (std::vector<int>{1, 2, 3, 1}));
}

TEST_F(CanvasRunning, StrictTimingMakesUpForLateFrames)
{
    addAnimation({2, 5, 1});
    extras().strictime = 1;
    startAnimation(1);
    tickAfter(200);
    tickAfter(800); // 3 tenths late: the third frame is over as well
    EXPECT_EQ(shown, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(running().animations[1].plannedTime, 7);
    tickAfter(0);
    EXPECT_EQ(shown, (std::vector<int>{1, 2, 3, 1}));
    tickAfter(0);
    EXPECT_EQ(shown.size(), 5U);
    tickAfter(0);
    EXPECT_EQ(shown.size(), 5U);
}

TEST_F(CanvasRunning, ShownFramePlaysItsSoundFromThePageDirectory)
{
    editing().curdir = "C:\\PAGES\\";
    addAnimation({1, 1});
    startAnimation(1);
    EXPECT_TRUE(commands.empty());
    for (int i = 0; i < 3; ++i)
        tickAfter(100);
    EXPECT_EQ(commands, (std::vector<std::string>(2, "Play C:\\PAGES\\ding.wav")));
}

TEST_F(CanvasRunning, PlayerPlaysUntilItIsClosed)
{
    const std::int16_t index = addAnimation({1, 1, 1, 1, 1});
    showTrackers();
    EXPECT_EQ(openPlayer().playtext, "Playing 5 frames...");
    EXPECT_TRUE(playerBusy());
    EXPECT_TRUE(preview);
    EXPECT_FALSE(trackers);
    EXPECT_EQ(shown, std::vector<int>{1});
    closePlayer();
    EXPECT_FALSE(preview);
    EXPECT_EQ(trackers, rect(index));
    timerStep();
    EXPECT_FALSE(timer);
    EXPECT_FALSE(editing().pagedirty);
}

} // namespace
} // namespace corvanta
