#include "GuiTestRegistry.h"

#include <QApplication>
#include <QLocale>
#include <QTest>

#include <vector>

namespace {
// Function-local, so registrars in other files may run before this one is built.
std::vector<GuiTestFactory>& registry() {
    static std::vector<GuiTestFactory> factories;
    return factories;
}
}  // namespace

void registerGuiTest(GuiTestFactory factory) { registry().push_back(factory); }

int main(int argc, char** argv) {
    // Headless by default, and a fixed font resolution so sizes are the same everywhere.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QLocale::setDefault(QLocale::c());
    QApplication app(argc, argv);

    int failed = 0;
    for (GuiTestFactory make : registry()) {
        QObject* test = make();
        if (QTest::qExec(test, argc, argv) != 0) ++failed;
        delete test;
    }
    return failed == 0 ? 0 : 1;
}
