#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QVBoxLayout>

#include "toolkit/dialogs.h"
#include "toolkit/qt/native_window.h"
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

/// Lets a long path break into lines behind its slashes, by a blank of no width.
QString Breakable(QString text) {
    return text.replace(QLatin1Char('/'), QString(QLatin1Char('/')) + QChar(0x200B));
}

}  // namespace

void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    QString lines = Shown(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QMessageBox box(IconOf(icon), Shown(title), lines, QMessageBox::Ok, FrontWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::string AskForText(const std::string& prompt, const std::string& title,
                       const std::string& preset) {
    QDialog dialog(FrontWindow());
    dialog.setWindowTitle(Shown(title));
    auto* label = new QLabel(Breakable(WithoutAccessKeys(Shown(prompt))));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* field = new QLineEdit(Decode(preset));
    field->selectAll();
    label->setBuddy(field);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(label);
    column->addWidget(field);
    column->addWidget(buttons);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 60);
    field->setFocus();
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    // An unchanged preset keeps its exact bytes.
    return field->isModified() ? Encode(field->text()) : preset;
}

}  // namespace desktop
