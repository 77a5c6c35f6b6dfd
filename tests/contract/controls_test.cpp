// What every back end owes the controls: the same cases run on each of them. A change made by code
// runs the handler once and shows; what a person does arrives and shows.
#include <gtest/gtest.h>

#include "driver.h"
#include "platform/desktop.h"

namespace {

using toolkit::WindowTable;

// clang-format off
constexpr toolkit::ControlRow Rows[] = {
    {.name = "framAll", .caption = "All", .place = {4, 4, 292, 192}},
    {.name = "lblName", .caption = "Name", .place = {10, 16, 40, 12}, .names = "txtName"},
    {.name = "txtName", .place = {60, 16, 100, 14}, .tab = 0},
    {.name = "cmbFixed", .place = {60, 36, 100, 14}, .tab = 2},
    {.name = "cmbFree", .place = {60, 56, 100, 14}, .tab = 1},
    {.name = "chkBox", .caption = "Box", .place = {180, 16, 60, 12}, .tab = 3},
    {.name = "lstRows", .place = {10, 80, 120, 60}, .tab = 4},
    {.name = "lvwRows", .caption = "Name|File", .place = {140, 80, 150, 60}, .tab = 5},
    {.name = "cmdYes", .caption = "Yes", .place = {10, 160, 50, 14}, .tab = 6,
     .flags = toolkit::Default},
    {.name = "cmdNo", .caption = "No", .place = {70, 160, 50, 14}, .tab = 7,
     .flags = toolkit::Cancel},
};
constexpr WindowTable FormRow = {
    .name = "frmForm", .caption = "Form", .width = 300, .height = 200, .rows = Rows};

constexpr toolkit::ControlRow DialogRows[] = {
    {.name = "cmdOK", .caption = "OK", .place = {10, 10, 50, 14}, .tab = 0,
     .flags = toolkit::Default},
};
constexpr WindowTable DialogRow = {.name = "frmDialog", .caption = "Dialog", .width = 100,
                                   .height = 40, .dialog = true, .rows = DialogRows};
// clang-format on

struct Form : toolkit::Window {
    Form() : Window(FormRow) {}
    toolkit::Frame framAll{*this, "framAll"};
    toolkit::Label lblName{*this, "lblName"};
    toolkit::TextBox txtName{*this, "txtName"};
    toolkit::DropDownList cmbFixed{*this, "cmbFixed"};
    toolkit::ComboBox cmbFree{*this, "cmbFree"};
    toolkit::CheckBox chkBox{*this, "chkBox"};
    toolkit::ListBox lstRows{*this, "lstRows"};
    toolkit::ListView lvwRows{*this, "lvwRows"};
    toolkit::Button cmdYes{*this, "cmdYes"};
    toolkit::Button cmdNo{*this, "cmdNo"};
};

struct Dialog : toolkit::Window {
    Dialog() : Window(DialogRow) {}
    toolkit::Button cmdOK{*this, "cmdOK"};
};

using Texts = std::vector<std::string>;

class Controls : public testing::Test {
  protected:
    Controls() {
        form.Load();
        form.Show();
        platform::DoEvents();
        const auto count = [this] { ++events; };
        form.cmbFixed.OnClick = form.cmbFree.OnClick = form.lstRows.OnClick = count;
        form.chkBox.OnClick = form.txtName.OnChange = count;
        form.cmdYes.OnClick = [this] { pressed += "yes "; };
        form.cmdNo.OnClick = [this] { pressed += "no "; };
    }
    ~Controls() override {
        dialog.Unload();
        form.Unload();
        platform::DoEvents();
    }

    /// The events since the last call.
    int Events() { return std::exchange(events, 0); }

