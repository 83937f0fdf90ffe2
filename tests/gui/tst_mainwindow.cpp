#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "GuiTestRegistry.h"
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

using namespace brelk;

namespace {

// Dialogs that open the file asked for, choose a menu entry when told to,
// and remember the popups shown.
class TestDialogs : public Dialogs {
public:
    std::string dir;
    std::optional<std::string> nextFile;
    std::string choose;  // the menu entry the next popup picks
    std::vector<std::string> popups;

    int msgBox(const std::string&, int, const std::string&) override { return msgbox::Ok; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::optional<OpenFileResult> openFile(const OpenFileRequest&) override {
        if (!nextFile) return std::nullopt;
        return OpenFileResult{files::join(dir, *nextFile), *nextFile};
    }
    std::optional<std::int32_t> chooseColor(std::int32_t) override { return std::nullopt; }
    Control* popupMenu(Form& form, Control& menu) override {
        popups.push_back(menu.name());
        return choose.empty() ? nullptr : form.find(choose);
    }
    void showModal(Form&) override {}
};

// Whether some pixel of the image is near `colour` (antialiased text keeps
// its full colour only in the middle of its strokes).
bool hasInk(const QImage& image, QColor colour) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor p = image.pixelColor(x, y);
            if (qAbs(p.red() - colour.red()) + qAbs(p.green() - colour.green()) + qAbs(p.blue() - colour.blue()) < 60)
                return true;
        }
    return false;
}

}  // namespace

// The main window over a program whose clock the test moves by hand. Input
// goes in as the window system gives it: QTest events on the window at the
// place of a widget, so Qt finds the widget that is on top there.
class MainWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    TimerScheduler clock_;
    TestDialogs dialogs_;
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
        dialogs_.nextFile = name.toStdString();
        QTest::mouseDClick(handle(), Qt::LeftButton, {}, at(f().lblMapName(1)));
    }
    void startMatch() {
        click(f().lblMatchTimer());
        QCOMPARE(program_->vars.MatchState, std::string("going"));
    }

    // The widget agrees with its control: shown or hidden, place, tooltip,
    // and for a label the very picture a new widget of the control draws.
    void expectShows(Control& c) {
        QWidget* w = widget(c);
        QVERIFY(w);
        QCOMPARE(w->isHidden(), !c.visible());
        QCOMPARE(w->geometry(), view::pixelRect(c.number(Prop::Left), c.number(Prop::Top), c.number(Prop::Width),
                                                c.number(Prop::Height)));
        QCOMPARE(w->toolTip().toStdString(), c.get(Prop::ToolTipText).text());
        if (c.kind() != ControlKind::Label) return;
        const view::ViewContext context{f(), {}};
        view::LabelView fresh(c, context, nullptr);
        fresh.syncAll();
        QCOMPARE(w->grab().toImage().convertToFormat(QImage::Format_RGB32),
                 fresh.grab().toImage().convertToFormat(QImage::Format_RGB32));
    }

