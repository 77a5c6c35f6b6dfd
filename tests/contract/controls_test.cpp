// The contract of every back end: the same cases run on each of them. A change made by code runs
// the handler once and is shown; so is what a user does.
#include <gtest/gtest.h>

#include "contract/form.h"
#include "driver.h"
#include "toolkit/desktop.h"

namespace {

/// What the screen shows of a control: its text, or its rows separated by spaces. What is selected
/// or checked is in brackets.
std::string Shown(const toolkit::Control& control) {
    const driver::Look look = driver::LookAt(control);
    std::string rows;
    int row = 0;
    for (const std::string& item : look.items) {
        rows += row++ == look.index ? " [" + item + ']' : ' ' + item;
    }
    const std::string text = look.checked ? '[' + look.text + ']' : look.text;
    return rows.empty() ? text : rows.substr(1);
}

class Controls : public testing::Test {
  protected:
    struct Step {
        const char* what;
        std::function<void()> act;
        const char* shown;
        int events;
    };

    Controls() {
        ShowForm();
        const auto count = [this] { ++events; };
        form.cmbFixed.OnClick = form.cmbFree.OnClick = form.lstRows.OnClick = count;
        form.chkBox.OnClick = form.txtName.OnChange = count;
        form.lvwRows.OnDoubleClick = [this] { events += form.lvwRows.SelectedRow(); };
        form.lblLink.OnClick = [this] { pressed += "link "; };
        form.cmdYes.OnClick = [this] { pressed += "yes "; };
        form.cmdNo.OnClick = [this] { pressed += "no "; };
    }
    void TearDown() override {
        dialog.Unload();
        form.Unload();
        desktop::DoEvents();
    }

    void ShowForm() {
        form.Load();
        form.Show();
        desktop::DoEvents();
    }

    /// Takes the steps, and checks after each what the control shows and how many events came.
    void Take(const toolkit::Control& control, const std::vector<Step>& steps) {
        SCOPED_TRACE("control " + std::to_string(control.Index()));
        for (const Step& step : steps) {
            step.act();
            EXPECT_EQ(Shown(control), step.shown) << step.what;
            EXPECT_EQ(std::exchange(events, 0), step.events) << step.what;
        }
    }

