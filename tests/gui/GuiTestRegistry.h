#pragma once

#include <QObject>

// GUI test classes register themselves here; main.cpp runs them all with one
// QApplication, since Qt allows only one per process.
using GuiTestFactory = QObject* (*)();
void registerGuiTest(GuiTestFactory factory);

struct GuiTestRegistrar {
    explicit GuiTestRegistrar(GuiTestFactory f) { registerGuiTest(f); }
};
