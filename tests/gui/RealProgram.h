#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <type_traits>

#include "forms/Brelk.h"
#include "platform/TimerScheduler.h"
#include "seam/Seam.h"
#include "seam/qt/Host.h"
#include "view/services/QtDialogs.h"
#include "view/window/MainWindow.h"

// A program started in a folder of its own, over the real main window and Qt's
// dialogs or the test's; its clock moves only when the test says.
template <class DialogsType = brelk::view::QtDialogs>
struct RealProgram : brelk::seam::qt::Host {
    QTemporaryDir dir;
    brelk::TimerScheduler clock;
    brelk::view::Guard guard = [this](const std::function<void()>& a) { return program->guarded(a); };
    DialogsType dialogs = [this] {
        if constexpr (std::is_same_v<DialogsType, brelk::view::QtDialogs>) return DialogsType(guard);
        else return DialogsType(clock, dir.path().toStdString());
    }();
    brelk::view::QtWindowSystem windows;
    brelk::Services services{clock, dialogs, windows, brelk::AppInfo{dir.path().toStdString(), "brelk", 1, 0, 0}};
    std::unique_ptr<brelk::Program> program = std::make_unique<brelk::Brelk>(services);
    std::unique_ptr<brelk::view::FormView> main = brelk::view::createMainWindow(program->frmMain, guard);
    brelk::seam::Seam seamOfIt{*program, guard};

    RealProgram() {
        if constexpr (std::is_same_v<DialogsType, brelk::view::QtDialogs>) dialogs.setParentWindow(main.get());
        windows.setMainWindow(main.get());
        guard([&] { program->start(); });
        main->show();
    }

    // The host of a feature under test: no menu entries, no notices.
    brelk::seam::Seam& seam() override { return seamOfIt; }
    void addMenu(std::function<void(QMenu&)>) override {}
    void notice(const QString&) override {}
    QWidget& mainWindow() override { return *main; }
    double zoom() const override { return main->zoom(); }
    void setZoom(double zoom) override { main->setZoom(zoom); }
    void atEnd(std::function<void()>) override {}

    // Chooses a menu entry that opens a modal window and runs `steps` in it.
    // True when they ran and closed the window; if they did not, it is closed here.
    bool withModal(const char* entry, const std::function<void(brelk::view::FormView&)>& steps) {
        bool closed = false;
        QTimer::singleShot(0, [&] {
            auto* window = qobject_cast<brelk::view::FormView*>(QApplication::activeModalWidget());
            closed = window && QTest::qWaitForWindowActive(window);
            if (closed) steps(*window);
            for (brelk::Form* form : {program->frmOptions.get(), program->frmAbout.get()})
                if (form && form->isLoaded()) {
                    closed = false;
                    guard([&] { form->Unload(); });
                }
        });
        guard([&] { program->frmMain.raise(program->frmMain.at(entry), brelk::Event::Click); });
        return closed && !program->frmOptions && !program->frmAbout;
    }
};
