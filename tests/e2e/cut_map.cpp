// cut_map GAME MAP TARGET: writes a WAD with one map of a game.
#include "wad/wad.h"

int main(int /*argumentCount*/, char** arguments) {
    constexpr int LumpsOfMap = 11;
    std::string kind = "PWAD";
    clsWad game;
    clsWad own;
    game.OpenWad(arguments[1]);
    const std::int32_t first = game.NumForName(arguments[2]);
    bool fine = own.CreateWad(arguments[3], kind).ok;
    for (std::int32_t lump = first; lump < first + LumpsOfMap; ++lump) {
        fine = fine && own.AddLump(game.LumpName(lump), game.ReadLumpString(lump)).ok;
    }
    return fine && own.WriteDirectory().ok ? 0 : 1;
}
