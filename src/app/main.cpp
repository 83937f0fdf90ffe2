#include <cstdio>

#include <QApplication>

#include "assembly/BrelkApp.h"
#include "icons/ItemIcons.h"
#include "view/window/ZoomStyle.h"

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
    QApplication::setWindowIcon(brelk::icons::appIcon());
    QApplication::setStyle(new brelk::view::ZoomStyle);

    brelk::assembly::BrelkApp brelk(brelk::assembly::executableInfo());
    if (!brelk.start()) return 0;
    return QApplication::exec();
}
