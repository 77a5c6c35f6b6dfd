// What the program reads before its first window, the engine files and the settings, beside
// reading the bytes of the same files.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "platform/facts.h"
#include "state/engine_files.h"
#include "state/records.h"
#include "state/settings.h"
#include "support/comparison.h"
#include "support/temp_folder.h"
#include "text/file_names.h"
#include "toolkit/dialogs.h"

namespace {

const TempFolder& Folder() {
    static const TempFolder folder;
    return folder;
}

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void ReadState() {
    ResetState();
    InitialiseSettings();
    Require(ScanEngineFiles(Folder().Path("engines")) && LoadSettings());
}

void ReadBytes() {
    std::string bytes;
    const std::string engines = Folder().Path("engines");
    for (const std::string& name : platform::ListFiles(engines, "*.cfg")) {
        Require(platform::ReadWholeFile(JoinPath(engines, name), bytes).ok);
    }
    Require(platform::ReadWholeFile(SettingsFileName, bytes).ok);
}

}  // namespace

// What the libraries ask of a desktop: here they find it as on a machine without one.
void desktop::ShowMessage(const std::string&, const std::string&, MessageIcon) {
    std::abort();
}
std::string platform::ProgramDirectory() {
    return Folder().Path();
}

int main(int argumentCount, char** arguments) {
    std::filesystem::copy(ZORVANE_DATA "/engines", Folder().Native("engines"));
    InitialiseSettings();
    Require(ScanEngineFiles(Folder().Path("engines")) && SaveSettings().ok);
    ReadState();
    const Comparison table(argumentCount, arguments, "Reading settings and engine files", "file",
                           {"ours", "the bytes"});
    table.Measure("as at the start", Engines.size() + 1, {ReadState, ReadBytes});
    return 0;
}
