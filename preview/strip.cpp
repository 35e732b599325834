#include "preview/strip.h"

#include "converter/text.h"
#include "platform/text.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace corvanta {

const char *const stripStyle =
    R"css(#preview-strip{position:fixed;inset:auto 0 0 0;z-index:40000;max-height:40vh;overflow:auto;background:#20242c;color:#f4f5f7;font:13px/1.5 system-ui,sans-serif;border-top:2px solid #5b9bd5;direction:ltr;text-align:left}
#preview-strip summary{padding:4px 10px;cursor:pointer}
#preview-strip nav{padding:0 10px 4px}
#preview-strip nav a{color:#9cc9f5;margin-right:14px}
#preview-strip ol{margin:0;padding:0 10px 8px 10px;list-style:none}
#preview-strip li{padding:4px 0;border-top:1px solid #3b414d}
#preview-strip li.said{border-left:3px solid #5b9bd5;padding-left:7px}
#preview-strip code{font:12px/1.5 ui-monospace,monospace;white-space:pre-wrap;overflow-wrap:anywhere;color:inherit}
#preview-strip .error{color:#ffb3b3}
#preview-strip .faint{color:#b9c0cc}
#preview-strip :focus-visible{outline:2px solid #ffd166;outline-offset:-2px}
#preview-room{position:absolute;left:0;width:1px;height:48px}
.preview-own{font:16px/1.5 system-ui,sans-serif;max-width:40em;margin:3em auto;padding:0 1em}
dialog.preview-message{max-width:30em;font:16px/1.5 system-ui,sans-serif}
dialog.preview-message p{white-space:pre-wrap}
@media print{#preview-strip,#preview-room,.preview-message{display:none}}
)css";

const char *const stripIcon = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<rect x="1" y="2" width="14" height="12" fill="#20242c"/><path d="M6 5l5 3-5 3z" fill="#9cc9f5"/></svg>
)svg";

// A window that is not seen holds no connection: browsers open only a few to one host.
const char *const stripScript = R"js('use strict';
(() => {
  const strip = document.getElementById('preview-strip');
  let events = null;
  const watch = () => {
    if (document.hidden || events) return;
    events = new EventSource(strip.dataset.events);
    events.onmessage = (event) => {
      if (event.data === 'change') location.reload();
      else location.assign(event.data);
    };
    events.onerror = () => {
      if (events && events.readyState === EventSource.CLOSED) { rest(); setTimeout(watch, 2000); }
    };
  };
  const rest = () => { if (events) events.close(); events = null; };
  document.addEventListener('visibilitychange', () => (document.hidden ? rest() : watch()));
  window.addEventListener('pagehide', rest);
  window.addEventListener('pageshow', watch);
  watch();
  const room = document.getElementById('preview-room');
  new ResizeObserver(() => { room.style.height = strip.offsetHeight + 'px'; }).observe(strip);
  const messages = [...document.querySelectorAll('dialog.preview-message')];
  const next = () => { const m = messages.shift(); if (m) { m.onclose = next; m.showModal(); } };
  next();
})();
)js";

