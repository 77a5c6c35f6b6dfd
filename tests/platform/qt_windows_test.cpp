// What only the Qt windows have to keep: how texts look, names for screen readers, keys in lists.
#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>

#include "driver.h"
#include "platform/qt/native_window.h"
#include "platform/qt/text.h"

namespace {

TEST(QtText, IsUtf8OrElseWindows1252) {
    const std::pair<const char*, const char16_t*> cases[] = {
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
    {.name = "lblList", .caption = "Files & more", .place = {4, 14, 60, 8}, .names = "lstMany"},
    {.name = "lstMany", .place = {4, 24, 100, 60}, .tab = 0},
    {.name = "txtFile", .place = {4, 90, 100, 14}, .tab = 1, .flags = toolkit::IsPath},
    {.name = "txtFree", .place = {4, 110, 100, 14}, .tab = 2},
    {.name = "cmdFind", .place = {4, 130, 20, 14}, .tab = 3, .picture = "map", .spoken = "Find"},
};
constexpr toolkit::WindowTable FormTable = {
    .name = "frmTest", .caption = "Test", .width = 180, .height = 160, .rows = Rows};
// clang-format on

struct Form : toolkit::Window {
    Form() : Window(FormTable) {}
    toolkit::Label lblList{*this, "lblList"};
    toolkit::ListBox lstMany{*this, "lstMany"};
    toolkit::TextBox txtFile{*this, "txtFile"};
    toolkit::TextBox txtFree{*this, "txtFree"};
    toolkit::Button cmdFind{*this, "cmdFind"};
};

class QtWindow : public testing::Test {
  protected:
    QtWindow() {
        form.Load();
        form.txtFree.SetFocus();
        wasMadeEarly = platform::qt::NativeOf(&form) != nullptr;
        form.Show();
    }
    void TearDown() override { form.Unload(); }

    QWidget& WidgetOf(const toolkit::Control& control) {
        return platform::qt::NativeOf(&form)->Find(control).Widget();
    }

    Form form;
    bool wasMadeEarly = false;
};

TEST_F(QtWindow, IsMadeAtItsFirstShowingWithItsNames) {
    EXPECT_FALSE(wasMadeEarly);
    EXPECT_EQ(driver::Focused(form), "txtFree");
    EXPECT_EQ(WidgetOf(form.lstMany).accessibleName().toStdString(), "Files & more");
    EXPECT_EQ(WidgetOf(form.cmdFind).accessibleName().toStdString(), "Find");
    EXPECT_EQ(driver::ShownText(form.lblList), "Files & more");
}

TEST_F(QtWindow, ShowsPathsOnlyWherePathsStand) {
    form.txtFile.SetText("Z:\\caf\xE9\\x.lmp");
    form.txtFree.SetText("-file Z:\\a");
    form.lstMany.AddItem("Z:\\a & b.wad");
    EXPECT_EQ(driver::ShownText(form.txtFile), "/caf\xC3\xA9/x.lmp");
    EXPECT_EQ(driver::ShownText(form.txtFree), "-file Z:\\a");
    EXPECT_EQ(driver::ShownItems(form.lstMany).front(), "/a & b.wad");
    EXPECT_EQ(form.txtFile.Text(), "Z:\\caf\xE9\\x.lmp") << "the exact text stays";
    form.lstMany.SetToolTip("Z:\\<b>x</b>.wad");
    EXPECT_TRUE(WidgetOf(form.lstMany).toolTip().contains(QStringLiteral("&lt;b&gt;")))
        << "a name is no mark-up";
}

TEST_F(QtWindow, AListTellsOfTheChoiceBeforeTheButton) {
    form.lstMany.AddItem("a");
    form.lstMany.AddItem("b");
    std::string log;
    form.lstMany.OnClick = [&] { log += "chosen "; };
    form.lstMany.OnButtonReleased = [&](int button, double, double) {
        log += std::to_string(button) + " ";
    };
    driver::Choose(form.lstMany, 1);
    QTest::keyClick(&WidgetOf(form.lstMany), Qt::Key_Up);
    driver::RightClick(form.lstMany, 1);
    EXPECT_EQ(log, "chosen 1 chosen 2 ");
    EXPECT_EQ(form.lstMany.ListIndex(), 0);
}

}  // namespace
