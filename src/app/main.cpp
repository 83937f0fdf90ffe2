#include <cstdio>

#include <QApplication>

#include "BrelkApp.h"
#include "ItemIcons.h"
#include "callouts/qt/QtCallOuts.h"
#include "zoom/qt/QtZoom.h"

int main(int argc, char** argv) {
    const bool platformChosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    if (!platformChosen && qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        std::fprintf(stderr,
                     "brelk needs a graphical display. Run it on a desktop, or headless with: "
                     "xvfb-run build/bin/brelk\n");
        return 1;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName("Brelk");
    QGuiApplication::setDesktopFileName("io.github.brelk.Brelk");
    QApplication::setWindowIcon(brelk::view::appIcon());

    brelk::view::BrelkApp brelk(brelk::view::executableInfo());
    // Spoken call-outs, beyond the window's design: a submenu of ">" and the [Coach] section.
    brelk::callouts::qt::QtCallOuts callOuts(brelk);
    // The zoom, beyond it too: a submenu of ">", keys and wheel, the [Coach] section.
    brelk::zoom::qt::QtZoom zoom(brelk);
    if (!brelk.start()) return 0;
    return QApplication::exec();
}
