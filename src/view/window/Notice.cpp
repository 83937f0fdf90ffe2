#include "view/window/Notice.h"

#include <algorithm>

#include <QScreen>

namespace brelk::view {

Notice::Notice(QWidget& beside) : QLabel(nullptr), beside_(&beside) {
    setObjectName("notice");
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                   Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setMargin(6);
    setMaximumWidth(320);
    // The tooltip colours of the desktop: a notice reads like a tooltip.
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    hide_.setSingleShot(true);
    connect(&hide_, &QTimer::timeout, this, &QWidget::hide);
}

void Notice::show(const QString& text, int ms) {
    setText(text);
    adjustSize();
    place();
    QWidget::show();
    // A long text needs time to be read: about a second per 15 words.
    hide_.start(std::max<int>(ms, static_cast<int>(text.count(' ')) * 70 + 1000));
}

void Notice::place() {
    if (!beside_) return;
    const QRect window = beside_->frameGeometry();
    const QScreen* screen = beside_->screen();
    const QRect room = screen ? screen->availableGeometry() : window;
    QPoint at(window.right() + 1, window.top());
    if (at.x() + width() > room.right() + 1) at.setX(window.left() - width());
    at.setX(std::clamp(at.x(), room.left(), std::max(room.left(), room.right() + 1 - width())));
    at.setY(std::clamp(at.y(), room.top(), std::max(room.top(), room.bottom() + 1 - height())));
    move(at);
}

}  // namespace brelk::view
