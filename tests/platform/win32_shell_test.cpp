// Programs on Windows: what the shell is given arrives, and the end of a program is seen.
#include <gtest/gtest.h>

#include "platform/shell.h"
#include "support/temp_folder.h"

namespace {

TEST(WindowsShell, StartsAProgramInItsFolderAndSeesItsEnd) {
    const TempFolder folder;
    platform::ShellExecuteInfo info;
    info.fMask = platform::SEE_MASK_NOCLOSEPROCESS_BIT;
    info.lpFile = "C:\\windows\\system32\\cmd.exe";
    info.lpParameters = "/c ping -n 2 127.0.0.1 > NUL & cd > \"here it is.txt\"";
    info.lpDirectory = folder.Path() + "\\";
    ASSERT_TRUE(platform::ShellExecuteExA(info));
    EXPECT_EQ(platform::WaitForSingleObject(info.hProcess, 1), 258U);
    EXPECT_EQ(platform::WaitForSingleObject(info.hProcess, 20000), 0U);
    EXPECT_EQ(folder.Read("here it is.txt"), folder.Path() + "\r\n");
    EXPECT_EQ(platform::WaitForSingleObject(platform::ProcessHandle(), 1), 0xFFFFFFFFU);
}

}  // namespace
