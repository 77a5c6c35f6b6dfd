// Only in the Qt back end: how texts look, accessible names, keys in lists, an idle event loop.
#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <QWidget>

#include "contract/form.h"
#include "driver.h"
#include "platform/shell.h"
#include "toolkit/desktop.h"
#include "toolkit/qt/native_windows.h"

namespace {

class QtWindow : public testing::Test {
  protected:
    QtWindow() {
        form.Load();
        form.lstRows.SetFocus();
        EXPECT_EQ(desktop::FindNative(&form), nullptr) << "created at its first showing";
        form.Show();
    }
    void TearDown() override {
        form.Unload();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QWidget& WidgetOf(const toolkit::Control& control) {
        return desktop::FindNative(&form)->Find(control).Widget();
    }

    Form form;
};

TEST_F(QtWindow, HasAccessibleNamesAndTakesKeys) {
    EXPECT_EQ(WidgetOf(form.lstRows).accessibleName().toStdString(), "Files & more");
    EXPECT_EQ(driver::Focused(form), &form.lstRows);
    form.lstRows.AddItem("a");
    QTest::keyClick(&WidgetOf(form.lstRows), Qt::Key_Down);
    EXPECT_EQ(form.lstRows.ListIndex(), 0);
    driver::Type(form.txtName, "");
    QTest::keyClick(&WidgetOf(form.txtName), Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(driver::Focused(form), &form.lstRows) << "by the letter in its label";
    bool asked = false;
    form.lstRows.OnButtonReleased = [&](toolkit::MouseButton button, double x, double y) {
        asked = button == toolkit::MouseButton::Right &&
                desktop::ItemFromPoint(form.lstRows, static_cast<int>(x), static_cast<int>(y)) == 0;
    };
    QTest::keyClick(&WidgetOf(form.lstRows), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(asked) << "for the menu of the selected row";
}

TEST_F(QtWindow, MarksOneDefaultButtonAndIgnoresTheWheelWithoutFocus) {
    const auto isDefault = [this](const toolkit::Control& button) {
        return qobject_cast<QPushButton*>(&WidgetOf(button))->isDefault();
    };
    driver::Type(form.txtName, "");
    EXPECT_TRUE(isDefault(form.cmdYes));
    form.cmdNo.SetFocus();
    EXPECT_TRUE(isDefault(form.cmdNo));
    EXPECT_FALSE(isDefault(form.cmdYes));
    form.cmbFixed.AddItem("a");
    form.cmbFixed.AddItem("b");
    form.cmbFixed.SetListIndex(0);
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&WidgetOf(form.cmbFixed), &wheel);
    EXPECT_EQ(form.cmbFixed.ListIndex(), 0);
    form.txtPath.SetText("Z:\\a.b\\demo.lmp");
    EXPECT_EQ(qobject_cast<QLineEdit*>(&WidgetOf(form.txtPath))->selectedText(), "demo");
}

TEST_F(QtWindow, FollowsTheFontOfTheDesktopAndStaysOnTheScreen) {
    const QWidget* window = WidgetOf(form.txtName).window();
    const QSize before = window->size();
    QFont large = QApplication::font();
    large.setPointSizeF(large.pointSizeF() * 10);
    for (const QFont& font : {large, QApplication::font()}) {
        QApplication::setFont(font);
        QApplication::processEvents();
        const QSize room = window->screen()->availableSize();
        EXPECT_EQ(window->size().boundedTo(room), window->size());
        EXPECT_EQ(window->width() > before.width(), font == large);
    }
    EXPECT_EQ(window->size(), before);
}

TEST_F(QtWindow, ShowsUtf8OrElseWindows1252AndNativePaths) {
    form.txtPath.SetText("Z:\\caf\xE9\\x.lmp");
    form.txtName.SetText("-file Z:\\a");
    EXPECT_EQ(driver::ShownText(form.txtPath), "/caf\xC3\xA9/x.lmp");
    EXPECT_EQ(driver::ShownText(form.txtName), "-file Z:\\a");
    EXPECT_EQ(form.txtPath.Text(), "Z:\\caf\xE9\\x.lmp") << "the exact text stays";
    for (const char* text : {"Z:\\a & b.wad", "d\xC3\xB6m", "\x80 \x93x\x94"}) {
        form.lstRows.AddItem(text);
    }
    const std::vector<std::string> shown = {"/a & b.wad", "d\u00F6m", "\u20AC \u201Cx\u201D"};
    EXPECT_EQ(driver::ShownItems(form.lstRows), shown);
    form.lblRows.SetCaption(std::string(100'000, 'x'));
    EXPECT_EQ(driver::ShownText(form.lblRows).size(), 4096 + std::string("\u2026").size());
    form.lstRows.SetToolTip("Z:\\<b>x</b>.wad");
    EXPECT_TRUE(WidgetOf(form.lstRows).toolTip().contains(QStringLiteral("&lt;b&gt;")))
        << "a name is not markup";
    QHelpEvent rests(QEvent::ToolTip, {5, 5}, {5, 5});
    QApplication::sendEvent(qobject_cast<QListView*>(&WidgetOf(form.lstRows))->viewport(), &rests);
    EXPECT_EQ(QToolTip::text(), WidgetOf(form.lstRows).toolTip());
}

TEST(QtEvents, RunUntilAProcessEndsWithoutPolling) {
    platform::ShellExecuteInfo info = {
        platform::SeeMaskNoCloseProcess, "Z:\\bin\\sleep", "0.5", "", 0, {}};
    ASSERT_TRUE(platform::ShellExecuteExA(info));
    int rounds = 0;
    int timeouts = 0;
    QTimer::singleShot(100, [&] { ++timeouts; });
    const auto counter = QObject::connect(QAbstractEventDispatcher::instance(),
                                          &QAbstractEventDispatcher::awake, [&] { ++rounds; });
    desktop::RunEventsUntilEnd(info.hProcess);
    QObject::disconnect(counter);
    EXPECT_EQ(platform::WaitForSingleObject(info.hProcess, 0), 0U);
    EXPECT_EQ(timeouts, 1) << "events are handled";
    EXPECT_LT(rounds, 10);
}

}  // namespace