    Form form;
    Dialog dialog;
    int events = 0;
    std::string pressed;
};

TEST_F(Controls, ComeUpAsTheirTableSays) {
    EXPECT_TRUE(driver::ShownWindow(form));
    EXPECT_EQ(driver::ShownCaption(form), "Form");
    EXPECT_EQ(driver::ShownText(form.cmdYes), "Yes");
    EXPECT_EQ(driver::ShownText(form.lblName), "Name");
    EXPECT_EQ(driver::ShownText(form.txtName), "");
    EXPECT_FALSE(driver::ShownChecked(form.chkBox));
    EXPECT_EQ(driver::ShownIndex(form.cmbFixed), -1);
    EXPECT_EQ(driver::ShownIndex(form.lstRows), -1);
    EXPECT_EQ(driver::ShownIndex(form.lvwRows), -1);
    EXPECT_TRUE(driver::ShownEnabled(form.cmdYes) && driver::ShownVisible(form.cmdYes));
    EXPECT_EQ(driver::Focused(form), "txtName");
}

TEST_F(Controls, ListsSelectAndForget) {
    for (toolkit::ItemControl* list : {static_cast<toolkit::ItemControl*>(&form.cmbFixed),
                                       static_cast<toolkit::ItemControl*>(&form.cmbFree),
                                       static_cast<toolkit::ItemControl*>(&form.lstRows)}) {
        SCOPED_TRACE(list->Row().name);
        list->AddItem("a");
        list->AddItem("b");
        list->AddItem("c");
        EXPECT_EQ(driver::ShownItems(*list), (Texts{"a", "b", "c"}));
        EXPECT_EQ(driver::ShownIndex(*list), -1) << "adding selects nothing";
        list->SetListIndex(1);
        EXPECT_EQ(Events(), 1);
        EXPECT_EQ(driver::ShownIndex(*list), 1);
        list->SetListIndex(1);
        EXPECT_EQ(Events(), 0) << "the old value again";
        list->RemoveItem(0);
        EXPECT_EQ(driver::ShownItems(*list), (Texts{"b", "c"}));
        EXPECT_EQ(driver::ShownIndex(*list), 0) << "the selection stays on its text";
        list->SetListIndex(2);
        EXPECT_EQ(Events(), 0) << "an index past the end";
        EXPECT_EQ(list->ListIndex(), -1);
        EXPECT_EQ(driver::ShownIndex(*list), -1);
        driver::Choose(*list, 1);
        EXPECT_EQ(Events(), 1);
        EXPECT_EQ(list->ListIndex(), 1);
        EXPECT_EQ(driver::ShownIndex(*list), 1);
        list->SetListIndex(-1);
        EXPECT_EQ(Events(), 1) << "no selection is a value too";
        list->SetListIndex(0);
        list->Clear();
        EXPECT_EQ(Events(), 1);
        EXPECT_EQ(list->ListIndex(), -1);
        EXPECT_TRUE(driver::ShownItems(*list).empty());
    }
}

TEST_F(Controls, AnEditFieldHasATextBesideItsList) {
    form.cmbFree.AddItem("MAP01");
    form.cmbFree.AddItem("MAP02");
    form.cmbFree.SetListIndex(1);
    EXPECT_EQ(driver::ShownText(form.cmbFree), "MAP02");
    Events();
    driver::Type(form.cmbFree, "E1M1");
    EXPECT_EQ(form.cmbFree.Text(), "E1M1");
    EXPECT_EQ(form.cmbFree.ListIndex(), -1);
    form.cmbFree.SetText("MAP01");
    EXPECT_EQ(driver::ShownText(form.cmbFree), "MAP01");
    EXPECT_EQ(form.cmbFree.ListIndex(), -1);
    EXPECT_EQ(Events(), 0) << "neither typing nor a text selects";
    form.cmbFree.SetListIndex(7);
    EXPECT_EQ(driver::ShownText(form.cmbFree), "MAP01") << "nothing was lost";
    driver::Choose(form.cmbFree, 0);
    EXPECT_EQ(form.cmbFree.Text(), "MAP01");
    EXPECT_EQ(Events(), 1);
    form.cmbFree.Clear();
    EXPECT_EQ(driver::ShownText(form.cmbFree), "");
}

TEST_F(Controls, BoxesAndTextsTellEachChangeOnce) {
    form.chkBox.SetChecked(true);
    form.chkBox.SetChecked(true);
    EXPECT_EQ(Events(), 1);
    EXPECT_TRUE(driver::ShownChecked(form.chkBox));
    driver::Click(form.chkBox);
    EXPECT_EQ(Events(), 1);
    EXPECT_FALSE(form.chkBox.Checked());
    EXPECT_FALSE(driver::ShownChecked(form.chkBox));
    form.txtName.SetText("one");
    form.txtName.SetText("one");
    EXPECT_EQ(Events(), 1);
    EXPECT_EQ(driver::ShownText(form.txtName), "one");
    driver::Type(form.txtName, "two");
    EXPECT_GE(Events(), 1);
    EXPECT_EQ(form.txtName.Text(), "two");
}

TEST_F(Controls, ListViewsCountFromOne) {
    form.lvwRows.AddRow("first", "x");
    form.lvwRows.AddRow("second", "y");
    EXPECT_EQ(driver::ShownItems(form.lvwRows), (Texts{"first|x", "second|y"}));
    EXPECT_EQ(driver::ShownIndex(form.lvwRows), -1);
    form.lvwRows.SelectRow(2);
    EXPECT_EQ(driver::ShownIndex(form.lvwRows), 2);
    form.lvwRows.SelectRow(3);
    EXPECT_EQ(driver::ShownIndex(form.lvwRows), -1);
    int doubleClicks = 0;
    form.lvwRows.OnDoubleClick = [&] { doubleClicks += form.lvwRows.SelectedRow(); };
    driver::Choose(form.lvwRows, 1);
    EXPECT_EQ(form.lvwRows.SelectedRow(), 1);
    driver::DoubleClick(form.lvwRows, 2);
    EXPECT_EQ(doubleClicks, 2);
    form.lvwRows.Clear();
    EXPECT_TRUE(driver::ShownItems(form.lvwRows).empty());
    EXPECT_EQ(form.lvwRows.SelectedRow(), -1);
}

TEST_F(Controls, CaptionsEnabledAndVisibleFollow) {
    form.lblName.SetCaption("Title of it");
    form.SetCaption("Another form");
    form.cmdYes.SetEnabled(false);
    form.cmdNo.SetVisible(false);
    EXPECT_EQ(driver::ShownText(form.lblName), "Title of it");
    EXPECT_EQ(driver::ShownCaption(form), "Another form");
    EXPECT_FALSE(driver::ShownEnabled(form.cmdYes));
    EXPECT_FALSE(driver::ShownVisible(form.cmdNo));
    driver::Click(form.cmdYes);
    EXPECT_EQ(pressed, "") << "a disabled button cannot be pressed";
    form.cmdYes.SetEnabled(true);
    driver::Click(form.cmdYes);
    EXPECT_EQ(pressed, "yes ");
}

TEST_F(Controls, KeysReachTheirControls) {
    Texts order = {driver::Focused(form)};
    for (int i = 0; i < 7; ++i) {
        driver::PressTab(form);
        order.push_back(driver::Focused(form));
    }
    EXPECT_EQ(order, (Texts{"txtName", "cmbFree", "cmbFixed", "chkBox", "lstRows", "lvwRows",
                            "cmdYes", "cmdNo"}));
    form.txtName.SetFocus();
    EXPECT_EQ(driver::Focused(form), "txtName");
    driver::PressEnter(form);
    driver::PressEscape(form);
    EXPECT_EQ(pressed, "yes no ");
    form.cmdNo.SetFocus();
    driver::PressEnter(form);
    EXPECT_EQ(pressed, "yes no no ") << "Enter presses the button that has the focus";
}

TEST_F(Controls, ListBoxesTellThePointer) {
    for (const char* text : {"a", "b", "c"}) {
        form.lstRows.AddItem(text);
    }
    std::vector<std::uint32_t> rows;
    const auto hit = [&](double x, double y) {
        rows.push_back(
            platform::ItemFromPoint(form.lstRows, static_cast<int>(x), static_cast<int>(y)));
    };
    form.lstRows.OnPointerMoved = hit;
    form.lstRows.OnButtonReleased = [&](int button, double x, double y) {
        if (button == 2) {
            hit(x, y);
        }
    };
    form.lstRows.SetListIndex(0);
    driver::PointAt(form.lstRows, 1);
    driver::RightClick(form.lstRows, 2);
    ASSERT_GE(rows.size(), 2U);
    EXPECT_EQ(rows.front(), 1U);
    EXPECT_EQ(rows.back(), 2U);
    EXPECT_EQ(form.lstRows.ListIndex(), 0) << "a right click alone selects nothing";
    EXPECT_GE(platform::ItemFromPoint(form.lstRows, 2, 5000), 3U);
    EXPECT_GE(platform::ItemFromPoint(form.lstRows, -5, 5), 3U);
    int doubleClicks = 0;
    form.lstRows.OnDoubleClick = [&] { ++doubleClicks; };
    driver::DoubleClick(form.lstRows, 1);
    EXPECT_EQ(doubleClicks, 1);
    EXPECT_EQ(form.lstRows.ListIndex(), 1);
}

TEST_F(Controls, PointerOverTheBareWindowAndNothingElse) {
    std::string seen;
    form.OnPointerMoved = [&] { seen = "window"; };
    form.cmdYes.OnPointerMoved = [&](double, double) { seen = "yes"; };
    driver::PointAt(form.cmdYes);
    EXPECT_EQ(seen, "yes");
    driver::PointAt(form.cmbFixed);
    EXPECT_EQ(seen, "yes") << "a control without a handler tells nothing, nor does the window";
    driver::PointAt(form);
    EXPECT_EQ(seen, "window");
}

TEST_F(Controls, ModalWindowsComeAndGo) {
    dialog.Load();
    int shown = 0;
    dialog.OnShow = [&] { ++shown; };
    dialog.OnCloseRequest = [&] { dialog.Hide(); };
    dialog.cmdOK.OnClick = [&] { dialog.Hide(); };
    form.cmbFixed.SetFocus();
    const std::function<void()> ways[] = {
        [&] { driver::Click(dialog.cmdOK); }, [&] { driver::Close(dialog); },
        [&] { driver::PressEnter(dialog); }, [&] { driver::PressEscape(dialog); }};
    for (const auto& leave : ways) {
        bool wasShown = false;
        driver::InNextModal([&] {
            wasShown = driver::ShownWindow(dialog) && dialog.Visible();
            leave();
        });
        dialog.ShowModal();
        EXPECT_TRUE(wasShown);
        EXPECT_FALSE(driver::ShownWindow(dialog));
        EXPECT_EQ(driver::Focused(form), "cmbFixed") << "the opener has the focus again";
    }
    EXPECT_EQ(shown, 4);
    form.OnCloseRequest = [&] { pressed = "asked"; };
    driver::Close(form);
    EXPECT_EQ(pressed, "asked");
    EXPECT_TRUE(driver::ShownWindow(form)) << "a close request closes nothing by itself";
}

TEST_F(Controls, MenusRunTheChosenItem) {
    toolkit::PopupMenu menu("Menu");
    toolkit::MenuItem first(menu, "First");
    toolkit::MenuItem second(menu, "Second");
    std::string chosen;
    first.OnClick = [&] { chosen += "first "; };
    second.OnClick = [&] { chosen += "second "; };
    for (const int row : {1, -1, 0}) {
        driver::AtNextMenu(row);
        menu.PopUp(form);
    }
    EXPECT_EQ(chosen, "second first ");
    first.SetEnabled(false);
    driver::AtNextMenu(0);
    menu.PopUp(form);
    EXPECT_EQ(chosen, "second first ");
}

TEST_F(Controls, LoadingAgainTakesTheTablesState) {
    form.txtName.SetText("old");
    form.cmbFixed.AddItem("old");
    form.SetCaption("old");
    form.Unload();
    EXPECT_FALSE(form.Visible());
    form.Load();
    form.Show();
    platform::DoEvents();
    EXPECT_EQ(driver::ShownText(form.txtName), "");
    EXPECT_TRUE(driver::ShownItems(form.cmbFixed).empty());
    EXPECT_EQ(driver::ShownCaption(form), "Form");
}

}  // namespace
