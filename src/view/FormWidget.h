#pragma once

#include <functional>
#include <vector>

#include <QPoint>
#include <QWidget>

#include "platform/Form.h"

namespace brelk::view {

// Runs one piece of input through the program; false once it has ended.
using Guard = std::function<bool(const std::function<void()>&)>;

// A window that shows one form of the model and hands the user's mouse and
// keyboard to it. It keeps no program state: every paint reads the controls,
// and every change of a control repaints.
class FormWidget : public QWidget, private FormObserver {
    Q_OBJECT
public:
    FormWidget(Form& form, Guard guard, QWidget* parent = nullptr);
    ~FormWidget() override;

    Form& form() const { return form_; }
    // The control drawn at a point of the widget, if any takes the mouse there.
    Control* controlAt(const QPoint& pos) const;
    // A control's rectangle in widget pixels.
    QRectF rectOf(const Control& c) const;
    // Whether the control is drawn: visible itself and in a visible container.
    bool isShown(const Control& c) const;

    // Called after every paint, for start-up measurements.
    std::function<void()> onPainted;

signals:
    void closedByUser();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    bool event(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    void propertyChanged(Control& c, Prop p) override;
    void controlLoaded(Control&) override { update(); }
    void controlUnloading(Control& c) override;
    void zOrderChanged(Control&) override { update(); }

    std::vector<Control*> paintOrder() const;
    void applyWindowGeometry();
    void paintControl(QPainter& painter, Control& c);
    bool drawsItself(const Control& c) const;
    void run(const std::function<void()>& action);

    Form& form_;
    Guard guard_;
    Control* pressed_ = nullptr;       // a button drawn pressed while the mouse holds it
    bool afterDoubleClick_ = false;   // the release that ends a double click gives no Click
    bool dragging_ = false;
    QPoint dragOffset_;
};

}  // namespace brelk::view
