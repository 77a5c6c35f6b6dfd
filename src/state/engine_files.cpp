#include "state/engine_files.h"

#include <algorithm>

#include "platform/files.h"
#include "state/messages.h"
#include "state/records.h"
#include "text/file_names.h"

namespace {

constexpr const char* EngineFileMark = "Zorvane engine file";
constexpr const char* NoEngineFiles =
    "No engine configuration files were found. Please check if you installed Zorvane properly.";

/// Converts a structure of texts to a sequence of {value, prefix + key}.
template <typename Record>
std::vector<Record> Flatten(ConfigMap& root, std::string_view key, const std::string& prefix) {
    std::vector<Record> records;
    if (const ConfigMapRef map = root.Item(key).AsMap()) {
        records.reserve(map->Entries().size());
        for (const auto& entry : map->Entries()) {
            records.push_back({entry.value.AsText(), prefix + entry.key});
        }
    }
    return records;
}

/// A key of the settings file cannot have spaces.
char KeyCharacter(char character) {
    return character == ' ' ? '\x01' : character;
}

}  // namespace

std::string EngineKey(const std::string& realname) {
    std::string key = realname;
    std::ranges::transform(key, key.begin(), KeyCharacter);
    return key;
}

void ReadEngineFile(const std::string& fileName) {
    clsConfiguration file;
    if (const platform::Outcome read = file.LoadConfiguration(fileName); !read) {
        EngineFileUnread = true;
        Warn("The engine file could not be read: " + fileName + "\r\n" + read.reason);
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

    // The settings file cannot hold two engines of one key.
    const bool isDuplicate = std::ranges::any_of(Engines, [&](const EngineRecord& other) {
        return std::ranges::equal(other.realname, engine.realname, {}, KeyCharacter, KeyCharacter);
    });
    if (!isDuplicate) {
        Engines.push_back(std::move(engine));
    }
}

bool ScanEngineFiles(const std::string& directory) {
    const std::vector<std::string> names = platform::ListFiles(directory, "*.cfg");
    if (names.empty()) {
        Fail(NoEngineFiles);
        return false;
    }
    for (const std::string& name : names) {
        ReadEngineFile(JoinPath(directory, name));
    }
    return true;
}
