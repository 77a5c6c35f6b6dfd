#include "state/engine_files.h"

#include "session.h"
#include "state/records.h"

namespace {

class EngineFiles : public Session {};

TEST_F(EngineFiles, ReadsTheSample) {
    ReadEngineFile(folder.Write("sample.cfg", R"(
type = "Zorvane engine file"; executable = "sample.exe"; realname = "Sample Engine"; demoext = 7;
parameters { noSound = "Disable sound"; 2 = "Twice"; }
filetypes { wad = "WAD files"; pat = "Patch files"; })"));
    ASSERT_EQ(EngineCount(), 1);
    const EngineRecord& engine = EngineAt(0);
    EXPECT_EQ(engine.executable, "sample.exe");
    EXPECT_EQ(engine.realname, "Sample Engine");
    EXPECT_EQ(engine.demoext, "7") << "a number counts with its text";
    ASSERT_EQ(engine.parameters.size(), 2U);
    EXPECT_EQ(engine.parameters[0].switchText, "-noSound");
    EXPECT_EQ(engine.parameters[1].caption, "Twice");
    ASSERT_EQ(engine.filetypes.size(), 2U);
    EXPECT_EQ(engine.filetypes[0].extension, "wad");
    EXPECT_EQ(engine.filetypes[1].description, "Patch files");
}

TEST_F(EngineFiles, PassesOverWhatIsNoEngine) {
    for (const char* text :
         {"", "type = \"ZORVANE ENGINE FILE\";", "type = 1;", "\xff\x01{{{\"\\9"}) {
        ReadEngineFile(folder.Write("one.cfg", text));
        EXPECT_EQ(EngineCount(), 0) << text;
    }
    ReadEngineFile(folder.Write("one.cfg",
                                "type = \"Zorvane engine file\"; executable { a = 1; }"
                                "parameters = \"x\"; filetypes = 1;"));
    ASSERT_EQ(EngineCount(), 1);
    EXPECT_TRUE(EngineAt(0).parameters.empty() && EngineAt(0).filetypes.empty());
    EXPECT_EQ(EngineAt(0).executable + EngineAt(0).realname, "");
}

TEST_F(EngineFiles, AreListedByNameAndTheFirstOfTwoEqualsCounts) {
    const std::string text = "type = \"Zorvane engine file\"; realname = \"";
    folder.Write("engines/b.cfg", text + "Same Name\"; executable = \"second\";");
    folder.Write("engines/A.cfg", text + "Same Name\"; executable = \"first\";");
    folder.Write("engines/c.CFG", text + "Other\";");
    folder.Write("engines/d.txt", text + "No definition\";");
    ScanEngineFiles(folder.Path("engines"));
    ASSERT_EQ(EngineCount(), 2);
    EXPECT_EQ(EngineAt(0).executable, "first");
    EXPECT_EQ(EngineAt(1).realname, "Other");
    EXPECT_EQ(EngineKey("Two  blanks"), "Two\1\1blanks");
}

}  // namespace
