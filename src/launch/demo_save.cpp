#include "launch/demo_save.h"

#include "dialogs/dialogs.h"
#include "launch/command_line.h"
#include "platform/files.h"
#include "state/messages.h"
#include "state/settings.h"

DemoSaveWindow frmDemoSave;

std::string DemoFilter(const std::string& extension) {
    return "Demo files (*." + extension + ")|*." + extension + "|All files (*.*)|*.*";
}

DemoSaveWindow::DemoSaveWindow()
    : Window({.caption = "Save demo", .width = 281, .height = 68, .dialog = true}) {
    OnShowModal = [this] { Propose(); };
    OnCloseRequest = [this] { Hide(); };
    cmdBrowse.OnClick = [this] { Browse(); };
    cmdSave.OnClick = [this] { Save(); };
    cmdDiscard.OnClick = [this] { Discard(); };
}

void DemoSaveWindow::Propose() {
    txtDemoFile.SetText(SettingText("lastdir") + "\\demo." + DemoExt);
    txtDemoFile.SetFocus();
}

std::string DemoSaveWindow::WithDemoExtension(const std::string& path) const {
    return RemoveExtension(path) + "." + DemoExt;
}

void DemoSaveWindow::Browse() {
    const std::string chosen =
        SaveFileDialog(*this, "Please enter the path and filename of the demo", DemoFilter(DemoExt),
                       txtDemoFile.Text(), SaveFileFlags);
    if (!chosen.empty()) {
        txtDemoFile.SetText(WithDemoExtension(chosen));
    }
}

void DemoSaveWindow::Save() {
    const std::string& text = txtDemoFile.Text();
    const bool isBareName = text.find_first_of("\\/:") == text.npos;
    const std::string target =
        WithDemoExtension(isBareName ? SettingText("lastdir") + "\\" + text : text);
    if (const platform::Outcome copied = platform::CopyWholeFile(DemoFileName, target); !copied) {
        Warn("The demo could not be saved to " + target + "\r\n" + copied.reason);
        return;
    }
    if (const platform::Outcome removed = platform::RemoveFile(DemoFileName); !removed) {
        Warn("The demo is saved. The temporary file is left behind: " + DemoFileName + "\r\n" +
             removed.reason);
    }
    Hide();
}

void DemoSaveWindow::Discard() {
    if (const platform::Outcome removed = platform::RemoveFile(DemoFileName); !removed) {
        Warn("The temporary demo file could not be deleted: " + DemoFileName + "\r\n" +
             removed.reason);
    }
    Hide();
}
