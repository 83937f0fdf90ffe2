#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "GuiTestRegistry.h"
#include "ScriptedDialogs.h"
#include "LabelView.h"
#include "MainWindow.h"
#include "QtDialogs.h"
#include "Twips.h"
#include "map/Loader.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/TimerScheduler.h"
#include "forms/Brelk.h"
#include "forms/Lifecycle.h"
#include "zoom/qt/WindowZoom.h"

using namespace brelk;

namespace {

// Runs `check` on the modal widget that the next call opens, from inside its
// own event loop.
void whenOpen(std::function<void(QWidget*)> check) {
    QTimer::singleShot(0, [check = std::move(check)] { check(QApplication::activeModalWidget()); });
}

}  // namespace

// The main window over a program whose clock the test moves by hand. Input
// goes in as the window system gives it: QTest events on the window at the
// place of a widget, so Qt finds the widget that is on top there.
class MainWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    TimerScheduler clock_;
    std::optional<doubles::ScriptedDialogs> dialogs_;
    view::QtWindowSystem windows_;
    std::unique_ptr<Services> services_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<view::FormView> window_;

    MainForm& f() { return program_->frmMain; }
    QWindow* handle() { return window_->windowHandle(); }
    void wait(int ms) { program_->guarded([&] { clock_.advanceBy(ms); }); }

    QWidget* widget(Control& c) {
        QWidget* w = window_->findChild<QWidget*>(QString::fromStdString(c.displayName()));
        if (!w) qWarning("no widget named %s", c.displayName().c_str());
        return w;
    }
    // A point of a widget in window coordinates; the centre unless told.
    QPoint at(Control& c, std::optional<QPoint> inside = std::nullopt) {
        QWidget* w = widget(c);
        return w ? w->mapTo(window_.get(), inside.value_or(w->rect().center())) : QPoint();
    }
    QWidget* topWidgetAt(QPoint windowPoint) { return window_->childAt(windowPoint); }
    void click(Control& c, Qt::MouseButton b = Qt::LeftButton) { QTest::mouseClick(handle(), b, {}, at(c)); }

    // A shipped map, loaded as the coach does it: a double click on the map name.
    void loadMap(const QString& name = "Aerowalk.txt") {
        QFile::remove(dir_.filePath(name));
        QVERIFY(QFile::copy(BRELK_SOURCE_DIR "/maps/" + name, dir_.filePath(name)));
        dialogs_->openAnswers.push_back({name.toStdString()});
        QTest::mouseDClick(handle(), Qt::LeftButton, {}, at(f().lblMapName(1)));
    }
    void startMatch() {
        click(f().lblMatchTimer());
        QCOMPARE(program_->vars.MatchState, std::string("going"));
    }

    // The widget agrees with its control: shown or hidden, place, tooltip,
    // and for a label the very picture a new widget of the control draws,
    // all at the window's zoom.
    void expectShows(Control& c) {
        QWidget* w = widget(c);
        QVERIFY(w);
        QCOMPARE(w->isHidden(), !c.visible());
        QCOMPARE(w->geometry(), view::pixelRect(c.number(Prop::Left), c.number(Prop::Top), c.number(Prop::Width),
                                                c.number(Prop::Height), window_->zoom()));
        QCOMPARE(w->toolTip().toStdString(), c.get(Prop::ToolTipText).text());
        if (c.kind() != ControlKind::Label) return;
        const view::ViewContext context{f(), {}, window_->zoom()};
        view::LabelView fresh(c, context, nullptr);
        fresh.syncAll();
        QCOMPARE(w->grab().toImage().convertToFormat(QImage::Format_RGB32),
                 fresh.grab().toImage().convertToFormat(QImage::Format_RGB32));
    }

