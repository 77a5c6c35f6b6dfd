#include "launch/run_program.h"

#include "session.h"

namespace {

class RunProgramCase : public Session {
  protected:
    /// Runs it and gives what the shell was asked.
    memory::StartedProgram Run(std::string file, bool wait = false) {
        result = RunProgram(file, "-x", 7, wait);
        rewritten = file;
        return memory::machine.started.back();
    }
    int result = 0;
    std::string rewritten;
};

TEST_F(RunProgramCase, CompletesBareNamesAndRunsInTheFilesFolder) {
    folder.Write("readme.txt", "");
    folder.Write("engines/port/game.exe", "");
    const auto bare = Run("readme.txt");
    EXPECT_EQ(rewritten, folder.Path("readme.txt"));
    EXPECT_EQ(bare.file, rewritten);
    EXPECT_EQ(bare.directory, folder.Path() + "\\");
    EXPECT_EQ(bare.show, 7);
    const std::string engine = folder.Path("engines\\port\\game.exe");
    EXPECT_EQ(Run(engine).directory, folder.Path("engines\\port\\"));
    for (const char* taken : {"D:readme.txt", "docs/readme.txt", "https://example.org/a"}) {
        EXPECT_EQ(Run(taken).file, taken);
    }
    EXPECT_EQ(FolderOfFile("https://example.org/a"), "");
    EXPECT_EQ(FolderOfFile(folder.Path("absent.exe")), folder.Path("absent.exe"));
}

TEST_F(RunProgramCase, WaitsOnlyWhenToldAndLetsTheWindowsLive) {
    int rounds = 0;
    memory::machine.onEvents = [&] { ++rounds; };
    memory::machine.rounds = 5;
    Run("a.exe");
    EXPECT_EQ(rounds, 0);
    Run("a.exe", true);
    EXPECT_EQ(rounds, 5);
    EXPECT_NE(result, 0);
    memory::machine.accepts = false;
    memory::machine.rounds = 1000;
    Run("a.exe", true);
    EXPECT_EQ(rounds, 5) << "nothing started, nothing to wait for";
    EXPECT_EQ(result, 0);
}

}  // namespace
