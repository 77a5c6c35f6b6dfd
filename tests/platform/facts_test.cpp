#include "platform/facts.h"

#include <gtest/gtest.h>

#include "platform/files.h"

namespace {

TEST(Facts, AreTheProgramsOwn) {
    const std::string folder = platform::ProgramDirectory();
    EXPECT_FALSE(folder.ends_with('\\'));
    EXPECT_FALSE(platform::ListFiles(folder, "test_platform*").empty()) << folder;
    const auto [major, minor, revision] = platform::ProgramVersion();
    EXPECT_EQ(std::to_string(major) + '.' + std::to_string(minor) + '.' + std::to_string(revision),
              PROJECT_VERSION_TEXT);
    EXPECT_EXIT(platform::EndProcess(), testing::ExitedWithCode(0), "");
}

}  // namespace
