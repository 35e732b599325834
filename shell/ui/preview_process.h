#pragma once

namespace corvanta {

// "Preview in Browser": shows the page as it is in memory in the user's browser, served by "odspage preview" as a
// process of its own with the pages of the page directory. The process is started when it is first needed, follows
// the edits of the page, and ends with the editor. Failures are told in message boxes.
void previewInBrowser();

} // namespace corvanta
