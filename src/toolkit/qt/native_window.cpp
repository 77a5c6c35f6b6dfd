#include "toolkit/qt/native_window.h"

#include <QCloseEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "toolkit/qt/style.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// Size of a dialog unit in pixels.
struct UnitSize {
    double width;
    double height;
};

/// The place for a window on a screen, less a title bar.
QSize RoomOn(const QScreen* screen) {
    constexpr int TitleBarHeight = 40;
    return screen->availableSize() - QSize(0, TitleBarHeight);
}

/// A unit of height is an eighth of the font's height, and up to a seventh where the window has
/// room.
UnitSize UnitsOf(const QFont& font, double room) {
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const QFontMetricsF metrics(font);
    const double average = metrics.horizontalAdvance(letters) / static_cast<double>(letters.size());
    return {average / 4, std::clamp(room, metrics.height() / 8, metrics.height() / 7)};
}

/// Across, rounds the edges: those that are equal in units are equal in pixels. Down, rounds the
/// height, so that all fields of a window are equally high.
QRect InPixels(const toolkit::Place& place, const UnitSize& unit) {
    const int left = qRound(place.x * unit.width);
    return {left, qRound(place.y * unit.height),
            qRound((place.x + place.width) * unit.width) - left,
            qRound(place.height * unit.height)};
}

bool IsBackground(toolkit::Kind kind) {
    return kind == toolkit::Kind::Frame || kind == toolkit::Kind::Divider ||
           kind == toolkit::Kind::Picture;
}

Qt::WindowFlags FlagsOf(const toolkit::WindowSpec& spec) {
    const Qt::WindowFlags common =
        Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    return spec.dialog ? Qt::Dialog | common : Qt::Window | Qt::WindowMinimizeButtonHint | common;
}

}  // namespace

NativeWindow::NativeWindow(toolkit::Window& window)
    : QWidget(nullptr, FlagsOf(window.Spec())), window_(window) {
    setWindowTitle(DisplayText(window.Caption()));
    setMouseTracking(true);
    setLayoutDirection(Qt::LeftToRight);  // as the places say
    FitFont();
    // Later widgets are drawn above earlier ones.
    MakeControls(true);
    MakeControls(false);
    PlaceControls();
    SetTabOrder();
    NameControls();
}

/// Takes a smaller font until the window fits the screen.
void NativeWindow::FitFont() {
    constexpr double SmallestPointSize = 4;
    const QSize room = RoomOn(screen());
    const auto fits = [&](const QFont& font) {
        const UnitSize unit = UnitsOf(font, 0);
        return unit.width * window_.Spec().width <= room.width() &&
               unit.height * window_.Spec().height <= room.height();
    };
    QFont smaller = font();
    double size = QFontInfo(smaller).pointSizeF();
    while (size > SmallestPointSize && !fits(smaller)) {
        size *= 0.95;
        smaller.setPointSizeF(size);
    }
    if (smaller != font()) {
        setFont(smaller);
    }
}

void NativeWindow::MakeControls(bool background) {
    for (toolkit::Control* control : window_.Controls()) {
        if (IsBackground(control->GetKind()) == background) {
            Add(*control);
        }
    }
}

void NativeWindow::Add(toolkit::Control& control) {
    NativeControl* native = MakeControl(control, ParentOf(control));
    natives_.emplace(&control, native);
    QWidget& widget = native->Widget();
    // The window itself must not see the pointer moving over a control.
    widget.setAttribute(Qt::WA_NoMousePropagation);
    if (control.Spec().tab < 0) {
        widget.setFocusPolicy(widget.focusPolicy() & Qt::ClickFocus ? Qt::ClickFocus : Qt::NoFocus);
    }
    QWidget& surface = native->Surface();
    surface.setMouseTracking(true);
    surface.installEventFilter(this);
    surfaces_.insert(&surface, &control);
    if (!control.Enabled()) {
        widget.setEnabled(false);
    }
    if (!control.Visible()) {
        widget.hide();
    }
    if (!control.ToolTip().empty()) {
        ApplyProperty(*native, control, Property::ToolTip, -1);
    }
}

/// The frame around a control, which a screen reader reports as its group, or the window.
QWidget& NativeWindow::ParentOf(const toolkit::Control& control) {
    for (const auto& [frame, native] : natives_) {
        if (frame->GetKind() == toolkit::Kind::Frame &&
            frame->Spec().place.Contains(control.Spec().place)) {
            return native->Widget();
        }
    }
    return *this;
}

void NativeWindow::PlaceControls() {
    const UnitSize unit =
        UnitsOf(font(), RoomOn(screen()).height() / static_cast<double>(window_.Spec().height));
    setFixedSize(InPixels({0, 0, window_.Spec().width, window_.Spec().height}, unit).size());
    if (QGuiApplication::platformName() == QLatin1String("wayland")) {
        // Its title bars offer to maximise any window. One that cannot take the size is killed.
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        resize(minimumSize());
    }
    const QWidget* before = nullptr;
    for (const toolkit::Control* control : window_.Controls()) {
        QWidget& widget = Find(*control).Widget();
        QRect place = InPixels(control->Spec().place, unit);
        if (control->Has(toolkit::Follows) && before != nullptr) {
            // Measure only these labels: measuring all texts would slow down the start.
            place.moveLeft(before->x() + before->sizeHint().width());
            place.setWidth(widget.sizeHint().width());
        }
        widget.setGeometry(place.translated(-widget.parentWidget()->mapTo(this, QPoint())));
        before = &widget;
    }
}

