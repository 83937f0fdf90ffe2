#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

#include "GuiTestRegistry.h"
#include "QtDialogs.h"
#include "RealTimeDriver.h"
#include "platform/Form.h"
#include "platform/TimerScheduler.h"
#include "forms/MainDesign.h"
#include "state/MainForm.h"

using namespace brelk;

namespace {

// Runs `check` on the modal widget or popup that the next call opens, from
// inside its own event loop.
void whenOpen(std::function<void(QWidget*)> check) {
    QTimer::singleShot(0, [check = std::move(check)] {
        QWidget* open = QApplication::activePopupWidget();
        if (!open) open = QApplication::activeModalWidget();
        check(open);
    });
}

}  // namespace

// The program's message boxes, popup menus and open dialog as Qt shows
// them, and the clock on real time: going on behind a modal box, and a
// timer enabled by input ticking one full interval after it.
class QtPlatformTest : public QObject {
    Q_OBJECT

    TimerScheduler clock_;
    std::unique_ptr<MainForm> form_;
    const view::Guard plain_ = [](const std::function<void()>& a) { return a(), true; };
    view::QtDialogs dialogs_{plain_};

private slots:
    void init() {
        form_ = std::make_unique<MainForm>(clock_);
        designMainForm(*form_);
    }

    void messageBoxesHaveTheirTitlesButtonsAndIcons() {
        struct Row { int style; QString title; int buttons, icon, press, result; };
        const Row rows[] = {
            {msgbox::Critical, "WTF ?!", QMessageBox::Ok, QMessageBox::Critical, QMessageBox::Ok, msgbox::Ok},
            {msgbox::YesNo | msgbox::Exclamation, "seta cg_deleteFile 1 ?", QMessageBox::Yes | QMessageBox::No,
             QMessageBox::Warning, QMessageBox::No, msgbox::No},
            {msgbox::OkCancel, "/overwrite ?", QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::NoIcon,
             QMessageBox::Cancel, msgbox::Cancel},
        };
        for (const Row& r : rows) {
            bool seen = false;
            whenOpen([&](QWidget* open) {
                auto* box = qobject_cast<QMessageBox*>(open);
                if (!box) return;
                // The text shows as written, never as markup, with CR LF as one line break.
                seen = box->windowTitle() == r.title && int(box->standardButtons()) == r.buttons &&
                       box->icon() == r.icon && box->textFormat() == Qt::PlainText &&
                       box->text() == "Line 3: <b>Mega</b>\n:35";
                box->button(QMessageBox::StandardButton(r.press))->click();
            });
            QCOMPARE(dialogs_.msgBox("Line 3: <b>Mega</b>\r\n:35", r.style, r.title.toStdString()), r.result);
            QVERIFY2(seen, qPrintable(r.title));
        }
    }

    void popupMenusShowTheirVisibleEntriesAtThePointer() {
        QCursor::setPos(200, 150);
        form_->at("mnuAbout").setVisible(false);
        QStringList entries;
        QPoint place;
        whenOpen([&](QWidget* open) {
            auto* menu = qobject_cast<QMenu*>(open);
            if (!menu) return;
            place = menu->pos();
            for (QAction* a : menu->actions()) entries << (a->isSeparator() ? "-" : a->text());
            QAction* exit = menu->actions().last();
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(exit).center());
        });
        Control* chosen = dialogs_.popupMenu(*form_, form_->mnuCoach());
        QCOMPARE(entries, QStringList({"Load Map", "Options ...", "-", "Exit"}));
        QCOMPARE(place, QPoint(200, 150));
        QCOMPARE(chosen, form_->find("mnuExit"));

        whenOpen([&](QWidget* open) {
            if (auto* menu = qobject_cast<QMenu*>(open)) QTest::keyClick(menu, Qt::Key_Escape);
        });
        QCOMPARE(dialogs_.popupMenu(*form_, form_->mnuMatchTimer()), nullptr);  // dismissed
    }

    void theOpenDialogShowsMapFilesOfTheProgramsFolder() {
        QTemporaryDir dir;
        QVERIFY(QFile(dir.filePath("Aerowalk.txt")).open(QIODevice::WriteOnly));
        QStringList seen;
        whenOpen([&](QWidget* open) {
            auto* dialog = qobject_cast<QFileDialog*>(open);
            if (!dialog) return;
            seen << dialog->windowTitle() << dialog->directory().absolutePath() << dialog->nameFilters();
            dialog->selectFile(dir.filePath("Aerowalk.txt"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        const auto chosen = dialogs_.openFile({"Load Map", dir.path().toStdString(), "*.txt"});
        QCOMPARE(seen, QStringList({"Load Map", QDir(dir.path()).absolutePath(), "Map files (*.txt)"}));
        QVERIFY(chosen);
        QCOMPARE(chosen->fileTitle, std::string("Aerowalk.txt"));
        QCOMPARE(QFileInfo(QString::fromStdString(chosen->fileName)), QFileInfo(dir.filePath("Aerowalk.txt")));

        whenOpen([](QWidget* open) {
            if (auto* dialog = qobject_cast<QFileDialog*>(open)) QMetaObject::invokeMethod(dialog, "reject");
        });
        QVERIFY(!dialogs_.openFile({"Load Map", dir.path().toStdString(), "*.txt"}));
    }

    void timersTickOnBehindAModalBox() {
        // A 100 ms timer on real time; a box stays open for 650 ms.
        Control& timer = form_->timerMatch();
        timer.setNumber(Prop::Interval, 100);
        int ticks = 0;
        form_->on("timerMatch", Event::Timer, [&](const EventArgs&) { ++ticks; });
        view::RealTimeDriver driver(clock_, plain_);
        driver.start();
        timer.setEnabled(true);
        int ticksWhenOpen = -1;
        whenOpen([&](QWidget* open) {
            ticksWhenOpen = ticks;
            QTimer::singleShot(650, open, [open] { static_cast<QMessageBox*>(open)->accept(); });
        });
        dialogs_.msgBox("Match not started", msgbox::OkOnly, "Cannot time items now !");
        timer.setEnabled(false);
        QVERIFY(ticksWhenOpen >= 0);
        // Six fall due while it is open; a busy machine may hand a few over late.
        QVERIFY2(ticks - ticksWhenOpen >= 3, qPrintable(QString::number(ticks - ticksWhenOpen)));
    }

    void aTimerEnabledByInputTicksAFullIntervalAfterIt() {
        // The clock stands still while no timer runs; a click half a second
        // later enables a 200 ms timer, whose first tick comes 200 ms after
        // the click and not at once.
        view::RealTimeDriver driver(clock_, plain_);
        const view::Guard input = driver.inputGuard(plain_);
        driver.start();
        QTest::qWait(500);
        Control& timer = form_->timerMatch();
        timer.setNumber(Prop::Interval, 200);
        QElapsedTimer sinceClick;
        qint64 firstTickMs = -1;
        form_->on("timerMatch", Event::Timer, [&](const EventArgs&) {
            if (firstTickMs < 0) firstTickMs = sinceClick.elapsed();
        });
        input([&] {
            sinceClick.start();
            timer.setEnabled(true);
        });
        QTRY_VERIFY_WITH_TIMEOUT(firstTickMs >= 0, 2000);
        timer.setEnabled(false);
        QVERIFY2(firstTickMs >= 195, qPrintable(QString::number(firstTickMs)));
        QVERIFY2(firstTickMs < 1500, qPrintable(QString::number(firstTickMs)));
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new QtPlatformTest; });

#include "tst_platform.moc"
