#include "launch/command_line.h"

#include "text/ascii.h"

namespace {

std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

/// The number formed by the digits at the start of a text, without leading zeros.
std::string LeadingNumber(std::string_view text) {
    int number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') {
            break;
        }
        number = number * 10 + (digit - '0');
    }
    return std::to_string(number);
}

std::string DemoArguments(const QuickStart& start) {
    if (!start.recordTo.empty()) {
        return "-record " + Quoted(RemoveExtension(start.recordTo));
    }
    if (!start.playFrom.empty()) {
        return "-playdemo " + Quoted(start.playFrom);
    }
    return {};
}

}  // namespace

std::string EngineParameterString(int engineNum) {
    const EngineRecord& engine = EngineAt(engineNum);
    std::string text;
    for (std::size_t i = 0; i < engine.options.size() && i < engine.parameters.size(); ++i) {
        if (engine.options[i]) {
            text += ' ' + engine.parameters[i].switchText;
        }
    }
    return LowerCase(TrimSpaces(text));
}

std::string WarpArguments(std::string_view mapName) {
    const std::string name = UpperCase(mapName);
    if (name.size() == 4 && name[0] == 'E' && name[2] == 'M') {
        return "-warp " + LeadingNumber(name.substr(1, 1)) + " " + LeadingNumber(name.substr(3));
    }
    if (name.size() == 5 && name.starts_with("MAP")) {
        return "-warp " + LeadingNumber(name.substr(3));
    }
    return "+map " + name;
}

std::string RemoveExtension(const std::string& fileName) {
    return fileName.substr(0, fileName.rfind('.'));
}

std::string LaunchCommandLine(int engine, const std::string& gameWad) {
    return EngineParameterString(engine) + " -iwad " + gameWad;
}

std::string QuickStartCommandLine(const QuickStart& start, const clsStringArray& files) {
    std::string line = EngineParameterString(start.engine);
    if (files.Count() >= 0) {
        line += " -file ";
    }
    for (int i = 0; i <= files.Count(); ++i) {
        line += Quoted(files.Item(i)) + ' ';
    }
    line += " -iwad " + Quoted(start.gameWad) + ' ';
    line += "-skill " + std::to_string(start.skill + 1) + ' ';
    if (start.noMonsters) {
        line += "-nomonsters ";
    }
    if (start.fastMonsters) {
        line += "-fast ";
    }
    if (start.respawnMonsters) {
        line += "-respawn ";
    }
    line += WarpArguments(start.map) + ' ';
    return line + DemoArguments(start) + ' ' + start.parameters;
}
