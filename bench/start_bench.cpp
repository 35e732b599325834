// From the start of a program to its painted windows: the editor with a page, and a bare program with two windows. They
// take turns, so that what else the machine does hits both.
#include <benchmark/benchmark.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Starts a program, waits for its line "painted", and ends it.
void startAndEnd(benchmark::State &state, const char *program, const char *argument)
{
    const std::string path = std::string(CORVANTA_PROGRAMS "/") + program;
    char *const arguments[] = {const_cast<char *>(path.c_str()), const_cast<char *>(argument), nullptr};
    for (auto _ : state) {
        int said[2];
        if (pipe2(said, O_CLOEXEC) != 0)
            return state.SkipWithError("no pipe");
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, said[1], STDERR_FILENO);
        const auto start = std::chrono::steady_clock::now();
        pid_t child = 0;
        const bool started = posix_spawn(&child, path.c_str(), &actions, nullptr, arguments, environ) == 0;
        posix_spawn_file_actions_destroy(&actions);
        close(said[1]);
        std::string line;
        char c = 0;
        while (started && line.find("painted") == std::string::npos && read(said[0], &c, 1) == 1)
            line += c;
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        if (started) {
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
        }
        close(said[0]);
        if (line.find("painted") == std::string::npos)
            return state.SkipWithError(line.c_str());
    }
}

BENCHMARK_CAPTURE(startAndEnd, editor, "corvanta", CORVANTA_PAGE)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(startAndEnd, bare, "bare_windows", nullptr)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    setenv("CORVANTA_PAUSES", "1000", 1);
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::string repeated = "--benchmark_repetitions=7";
    char *own[] = {argv[0], interleaved.data(), repeated.data(), nullptr};
    int count = 3;
    benchmark::Initialize(&count, own);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
