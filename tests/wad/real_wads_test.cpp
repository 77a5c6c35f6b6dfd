// The free game WADs and the packaged tool that puts WADs together and takes them apart.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "support/temp_folder.h"
#include "wad/maps.h"

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

const char* const gameFolder = "/usr/share/games/doom/";
const char* const tool = "/usr/games/deutex";

Names MapsOf(const std::string& path) {
    clsWad wad;
    wad.OpenWad(path);
    return MapNames(wad);
}

Names Numbered(int count) {
    Names names;
    for (int map = 1; map <= count; ++map) {
        names.emplace_back(map < 10 ? "MAP0" : "MAP").append(std::to_string(map));
    }
    return names;
}

Names Episodes() {
    Names names;
    for (int map = 0; map < 36; ++map) {
        names.emplace_back("E#M#")[1] = static_cast<char>('1' + map / 9);
        names.back()[3] = static_cast<char>('1' + map % 9);
    }
    return names;
}

/// Writes a WAD of the same lumps as another one.
void Rewrite(const clsWad& from, const std::string& path) {
    clsWad copy;
    std::string type = from.WadType() == 0 ? "IWAD" : "PWAD";
    ASSERT_TRUE(copy.CreateWad(path, type));
    for (std::int32_t lump = 0; lump < from.Directory().Count(); ++lump) {
        ASSERT_TRUE(copy.AddLump(from.LumpName(lump), from.ReadLumpString(lump)));
    }
    ASSERT_TRUE(copy.WriteDirectory());
}

bool RunTool(const TempFolder& folder, const std::string& arguments) {
    const std::string command = "cd '" + folder.Native().string() + "' && " + tool +
                                " -v0 -overwrite " + arguments + " >tool.log 2>&1";
    return std::system(command.c_str()) == 0;
}

class GameWad : public ::testing::TestWithParam<std::pair<const char*, Names>> {
  protected:
    void SetUp() override {
        if (!fs::exists(path)) {
            GTEST_SKIP() << path << " is not installed";
        }
    }
    std::string path = gameFolder + std::string(GetParam().first);
    TempFolder folder;
};

}  // namespace

TEST_P(GameWad, ListsItsMapsAndSurvivesRewriting) {
    EXPECT_EQ(MapsOf(path), GetParam().second);
    clsWad original;
    original.OpenWad(path);
    EXPECT_EQ(LowestMap(original), GetParam().second.front());
    Rewrite(original, folder.Path("copy.wad"));
    clsWad copy;
    copy.OpenWad(folder.Path("copy.wad"));
    EXPECT_EQ(copy.WadType(), 0);
    EXPECT_EQ(copy.WastedSpace(), 0);
    ASSERT_EQ(copy.WadLumps(), original.WadLumps());
    for (std::int32_t lump = 0; lump < original.Directory().Count(); ++lump) {
        ASSERT_EQ(copy.LumpName(lump), original.LumpName(lump));
        ASSERT_EQ(copy.ReadLumpString(lump), original.ReadLumpString(lump)) << copy.LumpName(lump);
    }
}

INSTANTIATE_TEST_SUITE_P(Free, GameWad,
                         ::testing::Values(std::pair("freedoom1.wad", Episodes()),
                                           std::pair("freedoom2.wad", Numbered(32)),
                                           std::pair("freedm.wad", Numbered(32))),
                         [](const auto& row) { return fs::path(row.param.first).stem().string(); });

TEST(PackagedTool, ReadsOurWadsAndWeReadItsWads) {
    const std::string game = gameFolder + std::string("freedoom2.wad");
    if (!fs::exists(game) || !fs::exists(tool) || !fs::path(tool).is_absolute()) {
        GTEST_SKIP() << "the tool or its game WAD is not installed";
    }
    const TempFolder folder;
    fs::create_symlink(game, folder.Native("doom2.wad"));
    clsWad original;
    original.OpenWad(game);
    clsWad ours;
    std::string type = "PWAD";
    ASSERT_TRUE(ours.CreateWad(folder.Path("ours.wad"), type));
    const Names maps = {"MAP01", "MAP07"};
    for (const std::string& map : maps) {
        const std::int32_t first = original.NumForName(map);
        for (std::int32_t lump = first; lump <= first + 10; ++lump) {
            ASSERT_TRUE(ours.AddLump(original.LumpName(lump), original.ReadLumpString(lump)));
        }
    }
    ASSERT_TRUE(ours.WriteDirectory());

    ASSERT_TRUE(RunTool(folder, "-doom2 . -levels -xtract ours.wad")) << folder.Read("tool.log");
    ASSERT_TRUE(RunTool(folder, "-doom2 . -build theirs.wad")) << folder.Read("tool.log");
    clsWad theirs;
    theirs.OpenWad(folder.Path("theirs.wad"));
    EXPECT_EQ(MapNames(theirs), maps);
    for (const std::string& map : maps) {
        for (std::int32_t lump = 0; lump <= 10; ++lump) {
            EXPECT_EQ(theirs.ReadLump(theirs.NumForName(map) + lump),
                      original.ReadLump(original.NumForName(map) + lump))
                << map << " + " << lump;
        }
    }
}
