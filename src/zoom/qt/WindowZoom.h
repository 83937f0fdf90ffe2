#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include "zoom/Zoom.h"

class QMenu;
class QShortcut;

namespace brelk::seam::qt {
class Host;
}

namespace brelk::zoom::qt {

// The size the main window is drawn at, and with it the windows opened over
// it. The coach sets it from the "Zoom" submenu, or while the window is
// active with Ctrl and + / - / 0 or Ctrl and the mouse wheel. The window
// keeps its top-left corner.
class WindowZoom : public QObject {
public:
    // The host's window is drawn at 100 % yet.
    explicit WindowZoom(seam::qt::Host& host);
    ~WindowZoom() override;

    int percent() const { return percent_; }
    // Draws the windows at `percent`; one that is not a step changes nothing.
    void setPercent(int percent);
    // Adds the "Zoom" submenu to `menu`, the present step checked.
    void addMenu(QMenu& menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    seam::qt::Host& host_;
    QPointer<QWidget> window_;
    int percent_ = kBuiltIn;
    int wheel_ = 0;  // wheel turned with Ctrl held, in eighths of a degree, not yet a step
    QList<QPointer<QShortcut>> keys_;
};

}  // namespace brelk::zoom::qt
