#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "FormWidget.h"
#include "GuiTestRegistry.h"
#include "Twips.h"
#include "clock/MatchClock.h"
#include "map/Loader.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/TimerScheduler.h"
#include "state/Program.h"

using namespace brelk;

namespace {

// Dialogs that open the file asked for and remember the popups shown.
class TestDialogs : public Dialogs {
public:
    std::string dir;
    std::optional<std::string> nextFile;
    std::string lastPopup;
    int boxes = 0;
    int msgBox(const std::string&, int, const std::string&) override { return ++boxes, msgbox::Ok; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::optional<OpenFileResult> openFile(const OpenFileRequest&) override {
        if (!nextFile) return std::nullopt;
        return OpenFileResult{files::join(dir, *nextFile), *nextFile};
    }
    std::optional<std::int32_t> chooseColor(std::int32_t) override { return std::nullopt; }
    Control* popupMenu(Form&, Control& menu) override {
        lastPopup = menu.name();
        return nullptr;
    }
    void showModal(Form&) override {}
};

class NoWindows : public WindowSystem {
public:
    void setTopmost(Form&, bool) override {}
    void shell(const std::string&) override {}
};

}  // namespace

// The main window over a headless program whose clock the test moves by hand.
class MainWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    TimerScheduler clock_;
    TestDialogs dialogs_;
    NoWindows windows_;
    std::unique_ptr<Services> services_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<view::FormWidget> window_;

    MainForm& f() { return program_->frmMain; }
    QPoint centreOf(Control& c) { return window_->rectOf(c).center().toPoint(); }
    void wait(int ms) { program_->guarded([&] { clock_.advanceBy(ms); }); }
    void loadMap(const QString& source) {
        const QString name = QFileInfo(source).fileName();
        QFile::remove(dir_.filePath(name));
        QVERIFY(QFile::copy(source, dir_.filePath(name)));
        dialogs_.nextFile = name.toStdString();
        program_->guarded([&] { mnuLoad_Click(*program_); });
    }

private slots:
    void init() {
        QDir(dir_.path()).removeRecursively();
        QDir().mkpath(dir_.path());
        dialogs_ = TestDialogs{};
        dialogs_.dir = dir_.path().toStdString();
        services_ = std::make_unique<Services>(
            Services{clock_, dialogs_, windows_, AppInfo{dir_.path().toStdString(), "brelk", 1, 0, 0}, 19200});
        program_ = std::make_unique<Program>(*services_);
        program_->guarded([&] { program_->start(); });
        window_ = std::make_unique<view::FormWidget>(f(), [this](const std::function<void()>& a) {
            return program_->guarded(a);
        });
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
        loadMap(QStringLiteral(BRELK_SOURCE_DIR "/maps/Aerowalk.txt"));
    }

    void cleanup() {
        window_.reset();
        program_.reset();
    }

    void windowTakesTheSizeOfTheLoadedList() {
        QVERIFY(program_->vars.ItemCount > 0);
        const double height = f().self().number(Prop::Height);
        QCOMPARE(window_->height(), qRound(view::toPixels(height)));
        QCOMPARE(window_->width(), qRound(view::toPixels(f().self().number(Prop::Width))));
    }

    void realClicksStartHoldResumeAndResetARow() {
        QTest::mousePress(window_.get(), Qt::LeftButton, {}, centreOf(f().lblMatchTimer()));
        QTest::mouseRelease(window_.get(), Qt::LeftButton, {}, centreOf(f().lblMatchTimer()));
        QCOMPARE(program_->vars.MatchState, std::string("going"));

        Control& name = f().lblItem(1);
        const std::string start = f().lblTimer(1).caption();
        QCOMPARE(start, std::string("00:00"));
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, centreOf(name));
        const std::string counting = f().lblTimer(1).caption();
        QVERIFY(counting != "00:00");
        QVERIFY(f().timerItem(1).enabled());

