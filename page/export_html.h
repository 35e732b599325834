#pragma once

namespace corvanta {

// The command "Export to HTML": asks about unsaved changes, hands the page's file to the converter and tells
// what came of it. A page that has no file is left alone.
void ConvertToHtml();

} // namespace corvanta
