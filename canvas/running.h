#pragma once

#include "document/page.h"
#include "platform/event.h"

#include <cstdint>
#include <functional>
#include <map>
#include <vector>

// Tickers that scroll and animations that play on the canvas, all driven by one timer.
namespace corvanta {

inline constexpr int objtimerInterval = 8; // milliseconds

struct RunningPair {
    std::int16_t kind = 0, element = 0;
    bool operator==(const RunningPair &) const = default;
};

// Run state of an animation element. Times are tenths of a second of the clock.
struct AnimationRun {
    std::int16_t nplay = 0;    // play count, 0 for ever
    std::int16_t position = 0; // in frames
    std::vector<int> frames;   // numbers of the page's frame table
    std::int16_t playsDone = 0;
    std::int32_t frameStart = 0;
    std::int16_t strictime = 0;
    std::int32_t animationStart = 0;
    std::int32_t plannedTime = 0; // durations of the frames already finished
    bool soundTold = false;       // that a frame's sound cannot be played
};

struct RunningEvents {
    Event<bool> enableTimer;                           // objtimer
    std::function<int(std::int16_t)> tickerTextWidth;  // twips, of a ticker's inner picture
    std::function<int(std::int16_t)> tickerInnerWidth; // twips, of a ticker's frame
    Event<std::int16_t, int> tickerMoved;              // element, left of the inner picture in twips
    Event<std::int16_t, int> showFrame;                // element, number of the only frame of the animation on show
};

RunningEvents &runningEvents();

struct RunningState {
    std::vector<RunningPair> list; // in the order of their start
    bool busy = false;             // a timer step is being carried out
    int heldBy = 0;                // the mouse button that holds a ticker; 0 for none
    int twipsPerPixel = 15;
    int tickerLeft[maxTickers + 1] = {};             // twips, by element
    std::map<std::int16_t, AnimationRun> animations; // by element
};

RunningState &running();

void startRunning(Kind kind, std::int16_t element);
void stopRunning(std::int16_t index); // of an object
void clearRunning();
void stopRunningWithoutObjects(); // after undo: elements that no object has any more

// Starts a ticker's text at its frame's left edge.
void startTicker(std::int16_t element);
// Starts an animation with its first frame; nothing for one without frames.
void startAnimation(std::int16_t element);

// One tick of objtimer.
void timerStep();

// A mouse button went down on a ticker's frame: everything pauses until the same one comes up again.
void pressTicker(int button);
void releaseTicker(int button);
void letTickersGo(); // its release will not come

} // namespace corvanta
