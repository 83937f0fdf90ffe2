#include "FormWidget.h"

#include <algorithm>
#include <tuple>

#include <QCloseEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QToolTip>

#include "ItemIcons.h"
#include "Twips.h"
#include "map/IconCatalogue.h"
#include "platform/Events.h"

namespace brelk::view {

namespace {

bool isWindowed(ControlKind k) {
    return k == ControlKind::PictureBox || k == ControlKind::CommandButton || k == ControlKind::TextBox ||
           k == ControlKind::ComboBox || k == ControlKind::OptionButton || k == ControlKind::Frame;
}

bool isDrawn(ControlKind k) {
    return k != ControlKind::Timer && k != ControlKind::Menu && k != ControlKind::CommonDialog &&
           k != ControlKind::Form;
}

bool takesMouse(ControlKind k) { return isDrawn(k) && k != ControlKind::Line && k != ControlKind::Frame; }

int nestingDepth(const Control& c) {
    int d = 0;
    for (const Control* p = c.container(); p; p = p->container()) ++d;
    return d;
}

int qtButton(Qt::MouseButton b) {
    switch (b) {
    case Qt::LeftButton: return button::Left;
    case Qt::RightButton: return button::Right;
    case Qt::MiddleButton: return button::Middle;
    default: return 0;
    }
}

int qtButtons(Qt::MouseButtons b) {
    return (b & Qt::LeftButton ? button::Left : 0) | (b & Qt::RightButton ? button::Right : 0) |
           (b & Qt::MiddleButton ? button::Middle : 0);
}

int shiftState(Qt::KeyboardModifiers m) {
    return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) | (m & Qt::AltModifier ? 4 : 0);
}

Qt::Alignment alignmentOf(const Control& c) {
    const int a = c.has(Prop::Alignment) ? static_cast<int>(c.number(Prop::Alignment)) : align::Left;
    const Qt::Alignment h = a == align::Right ? Qt::AlignRight : a == align::Center ? Qt::AlignHCenter : Qt::AlignLeft;
    return h | Qt::AlignTop;
}

}  // namespace

FormWidget::FormWidget(Form& form, Guard guard, QWidget* parent)
    : QWidget(parent), form_(form), guard_(std::move(guard)) {
    setObjectName(QString::fromStdString(form.name()));
    setWindowTitle(QString::fromStdString(form.self().caption()));
    setMouseTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    form_.addObserver(this);
    applyWindowGeometry();
}

FormWidget::~FormWidget() { form_.removeObserver(this); }

void FormWidget::run(const std::function<void()>& action) {
    if (guard_) guard_(action);
    else action();
}

QRectF FormWidget::rectOf(const Control& c) const {
    if (c.kind() == ControlKind::Line)
        return QRectF(QPointF(toPixels(c.number(Prop::X1)), toPixels(c.number(Prop::Y1))),
                      QPointF(toPixels(c.number(Prop::X2)), toPixels(c.number(Prop::Y2))))
            .normalized();
    QRectF r(toPixels(c.number(Prop::Left)), toPixels(c.number(Prop::Top)), toPixels(c.number(Prop::Width)),
             toPixels(c.number(Prop::Height)));
    if (const Control* box = c.container(); box && box->has(Prop::Left)) r.translate(rectOf(*box).topLeft());
    return r;
}

bool FormWidget::isShown(const Control& c) const {
    for (const Control* x = &c; x; x = x->container())
        if (x->has(Prop::Visible) && !x->visible()) return false;
    return true;
}

std::vector<Control*> FormWidget::paintOrder() const {
    std::vector<Control*> order;
    for (Control* c : form_.controls())
        if (isDrawn(c->kind()) && isShown(*c)) order.push_back(c);
    // Windowed controls always lie above labels, pictures and lines; a
    // container's children above it; within that, the stacking order.
    std::stable_sort(order.begin(), order.end(), [](const Control* a, const Control* b) {
        return std::make_tuple(isWindowed(a->kind()), nestingDepth(*a), a->zOrder()) <
               std::make_tuple(isWindowed(b->kind()), nestingDepth(*b), b->zOrder());
    });
    return order;
}

Control* FormWidget::controlAt(const QPoint& pos) const {
    const auto order = paintOrder();
    for (auto it = order.rbegin(); it != order.rend(); ++it) {
        Control* c = *it;
        if (takesMouse(c->kind()) && rectOf(*c).contains(pos)) return c;
    }
    return nullptr;
}

void FormWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), toColor(form_.self().number(Prop::BackColor)));
    for (Control* c : paintOrder()) paintControl(painter, *c);
    // A thin border stands in for the window frame the form does not have.
    painter.setPen(QPen(QColor(64, 64, 64), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (onPainted) onPainted();
}

void FormWidget::paintControl(QPainter& painter, Control& c) {
    const QRectF r = rectOf(c);
    switch (c.kind()) {
    case ControlKind::Label: {
        if (c.number(Prop::BackStyle) != 0) painter.fillRect(r, toColor(c.number(Prop::BackColor)));
        painter.setFont(fontOf(c));
        painter.setPen(toColor(c.number(Prop::ForeColor)));
        painter.drawText(r, static_cast<int>(alignmentOf(c)), displayText(c));
        break;
    }
    case ControlKind::Image: {
        if (auto index = iconIndex(c.get(Prop::Picture).text())) {
            painter.save();
            painter.setRenderHint(QPainter::Antialiasing);
            paintItemIcon(painter, r, *index);
            painter.restore();
        }
        break;
    }
    case ControlKind::Line:
        painter.setPen(QPen(toColor(c.number(Prop::BorderColor)), 1));
        painter.drawLine(QPointF(toPixels(c.number(Prop::X1)), toPixels(c.number(Prop::Y1))),
                         QPointF(toPixels(c.number(Prop::X2)), toPixels(c.number(Prop::Y2))));
        break;
    case ControlKind::CommandButton: {
        QStyleOptionButton option;
        option.initFrom(this);
        option.rect = r.toAlignedRect();
        option.text = displayText(c);
        option.state = QStyle::State_Raised;
        if (c.enabled()) option.state |= QStyle::State_Enabled;
        else option.state &= ~QStyle::State_Enabled;
        if (pressed_ == &c) option.state |= QStyle::State_Sunken;
        if (form_.focus() == &c) option.state |= QStyle::State_HasFocus;
        painter.save();
        painter.setFont(fontOf(c));
        option.fontMetrics = painter.fontMetrics();
        style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
        painter.restore();
        break;
    }
    case ControlKind::PictureBox:
    case ControlKind::Frame: {
        painter.fillRect(r, toColor(c.number(Prop::BackColor)));
        if (c.kind() == ControlKind::Frame || c.number(Prop::BorderStyle) != 0) {
            painter.setPen(QPen(palette().color(QPalette::Mid), 1));
            painter.drawRect(r.adjusted(0, 0, -1, -1));
        }
        break;
    }
    case ControlKind::TextBox:
    case ControlKind::ComboBox: {
        painter.fillRect(r, Qt::white);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(r.adjusted(0, 0, -1, -1));
        painter.setFont(fontOf(c));
        painter.setPen(Qt::black);
        const QString text = c.kind() == ControlKind::TextBox
                                 ? QString::fromStdString(c.text())
                                 : (c.number(Prop::ListIndex) >= 0
                                        ? QString::fromStdString(c.listItems()[static_cast<std::size_t>(
                                              c.number(Prop::ListIndex))])
                                        : QString());
        painter.drawText(r.adjusted(3, 1, -3, -1), Qt::AlignVCenter | Qt::AlignLeft, text);
        break;
    }
    case ControlKind::OptionButton: {
        QStyleOptionButton option;
        option.initFrom(this);
        option.rect = r.toAlignedRect();
        option.text = displayText(c);
        option.state |= c.flag(Prop::Value) ? QStyle::State_On : QStyle::State_Off;
        style()->drawControl(QStyle::CE_RadioButton, &option, &painter, this);
        break;
    }
    default: break;
    }
}

void FormWidget::applyWindowGeometry() {
    const Control& self = form_.self();
    const QRect target(qRound(toPixels(self.number(Prop::Left))), qRound(toPixels(self.number(Prop::Top))),
                       std::max(1, qRound(toPixels(self.number(Prop::Width)))),
                       std::max(1, qRound(toPixels(self.number(Prop::Height)))));
    // The form's geometry is the window's outer size; this window has no frame.
    if (isWindow()) {
        if (pos() != target.topLeft()) move(target.topLeft());
        if (size() != target.size()) resize(target.size());
    } else {
        setGeometry(target);
    }
}

void FormWidget::propertyChanged(Control& c, Prop p) {
    if (&c == &form_.self()) {
        if (p == Prop::Left || p == Prop::Top || p == Prop::Width || p == Prop::Height) applyWindowGeometry();
        if (p == Prop::Caption) setWindowTitle(QString::fromStdString(c.caption()));
    }
    update();
}

void FormWidget::controlUnloading(Control& c) {
    if (pressed_ == &c) pressed_ = nullptr;
    update();
}

void FormWidget::mousePressEvent(QMouseEvent* e) {
    const int b = qtButton(e->button());
    Control* c = controlAt(e->position().toPoint());
    afterDoubleClick_ = false;
    if (!c) {
        // The background and the free part of the top strip move the window.
        if (b == button::Left && isWindow()) {
            dragging_ = true;
            dragOffset_ = e->globalPosition().toPoint() - frameGeometry().topLeft();
        }
        return;
    }
    if (c->kind() == ControlKind::CommandButton) {
        if (!c->enabled()) return;
        pressed_ = c;
        update();
    }
    const QRectF r = rectOf(*c);
    const auto x = static_cast<float>(toTwips(e->position().x() - r.left()));
    const auto y = static_cast<float>(toTwips(e->position().y() - r.top()));
    run([&] { form_.mouseDown(*c, b, shiftState(e->modifiers()), x, y); });
}

void FormWidget::mouseReleaseEvent(QMouseEvent* e) {
    const int b = qtButton(e->button());
    if (dragging_ && b == button::Left) {
        dragging_ = false;
        const QPoint topLeft = frameGeometry().topLeft();
        run([&] {
            form_.self().setNumber(Prop::Left, toTwips(topLeft.x()));
            form_.self().setNumber(Prop::Top, toTwips(topLeft.y()));
        });
        return;
    }
    Control* under = controlAt(e->position().toPoint());
    Control* target = under ? under : &form_.self();
    const QRectF r = under ? rectOf(*under) : QRectF(rect());
    const auto x = static_cast<float>(toTwips(e->position().x() - r.left()));
    const auto y = static_cast<float>(toTwips(e->position().y() - r.top()));
    Control* button = pressed_;
    pressed_ = nullptr;
    if (button) update();
    const bool clicked = b == button::Left && !afterDoubleClick_;
    afterDoubleClick_ = false;
    run([&] {
        form_.mouseUp(*target, b, shiftState(e->modifiers()), x, y);
        if (!clicked) return;
        if (button) {
            if (button == under) {
                form_.setFocus(button);
                form_.click(*button);
            }
        } else if (under && under->kind() != ControlKind::CommandButton) {
            form_.click(*under);
        } else if (!under) {
            form_.raiseForm(Event::Click);
        }
    });
}

void FormWidget::mouseDoubleClickEvent(QMouseEvent* e) {
    // The second press of a double click: DblClick instead of MouseDown, and
    // its release brings MouseUp without another Click.
    Control* c = controlAt(e->position().toPoint());
    if (e->button() != Qt::LeftButton || !c) return mousePressEvent(e);
    afterDoubleClick_ = true;
    run([&] { form_.dblClick(*c); });
}

void FormWidget::mouseMoveEvent(QMouseEvent* e) {
    if (dragging_) {
        move(e->globalPosition().toPoint() - dragOffset_);
        return;
    }
    Control* c = controlAt(e->position().toPoint());
    const int buttons = qtButtons(e->buttons());
    run([&] { form_.mouseMove(c ? *c : form_.self(), buttons, shiftState(e->modifiers())); });
}

void FormWidget::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) return run([&] { form_.pressCancel(); });
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) return run([&] { form_.pressDefault(); });
    QWidget::keyPressEvent(e);
}

bool FormWidget::event(QEvent* e) {
    if (e->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(e);
        Control* c = controlAt(help->pos());
        const QString tip = c && c->has(Prop::ToolTipText) ? QString::fromStdString(c->get(Prop::ToolTipText).text())
                                                           : QString();
        if (tip.isEmpty()) QToolTip::hideText();
        else QToolTip::showText(help->globalPos(), tip, this, rectOf(*c).toAlignedRect());
        return true;
    }
    return QWidget::event(e);
}

void FormWidget::closeEvent(QCloseEvent* e) {
    // Closing the window by the window system ends the form as its Unload does.
    if (form_.hasHandler(form_.name(), Event::Unload)) {
        e->ignore();
        run([&] { form_.raiseForm(Event::Unload); });
        return;
    }
    emit closedByUser();
    QWidget::closeEvent(e);
}

}  // namespace brelk::view
