#include "platform/qt/qt_multimedia.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvanta {
namespace {

std::vector<std::string> calls;

const SoundModule recordingModule{
    [](const char *hostPath) { calls.push_back(std::string("play ") + hostPath); },
    [] { calls.push_back("close"); },
    [] { calls.push_back("end"); },
};

// A module that counts as loaded from the first load on.
class Multimedia : public testing::Test {
protected:
    Multimedia() { calls.clear(); }

    int run(const std::string &command) { return runMultimediaCommand(command, modules); }

    TemporaryDrive drive;
    const SoundModule *loaded = nullptr;
    SoundModules modules{[this] { return loaded = &recordingModule; }, [this] { return loaded; }};
};

TEST_F(Multimedia, PlaysAnExistingFileByItsHostPath)
{
    const std::string host = drive.add("PAGES/a b.wav", "RIFF").string();
    EXPECT_EQ(run("Play C:\\pages\\A B.WAV"), 0);
    EXPECT_EQ(run("close ALL"), 0);
    EXPECT_EQ(calls, (std::vector<std::string>{"play " + host, "close"}));
}

TEST_F(Multimedia, NothingIsLoadedWithoutASound)
{
    drive.add("PAGES/a.wav");
    for (const char *command :
         {"Play C:\\PAGES\\b.wav", "Play C:\\PAGES", "Play C:\\PAGES\\", "Play ", "Play", "", "Stop C:\\PAGES\\a.wav"})
        EXPECT_NE(run(command), 0) << command;
    EXPECT_EQ(run("Close all"), 0);
    EXPECT_FALSE(loaded);
    EXPECT_TRUE(calls.empty());
}

TEST_F(Multimedia, AMissingModuleIsAnError)
{
    drive.add("a.wav");
    modules.load = [] { return nullptr; };
    EXPECT_NE(run("Play C:\\a.wav"), 0);
}

} // namespace
} // namespace corvanta
