// An engine that plays nothing: it writes down how it was started and, told to record, leaves a
// demo.
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

int main(int /*argumentCount*/, char** arguments) {
    const fs::path folder = fs::path(arguments[0]).parent_path();
    std::string line = GetCommandLineA();
    line.erase(0, line.starts_with('"') ? line.find('"', 1) + 2 : line.find(' ') + 1);
    // In one step, so that nobody reads half of it.
    std::ofstream(folder / "unfinished", std::ios::binary) << line << '\n'
                                                           << fs::current_path().string();
    fs::rename(folder / "unfinished", folder / "received.txt");
    while (fs::exists(folder / "hold.txt")) {  // the test has things to do while a game runs
        Sleep(10);
    }
    if (line.find(" -record ") != std::string::npos) {
        std::ofstream(folder / "temp.lmp") << "a demo";
    }
    return 0;
}