private slots:
    void init() {
        QDir(dir_.path()).removeRecursively();
        QDir().mkpath(dir_.path());
        dialogs_.emplace(clock_, dir_.path().toStdString());
        services_ = std::make_unique<Services>(
            Services{clock_, *dialogs_, windows_, AppInfo{dir_.path().toStdString(), "brelk"}, 19200});
        program_ = std::make_unique<Brelk>(*services_);
        window_ = view::createMainWindow(f(), [this](const std::function<void()>& a) { return program_->guarded(a); });
        windows_.setMainWindow(window_.get());
        program_->guarded([&] { program_->start(); });
        QVERIFY(window_->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void cleanup() {
        window_.reset();
        program_.reset();
    }

    void theEmptyWindowHasItsOwnFrameAndStaysOnTopAsSwitched() {
        // No frame of the window system, no task-bar entry, an icon of its own.
        QVERIFY(window_->windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(window_->windowFlags() & Qt::WindowType_Mask, Qt::Tool);
        QVERIFY(window_->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(!window_->windowIcon().isNull());
        // 60 twips of border and a 285-twip caption around the form.
        QCOMPARE(window_->clientArea()->geometry(), QRect(4, 23, 129, 20));
        // Stay-on-top switched while shown: the window stays shown, in place and frameless.
        for (int top : {0, -1}) {
            program_->guarded([&] { AlwaysOnTop(*program_, top); });
            QCOMPARE(window_->windowFlags().testFlag(Qt::WindowStaysOnTopHint), top != 0);
            QVERIFY(window_->isVisible());
            QCOMPARE(window_->pos(), QPoint(40, 40));
        }
    }

    void aLoadedMapShowsItsRowsAsWidgetsOfTheirOwn() {
        loadMap();
        // Three categories and nine rows: the list ends at 4950 and the
        // window 500 lower, so 85 twips show under the last strip. The
        // next-respawn column makes it 480 wider, 2530 in all.
        QCOMPARE(window_->size(), QSize(169, 363));
        for (std::int16_t i : {1, 9})
            for (Control* c : {&f().lblFond(i), &f().lblItem(i), &f().lblTimer(i), &f().ico(i), &f().lblTimerGlobal(i)})
                expectShows(*c);
        for (Control* c : {&f().lblMapName(1), &f().lblCat(3)}) expectShows(*c);
        // The strip lies behind the row's other controls: its icon and
        // timer get the mouse; the strip takes what is left of it.
        QCOMPARE(topWidgetAt(at(f().ico(1), QPoint(2, 10))), widget(f().ico(1)));
        QCOMPARE(topWidgetAt(at(f().ico(1))), widget(f().lblItem(1)));  // the name lies over the icon
        QCOMPARE(topWidgetAt(at(f().lblFond(1), QPoint(3, 12))), widget(f().lblFond(1)));

        // A second load removes the rows it does not make again.
        loadMap("Longest Yard.txt");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const int rows = program_->vars.ItemCount;
        QVERIFY(rows < 9);
        QVERIFY(window_->findChild<QWidget*>(QString("lblFond(%1)").arg(rows)));
        QVERIFY(!window_->findChild<QWidget*>(QString("lblFond(%1)").arg(rows + 1)));
    }

    void clicksOnRowsStartHoldResumeAndReset() {
        loadMap();
        startMatch();
        click(f().ico(1));
        QVERIFY(f().timerItem(1).enabled());

        // Held while the button is down; the release over another row still
        // belongs to the pressed one.
        QTest::mousePress(handle(), Qt::LeftButton, {}, at(f().lblTimer(1)));
        QVERIFY(!f().timerItem(1).enabled());
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, at(f().lblItem(2)));
        QVERIFY(f().timerItem(1).enabled());
        QVERIFY(!f().timerItem(2).enabled());

        // The right button resets it.
        click(f().lblFond(1), Qt::RightButton);
        QVERIFY(!f().timerItem(1).enabled());
        expectShows(f().lblTimer(1));
    }

    void theClocksRightReleaseOpensTheTunePanelAndEscClosesIt() {
        loadMap();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        dialogs_->popupAnswers.push_back({"mnuMatchTimerSet"});
        QTest::mousePress(handle(), Qt::RightButton, {}, at(f().lblMatchTimer()));
        QVERIFY(!dialogs_->lastPopup);  // the release opens it, not the press
        QTest::mouseRelease(handle(), Qt::RightButton, {}, at(f().lblMatchTimer()));
        QCOMPARE(dialogs_->lastPopup, std::optional<std::string>("mnuMatchTimer"));
        QWidget* panel = widget(f().picTune());
        QVERIFY(panel->isVisible() && panel->isAncestorOf(widget(f().cmdMinPlus())));

        // Buttons take clicks and keys: Tab goes on in the panel's order, Space presses.
        click(f().cmdMinPlus());
        QTest::keyClick(handle(), Qt::Key_Tab);
        QCOMPARE(f().focus(), &f().cmdMinMoins());
        QVERIFY(widget(f().cmdMinMoins())->hasFocus());
        QTest::keyClick(handle(), Qt::Key_Space);
        QCOMPARE(f().lblMatchTimer().caption(), std::string("20:00"));

        // Esc presses the Cancel button, wherever the focus is; the status takes the mouse again.
        QTest::keyClick(handle(), Qt::Key_Escape);
        QVERIFY(!panel->isVisible());
        // The left press starts the clock, before any release.
        QTest::mousePress(handle(), Qt::LeftButton, {}, at(f().lblMatchStatus()));
        QCOMPARE(program_->vars.MatchState, std::string("going"));
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, at(f().lblMatchStatus()));
    }

    void aDragOnTheBackgroundMovesTheWindowButOneOnARowDoesNot() {
        loadMap();
        const QPoint gap = window_->clientArea()->mapTo(window_.get(), QPoint(50, 22)), row = at(f().lblFond(2));
        const QPoint start = window_->pos();
        for (const QPoint grip : {gap, row}) {
            QTest::mousePress(handle(), Qt::LeftButton, {}, grip);
            QTest::mouseMove(handle(), grip + QPoint(-10, 5));
            QTest::mouseRelease(handle(), Qt::LeftButton, {}, grip);  // where the pointer is, in the moved window
        }
        QCOMPARE(window_->pos(), start + QPoint(-10, 5));
    }

    void aZoomedWindowShowsTheSameFormLargerFromTheSameCorner() {
        loadMap();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        // What the form holds of its controls' geometry and fonts.
        const auto designed = [&] {
            std::vector<double> numbers;
            for (Control* c : f().controls())
                for (Prop p : {Prop::Left, Prop::Top, Prop::Width, Prop::Height, Prop::FontSize})
                    if (c != &f().self() && c->has(p)) numbers.push_back(c->number(p));
            return numbers;
        };
        const std::vector<double> before = designed();
        const QPoint corner = window_->pos();
        const QSize size = window_->size();
        const int text = widget(f().cmdMinPlus())->font().pixelSize();
        zoom::qt::WindowZoom zoom(*window_, *services_);

        // Ctrl and + (or =) twice: 150 %, 10 twips a pixel, from the same corner.
        QTest::keyClick(window_.get(), Qt::Key_Plus, Qt::ControlModifier);
        QTest::keyClick(window_.get(), Qt::Key_Equal, Qt::ControlModifier);
        QCOMPARE(zoom.percent(), 150);
        QCOMPARE(window_->pos(), corner);
        QCOMPARE(f().self().number(Prop::Left), 10.0 * corner.x());
        QVERIFY(qAbs(window_->width() - 1.5 * size.width()) <= 1);
        QVERIFY(qAbs(widget(f().cmdMinPlus())->font().pixelSize() - 1.5 * text) <= 1);
        for (std::int16_t i = 1; i <= 9; ++i) expectShows(f().lblItem(i));
        QCOMPARE(services_->screenWidth, 12800);  // the same screen in twips of this zoom

        // Ctrl and the wheel turned back a notch over a row: 125 %; Ctrl and 0: 100 %, as before.
        QWheelEvent notch({5, 5}, {}, {}, {0, -120}, {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget(f().lblItem(2)), &notch);
        QCOMPARE(zoom.percent(), 125);
        QTest::keyClick(window_.get(), Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(window_->size(), size);
        QCOMPARE(designed(), before);
    }

    void closingTheWindowEndsTheProgramAsItsUnloadDoes() {
        loadMap();
        QFile::remove(dir_.filePath("brelk.ini"));
        QVERIFY(window_->close());
        QVERIFY(program_->ended());
        QVERIFY(!window_->isVisible());
        QFile profile(dir_.filePath("brelk.ini"));  // it has the window's place
        QVERIFY(profile.open(QIODevice::ReadOnly) && profile.readAll().contains("PosX=600"));
    }

    void itsBoxesAreNativeWithTheirTitlesButtonsAndIcons() {
        // The program's boxes as Qt shows them: title, buttons, icon, plain text.
        const view::Guard plain = [](const std::function<void()>& a) { return a(), true; };
        view::QtDialogs boxes(plain);
        struct Row { int style; QString title; int buttons, icon, press, result; };
        for (const Row r : {Row{msgbox::Critical, "WTF ?!", QMessageBox::Ok, QMessageBox::Critical, QMessageBox::Ok,
                                msgbox::Ok},
                            Row{msgbox::OkCancel, "/overwrite ?", QMessageBox::Ok | QMessageBox::Cancel,
                                QMessageBox::NoIcon, QMessageBox::Cancel, msgbox::Cancel}}) {
            bool seen = false;
            whenOpen([&](QWidget* open) {
                auto* box = qobject_cast<QMessageBox*>(open);
                seen = box && box->windowTitle() == r.title && int(box->standardButtons()) == r.buttons &&
                       box->icon() == r.icon && box->text() == "Line 3: <b>Mega</b>\n:35";
                if (box) box->button(QMessageBox::StandardButton(r.press))->click();
            });
            QCOMPARE(boxes.msgBox("Line 3: <b>Mega</b>\r\n:35", r.style, r.title.toStdString()), r.result);
            QVERIFY2(seen, qPrintable(r.title));
        }
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new MainWindowTest; });

#include "tst_mainwindow.moc"
