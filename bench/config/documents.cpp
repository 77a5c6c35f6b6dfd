#include "documents.h"

#include "config/writer.h"

namespace {

std::string Key(int number) {
    std::string digits = std::to_string(number);
    return "key" + std::string(7 - digits.size(), '0') + digits;
}

void AddSetting(ConfigMap& map, int number) {
    if (number % 2 == 0) {
        map.Add(Key(number), number);
    } else {
        map.Add(Key(number), "some text value " + std::to_string(number));
    }
}

ConfigMapRef Tens(int first, int settings) {
    auto map = std::make_shared<ConfigMap>();
    if (settings <= 10) {
        for (int number = first; number < first + settings; ++number) {
            AddSetting(*map, number);
        }
        return map;
    }
    const int part = (settings + 9) / 10;
    for (int number = first; number < first + settings; number += part) {
        map->Add(Key(number), Tens(number, std::min(part, first + settings - number)));
    }
    return map;
}

ConfigMapRef NumberedTexts(int count, const std::string& before, const std::string& after) {
    auto map = std::make_shared<ConfigMap>();
    for (int number = 0; number < count; ++number) {
        std::string text = before;
        map->Add(std::to_string(number), text.append(std::to_string(number)).append(after));
    }
    return map;
}

}  // namespace

ConfigMapRef SettingsFile() {
    auto map = std::make_shared<ConfigMap>();
    map->Add("type", "Zorvane settings");
    for (const char* key : {"engine", "iwad", "map", "skill", "nomonsters", "fastmonsters",
                            "respawnmonsters", "parameters", "record", "tips", "left", "top"}) {
        map->Add(key, static_cast<int>(map->Count()) - 1);
    }
    map->Add("lastdir", R"(Z:\home\player\games\wads)");
    map->Add("iwads", NumberedTexts(12, "A game with a name, number ",
                                    R"(|Z:\home\player\games\wads\game.wad)"));
    map->Add("pwads", NumberedTexts(16, R"(Z:\home\player\games\wads\levels\additional)", ".wad"));
    auto engines = std::make_shared<ConfigMap>();
    for (int number = 0; number < 12; ++number) {
        auto engine = std::make_shared<ConfigMap>();
        engine->Add("path", R"(Z:\usr\games\engine-number-)" + std::to_string(number));
        engine->Add("parameters", NumberedTexts(3, "-option", " value"));
        engines->Add("engine" + std::to_string(number), engine);
    }
    map->Add("engines", engines);
    return map;
}

ConfigMapRef Flat(int settings) {
    auto map = std::make_shared<ConfigMap>();
    for (int number = 0; number < settings; ++number) {
        AddSetting(*map, number);
    }
    return map;
}

ConfigMapRef Nested(int settings) {
    return Tens(0, settings);
}

std::size_t EntriesOf(const ConfigMap& map) {
    std::size_t entries = 0;
    for (const ConfigEntry& entry : map.Entries()) {
        const ConfigMapRef nested = entry.value.AsMap();
        entries += nested ? 1 + EntriesOf(*nested) : 1;
    }
    return entries;
}

/// Both libraries accept "=", quotes and ";" as written here. A key of libconfig must begin with a
/// letter, and its structures need ":" and ";".
std::string TextOf(const ConfigMap& map, Dialect dialect) {
    std::string text;
    for (const auto& [key, value] : map.Entries()) {
        text += "k" + key;
        if (const ConfigMapRef nested = value.AsMap()) {
            text += dialect == Dialect::Libconfig ? " : {\r\n" : " {\r\n";
            text += TextOf(*nested, dialect);
            text += dialect == Dialect::Libconfig ? "};\r\n" : "}\r\n";
        } else if (value.IsText()) {
            text += " = \"" + EscapeText(value.AsText()) + "\";\r\n";
        } else {
            text += " = " + value.AsText() + ";\r\n";
        }
    }
    return text;
}
