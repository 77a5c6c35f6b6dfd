// An engine that plays nothing: it writes down how it was started and, told to record, leaves a
// demo.
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace {

namespace fs = std::filesystem;

std::string BehindProgramName(const std::string& line) {
    const std::size_t end = line.find(line.starts_with('"') ? '"' : ' ', 1);
    return end < line.size() ? line.substr(end + (line[end] == '"' ? 2 : 1)) : "";
}

/// The file that `-record "name"` names, without its ending; an empty text without one.
std::string RecordedTo(const std::string& arguments) {
    const std::string option = "-record \"";
    const std::size_t start = arguments.find(option);
    if (start == std::string::npos) {
        return {};
    }
    const std::size_t name = start + option.size();
    return arguments.substr(name, arguments.find('"', name) - name);
}

/// In one step, so that nobody reads half of it.
void Write(const fs::path& file, const std::string& bytes) {
    const fs::path unfinished = file.string() + ".new";
    std::ofstream(unfinished, std::ios::binary) << bytes;
    fs::rename(unfinished, file);
}

}  // namespace

int main(int /*argumentCount*/, char** arguments) {
    const fs::path folder = fs::path(arguments[0]).parent_path();
    const std::string line = BehindProgramName(GetCommandLineA());
    Write(folder / "received.txt", line + "\n" + fs::current_path().string() + "\n");
    while (fs::exists(folder / "hold.txt")) {  // the test has things to do while a game runs
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    if (const std::string name = RecordedTo(line); !name.empty()) {
        Write(name + ".lmp", "demo of " + name);
    }
    return 0;
}
