#include "setup/engine_settings.h"

#include "launch/command_line.h"

namespace {

using toolkit::ControlSpec;
using toolkit::Place;

constexpr int BoxesInColumn = OptionCount / 2;
constexpr const char* BoxNames[OptionCount] = {
    "chkOptions0",  "chkOptions1",  "chkOptions2",  "chkOptions3",  "chkOptions4",  "chkOptions5",
    "chkOptions6",  "chkOptions7",  "chkOptions8",  "chkOptions9",  "chkOptions10", "chkOptions11",
    "chkOptions12", "chkOptions13", "chkOptions14", "chkOptions15",
};

/// Two columns of boxes, each from top to bottom, and the controls around them.
constexpr auto MakeRows() {
    constexpr std::size_t OtherRows = 4;
    // clang-format off
    std::array<ControlSpec, OptionCount + OtherRows> rows{{
        {.name = "Frame1", .caption = "Options", .place = {9, 8, 340, 122}, .tab = 18},
        {.name = "lblParametersCaption", .caption = "Command line parameters",
         .place = {9, 137, 340, 9}, .tab = 19, .names = "lblParameters"},
        {.name = "lblParameters", .place = {9, 148, 340, 34}, .tab = 16,
         .flags = toolkit::Sunken},
        {.name = "cmdAccept", .caption = "Accept", .place = {299, 190, 50, 14}, .tab = 17,
         .flags = toolkit::Default},
    }};
    // clang-format on
    for (int i = 0; i < OptionCount; ++i) {
        const Place place{19 + i / BoxesInColumn * 164, 22 + i % BoxesInColumn * 13, 158, 10};
        rows.at(static_cast<std::size_t>(i) + OtherRows) = {
            .name = BoxNames[i], .place = place, .tab = i};
    }
    return rows;
}

constexpr auto Rows = MakeRows();
constexpr toolkit::WindowSpec WindowRow = {.name = "frmEngineSettings",
                                           .caption = "Engine settings",
                                           .width = 358,
                                           .height = 213,
                                           .dialog = true,
                                           .rows = Rows};

}  // namespace

EngineSettingsWindow frmEngineSettings;

EngineSettingsWindow::EngineSettingsWindow() : Window(WindowRow) {
    for (std::size_t i = 0; i < chkOptions.size(); ++i) {
        chkOptions[i] = std::make_unique<toolkit::CheckBox>(*this, BoxNames[i]);
        chkOptions[i]->OnClick = [this, i] { OptionClicked(i); };
    }
    cmdAccept.OnClick = [this] { Hide(); };
    OnCloseRequest = [this] { Hide(); };
}

void EngineSettingsWindow::PassEngine(int EngineNum) {
    engineNum_ = EngineNum;
    SetCaption("Engine settings of " + EngineAt(EngineNum).realname);
    ShowEngineOptions();
    lblParameters.SetCaption(EngineParameterString(EngineNum));
}

void EngineSettingsWindow::ShowEngineOptions() {
    const EngineRecord& engine = EngineAt(engineNum_);
    for (std::size_t i = 0; i < chkOptions.size(); ++i) {
        const bool isThere = i < engine.parameters.size();
        chkOptions[i]->SetVisible(isThere);
        if (isThere) {
            chkOptions[i]->SetCaption(engine.parameters[i].caption);
            chkOptions[i]->SetChecked(engine.options[i]);
        }
    }
}

void EngineSettingsWindow::OptionClicked(std::size_t index) {
    EngineAt(engineNum_).options[index] = chkOptions[index]->Checked();
    lblParameters.SetCaption(EngineParameterString(engineNum_));
}
