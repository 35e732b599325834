#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The thirteen kinds of objects. What differs by kind is a switch on the code without default, one per
// concern:
//   element array of a kind             document/page.cpp        elementsOf
//   defaults of a new object            document/new_object.cpp  setDefaults
//   kind tail in files                  document/record_fields.h kindTail
//   files that an object names          document/media.cpp       loadObjectFile
//   painting on the canvas              canvas/ui/paint.cpp      paintObject
//   property dialog                     objects/ui/open_properties.cpp OpenObjectProperties
//   value class in SQL                  database/sql.cpp         valueClass
//   HTML element                        converter/elements.cpp   writeElement
namespace corvanta {

enum class Kind : std::int16_t {
    Button = 1,
    HotSpot,
    ListBox,
    Label,
    TextBox,
    Image,
    Ticker,
    Animation,
    Grid,
    ImageDb,
    ComboBox,
    File,
    Url
};

inline constexpr std::int16_t firstKind = 1, lastKind = 13;

// The kind of a code; none for a code outside 1..13.
inline std::optional<Kind> kindOf(std::int16_t code)
{
    return code < firstKind || code > lastKind ? std::nullopt : std::optional(static_cast<Kind>(code));
}

// What is the same for every object of a kind.
struct KindRow {
    Kind kind;
    const char *prefix;      // of its dialog and element array, e.g. "but"
    const char *displayName; // e.g. "Button"; shown in lists and dialog captions
    const char *menuCaption; // of the Add submenu; empty for kinds that it does not offer
    bool drawnOnPage;        // no element array: drawn on the page picture
    bool hasAlignment, hasTabIndex, hasBinding, hasTail;
};

// The row of a kind.
const KindRow &kindRow(Kind kind);

// What to call an object of a kind code in messages and acts: the kind's display name, "object" for an unknown kind.
std::string objectName(std::int16_t code);

// The kind registry: indexed by kind code, with one entry beyond the highest code; codes that the Add
// submenu does not offer have empty entries.
struct RegisteredKind {
    std::int16_t code = 0;
    std::int16_t menuIndex = 0; // of the Add submenu's item
    std::string displayName, menuCaption;
};

std::vector<RegisteredKind> &kindRegistry();
void registerKind(std::int16_t code, std::string_view displayName, std::string_view menuCaption);
void buildKindRegistry(); // registers the offered kinds; called once at start-up

// Names by kind code from the registry; empty for a code without an entry.
std::string kindDisplayName(std::int16_t code);
std::string kindMenuCaption(std::int16_t code);

// The offered kinds in the order of the Add submenu: by display name in upper case. Numbers the
// registry's menu indices from 1.
std::vector<RegisteredKind> orderedAddMenu();

} // namespace corvanta
