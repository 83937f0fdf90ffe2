#include <QApplication>
#include <QColorDialog>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

#include "FormView.h"
#include "GuiTestRegistry.h"
#include "MainWindow.h"
#include "QtDialogs.h"
#include "Twips.h"
#include "forms/Brelk.h"
#include "platform/TimerScheduler.h"

using namespace brelk;

// The options window as the coach meets it: opened from the menu over the
// real main window, driven with the mouse and the keyboard, the colour
// dialog answered by the test.
class OptionsWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    TimerScheduler clock_;
    view::Guard guard_ = [this](const std::function<void()>& a) { return program_->guarded(a); };
    view::QtDialogs dialogs_{guard_};
    view::QtWindowSystem windows_;
    std::unique_ptr<Services> services_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<view::FormView> main_;
    view::FormView* options_ = nullptr;

    ModVars& vars() { return program_->vars; }
    QWidget* widget(const char* name) { return options_->findChild<QWidget*>(name); }
    QString profile() {
        QFile file(dir_.filePath("brelk.ini"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    // Opens "Options ..." and runs `steps` in the open window; the window
    // is closed by the steps, or by the test when they stopped half-way.
    void withOptionsOpen(const std::function<void()>& steps) {
        QTimer::singleShot(0, [&] {
            options_ = qobject_cast<view::FormView*>(QApplication::activeModalWidget());
            if (options_ && QTest::qWaitForWindowActive(options_)) steps();
            if (program_->frmOptions) program_->guarded([&] { program_->frmOptions->Unload(); });
        });
        Control& entry = *program_->frmMain.find("mnuOptions");
        program_->guarded([&] { program_->frmMain.raise(entry, Event::Click); });
        QVERIFY(options_);
        QVERIFY(!program_->frmOptions);
    }

private slots:
    void init() {
        QVERIFY(dir_.isValid());
        QFile::remove(dir_.filePath("brelk.ini"));
        services_ = std::make_unique<Services>(
            Services{clock_, dialogs_, windows_, AppInfo{dir_.path().toStdString(), "brelk", 1, 0, 0}, 19200});
        program_ = std::make_unique<Brelk>(*services_);
        main_ = view::createMainWindow(program_->frmMain, guard_);
        dialogs_.setParentWindow(main_.get());
        windows_.setMainWindow(main_.get());
        program_->guarded([&] { program_->start(); });
        QVERIFY(QTest::qWaitForWindowExposed(main_.get()));
    }

    void cleanup() {
        main_.reset();
        program_.reset();
    }

    void aToolWindowBesideTheMainWindowWhoseEditsShowAtOnceAndEnterKeeps() {
        withOptionsOpen([&] {
            // Framed as the main window, with no box of the window system,
            // against the main window's right side.
            QCOMPARE(options_->windowFlags() & Qt::WindowType_Mask, Qt::Tool);
            QVERIFY(options_->windowFlags().testFlag(Qt::FramelessWindowHint));
            QCOMPARE(options_->geometry().topLeft(), main_->geometry().topRight() + QPoint(1, 0));
            QVERIFY(!windows_.topmost());

            // A swatch opens the colour dialog on its colour, titled "kikoo";
            // the chosen colour goes to the main window at once.
            QString title;
            QColor start;
            QTimer::singleShot(0, [&] {
                auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
                if (!dialog) return;
                title = dialog->windowTitle();
                start = dialog->currentColor();
                dialog->setCurrentColor(QColor(0x12, 0x34, 0x56));
                dialog->accept();
            });
            QTest::mouseClick(widget("lblColor(0)"), Qt::LeftButton);
            QCOMPARE(title, QString("kikoo"));
            QCOMPARE(start, view::toColor(13160660));
            QCOMPARE(vars().FormColor, 0x563412);
            QCOMPARE(main_->clientArea()->grab().toImage().pixelColor(2, 2), QColor(0x12, 0x34, 0x56));
            const QImage swatch = widget("lblColor(0)")->grab().toImage();
            QCOMPARE(swatch.pixelColor(swatch.width() / 2, swatch.height() / 2), QColor(0x12, 0x34, 0x56));
            QVERIFY(QTest::qWaitForWindowActive(options_));

            // A Yes/No row by the mouse.
            QTest::mouseClick(widget("optNo(3)"), Qt::LeftButton);
            QCOMPARE(int(vars().ActiveTimerBold), 0);

            // The match length shows its minutes while edited; the arrows step them.
            auto* length = qobject_cast<QLineEdit*>(widget("txtMatchDuration"));
            QTest::mouseClick(length, Qt::LeftButton);
            QCOMPARE(length->text(), QString("20"));
            QTest::keyClick(length, Qt::Key_Up);
            QCOMPARE(length->text(), QString("21"));
            // Tab goes on to the last seconds, and the length is taken.
            QTest::keyClick(length, Qt::Key_Tab);
            QVERIFY(widget("txtLastSeconds")->hasFocus());
            QCOMPARE(vars().MatchDuration, std::string("21:00"));
            QTest::keyClick(widget("txtLastSeconds"), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(widget("txtLastSeconds"), "9");
            // Enter presses "OK": the typed seconds are kept with the rest.
            QTest::keyClick(widget("txtLastSeconds"), Qt::Key_Return);
        });
        QCOMPARE(int(vars().LastSeconds), 9);
        const QString ini = profile();
        for (const char* line : {"LastSeconds=9", "MatchDuration=21:00", "ActiveTimerBold=False", "FormColor=5649426"})
            QVERIFY2(ini.contains(line), line);
        QVERIFY(windows_.topmost());
    }

    void overAZoomedMainWindowItIsZoomedAndStandsAgainstIt() {
        main_->setZoom(2);
        withOptionsOpen([&] {
            QCOMPARE(options_->zoom(), 2.0);
            QCOMPARE(options_->geometry().topLeft(), main_->geometry().topRight() + QPoint(1, 0));
            const Control& no = program_->frmOptions->at("optNo", 3);
            QCOMPARE(widget("optNo(3)")->geometry(), view::pixelRect(no.number(Prop::Left), no.number(Prop::Top),
                                                                    no.number(Prop::Width), no.number(Prop::Height), 2));
        });
    }

    void tabStopsAtTheChosenButtonOfARowAndEscCancels() {
        withOptionsOpen([&] {
            widget("optNo(9)")->setFocus();
            QTest::keyClick(widget("optNo(9)"), Qt::Key_Tab);
            QVERIFY(widget("optYes(8)")->hasFocus());  // shown items: Yes
            // An arrow chooses the other button of the row.
            QTest::keyClick(widget("optYes(8)"), Qt::Key_Right);
            QVERIFY(widget("optNo(8)")->hasFocus());
            QCOMPARE(int(vars().ShowItemsTimers), 0);
            QTest::mouseClick(widget("optNo(1)"), Qt::LeftButton);
            QCOMPARE(int(vars().ListColor), 0);
            // Each key puts the caret at the end of the minutes.
            auto* length = qobject_cast<QLineEdit*>(widget("txtMatchDuration"));
            QTest::mouseClick(length, Qt::LeftButton, {}, QPoint(2, 2));
            QTest::keyClick(length, Qt::Key_Backspace);
            QTest::keyClicks(length, "5");
            QCOMPARE(length->text(), QString("25"));
            QTest::keyClick(length, Qt::Key_Escape);
        });
        // Esc takes back what the profile file holds; the clock keeps
        // showing the length it was given on the way out.
        QCOMPARE(int(vars().ListColor), -1);
        QCOMPARE(int(vars().ShowItemsTimers), -1);
        QCOMPARE(vars().MatchDuration, std::string("20:00"));
        QCOMPARE(program_->frmMain.lblMatchTimer().caption(), std::string("25:00"));
    }

    void enterInTheMatchLengthBoxTakesItOnceAndKeeps() {
        withOptionsOpen([&] {
            auto* length = qobject_cast<QLineEdit*>(widget("txtMatchDuration"));
            QTest::mouseClick(length, Qt::LeftButton);
            QTest::keyClick(length, Qt::Key_Backspace);
            QTest::keyClick(length, Qt::Key_Backspace);
            QTest::keyClicks(length, "30");
            QTest::keyClick(length, Qt::Key_Return);
        });
        QCOMPARE(vars().MatchDuration, std::string("30:00"));
        QVERIFY(profile().contains("MatchDuration=30:00\r\n"));
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new OptionsWindowTest; });

#include "tst_options.moc"
