#include "launch/command_line.h"

#include "session.h"

namespace {

TEST(CommandLine, WarpArguments) {
    const std::pair<const char*, const char*> rows[] = {
        {"MAP01", "-warp 1"},    {"map30", "-warp 30"},    {"E1M1", "-warp 1 1"},
        {"e4m9", "-warp 4 9"},   {"EXMY", "-warp 0 0"},    {"MAPAB", "-warp 0"},
        {"MAP1A", "-warp 1"},    {"MAP1", "+map MAP1"},    {"MAP100", "+map MAP100"},
        {"E1M10", "+map E1M10"}, {"start", "+map START"},  {"", "+map "},
        {" E1M1", "+map  E1M1"}, {"E\377M1", "-warp 0 1"},
    };
    for (const auto& [map, arguments] : rows) {
        EXPECT_EQ(WarpArguments(map), arguments) << map;
    }
}

struct EngineLine : Session {
    EngineLine() { Engines.emplace_back().parameters = {{"", "-noSound"}, {"", "-2"}, {"", "-3"}}; }
};

TEST_F(EngineLine, SwitchesStandInTheirOrderAndInLowerCase) {
    EXPECT_EQ(LaunchCommandLine(0, "D:\\a.wad"), " -iwad D:\\a.wad");
    EngineAt(0).options[2] = EngineAt(0).options[0] = EngineAt(0).options[9] = true;
    EXPECT_EQ(LaunchCommandLine(0, "D:\\a b.wad"), "-nosound -3 -iwad D:\\a b.wad");
}

TEST_F(EngineLine, QuickStartIsRightBlankForBlank) {
    clsStringArray files;
    QuickStart start;
    start.gameWad = "D:\\iwads\\game.wad";
    start.skill = 2;
    start.map = "E1M1";
    EXPECT_EQ(QuickStartCommandLine(start, files),
              " -iwad \"D:\\iwads\\game.wad\" -skill 3 -warp 1 1  ");
    EngineAt(0).options[0] = true;
    files.Add("D:\\wads\\Castle.wad");
    files.Add("D:\\wads\\patch.deh");
    start.noMonsters = start.fastMonsters = true;
    start.map = "MAP07";
    start.parameters = "-turbo 120";
    const std::string head =
        "-nosound -file \"D:\\wads\\Castle.wad\" \"D:\\wads\\patch.deh\"  "
        "-iwad \"D:\\iwads\\game.wad\" -skill 3 -nomonsters -fast ";
    EXPECT_EQ(QuickStartCommandLine(start, files), head + "-warp 7  -turbo 120");
    start.respawnMonsters = true;
    start.playFrom = "D:\\demos\\run.lmp";
    EXPECT_EQ(QuickStartCommandLine(start, files),
              head + "-respawn -warp 7 -playdemo \"D:\\demos\\run.lmp\" -turbo 120");
    start.recordTo = "D:\\engines\\port.old\\temp.lmp";
    EXPECT_EQ(QuickStartCommandLine(start, files),
              head + "-respawn -warp 7 -record \"D:\\engines\\port.old\\temp\" -turbo 120");
}

}  // namespace
