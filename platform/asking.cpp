#include "platform/asking.h"

#include <algorithm>
#include <utility>

namespace corvanta {

namespace {

struct OfOneTitle {
    MessageBox first;
    std::vector<std::string> further;
};

struct Collection {
    int depth = 0; // of the collectors that live
    std::vector<OfOneTitle> titles;
};
Collection collection;

// True when the message was kept for later.
bool collect(const MessageBox &box)
{
    if (collection.depth == 0 || box.buttons != Buttons::Ok)
        return false;
    auto &titles = collection.titles;
    const auto same = std::ranges::find_if(titles, [&](const OfOneTitle &t) { return t.first.title == box.title; });
    const bool told = same != titles.end();
    if (told)
        same->further.push_back(box.text);
    else
        titles.push_back({box, {}});
    return told;
}

void tellFurther(const OfOneTitle &messages)
{
    if (messages.further.empty())
        return;
    MessageBox box = messages.first;
    const std::size_t count = messages.further.size();
    box.text = count == 1 ? messages.further.front() : std::to_string(count) + " further messages.";
    for (const std::string &text : messages.further)
        box.further += text + '\n';
    if (count == 1)
        box.further.clear();
    showMessage(box);
}

} // namespace

CollectedMessages::CollectedMessages() { ++collection.depth; }

CollectedMessages::~CollectedMessages()
{
    if (--collection.depth > 0)
        return;
    for (const OfOneTitle &messages : std::exchange(collection.titles, {}))
        tellFurther(messages);
}

Asking &asking()
{
    static Asking questions;
    return questions;
}

Answer showMessage(const MessageBox &box)
{
    if (collect(box))
        return Answer::Ok;
    if (asking().messageBox)
        return asking().messageBox(box);
    return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

std::size_t askChoice(const MessageBox &box)
{
    const std::size_t last = box.captions.size() - 1;
    return asking().choice ? std::min(asking().choice(box), last) : last;
}

void showExclamation(std::string_view text, std::string_view title)
{
    showMessage({.text = std::string(text), .title = std::string(title)});
}

std::string askText(const std::string &parameter)
{
    return asking().askText ? asking().askText(parameter) : std::string();
}

} // namespace corvanta
