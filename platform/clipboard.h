#pragma once

#include <functional>
#include <string>

// The desktop's clipboard: objects as bytes of a format of our own, and as text for other programs.
namespace corvanta {

struct ClipboardContent {
    std::string objects; // bytes; empty when another program's content is there
    std::string text;    // UTF-8
};

// Both empty without a desktop: nothing is kept, nothing is there.
struct Clipboard {
    std::function<void(const ClipboardContent &)> put;
    std::function<ClipboardContent()> get;
    std::function<bool()> mayHoldObjects; // a quick look: objects of ours, or any text
};

Clipboard &clipboard();

} // namespace corvanta
