#include "launch/command_line.h"

#include "launch/run_program.h"
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

struct Launching : Session {
    Launching() { Engines.emplace_back().parameters = {{"", "-noSound"}, {"", "-2"}, {"", "-3"}}; }
};

TEST_F(Launching, CommandLinesMatchToEachSpace) {
    EXPECT_EQ(LaunchCommandLine(0, "D:\\a.wad"), " -iwad D:\\a.wad");
    EngineAt(0).options[2] = EngineAt(0).options[0] = EngineAt(0).options[9] = true;
    EXPECT_EQ(LaunchCommandLine(0, "D:\\a b.wad"), "-nosound -3 -iwad D:\\a b.wad");
    EngineAt(0).options = {};
    clsStringArray files;
    QuickStart start;
    start.gameWad = "D:\\iwads\\game.wad";
    start.skill = 2;
    start.map = "E1M1";
    EXPECT_EQ(QuickStartCommandLine(start, files),
              " -iwad \"D:\\iwads\\game.wad\" -skill 3 -warp 1 1  ");
    EngineAt(0).options[0] = start.noMonsters = start.fastMonsters = true;
    files.Add("D:\\wads\\Castle.wad");
    files.Add("D:\\wads\\patch.deh");
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

TEST_F(Launching, CompletesBareNamesAndStartsInTheFilesFolder) {
    const std::string text = folder.Write("readme.txt", "");
    const std::string game = folder.Write("port/game.exe", "");
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {"readme.txt", text, folder.Path() + "\\"},
        {game, game, folder.Path("port\\")},
        {"D:absent.txt", "D:absent.txt", "D:absent.txt"},
        {"docs/absent.txt", "docs/absent.txt", "docs/absent.txt"},
        {"https://example.org/a", "https://example.org/a", ""},
    };
    for (auto [file, started, directory] : rows) {
        EXPECT_NE(RunProgram(file, "-x", ShowMaximized, false), 0);
        EXPECT_EQ(file, started) << "the caller's text follows";
        EXPECT_EQ(machine.started.back().file, started);
        EXPECT_EQ(machine.started.back().directory, directory);
    }
}

}  // namespace
