#include "preview/server.h"

#include "preview/form_body.h"
#include "preview/limited_stream.h"

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <mutex>
#include <sys/random.h>
#include <system_error>

namespace corvanta {

namespace {

constexpr std::size_t headerLimit = 65536, longestTarget = 1024; // bytes
constexpr std::chrono::seconds requestTime(15), heartbeat(10);
constexpr std::chrono::milliseconds watchInterval(250);
constexpr std::size_t threads = 24;
constexpr int mostWatchers = 12;

const httplib::Headers securityHeaders = {
    {"Cache-Control", "no-store"},
    {"X-Content-Type-Options", "nosniff"},
    {"X-Frame-Options", "DENY"},
    {"Referrer-Policy", "same-origin"},
    {"Cross-Origin-Resource-Policy", "same-origin"},
    {"Cross-Origin-Opener-Policy", "same-origin"},
};

// Markup of the page's own can load nothing from elsewhere, and so carry nothing away.
std::string contentPolicy(const std::vector<std::string> &pictureHosts)
{
    std::string pictures = "img-src 'self' data:";
    for (const std::string &host : pictureHosts)
        pictures += " " + host;
    return "default-src 'none'; script-src 'self'; style-src 'self' 'unsafe-inline'; " + pictures +
           "; media-src 'self'; connect-src 'self'; form-action 'self'; base-uri 'none'; frame-ancestors 'none'";
}

class LimitedServer : public httplib::Server {
    bool process_and_close_socket(socket_t connection) override
    {
        LimitedStream stream(connection, headerLimit, bodyLimit, requestTime);
        bool closed = false;
        const bool done = process_request(stream, true, closed, nullptr);
        endConnection(connection);
        return done;
    }
};

// Takes the same time wherever the texts differ.
bool sameSecret(std::string_view a, std::string_view b)
{
    unsigned difference = a.size() == b.size() ? 0U : 1U;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i)
        difference |= static_cast<unsigned>(a[i] ^ b[i]);
    return difference == 0;
}

void refuse(httplib::Response &response, int status, const char *why)
{
    response.status = status;
    response.set_header("Content-Security-Policy", contentPolicy({}));
    response.set_content(why, "text/plain; charset=utf-8");
}

std::vector<FormValue> valuesOf(const httplib::Params &parameters)
{
    std::vector<FormValue> values;
    for (const auto &[name, value] : parameters)
        values.push_back({name, value});
    return values;
}

} // namespace

std::string randomToken()
{
    constexpr char digits[] = "0123456789abcdef";
    unsigned char bytes[16];
    if (getrandom(bytes, sizeof bytes, 0) != static_cast<ssize_t>(sizeof bytes))
        throw std::system_error(errno, std::system_category());
    std::string token;
    for (const unsigned char byte : bytes) {
        token += digits[byte >> 4];
        token += digits[byte & 15];
    }
    return token;
}

struct PreviewServer::State {
    std::string token;
    ServerHandlers handlers;
    LimitedServer server;
    int port = 0;
    std::atomic<int> watchers = 0;
    std::mutex mutex;
    std::condition_variable news;
    bool stopping = false;
    std::string sentPath; // where the waiting windows are to go
    unsigned sent = 0;    // counts such orders

    bool hostIsOwn(const httplib::Request &request) const
    {
        const std::string host = request.get_header_value("Host"), number = ":" + std::to_string(port);
        return request.get_header_value_count("Host") == 1 &&
               (host == "127.0.0.1" + number || host == "localhost" + number);
    }
    bool originIsOwn(const httplib::Request &request) const
    {
        return !request.has_header("Origin") ||
               request.get_header_value("Origin") == "http://" + request.get_header_value("Host");
    }

    // False after a refusal.
    bool admit(const httplib::Request &request, httplib::Response &response) const
    {
        const std::size_t end = std::min(request.path.find('/', 1), request.path.size());
        const bool known = end > 0 && sameSecret(std::string_view(request.path).substr(1, end - 1), token);
        if (!hostIsOwn(request) || !originIsOwn(request) || !known || end == request.path.size())
            refuse(response, 403, "Refused: this address is not one of the preview.\n");
        else if (request.target.size() > longestTarget)
            refuse(response, 414, "Refused: the address is too long.\n");
        else if (request.method != "GET" && request.method != "HEAD" && request.method != "POST")
            refuse(response, 405, "Refused: GET, HEAD and POST only.\n");
        else
            return true;
        return false;
    }

    PreviewRequest plainRequest(const httplib::Request &request) const
    {
        PreviewRequest plain;
        plain.path = request.path.substr(token.size() + 2);
        plain.query = valuesOf(request.params);
        return plain;
    }

