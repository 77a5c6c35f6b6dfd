// The free game WADs: as another tool lists them, written anew lump by lump, and played like that.
#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>

#include "support/temp_folder.h"
#include "wad/maps.h"

namespace {

struct GameWads : testing::Test {
    /// Opens a free game; gives whether it is installed.
    bool Open(const std::string& file) {
        const std::string path = "/usr/share/games/doom/" + file;
        game.OpenWad(path);
        return game.WadFileName() == path;
    }
    static bool IsInstalled(const std::filesystem::path& program) {
        return program.is_absolute() && exists(program);
    }
    /// What a command says in the folder.
    std::string Output(const std::string& command) const {
        const std::string inFolder = "cd '" + folder.Native().string() + "' && ";
        EXPECT_NE(std::system((inFolder + command + " >log 2>&1").c_str()), -1);
        return folder.Read("log");
    }
    clsWad game;
    TempFolder folder;
};

TEST_F(GameWads, HoldTheMapsThatAnotherToolLists) {
    const std::regex map(R"rx(\n(\S+)[^\n]*\nTHINGS )rx");
    for (const char* file : {"freedoom1.wad", "freedoom2.wad", "freedm.wad"}) {
        if (!Open(file) || !IsInstalled("/usr/games/deutex")) {
            GTEST_SKIP() << file << " or the tool is not installed";
        }
        const std::string link = "ln -sf " + game.WadFileName() + " doom2.wad && ";
        const std::string listing = Output(link + "/usr/games/deutex -doom2 . -wadir doom2.wad");
        const std::sregex_token_iterator found(listing.begin(), listing.end(), map, 1);
        const std::vector<std::string> listed(found, {});
        EXPECT_EQ(MapNames(game), listed) << file;
        EXPECT_EQ(LowestMap(game), MapNames(game).at(0));
    }
}

TEST_F(GameWads, AreTheSameWhenRewrittenAndPlayed) {
    if (!Open("freedoom1.wad")) {
        GTEST_SKIP() << "the game is not installed";
    }
    clsWad copy;
    std::string type = "IWAD";
    ASSERT_TRUE(copy.CreateWad(folder.Path("new.wad"), type));
    for (std::int32_t lump = 0; lump < game.Directory().Count(); ++lump) {
        ASSERT_TRUE(copy.AddLump(game.LumpName(lump), game.ReadLumpString(lump)));
    }
    ASSERT_TRUE(copy.WriteDirectory());
    copy.OpenWad(folder.Path("new.wad"));
    EXPECT_EQ(copy.WadType() + copy.WastedSpace(), 0);
    ASSERT_EQ(copy.WadLumps(), game.WadLumps());
    for (std::int32_t lump = 0; lump < game.Directory().Count(); ++lump) {
        ASSERT_EQ(copy.LumpName(lump), game.LumpName(lump));
        ASSERT_EQ(copy.ReadLumpString(lump), game.ReadLumpString(lump));
    }

    if (!IsInstalled("/usr/games/chocolate-doom")) {
        GTEST_SKIP() << "the engine is not installed";
    }
    const std::string log = Output(
        "HOME=$PWD SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy timeout -k 1 60 "
        "/usr/games/chocolate-doom -nogui -nosound -iwad new.wad -timedemo demo1");
    // The WAD's own demo: a header of 13 bytes, 4 for each tic, 1 at the end.
    const std::int32_t tics = (game.LumpSize(game.NumForName("DEMO1")) - 14) / 4;
    EXPECT_NE(log.find("timed " + std::to_string(tics) + " gametics"), std::string::npos) << log;
}

}  // namespace
