#include "objects/ui/entry_look.h"

#include "document/parse.h"
#include "platform/qt/colours.h"
#include "platform/qt/fonts.h"
#include "platform/qt/text.h"

#include <QLineEdit>
#include <QListWidget>

namespace corvanta {

namespace {

void dress(QListWidget &list, const FontBlock &font, const std::string &colour)
{
    QPalette palette = list.palette();
    palette.setColor(QPalette::Text, toQColor(font.ForeColor));
    palette.setColor(QPalette::Base, toQColor(colourShown(colour)));
    list.setPalette(palette);
    list.setFont(toQFont(font));
}

} // namespace

void addEntryAppearance(PropertyDialog &d, Group &look, const char *listName, bool alignment)
{
    const auto redress = [&d, listName] {
        dress(*d.findChild<QListWidget *>(listName), d.values.font, toBytes(d.findChild<QLineEdit *>("col")->text()));
    };
    addColourRow(d, look.fields, redress);
    if (alignment) {
        addAlignmentRow(d, look.fields, "Alignment:");
        addFontButton(d, look.fields, redress);
        addTabIndexRow(d, look.fields, "Tab Index:");
    } else {
        addTabIndexRow(d, look.fields, "&Tab Index:");
        addFontButton(d, look.fields, redress);
    }
    d.onLoad(redress);
}

} // namespace corvanta