        // Held while the button is down, whatever time passes.
        wait(40);
        QTest::mousePress(window_.get(), Qt::LeftButton, {}, centreOf(f().lblTimer(1)));
        wait(3000);
        QCOMPARE(f().lblTimer(1).caption(), counting);
        // Released over another row, the release still belongs to the pressed one.
        QTest::mouseRelease(window_.get(), Qt::LeftButton, {}, centreOf(f().lblFond(2)));
        QVERIFY(f().timerItem(1).enabled());
        QCOMPARE(f().timerClick(2).tag(), std::string("3"));
        wait(1000);
        QVERIFY(f().lblTimer(1).caption() != counting);

        QTest::mouseClick(window_.get(), Qt::RightButton, {}, centreOf(f().lblFond(1)));
        QCOMPARE(f().lblTimer(1).caption(), std::string("00:00"));
        QVERIFY(!f().timerItem(1).enabled());
    }

    void rightReleaseOnTheClockOpensItsMenu() {
        QTest::mouseClick(window_.get(), Qt::RightButton, {}, centreOf(f().lblMatchTimer()));
        QCOMPARE(dialogs_.lastPopup, std::string("mnuMatchTimer"));
        QCOMPARE(program_->vars.MatchState, std::string("not started"));
    }

    void aBlinkingRowIsNotDrawnAndTakesNoClick() {
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, centreOf(f().lblMatchTimer()));
        const QPoint row = centreOf(f().lblItem(1));
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, row);
        const QImage before = window_->grab().toImage();
        wait(10);  // the first blink tick hides the row
        QVERIFY(!f().lblItem(1).visible());
        QVERIFY(window_->controlAt(row) != &f().lblItem(1));
        const QImage hidden = window_->grab().toImage();
        QVERIFY(before != hidden);
        wait(10);
        QCOMPARE(window_->controlAt(row), &f().lblItem(1));
    }

    void aPausedClockShowsItsPausedLook() {
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, centreOf(f().lblMatchTimer()));
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, centreOf(f().lblMatchStatus()));
        QCOMPARE(program_->vars.MatchState, std::string("paused"));
        QCOMPARE(f().lblMatchStatus().caption(), std::string("Paused"));
        // The status text is drawn in the paused colour, black.
        const QImage image = window_->grab().toImage();
        const QRect status = window_->rectOf(f().lblMatchStatus()).toAlignedRect() & image.rect();
        bool dark = false;
        for (int y = status.top(); y <= status.bottom() && !dark; ++y)
            for (int x = status.left(); x <= status.right() && !dark; ++x)
                dark = qGray(image.pixel(x, y)) < 60;
        QVERIFY(dark);
    }

    void aDueRowFlashesItsTimer() {
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, centreOf(f().lblMatchTimer()));
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, centreOf(f().lblItem(1)));
        const int delay = static_cast<int>(f().timerItem(1).get(Prop::Tag).number());
        wait(delay * 1000);
        QVERIFY(f().timerFlash(1).enabled());
        wait(333);
        QVERIFY(!f().lblTimer(1).visible());
        QVERIFY(window_->controlAt(centreOf(f().lblTimer(1))) != &f().lblTimer(1));
    }

    void screenshotOfARunningMatch() {
        QTest::mouseClick(window_.get(), Qt::LeftButton, {}, centreOf(f().lblMatchTimer()));
        wait(95000);
        for (std::int16_t row : {1, 3, 5}) {
            QTest::mouseClick(window_.get(), Qt::LeftButton, {}, centreOf(f().lblFond(row)));
            wait(7000);
        }
        wait(100);
        const QString path = QStringLiteral(BRELK_SOURCE_DIR "/docs/screenshots/main-window.png");
        QDir().mkpath(QFileInfo(path).path());
        // Drawn at three device pixels per logical pixel, as on a dense screen.
        QPixmap shot(window_->size() * 3);
        shot.setDevicePixelRatio(3);
        window_->render(&shot);
        QVERIFY(shot.save(path));
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new MainWindowTest; });

#include "tst_mainwindow.moc"
