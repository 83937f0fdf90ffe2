#include "zoom/qt/WindowZoom.h"

#include <QActionGroup>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QShortcut>
#include <QWheelEvent>

#include "seam/qt/Host.h"

namespace brelk::zoom::qt {

WindowZoom::WindowZoom(seam::qt::Host& host) : host_(host), window_(&host.mainWindow()) {
    QWidget& window = host.mainWindow();
    // Keys of the window: they act while it is the active window.
    const auto keys = [&](QList<QKeySequence> sequences, auto by) {
        auto* shortcut = new QShortcut(&window);
        shortcut->setKeys(sequences);
        connect(shortcut, &QShortcut::activated, this, [this, by] { setPercent(by(percent_)); });
        keys_.append(shortcut);
    };
    // Ctrl and "=" as well: the "+" of most keyboards is on that key, with Shift.
    QList<QKeySequence> in = QKeySequence::keyBindings(QKeySequence::ZoomIn);
    if (!in.contains(QKeySequence("Ctrl+="))) in.append(QKeySequence("Ctrl+="));
    keys(in, [](int now) { return stepFrom(now, 1); });
    keys(QKeySequence::keyBindings(QKeySequence::ZoomOut), [](int now) { return stepFrom(now, -1); });
    keys({QKeySequence("Ctrl+0")}, [](int) { return kBuiltIn; });
    // The wheel goes to the widget under the pointer, which may keep it from
    // the window: it is seen on its way there.
    qApp->installEventFilter(this);
}

WindowZoom::~WindowZoom() {
    for (const QPointer<QShortcut>& key : keys_) delete key.data();
}

void WindowZoom::setPercent(int percent) {
    if (!isStep(percent) || percent == percent_ || !window_) return;
    percent_ = percent;
    host_.setZoom(percent / 100.0);
}

void WindowZoom::addMenu(QMenu& menu) {
    QMenu* sizes = menu.addMenu("&Zoom");
    auto* group = new QActionGroup(sizes);
    for (const int step : kSteps) {
        // Text after a tab shows as the entry's key.
        QAction* entry = sizes->addAction(QString("%1 %").arg(step) + (step == kBuiltIn ? "\tCtrl+0" : ""));
        entry->setCheckable(true);
        entry->setChecked(step == percent_);
        group->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, step] { setPercent(step); });
    }
}

bool WindowZoom::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel || !window_) return false;
    const auto* wheel = static_cast<QWheelEvent*>(event);
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!(wheel->modifiers() & Qt::ControlModifier) || !widget || widget->window() != window_ ||
        !window_->isActiveWindow())
        return false;
    // A notch of a wheel is a step; a touchpad's small movements add up to one.
    wheel_ += wheel->angleDelta().y();
    const int steps = wheel_ / QWheelEvent::DefaultDeltasPerStep;
    wheel_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0) setPercent(stepFrom(percent_, steps));
    return true;
}

}  // namespace brelk::zoom::qt
