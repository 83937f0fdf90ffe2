#pragma once

#include <QLabel>
#include <QPointer>
#include <QTimer>

namespace brelk::view {

// A short notice beside a window: a small frameless box that shows for a
// few seconds. It never takes the focus nor a click, so that a game that
// has the keyboard keeps it; a new notice replaces the one shown.
class Notice : public QLabel {
public:
    static constexpr int kShownMs = 2000;

    explicit Notice(QWidget& beside);

    // Shows `text` beside the window, on the side with room on its screen,
    // for `ms` milliseconds; longer texts stay longer.
    void show(const QString& text, int ms = kShownMs);

private:
    void place();

    QPointer<QWidget> beside_;
    QTimer hide_;
};

}  // namespace brelk::view
