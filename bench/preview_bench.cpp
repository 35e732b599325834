#include "platform/codepage.h"
#include "preview/host.h"
#include "preview/server.h"

#include <benchmark/benchmark.h>
#include <httplib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

// What a visitor of the preview waits for, over HTTP: the query page, a hit list of a hundred rows, and both with the
// database's search between them. The sample pages on a SQLite database of 5000 customers.
namespace corvanta {

namespace {

namespace fs = std::filesystem;

fs::path scratchFolder()
{
    std::string name = (fs::temp_directory_path() / "corvanta-preview-XXXXXX").string();
    return mkdtemp(name.data()) ? fs::path(name) : fs::path();
}

struct Serving {
    fs::path folder = scratchFolder();
    std::string token = randomToken();
    PreviewHost host{makePages(), {}};
    PreviewServer server{token,
                         {[this](const PreviewRequest &r) { return host.answer(r); },
                          [this](const std::string &page) { return host.stamp(page); }}};
    int port = server.bind(0);
    std::thread serving{[this] { server.serve(); }};
    httplib::Client client{"127.0.0.1", port};

    ~Serving()
    {
        server.stop();
        serving.join();
        fs::remove_all(folder);
    }

    PageFolder makePages() const
    {
        setCodePage(1252);
        std::ofstream(folder / "more.sql")
            << "With Recursive n(i) As (Select 100 Union All Select i + 1 From n Where i < 5085) Insert Into Customers "
               "(Number, Name, City, CreditLimit) Select i, 'Customer ' || i, 'Hull', i From n;";
        for (const char *script : {CORVANTA_SAMPLES "/shop.sql", "more.sql"})
            if (std::system(("cd " + folder.string() + " && sqlite3 -bail shop.db <" + script).c_str()) != 0)
                std::abort();
        std::ofstream(folder / "odbcinst.ini") << "[SQLite3]\nDriver=libsqlite3odbc.so\n";
        std::ofstream(folder / "odbc.ini")
            << "[Corvanta Samples]\nDriver=SQLite3\nDatabase=" << folder.string() << "/shop.db\n";
        setenv("ODBCSYSINI", folder.c_str(), 1);
        setenv("ODBCINI", (folder / "user.ini").c_str(), 1);
        return {fs::canonical(CORVANTA_SAMPLES), {}, "menu"};
    }

    std::string address(const std::string &path) const { return "/" + token + "/" + path; }

    // The bytes of a page; 0 for anything but a page.
    std::size_t get(const std::string &path)
    {
        const auto answer = client.Get(path);
        return answer && answer->status == 200 ? answer->body.size() : 0;
    }
    std::string search()
    {
        const auto answer = client.Post(address("query.hts"), httplib::Params{{"custname", ""}, {"object", "11"}});
        return answer ? answer->get_header_value("Location") : std::string();
    }
};

Serving &serving()
{
    static Serving instance;
    return instance;
}

void QueryPage(benchmark::State &state)
{
    for (auto _ : state)
        if (serving().get(serving().address("query.hts")) == 0)
            state.SkipWithError("no page");
}
BENCHMARK(QueryPage)->Unit(benchmark::kMillisecond)->UseRealTime();

void HitListOfHundredRows(benchmark::State &state)
{
    const std::string hits = serving().search();
    for (auto _ : state)
        if (serving().get(hits) < 10000)
            state.SkipWithError("no hits");
}
BENCHMARK(HitListOfHundredRows)->Unit(benchmark::kMillisecond)->UseRealTime();

void SearchWithTheDatabase(benchmark::State &state)
{
    for (auto _ : state)
        if (serving().get(serving().search()) < 10000)
            state.SkipWithError("no hits");
}
BENCHMARK(SearchWithTheDatabase)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

} // namespace corvanta
