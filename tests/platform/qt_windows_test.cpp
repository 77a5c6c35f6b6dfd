// What only the Qt windows have to keep: how texts look, names for screen readers, keys.
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "driver.h"
#include "platform/qt/native_window.h"
#include "platform/qt/text.h"

namespace {

TEST(Text, IsUtf8OrElseWindows1252) {
    const struct {
        const char* bytes;
        const char16_t* shown;
    } cases[] = {
        {"plain", u"plain"},
        {"d\xC3\xB6\xC3\xB6m", u"d\u00F6\u00F6m"},
        {"caf\xE9 \x80 \x93x\x94", u"caf\u00E9 \u20AC \u201Cx\u201D"},
        {"\xC3", u"\u00C3"},
        {"Save Z:\\home\\u\\x.lmp", u"Save /home/u/x.lmp"},
    };
    for (const auto& [bytes, shown] : cases) {
        EXPECT_EQ(platform::qt::Shown(bytes).toStdU16String(), shown) << bytes;
    }
}

// clang-format off
constexpr toolkit::ControlRow Rows[] = {
    {.name = "lblLink", .caption = "R&D", .place = {4, 4, 60, 8}, .flags = toolkit::Link},
    {.name = "lblList", .caption = "Files & more", .place = {4, 14, 60, 8}, .names = "lstMany"},
    {.name = "lstMany", .place = {4, 24, 100, 60}, .tab = 0},
    {.name = "txtFile", .place = {4, 90, 100, 14}, .tab = 1, .flags = toolkit::IsPath},
    {.name = "txtFree", .place = {4, 110, 100, 14}, .tab = 2},
    {.name = "cmbFree", .place = {110, 4, 60, 14}, .tab = 4},
    {.name = "cmbFixed", .place = {110, 24, 60, 14}, .tab = 5},
    {.name = "lvwTwo", .caption = "A|B", .place = {110, 44, 60, 40}, .tab = 6},
    {.name = "chkBox", .caption = "Box", .place = {110, 90, 60, 10}, .tab = 7},
    {.name = "cmdOK", .caption = "OK", .place = {110, 110, 40, 14}, .tab = 8,
     .flags = toolkit::Default},
    {.name = "cmdStop", .caption = "Stop", .place = {110, 130, 40, 14}, .tab = 9,
     .flags = toolkit::Cancel},
    {.name = "cmdFind", .place = {4, 130, 20, 14}, .tab = 3, .picture = "map", .spoken = "Find"},
};
constexpr toolkit::WindowTable FormTable = {
    .name = "frmTest", .caption = "Test", .width = 180, .height = 160, .rows = Rows};
// clang-format on

struct Form : toolkit::Window {
    Form() : Window(FormTable) { Load(); }
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form() { Unload(); }
    QWidget& WidgetOf(const toolkit::Control& control) {
        return platform::qt::MakeNative(*this)->Find(control).Widget();
    }
    toolkit::Label lblLink{*this, "lblLink"};
    toolkit::Label lblList{*this, "lblList"};
    toolkit::ListBox lstMany{*this, "lstMany"};
    toolkit::TextBox txtFile{*this, "txtFile"};
    toolkit::TextBox txtFree{*this, "txtFree"};
    toolkit::ComboBox cmbFree{*this, "cmbFree"};
    toolkit::DropDownList cmbFixed{*this, "cmbFixed"};
    toolkit::ListView lvwTwo{*this, "lvwTwo"};
    toolkit::CheckBox chkBox{*this, "chkBox"};
    toolkit::Button cmdOK{*this, "cmdOK"};
    toolkit::Button cmdStop{*this, "cmdStop"};
    toolkit::Button cmdFind{*this, "cmdFind"};
};

TEST(QtWindow, IsMadeAtItsFirstShowing) {
    Form form;
    EXPECT_EQ(platform::qt::NativeOf(&form), nullptr);
    form.txtFree.SetText("before");
    form.cmdFind.SetEnabled(false);
    form.txtFree.SetFocus();
    form.Show();
    EXPECT_EQ(driver::ShownText(form.txtFree), "before");
    EXPECT_FALSE(driver::ShownEnabled(form.cmdFind));
    EXPECT_EQ(driver::Focused(form), "txtFree");
}

TEST(QtWindow, ShowsPathsOnlyWherePathsStand) {
    Form form;
    form.Show();
    form.txtFile.SetText("Z:\\caf\xE9\\x.lmp");
    form.txtFree.SetText("-file Z:\\a");
    form.lstMany.AddItem("Z:\\a & b.wad");
    EXPECT_EQ(driver::ShownText(form.txtFile), "/caf\xC3\xA9/x.lmp");
    EXPECT_EQ(driver::ShownText(form.txtFree), "-file Z:\\a");
    EXPECT_EQ(driver::ShownItems(form.lstMany).front(), "/a & b.wad");
    EXPECT_EQ(form.txtFile.Text(), "Z:\\caf\xE9\\x.lmp") << "the exact text stays";
    form.lstMany.SetToolTip("Z:\\<b>x</b>.wad");
    EXPECT_TRUE(form.WidgetOf(form.lstMany).toolTip().contains(QStringLiteral("&lt;b&gt;")))
        << "a name is no mark-up";
}

TEST(QtWindow, TellsAScreenReaderTheNames) {
    Form form;
    form.Show();
    EXPECT_EQ(form.WidgetOf(form.lstMany).accessibleName().toStdString(), "Files & more");
    EXPECT_EQ(form.WidgetOf(form.cmdFind).accessibleName().toStdString(), "Find");
    EXPECT_EQ(driver::ShownText(form.lblList), "Files & more");
    EXPECT_EQ(driver::ShownText(form.lblLink), "R&D");
    int clicks = 0;
    form.lblLink.OnClick = [&] { ++clicks; };
    driver::Click(form.lblLink);
    EXPECT_EQ(clicks, 1);
}

TEST(QtWindow, AFurtherClickOnARowIsAChoiceToo) {
    Form form;
    form.Show();
    form.lstMany.AddItem("a");
    form.lstMany.AddItem("b");
    std::string log;
    form.lstMany.OnClick = [&] { log += "chosen "; };
    form.lstMany.OnButtonReleased = [&](int button, double, double) {
        log += std::to_string(button) + " ";
    };
    driver::Choose(form.lstMany, 1);
    driver::Choose(form.lstMany, 1);
    driver::RightClick(form.lstMany, 0);
    EXPECT_EQ(log, "chosen 1 chosen 1 2 ");
    EXPECT_EQ(driver::ShownIndex(form.lstMany), 1);
    QTest::keyClick(&form.WidgetOf(form.lstMany), Qt::Key_Up);
    EXPECT_EQ(form.lstMany.ListIndex(), 0);
}

TEST(QtWindow, EnterAndEscapeReachTheirButtonsFromEverywhere) {
    Form form;
    form.Show();
    for (toolkit::ItemControl* list : {static_cast<toolkit::ItemControl*>(&form.lstMany),
                                       static_cast<toolkit::ItemControl*>(&form.cmbFree),
                                       static_cast<toolkit::ItemControl*>(&form.cmbFixed)}) {
        list->AddItem("a");
        list->SetListIndex(0);
    }
    form.lvwTwo.AddRow("a", "b");
    std::string pressed;
    form.cmdOK.OnClick = [&] { pressed += "ok "; };
    form.cmdStop.OnClick = [&] { pressed += "stop "; };
    for (toolkit::Control* control : {static_cast<toolkit::Control*>(&form.lstMany),
                                      static_cast<toolkit::Control*>(&form.txtFree),
                                      static_cast<toolkit::Control*>(&form.cmbFree),
                                      static_cast<toolkit::Control*>(&form.cmbFixed),
                                      static_cast<toolkit::Control*>(&form.lvwTwo),
                                      static_cast<toolkit::Control*>(&form.chkBox)}) {
        control->SetFocus();
        driver::PressEnter(form);
        driver::PressEscape(form);
        EXPECT_EQ(std::exchange(pressed, ""), "ok stop ") << control->Row().name;
    }
}

TEST(QtWindow, ATypedMapNameStaysTyped) {
    Form form;
    form.Show();
    form.cmbFree.AddItem("E1M1");
    int chosen = 0;
    form.cmbFree.OnClick = [&] { ++chosen; };
    driver::Type(form.cmbFree, "E1M1");
    form.txtFree.SetFocus();
    EXPECT_EQ(form.cmbFree.ListIndex(), -1);
    EXPECT_EQ(chosen, 0) << "leaving the field chooses nothing";
    driver::Choose(form.cmbFree, 0);
    EXPECT_EQ(chosen, 1);
}

}  // namespace
