#include "view/window/FormView.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include "platform/Events.h"
#include "view/controls/BoxView.h"
#include "view/controls/ButtonView.h"
#include "view/controls/EntryViews.h"
#include "view/controls/ImageView.h"
#include "view/controls/InputCodes.h"
#include "view/controls/LabelView.h"
#include "view/controls/LineView.h"
#include "view/drawing/Twips.h"

namespace brelk::view {

// The form's own surface inside the frame: its back colour, and the form's
// mouse events wherever no control takes them. A left drag on it moves the
// window.
class FormClient : public QWidget {
public:
    explicit FormClient(FormView& view) : QWidget(&view), view_(view) {
        setObjectName("client");
        setAttribute(Qt::WA_OpaquePaintEvent);
        setMouseTracking(view.form().hasHandler(view.form().name(), Event::MouseMove));
    }

protected:
    void paintEvent(QPaintEvent* e) override {
        QPainter painter(this);
        painter.fillRect(e->rect(), toColor(form().self().number(Prop::BackColor)));
        view_.notePainted();
    }

    void mousePressEvent(QMouseEvent* e) override {
        const int b = buttonCode(e->button());
        if (b == 0) return;
        if (b == button::Left) view_.beginMove(e, *this);
        raiseMouse(e, [&](Form& f, int shift, float x, float y) { f.mouseDown(f.self(), b, shift, x, y); });
    }

    void mouseMoveEvent(QMouseEvent* e) override {
        if (view_.moving_) view_.continueMove(e);
        const int held = buttonsHeld(e->buttons());
        raiseMouse(e, [&](Form& f, int shift, float x, float y) { f.mouseMove(f.self(), held, shift, x, y); });
    }

    void mouseReleaseEvent(QMouseEvent* e) override {
        const int b = buttonCode(e->button());
        if (b == 0) return;
        const bool moved = b == button::Left && view_.endMove();
        const bool click = b == button::Left && !moved && !afterDoubleClick_ && rect().contains(e->position().toPoint());
        if (b == button::Left) afterDoubleClick_ = false;
        raiseMouse(e, [&](Form& f, int shift, float x, float y) {
            f.mouseUp(f.self(), b, shift, x, y);
            if (click) f.click(f.self());
        });
    }

    void mouseDoubleClickEvent(QMouseEvent* e) override {
        if (e->button() != Qt::LeftButton) return mousePressEvent(e);
        afterDoubleClick_ = true;
        view_.context_.run([&] { form().dblClick(form().self()); });
    }

private:
    Form& form() const { return view_.form(); }

    template <typename Raise>
    void raiseMouse(QMouseEvent* e, Raise raise) {
        const int shift = shiftState(e->modifiers());
        const auto x = static_cast<float>(toTwips(e->position().x(), view_.zoom()));
        const auto y = static_cast<float>(toTwips(e->position().y(), view_.zoom()));
        view_.context_.run([&] { raise(form(), shift, x, y); });
    }

