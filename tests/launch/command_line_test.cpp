#include "launch/command_line.h"

#include "session.h"

namespace {

TEST(CommandLine, WarpArguments) {
    const struct {
        const char* map;
        const char* arguments;
    } rows[] = {
        {"MAP01", "-warp 1"},
        {"map30", "-warp 30"},
        {"E1M1", "-warp 1 1"},
        {"e4m9", "-warp 4 9"},
        {"EXMY", "-warp 0 0"},
        {"MAPAB", "-warp 0"},
        {"MAP1A", "-warp 1"},
        {"MAP1", "+map MAP1"},
        {"MAP100", "+map MAP100"},
        {"E1M10", "+map E1M10"},
        {"start", "+map START"},
        {"", "+map "},
        {"E\xff"
         "M1",
         "-warp 0 1"},
        {" E1M1", "+map  E1M1"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(WarpArguments(row.map), row.arguments) << row.map;
    }
}

TEST(CommandLine, RemoveExtension) {
    EXPECT_EQ(RemoveExtension("D:\\demos\\run.1.lmp"), "D:\\demos\\run.1");
    EXPECT_EQ(RemoveExtension("D:\\my.demos\\run1"), "D:\\my");
    EXPECT_EQ(RemoveExtension("plain"), "plain");
}

class QuickStartLine : public Session {
  protected:
    QuickStartLine() {
        EngineRecord engine;
        engine.parameters = {{"No sound", "-noSound"}, {"Two", "-Two"}, {"Three", "-three"}};
        Engines.push_back(engine);
        start.gameWad = "D:\\iwads\\game.wad";
    }
    std::string Line() const { return QuickStartCommandLine(start, files); }

    QuickStart start;
    clsStringArray files;
};

TEST_F(QuickStartLine, SwitchesStandInTheirOrderAndInLowerCase) {
    EngineAt(0).options[2] = EngineAt(0).options[0] = true;
    EngineAt(0).options[9] = true;
    EXPECT_EQ(EngineParameterString(0), "-nosound -three");
    EXPECT_EQ(LaunchCommandLine(0, "D:\\a b.wad"), "-nosound -three -iwad D:\\a b.wad");
    EngineAt(0).options = {};
    EXPECT_EQ(EngineParameterString(0), "");
    EXPECT_EQ(LaunchCommandLine(0, "D:\\a.wad"), " -iwad D:\\a.wad");
}

TEST_F(QuickStartLine, IsRightBlankForBlank) {
    start.skill = 2;
    start.map = "E1M1";
    EXPECT_EQ(Line(), " -iwad \"D:\\iwads\\game.wad\" -skill 3 -warp 1 1  ") << "nothing chosen";
    start.recordTo = "D:\\engines\\port.old\\temp.lmp";
    start.playFrom = "D:\\demos\\run.lmp";
    EXPECT_TRUE(Line().ends_with("-warp 1 1 -record \"D:\\engines\\port.old\\temp\" "));
    start.recordTo.clear();
    EXPECT_TRUE(Line().ends_with("-warp 1 1 -playdemo \"D:\\demos\\run.lmp\" "));
    start.playFrom.clear();

    EngineAt(0).options[0] = true;
    files.Add("D:\\wads\\Castle.wad");
    files.Add("D:\\wads\\patch.deh");
    start.skill = 3;
    start.noMonsters = start.fastMonsters = true;
    start.map = "MAP07";
    start.parameters = "-turbo 120";
    EXPECT_EQ(Line(),
              "-nosound -file \"D:\\wads\\Castle.wad\" \"D:\\wads\\patch.deh\"  -iwad "
              "\"D:\\iwads\\game.wad\" -skill 4 -nomonsters -fast -warp 7  -turbo 120");
    start.respawnMonsters = true;
    EXPECT_NE(Line().find("-fast -respawn -warp"), std::string::npos);
}

}  // namespace
