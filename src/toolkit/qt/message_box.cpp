#include <QMessageBox>
#include <cstdio>

#include "toolkit/dialogs.h"
#include "toolkit/qt/native_windows.h"
#include "toolkit/qt/session_end.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Critical:
            return QMessageBox::Critical;
        case MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case MessageIcon::Information:
            return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    if (IsConnectionLost()) {
        std::fprintf(stderr, "%s: %s\n", title.c_str(), text.c_str());
        return;
    }
    QString lines = DisplayText(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QMessageBox box(IconOf(icon), DisplayText(title), lines, QMessageBox::Ok, FrontWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

}  // namespace desktop
