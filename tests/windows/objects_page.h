#pragma once

#include "document/events.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "objects/ui/open_properties.h"
#include "tests/support/modal_driver.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <filesystem>

namespace corvanta {

// The process-wide page in a directory that has the sample pages' media, and hands on its property dialogs.
class PropertyDialogs : public testing::Test {
protected:
    PropertyDialogs()
    {
        documentEvents() = {};
        newPage();
        editing() = {};
        editing().curdir = "C:\\";
        page().bkgwd = 600;
        page().bkght = 420;
        for (const auto &file : std::filesystem::directory_iterator(CORVANTA_SOURCE "/samples"))
            if (file.path().extension() == ".bmp" || file.path().extension() == ".wav")
                drive.add(file.path().filename(), samples::bytesOf(file.path()));
    }
    ~PropertyDialogs() override
    {
        newPage();
        editing() = {};
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
        const std::int16_t kind = page().objects.at(static_cast<std::size_t>(index)).kind;
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
            run(openDialog());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(used);
    }

    // The visible dialog that is not modal.
    static QWidget &openDialog()
    {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (qobject_cast<QDialog *>(window) && window->isVisible())
                return *window;
        throw std::runtime_error("no dialog");
    }

    template <class Control> static Control &find(const QWidget &dialog, const char *name)
    {
        return ModalDriver::find<Control>(dialog, name);
    }
    static void click(const QWidget &dialog, const char *button) { find<QPushButton>(dialog, button).click(); }
    static void type(const QWidget &dialog, const char *field, const char *text)
    {
        find<QLineEdit>(dialog, field).setText(text);
    }

    TemporaryDrive drive;
};

} // namespace corvanta
