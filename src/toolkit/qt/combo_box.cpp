#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/item_model.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

constexpr int rowsOfOpenList = 16;

/// Both kinds of combo box. `activated` comes for the user's choice alone, also for that of the
/// row that was chosen already.
class ComboWidget : public QComboBox, public NativeControl {
  public:
    ComboWidget(toolkit::ItemControl& combo, QWidget& parent)
        : QComboBox(&parent), combo_(combo), items_(combo, this) {
        setModel(&items_);
        setMaxVisibleItems(rowsOfOpenList);
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
        ComboWidget::Apply(Property::Selection, -1);
        connect(this, &QComboBox::activated, this, [this](int row) { combo_.UserSelects(row); });
    }

    QWidget& Widget() override { return *this; }

    void Apply(Property property, int row) override {
        const QSignalBlocker silence(this);
        items_.Follow(property, row);
        // Qt selects the first row that comes into an empty list, hence also after an item.
        if (property != Property::Text && currentIndex() != combo_.ListIndex()) {
            setCurrentIndex(combo_.ListIndex());
        }
    }

  private:
    toolkit::ItemControl& combo_;
    ItemModel items_;
};

/// The combo box with an edit field. Qt keeps its row while the user types; what counts is the
/// control, whose row is gone then.
class EditComboWidget final : public ComboWidget {
  public:
    EditComboWidget(toolkit::ComboBox& combo, QWidget& parent)
        : ComboWidget(combo, parent), combo_(combo) {
        setEditable(true);
        setInsertPolicy(NoInsert);
        setCompleter(nullptr);
        // Qt would choose the row whose text was typed as soon as the field loses the focus.
        disconnect(lineEdit(), SIGNAL(editingFinished()), this, nullptr);
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
            const QSignalBlocker silence(lineEdit());
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
