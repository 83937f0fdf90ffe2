#include <cstdio>
#include <memory>

#include <QApplication>
#include <QFileInfo>
#include <QScreen>

#include "FormWidget.h"
#include "ItemIcons.h"
#include "QtDialogs.h"
#include "RealTimeDriver.h"
#include "Twips.h"
#include "platform/TimerScheduler.h"
#include "state/Program.h"

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
    QApplication::setWindowIcon(brelk::view::appIcon());

    brelk::TimerScheduler clock;
    std::unique_ptr<brelk::Program> program;
    auto guard = [&](const std::function<void()>& action) { return program->guarded(action); };
    brelk::view::QtDialogs dialogs(guard);
    brelk::view::QtWindowSystem windows;
    const QScreen* screen = QGuiApplication::primaryScreen();
    brelk::Services services{clock, dialogs, windows,
                             brelk::AppInfo{QCoreApplication::applicationDirPath().toStdString(),
                                            QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName().toStdString(),
                                            1, 0, 0},
                             screen ? static_cast<int>(brelk::view::toTwips(screen->geometry().width())) : 19200};
    program = std::make_unique<brelk::Program>(services);
    program->setEndListener([] { QCoreApplication::quit(); });

    brelk::view::FormWidget window(program->frmMain, guard);
    window.setWindowFlags(Qt::FramelessWindowHint | Qt::Tool | (windows.topmost() ? Qt::WindowStaysOnTopHint : Qt::Widget));
    window.setWindowIcon(brelk::view::appIcon());
    dialogs.setParentWindow(&window);
    windows.setMainWindow(&window);

    brelk::view::RealTimeDriver driver(clock, guard);
    if (!program->guarded([&] { program->start(); })) return 0;
    window.setWindowFlag(Qt::WindowStaysOnTopHint, windows.topmost());
    window.show();
    driver.start();
    return app.exec();
}