    void give(const PreviewRequest &plain, httplib::Response &response) const
    {
        const PreviewAnswer answer = handlers.answer(plain);
        if (answer.status != 200) // else the library tells parts of a sound from the whole
            response.status = answer.status;
        if (!answer.location.empty())
            response.set_header("Location", "/" + token + "/" + answer.location);
        response.set_header("Content-Security-Policy", contentPolicy(answer.pictureHosts));
        response.set_content(answer.body, answer.type);
    }

    void post(const httplib::Request &request, httplib::Response &response, const httplib::ContentReader &reader) const
    {
        PreviewRequest plain = plainRequest(request);
        plain.post = true;
        const BodyReading reading = readForm(request, reader, plain);
        if (reading == BodyReading::TooLarge)
            refuse(response, 413, "Refused: the form is too large.\n");
        else if (reading == BodyReading::Malformed)
            refuse(response, 400, "Refused: this is not a form.\n");
        else
            give(plain, response);
    }

    // Holds the answer open until the page changes or a window is sent elsewhere.
    void watch(const httplib::Request &request, httplib::Response &response)
    {
        if (++watchers > mostWatchers) {
            --watchers;
            return refuse(response, 503, "Too many windows.\n");
        }
        const auto page = request.get_param_value("page"), shown = request.get_param_value("stamp");
        const auto heard = [this] {
            const std::lock_guard lock(mutex);
            return sent;
        }();
        auto beat = std::make_shared<std::chrono::steady_clock::time_point>();
        response.set_chunked_content_provider(
            "text/event-stream",
            [this, page, shown, heard, beat](std::size_t, httplib::DataSink &sink) {
                const std::string event = nextEvent(page, shown, heard, *beat);
                if (!sink.is_writable() || (!event.empty() && !sink.write(event.data(), event.size())))
                    return false;
                if (event.starts_with("data"))
                    sink.done();
                const std::lock_guard lock(mutex);
                return !stopping;
            },
            [this](bool) { --watchers; });
    }

    // A line for a waiting window, after a short wait; often empty.
    std::string nextEvent(const std::string &page, const std::string &shown, unsigned heard,
                          std::chrono::steady_clock::time_point &beat)
    {
        std::unique_lock lock(mutex);
        if (beat.time_since_epoch().count() != 0)
            news.wait_for(lock, watchInterval, [&] { return stopping || sent != heard; });
        if (sent != heard)
            return "data: /" + token + "/" + sentPath + "\n\n";
        lock.unlock();
        if (handlers.stamp(page) != shown)
            return "data: change\n\n";
        const auto now = std::chrono::steady_clock::now();
        if (now - beat < heartbeat)
            return {};
        beat = now;
        return ": waiting\n\n";
    }
};

PreviewServer::PreviewServer(std::string token, ServerHandlers handlers) : state(std::make_unique<State>())
{
    using Handled = httplib::Server::HandlerResponse;
    state->token = std::move(token);
    state->handlers = std::move(handlers);
    httplib::Server &server = state->server;
    server.new_task_queue = [] { return new httplib::ThreadPool(threads); };
    server.set_default_headers(securityHeaders);
    server.set_payload_max_length(bodyLimit);
    server.set_tcp_nodelay(true);
    // Everything but the forms is answered before the server would look for a pattern.
    server.set_pre_routing_handler([s = state.get()](const httplib::Request &request, httplib::Response &response) {
        if (!s->admit(request, response))
            return Handled::Handled;
        if (request.method == "POST")
            return Handled::Unhandled;
        const PreviewRequest plain = s->plainRequest(request);
        if (plain.path == ".events")
            s->watch(request, response);
        else
            s->give(plain, response);
        return Handled::Handled;
    });
    server.Post(".*", [s = state.get()](const httplib::Request &request, httplib::Response &response,
                                        const httplib::ContentReader &reader) { s->post(request, response, reader); });
    server.set_exception_handler([](const httplib::Request &, httplib::Response &response, const std::exception_ptr &) {
        refuse(response, 500, "The preview failed at this.\n");
    });
}

PreviewServer::~PreviewServer() = default;

int PreviewServer::bind(int port)
{
    // A server that still closes its connections does not hold the port; one that listens does.
    state->server.set_socket_options([](socket_t socket) {
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    if (port == 0)
        state->port = state->server.bind_to_any_port("127.0.0.1");
    else
        state->port = state->server.bind_to_port("127.0.0.1", port) ? port : -1;
    return state->port;
}

void PreviewServer::serve() { state->server.listen_after_bind(); }

void PreviewServer::stop()
{
    {
        const std::lock_guard lock(state->mutex);
        state->stopping = true;
    }
    state->news.notify_all();
    state->server.stop();
}

bool PreviewServer::sendTo(const std::string &path)
{
    if (state->watchers == 0)
        return false;
    {
        const std::lock_guard lock(state->mutex);
        state->sentPath = path;
        ++state->sent;
    }
    state->news.notify_all();
    return true;
}

} // namespace corvanta
