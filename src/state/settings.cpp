#include "state/settings.h"

#include <algorithm>
#include <array>
#include <utility>

#include "config/writer.h"
#include "platform/facts.h"
#include "platform/files.h"
#include "state/engine_files.h"
#include "state/messages.h"
#include "text/file_names.h"

namespace {

constexpr const char* SettingsFileMark = "Zorvane Configuration file";

/// The settings file as this run last read or wrote it.
std::string knownFile;
/// Whether knownFile was incomplete or lacked a list, so that saving would lose what was not read.
bool isDamaged = false;

std::string DamagedFileName() {
    return SettingsFileName + ".damaged";
}

/// Copies what the next save would destroy.
platform::Outcome KeepOldFiles() {
    platform::Outcome outcome;
    if (isDamaged && !platform::Exists(DamagedFileName())) {
        outcome = platform::ReplaceWholeFile(DamagedFileName(), knownFile);
    }
    std::string bytes;
    const bool read = platform::ReadWholeFile(SettingsFileName, bytes).ok;
    if (outcome && read && bytes != knownFile) {  // another run wrote it
        outcome = platform::ReplaceWholeFile(SettingsFileName + ".old", bytes);
    }
    return outcome;
}

bool LacksList() {
    constexpr std::array Lists = {"iwads", "engines", "pwads"};
    return std::ranges::any_of(Lists, [](const char* key) {
        const ConfigValue* value = Settings.Root()->Find(key);
        return value == nullptr || !value->IsMap();
    });
}

/// Returns the map of that key, a new one if there is none.
ConfigMapRef ListOf(std::string_view key) {
    ConfigValue& value = Settings.Root()->Item(key);
    if (!value.IsMap()) {
        value = std::make_shared<ConfigMap>();
    }
    return value.AsMap();
}

GameWadRecord GameWadFrom(const std::string& text) {
    const std::size_t bar = text.find('|');  // a path may contain one, a name may not
    if (bar == std::string::npos) {
        return {text, text};
    }
    return {text.substr(0, bar), text.substr(bar + 1)};
}

void LoadLists() {
    GameWads.clear();
    for (const auto& entry : ListOf("iwads")->Entries()) {
        GameWads.push_back(GameWadFrom(entry.value.AsText()));
    }
    const ConfigMapRef engines = ListOf("engines");
    for (EngineRecord& engine : Engines) {
        const ConfigValue* stored = engines->Find(EngineKey(engine.realname));
        if (const ConfigMapRef entry = stored != nullptr ? stored->AsMap() : nullptr) {
            engine.path = entry->Item("path").AsText();
            OptionsFromString(entry->Item("options").AsText(), engine.options);
        }
    }
    FileList.Clear();
    for (const auto& entry : ListOf("pwads")->Entries()) {
        FileList.Add(entry.value.AsText());
    }
}

// The maps are emptied, not replaced, so that their keys keep their places in the file.
void StoreLists() {
    const ConfigMapRef iwads = ListOf("iwads");
    iwads->RemoveAll();
    for (std::size_t i = 0; i < GameWads.size(); ++i) {
        iwads->Add(std::to_string(i), GameWads[i].name + "|" + GameWads[i].file);
    }
    const ConfigMapRef engines = ListOf("engines");
    if (!EngineFileUnread) {
        engines->RemoveAll();
    }
    for (const EngineRecord& engine : Engines) {
        const std::string key = EngineKey(engine.realname);
        if (!KeyCanBeReadBack(key)) {
            continue;  // such a key would corrupt the settings after it
        }
        const ConfigMapRef entry = std::make_shared<ConfigMap>();
        entry->Add("path", engine.path);
        entry->Add("options", OptionsToString(engine.options));
        engines->Item(key) = entry;
    }
    const ConfigMapRef pwads = ListOf("pwads");
    pwads->RemoveAll();
    for (std::int32_t i = 0; i <= FileList.Count(); ++i) {
        pwads->Add(std::to_string(i), FileList.Item(i));
    }
}

}  // namespace

void InitialiseSettings() {
    // In the order of a new file. Numbers have 16 bits, as the controls store them.
    constexpr std::int16_t None = NoSelection;
    constexpr std::int16_t ThirdSkill = 2;
    constexpr std::int16_t Off = 0;
    const std::string directory = platform::ProgramDirectory();
    const std::pair<const char*, ConfigValue> defaults[] = {
        {"type", SettingsFileMark},
        {"engine", None},
        {"iwad", None},
        {"skill", ThirdSkill},
        {"map", None},
        {"fastmonsters", Off},
        {"nomonsters", Off},
        {"respawnmonsters", Off},
        {"deathmatch", Off},
        {"parameters", ""},
        {"lastdir", directory},
        {"iwads", std::make_shared<ConfigMap>()},
        {"engines", std::make_shared<ConfigMap>()},
        {"pwads", std::make_shared<ConfigMap>()},
    };
    Settings.NewConfiguration();
    for (const auto& [key, value] : defaults) {
        Settings.Root()->Add(key, value);
    }
    SettingsFileName = JoinPath(directory, "zorvane.cfg");
    knownFile.clear();
    isDamaged = false;
}

bool LoadSettings() {
    platform::Outcome outcome = platform::ReadWholeFile(SettingsFileName, knownFile);
    if (outcome) {
        outcome = Settings.InputConfiguration(knownFile);
    }
    if (!outcome) {
        Fail("The settings could not be read from " + SettingsFileName + "\r\n" + outcome.reason);
        return false;
    }
    const ConfigValue* type = Settings.Root()->Find("type");
    if (type == nullptr || !type->IsText() || type->AsText() != SettingsFileMark) {
        Fail("The configuration file was corrupted.");
        return false;
    }
    isDamaged = !Settings.TextWasComplete() || LacksList();
    if (!Settings.TextWasComplete()) {
        Warn(
            "The configuration file is incomplete: only a part of the settings could be read.\r\n"
            "The first such file is kept as " +
            DamagedFileName());
    }
    LoadLists();
    return true;
}

platform::Outcome SaveSettings() {
    StoreLists();
    return WriteSettings();
}

platform::Outcome WriteSettings() {
    platform::Outcome outcome = KeepOldFiles();
    if (outcome) {
        outcome = Settings.SaveConfiguration(SettingsFileName);
    }
    if (outcome) {
        knownFile = Settings.OutputConfiguration();
        isDamaged = false;
    }
    return outcome;
}

std::string OptionsToString(const EngineOptions& options) {
    std::string text;
    for (const bool on : options) {
        text += on ? '1' : '0';
    }
    return text;
}

void OptionsFromString(std::string_view text, EngineOptions& options) {
    for (std::size_t i = 0; i < text.size() && i < options.size(); ++i) {
        if (text[i] == '1') {
            options[i] = true;
        }
    }
}

std::int32_t SettingNumber(std::string_view key) {
    return Settings.Root()->Item(key).AsWhole();
}

std::string SettingText(std::string_view key) {
    return Settings.Root()->Item(key).AsText();
}

void StoreSetting(std::string_view key, int number) {
    Settings.Root()->Item(key) = static_cast<std::int16_t>(number);
}

void StoreSetting(std::string_view key, const std::string& text) {
    Settings.Root()->Item(key) = text;
}
