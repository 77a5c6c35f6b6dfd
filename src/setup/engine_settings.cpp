#include "setup/engine_settings.h"

#include <utility>

#include "launch/command_line.h"

namespace {

using Boxes = std::array<toolkit::CheckBox, OptionCount>;

/// Two columns of boxes, each from top to bottom.
template <int... Index>
Boxes MakeBoxes(toolkit::Window& window, std::integer_sequence<int, Index...>) {
    constexpr int RowsPerColumn = OptionCount / 2;
    return {toolkit::CheckBox(window, {.place = {19 + Index / RowsPerColumn * 164,
                                                 22 + Index % RowsPerColumn * 13, 158, 10},
                                       .tab = Index})...};
}

}  // namespace

EngineSettingsWindow frmEngineSettings;

EngineSettingsWindow::EngineSettingsWindow()
    : Window({.caption = "Engine settings", .width = 358, .height = 213, .dialog = true}),
      chkOptions(MakeBoxes(*this, std::make_integer_sequence<int, OptionCount>())) {
    for (std::size_t i = 0; i < chkOptions.size(); ++i) {
        chkOptions[i].OnClick = [this, i] { OptionClicked(i); };
    }
    cmdAccept.OnClick = [this] { Hide(); };
    OnCloseRequest = [this] { Hide(); };
}

void EngineSettingsWindow::PassEngine(int engineNum) {
    engineNum_ = engineNum;
    SetCaption("Engine settings of " + EngineAt(engineNum).realname);
    ShowEngineOptions();
    lblParameters.SetCaption(EngineParameterString(engineNum));
}

void EngineSettingsWindow::ShowEngineOptions() {
    const EngineRecord& engine = EngineAt(engineNum_);
    for (std::size_t i = 0; i < chkOptions.size(); ++i) {
        const bool exists = i < engine.parameters.size();
        chkOptions[i].SetVisible(exists);
        if (exists) {
            chkOptions[i].SetCaption(engine.parameters[i].caption);
            chkOptions[i].SetChecked(engine.options[i]);
        }
    }
}

void EngineSettingsWindow::OptionClicked(std::size_t index) {
    EngineAt(engineNum_).options[index] = chkOptions[index].Checked();
    lblParameters.SetCaption(EngineParameterString(engineNum_));
}
