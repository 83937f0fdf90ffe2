#include <QDesktopServices>
#include <QUrl>

#include "GuiTestRegistry.h"
#include "RealProgram.h"
#include "about/AboutForm.h"
#include "about/OpenWeb.h"
#include "view/drawing/Twips.h"

using namespace brelk;

// The real About window with real input; the desktop's opener of pages is the test's.
class AboutWindowTest : public QObject {
    Q_OBJECT

    QList<QUrl> asked_;

public slots:
    void pageAsked(const QUrl& url) { asked_.append(url); }

private slots:
    void initTestCase() { QDesktopServices::setUrlHandler("https", this, "pageAsked"); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler("https"); }

    void onTheMainWindowWithItsLinkAndRoll() {
        RealProgram<> p;
        // Centred on the main window in its first place, it would reach past the screen's left edge.
        QVERIFY(p.withModal("mnuAbout", [&](view::FormView& about) {
            QCOMPARE(about.x(), 0);
            QTest::keyClick(&about, Qt::Key_Escape);
        }) && p.windows.topmost());  // not on top while it was open only
        Control& main = p.program->frmMain.self();
        p.guard([&] { main.setNumber(Prop::Left, 4500); main.setNumber(Prop::Top, 3000); });
        QVERIFY(p.withModal("mnuAbout", [&](view::FormView& about) {
            const auto part = [&](const char* name) { return about.findChild<QWidget*>(name); };
            const auto at = [&](const char* name) { return part(name)->mapTo(&about, part(name)->rect().center()); };
            // Its own frame on the main window's middle, and a hand over the link and the icon.
            QVERIFY(!p.windows.topmost() && about.windowFlags().testFlag(Qt::FramelessWindowHint));
            QVERIFY((about.geometry().center() - p.main->geometry().center()).manhattanLength() <= 2);
            QCOMPARE(part("picIcon")->cursor().shape(), Qt::PointingHandCursor);
            // The text rolls up in the window's units.
            QTest::mouseClick(about.windowHandle(), Qt::LeftButton, {}, at("cmdThx"));
            p.guard([&] { p.clock.advanceBy(20000); });
            QCOMPARE(part("lblThx")->y(), view::pixelRect(0, -200 * kAboutTwipsPerUnitY, 0, 0, 1).y());
            QWidget* client = about.clientArea();
            // The pointer lights the link up, also on its way over another control, not over the bare window.
            for (const char* over : {"Label2", "lblDescription", ""}) {
                QTest::mouseMove(about.windowHandle(), *over ? at(over) : client->mapTo(&about, QPoint(40, 100)));
                QCOMPARE(p.program->frmAbout->at("Label2").flag(Prop::FontUnderline), *over != 0);
            }
            // The link and the icon ask the desktop for the program's page.
            QTest::mouseClick(about.windowHandle(), Qt::LeftButton, {}, at("Label2"));
            QTest::mouseClick(about.windowHandle(), Qt::LeftButton, {}, at("picIcon"));
            QCOMPARE(asked_, QList<QUrl>(2, QUrl(QString::fromStdString(webPageAddress()))));
            // ">>" left the focus on "OK": Enter closes the window.
            QTest::keyClick(about.focusWidget(), Qt::Key_Return);
        }));
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new AboutWindowTest; });

#include "tst_about.moc"
