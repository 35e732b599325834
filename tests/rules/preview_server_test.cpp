#include "preview/server.h"
#include "tests/rules/converter_page.h"
#include "tests/support/loopback.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <thread>

namespace corvanta {

namespace {

// A server that answers with what it was asked.
class PreviewServerTest : public testing::Test {
protected:
    std::string token = randomToken();
    std::atomic<int> stamp = 1;
    PreviewServer server{token,
                         {[](const PreviewRequest &r) { return echo(r); },
                          [this](const std::string &page) { return page + std::to_string(stamp); }}};
    int port = server.bind(0);
    std::thread serving{[this] { server.serve(); }};

    ~PreviewServerTest() override
    {
        server.stop();
        serving.join();
    }

    static PreviewAnswer echo(const PreviewRequest &r)
    {
        std::string told = (r.post ? "POST " : "GET ") + r.path;
        for (const FormValue &v : r.query)
            told += " ?" + v.name + "=" + v.value;
        for (const FormValue &v : r.form)
            told += " " + v.name + "=" + v.value;
        for (const SentFile &f : r.files)
            told += " file " + f.fileName + " " + std::to_string(f.size);
        return {r.path == "there" ? 303 : 200, "text/plain", told, r.path == "there" ? "next.hts?x=1" : ""};
    }

    std::string own() const { return "127.0.0.1:" + std::to_string(port); }
    std::string base() const { return "/" + token + "/"; }

    std::string raw(const std::string &bytes) const { return loopback::ask(port, bytes); }