void NativeWindow::SetTabOrder() {
    std::vector<const toolkit::Control*> order;
    for (const toolkit::Control* control : window_.Controls()) {
        if (control->Spec().tab >= 0) {
            order.push_back(control);
        }
    }
    std::ranges::sort(order, {}, [](const toolkit::Control* c) { return c->Spec().tab; });
    QWidget* previous = nullptr;
    for (const toolkit::Control* control : order) {
        QWidget& widget = Find(*control).Widget();
        if (previous != nullptr) {
            setTabOrder(previous, &widget);
        } else if (focusWidget() == nullptr && widget.focusPolicy() != Qt::NoFocus) {
            widget.setFocus();
        }
        previous = &widget;
    }
}

/// Names the controls for a screen reader.
void NativeWindow::NameControls() {
    for (const toolkit::Control* control : window_.Controls()) {
        const toolkit::ControlSpec& spec = control->Spec();
        QWidget& widget = Find(*control).Widget();
        if (spec.tip) {
            widget.setAccessibleDescription(Decode(*spec.tip));
        }
        if (spec.label == nullptr) {
            continue;
        }
        static_cast<QLabel&>(Find(*spec.label).Widget()).setBuddy(&widget);
        const QString name = Decode(spec.label->Caption());
        if (control->GetKind() == toolkit::Kind::Label) {
            widget.setAccessibleDescription(name);  // its name is its own text
        } else {
            widget.setAccessibleName(name);
            Find(*control).Surface().setAccessibleName(name);
        }
    }
}

void NativeWindow::Center(const QWidget* owner) {
    const QScreen* where = owner != nullptr ? owner->screen() : QGuiApplication::primaryScreen();
    if (where != nullptr) {
        const QRect area = where->availableGeometry();
        const QPoint corner = area.center() - rect().center();
        move(std::max(corner.x(), area.x()), std::max(corner.y(), area.y()));
    }
}

void NativeWindow::RunUntilHidden() {
    QEventLoop loop;
    const QScopedValueRollback guard(modalLoop_, &loop);
    loop.exec(QEventLoop::DialogExec);
}

void NativeWindow::IgnoreEscape() {
    ignoresEscape_.start(0, this);
}

void NativeWindow::timerEvent(QTimerEvent*) {
    ignoresEscape_.stop();
}

void NativeWindow::DeleteLater() {
    surfaces_.clear();
    setEnabled(false);
    hide();
    deleteLater();
}

bool NativeWindow::eventFilter(QObject* watched, QEvent* event) {
    toolkit::Control* control = surfaces_.value(watched);
    if (control == nullptr) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter) {
        const QPointF at = static_cast<QSinglePointEvent*>(event)->position();
        control->UserMovesPointer(at.x(), at.y());
    } else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        MarkDefaultButton();
    }
    return false;
}

/// A button is the default one while it has the focus.
void NativeWindow::MarkDefaultButton() {
    const auto* focused = qobject_cast<QPushButton*>(focusWidget());
    for (const toolkit::Control* control : window_.Controls()) {
        auto* button = qobject_cast<QPushButton*>(&Find(*control).Widget());
        const bool isDefault =
            focused != nullptr ? button == focused : control->Has(toolkit::Default);
        if (button != nullptr && button->isDefault() != isDefault) {
            button->setDefault(isDefault);
        }
    }
}

void NativeWindow::mouseMoveEvent(QMouseEvent*) {
    window_.UserMovesPointer();
}

void NativeWindow::enterEvent(QEnterEvent* event) {
    if (isEnabled() && childAt(event->position().toPoint()) == nullptr) {
        window_.UserMovesPointer();
    }
}

/// Presses the first button with a flag; returns whether there is one.
bool NativeWindow::PressButton(toolkit::Flag flag) {
    const auto& controls = window_.Controls();
    const auto found = std::ranges::find_if(
        controls, [flag](const toolkit::Control* control) { return control->Has(flag); });
    if (found == controls.end()) {
        return false;
    }
    static_cast<toolkit::Button*>(*found)->UserClicks();
    return true;
}

void NativeWindow::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        if (auto* focused = qobject_cast<QPushButton*>(focusWidget())) {
            focused->click();
        } else {
            PressButton(toolkit::Default);
        }
    } else if (plain && event->key() == Qt::Key_Escape) {
        if (ignoresEscape_.isActive()) {
            return;
        }
        if (!PressButton(toolkit::Cancel) && window_.Spec().dialog) {
            window_.UserCloses();
        }
    } else {
        UnderlineAccessKeys(event->key() == Qt::Key_Alt);
        QWidget::keyPressEvent(event);
    }
}

void NativeWindow::keyReleaseEvent(QKeyEvent* event) {
    UnderlineAccessKeys(false);
    QWidget::keyReleaseEvent(event);
}

void NativeWindow::UnderlineAccessKeys(bool underlined) {
    if (std::exchange(Style::underlinesAccessKeys, underlined) != underlined) {
        update();
    }
}

void NativeWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (isEnabled()) {
        window_.UserCloses();
    }
}

void NativeWindow::hideEvent(QHideEvent* event) {
    if (modalLoop_ != nullptr && !event->spontaneous()) {
        modalLoop_->quit();
    }
}

/// The desktop's font may change while the window exists.
bool NativeWindow::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::ApplicationFontChange) {
        setFont(QFont());
        FitFont();
    }
    return handled;
}

void NativeWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && !natives_.empty()) {
        PlaceControls();
    } else if (event->type() == QEvent::ActivationChange) {
        UnderlineAccessKeys(false);
    } else if (event->type() == QEvent::WindowStateChange && isMaximized()) {
        QMetaObject::invokeMethod(this, "showNormal", Qt::QueuedConnection);
    }
}

void NativeWindow::resizeEvent(QResizeEvent*) {
    if (!isMaximized()) {
        resize(minimumSize());
    }
}

}  // namespace desktop
