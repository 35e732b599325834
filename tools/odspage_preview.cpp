#include "platform/codepage.h"
#include "platform/text.h"
#include "preview/address_file.h"
#include "preview/host.h"
#include "preview/server.h"
#include "tools/odspage_commands.h"
#include "tools/odspage_terminal.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <memory>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

constexpr int endingTime = 2000; // milliseconds that open requests get to end

struct PreviewArguments {
    std::string target, overlay;
    int port = 0;
    bool write = false, open = false, addressFile = false;
};

// Written to by the signal handler.
int endPipe[2] = {-1, -1};

void askForEnd(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(endPipe[1], &byte, 1);
}

void watchSignals()
{
    if (pipe2(endPipe, O_CLOEXEC) != 0)
        return;
    struct sigaction end = {};
    end.sa_handler = askForEnd;
    sigaction(SIGINT, &end, nullptr);
    sigaction(SIGTERM, &end, nullptr);
    sigaction(SIGHUP, &end, nullptr);
    sigaction(SIGQUIT, &end, nullptr); // would leave a terminal that asks for a password silent
    signal(SIGPIPE, SIG_IGN);
}

// Whether a program holds the other end of the standard input; a terminal or a file does not end the preview.
bool inputIsHeld()
{
    struct stat status = {};
    return fstat(STDIN_FILENO, &status) == 0 && (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

// The directory with its overlay and the page to begin with; the failure is for the user.
std::string findPages(const PreviewArguments &arguments, PageFolder &pages)
{
    std::error_code error;
    const fs::path target = fs::exists(arguments.target, error) ? fs::canonical(arguments.target, error)
                                                                : fs::absolute(arguments.target, error);
    const bool wholeFolder = fs::is_directory(target, error);
    pages.folder = fs::canonical(wholeFolder ? target : target.parent_path(), error);
    if (!error && !arguments.overlay.empty())
        pages.overlay = fs::canonical(arguments.overlay, error);
    if (error)
        return error.message();
    const std::string address = fromUtf8Lossy(target.filename().string());
    if (wholeFolder)
        pages.start = startPage(pages);
    else if (address.size() > 4 && sameText(address.substr(address.size() - 4), ".ods"))
        pages.start = address.substr(0, address.size() - 4);
    else
        return fs::exists(target, error) ? "no page file (.ods)" : "no such page file or directory";
    if (pages.start.empty())
        return "no page files (.ods) here";
    return loadPage(pages, pages.start).missing ? "no such page file" : "";
}

// Opens a file in the user's browser.
void openBrowser(const fs::path &file)
{
    const pid_t child = fork();
    if (child == 0) {
        if (fork() == 0)
            execlp("xdg-open", "xdg-open", file.c_str(), static_cast<char *>(nullptr));
        _exit(0);
    }
    if (child > 0)
        waitpid(child, nullptr, 0);
}

struct Running {
    ToolRun &run;
    const PageFolder &pages;
    PreviewServer &server;
    std::string base; // address with the token and "/"
    bool throughFile = false;
    AddressFile addressFile = {};
    std::string input = {};

    void tell(const std::string &page)
    {
        const std::string address = base + pageLocation(page);
        const fs::path file = throughFile ? addressFile.leadTo(address) : fs::path();
        run.out << (file.empty() ? address : file.string()) << std::endl;
    }
    void openPage(const std::string &page)
    {
        if (const fs::path &file = addressFile.leadTo(base + pageLocation(page)); !file.empty())
            openBrowser(file);
    }

    // "show NAME" sends the open browser windows to the page, or tells its address for a new one.
    void command(const std::string &line)
    {
        if (!line.starts_with("show "))
            return;
        const std::string page = fromUtf8Lossy(line.substr(5));
        if (server.sendTo(pageLocation(page)))
            run.out << "shown" << std::endl;
        else
            tell(page);
    }

    // False at the end of the input.
    bool readInput()
    {
        char bytes[1024];
        const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0 || input.size() > sizeof bytes)
            return false;
        input.append(bytes, static_cast<std::size_t>(count));
        for (std::size_t end = 0; (end = input.find('\n')) != std::string::npos; input.erase(0, end + 1))
            command(input.substr(0, end));
        return true;
    }

    void waitForEnd()
    {
        pollfd waiting[2] = {{endPipe[0], POLLIN, 0}, {inputIsHeld() ? STDIN_FILENO : -1, POLLIN, 0}};
        for (;;) {
            if (poll(waiting, 2, -1) < 0 && errno != EINTR)
                return;
            if (waiting[0].revents != 0 || (waiting[1].revents != 0 && !readInput()))
                return;
        }
    }
};

void serveUntilEnd(ToolRun &run, const PageFolder &pages, PreviewServer &server, const PreviewArguments &arguments,
                   const std::string &base)
{
    std::thread serving([&] { server.serve(); });
    {
        Running running{run, pages, server, base, arguments.addressFile};
        running.tell(pages.start);
        if (arguments.open)
            running.openPage(pages.start);
        running.waitForEnd();
    } // the page for the browser goes, also where requests do not end
    server.stop();
    std::atomic<bool> ended = false;
    std::thread guard([&ended] { // a database that does not answer holds nobody up
        for (int waited = 0; waited < endingTime && !ended; waited += 20)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        if (!ended)
            std::_Exit(0);
    });
    serving.join();
    ended = true;
    guard.join();
}

int preview(ToolRun &run, const PreviewArguments &arguments)
{
    PageFolder pages;
    if (const std::string failure = findPages(arguments, pages); !failure.empty()) {
        complain(run, arguments.target, failure);
        return 1;
    }
    watchSignals();
    PreviewHost host(pages,
                     {arguments.write, [](const std::string &source) { return askOnTerminal(source, endPipe[0]); }});
    const std::string token = randomToken();
    PreviewServer server(token, {[&](const PreviewRequest &request) { return host.answer(request); },
                                 [&](const std::string &page) { return host.stamp(page); }});
    const int port = server.bind(arguments.port);
    if (port <= 0) {
        complain(run, "port " + std::to_string(arguments.port), "not to be had");
        return 1;
    }
    serveUntilEnd(run, pages, server, arguments, "http://127.0.0.1:" + std::to_string(port) + "/" + token + "/");
    return 0;
}

} // namespace

void addPreviewCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("preview", "Serve the pages of a directory to this machine's browsers");
    const auto arguments = std::make_shared<PreviewArguments>();
    command->add_option("FILE.ods|DIR", arguments->target, "the page to begin with, or the directory")->required();
    command->add_option("--port", arguments->port, "port of 127.0.0.1 (default: any that is free)")
        ->check(CLI::Range(0, 65535));
    command->add_flag("--write", arguments->write, "carry out statements that change the database");
    command->add_flag("--open", arguments->open, "open the page in the browser");
    command->add_flag("--address-file", arguments->addressFile,
                      "print the path of a page of the user's own that leads to the preview, not the address");
    command->add_option("--overlay", arguments->overlay, "directory whose pages stand in the place of those in DIR");
    command->callback([&run, arguments] {
        if (!run.codePageGiven)
            setCodePage(codePageOfEnvironment());
        run.exitCode = preview(run, *arguments);
    });
}

} // namespace corvanta
