#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "platform/shell.h"
#include "support/temp_folder.h"

using platform::ShellExecuteInfo;
using platform::WaitForSingleObject;
using namespace std::chrono_literals;

namespace {

namespace fs = std::filesystem;

class Shell : public testing::Test {
  protected:
    /// A program that writes what it was started with to `said` in its working directory.
    void WriteProgram(std::string_view name) const {
        WriteScript(name, R"(printf '[%s]' "$PWD" "$@" > said.new; mv said.new said)");
    }

    void WriteScript(std::string_view name, std::string_view commands) const {
        folder_.Write(name, "#!/bin/sh\n" + std::string(commands) + '\n');
        fs::permissions(folder_.Native(name), fs::perms(0755));
    }

    bool Start(std::string_view name, const std::string& parameters = "",
               const std::string& directory = "") {
        info_.fMask = platform::SEE_MASK_NOCLOSEPROCESS_BIT;
        info_.lpFile = name.find(':') == std::string_view::npos ? folder_.Path(name) : name;
        info_.lpParameters = parameters;
        info_.lpDirectory = directory;
        return platform::ShellExecuteExA(info_);
    }

    std::uint32_t Wait(std::uint32_t milliseconds = 20000) const {
        return WaitForSingleObject(info_.hProcess, milliseconds);
    }

    /// What the program wrote, waited for as long as a busy machine may need.
    std::string Said(std::string_view name = "said") const {
        for (int round = 0; round < 1000 && !fs::exists(folder_.Native(name)); ++round) {
            std::this_thread::sleep_for(10ms);
        }
        return folder_.Read(name);
    }

    TempFolder folder_;
    ShellExecuteInfo info_;
};

/// Whether this process comes to have no child left, not even an ended one.
bool NoChildRemains() {
    for (int round = 0; round < 1000; ++round) {
        siginfo_t ended = {};
        if (waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT) != 0) {
            return true;
        }
        std::this_thread::sleep_for(10ms);
    }
    return false;
}

TEST_F(Shell, StartsAProgramInItsFolderWithItsArguments) {
    WriteProgram("my port/Game");
    const std::string home = folder_.Native("my port");
    ASSERT_TRUE(Start("my port/game.exe", R"(-file "Z:\no wad" "" -x)", folder_.Path("MY PORT\\")));
    EXPECT_EQ(Wait(), 0U);
    EXPECT_EQ(Said("my port/said"), "[" + home + "][-file][/no wad][][-x]");
    EXPECT_EQ(Wait(0), 0U);
    EXPECT_TRUE(NoChildRemains());
}

TEST_F(Shell, AProgramHasASessionAndSignalsOfItsOwn) {
    WriteScript("game",
                "cut -d' ' -f6 /proc/$$/stat >said.new; echo $$ >>said.new\n"
                "grep -E '^Sig(Blk|Ign)' /proc/self/status >>said.new; mv said.new said");
    const auto handler = std::signal(SIGINT, SIG_IGN);
    ASSERT_TRUE(Start("game", "", folder_.Path()));
    std::signal(SIGINT, handler);
    std::istringstream said(Said());
    std::string session, self, ignoredName, blockedName, blocked, ignored;
    said >> session >> self >> blockedName >> blocked >> ignoredName >> ignored;
    EXPECT_EQ(session, self);
    EXPECT_EQ(blocked, "0000000000000000");
    EXPECT_TRUE(ignored.ends_with('0')) << ignored;  // signals 1 to 4
}

TEST_F(Shell, WaitingEndsWithTheProcess) {
    WriteScript("game", "exec sleep 0.4");
    ASSERT_TRUE(Start("game"));
    EXPECT_EQ(Wait(10), 258U);
    EXPECT_EQ(Wait(0), 258U);
    EXPECT_EQ(Wait(0xFFFFFFFF), 0U);
    const std::uint32_t nothing = WaitForSingleObject(platform::ProcessHandle(), 0);
    EXPECT_TRUE(nothing != 0 && nothing != 258);
}

TEST_F(Shell, NobodyNeedsToWait) {
    WriteScript("game", "exit 3");
    for (int round = 0; round < 20; ++round) {
        ASSERT_TRUE(Start("game"));
    }
    info_.fMask = 0;
    ASSERT_TRUE(platform::ShellExecuteExA(info_));
    EXPECT_FALSE(info_.hProcess);
    EXPECT_TRUE(NoChildRemains());
}

TEST_F(Shell, DocumentsFoldersAndUrlsGoToTheDesktop) {
    folder_.Write("Read me.txt", "text");
    folder_.Write("doc/bytes.dat", "no program, whatever its rights say");
    fs::permissions(folder_.Native("doc/bytes.dat"), fs::perms(0755));
    WriteScript("bin/xdg-open", "printf '[%s]' \"$@\" > said.new; mv said.new said");
    const char* path = std::getenv("PATH");
    ASSERT_NE(path, nullptr);
    const std::string oldPath = path;
    setenv("PATH", (folder_.Native("bin").string() + ':' + oldPath).c_str(), 1);
    const struct {
        const char* what;
        std::string opened;
    } rows[] = {
        {"read me.TXT", folder_.Native("Read me.txt")},
        {"doc", folder_.Native("doc")},
        {"doc/bytes.dat", folder_.Native("doc/bytes.dat")},
        {"https://example.org/?a b", "https://example.org/?a b"},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(Start(row.what, "", folder_.Path())) << row.what;
        EXPECT_EQ(Said(), "[" + row.opened + "]");
        EXPECT_FALSE(info_.hProcess);
        fs::remove(folder_.Native("said"));
    }
    setenv("PATH", folder_.Native("doc").c_str(), 1);
    EXPECT_FALSE(Start("read me.txt"));
    EXPECT_FALSE(Start("https://example.org/"));
    setenv("PATH", oldPath.c_str(), 1);
}

TEST_F(Shell, WhatCannotStartFailsAtOnce) {
    WriteProgram("game");
    WriteScript("broken", "");
    folder_.Write("broken", "#!/no/such/interpreter\n");
    EXPECT_FALSE(Start("none.exe"));
    EXPECT_FALSE(Start("D:game"));
    EXPECT_FALSE(Start("broken"));
    EXPECT_FALSE(Start("game", "", folder_.Path("none")));
    EXPECT_FALSE(info_.hProcess);
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 0), 0xFFFFFFFF);
}

}  // namespace
