#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <thread>

#include "platform/shell.h"
#include "support/temp_folder.h"

using platform::ShellExecuteInfo;
using platform::WaitForSingleObject;
using namespace std::chrono_literals;

namespace {

namespace fs = std::filesystem;

/// Whether something comes to be true in the time that a busy machine may need.
bool Comes(const std::function<bool()>& condition) {
    for (int round = 0; round < 1000 && !condition(); ++round) {
        std::this_thread::sleep_for(10ms);
    }
    return condition();
}

/// Whether this process comes to have no child left, not even an ended one.
bool NoChildRemains() {
    siginfo_t ended = {};
    return Comes([&] { return waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT) != 0; });
}

/// Says where and with what it was started.
constexpr const char* Echo = R"(printf '[%s]' "$PWD" "$@" > said.new; mv said.new said)";

class Shell : public testing::Test {
  protected:
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

    /// What a program wrote, of which nothing remains.
    std::string Said(std::string_view name = "said") const {
        EXPECT_TRUE(Comes([&] { return fs::exists(folder_.Native(name)); }));
        std::string said = folder_.Read(name);
        fs::remove(folder_.Native(name));
        return said;
    }

    TempFolder folder_;
    ShellExecuteInfo info_;
};

TEST_F(Shell, StartsAProgramInItsFolderWithItsArguments) {
    WriteScript("my port/Game", Echo);
    const std::string home = folder_.Native("my port");
    ASSERT_TRUE(Start("my port/game.exe", R"(-file "Z:\no wad" "" -x)", folder_.Path("MY PORT\\")));
    EXPECT_EQ(Said("my port/said"), "[" + home + "][-file][/no wad][][-x]");
}

TEST_F(Shell, AProgramHasASessionAndSignalsOfItsOwn) {
    WriteScript("game",
                "cut -d' ' -f6 /proc/$$/stat >said.new; echo $$ >>said.new\n"
                "grep -E '^Sig(Blk|Ign)' /proc/self/status >>said.new; mv said.new said");
    const auto handler = std::signal(SIGINT, SIG_IGN);
    ASSERT_TRUE(Start("game", "", folder_.Path()));
    std::signal(SIGINT, handler);
    std::istringstream said(Said());
    std::string session, self, word, blocked, ignored;
    said >> session >> self >> word >> blocked >> word >> ignored;
    EXPECT_EQ(session, self);
    EXPECT_EQ(blocked, "0000000000000000");
    EXPECT_TRUE(ignored.ends_with('0')) << ignored;  // signals 1 to 4
}

TEST_F(Shell, NobodyNeedsToWaitForTheEnd) {
    WriteScript("game", "exec sleep 0.4");
    ASSERT_TRUE(Start("game"));
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 10), 258U);
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 0), 258U);
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 0xFFFFFFFF), 0U);
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 20000), 0U) << "it has ended already";
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
    WriteScript("bin/xdg-open", Echo);
    const std::string oldPath = std::getenv("PATH");
    setenv("PATH", (folder_.Native("bin").string() + ':' + oldPath).c_str(), 1);
    const std::pair<const char*, std::string> rows[] = {
        {"read me.TXT", folder_.Native("Read me.txt")},
        {"doc", folder_.Native("doc")},
        {"doc/bytes.dat", folder_.Native("doc/bytes.dat")},
        {"https://example.org/?a b", "https://example.org/?a b"},
    };
    for (const auto& [what, opened] : rows) {
        ASSERT_TRUE(Start(what, "", folder_.Path())) << what;
        EXPECT_EQ(Said(), "[" + folder_.Native().string() + "][" + opened + "]");
        EXPECT_FALSE(info_.hProcess);
    }
    setenv("PATH", folder_.Native("doc").c_str(), 1);
    EXPECT_FALSE(Start("read me.txt"));
    EXPECT_FALSE(Start("https://example.org/"));
    setenv("PATH", oldPath.c_str(), 1);
}

TEST_F(Shell, WhatCannotStartFailsAtOnce) {
    WriteScript("game", Echo);
    WriteScript("broken", "");
    folder_.Write("broken", "#!/no/such/interpreter\n");
    for (const char* name : {"none.exe", "D:game", "broken"}) {
        EXPECT_FALSE(Start(name)) << name;
    }
    EXPECT_FALSE(Start("game", "", folder_.Path("none")));
    EXPECT_FALSE(info_.hProcess);
    EXPECT_EQ(WaitForSingleObject(info_.hProcess, 0), 0xFFFFFFFF);
}

}  // namespace