    FormView& view_;
    bool afterDoubleClick_ = false;
};

namespace {

int nestingDepth(const Control& c) {
    int depth = 0;
    for (const Control* box = c.container(); box; box = box->container()) ++depth;
    return depth;
}

bool isContainer(ControlKind k) { return k == ControlKind::PictureBox || k == ControlKind::Frame; }

}  // namespace

FormView::FormView(Form& form, Guard guard, WindowFrame frame, QWidget* parent)
    : QWidget(parent), context_{form, std::move(guard)}, designFrame_(frame), frame_(frame),
      client_(new FormClient(*this)) {
    setObjectName(QString::fromStdString(form.name()));
    setWindowTitle(QString::fromStdString(form.self().caption()));
    setAttribute(Qt::WA_OpaquePaintEvent, !frame_.isEmpty());
    build();
    applyWindowGeometry();
    form.addObserver(this);
}

FormView::~FormView() {
    form().removeObserver(this);
    for (auto& [control, view] : views_) view->detach();
}

QWidget* FormView::widgetOf(const Control& c) const {
    const auto it = views_.find(&c);
    return it == views_.end() ? nullptr : it->second->widget();
}

QWidget* FormView::clientArea() const { return client_; }

void FormView::setZoom(double zoom) {
    if (!(zoom > 0) || zoom == context_.zoom) return;
    const QPoint corner = windowPlace();
    context_.zoom = zoom;
    frame_ = designFrame_.zoomed(zoom);
    // Every widget follows its control again, now at the new zoom.
    for (const auto& [control, view] : views_) view->syncAll();
    if (isWindow() && isVisible())
        context_.run([&] {
            form().self().setNumber(Prop::Left, toTwips(corner.x(), zoom));
            form().self().setNumber(Prop::Top, toTwips(corner.y(), zoom));
        });
    applyWindowGeometry();
    client_->setGeometry(rect().marginsRemoved(frame_.margins()));
    update();
}

void FormView::build() {
    // Containers before what they hold; each widget takes its place in the
    // stack as it is made.
    std::vector<Control*> controls = form().controls();
    std::stable_sort(controls.begin(), controls.end(),
                     [](const Control* a, const Control* b) { return nestingDepth(*a) < nestingDepth(*b); });
    for (Control* c : controls) createView(*c);
    orderTabs();
}

ControlView* FormView::createView(Control& c) {
    QWidget* parent = client_;
    if (const Control* box = c.container()) {
        const auto it = views_.find(box);
        if (it != views_.end()) parent = it->second->childArea();
    }
    ControlView* view = nullptr;
    switch (c.kind()) {
    case ControlKind::Label: view = new LabelView(c, context_, parent); break;
    case ControlKind::Image: view = new ImageView(c, context_, parent); break;
    case ControlKind::Line: view = new LineView(c, context_, parent); break;
    case ControlKind::CommandButton: view = new ButtonView(c, context_, parent); break;
    case ControlKind::PictureBox:
    case ControlKind::Frame: view = new BoxView(c, context_, parent); break;
    case ControlKind::TextBox: view = new TextBoxView(c, context_, parent); break;
    case ControlKind::OptionButton: view = new OptionView(c, context_, parent); break;
    case ControlKind::ComboBox: view = new ComboView(c, context_, parent); break;
    default: return nullptr;  // timers, menus and common dialogs are not drawn
    }
    view->widget()->setObjectName(QString::fromStdString(c.displayName()));
    views_[&c] = view;
    stack(*view);
    view->syncAll();
    return view;
}

void FormView::removeView(Control& c) {
    const auto it = views_.find(&c);
    if (it == views_.end()) return;
    ControlView* view = it->second;
    views_.erase(it);
    QWidget* w = view->widget();
    // What a box holds goes with it.
    if (isContainer(c.kind()))
        for (auto inner = views_.begin(); inner != views_.end();) {
            if (w->isAncestorOf(inner->second->widget())) {
                inner->second->detach();
                inner = views_.erase(inner);
            } else {
                ++inner;
            }
        }
    view->detach();
    w->hide();
    // Later: the widget may be the one whose event unloaded its control.
    w->deleteLater();
}

void FormView::stack(ControlView& view) {
    QWidget* w = view.widget();
    QWidget* parent = w->parentWidget();
    if (!parent || !view.control()) return;
    // Among the widgets of one parent, windowed controls lie above light
    // ones, and each group follows the form's order. The others are in that
    // order already: this one goes just under the lowest that belongs above
    // it, or on top.
    const auto place = [](const Control& c) { return std::make_pair(isWindowedKind(c.kind()), c.zOrder()); };
    const auto mine = place(*view.control());
    for (QObject* sibling : parent->children()) {  // from the bottom up
        auto* other = dynamic_cast<ControlView*>(sibling);
        if (other && other != &view && other->control() && mine < place(*other->control()))
            return w->stackUnder(other->widget());
    }
    w->raise();
}

void FormView::orderTabs() {
    std::vector<std::pair<double, QWidget*>> order;
    for (const auto& [control, view] : views_) {
        QWidget* w = view->widget();
        if ((w->focusPolicy() & Qt::TabFocus) && control->has(Prop::TabIndex))
            order.emplace_back(control->number(Prop::TabIndex), w);
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1].second, order[i].second);
}

void FormView::controlLoaded(Control& c) {
    ControlView* view = createView(c);
    if (!view) return;
    if (view->widget()->focusPolicy() & Qt::TabFocus) orderTabs();
}

void FormView::controlUnloading(Control& c) { removeView(c); }

void FormView::propertyChanged(Control& c, Prop p) {
    if (&c == &form().self()) return formChanged(p);
    const auto it = views_.find(&c);
    if (it == views_.end()) return;
    it->second->sync(p);
    if (p == Prop::TabIndex) orderTabs();
}

void FormView::zOrderChanged(Control& c) {
    const auto it = views_.find(&c);
    if (it != views_.end()) stack(*it->second);
}

void FormView::focusChanged(Control* now) {
    if (!now) return;
    const auto it = views_.find(now);
    if (it == views_.end()) return;
    QWidget* w = it->second->widget();
    if (w->focusPolicy() != Qt::NoFocus && !w->hasFocus()) w->setFocus(Qt::OtherFocusReason);
}

