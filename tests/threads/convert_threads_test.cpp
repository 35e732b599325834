#include "converter/convert.h"
#include "converter/ods2hts.h"
#include "tests/support/samples.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>

// Many threads in the converter at once. Means most under ThreadSanitizer (preset "tsan").
namespace corvanta {
namespace {

constexpr int threads = 8, folders = 4;

// CORVANTA_PAGES asks for another number; ten thousand take some minutes.
int allPages()
{
    const char *asked = std::getenv("CORVANTA_PAGES");
    return asked ? std::atoi(asked) : 1600;
}

constexpr std::int32_t codePages[folders] = {1250, 1251, 1252, 1253};

std::string folderName(int folder) { return "F" + std::to_string(folder) + "/"; }

TEST(ConverterThreads, EachCallGivesWhatItGivesAlone)
{
    const TemporaryDrive drive;
    const std::vector<std::string> pages = samples::currentPages();
    const auto written = [&](int folder, const std::string &page) {
        return hostBytes(templateOf(drive.root() / folderName(folder) / page));
    };
    std::vector<std::string> alone[folders];
    for (int folder = 0; folder < folders; ++folder) {
        for (const std::string &page : pages)
            drive.add(folderName(folder) + page, samples::sample(page));
        for (const std::string &page : pages) {
            EXPECT_NE(ConvertOdsHtsCodePage(("C:\\" + folderName(folder) + page).c_str(), codePages[folder]), 0);
            alone[folder].push_back(written(folder, page));
        }
    }
    std::atomic<int> next = 0, wrong = 0;
    const int count = allPages();
    const auto work = [&] {
        for (int n = next++; n < count; n = next++) {
            const int folder = n % folders;
            const std::size_t which = static_cast<std::size_t>(n / folders) % pages.size();
            const std::string &page = pages[which];
            if (n % 10 == 0)
                wrong += ConvertOdsHts("C:\\none.ods") != 0 || ConvertOdsHtsMessage() != std::string("no such file");
            const std::string path = "C:\\f" + std::to_string(folder) + "/" + page; // the folder has to be looked for
            wrong += ConvertOdsHtsCodePage(path.c_str(), codePages[folder]) == 0;
            wrong += written(folder, page) != alone[folder][which];
        }
    };
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i)
        running.emplace_back(work);
    for (std::thread &thread : running)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace corvanta
