// Windows has no input box, so this one is made with the toolkit.
#include "toolkit/control.h"
#include "toolkit/dialogs.h"

namespace desktop {
namespace {

struct InputBox : toolkit::Window {
    InputBox() : Window({.width = 260, .height = 94, .dialog = true}) {
        cmdOK.OnClick = [this] {
            answer = txtLine.Text();
            Hide();
        };
        cmdCancel.OnClick = [this] { Hide(); };
        OnCloseRequest = [this] { Hide(); };
    }

    toolkit::Label lblPrompt{*this, {.place = {7, 7, 246, 40}}};
    toolkit::TextBox txtLine{*this, {.place = {7, 51, 246, 14}, .tab = 0, .label = &lblPrompt}};
    // clang-format off
    toolkit::Button cmdOK{*this, {
        .caption = "OK", .place = {147, 73, 50, 14}, .tab = 1, .flags = toolkit::Default}};
    toolkit::Button cmdCancel{*this, {
        .caption = "Cancel", .place = {203, 73, 50, 14}, .tab = 2, .flags = toolkit::Cancel}};
    // clang-format on
    std::string answer;
};

}  // namespace

std::string AskForText(const std::string& prompt, const std::string& title,
                       const std::string& preset) {
    InputBox box;
    box.Load();
    box.SetCaption(title);
    box.lblPrompt.SetCaption(prompt);
    box.txtLine.SetText(preset);
    box.ShowModal();
    box.Unload();
    return box.answer;
}

}  // namespace desktop
