#include "state/engine_files.h"

#include "session.h"
#include "state/records.h"

namespace {

class EngineFiles : public Session {
  protected:
    void Scan() { ScanEngineFiles(folder.Path("engines")); }
};

TEST_F(EngineFiles, ReadsTheSample) {
    folder.Write("engines/sample.CFG", R"(
type = "Zorvane engine file"; executable = "sample.exe"; realname = "Sample Engine"; demoext = 7;
parameters { noSound = "Disable sound"; 2 = "Twice"; }
filetypes { wad = "WAD files"; pat = "Patch files"; })");
    Scan();
    ASSERT_EQ(EngineCount(), 1);
    const EngineRecord& engine = EngineAt(0);
    EXPECT_EQ(engine.executable, "sample.exe");
    EXPECT_EQ(engine.realname, "Sample Engine");
    EXPECT_EQ(engine.demoext, "7") << "a number counts with its text";
    EXPECT_EQ(engine.path, "");
    ASSERT_EQ(engine.parameters.size(), 2U);
    EXPECT_EQ(engine.parameters[0].switchText, "-noSound");
    EXPECT_EQ(engine.parameters[1].caption, "Twice");
    ASSERT_EQ(engine.filetypes.size(), 2U);
    EXPECT_EQ(engine.filetypes[1].extension, "pat");
    EXPECT_EQ(engine.filetypes[1].description, "Patch files");
}

TEST_F(EngineFiles, PassesOverWhatIsNoEngine) {
    const struct {
        const char* name;
        const char* text;
        int count;
    } files[] = {
        {"empty", "", 0},
        {"other case", "type = \"ZORVANE ENGINE FILE\";", 0},
        {"other kind", "type = 1;", 0},
        {"bare", "type = \"Zorvane engine file\";", 1},
        {"wrong kinds",
         "type = \"Zorvane engine file\"; realname = \"w\"; parameters = \"x\";"
         "filetypes = 1; executable { a = 1; }",
         1},
        {"random", "\xff\x01{{{\"\\9", 0},
    };
    for (const auto& file : files) {
        SCOPED_TRACE(file.name);
        Engines.clear();
        ReadEngineFile(folder.Write("engines/one.cfg", file.text));
        ASSERT_EQ(EngineCount(), file.count);
        if (file.count > 0) {
            EXPECT_TRUE(EngineAt(0).parameters.empty() && EngineAt(0).filetypes.empty());
            EXPECT_EQ(EngineAt(0).executable, "");
        }
    }
}

TEST_F(EngineFiles, AreListedByNameAndTheFirstOfTwoEqualsCounts) {
    const std::string text = "type = \"Zorvane engine file\"; realname = \"";
    folder.Write("engines/b.cfg", text + "Same Name\"; executable = \"second\";");
    folder.Write("engines/A.cfg", text + "Same Name\"; executable = \"first\";");
    folder.Write("engines/c.cfg", text + "Other\";");
    folder.Write("engines/d.txt", text + "No definition\";");
    Scan();
    ASSERT_EQ(EngineCount(), 2);
    EXPECT_EQ(EngineAt(0).executable, "first");
    EXPECT_EQ(EngineAt(1).realname, "Other");
    EXPECT_EQ(EngineKey("Two  blanks"),
              "Two\x01\x01"
              "blanks");
}

}  // namespace
