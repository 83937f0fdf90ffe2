#include "BrelkApp.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

#include "Locations.h"
#include "MainWindow.h"
#include "Twips.h"
#include "forms/Brelk.h"

namespace brelk::view {

AppInfo executableInfo() {
    const install::Locations where = install::programLocations(QCoreApplication::applicationDirPath());
    return AppInfo{.path = where.settingsDir.toStdString(),
                   .exeName = QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName().toStdString(),
                   .mapDir = where.mapDir.toStdString()};
}

namespace {

int screenWidthTwips() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    // At 100 %; what zooms the main window scales it with the window.
    return screen ? static_cast<int>(toTwips(screen->geometry().width(), 1.0)) : 19200;
}

}  // namespace

BrelkApp::BrelkApp(AppInfo app)
    : dialogs_([this](const std::function<void()>& a) { return input_(a); }) {
    const Guard program = [this](const std::function<void()>& a) { return program_->guarded(a); };
    services_ = std::make_unique<Services>(Services{clock_, dialogs_, windows_, std::move(app), screenWidthTwips()});
    program_ = std::make_unique<Brelk>(*services_);
    // The end is at once: no window is asked whether it may close.
    program_->setEndListener([this] {
        for (const auto& action : endActions_) action();
        QCoreApplication::exit(0);
    });
    driver_ = std::make_unique<RealTimeDriver>(clock_, program);
    input_ = driver_->inputGuard(program);
    // The window exists before the form loads, so that the position and the
    // stay-on-top state read at start go straight to it.
    window_ = createMainWindow(program_->frmMain, input_);
    dialogs_.setParentWindow(window_.get());
    windows_.setMainWindow(window_.get());
}

BrelkApp::~BrelkApp() = default;

bool BrelkApp::start() {
    if (!program_->guarded([&] { program_->start(); })) return false;
    window_->show();
    driver_->start();
    return true;
}

}  // namespace brelk::view
