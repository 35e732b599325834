#pragma once

#include "preview/request.h"

#include <functional>
#include <memory>
#include <string>

// The preview's HTTP server. It listens on 127.0.0.1 alone and answers only requests whose address begins with the
// token and whose Host header is its own.
namespace corvanta {

// Called from many threads.
struct ServerHandlers {
    std::function<PreviewAnswer(const PreviewRequest &)> answer;
    // A text that changes when a page changes (name of the page in UTF-8).
    std::function<std::string(const std::string &page)> stamp;
};

// 32 random hexadecimal digits; throws std::system_error when the system has none to give.
std::string randomToken();

class PreviewServer {
public:
    PreviewServer(std::string token, ServerHandlers handlers);
    ~PreviewServer();

    // Takes a port, 0 for any; gives the port, or -1 when it is taken.
    int bind(int port);
    // Serves until stop() is called.
    void serve();
    void stop();

    // Sends the browser windows that wait for changes to a page (path below the token); false when there is none.
    bool sendTo(const std::string &path);

private:
    struct State;
    std::unique_ptr<State> state;
};

} // namespace corvanta