    Form form;
    Dialog dialog;
    int events = 0;
    std::string pressed;
};

TEST_F(Controls, ShowWhatWasDeclaredOrChangedBeforeAndAfterShowing) {
    const std::pair<toolkit::Control*, const char*> rows[] = {
        {&form.lblRows, "Files & more"}, {&form.lblLink, "R&D"}, {&form.chkBox, "Box"},
        {&form.cmdYes, "Yes & more"},    {&form.txtName, ""},    {&form.cmbFixed, ""}};
    for (const bool isShown : {true, false}) {
        EXPECT_EQ(driver::ShownCaption(form), isShown ? "Form" : "");
        form.lblRows.SetCaption("Title & it");
        form.SetCaption("Another form");
        form.cmdYes.SetEnabled(false);
        form.cmdNo.SetVisible(false);
        form.txtName.SetText("text");
        form.chkBox.SetChecked(true);
        ShowForm();
        EXPECT_EQ(Shown(form.lblRows), "Title & it");
        EXPECT_EQ(driver::ShownCaption(form), "Another form");
        EXPECT_FALSE(driver::LookAt(form.cmdYes).enabled);
        EXPECT_FALSE(driver::LookAt(form.cmdNo).visible);
        driver::Click(form.cmdYes);
        EXPECT_EQ(pressed, "") << "a disabled button cannot be pressed";
        form.Unload();
        form.Load();
        for (const auto& [control, shown] : rows) {
            EXPECT_EQ(Shown(*control), shown) << "as declared after loading again";
        }
    }
    ShowForm();
    EXPECT_EQ(driver::Focused(form), &form.txtName);
    driver::Click(form.cmdYes);
    driver::Click(form.lblLink);
    EXPECT_EQ(pressed, "yes link ");
}

TEST_F(Controls, ListsSelectAndForget) {
    for (auto* list :
         std::vector<toolkit::ItemControl*>{&form.cmbFixed, &form.cmbFree, &form.lstRows}) {
        for (const char* text : {"a", "b", "c", "d"}) {
            list->AddItem(text);
        }
        const std::vector<Step> steps = {
            {"adding selects nothing", [] {}, "a b c d", 0},
            {"a row", [=] { list->SetListIndex(1); }, "a [b] c d", 1},
            {"the old value again", [=] { list->SetListIndex(1); }, "a [b] c d", 0},
            {"the selection stays on its text", [=] { list->RemoveItem(0); }, "[b] c d", 0},
            {"an index past the end", [=] { list->SetListIndex(3); }, "b c d", 0},
            {"the user's choice", [=] { driver::Choose(*list, 1); }, "b [c] d", 1},
            {"no selection is a value too", [=] { list->SetListIndex(-1); }, "b c d", 1},
            {"the last row", [=] { list->SetListIndex(2); }, "b c [d]", 1},
            {"the selected row is removed", [=] { list->RemoveItem(2); }, "b c", 0},
            {"a row", [=] { list->SetListIndex(0); }, "[b] c", 1},
            {"all rows are removed", [=] { list->Clear(); }, "", 0},
        };
        Take(*list, steps);
        EXPECT_EQ(list->ListIndex(), -1);
    }
}

TEST_F(Controls, ListViewsCountFromOne) {
    toolkit::ListView& list = form.lvwRows;
    list.AddRow("first", "x");
    const std::vector<Step> steps = {
        {"adding", [&] { list.AddRow("second", "y"); }, "first|x second|y", 0},
        {"a row", [&] { list.SelectRow(2); }, "first|x [second|y]", 0},
        {"a row past the end", [&] { list.SelectRow(3); }, "first|x second|y", 0},
        {"the user's choice", [&] { driver::Choose(list, 1); }, "[first|x] second|y", 0},
        {"a double click", [&] { driver::DoubleClick(list, 2); }, "first|x [second|y]", 2},
        {"all rows are removed", [&] { list.Clear(); }, "", 0},
    };
    Take(list, steps);
    EXPECT_EQ(list.SelectedRow(), -1);
}

TEST_F(Controls, BoxesAndTextsReportEachChangeOnce) {
    const std::vector<Step> checks = {
        {"checked", [&] { form.chkBox.SetChecked(true); }, "[Box]", 1},
        {"checked again", [&] { form.chkBox.SetChecked(true); }, "[Box]", 0},
        {"clicked", [&] { driver::Click(form.chkBox); }, "Box", 1},
    };
    Take(form.chkBox, checks);
    const std::vector<Step> texts = {
        {"set", [&] { form.txtName.SetText("one"); }, "one", 1},
        {"set again", [&] { form.txtName.SetText("one"); }, "one", 0},
    };
    Take(form.txtName, texts);
    driver::Type(form.txtName, "two");
    EXPECT_GE(events, 1);
    EXPECT_EQ(form.txtName.Text(), "two");
}

TEST_F(Controls, AnEditFieldHasATextBesideItsList) {
    toolkit::ComboBox& combo = form.cmbFree;
    const auto expect = [&](const char* text, int index) {
        EXPECT_EQ(combo.Text(), text);
        EXPECT_EQ(driver::ShownText(combo), text);
        EXPECT_EQ(combo.ListIndex(), index);
    };
    combo.AddItem("MAP01");
    combo.AddItem("MAP02");
    combo.SetListIndex(1);
    expect("MAP02", 1);
    events = 0;
    for (const char* typed : {"E1M1", "MAP01"}) {
        driver::Type(combo, typed);
        form.txtName.SetFocus();
        expect(typed, -1);
    }
    combo.SetText("MAP02");
    expect("MAP02", -1);
    combo.SetListIndex(7);
    expect("MAP02", -1);
    EXPECT_EQ(events, 0) << "neither typing nor a text selects, nor leaving the field";
    driver::Choose(combo, 0);
    expect("MAP01", 0);
    EXPECT_EQ(events, 1);
    combo.Clear();
    expect("", -1);
}

TEST_F(Controls, KeysReachTheirControls) {
    form.lstRows.AddItem("a");
    form.lstRows.SetListIndex(0);
    form.cmbFixed.AddItem("a");
    form.lvwRows.AddRow("a", "b");
    for (const toolkit::Control* control : std::initializer_list<toolkit::Control*>{
             &form.txtName, &form.cmbFree, &form.cmbFixed, &form.chkBox, &form.lstRows,
             &form.lvwRows, &form.cmdYes}) {
        EXPECT_EQ(driver::Focused(form), control) << control->Index();
        driver::Press(form, driver::Key::Enter);
        driver::Press(form, driver::Key::Escape);
        EXPECT_EQ(std::exchange(pressed, ""), "yes no ") << control->Index();
        driver::Press(form, driver::Key::Tab);
    }
    driver::Press(form, driver::Key::Enter);
    EXPECT_EQ(pressed, "no ") << "Enter presses the button that has the focus";
    form.txtName.SetFocus();
    EXPECT_EQ(driver::Focused(form), &form.txtName);
}

TEST_F(Controls, ThePointerIsReportedWhereAsked) {
    std::string seen;
    form.OnTip = [&](std::string_view) { seen = "window"; };
    form.cmdYes.OnPointerMoved = [&](double, double) { seen = "yes"; };
    driver::PointAt(form.cmdYes);
    driver::PointAt(form.cmbFixed);
    EXPECT_EQ(seen, "yes") << "neither a control without a handler nor its window reports it";
    driver::PointAt(form);
    EXPECT_EQ(seen, "window");

    toolkit::ListBox& list = form.lstRows;
    for (const char* text : {"a", "b", "c"}) {
        list.AddItem(text);
    }
    const auto rowAt = [&](double x, double y) {
        return desktop::ItemFromPoint(list, static_cast<int>(x), static_cast<int>(y));
    };
    std::uint32_t row = 0;
    list.OnPointerMoved = [&](double x, double y) { row = rowAt(x, y); };
    driver::PointAt(list, 1);
    EXPECT_EQ(row, 1U);
    auto released = toolkit::MouseButton::Left;
    list.OnButtonReleased = [&](toolkit::MouseButton button, double x, double y) {
        released = button;
        row = rowAt(x, y);
    };
    driver::RightClick(list, 2);
    EXPECT_EQ(released, toolkit::MouseButton::Right);
    EXPECT_EQ(row, 2U);
    EXPECT_EQ(list.ListIndex(), -1) << "a right click alone selects nothing";
    EXPECT_GE(rowAt(2, 5000), 3U);
    EXPECT_GE(rowAt(-5, 5), 3U);
    list.OnDoubleClick = [&] { pressed = Shown(list); };
    driver::Choose(list, 0);
    driver::Choose(list, 0);
    EXPECT_EQ(events, 2) << "a further click on a row is a choice too";
    driver::DoubleClick(list, 1);
    EXPECT_EQ(pressed, "a [b] c");
}

TEST_F(Controls, ModalWindowsComeAndGo) {
    dialog.Load();
    dialog.OnShowModal = [&] { pressed = "shown "; };
    dialog.OnCloseRequest = [&] { dialog.Hide(); };
    dialog.cmdOK.OnClick = [&] { dialog.Hide(); };
    form.cmbFixed.SetFocus();
    const std::function<void()> ways[] = {[&] { driver::Click(dialog.cmdOK); },
                                          [&] { driver::Close(dialog); },
                                          [&] { driver::Press(dialog, driver::Key::Enter); },
                                          [&] { driver::Press(dialog, driver::Key::Escape); }};
    for (const auto& leave : ways) {
        driver::InNextModal([&] {
            pressed += driver::ShownCaption(dialog);
            leave();
        });
        dialog.ShowModal();
        EXPECT_EQ(pressed, "shown Dialog");
        EXPECT_EQ(driver::ShownCaption(dialog), "");
        EXPECT_EQ(driver::Focused(form), &form.cmbFixed) << "the opener has the focus again";
    }
    form.OnCloseRequest = [&] { pressed = "asked"; };
    driver::Close(form);
    EXPECT_EQ(pressed, "asked");
    EXPECT_EQ(driver::ShownCaption(form), "Form") << "a close request closes nothing by itself";
}

TEST_F(Controls, MenusRunTheChosenItem) {
    toolkit::PopupMenu menu("Menu");
    toolkit::MenuItem first(menu, "First");
    toolkit::MenuItem second(menu, "Second");
    std::string chosen;
    first.OnClick = [&] { chosen += "first "; };
    second.OnClick = [&] { chosen += "second "; };
    for (const int row : {1, -1, 0, 0}) {
        driver::AtNextMenu(row);
        menu.PopUp(form);
        first.SetEnabled(row != 0);
    }
    EXPECT_EQ(chosen, "second first ");
}

}  // namespace
