#include "toolkit/qt/accessible.h"

#include <QAccessibleWidget>

#include "toolkit/qt/native_window.h"

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
        switch (text) {
            case QAccessible::Name:
                return QString::fromStdString(link_.Caption());
            case QAccessible::Accelerator:
                return QStringLiteral("Alt+") + QLatin1Char(link_.Access());
            default:
                return QAccessibleWidget::text(text);
        }
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

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
