#include "session.h"

#include <algorithm>

#include "mainwindow/application.h"
#include "mainwindow/main_window.h"
#include "state/records.h"
#include "state/startup.h"
#include "text/ascii.h"
#include "wad_bytes.h"

namespace {

void Forget() {
    const auto& windows = TheApplication.windows;
    std::for_each(windows.rbegin(), windows.rend(), [](auto* window) { window->Unload(); });
    ResetState();
}

}  // namespace

std::vector<std::string> NumberedMaps(int count) {
    std::vector<std::string> maps;
    for (int i = 1; i <= count; ++i) {
        maps.push_back((i < 10 ? "MAP0" : "MAP") + std::to_string(i));
    }
    return maps;
}

std::string MapWad(std::string_view tag, const std::vector<std::string>& maps) {
    std::vector<std::string> lumps;
    for (const std::string& map : maps) {
        lumps.insert(lumps.end(), {map, "THINGS"});
        lumps.insert(lumps.end(), 9, "LINEDEFS");
    }
    return WadOf(lumps, tag);
}

Session::Session() {
    memory::Reset();
    machine.programDirectory = folder.Path();
}

Session::~Session() {
    Forget();
    memory::Reset();
}

void Session::DefineEngine(const std::string& name, int switches) {
    std::string text = "type = \"Zorvane engine file\"; executable = \"" + name +
                       ".exe\"; realname = \"" + name + "\"; demoext = \"lmp\"; parameters {";
    for (int i = 1; i <= switches; ++i) {
        text += "Switch" + std::to_string(i) + " = \"Caption " + std::to_string(i) + "\";";
    }
    folder.Write("engines/" + name + ".cfg",
                 text + "} filetypes { wad = \"WAD files\"; deh = \"Patches\"; }");
}

std::string Session::Stored(std::string_view name) const {
    return ReplaceAll(folder.Path(name), "\\", "\\\\");
}

void Session::WriteSettings(std::string_view lines) {
    folder.Write("zorvane.cfg", "type = \"Zorvane Configuration file\";" + std::string(lines));
}

bool Session::Start() {
    Forget();
    ConnectApplication();
    return !Ends([] { Main(); });
}

void Session::Exit() {
    EXPECT_TRUE(Ends([] { driver::Click(frmMain.cmdExit); })) << "Exit did not end the process";
}

bool Session::Ends(const std::function<void()>& steps) {
    try {
        steps();
    } catch (const memory::ProcessEnded&) {
        return true;
    }
    return false;
}
