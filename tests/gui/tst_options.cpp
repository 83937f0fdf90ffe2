#include <QColorDialog>
#include <QLineEdit>

#include "GuiTestRegistry.h"
#include "RealProgram.h"
#include "view/drawing/Twips.h"

using namespace brelk;

// What only the real options window shows: frame, colour dialog, keys, real input.
class OptionsWindowTest : public QObject {
    Q_OBJECT

private slots:
    void keysMouseAndColourDialogReachTheSettings() {
        RealProgram<> p;
        QVERIFY(p.withModal("mnuOptions", [&](QWidget& options) {
            const auto part = [&](const char* name) { return options.findChild<QWidget*>(name); };
            QCOMPARE(options.windowFlags() & (Qt::WindowType_Mask | Qt::FramelessWindowHint),
                     Qt::Tool | Qt::FramelessWindowHint);
            QVERIFY(!p.windows.topmost());
            // A swatch opens the colour dialog titled "kikoo" on its colour.
            QString seen;
            QTimer::singleShot(0, [&] {
                auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
                if (!dialog) return;
                seen = dialog->windowTitle() + dialog->currentColor().name();
                dialog->setCurrentColor(QColor(0x12, 0x34, 0x56));
                dialog->accept();
            });
            QTest::mouseClick(part("lblColor(0)"), Qt::LeftButton);
            QCOMPARE(seen, "kikoo" + view::toColor(13160660).name());
            // Tab: the rows from the bottom up, each at its chosen button, the
            // boxes, the buttons and the list; an arrow chooses the other button.
            QVERIFY(QTest::qWaitForWindowActive(&options));
            part("optNo(9)")->setFocus();
            QStringList order;
            for (int i = 0; i < 16; ++i, QTest::keyClick(options.focusWidget(), Qt::Key_Tab))
                order << options.focusWidget()->objectName();
            QCOMPARE(order.join(' '), "optNo(9) optYes(8) optNo(7) optYes(6) optYes(5) optNo(4) optYes(3) optYes(2) "
                                      "optYes(1) optYes(0) txtMatchDuration txtLastSeconds cmdSave cmdCancel "
                                      "cmdSaveAs lstIniFiles");
            QTest::keyClick(part("optYes(8)"), Qt::Key_Right);
            QTest::mouseClick(part("optNo(3)"), Qt::LeftButton);
            // Enter in the match length box takes it once, then presses "OK".
            QTest::mouseClick(part("txtMatchDuration"), Qt::LeftButton);
            QTest::keyClick(part("txtMatchDuration"), Qt::Key_Up);
            QTest::keyClick(part("txtMatchDuration"), Qt::Key_Return);
        }));
        // Each key puts the caret after the minutes; Esc takes back what "OK"
        // wrote, after the length typed was taken on the way out.
        QVERIFY(p.withModal("mnuOptions", [&](QWidget& options) {
            auto* length = options.findChild<QLineEdit*>("txtMatchDuration");
            QTest::mouseClick(length, Qt::LeftButton, {}, QPoint(2, 2));
            QTest::keyClick(length, Qt::Key_Backspace);
            QTest::keyClicks(length, "5");
            QCOMPARE(length->text(), QString("25"));
            QTest::keyClick(length, Qt::Key_Escape);
        }));
        // Over a zoomed main window the window is zoomed too and stands against its side.
        p.main->setZoom(2);
        QVERIFY(p.withModal("mnuOptions", [&](QWidget& options) {
            QCOMPARE(static_cast<view::FormView&>(options).zoom(), 2.0);
            QCOMPARE(options.geometry().topLeft(), p.main->geometry().topRight() + QPoint(1, 0));
            QTest::keyClick(&options, Qt::Key_Escape);
        }));
        const ModVars& v = p.program->vars;
        QCOMPARE(p.program->frmMain.lblMatchTimer().caption() + " " + v.MatchDuration, std::string("25:00 21:00"));
        QCOMPARE(QList<int>({v.FormColor, v.ShowItemsTimers, v.ActiveTimerBold}), QList<int>({0x563412, 0, 0}));
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new OptionsWindowTest; });

#include "tst_options.moc"
