#include "platform/qt/qt_multimedia.h"

#include "platform/multimedia.h"
#include "platform/paths.h"
#include "platform/sound_header.h"
#include "platform/text.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QString>

#include <string_view>

namespace corvanta {

namespace {

// Error numbers of multimedia commands.
constexpr int unrecognisedCommand = 261;
constexpr int cannotLoadDriver = 266;
constexpr int fileNotFound = 275;
constexpr int invalidFile = 296;

bool startsWith(std::string_view text, std::string_view start) { return sameText(text.substr(0, start.size()), start); }

int play(const std::string &path, const SoundModules &modules)
{
    const std::filesystem::path host = hostPath(path);
    const OpenMedia file(path);
    if (!file)
        return fileNotFound;
    if (!soundFormat(file.source()))
        return invalidFile;
    const SoundModule *module = modules.load();
    if (!module)
        return cannotLoadDriver;
    module->play(host.c_str());
    return 0;
}

const SoundModule *theModule = nullptr;

// Beside the program as built, or in the library folder of the installed program. The module stays in memory to the
// end of the process, for its thread may still be waiting for a sound server then.
const SoundModule *loadModule()
{
    for (const char *place : {"/libcorvanta-sound.so", "/../lib/corvanta/libcorvanta-sound.so"}) {
        if (theModule)
            break;
        QLibrary library(QCoreApplication::applicationDirPath() + place);
        library.setLoadHints(QLibrary::PreventUnloadHint);
        const QFunctionPointer entry = library.resolve("corvantaSoundModule");
        if (!entry)
            continue;
        theModule = reinterpret_cast<decltype(&corvantaSoundModule)>(entry)();
        qAddPostRoutine([] { theModule->end(); });
    }
    return theModule;
}

} // namespace

int runMultimediaCommand(const std::string &command, const SoundModules &modules)
{
    constexpr std::string_view playStart = "Play ";
    if (startsWith(command, playStart))
        return play(command.substr(playStart.size()), modules);
    if (!sameText(command, "Close all"))
        return unrecognisedCommand;
    if (const SoundModule *module = modules.loaded())
        module->closeAll();
    return 0;
}

void installMultimedia()
{
    multimediaCommand() = [](const std::string &command) {
        return runMultimediaCommand(command, {loadModule, [] { return theModule; }});
    };
}

} // namespace corvanta
