#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include "zoom/Zoom.h"

class QMenu;
class QShortcut;

namespace brelk {
struct Services;
}
namespace brelk::view {
class FormView;
}

namespace brelk::zoom::qt {

// The size the main window is drawn at, and with it the windows opened over
// it. The coach sets it from the "Zoom" submenu, or while the window is
// active with Ctrl and + / - / 0 or Ctrl and the mouse wheel. The window
// keeps its top-left corner, and the program's screen width in twips follows
// the zoom, so the windows it places against the main window stand there as
// they do at 100 %.
class WindowZoom : public QObject {
public:
    // `window` is drawn at 100 % yet, and `sys.screenWidth` is in twips at 100 %.
    WindowZoom(view::FormView& window, Services& sys);
    ~WindowZoom() override;

    int percent() const { return percent_; }
    // Draws the windows at `percent`; one that is not a step changes nothing.
    void setPercent(int percent);
    // Adds the "Zoom" submenu to `menu`, the present step checked.
    void addMenu(QMenu& menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<view::FormView> window_;
    Services& sys_;
    const int screenWidth_;  // twips at 100 %
    int percent_ = kBuiltIn;
    int wheel_ = 0;  // wheel turned with Ctrl held, in eighths of a degree, not yet a step
    QList<QPointer<QShortcut>> keys_;
};

}  // namespace brelk::zoom::qt
