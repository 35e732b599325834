#include "document/history.h"

#include "document/events.h"
#include "document/page_file.h"
#include "platform/clock.h"

#include <deque>
#include <numeric>

namespace corvanta {

namespace {

constexpr std::uint32_t oneAct = 1000;        // milliseconds within which resizes of the window are one
constexpr const char *resizing = "Page size"; // the window tells every size on the way

struct Step {
    std::string act; // that led to it
    Page state;
    std::int16_t curobj = noObject, multcount = 0;
    std::optional<std::pair<std::int16_t, std::int16_t>> lentSize;
    std::string bytes; // as saving would write them
    std::size_t memory = 0;
    std::uint32_t time = 0; // milliseconds of the clock
};

struct History {
    std::deque<Step> steps; // the first is the page as it was opened
    std::size_t at = 0;     // the present one
    std::string saved;
    std::size_t memory = 0;
    EventConnection listening;
};

History &history()
{
    static History theHistory;
    return theHistory;
}

template <class Table> std::size_t bytesOf(const Table &table) { return table.capacity() * sizeof(table[0]); }

std::size_t memoryOf(const Step &step)
{
    const Page &p = step.state;
    const std::size_t elements = bytesOf(p.but) + bytesOf(p.lbl) + bytesOf(p.tbx) + bytesOf(p.lbx) + bytesOf(p.cbx) +
                                 bytesOf(p.grd) + bytesOf(p.fbx) + bytesOf(p.url) + bytesOf(p.tkr) + bytesOf(p.ani);
    const std::size_t side = bytesOf(p.butextras) + bytesOf(p.tbxextras) + bytesOf(p.lbxextras) + bytesOf(p.cbxextras) +
                             bytesOf(p.aniextras) + bytesOf(p.frames) + bytesOf(p.imgpictures) + bytesOf(p.gridcolumns);
    return sizeof(Step) + bytesOf(p.objects) + elements + side + 3 * step.bytes.size(); // texts, roughly
}

Step present(std::string_view act, std::string bytes)
{
    Step step{std::string(act), page(), editing().curobj, editing().multcount, editing().lentSize,
              std::move(bytes), 0,      tickCount()};
    step.memory = memoryOf(step);
    return step;
}

void push(Step step)
{
    History &h = history();
    h.memory += step.memory;
    h.steps.push_back(std::move(step));
    h.at = h.steps.size() - 1;
}

// Steps hold the data source's password.
void forget(Step &step)
{
    wipe(step.state.dbconnect);
    wipe(step.bytes);
}

void forgetAll()
{
    for (Step &step : history().steps)
        forget(step);
    wipe(history().saved);
    history().steps.clear();
    history().memory = 0;
}

void dropLast()
{
    history().memory -= history().steps.back().memory;
    forget(history().steps.back());
    history().steps.pop_back();
}

void dropOldest()
{
    History &h = history();
    while (h.steps.size() > 2 && (h.steps.size() > historySteps + 1 || h.memory > historyBytes)) {
        h.memory -= h.steps.front().memory;
        forget(h.steps.front());
        h.steps.pop_front();
        --h.at;
    }
}

bool continues(const Step &last, std::string_view act)
{
    return act == resizing && last.act == resizing && history().at + 1 == history().steps.size() &&
           last.time + oneAct > tickCount();
}

void record(std::string_view act)
{
    History &h = history();
    if (h.steps.empty())
        return;
    std::string bytes = pageText();
    if (bytes == h.steps[h.at].bytes) { // the act has changed nothing that could be taken back
        wipe(bytes);
        return noteSelection();
    }
    if (continues(h.steps[h.at], act))
        dropLast();
    else
        while (h.steps.size() > h.at + 1)
            dropLast();
    push(present(act, std::move(bytes)));
    dropOldest();
}

void restore(std::size_t at)
{
    History &h = history();
    h.at = at;
    const Step &step = h.steps[at];
    Page before = std::exchange(page(), step.state);
    editing().curobj = step.curobj;
    editing().multcount = step.multcount;
    editing().lentSize = step.lentSize;
    editing().pagedirty = step.bytes != h.saved;
    documentEvents().pageRestored(before);
    wipe(before.dbconnect);
    documentEvents().objectCount();
}

} // namespace

void startHistory()
{
    history() = {};
    history().listening = documentEvents().edited.connect(record);
}

void stopHistory()
{
    forgetAll();
    history() = {};
}

void resetHistory(FirstState first)
{
    History &h = history();
    forgetAll();
    push(present("", pageText()));
    if (first == FirstState::Saved)
        h.saved = h.steps.back().bytes;
}

void markHistorySaved()
{
    History &h = history();
    if (h.steps.empty())
        return;
    h.saved = h.steps[h.at].bytes = pageText();
    h.steps[h.at].lentSize = editing().lentSize;
}

void noteSelection()
{
    History &h = history();
    if (h.steps.empty() || h.steps[h.at].state.objects.size() != page().objects.size())
        return;
    Step &step = h.steps[h.at];
    step.curobj = editing().curobj;
    step.multcount = editing().multcount;
    for (std::size_t i = 0; i < page().objects.size(); ++i)
        step.state.objects[i].selslot = page().objects[i].selslot;
}

const std::string &wholeActBytes()
{
    static const std::string none;
    return history().steps.empty() ? none : history().steps[history().at].bytes;
}

std::string undoName() { return history().at > 0 ? history().steps[history().at].act : std::string(); }

std::string redoName()
{
    const History &h = history();
    return h.at + 1 < h.steps.size() ? h.steps[h.at + 1].act : std::string();
}

bool undoEdit()
{
    const bool any = history().at > 0;
    if (any)
        restore(history().at - 1);
    return any;
}

bool redoEdit()
{
    const bool any = history().at + 1 < history().steps.size();
    if (any)
        restore(history().at + 1);
    return any;
}

std::size_t historyMemory() { return history().memory; }

} // namespace corvanta
