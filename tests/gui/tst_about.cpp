#include <QApplication>
#include <QDesktopServices>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>

#include "GuiTestRegistry.h"
#include "MainWindow.h"
#include "QtDialogs.h"
#include "Twips.h"
#include "about/AboutForm.h"
#include "about/OpenWeb.h"
#include "forms/Brelk.h"
#include "platform/TimerScheduler.h"

using namespace brelk;

// The About window as Qt shows it over the main window, opened from the
// menu and used with real input. The program's clock moves only when the
// test says; the desktop's opener of https addresses is the test's own, so
// the page asked for is seen and no browser starts.
class AboutWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    TimerScheduler clock_;
    view::Guard guard_ = [this](const std::function<void()>& a) { return program_->guarded(a); };
    view::QtDialogs dialogs_{guard_};
    view::QtWindowSystem windows_;
    std::unique_ptr<Services> services_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<view::FormView> main_;
    QList<QUrl> asked_;

    void wait(int ms) { guard_([&] { clock_.advanceBy(ms); }); }
    void placeMain(double left, double top) {
        guard_([&] {
            program_->frmMain.self().setNumber(Prop::Left, left);
            program_->frmMain.self().setNumber(Prop::Top, top);
        });
    }
    static QWidget* part(view::FormView& about, const char* name) { return about.findChild<QWidget*>(name); }
    static QPoint centreOf(view::FormView& about, const char* name) {
        QWidget* w = part(about, name);
        return w ? w->mapTo(&about, w->rect().center()) : QPoint();
    }

    // Opens the window from the menu and runs `checks` on it from inside its
    // modal wait. The checks close it; if one fails first, the window is
    // closed here so that the wait ends.
    void openAbout(const std::function<void(view::FormView&)>& checks) {
        bool ran = false;
        QTimer::singleShot(0, this, [&] {
            ran = true;
            [&] {
                auto* about = qobject_cast<view::FormView*>(QApplication::activeModalWidget());
                QVERIFY(about && about->objectName() == "frmAbout");
                checks(*about);
            }();
            if (program_->frmAbout) guard_([&] { program_->frmAbout->Unload(); });
        });
        guard_([&] { program_->frmMain.raise(program_->frmMain.at("mnuAbout"), Event::Click); });
        QVERIFY(ran);
        QVERIFY(!program_->frmAbout);
        QVERIFY(!QApplication::activeModalWidget());
        // Stay-on-top, lifted while the window was open, is back.
        QVERIFY(windows_.topmost());
    }

public slots:
    void pageAsked(const QUrl& url) { asked_.append(url); }

private slots:
    void initTestCase() {
        QVERIFY(dir_.isValid());
        services_ = std::make_unique<Services>(
            Services{clock_, dialogs_, windows_, AppInfo{dir_.path().toStdString(), "brelk"}, 19200});
        program_ = std::make_unique<Brelk>(*services_);
        main_ = view::createMainWindow(program_->frmMain, guard_);
        dialogs_.setParentWindow(main_.get());
        windows_.setMainWindow(main_.get());
        QVERIFY(guard_([&] { program_->start(); }));
        main_->show();
        QVERIFY(QTest::qWaitForWindowExposed(main_.get()));
        QDesktopServices::setUrlHandler("https", this, "pageAsked");
    }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler("https"); }

    void opensOnTheMainWindowRollsAndClosesByEnter() {
        placeMain(4500, 3000);
        openAbout([&](view::FormView& about) {
            QWindow* window = about.windowHandle();
            QVERIFY(QTest::qWaitForWindowExposed(window));
            QVERIFY(!windows_.topmost());
            // The program's frame, no box in it; on the main window's middle.
            QVERIFY(about.windowFlags().testFlag(Qt::FramelessWindowHint));
            QCOMPARE(about.size(), QSize(374, 278));
            const QPoint offset = about.geometry().center() - main_->geometry().center();
            QVERIFY2(offset.manhattanLength() <= 2, "not centred on the main window");
            QCOMPARE(part(about, "picIcon")->cursor().shape(), Qt::PointingHandCursor);
            QCOMPARE(part(about, "Label2")->cursor().shape(), Qt::PointingHandCursor);

            // ">>" opens the panel; the text rolls up behind the masks.
            QTest::mouseClick(window, Qt::LeftButton, {}, centreOf(about, "cmdThx"));
            QCOMPARE(about.width(), 515);
            wait(1000);
            QWidget* text = part(about, "lblThx");
            QCOMPARE(text->y(), view::pixelRect(0, 2175 * kAboutTwipsPerUnitY, 0, 0).y());
            QWidget* client = about.clientArea();
            const QRect hidden = text->geometry() & part(about, "Label4")->geometry() & client->rect();
            QVERIFY(!hidden.isEmpty());
            QWidget* top = about.childAt(client->mapTo(&about, hidden.center()));
            QCOMPARE(top ? top->objectName() : QString(), QString("Label4"));

            // The link underlines under the pointer and goes out over the bare window.
            Control& link = program_->frmAbout->at("Label2");
            QTest::mouseMove(window, centreOf(about, "Label2"));
            QVERIFY(link.flag(Prop::FontUnderline));
            // Left of the description, under the icon: 600, 1500 twips.
            QTest::mouseMove(window, about.clientArea()->mapTo(&about, QPoint(40, 100)));
            QVERIFY(!link.flag(Prop::FontUnderline));

            // The link and the icon ask the desktop for the program's page.
            asked_.clear();
            QTest::mouseClick(window, Qt::LeftButton, {}, centreOf(about, "Label2"));
            QTest::mouseClick(window, Qt::LeftButton, {}, centreOf(about, "picIcon"));
            const QUrl page(QString::fromStdString(webPageAddress()));
            QCOMPARE(asked_, QList<QUrl>({page, page}));
            QVERIFY(program_->frmAbout->isLoaded());

            // The panel's button left the focus on "OK": Enter closes the window.
            QWidget* focused = about.focusWidget();
            QVERIFY(focused && focused->objectName() == "cmdOK");
            QTest::keyClick(focused, Qt::Key_Return);
            QVERIFY(!program_->frmAbout->isLoaded());
        });
    }

    void staysOnTheScreenAndClosesByEsc() {
        // The main window in the screen's corner: centred, the window would
        // reach past the screen's top left edge.
        placeMain(0, 0);
        openAbout([&](view::FormView& about) {
            QCOMPARE(about.pos(), QPoint(0, 0));
            QCOMPARE(program_->frmAbout->self().number(Prop::Left), 0.0);
            QTest::keyClick(&about, Qt::Key_Escape);
            QVERIFY(!program_->frmAbout->isLoaded());
        });
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new AboutWindowTest; });

#include "tst_about.moc"