void FormView::formUnloaded() { emit unloaded(); }

void FormView::formChanged(Prop p) {
    const Control& self = form().self();
    switch (p) {
    case Prop::Left:
    case Prop::Top:
    case Prop::Width:
    case Prop::Height: applyWindowGeometry(); break;
    case Prop::Caption:
        setWindowTitle(QString::fromStdString(self.caption()));
        update(frame_.captionRect(rect()));
        break;
    case Prop::BackColor: client_->update(); break;
    case Prop::Visible: setVisible(self.visible()); break;
    default: break;
    }
}

QPoint FormView::windowPlace() const {
    const Control& self = form().self();
    return pixelRect(self.number(Prop::Left), self.number(Prop::Top), 0, 0, zoom()).topLeft();
}

void FormView::applyWindowGeometry() {
    const Control& self = form().self();
    const auto px = [this](double twips) { return static_cast<int>(std::lround(toPixels(twips, zoom()))); };
    const QPoint place = windowPlace();
    const QSize size(std::max(1, px(self.number(Prop::Width))), std::max(1, px(self.number(Prop::Height))));
    if (!isWindow()) return setGeometry(QRect(place, size));
    // The window is frameless: its geometry is the form's outer geometry,
    // taken as it is, also beyond the screen's edge.
    if (pos() != place) move(place);
    if (this->size() != size) resize(size);
}

void FormView::resizeEvent(QResizeEvent*) { client_->setGeometry(rect().marginsRemoved(frame_.margins())); }

void FormView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintWindowFrame(painter, rect(), frame_, windowTitle(), windowIcon(), palette());
    notePainted();
}

void FormView::notePainted() {
    if (painted_) return;
    painted_ = true;
    // After the whole window, children included, has been drawn.
    QTimer::singleShot(0, this, [this] {
        if (onFirstPaint) onFirstPaint();
    });
}

void FormView::beginMove(QMouseEvent* e, const QWidget& receiver) {
    if (!isWindow()) return;
    // Where windows may not place themselves, the window system moves it.
    if (QGuiApplication::platformName().startsWith("wayland") && windowHandle()) {
        windowHandle()->startSystemMove();
        return;
    }
    moving_ = true;
    moved_ = false;
    // The point of the window under the pointer, which stays under it. Qt's
    // own idea of the window's place is not used: a window manager that
    // frames the window after placing it leaves that at the screen's corner
    // until the window's first resize.
    grip_ = receiver.mapTo(this, e->position());
}

void FormView::continueMove(QMouseEvent* e) {
    if (!moving_) return;
    const QPoint place = (e->globalPosition() - grip_).toPoint();
    if (place == pos()) return;
    move(place);
    moved_ = true;
}

bool FormView::endMove() {
    if (!moving_) return false;
    moving_ = false;
    if (!moved_) return false;
    // The form learns where the window is, so that the profile file keeps it.
    const QPoint place = pos();
    context_.run([&] {
        form().self().setNumber(Prop::Left, toTwips(place.x(), zoom()));
        form().self().setNumber(Prop::Top, toTwips(place.y(), zoom()));
    });
    return true;
}

void FormView::mousePressEvent(QMouseEvent* e) {
    // The frame: the caption strip and the border move the window.
    if (e->button() == Qt::LeftButton) beginMove(e, *this);
}

void FormView::mouseMoveEvent(QMouseEvent* e) { continueMove(e); }

void FormView::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) endMove();
}

void FormView::keyPressEvent(QKeyEvent* e) {
    // Keys that no control used: Esc and Enter press the form's Cancel and
    // Default buttons; Enter on a focused button presses that one.
    switch (e->key()) {
    case Qt::Key_Escape: context_.run([&] { form().pressCancel(); }); return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button && button->isEnabled()) {
            button->click();
            return;
        }
        context_.run([&] { form().pressDefault(); });
        return;
    default: QWidget::keyPressEvent(e);
    }
}

void FormView::closeEvent(QCloseEvent* e) {
    // Closed by the window system: the form ends as its Unload says. The
    // window goes once the program has ended (also when it ended before).
    if (form().hasHandler(form().name(), Event::Unload)) {
        const bool going = context_.run([&] { form().raiseForm(Event::Unload); });
        if (going) return e->ignore();
    }
    // A dialog closed by the window system is left as by Esc: its Cancel
    // button decides, and the window goes when the form is unloaded.
    bool pressed = false;
    context_.run([&] { pressed = form().pressCancel(); });
    if (pressed) return e->ignore();
    emit closedByUser();
    QWidget::closeEvent(e);
}

}  // namespace brelk::view
