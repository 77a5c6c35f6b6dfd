#include "state/engine_files.h"

#include <algorithm>

#include "platform/files.h"
#include "state/records.h"
#include "state/startup.h"
#include "text/ascii.h"
#include "text/file_names.h"
#include "toolkit/dialogs.h"

namespace {

constexpr const char* EngineFileMark = "Zorvane engine file";
constexpr const char* NoEngineFiles =
    "No engine configuration files were found. Please check if you installed Zorvane properly.";

/// A structure of texts as a sequence of pairs, the key second with `prefix` before it.
template <typename Pair>
std::vector<Pair> Flatten(ConfigMap& root, std::string_view key, const std::string& prefix) {
    std::vector<Pair> pairs;
    if (const ConfigMapRef map = root.Item(key).AsMap()) {
        for (const auto& entry : map->Entries()) {
            pairs.push_back({entry.value.AsText(), prefix + entry.key});
        }
    }
    return pairs;
}

}  // namespace

std::string EngineKey(const std::string& realname) {
    return ReplaceAll(realname, " ", "\x01");
}

void ReadEngineFile(const std::string& fileName) {
    clsConfiguration file;
    if (!file.LoadConfiguration(fileName)) {
        return;
    }
    ConfigMap& root = *file.Root();
    const ConfigValue& type = root.Item("type");
    if (!type.IsText() || type.AsText() != EngineFileMark) {
        return;
    }
    EngineRecord engine;
    engine.executable = root.Item("executable").AsText();
    engine.realname = root.Item("realname").AsText();
    engine.demoext = root.Item("demoext").AsText();
    engine.parameters = Flatten<EngineParameter>(root, "parameters", "-");
    engine.filetypes = Flatten<EngineFileType>(root, "filetypes", "");

    const std::string key = EngineKey(engine.realname);
    const bool taken = std::ranges::any_of(
        Engines, [&](const EngineRecord& other) { return EngineKey(other.realname) == key; });
    if (!taken) {
        Engines.push_back(std::move(engine));
    }
}

void ScanEngineFiles(const std::string& directory) {
    const std::vector<std::string> names = platform::ListFiles(directory, "*.cfg");
    if (names.empty()) {
        desktop::ShowMessage(NoEngineFiles, ProgramTitle, desktop::MessageIcon::Critical);
        ShutDown();
    }
    for (const std::string& name : names) {
        ReadEngineFile(JoinPath(directory, name));
    }
}
