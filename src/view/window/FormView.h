#pragma once

#include <functional>
#include <unordered_map>

#include <QPointF>
#include <QWidget>

#include "platform/Form.h"
#include "view/window/ViewContext.h"
#include "view/window/WindowFrame.h"

namespace brelk::view {

class ControlView;
class FormClient;

// The window of one form: a top-level widget with one child widget for each
// control that is drawn (labels, images, lines, buttons, boxes, entry
// fields), created when the control is loaded and deleted when it is
// unloaded. Containers are the parents of what they contain; within each,
// windowed controls lie above light ones, each group in the form's stacking
// order, however the controls were made, loaded or reordered. The window
// keeps no state of the program: every widget shows what its control holds
// and follows each change. A drag on the window's frame or on its background
// moves it by the pointer's movement; the new position goes into the form's
// Left and Top when the drag ends. The window can be drawn at a zoom: the
// form's twips stay as they are, only the pixels per twip change.
class FormView : public QWidget, private FormObserver {
    Q_OBJECT
public:
    FormView(Form& form, Guard guard, WindowFrame frame = {}, QWidget* parent = nullptr);
    ~FormView() override;

    Form& form() const { return context_.form; }
    const WindowFrame& frame() const { return frame_; }
    // The widget that shows `c`, null when it has none (timers, menus, ...).
    QWidget* widgetOf(const Control& c) const;
    // The area inside the frame, where the form's controls sit.
    QWidget* clientArea() const;

    // Draws the window and all it shows at `zoom` times its designed size
    // (1 for 100 %, see Twips.h). A window on the screen keeps its top-left
    // corner where it is: its place in twips at the new zoom goes into the
    // form's Left and Top, as after a drag. One not shown yet is placed
    // where the form says, at the new zoom.
    void setZoom(double zoom);
    double zoom() const { return context_.zoom; }

    // Called once, when the window has been painted for the first time.
    std::function<void()> onFirstPaint;

signals:
    // The form has been unloaded: its window is to go.
    void unloaded();
    // The window system closed a form that has no Unload handler and no
    // Cancel button to press.
    void closedByUser();

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    friend class FormClient;

    void controlLoaded(Control& c) override;
    void controlUnloading(Control& c) override;
    void propertyChanged(Control& c, Prop p) override;
    void zOrderChanged(Control& c) override;
    void focusChanged(Control* now) override;
    void formUnloaded() override;

    void build();
    ControlView* createView(Control& c);
    void removeView(Control& c);
    void stack(ControlView& view);
    void orderTabs();
    // Where the form puts the window, in pixels at the present zoom.
    QPoint windowPlace() const;
    void applyWindowGeometry();
    void formChanged(Prop p);
    void notePainted();

    // Moving the window by a drag; `receiver` got the press.
    void beginMove(QMouseEvent* e, const QWidget& receiver);
    void continueMove(QMouseEvent* e);
    bool endMove();

    ViewContext context_;
    WindowFrame designFrame_;  // at 100 %
    WindowFrame frame_;
    FormClient* client_;
    std::unordered_map<const Control*, ControlView*> views_;
    bool moving_ = false;
    bool moved_ = false;
    QPointF grip_;  // in the window's coordinates
    bool painted_ = false;
};

}  // namespace brelk::view
