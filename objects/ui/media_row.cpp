#include "objects/ui/media_row.h"

#include "document/page.h"
#include "platform/asking.h"
#include "platform/paths.h"
#include "platform/qt/text.h"
#include "platform/text.h"

#include <QLineEdit>
#include <QPushButton>

namespace corvanta {

namespace {

constexpr int leastName = 12; // characters seen

const char *filterOf(Media media)
{
    switch (media) {
    case Media::Image: return "Images|*.bmp;*.dib;*.gif;*.jpg;*.jpeg;*.png;*.ico;*.cur|All Files (*.*)|*.*";
    case Media::Sound: return "Sounds|*.wav;*.mid;*.midi;*.mp3;*.ogg|All Files (*.*)|*.*";
    case Media::Text: return "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
    }
    return "";
}

FileDialog questionFor(Media media)
{
    FileDialog question;
    question.mustExist = true;
    question.filter = filterOf(media);
    question.initialDirectory = editing().curdir;
    question.entersDirectory = false;
    return question;
}

void browse(QLineEdit &field, Media media, const std::function<std::string()> &invalid)
{
    const auto path = asking().fileDialog ? asking().fileDialog(questionFor(media)) : std::nullopt;
    if (!path)
        return;
    if (hostPath(directoryPart(*path)) != hostPath(editing().curdir)) {
        showExclamation(invalid(), "Properties Error");
    } else {
        field.setText(toQString(fileNamePart(*path)));
        emit field.textEdited(field.text());
    }
    field.setFocus();
    field.selectAll();
}

} // namespace

QLineEdit *addMediaField(Fields &fields, const char *name, const QString &label, Media media,
                         std::function<std::string()> invalid)
{
    QLineEdit *field = addTextRow(fields, name, label, leastName);
    const std::string buttonName = name + std::string("browse");
    QPushButton *button = addButtonBeside(fields, buttonName.c_str(), "Browse...");
    followEnabled(*button, *field);
    QObject::connect(button, &QPushButton::clicked, field,
                     [field, media, invalid = std::move(invalid)] { browse(*field, media, invalid); });
    return field;
}

} // namespace corvanta
