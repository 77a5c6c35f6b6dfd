#include "setup/engine_settings.h"

#include <algorithm>
#include <string>
#include <utility>

#include "launch/command_line.h"
#include "text/ascii.h"

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

std::string Captions(const EngineRecord& engine) {
    std::string captions;
    for (const EngineParameter& parameter : engine.parameters) {
        captions += UpperCase(parameter.caption);
    }
    return captions;
}

/// Returns the letter of a caption that is the rarest in `captions`, so that later captions find
/// one too, without those in `used`. Adds it to `used`. Returns 0 if there is none.
char RareLetter(const std::string& caption, const std::string& captions, std::string& used) {
    char rarest = '\0';
    for (const char c : UpperCase(caption)) {
        const bool isFree = c >= 'A' && c <= 'Z' && used.find(c) == used.npos;
        if (isFree && (rarest == '\0' ||
                       std::ranges::count(captions, c) < std::ranges::count(captions, rarest))) {
            rarest = c;
        }
    }
    used += rarest;
    return rarest;
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

void EngineSettingsWindow::ShowEngine(int engineNum) {
    engineNum_ = engineNum;
    SetCaption("Engine settings of " + EngineAt(engineNum).realname);
    ShowEngineOptions();
    lblParameters.SetCaption(EngineParameterString(engineNum));
}

void EngineSettingsWindow::ShowEngineOptions() {
    const EngineRecord& engine = EngineAt(engineNum_);
    const std::string captions = Captions(engine);
    std::string usedLetters(1, cmdAccept.Access());
    for (std::size_t i = 0; i < chkOptions.size(); ++i) {
        const bool exists = i < engine.parameters.size();
        chkOptions[i].SetVisible(exists);
        if (exists) {
            const std::string& caption = engine.parameters[i].caption;
            chkOptions[i].SetCaption(caption);
            chkOptions[i].SetAccess(RareLetter(caption, captions, usedLetters));
            chkOptions[i].SetChecked(engine.options[i]);
        }
    }
}

void EngineSettingsWindow::OptionClicked(std::size_t index) {
    EngineAt(engineNum_).options[index] = chkOptions[index].Checked();
    lblParameters.SetCaption(EngineParameterString(engineNum_));
}
