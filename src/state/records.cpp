#include "state/records.h"

#include "text/file_names.h"

std::vector<EngineRecord> Engines;
bool EngineFileUnread = false;
std::vector<GameWadRecord> GameWads;
clsStringArray FileList;
clsConfiguration Settings;
std::string SettingsFileName;
clsConfiguration Autodetect;

std::int32_t EngineCount() {
    return static_cast<std::int32_t>(Engines.size());
}

std::int32_t GameWadCount() {
    return static_cast<std::int32_t>(GameWads.size());
}

EngineRecord& EngineAt(int index) {
    return Engines.at(static_cast<std::size_t>(index));
}

GameWadRecord& GameWadAt(int index) {
    return GameWads.at(static_cast<std::size_t>(index));
}

std::string ProgramFile(const EngineRecord& engine) {
    return JoinPath(engine.path, engine.executable);
}

void ResetState() {
    Engines.clear();
    EngineFileUnread = false;
    GameWads.clear();
    FileList.Clear();
    Settings.NewConfiguration();
    SettingsFileName.clear();
    Autodetect.NewConfiguration();
}
