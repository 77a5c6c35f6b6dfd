// The free game WADs: walked, written anew lump by lump, and played from the new file.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "support/temp_folder.h"
#include "wad/maps.h"

namespace {

namespace fs = std::filesystem;

const std::string gameFolder = "/usr/share/games/doom/";

void Rewrite(const clsWad& game, const std::string& path) {
    clsWad copy;
    std::string type = "IWAD";
    ASSERT_TRUE(copy.CreateWad(path, type));
    for (std::int32_t lump = 0; lump < game.Directory().Count(); ++lump) {
        ASSERT_TRUE(copy.AddLump(game.LumpName(lump), game.ReadLumpString(lump)));
    }
    ASSERT_TRUE(copy.WriteDirectory());
}

}  // namespace

TEST(GameWads, ListTheirMapsAndSurviveRewriting) {
    const std::tuple<const char*, std::size_t, const char*> rows[] = {
        {"freedoom1.wad", 36, "E1M1"}, {"freedoom2.wad", 32, "MAP01"}, {"freedm.wad", 32, "MAP01"}};
    const TempFolder folder;
    clsWad game;
    clsWad copy;
    for (const auto& [file, maps, lowest] : rows) {
        SCOPED_TRACE(file);
        game.OpenWad(gameFolder + file);
        if (game.WadFileName() != gameFolder + file) {
            GTEST_SKIP() << file << " is not installed";
        }
        const std::vector<std::string> names = MapNames(game);
        EXPECT_EQ(names.size(), maps);
        EXPECT_EQ(std::ranges::adjacent_find(names, std::ranges::greater_equal()), names.end());
        EXPECT_EQ(LowestMap(game), lowest);

        Rewrite(game, folder.Path(file));
        copy.OpenWad(folder.Path(file));
        EXPECT_EQ(copy.WadType() + copy.WastedSpace(), 0);
        ASSERT_EQ(copy.WadLumps(), game.WadLumps());
        for (std::int32_t lump = 0; lump < game.Directory().Count(); ++lump) {
            ASSERT_EQ(copy.LumpName(lump), game.LumpName(lump));
            ASSERT_EQ(copy.ReadLumpString(lump), game.ReadLumpString(lump));
        }
    }
}

TEST(GameWads, ArePlayedByAnEngineWhenRewritten) {
    const fs::path engine = "/usr/games/chocolate-doom";
    clsWad game;
    game.OpenWad(gameFolder + "freedoom1.wad");
    if (!engine.is_absolute() || !fs::exists(engine) || game.WadFileName().empty()) {
        GTEST_SKIP() << "the engine or its game WAD is not installed";
    }
    const TempFolder folder;
    Rewrite(game, folder.Path("new.wad"));
    const std::string command = "cd '" + folder.Native().string() +
                                "' && HOME=$PWD SDL_VIDEODRIVER=dummy SDL_AUDIODRIVER=dummy "
                                "timeout -k 1 60 " +
                                engine.string() +
                                " -nogui -nosound -iwad new.wad -timedemo demo1 >log 2>&1";
    EXPECT_NE(std::system(command.c_str()), -1);
    // The WAD's own demo: a header of 13 bytes, 4 for each tic, 1 at the end.
    const std::int32_t tics = (game.LumpSize(game.NumForName("DEMO1")) - 14) / 4;
    const std::string played = "timed " + std::to_string(tics) + " gametics";
    EXPECT_NE(folder.Read("log").find(played), std::string::npos) << folder.Read("log");
}
