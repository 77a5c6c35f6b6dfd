#include "toolkit/qt/accessible.h"

#include <QAccessibleWidget>

#include "toolkit/qt/native_window.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

class AccessibleWindow final : public QAccessibleWidget {
  public:
    explicit AccessibleWindow(NativeWindow& window)
        : QAccessibleWidget(&window, window.windowType() == Qt::Dialog ? QAccessible::Dialog
                                                                       : QAccessible::Window) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = widget()->isModal();
        return state;
    }
};

class AccessibleLink final : public QAccessibleWidget {
  public:
    AccessibleLink(QWidget& widget, toolkit::Label& link)
        : QAccessibleWidget(&widget, QAccessible::Link), link_(link) {}

    QString text(QAccessible::Text text) const override {
        return text == QAccessible::Name ? Decode(link_.Caption()) : QAccessibleWidget::text(text);
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    QStringList keyBindingsForAction(const QString& action) const override {
        return action == setFocusAction()
                   ? QStringList(QStringLiteral("Alt+") + QLatin1Char(link_.Access()))
                   : QStringList();
    }

    void doAction(const QString& action) override {
        if (action == pressAction()) {
            link_.UserClicks();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

  private:
    toolkit::Label& link_;
};

/// Qt may ask while the constructor of the widget runs.
QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    if (auto* window = dynamic_cast<NativeWindow*>(object)) {
        return new AccessibleWindow(*window);
    }
    auto* control = dynamic_cast<NativeControl*>(object);
    toolkit::Label* link = control != nullptr ? control->Link() : nullptr;
    return link != nullptr ? new AccessibleLink(control->Widget(), *link) : nullptr;
}

}  // namespace

void InstallAccessibility() {
    QAccessible::installFactory(MakeInterface);
}

}  // namespace desktop
