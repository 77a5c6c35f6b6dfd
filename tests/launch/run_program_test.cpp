#include "launch/run_program.h"

#include "session.h"

namespace {

class Running : public Session {};

/// What the shell was asked last.
memory::StartedProgram& Started() {
    return memory::machine.started.back();
}

int Open(std::string file, bool wait = false) {
    const int result = RunProgram(file, "-x", ShowMaximized, wait);
    EXPECT_EQ(file, Started().file) << "the caller's text follows";
    return result;
}

TEST_F(Running, CompletesBareNamesAndStartsInTheFilesFolder) {
    folder.Write("readme.txt", "");
    Open("readme.txt");
    EXPECT_EQ(Started().file, folder.Path("readme.txt"));
    EXPECT_EQ(Started().directory, folder.Path() + "\\");
    Open(folder.Write("port/game.exe", ""));
    EXPECT_EQ(Started().directory, folder.Path("port\\"));
    for (const char* taken : {"D:readme.txt", "docs/readme.txt", "https://example.org/a"}) {
        Open(taken);
        EXPECT_EQ(Started().file, taken);
    }
    EXPECT_EQ(Started().directory, "") << "a URL has no folder";
    EXPECT_EQ(FolderOfFile(folder.Path("absent.exe")), folder.Path("absent.exe"));
}

TEST_F(Running, WaitsOnlyWhenToldAndLetsTheWindowsLive) {
    int rounds = 0;
    memory::machine.onEvents = [&] { ++rounds; };
    memory::machine.rounds = 5;
    memory::machine.accepts = false;
    EXPECT_EQ(Open("a.exe", true), 0);
    memory::machine.accepts = true;
    EXPECT_NE(Open("a.exe"), 0);
    EXPECT_EQ(rounds, 0) << "nothing to wait for";
    EXPECT_NE(Open("a.exe", true), 0);
    EXPECT_EQ(rounds, 5);
}

}  // namespace
