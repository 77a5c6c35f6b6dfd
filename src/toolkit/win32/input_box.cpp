// Windows has no box that asks for a line: this is a window like the others.
#include "toolkit/control.h"
#include "toolkit/dialogs.h"

namespace desktop {
namespace {

constexpr toolkit::ControlSpec rows[] = {
    {.name = "lblPrompt", .caption = "", .place = {7, 7, 246, 40}, .names = "txtLine"},
    {.name = "txtLine", .caption = "", .place = {7, 51, 246, 14}, .tab = 0},
    {.name = "cmdOK",
     .caption = "OK",
     .place = {147, 73, 50, 14},
     .tab = 1,
     .flags = toolkit::Default},
    {.name = "cmdCancel",
     .caption = "Cancel",
     .place = {203, 73, 50, 14},
     .tab = 2,
     .flags = toolkit::Cancel},
};

constexpr toolkit::WindowSpec table = {
    .name = "InputBox", .caption = "", .width = 260, .height = 94, .dialog = true, .rows = rows};

struct InputBox : toolkit::Window {
    InputBox() : Window(table) {
        cmdOK.OnClick = [this] {
            answer = txtLine.Text();
            Hide();
        };
        cmdCancel.OnClick = [this] { Hide(); };
        OnCloseRequest = [this] { Hide(); };
    }

    toolkit::Label lblPrompt{*this, "lblPrompt"};
    toolkit::TextBox txtLine{*this, "txtLine"};
    toolkit::Button cmdOK{*this, "cmdOK"};
    toolkit::Button cmdCancel{*this, "cmdCancel"};
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
