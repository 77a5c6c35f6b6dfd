#include <QComboBox>
#include <QCompleter>
#include <QHelpEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolTip>
#include <QWheelEvent>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/item_model.h"
#include "toolkit/qt/native_window.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

constexpr int OpenListRows = 16;

/// Both kinds of combo box. Qt emits `activated` only for a choice of the user, also if the row was
/// already selected.
class ComboWidget : public QComboBox, public NativeControl {
  public:
    ComboWidget(toolkit::ItemControl& combo, QWidget& parent)
        : QComboBox(&parent), combo_(combo), items_(combo, this) {
        setModel(&items_);
        setMaxVisibleItems(OpenListRows);
        ComboWidget::Apply(Property::Selection, -1);
        connect(this, &QComboBox::activated, this, [this](int row) { combo_.UserSelects(row); });
    }

    QWidget& Widget() override { return *this; }

    void hidePopup() override {
        static_cast<NativeWindow*>(window())->IgnoreEscape();
        QComboBox::hidePopup();
    }

    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }

    /// Shows a text that does not fit.
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ToolTip && toolTip().isEmpty() &&
            fontMetrics().horizontalAdvance(currentText()) > width() - height()) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), currentText(), this);
            return true;
        }
        return QComboBox::event(event);
    }

    void Apply(Property property, int row) override {
        const QSignalBlocker guard(this);
        items_.Follow(property, row);
        // Qt selects the first row that is added to an empty list, so check after every change.
        if (property != Property::Text && currentIndex() != combo_.ListIndex()) {
            setCurrentIndex(combo_.ListIndex());
        }
    }

  private:
    toolkit::ItemControl& combo_;
    ItemModel items_;
};

/// The combo box with an edit field. Qt keeps its current row while the user types, unlike the
/// control.
class EditComboWidget final : public ComboWidget {
  public:
    EditComboWidget(toolkit::ComboBox& combo, QWidget& parent)
        : ComboWidget(combo, parent), combo_(combo) {
        resize(1, 1);  // otherwise making it editable measures every item
        auto* edit = new QLineEdit(this);
        edit->setCompleter(new QCompleter(edit));  // otherwise one for every item is made
        setLineEdit(edit);
        setInsertPolicy(NoInsert);
        setCompleter(nullptr);
        // Without this, Qt selects a row with the typed text when the field loses the focus.
        disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
        DrawText();
        connect(lineEdit(), &QLineEdit::textEdited, this,
                [this](const QString& typed) { combo_.UserTypes(Encode(typed)); });
    }

    QWidget& Surface() override { return *lineEdit(); }

    void Apply(Property property, int row) override {
        ComboWidget::Apply(property, row);
        DrawText();
    }

  private:
    void DrawText() {
        const QString shown = Decode(combo_.Text());
        if (lineEdit()->text() != shown) {
            const QSignalBlocker guard(lineEdit());
            lineEdit()->setText(shown);
        }
    }

    toolkit::ComboBox& combo_;
};

}  // namespace

NativeControl* MakeDropDownList(toolkit::DropDownList& combo, QWidget& parent) {
    return new ComboWidget(combo, parent);
}

NativeControl* MakeComboBox(toolkit::ComboBox& combo, QWidget& parent) {
    return new EditComboWidget(combo, parent);
}

}  // namespace desktop
