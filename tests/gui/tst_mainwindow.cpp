#include <QAbstractButton>
#include <QMessageBox>
#include <QScreen>
#include <QWheelEvent>

#include <optional>
#include <string>
#include <vector>

#include "GuiTestRegistry.h"
#include "RealProgram.h"
#include "ScriptedDialogs.h"
#include "forms/Lifecycle.h"
#include "view/controls/LabelView.h"
#include "view/drawing/Twips.h"
#include "zoom/qt/WindowZoom.h"

using namespace brelk;

// The main window, its clock moved by hand; input goes to the window at a
// widget's place, so Qt finds the widget that is on top there.
class MainWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<RealProgram<doubles::ScriptedDialogs>> p_;

    MainForm& f() { return p_->program->frmMain; }
    view::FormView& window() { return *p_->main; }
    QWindow* handle() { return window().windowHandle(); }

    QWidget* widget(Control& c) {
        QWidget* w = window().findChild<QWidget*>(QString::fromStdString(c.displayName()));
        if (!w) qWarning("no widget named %s", c.displayName().c_str());
        return w;
    }
    // A point of a widget in window coordinates; the centre unless told.
    QPoint at(Control& c, std::optional<QPoint> inside = std::nullopt) {
        QWidget* w = widget(c);
        return w ? w->mapTo(&window(), inside.value_or(w->rect().center())) : QPoint();
    }
    QWidget* topWidgetAt(QPoint windowPoint) { return window().childAt(windowPoint); }
    void click(Control& c, Qt::MouseButton b = Qt::LeftButton) { QTest::mouseClick(handle(), b, {}, at(c)); }

    // A shipped map, loaded as the coach does it: a double click on the map name.
    void loadMap(const QString& name = "Aerowalk.txt") {
        QFile::remove(p_->dir.filePath(name));
        QVERIFY(QFile::copy(BRELK_SOURCE_DIR "/maps/" + name, p_->dir.filePath(name)));
        p_->dialogs.openAnswers.push_back({name.toStdString()});
        QTest::mouseDClick(handle(), Qt::LeftButton, {}, at(f().lblMapName(1)));
    }
    void startMatch() {
        click(f().lblMatchTimer());
        QCOMPARE(p_->program->vars.MatchState, std::string("going"));
    }

    // The widget agrees with its control (shown, place, tooltip, and a label's
    // very picture as a new widget draws it), at the window's zoom.
    void expectShows(Control& c) {
        QWidget* w = widget(c);
        QVERIFY(w);
        QCOMPARE(w->isHidden(), !c.visible());
        QCOMPARE(w->geometry(), view::pixelRect(c.number(Prop::Left), c.number(Prop::Top), c.number(Prop::Width),
                                                c.number(Prop::Height), window().zoom()));
        QCOMPARE(w->toolTip().toStdString(), c.get(Prop::ToolTipText).text());
        if (c.kind() != ControlKind::Label) return;
        const view::ViewContext context{f(), {}, window().zoom()};
        view::LabelView fresh(c, context, nullptr);
        fresh.syncAll();
        QCOMPARE(w->grab().toImage().convertToFormat(QImage::Format_RGB32),
                 fresh.grab().toImage().convertToFormat(QImage::Format_RGB32));
    }

