#include "actions/ui/entry_buttons.h"
#include "document/media.h"
#include "document/parse.h"
#include "objects/ui/dialogs.h"
#include "objects/ui/media_row.h"
#include "platform/qt/text.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <memory>

namespace corvanta {

namespace {

// The fields of one frame and the frame that they show.
struct FrameFields {
    PropertyDialog &d;
    QListWidget *list = nullptr;
    QCheckBox *frozen = nullptr;
    QLineEdit *ptop = nullptr, *pleft = nullptr, *imgfn = nullptr, *sndfn = nullptr, *duration = nullptr;
    int shown = -1; // the frame whose fields are shown; -1 none
};

void takeNumber(const QLineEdit &field, std::int16_t &value) { value = changedInt16(toBytes(field.text()), value); }

void takeText(const QLineEdit &field, std::string &value) { value = changedText(toBytes(field.text()), value); }

// Copies the fields into the frame that they show.
void TakeFrameFields(FrameFields &f)
{
    auto &frames = f.d.values.frames;
    if (f.shown < 0 || static_cast<std::size_t>(f.shown) >= frames.size())
        return;
    Frame &frame = frames[static_cast<std::size_t>(f.shown)];
    if (f.ptop->isEnabled())
        takeNumber(*f.ptop, frame.top);
    if (f.pleft->isEnabled())
        takeNumber(*f.pleft, frame.left);
    takeText(*f.imgfn, frame.image);
    takeText(*f.sndfn, frame.sound);
    takeNumber(*f.duration, frame.duration);
}

void showField(QLineEdit &field, const char *label, const QString &text, bool enabled, bool anyFrame)
{
    setFieldEnabled(field, enabled);
    labelOf(field)->setText(anyFrame ? QString(label) : QString(label).remove('&'));
    field.setText(text);
}

// Without a frame the fields are disabled and empty; a stationary animation has the place of its first frame, unless
// that of another one is to be corrected.
void showFrame(FrameFields &f, int row, bool corrected = false)
{
    f.shown = row;
    const bool any = row >= 0;
    const Frame frame = any ? f.d.values.frames[static_cast<std::size_t>(row)] : Frame();
    const bool placed = row == 0 || (any && (corrected || !f.frozen->isChecked()));
    const auto number = [&](int value) { return any ? QString::number(value) : QString(); };
    const auto place = [&](int value) { return placed || !any ? number(value) : QString("N/A"); };
    showField(*f.ptop, "&Top:", place(frame.top), placed, any);
    showField(*f.pleft, "&Left:", place(frame.left), placed, any);
    showField(*f.imgfn, "I&mage:", toQString(frame.image), any, any);
    showField(*f.sndfn, "S&ound:", toQString(frame.sound), any, any);
    showField(*f.duration, "&Duration:", number(frame.duration), any, any);
}

void ShowFrameFields(FrameFields &f)
{
    TakeFrameFields(f);
    showFrame(f, f.list->currentRow());
}

EntryList<Frame> editedFrames(const std::shared_ptr<FrameFields> &f)
{
    const auto before = [f] {
        TakeFrameFields(*f);
        f->shown = -1; // the rows move: nothing is to be taken into them
    };
    const auto line = [](const Frame &, std::size_t i) { return "Animation Frame " + std::to_string(i + 1); };
    return {f->d.values.frames, *f->list, line, {}, before};
}

// A message about a frame has selected it.
void showRefused(FrameFields &f, const Confirmation &refused)
{
    const auto *field = f.d.findChild<QWidget *>(QString::fromStdString(refused.focus));
    if (refused.entry >= 0 && field && !field->isEnabled())
        showFrame(f, refused.entry, true);
}

void addFrameFields(FrameFields &f, QBoxLayout &layout)
{
    Group group = addGroup(layout, "frame", "Frame", 2);
    f.ptop = addNumberRow(group.fields, "ptop", "&Top:");
    f.pleft = addNumberRow(group.fields, "pleft", "&Left:");
    const auto invalid = [&f](const char *what) {
        return [what, list = f.list] {
            return invalidFileName(what, " for frame " + std::to_string(list->currentRow() + 1));
        };
    };
    f.imgfn = addMediaField(group.fields, "imgfn", "I&mage:", Media::Image, invalid("image"));
    f.sndfn = addMediaField(group.fields, "sndfn", "S&ound:", Media::Sound, invalid("sound"));
    Fields timing = addFields(*group.contents);
    f.duration = addNumberRow(timing, "duration", "&Duration:");
    addHintBeside(timing, "(1/10 seconds)");
}

void addPlayback(FrameFields &f, QBoxLayout &layout)
{
    Group group = addGroup(layout, "playback", "Playback");
    f.d.tie(addNumberRow(group.fields, "nplay", "&Play"), &PropertyFields::nplay);
    addHintBeside(group.fields, "times (0=forever)");
    f.frozen = addCheckRow(group.fields, "frozen", "Stationary animation");
    f.d.tie(f.frozen, &PropertyFields::frozen);
    f.d.tie(addCheckRow(group.fields, "strictime", "Use stricter animation timing"), &PropertyFields::strictime);
    addHoverRow(f.d, group.fields);
}

} // namespace

void buildAniobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    auto f = std::make_shared<FrameFields>(FrameFields{d});
    addStandardProperties(d, *columns[0], false);
    addActionGroup(d, *columns[0]);
    addPlayback(*f, *columns[0]);

    Group frames = addGroup(*columns[1], "frames", "Frames");
    f->list = addListRow(frames.fields, "aniedit", "");
    const EntryList<Frame> edited = editedFrames(f);
    addEntryButtons(*frames.contents, "lbbut", {EntryCommand::New, EntryCommand::Delete, EntryCommand::Insert}, edited);
    addFrameFields(*f, *columns[1]);

    QObject::connect(f->list, &QListWidget::currentRowChanged, f->list, [f] { ShowFrameFields(*f); });
    QObject::connect(f->frozen, &QCheckBox::toggled, f->list, [f] { ShowFrameFields(*f); });
    d.onLoad([edited] { showEntries(edited, edited.entries.empty() ? -1 : 0); });
    d.onTake([f] { TakeFrameFields(*f); });
    d.onRefused([f](const Confirmation &refused) { showRefused(*f, refused); });
}

} // namespace corvanta
