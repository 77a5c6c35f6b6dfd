#include "platform/facts.h"

#include <gtest/gtest.h>

#include "platform/files.h"

namespace {

TEST(Facts, NameTheProgramsOwnFolder) {
    const std::string folder = platform::ProgramDirectory();
    EXPECT_FALSE(folder.ends_with('\\'));
    EXPECT_FALSE(platform::ListFiles(folder, "test_platform*").empty()) << folder;
}

TEST(Facts, EndProcessLeavesNothingToDo) {
    EXPECT_EXIT(platform::EndProcess(), testing::ExitedWithCode(0), "");
}

TEST(Facts, TellTheProjectsVersion) {
    const platform::VersionNumbers version = platform::ProgramVersion();
    EXPECT_EQ(std::to_string(version.major) + '.' + std::to_string(version.minor) + '.' +
                  std::to_string(version.revision),
              PROJECT_VERSION_TEXT);
}

}  // namespace
