// Any bytes may be a settings file, an engine file or a command line. The lists of a settings file
// survive saving, and quoted arguments are split as they were joined.
#include "platform/facts.h"
#include "platform/posix/arguments.h"
#include "require.h"
#include "state/engine_files.h"
#include "state/records.h"
#include "state/settings.h"
#include "text/ascii.h"
#include "text/file_names.h"
#include "toolkit/dialogs.h"

void desktop::ShowMessage(const std::string&, const std::string&, MessageIcon) {}

std::string platform::ProgramDirectory() {
    return MemoryFolder().Path();
}

namespace {

/// The three lists, an element per text.
std::vector<std::string> Lists() {
    std::vector<std::string> texts;
    for (const GameWadRecord& game : GameWads) {
        texts.insert(texts.end(), {game.name, game.file});
    }
    for (const EngineRecord& engine : Engines) {
        texts.insert(texts.end(), {engine.path, OptionsToString(engine.options)});
    }
    for (std::int32_t file = 0; file <= FileList.Count(); ++file) {
        texts.push_back(FileList.Item(file));
    }
    return texts;
}

bool LoadAgain() {
    for (EngineRecord& engine : Engines) {
        engine.path.clear();
        engine.options = {};
    }
    return LoadSettings();
}

void SaveAndLoad(const std::string& text) {
    ResetState();
    InitialiseSettings();
    ReadEngineFile(MemoryFolder().Write("one.cfg", "type = \"Zorvane engine file\";" + text));
    MemoryFolder().Write("zorvane.cfg", "type = \"Zorvane Configuration file\";" + text);
    if (!LoadSettings()) {
        return;
    }
    const std::vector<std::string> lists = Lists();
    Require(SaveSettings().ok, "the settings are saved");
    const std::string saved = MemoryFolder().Read("zorvane.cfg");
    if (saved.find("\n = ") != saved.npos || saved.find("\t = ") != saved.npos) {
        return;  // a text with a semicolon under an empty key is not read back
    }
    Require(LoadAgain() && Lists() == lists, "the lists are read back");
}

void SplitAndJoin(const std::string& text) {
    const std::vector<std::string> paths = QuotedPaths(text);
    std::string line;
    for (const std::string& path : paths) {
        line += '"' + path + "\" ";
    }
    Require(QuotedPaths(line) == paths, "quoted paths are split as joined");
    platform::SplitArguments(text);
    // Without a drive letter no argument becomes a native path.
    const std::vector<std::string> arguments = QuotedPaths(ReplaceAll(line, ":", ""));
    Require(platform::SplitArguments(ReplaceAll(line, ":", "")) == arguments, "arguments too");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size) {
    const std::string text(bytes, size);
    SaveAndLoad(text);
    SplitAndJoin(text);
    return 0;
}
