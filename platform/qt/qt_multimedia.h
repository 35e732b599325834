#pragma once

#include "platform/sound/sound_module.h"

#include <functional>
#include <string>

namespace corvanta {

// Where the sound module comes from; nullptr stands for none.
struct SoundModules {
    std::function<const SoundModule *()> load;   // loads it; called by "Play " with an existing file only
    std::function<const SoundModule *()> loaded; // the module when it has been loaded before
};

// Runs a multimedia command string; 0, or its error number.
int runMultimediaCommand(const std::string &command, const SoundModules &modules);

// Makes multimediaCommand() play sounds through the sound module, which is loaded at the first "Play ".
void installMultimedia();

} // namespace corvanta
