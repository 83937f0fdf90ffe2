#include <QTemporaryDir>
#include <QTest>

#include "BrelkApp.h"
#include "GuiTestRegistry.h"
#include "Twips.h"
#include "forms/Brelk.h"

using namespace brelk;

// The program as it runs: its clock on real time, input through the driver
// as the window system hands it over, Qt's own boxes.
class ViewFaultsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<view::BrelkApp> app_;

    Program& program() { return app_->program(); }
    MainForm& f() { return program().frmMain; }
    view::FormView& window() { return app_->window(); }
    QWindow* handle() { return window().windowHandle(); }

private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>(QCoreApplication::applicationDirPath() + "/viewfaults-XXXXXX");
        app_ = std::make_unique<view::BrelkApp>(AppInfo{dir_->path().toStdString(), "brelk", 1, 0, 0});
        QVERIFY(app_->start());
        QVERIFY(QTest::qWaitForWindowExposed(&window()));
    }

    void cleanup() { app_.reset(); }

    void aDragMovesTheWindowByThePointersMovementWhereverQtThinksItIs() {
        // A window manager that frames the window before placing it leaves
        // Qt's idea of its place at the screen's corner until the first
        // resize; the pointer's place on the screen tells where it really is.
        const QPoint real = window().pos() + QPoint(200, 100), grip(60, 12);  // on the caption
        const auto send = [&](QEvent::Type type, Qt::MouseButtons held, Qt::MouseButton b, QPoint moved) {
            QTest::lastMouseTimestamp += 20;
            qt_handleMouseEvent(handle(), grip, real + grip + moved, held, b, type, {}, QTest::lastMouseTimestamp);
            QCoreApplication::processEvents();
        };
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, {});
        send(QEvent::MouseMove, Qt::LeftButton, Qt::NoButton, QPoint(30, 20));
        send(QEvent::MouseButtonRelease, Qt::NoButton, Qt::LeftButton, QPoint(30, 20));
        QTest::lastMouseTimestamp += QTest::mouseDoubleClickInterval;
        QCOMPARE(window().pos(), real + QPoint(30, 20));
        QCOMPARE(f().self().number(Prop::Top), view::toTwips(real.y() + 20));
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new ViewFaultsTest; });

#include "tst_viewfaults.moc"
