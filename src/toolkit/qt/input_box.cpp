#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "toolkit/dialogs.h"
#include "toolkit/qt/native_windows.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// Allows line breaks after the slashes of a long path, by zero-width spaces.
QString Breakable(QString text) {
    return text.replace(QLatin1Char('/'), QString(QLatin1Char('/')) + QChar(0x200B));
}

}  // namespace

std::string AskForText(const std::string& prompt, const std::string& title,
                       const std::string& preset) {
    QDialog dialog(FrontWindow());
    dialog.setWindowTitle(DisplayText(title));
    const QString question = DisplayText(prompt);
    auto* label = new QLabel(Breakable(EscapeAmpersands(question)));
    label->setAccessibleName(question);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* field = new QLineEdit(Decode(preset));
    field->setAccessibleName(question);
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
