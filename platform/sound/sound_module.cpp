#include "platform/sound/sound_module.h"

#include "platform/sound_header.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <dlfcn.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <fstream>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

// Opening a sound device may take half a minute when the sound server does not answer. So everything is done
// by a thread of its own, which is left behind when it does not come to an end in time.
namespace corvanta {

namespace {

constexpr std::size_t mostWaiting = 16;
constexpr std::size_t mostEffectBytes = 1 << 20; // longer files are streamed
constexpr int channelCount = 16;

struct Command {
    enum class Kind { Play, CloseAll, End };
    Kind kind;
    std::string path;
};

struct Queue {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Command> commands;
    bool started = false, ended = false;
};

// Never destroyed: the thread may outlive the program's main function.
Queue &queue()
{
    static auto *theQueue = new Queue;
    return *theQueue;
}

struct Player {
    bool open = false;
    Mix_Music *music = nullptr;
    std::vector<Mix_Chunk *> effects = std::vector<Mix_Chunk *>(channelCount); // by channel
    int bytesOfSecond = 0;                                                     // as the device takes them
};

// NOLINTNEXTLINE(cert-dcl50-cpp): as the library calls it
void ignoreAlsaMessage(const char *, int, const char *, int, const char *, ...) {}
void ignoreMessage(int, const char *, void *) {}
void ignoreJackMessage(const char *) {}

template <class Function, class... Arguments> void callIfPresent(const char *name, Arguments... arguments)
{
    if (void *address = dlsym(RTLD_DEFAULT, name))
        reinterpret_cast<Function>(address)(arguments...);
}

// The libraries below the mixer report missing devices to the terminal.
void silenceLibraries()
{
    using AlsaHandler = void (*)(const char *, int, const char *, int, const char *, ...);
    using FluidHandler = void (*)(int, const char *, void *);
    using JackHandler = void (*)(const char *);
    callIfPresent<int (*)(AlsaHandler)>("snd_lib_error_set_handler", ignoreAlsaMessage);
    for (int level = 0; level < 5; ++level)
        callIfPresent<void *(*)(int, FluidHandler, void *)>("fluid_set_log_function", level, ignoreMessage, nullptr);
    callIfPresent<void (*)(JackHandler)>("jack_set_error_function", ignoreJackMessage);
    callIfPresent<void (*)(JackHandler)>("jack_set_info_function", ignoreJackMessage);
}

bool openDevice(Player &player)
{
    if (player.open)
        return true;
    silenceLibraries();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // Ctrl+C ends the program, as without sound
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
        return false;
    if (Mix_OpenAudio(44100, MIX_DEFAULT_FORMAT, 2, 2048) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    Mix_AllocateChannels(channelCount);
    int rate = 0, channels = 0;
    Uint16 format = 0;
    Mix_QuerySpec(&rate, &format, &channels);
    player.bytesOfSecond = rate * channels * SDL_AUDIO_BITSIZE(format) / 8;
    return player.open = true;
}

void freeEffects(Player &player, bool alsoPlaying)
{
    for (int channel = 0; channel < channelCount; ++channel) {
        Mix_Chunk *&effect = player.effects[static_cast<std::size_t>(channel)];
        if (!effect || (!alsoPlaying && Mix_Playing(channel)))
            continue;
        Mix_FreeChunk(effect);
        effect = nullptr;
    }
}

void freeMusic(Player &player)
{
    if (player.music)
        Mix_FreeMusic(player.music);
    player.music = nullptr;
}

void closeDevice(Player &player)
{
    if (!player.open)
        return;
    Mix_HaltChannel(-1);
    Mix_HaltMusic();
    freeEffects(player, true);
    freeMusic(player);
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    player.open = false;
}

std::uint64_t effectBytes(const Player &player)
{
    std::uint64_t bytes = 0;
    for (const Mix_Chunk *effect : player.effects)
        bytes += effect ? effect->alen : 0;
    return bytes;
}

// Gives back what decoding took beyond the samples.
void shrink(Mix_Chunk &effect)
{
    if (void *samples = SDL_realloc(effect.abuf, effect.alen))
        effect.abuf = static_cast<Uint8 *>(samples);
}

std::string shortFile(const std::string &path)
{
    std::string content(mostEffectBytes + 1, '\0');
    std::ifstream in(path, std::ios::binary);
    in.read(content.data(), static_cast<std::streamsize>(content.size()));
    content.resize(static_cast<std::size_t>(in.gcount()));
    return content.size() > mostEffectBytes ? std::string() : content;
}

// Short sounds are mixed, as far as all of them together are not too large.
bool playEffect(Player &player, const std::string &path)
{
    const std::string content = shortFile(path);
    freeEffects(player, false);
    if (!mayBeMixed(content, static_cast<std::uint64_t>(player.bytesOfSecond), effectBytes(player)))
        return false;
    Mix_Chunk *effect = Mix_LoadWAV_RW(SDL_RWFromConstMem(content.data(), static_cast<int>(content.size())), 1);
    if (!effect)
        return false;
    shrink(*effect);
    const int channel = Mix_PlayChannel(-1, effect, 0);
    if (channel < 0)
        Mix_FreeChunk(effect);
    else
        player.effects[static_cast<std::size_t>(channel)] = effect;
    return true;
}

// Long sounds and MIDI replace each other.
void playMusic(Player &player, const std::string &path)
{
    freeMusic(player);
    player.music = Mix_LoadMUS(path.c_str());
    if (player.music)
        Mix_PlayMusic(player.music, 1);
}

void dropWaitingSounds()
{
    Queue &waiting = queue();
    const std::lock_guard lock(waiting.mutex);
    std::erase_if(waiting.commands, [](const Command &command) { return command.kind == Command::Kind::Play; });
}

void run(Player &player, const Command &command)
{
    switch (command.kind) {
    case Command::Kind::Play:
        if (!openDevice(player))
            dropWaitingSounds();
        else if (!playEffect(player, command.path))
            playMusic(player, command.path);
        break;
    case Command::Kind::CloseAll:
    case Command::Kind::End: closeDevice(player); break;
    }
}

Command nextCommand()
{
    Queue &waiting = queue();
    std::unique_lock lock(waiting.mutex);
    waiting.changed.wait(lock, [&] { return !waiting.commands.empty(); });
    Command command = std::move(waiting.commands.front());
    waiting.commands.pop_front();
    return command;
}

void work()
{
    Player player;
    Command command{Command::Kind::CloseAll, {}};
    while (command.kind != Command::Kind::End) {
        command = nextCommand();
        run(player, command);
    }
    Queue &waiting = queue();
    const std::lock_guard lock(waiting.mutex);
    waiting.ended = true;
    waiting.changed.notify_all();
}

void put(Command command)
{
    Queue &waiting = queue();
    const std::lock_guard lock(waiting.mutex);
    if (command.kind != Command::Kind::Play)
        waiting.commands.clear();
    else if (waiting.commands.size() >= mostWaiting)
        waiting.commands.pop_front();
    waiting.commands.push_back(std::move(command));
    if (!waiting.started)
        std::thread(work).detach();
    waiting.started = true;
    waiting.changed.notify_all();
}

void play(const char *hostPath) { put({Command::Kind::Play, hostPath}); }

void closeAll() { put({Command::Kind::CloseAll, {}}); }

void end()
{
    put({Command::Kind::End, {}});
    Queue &waiting = queue();
    std::unique_lock lock(waiting.mutex);
    waiting.changed.wait_for(lock, std::chrono::milliseconds(500), [&] { return waiting.ended; });
}

constexpr SoundModule functions{play, closeAll, end};

} // namespace

extern "C" const SoundModule *corvantaSoundModule() { return &functions; }

} // namespace corvanta
