#include "canvas/running.h"

#include "canvas/events.h"
#include "document/events.h"
#include "document/media.h"
#include "document/objects.h"
#include "platform/clock.h"
#include "platform/multimedia.h"

#include <algorithm>
#include <utility>

namespace corvanta {

namespace {

std::int32_t clockTenths() { return static_cast<std::int32_t>(tickCount() / 100); }

void enableTimer(bool on) { runningEvents().enableTimer(on && running().heldBy == 0); }

const Frame &frameAt(const AnimationRun &run)
{
    const auto number = static_cast<std::size_t>(run.frames[static_cast<std::size_t>(run.position)]);
    return page().frames[number < page().frames.size() ? number : 0];
}

void showFrame(std::int16_t element, AnimationRun &run, std::int16_t position)
{
    run.position = position;
    run.frameStart = clockTenths();
    const std::string sound = frameAt(run).sound;
    runningEvents().showFrame(element, run.frames[static_cast<std::size_t>(position)]);
    if (sound.empty() || !plainFileName(sound) || mciSendString("Play " + editing().curdir + sound) == 0)
        return;
    if (!std::exchange(run.soundTold, true)) // and not again with each round
        documentEvents().notice("The sound \"" + sound + "\" cannot be played.");
}

// Elapsed and due time are compared as 16-bit values.
bool frameStays(const AnimationRun &run, std::int32_t now)
{
    const bool strict = run.strictime != 0;
    const auto elapsed = static_cast<std::int16_t>(now - (strict ? run.animationStart : run.frameStart));
    const auto due = static_cast<std::int16_t>(frameAt(run).duration + (strict ? run.plannedTime : 0));
    return now >= run.frameStart && elapsed < due;
}

// Counts a finished play. True when it was the last one: previews in the editor go on for ever.
bool playedOut(AnimationRun &run) { return run.nplay > 0 && ++run.playsDone == run.nplay && !editing().msgflag; }

void animationStep(std::int16_t element)
{
    AnimationRun &run = running().animations[element];
    if (run.frames.empty() || frameStays(run, clockTenths()))
        return;
    const bool last = static_cast<std::size_t>(run.position) + 1 == run.frames.size();
    if (last && playedOut(run)) {
        stopRunning(findObjectByControl(page(), Kind::Animation, element));
        return;
    }
    run.plannedTime += frameAt(run).duration;
    showFrame(element, run, last ? std::int16_t{0} : static_cast<std::int16_t>(run.position + 1));
}

int twips(const std::function<int(std::int16_t)> &measure, std::int16_t element)
{
    return measure ? measure(element) : 0;
}

void moveTicker(std::int16_t element, int left)
{
    running().tickerLeft[element] = left;
    runningEvents().tickerMoved(element, left);
}

void tickerStep(std::int16_t element)
{
    const int left = running().tickerLeft[element];
    const int speed = std::max<int>(page().tkrextras[static_cast<std::size_t>(element)], 0);
    if (left + twips(runningEvents().tickerTextWidth, element) <= 0)
        moveTicker(element, twips(runningEvents().tickerInnerWidth, element));
    else
        moveTicker(element, left - speed * running().twipsPerPixel);
}

void step(const RunningPair &pair)
{
    if (pair.kind == static_cast<std::int16_t>(Kind::Ticker))
        tickerStep(pair.element);
    else
        animationStep(pair.element);
}

} // namespace

RunningEvents &runningEvents()
{
    static RunningEvents events;
    return events;
}

RunningState &running()
{
    static RunningState state;
    return state;
}

void startRunning(Kind kind, std::int16_t element)
{
    auto &list = running().list;
    const RunningPair pair{static_cast<std::int16_t>(kind), element};
    if (std::find(list.begin(), list.end(), pair) == list.end())
        list.push_back(pair);
    enableTimer(true);
}

void stopRunning(std::int16_t index)
{
    if (!hasObject(page(), index))
        return;
    const auto i = static_cast<std::size_t>(index);
    std::erase(running().list, RunningPair{page().objects[i].kind, page().ctlindex[i]});
}

void stopRunningWithoutObjects()
{
    std::erase_if(running().list, [](const RunningPair &pair) {
        return findObjectByControl(page(), static_cast<Kind>(pair.kind), pair.element) == noObject;
    });
}

void clearRunning() { running().list.clear(); }

void startTicker(std::int16_t element)
{
    moveTicker(element, 0);
    startRunning(Kind::Ticker, element);
}

void startAnimation(std::int16_t element)
{
    AnimationRun &run = running().animations[element];
    const AnimationExtras &extras = page().aniextras[static_cast<std::size_t>(element)];
    run = {};
    run.nplay = extras.nplay;
    run.strictime = extras.strictime;
    run.frames = frameNumbers(page(), element);
    if (run.frames.empty())
        return;
    run.animationStart = clockTenths();
    startRunning(Kind::Animation, element);
    showFrame(element, run, 0);
}

void timerStep()
{
    RunningState &state = running();
    if (state.busy)
        return;
    state.busy = true;
    for (std::size_t i = state.list.size(); i-- > 0;)
        if (i < state.list.size())
            step(RunningPair(state.list[i]));
    if (state.list.empty())
        enableTimer(false);
    state.busy = false;
}

void pressTicker(int button)
{
    if (!editing().msgflag || running().heldBy != 0)
        return;
    running().heldBy = button;
    enableTimer(false);
}

void releaseTicker(int button)
{
    if (running().heldBy == button)
        letTickersGo();
}

void letTickersGo()
{
    if (std::exchange(running().heldBy, 0) != 0)
        enableTimer(true);
}

} // namespace corvanta
