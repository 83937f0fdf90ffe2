#pragma once

#include <QMargins>
#include <QRect>
#include <QString>

class QIcon;
class QPainter;
class QPalette;

namespace brelk::view {

// The frame a frameless window draws for itself: a thin border on each side
// and a caption strip at the top with the window's icon and caption. The
// form's Width and Height are the outer size, frame included, and its
// controls sit in the client area inside the frame.
struct WindowFrame {
    int border = 0;   // logical pixels
    int caption = 0;  // logical pixels, below the top border
    bool icon = true; // the window's icon shows in the caption strip

    QMargins margins() const { return {border, border + caption, border, border}; }
    QRect captionRect(const QRect& outer) const {
        return {outer.left() + border, outer.top() + border, outer.width() - 2 * border, caption};
    }
    bool isEmpty() const { return border == 0 && caption == 0; }
    // The same frame drawn at `zoom` times its size (see Twips.h).
    WindowFrame zoomed(double zoom) const;

    // The main window's frame: 60 twips of border and a 285-twip caption,
    // what the main window's row and size constants were made for.
    static WindowFrame mainWindow();
    // A tool window's: the same, with no icon in the caption.
    static WindowFrame toolWindow();
};

void paintWindowFrame(QPainter& painter, const QRect& outer, const WindowFrame& frame, const QString& caption,
                      const QIcon& icon, const QPalette& palette);

}  // namespace brelk::view
