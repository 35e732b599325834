#pragma once

#include "actions/action.h"
#include "document/page.h"

#include <functional>

// The actions of a page wherever they stand: of objects, of list box entries, and in lists of actions.
namespace corvanta {

// Calls visit(object, action) for each; the lists of actions themselves are not visited.
void eachAction(const Page &p, const std::function<void(std::int16_t object, const Action &action)> &visit);

// The places of an action's values that name pages.
std::vector<std::size_t> pageParameters(std::int16_t code);

// Every page name becomes what renamed(name) gives for it; nothing else of a text changes. True when a name changed.
using RenamePage = std::function<std::string(const std::string &name)>;
bool renamePageLinks(Page &p, const RenamePage &renamed);

} // namespace corvanta
