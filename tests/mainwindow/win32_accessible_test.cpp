// What Windows tells a screen reader of every control that can have the focus: by Active
// Accessibility its name, which is that of the label before it if it has one; by its window class
// its role. Wine's Active Accessibility knows neither roles nor labels.
#include <gtest/gtest.h>
#include <oleacc.h>

#include <map>

#include "launch/demo_save.h"
#include "mainwindow/main_window.h"
#include "platform/win32/text.h"
#include "setup/credits.h"
#include "setup/engine_settings.h"
#include "setup/setup.h"
#include "state/engine_files.h"
#include "text/ascii.h"
#include "toolkit/win32/controls.h"
#include "toolkit/win32/native_windows.h"

namespace {

using toolkit::Kind;

const std::map<Kind, const wchar_t*> Classes = {
    {Kind::Label, WC_LINK},         {Kind::Button, WC_BUTTONW},
    {Kind::CheckBox, WC_BUTTONW},   {Kind::TextBox, WC_EDITW},
    {Kind::ListBox, WC_LISTBOXW},   {Kind::ListView, WC_LISTVIEWW},
    {Kind::ComboBox, WC_COMBOBOXW}, {Kind::DropDownList, WC_COMBOBOXW}};

std::string NameOf(HWND window) {
    IAccessible* item = nullptr;
    EXPECT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                         __uuidof(IAccessible), reinterpret_cast<void**>(&item)),
              S_OK);
    VARIANT self = {};
    self.vt = VT_I4;
    BSTR name = nullptr;
    item->get_accName(self, &name);
    const std::string text = name != nullptr ? platform::Bytes(name) : std::string();
    SysFreeString(name);
    item->Release();
    return ReplaceAll(ReplaceAll(text, "<a>", ""), "</a>", "");
}

/// `letters` are those of the controls before it.
void ExpectControl(const toolkit::Control& control, std::string& letters) {
    const toolkit::ControlSpec& spec = control.Spec();
    if (!desktop::IsInTabOrder(control) || !control.Visible()) {
        return;
    }
    SCOPED_TRACE("control " + std::to_string(control.Index()) + " " + control.Caption());
    const HWND window = desktop::FindNative(control)->Handle();
    EXPECT_NE(GetWindowLongW(window, GWL_STYLE) & WS_TABSTOP, 0);
    wchar_t text[100] = L"";
    GetClassNameW(window, text, std::size(text));
    EXPECT_STRCASEEQ(platform::Bytes(text).c_str(),
                     platform::Bytes(Classes.at(control.GetKind())).c_str());

    const HWND named = spec.label != nullptr ? GetWindow(window, GW_HWNDPREV) : window;
    EXPECT_EQ(NameOf(named), spec.label != nullptr  ? spec.label->Caption()
                             : spec.picture.empty() ? control.Caption()
                                                    : std::string(spec.accessibleName));
    GetWindowTextW(named, text, std::size(text));
    const std::string marked = platform::Bytes(text);
    EXPECT_EQ(letters.find(control.Access()), letters.npos) << control.Access();
    letters += control.Access();
    EXPECT_TRUE(control.Has(toolkit::Link) ||
                UpperCase(marked).find({'&', control.Access()}) != marked.npos)
        << marked;
}

TEST(WindowsAccessibility, OfEveryWindow) {
    ASSERT_EQ(CoInitialize(nullptr), S_OK);
    ASSERT_TRUE(ScanEngineFiles(ZORVANE_SHIPPED_DATA "/engines"));
    frmEngineSettings.Load();
    frmEngineSettings.ShowEngine(0);
    for (toolkit::Window* window : std::initializer_list<toolkit::Window*>{
             &frmMain, &frmSetup, &frmDemoSave, &frmCredits, &frmEngineSettings}) {
        SCOPED_TRACE(window->Caption());
        window->Load();
        desktop::EnsureNative(*window);
        std::string letters;
        for (const toolkit::Control* control : window->Controls()) {
            ExpectControl(*control, letters);
        }
    }
}

}  // namespace