private slots:
    void init() {
        p_ = std::make_unique<RealProgram<doubles::ScriptedDialogs>>();
        QVERIFY(QTest::qWaitForWindowExposed(&window()));
    }

    void cleanup() { p_.reset(); }

    void theEmptyWindowHasItsOwnFrameAndStaysOnTopAsSwitched() {
        // No frame of the window system, no task-bar entry, an icon of its own.
        QVERIFY(window().windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(window().windowFlags() & Qt::WindowType_Mask, Qt::Tool);
        QVERIFY(window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(!window().windowIcon().isNull());
        // 60 twips of border and a 285-twip caption around the form.
        QCOMPARE(window().clientArea()->geometry(), QRect(4, 23, 129, 20));
        // Stay-on-top switched while shown: the window stays shown, in place and frameless.
        for (int top : {0, -1}) {
            p_->program->guarded([&] { AlwaysOnTop(*p_->program, top); });
            QCOMPARE(window().windowFlags().testFlag(Qt::WindowStaysOnTopHint), top != 0);
            QVERIFY(window().isVisible());
            QCOMPARE(window().pos(), QPoint(40, 40));
        }
    }

    void aLoadedMapShowsItsRowsAsWidgetsOfTheirOwn() {
        loadMap();
        // Nine rows end at 4950, the window 500 lower and 2530 wide with the
        // next-respawn column.
        QCOMPARE(window().size(), QSize(169, 363));
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
        const int rows = p_->program->vars.ItemCount;
        QVERIFY(rows < 9);
        QVERIFY(window().findChild<QWidget*>(QString("lblFond(%1)").arg(rows)));
        QVERIFY(!window().findChild<QWidget*>(QString("lblFond(%1)").arg(rows + 1)));
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
        window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        p_->dialogs.popupAnswers.push_back({"mnuMatchTimerSet"});
        QTest::mousePress(handle(), Qt::RightButton, {}, at(f().lblMatchTimer()));
        QVERIFY(!p_->dialogs.lastPopup);  // the release opens it, not the press
        QTest::mouseRelease(handle(), Qt::RightButton, {}, at(f().lblMatchTimer()));
        QCOMPARE(p_->dialogs.lastPopup, std::optional<std::string>("mnuMatchTimer"));
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
        QCOMPARE(p_->program->vars.MatchState, std::string("going"));
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, at(f().lblMatchStatus()));
    }

    void aDragOnTheBackgroundMovesTheWindowButOneOnARowDoesNot() {
        loadMap();
        const QPoint gap = window().clientArea()->mapTo(&window(), QPoint(50, 22)), row = at(f().lblFond(2));
        const QPoint start = window().pos();
        for (const QPoint grip : {gap, row}) {
            QTest::mousePress(handle(), Qt::LeftButton, {}, grip);
            QTest::mouseMove(handle(), grip + QPoint(-10, 5));
            QTest::mouseRelease(handle(), Qt::LeftButton, {}, grip);  // where the pointer is, in the moved window
        }
        QCOMPARE(window().pos(), start + QPoint(-10, 5));
    }

    void aZoomedWindowShowsTheSameFormLargerFromTheSameCorner() {
        loadMap();
        window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        // What the form holds of its controls' geometry and fonts.
        const auto designed = [&] {
            std::vector<double> numbers;
            for (Control* c : f().controls())
                for (Prop p : {Prop::Left, Prop::Top, Prop::Width, Prop::Height, Prop::FontSize})
                    if (c != &f().self() && c->has(p)) numbers.push_back(c->number(p));
            return numbers;
        };
        const std::vector<double> before = designed();
        const QPoint corner = window().pos();
        const QSize size = window().size();
        const int text = widget(f().cmdMinPlus())->font().pixelSize();
        zoom::qt::WindowZoom zoom(*p_);

        // Ctrl and + (or =) twice: 150 %, 10 twips a pixel, from the same corner.
        QTest::keyClick(&window(), Qt::Key_Plus, Qt::ControlModifier);
        QTest::keyClick(&window(), Qt::Key_Equal, Qt::ControlModifier);
        QCOMPARE(zoom.percent(), 150);
        QCOMPARE(window().pos(), corner);
        QCOMPARE(f().self().number(Prop::Left), 10.0 * corner.x());
        QVERIFY(qAbs(window().width() - 1.5 * size.width()) <= 1);
        QVERIFY(qAbs(widget(f().cmdMinPlus())->font().pixelSize() - 1.5 * text) <= 1);
        for (std::int16_t i = 1; i <= 9; ++i) expectShows(f().lblItem(i));
        QCOMPARE(p_->windows.screenWidth(), 10 * QGuiApplication::primaryScreen()->geometry().width());  // twips of this zoom

        // Ctrl and the wheel turned back a notch over a row: 125 %; Ctrl and 0: 100 %, as before.
        QWheelEvent notch({5, 5}, {}, {}, {0, -120}, {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget(f().lblItem(2)), &notch);
        QCOMPARE(zoom.percent(), 125);
        QTest::keyClick(&window(), Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(window().size(), size);
        QCOMPARE(designed(), before);
    }

    void closingTheWindowEndsTheProgramAsItsUnloadDoes() {
        loadMap();
        QFile::remove(p_->dir.filePath("brelk.ini"));
        QVERIFY(window().close());
        QVERIFY(p_->program->ended());
        QVERIFY(!window().isVisible());
        QFile profile(p_->dir.filePath("brelk.ini"));  // it has the window's place
        QVERIFY(profile.open(QIODevice::ReadOnly) && profile.readAll().contains("PosX=600"));
    }

    void itsBoxesAreNativeWithTheirTitlesButtonsAndIcons() {
        // The program's boxes as Qt shows them: title, buttons, icon, plain text.
        const view::Guard plain = [](const std::function<void()>& a) { return a(), true; };
        view::QtDialogs boxes(plain);
        struct Row { int style; QString title; int buttons, icon, press, result; };
        for (const Row& r : {Row{msgbox::Critical, "WTF ?!", QMessageBox::Ok, QMessageBox::Critical, QMessageBox::Ok,
                                msgbox::Ok},
                            Row{msgbox::OkCancel, "/overwrite ?", QMessageBox::Ok | QMessageBox::Cancel,
                                QMessageBox::NoIcon, QMessageBox::Cancel, msgbox::Cancel}}) {
            bool seen = false;  // checked from inside the box's own event loop
            QTimer::singleShot(0, [&] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
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