private slots:
    void init() {
        QDir(dir_.path()).removeRecursively();
        QDir().mkpath(dir_.path());
        dialogs_ = TestDialogs{};
        dialogs_.dir = dir_.path().toStdString();
        services_ = std::make_unique<Services>(
            Services{clock_, dialogs_, windows_, AppInfo{dir_.path().toStdString(), "brelk", 1, 0, 0}, 19200});
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
        // 2050 by 700 twips outside, 60 twips of border and a 285-twip caption.
        QCOMPARE(window_->size(), QSize(137, 47));
        QCOMPARE(window_->clientArea()->geometry(), QRect(4, 23, 129, 20));
        QCOMPARE(window_->pos(), QPoint(40, 40));  // the built-in place, 600 by 600 twips
        // The caption strip is drawn in its own colour, not the form's.
        const QImage image = window_->grab().toImage();
        QVERIFY(image.pixelColor(100, 12) != view::toColor(f().self().number(Prop::BackColor)));
        QCOMPARE(image.pixelColor(60, 42), view::toColor(f().self().number(Prop::BackColor)));
        // Stay-on-top switched while shown: the window stays shown, in place and frameless.
        for (int top : {0, -1}) {
            program_->guarded([&] { AlwaysOnTop(*program_, top); });
            QCOMPARE(window_->windowFlags().testFlag(Qt::WindowStaysOnTopHint), top != 0);
            QVERIFY(window_->isVisible());
            QCOMPARE(window_->pos(), QPoint(40, 40));
            QVERIFY(window_->windowFlags().testFlag(Qt::FramelessWindowHint));
        }
    }

    void aLoadedMapShowsItsRowsAsWidgetsOfTheirOwn() {
        loadMap();
        // Three categories and nine rows: the list ends at 4950 and the
        // window 500 lower, so 85 twips show under the last strip. The
        // next-respawn column makes it 480 wider, 2530 in all.
        QCOMPARE(program_->vars.ItemCount, std::int16_t(9));
        QCOMPARE(window_->size(), QSize(169, 363));
        QCOMPARE(widget(f().lblFond(1))->geometry(), QRect(8, 67, 145, 24));
        const QRect client = window_->clientArea()->rect();
        QCOMPARE(client.height() - widget(f().lblFond(9))->geometry().bottom() - 1, 5);
        QCOMPARE(client.width() - widget(f().lblFond(9))->geometry().right() - 1, 8);  // as much as on the left
        for (std::int16_t i = 1; i <= 9; ++i)
            for (Control* c : {&f().lblFond(i), &f().lblItem(i), &f().lblTimer(i), &f().ico(i), &f().lblTimerGlobal(i)})
                expectShows(*c);
        for (Control* c : {&f().lblMapName(0), &f().lblMapName(1), &f().lblCat(1), &f().lblCat(3)}) expectShows(*c);
        QVERIFY(!widget(f().lineCat(2))->isHidden());
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
        QCOMPARE(f().lblTimer(1).caption(), std::string("00:25"));
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
        QCOMPARE(f().lblTimer(1).caption(), std::string("00:00"));
        QVERIFY(!f().timerItem(1).enabled());
        expectShows(f().lblTimer(1));
    }

    void theClocksRightReleaseOpensTheTunePanelAndEscClosesIt() {
        loadMap();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        dialogs_.choose = "mnuMatchTimerSet";
        QTest::mousePress(handle(), Qt::RightButton, {}, at(f().lblMatchTimer()));
        QVERIFY(dialogs_.popups.empty());  // the release opens it, not the press
        QTest::mouseRelease(handle(), Qt::RightButton, {}, at(f().lblMatchTimer()));
        QCOMPARE(dialogs_.popups, std::vector<std::string>{"mnuMatchTimer"});
        QWidget* panel = widget(f().picTune());
        QVERIFY(panel->isVisible());
        QVERIFY(panel->isAncestorOf(widget(f().cmdMinPlus())));

        // Buttons take clicks and keys: Tab goes on in the panel's order, Space presses.
        click(f().cmdMinPlus());
        QCOMPARE(f().lblMatchTimer().caption(), std::string("21:00"));
        QTest::keyClick(handle(), Qt::Key_Tab);
        QCOMPARE(f().focus(), &f().cmdMinMoins());
        QVERIFY(widget(f().cmdMinMoins())->hasFocus());
        QTest::keyClick(handle(), Qt::Key_Space);
        QCOMPARE(f().lblMatchTimer().caption(), std::string("20:00"));
        // A disabled button takes no clicks.
        f().cmdSecMoins().setEnabled(false);
        click(f().cmdSecMoins());
        QCOMPARE(f().lblMatchTimer().caption(), std::string("20:00"));

        // Esc presses the Cancel button, wherever the focus is; the status takes the mouse again.
        QTest::keyClick(handle(), Qt::Key_Escape);
        QVERIFY(!f().picTune().visible());
        QVERIFY(!panel->isVisible());
        QCOMPARE(topWidgetAt(at(f().lblMatchStatus())), widget(f().lblMatchStatus()));
        // The left press starts the clock, before any release.
        QTest::mousePress(handle(), Qt::LeftButton, {}, at(f().lblMatchStatus()));
        QCOMPARE(program_->vars.MatchState, std::string("going"));
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, at(f().lblMatchStatus()));
    }

    void blinkFlashLastSecondsAndPauseAreDrawnAsTheModelHoldsThem() {
        loadMap();
        startMatch();
        const QPoint icon = at(f().ico(4), QPoint(2, 10));
        click(f().ico(4));  // a weapon: 5 seconds
        // The acknowledging blink hides the row for 10 ms: nothing of it takes the click.
        wait(10);
        QVERIFY(!widget(f().ico(4))->isVisible());
        QVERIFY(!widget(f().lblFond(4))->isVisible());
        QCOMPARE(topWidgetAt(icon), window_->clientArea());
        wait(10);
        QCOMPARE(topWidgetAt(icon), widget(f().ico(4)));

        // Last seconds: the timer in its own colour (red); then the flash
        // hides and shows it, and what lies behind shows through.
        const QWidget* timer = widget(f().lblTimer(4));
        const QRect timerRect(timer->mapTo(window_.get(), QPoint()), timer->size());
        wait(1000);
        expectShows(f().lblTimer(4));
        QVERIFY(hasInk(window_->grab(timerRect).toImage(), QColor(255, 0, 0)));
        wait(4000);
        QVERIFY(f().timerFlash(4).enabled());
        wait(333);
        QVERIFY(!timer->isVisible());
        QCOMPARE(topWidgetAt(at(f().lblTimer(4))), widget(f().lblFond(4)));
        wait(333);
        QVERIFY(timer->isVisible());
        expectShows(f().lblTimer(4));

        // Paused: "Paused" in the paused colour, the clock not bold.
        click(f().lblMatchStatus());
        QCOMPARE(program_->vars.MatchState, std::string("paused"));
        expectShows(f().lblMatchStatus());
        expectShows(f().lblMatchTimer());
    }

    void aDragOnTheCaptionOrTheBackgroundMovesTheWindowAndTheForm() {
        loadMap();
        // The pointer moves by (30, 20) and the window with it, so the
        // pointer is back at its first place in the window when released.
        const QPoint start = window_->pos();
        QTest::mousePress(handle(), Qt::LeftButton, {}, QPoint(60, 12));
        QTest::mouseMove(handle(), QPoint(90, 32));
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, QPoint(60, 12));
        QCOMPARE(window_->pos(), start + QPoint(30, 20));
        QCOMPARE(f().self().number(Prop::Left), 15.0 * (start.x() + 30));

        // The background between the map name and the clock moves it too.
        const QPoint gap = window_->clientArea()->mapTo(window_.get(), QPoint(50, 22));
        QCOMPARE(topWidgetAt(gap), window_->clientArea());
        QTest::mousePress(handle(), Qt::LeftButton, {}, gap);
        QTest::mouseMove(handle(), gap + QPoint(-10, 5));
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, gap);
        QCOMPARE(window_->pos(), start + QPoint(20, 25));
        QCOMPARE(f().self().number(Prop::Top), 15.0 * (start.y() + 25));

        // A row does not: it is a row's press, and the window stays.
        const QPoint row = at(f().lblFond(2), QPoint(3, 12));
        QTest::mousePress(handle(), Qt::LeftButton, {}, row);
        QTest::mouseMove(handle(), row + QPoint(15, 15));
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, row + QPoint(15, 15));
        QCOMPARE(window_->pos(), start + QPoint(20, 25));

        // The form's place moves the window, beyond the screen too.
        program_->guarded([&] { f().self().setNumber(Prop::Left, -30000); });
        QCOMPARE(window_->pos().x(), -2000);
        QCOMPARE(f().self().number(Prop::Left), -30000.0);
    }

    void aDoubleClickOnTheMapNameGivesThePlatformsSequence() {
        std::vector<std::string> events;
        for (Event e : {Event::MouseDown, Event::MouseUp, Event::MouseMove, Event::Click, Event::DblClick})
            f().on("lblMapName", e, [&events, e](const EventArgs& a) {
                events.push_back(std::string(eventName(e)) + "(" + std::to_string(a.index) + ") " +
                                 std::to_string(a.button) + " " + std::to_string(a.shift) + " " +
                                 std::to_string(static_cast<int>(a.x)) + "," + std::to_string(static_cast<int>(a.y)));
            });
        QTest::mouseDClick(handle(), Qt::LeftButton, Qt::ShiftModifier, at(f().lblMapName(1), QPoint(10, 5)));
        QCOMPARE(events, (std::vector<std::string>{"MouseDown(1) 1 1 150,75", "MouseUp(1) 1 1 150,75",
                                                   "Click(1) 0 0 0,0", "DblClick(1) 0 0 0,0", "MouseUp(1) 1 1 150,75"}));

        // The right button held and moved off the label: the moves and the
        // release still go to it, with the position on it, and no Click.
        events.clear();
        QTest::mousePress(handle(), Qt::RightButton, {}, at(f().lblMapName(1), QPoint(10, 5)));
        QTest::mouseMove(handle(), at(f().lblMapName(1), QPoint(12, 30)));
        QTest::mouseRelease(handle(), Qt::RightButton, {}, at(f().lblMapName(1), QPoint(12, 30)));
        QCOMPARE(events, (std::vector<std::string>{"MouseDown(1) 2 0 150,75", "MouseMove(1) 2 0 180,450",
                                                   "MouseUp(1) 2 0 180,450"}));
    }

    void anAmpersandShowsAsItselfWhereMnemonicsAreOff() {
        // The map name shows "R&D" as it is; its shadow, with mnemonics on,
        // shows it as "&&" would show there.
        QWidget* name = widget(f().lblMapName(1));
        const auto looks = [&](const char* caption, bool mnemonic) {
            f().lblMapName(1).setCaption(caption);
            f().lblMapName(1).setFlag(Prop::UseMnemonic, mnemonic);
            return name->grab().toImage();
        };
        const QImage off = looks("R&D", false);
        QCOMPARE(looks("R&&D", true), off);
        QVERIFY(looks("R&D", true) != off);
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

    void aRunningMatchDrawnOnADenseScreenIsCrispAndMakesTheScreenshot() {
        loadMap("Campgrounds.txt");
        QVERIFY(program_->vars.ItemCount >= 5);
        startMatch();
        wait(95000);
        // Rows 1 and 3 (the armours, 25 s) and row 4 (the mega, 35 s).
        for (std::int16_t row : {1, 3, 4}) {
            click(f().lblFond(row));
            QVERIFY(f().timerItem(row).enabled());
            wait(row == 4 ? 1100 : 10000);
        }
        // Drawn at two device pixels per logical pixel, pictures and text have
        // detail that the same window drawn at one and doubled has not.
        const auto drawn = [&](qreal density) {
            QPixmap image(window_->size() * density);
            image.setDevicePixelRatio(density);
            image.fill(Qt::transparent);
            window_->render(&image);
            return image;
        };
        const QPixmap shot = drawn(2);
        const QImage dense = shot.toImage(), doubled = drawn(1).toImage().scaled(window_->size() * 2);
        for (Control* c : {&f().ico(1), &f().lblTimer(1)}) {
            const QRect area(widget(*c)->mapTo(window_.get(), QPoint()) * 2, widget(*c)->size() * 2);
            int differing = 0;
            for (int y = area.top(); y <= area.bottom(); ++y)
                for (int x = area.left(); x <= area.right(); ++x) differing += dense.pixel(x, y) != doubled.pixel(x, y);
            QVERIFY2(differing > area.width() * area.height() / 20, c->displayName().c_str());
        }
        const QString path = QStringLiteral(BRELK_SOURCE_DIR "/docs/screenshots/main-window.png");
        QDir().mkpath(QFileInfo(path).path());
        QVERIFY(shot.save(path));
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new MainWindowTest; });

#include "tst_mainwindow.moc"
