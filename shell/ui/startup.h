#pragma once

#include "document/settings.h"
#include "platform/event.h"

#include <functional>
#include <memory>
#include <string>

namespace corvanta {

class Editform;
class Hpsedit;

// The editor's two top-level windows, tied to the document, to the canvas and to the commands.
class EditorWindows {
public:
    EditorWindows();
    ~EditorWindows();
    EditorWindows(const EditorWindows &) = delete;
    EditorWindows &operator=(const EditorWindows &) = delete;

    // Shows the windows with a new page or the page file of the command line (host or drive path, UTF-8).
    void start(const std::string &pageFile);
    // Ends a session that the main window's closing has not ended.
    void end();

    std::function<void()> ended; // the main window was closed and the session is over

    Hpsedit &main() { return *hpsedit; }
    Editform *canvas() { return editform.get(); } // none before the start and after the end

private:
    void loadCanvas();
    void connectCommands();
    void followSelection();
    void watchFile();
    void connectSession();
    void connectWindows();

    bool sessionRuns = false;
    EventConnections connections;
    WindowSettings places; // of the start
    std::unique_ptr<Hpsedit> hpsedit;
    std::unique_ptr<Editform> editform;
};

// Puts this desktop behind the platform's questions, pictures, sounds and fonts, and the shell's small windows
// behind their commands. Needs the application object.
void installDesktop();

// The code page of the editor's texts: the option (0 for none), else CORVANTA_CODEPAGE, else that of the user's
// language.
int chosenCodePage(int option);

} // namespace corvanta
