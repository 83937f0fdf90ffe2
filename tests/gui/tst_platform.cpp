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
    view::QtDialogs dialogs_{[](const std::function<void()>& a) { return a(), true; }};

private slots:
    void init() { form_ = std::make_unique<MainForm>(clock_); }

    void messageBoxesHaveTheirTitlesButtonsAndIcons_data() {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("press");
        QTest::addColumn<int>("result");
        QTest::newRow("refused start") << msgbox::OkOnly << "Cannot time items now !" << int(QMessageBox::Ok)
                                       << int(QMessageBox::NoIcon) << int(QMessageBox::Ok) << msgbox::Ok;
        QTest::newRow("bad map line") << msgbox::Critical << "WTF ?!" << int(QMessageBox::Ok)
                                      << int(QMessageBox::Critical) << int(QMessageBox::Ok) << msgbox::Ok;
        QTest::newRow("delete a set") << (msgbox::YesNo | msgbox::Exclamation) << "seta cg_deleteFile 1 ?"
                                      << int(QMessageBox::Yes | QMessageBox::No) << int(QMessageBox::Warning)
                                      << int(QMessageBox::No) << msgbox::No;
        QTest::newRow("overwrite a set") << msgbox::OkCancel << "/overwrite ?"
                                         << int(QMessageBox::Ok | QMessageBox::Cancel) << int(QMessageBox::NoIcon)
                                         << int(QMessageBox::Cancel) << msgbox::Cancel;
    }
    void messageBoxesHaveTheirTitlesButtonsAndIcons() {
        QFETCH(int, style);
        QFETCH(QString, title);
        QFETCH(int, buttons);
        QFETCH(int, icon);
        QFETCH(int, press);
        QFETCH(int, result);
        bool seen = false;
        whenOpen([&](QWidget* open) {
            auto* box = qobject_cast<QMessageBox*>(open);
            if (!box) return;
            seen = box->windowTitle() == title && int(box->standardButtons()) == buttons && box->icon() == icon &&
                   box->textFormat() == Qt::PlainText && box->text() == "Line 3: <b>Mega</b>\n:35";
            box->button(QMessageBox::StandardButton(press))->click();
        });
        QCOMPARE(dialogs_.msgBox("Line 3: <b>Mega</b>\r\n:35", style, title.toStdString()), result);
        QVERIFY(seen);
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
            auto* menu = qobject_cast<QMenu*>(open);
            if (!menu) return;
            entries.clear();
            for (QAction* a : menu->actions()) entries << a->text();
            QTest::keyClick(menu, Qt::Key_Escape);
        });
        QCOMPARE(dialogs_.popupMenu(*form_, form_->mnuMatchTimer()), nullptr);  // dismissed
        QCOMPARE(entries, QStringList({"Tune timer ..."}));
    }

    void theOpenDialogShowsMapFilesOfTheProgramsFolder() {
        QTemporaryDir dir;
        QFile map(dir.filePath("Aerowalk.txt"));
        QVERIFY(map.open(QIODevice::WriteOnly));
        map.close();
        QString folder;
        QStringList filters;
        QString title;
        whenOpen([&](QWidget* open) {
            auto* dialog = qobject_cast<QFileDialog*>(open);
            if (!dialog) return;
            folder = dialog->directory().absolutePath();
            filters = dialog->nameFilters();
            title = dialog->windowTitle();
            dialog->selectFile(dir.filePath("Aerowalk.txt"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        const auto chosen = dialogs_.openFile({"Load Map", dir.path().toStdString(), "*.txt"});
        QCOMPARE(folder, QDir(dir.path()).absolutePath());
        QCOMPARE(filters, QStringList({"Map files (*.txt)"}));
        QCOMPARE(title, QString("Load Map"));
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
        view::RealTimeDriver driver(clock_, [](const std::function<void()>& a) { return a(), true; });
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
        const view::Guard plain = [](const std::function<void()>& a) { return a(), true; };
        view::RealTimeDriver driver(clock_, plain);
        const view::Guard input = driver.inputGuard(plain);
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
