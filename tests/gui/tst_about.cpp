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

// The About window as Qt shows it over the main window, opened from the menu
// and used with real input. The clock moves only when the test says; the
// desktop's opener of https addresses is the test's own, so the page asked
// for is seen and no browser starts.
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
    static QWidget* part(view::FormView& about, const char* name) { return about.findChild<QWidget*>(name); }
    static QPoint centreOf(view::FormView& about, const char* name) {
        QWidget* w = part(about, name);
        return w ? w->mapTo(&about, w->rect().center()) : QPoint();
    }

    // Puts the main window at `left`, `top` twips, opens the About window from
    // the menu and runs `checks` inside its modal wait. The checks close it;
    // if one fails first, it is closed here so that the wait ends.
    void openAbout(double left, double top, const std::function<void(view::FormView&)>& checks) {
        guard_([&] {
            program_->frmMain.self().setNumber(Prop::Left, left);
            program_->frmMain.self().setNumber(Prop::Top, top);
        });
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
        QVERIFY(!program_->frmAbout && !QApplication::activeModalWidget());
        QVERIFY(windows_.topmost());  // lifted while the window was open, back now
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
        openAbout(4500, 3000, [&](view::FormView& about) {
            QWindow* window = about.windowHandle();
            QVERIFY(QTest::qWaitForWindowExposed(window));
            QVERIFY(!windows_.topmost());
            // The program's own frame, no box in it, on the main window's middle.
            QVERIFY(about.windowFlags().testFlag(Qt::FramelessWindowHint));
            const QPoint offset = about.geometry().center() - main_->geometry().center();
            QVERIFY2(offset.manhattanLength() <= 2, "not centred on the main window");
            QCOMPARE(part(about, "picIcon")->cursor().shape(), Qt::PointingHandCursor);
            QCOMPARE(part(about, "Label2")->cursor().shape(), Qt::PointingHandCursor);

            // ">>" widens the window; the text rolls up, in the window's units, behind the masks.
            QTest::mouseClick(window, Qt::LeftButton, {}, centreOf(about, "cmdThx"));
            QCOMPARE(about.width(), 515);
            wait(1000);
            QWidget* text = part(about, "lblThx");
            QCOMPARE(text->y(), view::pixelRect(0, 2175 * kAboutTwipsPerUnitY, 0, 0, 1).y());
            QWidget* client = about.clientArea();
            const QRect hidden = text->geometry() & part(about, "Label4")->geometry() & client->rect();
            QWidget* top = about.childAt(client->mapTo(&about, hidden.center()));
            QCOMPARE(top ? top->objectName() : QString(), QString("Label4"));

            // The pointer lights the link up; over the bare window (600, 1500 twips) it goes out.
            Control& link = program_->frmAbout->at("Label2");
            QTest::mouseMove(window, centreOf(about, "Label2"));
            QVERIFY(link.flag(Prop::FontUnderline));
            QTest::mouseMove(window, client->mapTo(&about, QPoint(40, 100)));
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
        // Centred on a main window in the screen's corner, it would reach past the edge.
        openAbout(0, 0, [&](view::FormView& about) {
            QCOMPARE(about.pos(), QPoint(0, 0));
            QCOMPARE(program_->frmAbout->self().number(Prop::Left), 0.0);
            QTest::keyClick(&about, Qt::Key_Escape);
            QVERIFY(!program_->frmAbout->isLoaded());
        });
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new AboutWindowTest; });

#include "tst_about.moc"
