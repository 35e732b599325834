#pragma once

#include "objects/ui/open_properties.h"
#include "tests/support/fresh_page.h"
#include "tests/support/modal_driver.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

#include <QDialog>
#include <QLineEdit>

#include <filesystem>

namespace corvanta {

// The process-wide page in a directory that has the sample pages' media, and hands on its property dialogs.
class PropertyDialogs : public FreshPage {
protected:
    PropertyDialogs() : FreshPage(600, 420)
    {
        for (const auto &file : std::filesystem::directory_iterator(CORVANTA_SOURCE "/samples"))
            if (file.path().extension() == ".bmp" || file.path().extension() == ".wav")
                drive.add(file.path().filename(), hostBytes(file.path()));
    }

    static void openSample(const std::string &name)
    {
        newPage();
        parsePage(page(), samples::sample(name));
        editing().pagedirty = false;
    }

    // Opens the property dialog of an object and hands it to a function, which has to close it.
    static void withDialog(std::int16_t index, const std::function<void(QDialog &)> &use)
    {
        editing().curobj = index;
        const std::int16_t kind = object(index).kind;
        const bool modal = kind < 9 && kind != 5;
        ModalDriver driver;
        bool used = false;
        const auto run = [&](QWidget &window) {
            used = true;
            use(static_cast<QDialog &>(window));
        };
        if (modal)
            driver.expect("", run);
        OpenObjectProperties(kind);
        if (!modal)
            run(*openDialog());
        settle();
        EXPECT_TRUE(used);
    }

    // The visible dialog that is not modal; none is null.
    static QDialog *openDialog()
    {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (auto *dialog = qobject_cast<QDialog *>(window); dialog && dialog->isVisible())
                return dialog;
        return nullptr;
    }
    // Closed dialogs are gone.
    static void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    static void type(const QWidget &dialog, const char *field, const char *text)
    {
        find<QLineEdit>(dialog, field).setText(text);
    }

    TemporaryDrive drive;
};

} // namespace corvanta
