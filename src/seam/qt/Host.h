#pragma once

#include <functional>

#include <QString>

class QMenu;
class QWidget;

namespace brelk::seam {
class Seam;
}

namespace brelk::seam::qt {

// What the running window offers a feature beyond the design, besides the
// seam itself: a place in the ">" menu, notices, the main window to stand
// against, its zoom, and the end of the program. The program's assembly is
// the one host; a feature knows nothing else of the window.
class Host {
public:
    virtual ~Host() = default;

    virtual Seam& seam() = 0;

    // Whenever the ">" menu shows, `add` puts the feature's entries (a
    // submenu, as a rule) into it after "Options ...", behind those of the
    // features added before. Entries act by themselves when chosen.
    virtual void addMenu(std::function<void(QMenu&)> add) = 0;

    // A short notice beside the main window, for a few seconds. It takes no
    // focus and no click: the game keeps the keyboard.
    virtual void notice(const QString& text) = 0;

    // The main window, to place a window against or to watch its screen.
    virtual QWidget& mainWindow() = 0;

    // The size the main window and the windows over it are drawn at, 1 for
    // the designed size. The main window keeps its top-left corner.
    virtual double zoom() const = 0;
    virtual void setZoom(double zoom) = 0;

    // What the feature does when the program ends, after the program's own
    // end (its profile written) and before the process exits.
    virtual void atEnd(std::function<void()> action) = 0;
};

}  // namespace brelk::seam::qt