    std::string ask(const std::string &line, const std::string &headers = {}, const std::string &body = {}) const
    {
        return raw(line + " HTTP/1.1\r\nHost: " + own() + "\r\n" + headers + "\r\n" + body);
    }
    std::string post(const std::string &type, const std::string &body) const
    {
        return ask("POST " + base() + "p.hts",
                   "Content-Type: " + type + "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n", body);
    }
};

// The status of an answer and what is behind its headers.
std::string told(const std::string &answer)
{
    return answer.substr(0, 12).erase(0, 9) + " " + answer.substr(std::min(answer.find("\r\n\r\n") + 4, answer.size()));
}

TEST_F(PreviewServerTest, OnlyItsOwnAddressesAreAnswered)
{
    EXPECT_EQ(told(ask("GET " + base() + "a%20b.hts?x=1%262")), "200 GET a b.hts ?x=1&2");
    EXPECT_TRUE(holds(ask("GET " + base() + "there"), "Location: " + base() + "next.hts?x=1\r\n"));
    const std::string page = "GET " + base() + "p.hts HTTP/1.1\r\n", other = std::string(token.size(), 'a');
    const std::string refused[] = {
        page + "\r\n",
        page + "Host: evil.example\r\n\r\n",
        page + "Host: " + own() + ".evil.example\r\n\r\n",
        page + "Host: 127.0.0.1\r\n\r\n",
        page + "Host: " + own() + "\r\nHost: evil.example\r\n\r\n",
        page + "Host: " + own() + "\r\nOrigin: http://evil.example\r\n\r\n",
        page + "Host: " + own() + "\r\nOrigin: null\r\n\r\n",
        "GET / HTTP/1.1\r\nHost: " + own() + "\r\n\r\n",
        "GET /" + token + " HTTP/1.1\r\nHost: " + own() + "\r\n\r\n",
        "GET /" + other + "/p.hts HTTP/1.1\r\nHost: " + own() + "\r\n\r\n",
        "GET /" + token.substr(1) + "/p.hts HTTP/1.1\r\nHost: " + own() + "\r\n\r\n",
        "GET //" + token + "/p.hts HTTP/1.1\r\nHost: " + own() + "\r\n\r\n",
        "GET /x/../" + token + "/p.hts HTTP/1.1\r\nHost: " + own() + "\r\n\r\n",
    };
    for (const std::string &request : refused)
        EXPECT_EQ(told(raw(request)).substr(0, 4), "403 ") << request;
    EXPECT_EQ(told(ask("DELETE " + base() + "p.hts")).substr(0, 4), "405 ");
    EXPECT_EQ(told(ask("GET " + base() + std::string(2000, 'a'))).substr(0, 4), "414 ");
}

TEST_F(PreviewServerTest, FormsComeWholeOrNotAtAll)
{
    const std::string url = "application/x-www-form-urlencoded", parts = "multipart/form-data; boundary=b";
    const std::string file = "--b\r\nContent-Disposition: form-data; name=\"f\"; filename=\"x.txt\"\r\n\r\n";
    const std::string field = "--b\r\nContent-Disposition: form-data; name=\"a\"\r\n\r\n1 2\r\n";
    EXPECT_EQ(told(post(url, "a=1+%32&b=%C3%A9%zz&&c&=d")), "200 POST p.hts a=1 2 b=\xC3\xA9%zz c= =d");
    EXPECT_EQ(told(post(parts, field + file + "12345\r\n--b--\r\n")), "200 POST p.hts a=1 2 file x.txt 5");
    EXPECT_EQ(told(post("text/plain", "a=1")).substr(0, 4), "400 ");
    EXPECT_EQ(told(post(parts, "nothing")).substr(0, 4), "400 ");
    const std::string large(10'000'000, 'a');
    for (const std::string &body : {large, field + file + large + "\r\n--b--\r\n"})
        EXPECT_EQ(told(post(body == large ? url : parts, body)).substr(0, 4), "413 ");
    const std::string chunk = "100000\r\n" + large.substr(0, 0x100000) + "\r\n";
    EXPECT_EQ(told(ask("POST " + base() + "p.hts", "Content-Type: " + url + "\r\nTransfer-Encoding: chunked\r\n",
                       chunk + chunk + chunk + chunk + chunk + "0\r\n\r\n"))
                  .substr(0, 4),
              "413 ");
}

TEST_F(PreviewServerTest, WhatIsNoRequestEndsItsOwnConnection)
{
    const std::string line = "GET " + base() + "p.hts HTTP/1.1\r\nHost: " + own() + "\r\n";
    const std::string hostile[] = {
        std::string("\0\xFF\r\n\r\n", 6),
        "GET\r\n\r\n",
        line + "Range: bytes=" + std::string(8000, '-') + "\r\n\r\n",
        line + "Range: bytes=" +
            [] {
                std::string ranges;
                for (int i = 0; i < 1900; ++i)
                    ranges += "0-,";
                return ranges;
            }() +
            "\r\n\r\n",
        line + std::string(200'000, 'x') + "\r\n\r\n",
        line + "Content-Length: 99999999999999999999\r\n\r\n",
        "GET /" + std::string(100'000, 'a') + " HTTP/1.1\r\n\r\n",
    };
    for (const std::string &request : hostile) {
        raw(request);
        EXPECT_EQ(told(ask("GET " + base() + "p.hts")), "200 GET p.hts") << "after " << request.substr(0, 200);
    }
    std::string many = line;
    for (int i = 0; i < 50'000; ++i)
        many += "X-Y: z\r\n";
    EXPECT_NE(told(raw(many + "\r\n")).substr(0, 4), "200 ");
}

TEST_F(PreviewServerTest, WindowsHearOfAChangeAndOfAnotherPage)
{
    const std::string waiting = "GET " + base() + ".events?page=p&stamp=p1 HTTP/1.1\r\nHost: " + own() + "\r\n\r\n";
    EXPECT_FALSE(server.sendTo("q.hts")) << "nobody waits";
    const int s = loopback::connection(port);
    send(s, waiting.data(), waiting.size(), MSG_NOSIGNAL);
    EXPECT_TRUE(holds(loopback::readUntil(s, ": waiting"), "text/event-stream"));
    EXPECT_TRUE(server.sendTo("q.hts"));
    EXPECT_TRUE(holds(loopback::readUntil(s, {}), "data: " + base() + "q.hts\n\n"));
    close(s);
    const int t = loopback::connection(port);
    send(t, waiting.data(), waiting.size(), MSG_NOSIGNAL);
    loopback::readUntil(t, ": waiting");
    stamp = 2;
    EXPECT_TRUE(holds(loopback::readUntil(t, {}), "data: change\n\n"));
    close(t);
}

} // namespace

} // namespace corvanta