namespace {

constexpr std::size_t longestLine = 110; // characters

std::string shortened(const std::string &utf8)
{
    std::size_t end = std::min(utf8.size(), longestLine);
    while (end < utf8.size() && (static_cast<unsigned char>(utf8[end]) & 0xC0) == 0x80)
        ++end;
    return end < utf8.size() ? utf8.substr(0, end) + "…" : utf8;
}

std::string milliseconds(double value)
{
    char text[32];
    const auto end = std::to_chars(text, std::end(text), value, std::chars_format::fixed, 1).ptr;
    return std::string(text, end) + " ms";
}

std::string outcome(const JournalEntry &e)
{
    std::string text;
    if (e.rows)
        text = std::to_string(*e.rows) + (*e.rows == 1 ? " row" : " rows");
    if (e.milliseconds >= 0)
        text += (text.empty() ? "" : ", ") + milliseconds(e.milliseconds);
    return text;
}

const char *lead(JournalEntry::Kind kind)
{
    switch (kind) {
    case JournalEntry::Kind::Statement: return "";
    case JournalEntry::Kind::Shown: return "Would run with --write: ";
    case JournalEntry::Kind::Note: return "";
    case JournalEntry::Kind::Message: return "Message: ";
    case JournalEntry::Kind::Failure: return "";
    }
    return "";
}

std::string messageText(const JournalEntry &e) { return e.title.empty() ? e.text : e.title + " – " + e.text; }

std::string entryHtml(const JournalEntry &e, bool said)
{
    const bool statement = e.kind == JournalEntry::Kind::Statement || e.kind == JournalEntry::Kind::Shown;
    std::string html = said ? "<li class=\"said\">" : "<li>";
    if (e.kind == JournalEntry::Kind::Failure)
        html += "<span class=\"error\">" + escapedUtf8(e.text) + "</span>";
    else if (statement)
        html += lead(e.kind) + ("<code>" + escapedUtf8(e.text) + "</code>");
    else
        html += lead(e.kind) + escapedUtf8(messageText(e));
    for (std::size_t i = 0; i < e.parameters.size(); ++i)
        html += "<br><span class=\"faint\">? " + std::to_string(i + 1) + " = </span><code>" +
                escapedUtf8(e.parameters[i]) + "</code>";
    if (const std::string text = outcome(e); !text.empty())
        html += " <span class=\"faint\">" + text + "</span>";
    if (!e.error.empty())
        html += "<br><span class=\"error\">" + escapedUtf8(e.error) + "</span>";
    return html + "</li>\n";
}

bool isSaid(const Strip &strip, const JournalEntry &e)
{
    return strip.saidFrom != 0 && e.number >= strip.saidFrom && e.number <= strip.saidTo;
}

std::string summary(const Strip &strip)
{
    std::string text = "Preview of " + escapedUtf8(strip.page);
    if (!strip.state.empty())
        text += " · " + escapedUtf8(strip.state);
    const auto latest = std::find_if(strip.entries.begin(), strip.entries.end(),
                                     [](const JournalEntry &e) { return !e.aside || !e.error.empty(); });
    if (latest != strip.entries.end()) {
        const JournalEntry &e = *latest;
        const std::string line = shortened(lead(e.kind) + messageText(e)), how = outcome(e);
        text += " · " + escapedUtf8(line) + (how.empty() ? "" : " · " + how);
        if (!e.error.empty())
            text += " · <span class=\"error\">" + escapedUtf8(shortened(e.error)) + "</span>";
    }
    return text;
}

std::string navigation(const Strip &strip)
{
    std::string links;
    for (const StripLink &link : strip.links)
        links += "<a href=\"" + escapedUtf8(link.address) + "\">" + escapedUtf8(link.caption) + "</a>";
    return links.empty() ? links : "<nav aria-label=\"Rows\">" + links + "</nav>";
}

std::string messages(const Strip &strip)
{
    std::string html;
    for (auto e = strip.entries.rbegin(); e != strip.entries.rend(); ++e)
        if (e->kind == JournalEntry::Kind::Message && isSaid(strip, *e))
            html += "<dialog class=\"preview-message\" aria-label=\"Message\"><h2>" + escapedUtf8(e->title) +
                    "</h2><p>" + escapedUtf8(e->text) +
                    "</p><form method=\"dialog\"><button>OK</button></form></dialog>\n";
    return html;
}

std::string percentEncoded(const std::string &utf8)
{
    std::string text;
    for (const char c : utf8)
        text += '%' + hexDigits(static_cast<unsigned char>(c), 2);
    return text;
}

std::string stripHtml(const Strip &strip)
{
    bool open = false; // when there is more to tell than rows
    std::string entries;
    for (const JournalEntry &e : strip.entries) {
        const bool plain = e.kind == JournalEntry::Kind::Message || e.kind == JournalEntry::Kind::Statement;
        open = open || (isSaid(strip, e) && !(plain && e.error.empty()));
        entries += entryHtml(e, isSaid(strip, e));
    }
    return "<div id=\"preview-room\" style=\"top:" + std::to_string(strip.pageHeight) +
           "px\"></div>\n<aside id=\"preview-strip\" aria-label=\"Preview\" data-events=\".events?page=" +
           percentEncoded(strip.page) + "&amp;stamp=" + percentEncoded(strip.stamp) + "\"><details" +
           (open ? " open" : "") + "><summary>" + summary(strip) + "</summary>" +
           (entries.empty() ? "" : "<ol>\n" + entries + "</ol>") + "</details>" + navigation(strip) + "</aside>\n" +
           messages(strip);
}

void insertBefore(std::string &html, const char *endTag, const std::string &text)
{
    const std::size_t at = html.rfind(endTag);
    html.insert(at == std::string::npos ? html.size() : at, text);
}

} // namespace

std::string withStrip(std::string html, const Strip &strip)
{
    insertBefore(html, "</body>", stripHtml(strip) + "<script src=\".preview.js\"></script>\n");
    const std::size_t head = html.find("</head>"); // the first: a text of the page may hold another
    html.insert(head == std::string::npos ? 0 : head,
                "<link rel=\"stylesheet\" href=\".preview.css\">\n<link rel=\"icon\" href=\".preview.svg\">\n");
    return html;
}

std::string ownPage(const std::string &heading, const std::string &text, const StripLink &link)
{
    const std::string title = escapedUtf8(heading);
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + title +
           "</title>\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n</head>\n<body>\n"
           "<main class=\"preview-own\"><h1>" +
           title + "</h1><p>" + escapedUtf8(text) + "</p><p><a href=\"" + escapedUtf8(link.address) + "\">" +
           escapedUtf8(link.caption) + "</a></p></main>\n</body>\n</html>\n";
}

} // namespace corvanta
