#pragma once

// The functions of the sound module, a shared library of its own. None of them blocks, but for end.
namespace corvanta {

extern "C" {

struct SoundModule {
    void (*play)(const char *hostPath); // plays a sound file in the background
    void (*closeAll)();                 // stops all sounds and gives the sound device back
    void (*end)();                      // stops all sounds for good; waits half a second at most
};

// The library's one exported function.
const SoundModule *corvantaSoundModule();
}

} // namespace corvanta
