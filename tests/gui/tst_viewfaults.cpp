#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include "GuiTestRegistry.h"
#include "assembly/BrelkApp.h"
#include "forms/Brelk.h"
#include "map/Layout.h"
#include "view/controls/ControlView.h"
#include "view/drawing/Twips.h"
#include "view/services/RealTimeDriver.h"

using namespace brelk;

namespace {

// Hands every event of the objects it filters to `seen`.
struct EventSpy : QObject {
    std::function<void(QObject*, QEvent*)> seen;
    bool eventFilter(QObject* o, QEvent* e) override { return seen(o, e), false; }
};

// The first widget in which a light control's widget lies above a windowed
// one's, with its stack from the bottom up; empty if none.
QString misplaced(QWidget& top) {
    for (QWidget* parent : top.findChildren<QWidget*>() + QList<QWidget*>{&top}) {
        QString order;
        for (QObject* child : parent->children())
            if (auto* v = dynamic_cast<view::ControlView*>(child); v && v->control())
                order += view::isWindowedKind(v->control()->kind()) ? 'W' : 'l';
        if (order.contains("Wl")) return parent->objectName() + ": " + order;
    }
    return {};
}

}  // namespace

// The program as it runs: its clock on real time, input through the driver
// as the window system hands it over, Qt's own boxes.
class ViewFaultsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<assembly::BrelkApp> app_;

    Program& program() { return app_->program(); }
    MainForm& f() { return program().frmMain; }
    view::FormView& window() { return app_->window(); }
    QWindow* handle() { return window().windowHandle(); }
    QWidget* widget(Control& c) { return window().widgetOf(c); }
    QPoint at(Control& c, QPoint inside) { return widget(c)->mapTo(&window(), inside); }
    void addRows() {  // as a map's load makes them
        program().guarded([&] {
            AddCategory(program(), "Armor");
            for (const char* line : {"ICO_RA Red:25", "ICO_YA Yellow:25"}) AddItem(program(), line);
            f().self().setNumber(Prop::Height, 500 + program().vars.NextRowTop);
        });
    }

private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>(QCoreApplication::applicationDirPath() + "/viewfaults-XXXXXX");
        app_ = std::make_unique<assembly::BrelkApp>(AppInfo{dir_->path().toStdString(), "brelk", 1, 0, 0});
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
        QCOMPARE(f().self().number(Prop::Top), view::toTwips(real.y() + 20, 1));
    }

    void windowedControlsLieAboveLightOnesWhateverTheProgramDoes() {
        // Rows made at run time lie under the tune panel: its "+", with the
        // first category's name behind it, takes the click.
        addRows();
        program().guarded([&] { f().picTune().setVisible(true); });
        const QPoint plus = at(f().cmdMinPlus(), QPoint(10, 8));
        QVERIFY(QRect(at(f().lblCat(1), {}), widget(f().lblCat(1))->size()).contains(plus));
        QTest::mouseClick(handle(), Qt::LeftButton, {}, plus);
        QCOMPARE(f().lblMatchTimer().caption(), std::string("21:00"));
        QCOMPARE(misplaced(window()), QString());

        // In a container too, whatever order the controls were made in.
        TimerScheduler clock;
        Form form("frmTest", clock);
        Control& frame = form.add(ControlKind::Frame, "fraBox");
        form.add(ControlKind::CommandButton, "cmdIn", &frame);
        form.add(ControlKind::Label, "lblIn", &frame);
        form.addMember(ControlKind::Label, "lblMore", 0, &frame);
        view::FormView view(form, {});
        form.at("lblIn").ZOrder(0);
        form.at("cmdIn").ZOrder(1);
        form.Load("lblMore", 1).setVisible(true);
        QCOMPARE(misplaced(view), QString());
    }

    void aStartedRowsBlinkStaysOnTheScreenForAFrame() {
        addRows();
        QTest::mouseClick(handle(), Qt::LeftButton, {}, at(f().lblMatchTimer(), QPoint(10, 5)));
        QCOMPARE(program().vars.MatchState, std::string("going"));
        // Row 2's wake-up comes late, when both ticks of its blink are due.
        for (const std::int16_t row : {1, 2}) {
            QWidget* strip = widget(f().lblFond(row));
            QElapsedTimer time;
            qint64 hidAt = -1, shownAt = -1;
            int hiddenPaints = 0;
            EventSpy spy;
            spy.seen = [&](QObject* o, QEvent* e) {
                if (o != strip) hiddenPaints += e->type() == QEvent::Paint && strip->isHidden();
                else if (e->type() == QEvent::Hide) hidAt = time.elapsed();
                else if (e->type() == QEvent::Show && hidAt >= 0 && shownAt < 0) shownAt = time.elapsed();
            };
            strip->installEventFilter(&spy);
            window().clientArea()->installEventFilter(&spy);
            time.start();
            QTest::mouseClick(handle(), Qt::LeftButton, {}, at(f().lblFond(row), QPoint(3, 12)));
            if (row == 2) QThread::msleep(30);
            QTRY_VERIFY(!f().timerClick(row).enabled() && shownAt >= 0);
            const QString seen = QString("row %1: %2 paints in %3 ms").arg(row).arg(hiddenPaints).arg(shownAt - hidAt);
            QVERIFY2(hiddenPaints > 0 && shownAt - hidAt >= view::RealTimeDriver::kFrameMs - 1, qPrintable(seen));
        }
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new ViewFaultsTest; });

#include "tst_viewfaults.moc"
