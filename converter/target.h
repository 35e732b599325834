#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

// What an action becomes in the template.
namespace corvanta {

struct Target {
    enum class Kind {
        None,   // no action, or a link that a template may not hold
        Link,   // a link to address
        Submit, // a submit button that names the object, so that the host looks its action up
        Reset,  // a reset button
        Message // a button that opens a dialog with title and text
    };
    Kind kind = Kind::None;
    std::string address; // ASCII
    std::string title, text;
    bool sendsValues = true; // of a Submit: what the visitor entered matters, and is checked
    std::string caption;     // what to call the action where the object has no text of its own
};

// The links to pages are those of the page's folder, a host path; it may be empty.
Target targetOf(std::string_view actionText, const std::filesystem::path &folder);

} // namespace corvanta
