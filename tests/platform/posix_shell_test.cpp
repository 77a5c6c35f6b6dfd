#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "platform/shell.h"
#include "support/temp_folder.h"

using platform::WaitForSingleObject;

namespace {

namespace fs = std::filesystem;

class Shell : public testing::Test {
  protected:
    void WriteScript(std::string_view name, std::string_view commands) const {
        folder_.Write(name, "#!/bin/sh\n" + std::string(commands));
        fs::permissions(folder_.Native(name), fs::perms(0755));
    }

    /// Opening either end waits for the other.
    void MakePipe(std::string_view name) const {
        ASSERT_EQ(mkfifo(folder_.Native(name).c_str(), 0600), 0);
    }

    bool Start(std::string_view name, const std::string& parameters = "",
               const std::string& directory = "") {
        const bool isName = name.find(':') == std::string_view::npos;
        const std::string file = isName ? folder_.Path(name) : std::string(name);
        info_ = {platform::SeeMaskNoCloseProcess, file, parameters, directory, 0, {}};
        return platform::ShellExecuteExA(info_).ok;
    }

    TempFolder folder_;
    platform::ShellExecuteInfo info_;
};

TEST_F(Shell, StartsAProgramInItsFolderAndSeesItsEnd) {
    WriteScript("my port/Game", R"(read line < gate; printf '[%s]' "$PWD" "$@" > said)");
    MakePipe("my port/gate");
    ASSERT_TRUE(Start("my port/game.exe", R"(-file "Z:\no wad" "" -x)", folder_.Path("MY PORT\\")));
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 0), 258U);
    std::ofstream(folder_.Native("my port/gate")) << "go on\n";
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 0xFFFFFFFF), 0U);
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 20000), 0U) << "it has ended already";
    const std::string home = folder_.Native("my port");
    EXPECT_EQ(folder_.Read("my port/said"), "[" + home + "][-file][/no wad][][-x]");
}

TEST_F(Shell, AProgramHasDefaultSignalsAndIsReaped) {
    WriteScript("game", "kill -INT $$; echo lives on > said");
    const auto handler = std::signal(SIGINT, SIG_IGN);
    for (int round = 0; round < 20; ++round) {
        ASSERT_TRUE(Start("game", "", folder_.Path()));
    }
    info_.fMask = 0;
    ASSERT_TRUE(platform::ShellExecuteExA(info_));
    std::signal(SIGINT, handler);
    EXPECT_FALSE(info_.hProcess);
    siginfo_t ended = {};
    while (waitid(P_ALL, 0, &ended, WEXITED | WNOWAIT) == 0) {
        std::this_thread::yield();  // until the last one is reaped
    }
    EXPECT_EQ(errno, ECHILD);
    EXPECT_EQ(folder_.Read("said"), "");
}

TEST_F(Shell, DocumentsFoldersAndUrlsGoToTheDesktop) {
    folder_.Write("Read me.txt", "text");
    folder_.Write("doc/bytes.dat", "no program, whatever its rights say");
    fs::permissions(folder_.Native("doc/bytes.dat"), fs::perms(0755));
    WriteScript("evil.txt", "echo executed > said");
    WriteScript("bin/xdg-open", R"(printf '[%s]' "$PWD" "$@" > said)");
    MakePipe("said");
    const std::string oldPath = std::getenv("PATH");
    setenv("PATH", (folder_.Native("bin").string() + ':' + oldPath).c_str(), 1);
    const std::pair<const char*, std::string> rows[] = {
        {"read me.TXT", folder_.Native("Read me.txt")},
        {"evil.txt", folder_.Native("evil.txt")},
        {"evil.txt.exe", folder_.Native("evil.txt")},
        {"doc", folder_.Native("doc")},
        {"doc/bytes.dat", folder_.Native("doc/bytes.dat")},
        {"https://example.org/?a b", "https://example.org/?a b"},
    };
    for (const auto& [what, opened] : rows) {
        ASSERT_TRUE(Start(what, "", folder_.Path())) << what;
        EXPECT_EQ(folder_.Read("said"), "[" + folder_.Native().string() + "][" + opened + "]");
        EXPECT_FALSE(info_.hProcess);
    }
    setenv("PATH", folder_.Native("doc").c_str(), 1);
    EXPECT_FALSE(Start("read me.txt"));
    EXPECT_FALSE(Start("https://example.org/"));
    setenv("PATH", oldPath.c_str(), 1);
}

TEST_F(Shell, WhatCannotStartFailsAtOnce) {
    WriteScript("game", "");
    WriteScript("broken", "");
    folder_.Write("broken", "#!/no/such/interpreter\n");
    fs::create_symlink("loop", folder_.Native("loop"));
    for (const char* name : {"none.exe", "D:game", "broken", "loop", "loop/game"}) {
        EXPECT_FALSE(Start(name)) << name;
    }
    fs::create_directory(folder_.Native("closed"));
    fs::permissions(folder_.Native("closed"), fs::perms::none);
    EXPECT_FALSE(Start("closed/game.exe"));
    fs::permissions(folder_.Native("closed"), fs::perms::owner_all);
    EXPECT_FALSE(Start("game", "", folder_.Path("loop")));
    EXPECT_FALSE(Start("game", "", folder_.Path("none")));
    EXPECT_FALSE(info_.hProcess);
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 0), 0xFFFFFFFF);
}

}  // namespace
