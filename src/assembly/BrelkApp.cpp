#include "assembly/BrelkApp.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "callouts/qt/QtCallOuts.h"
#include "forms/Brelk.h"
#include "install/Locations.h"
#include "seam/Seam.h"
#include "view/services/RealTimeDriver.h"
#include "view/window/FormView.h"
#include "view/window/MainWindow.h"
#include "view/window/Notice.h"
#include "zoom/qt/QtZoom.h"

namespace brelk::assembly {

// A refusal of a command that no click gave (a key, a command line action),
// and a file that could not be written, are told in a notice beside the
// window: nothing takes the focus from the game.
class Notices {
public:
    explicit Notices(BrelkApp& app)
        : listening_(app.seam().listen([&app](const seam::MatchEvent& e) {
              const bool told = (e.what == seam::Happening::CommandRefused && e.source != seam::Source::Click) ||
                                e.what == seam::Happening::NotSaved;
              if (told) app.notice(QString::fromStdString(e.words));
          })) {}

private:
    seam::Seam::Subscription listening_;
};

AppInfo executableInfo() {
    const install::Locations where = install::programLocations(QCoreApplication::applicationDirPath());
    return AppInfo{.path = where.settingsDir.toStdString(),
                   .exeName = QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName().toStdString(),
                   .mapDir = where.mapDir.toStdString()};
}

BrelkApp::BrelkApp(AppInfo app, Options options)
    : dialogs_([this](const std::function<void()>& a) { return input_(a); }), options_(options) {
    const view::Guard program = [this](const std::function<void()>& a) { return program_->guarded(a); };
    services_ = std::make_unique<Services>(Services{clock_, dialogs_, windows_, std::move(app)});
    program_ = std::make_unique<Brelk>(*services_);
    // The end is at once: no window is asked whether it may close.
    program_->setEndListener([this] {
        for (const auto& action : endActions_) action();
        if (options_.exitAtEnd) QCoreApplication::exit(0);
    });
    driver_ = std::make_unique<view::RealTimeDriver>(clock_, program);
    input_ = driver_->inputGuard(program);
    // The window exists before the form loads, so that the position and the
    // stay-on-top state read at start go straight to it.
    window_ = view::createMainWindow(program_->frmMain, input_);
    dialogs_.setParentWindow(window_.get());
    windows_.setMainWindow(window_.get());
    seam_ = std::make_unique<seam::Seam>(*program_, input_);
    notice_ = std::make_unique<view::Notice>(*window_);
    notices_ = std::make_unique<Notices>(*this);

    callOuts_ = std::make_unique<callouts::qt::QtCallOuts>(*this);
    zoom_ = std::make_unique<zoom::qt::QtZoom>(*this);
}

BrelkApp::~BrelkApp() {
    zoom_.reset();
    callOuts_.reset();
}

bool BrelkApp::start() {
    if (!program_->guarded([&] { program_->start(); })) return false;
    window_->show();
    if (options_.realTime) driver_->start();
    return true;
}

void BrelkApp::addMenu(std::function<void(QMenu&)> add) { dialogs_.addMenuExtension("mnuOptions", std::move(add)); }

void BrelkApp::notice(const QString& text) { notice_->show(text); }

QWidget& BrelkApp::mainWindow() { return *window_; }

double BrelkApp::zoom() const { return window_->zoom(); }

void BrelkApp::setZoom(double zoom) { window_->setZoom(zoom); }

}  // namespace brelk::assembly
