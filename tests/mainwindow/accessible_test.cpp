// What a screen reader is offered of every window, and the access keys.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QTimer>
#include <map>

#include "launch/demo_save.h"
#include "mainwindow/main_window.h"
#include "setup/credits.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"
#include "state/engine_files.h"
#include "state/records.h"
#include "text/ascii.h"
#include "toolkit/qt/native_windows.h"

namespace {

using toolkit::Kind;

const std::map<Kind, QAccessible::Role> Roles = {
    {Kind::Label, QAccessible::StaticText},      {Kind::Button, QAccessible::PushButton},
    {Kind::CheckBox, QAccessible::CheckBox},     {Kind::TextBox, QAccessible::EditableText},
    {Kind::ListBox, QAccessible::List},          {Kind::ListView, QAccessible::Tree},
    {Kind::DropDownList, QAccessible::ComboBox}, {Kind::ComboBox, QAccessible::ComboBox},
    {Kind::Frame, QAccessible::Grouping}};

QAccessibleInterface& InterfaceOf(const toolkit::Control& control) {
    return *QAccessible::queryAccessibleInterface(
        &desktop::FindNative(&control.Owner())->Find(control).Widget());
}

/// Qt names neither the list that a combo box opens nor the texts in lists.
void ExpectNames(const QAccessibleInterface& parent) {
    for (int i = 0; i < parent.childCount(); ++i) {
        const QAccessibleInterface* child = parent.child(i);
        const bool isList = child != nullptr && child->role() == QAccessible::List;
        if (child != nullptr && !(isList && parent.role() == QAccessible::ComboBox)) {
            const bool named = !child->text(QAccessible::Name).isEmpty();
            EXPECT_TRUE(named || !child->state().focusable) << "role " << child->role();
            ExpectNames(*child);
        }
    }
}

/// `letters` are those of the controls before it.
void ExpectControl(const toolkit::Control& control, std::string& letters) {
    const QAccessibleInterface& item = InterfaceOf(control);
    const toolkit::ControlSpec& spec = control.Spec();
    SCOPED_TRACE("control " + std::to_string(control.Index()) + " " + control.Caption());
    if (const auto role = Roles.find(control.GetKind()); role != Roles.end()) {
        EXPECT_EQ(item.role(), control.Has(toolkit::Link) ? QAccessible::Link : role->second);
    }
    if (spec.tip) {
        EXPECT_EQ(item.text(QAccessible::Description).toStdString(), *spec.tip);
    }
    if (!item.state().focusable || !control.Visible()) {
        return;
    }
    const char letter = control.Access();
    EXPECT_EQ(letters.find(letter), letters.npos) << letter;
    letters += letter;
    const std::string caption = spec.label != nullptr  ? spec.label->Caption()
                                : spec.picture.empty() ? control.Caption()
                                                       : std::string(spec.accessibleName);
    EXPECT_NE(UpperCase(caption).find(letter), caption.npos) << letter << " is not underlined";
}

void ExpectAccessible(const toolkit::Window& window) {
    SCOPED_TRACE(window.Caption());
    const QAccessibleInterface& root =
        *QAccessible::queryAccessibleInterface(desktop::EnsureNative(window));
    EXPECT_EQ(root.role(), window.Spec().dialog ? QAccessible::Dialog : QAccessible::Window);
    ExpectNames(root);
    std::string letters;
    for (const toolkit::Control* control : window.Controls()) {
        ExpectControl(*control, letters);
    }
}

TEST(Accessibility, OfEveryWindow) {
    ASSERT_TRUE(ScanEngineFiles("Z:" ZORVANE_SHIPPED_DATA "\\engines"));
    frmEngineSettings.Load();
    for (int engine = 0; engine < EngineCount(); ++engine) {
        frmEngineSettings.ShowEngine(engine);
        ExpectAccessible(frmEngineSettings);
    }
    frmEngineSettings.lblParameters.SetCaption("-window");
    EXPECT_EQ(InterfaceOf(frmEngineSettings.lblParameters).text(QAccessible::Name), "-window");
    for (toolkit::Window* window :
         std::initializer_list<toolkit::Window*>{&frmMain, &frmSetup, &frmDemoSave, &frmCredits}) {
        window->Load();
        ExpectAccessible(*window);
    }
    EXPECT_EQ(InterfaceOf(frmMain.lstFiles).parent(), &InterfaceOf(frmMain.framQuickStart));
    bool pressed = false;
    frmCredits.lblLinkCoder.OnClick = [&] { pressed = true; };
    QTimer::singleShot(0, [] {
        QAccessibleInterface& link = InterfaceOf(frmCredits.lblLinkCoder);
        EXPECT_TRUE(link.parent()->state().modal);
        link.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        frmCredits.Hide();
    });
    frmCredits.ShowModal();
    EXPECT_TRUE(pressed);
}

}  // namespace
