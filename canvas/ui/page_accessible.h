#pragma once

namespace corvanta {

// Puts the objects that are drawn on the page into the accessibility tree, beside its widgets.
void installPageAccessibility();

} // namespace corvanta
