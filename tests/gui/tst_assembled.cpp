#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "GuiTestRegistry.h"
#include "assembly/BrelkApp.h"
#include "settings/IniFile.h"
#include "state/Program.h"
#include "view/window/FormView.h"

using namespace brelk;

// The program as main() assembles it, its clock moved by the test: the real
// ">" menu with the features' entries, and the profile as the end leaves it.
class AssembledTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<assembly::BrelkApp> app_;

    MainForm& f() { return app_->program().frmMain; }
    QString profile() const { return dir_->filePath("brelk.ini"); }

    // The entry `path` of the ">" menu chosen with the keyboard, as a coach
    // would: each submenu opened, the last entry pressed. The menu's entries
    // as they showed, in order, go to `shown`.
    void choose(const QStringList& path, QStringList* shown = nullptr) {
        bool reached = false;
        QObject during;  // a step left over when no menu opened goes with it
        QTimer::singleShot(0, &during, [&] {
            QMenu* previous = nullptr;
            for (const QString& step : path) {
                // A submenu opens after the key that asks for it.
                QMenu* menu = nullptr;
                for (int i = 0; i < 100 && !menu; ++i) {
                    menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                    if (menu == previous) menu = nullptr, QTest::qWait(10);
                }
                if (!menu) return;
                if (shown && !previous)
                    for (QAction* a : menu->actions()) *shown << a->text().remove('&').section('\t', 0, 0);
                QAction* entry = nullptr;
                for (QAction* a : menu->actions())
                    if (a->text().remove('&').section('\t', 0, 0) == step) entry = a;
                if (!entry || !entry->isEnabled()) {
                    while (auto* open = QApplication::activePopupWidget()) open->close();
                    return;
                }
                menu->setActiveAction(entry);
                QTest::keyClick(menu, Qt::Key_Return);
                previous = menu;
                reached = step == path.last();
            }
        });
        QTest::mouseClick(app_->window().widgetOf(f().cmdPopup()), Qt::LeftButton);
        QVERIFY2(reached, qPrintable(path.join(" > ")));
    }

private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>(QCoreApplication::applicationDirPath() + "/assembled-XXXXXX");
        app_ = std::make_unique<assembly::BrelkApp>(AppInfo{dir_->path().toStdString(), "brelk", 1, 0, 0},
                                                     assembly::Options{.realTime = false, .exitAtEnd = false});
        QVERIFY(app_->start());
        QVERIFY(QTest::qWaitForWindowExposed(&app_->window()));
    }

    void cleanup() { app_.reset(); }

    void theMenuHoldsTheFeaturesAfterOptionsAndExitKeepsWhatTheCoachChose() {
        QStringList shown;
        choose({"Zoom", "200 %"}, &shown);
        QCOMPARE(shown.mid(0, 2), (QStringList{"Load Map", "Options ..."}));
        QCOMPARE(shown.mid(shown.size() - 3), (QStringList{"", "About Brelk", "Exit"}));
        QVERIFY(shown.contains("Call-outs") && shown.contains("Zoom"));
        QCOMPARE(app_->window().zoom(), 2.0);
        choose({"Exit"});
        QVERIFY(app_->program().ended());
        const std::string path = profile().toStdString();
        QCOMPARE(ini::readValue(path, "Coach", "Zoom"), std::string("200"));
        QCOMPARE(ini::readValue(path, "Coach", "CallOuts"), std::string());  // only what changed
    }
};

static GuiTestRegistrar registrar([]() -> QObject* { return new AssembledTest; });

#include "tst_assembled.moc"
