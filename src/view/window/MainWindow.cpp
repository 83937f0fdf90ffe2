#include "view/window/MainWindow.h"

#include "icons/ItemIcons.h"

namespace brelk::view {

std::unique_ptr<FormView> createMainWindow(Form& frmMain, Guard guard) {
    auto window = std::make_unique<FormView>(frmMain, std::move(guard), WindowFrame::mainWindow());
    // A tool window has no task-bar entry; keep it shown when another
    // program is in front (macOS hides tool windows then).
    window->setWindowFlags(window->windowFlags() | Qt::Tool | Qt::FramelessWindowHint);
    window->setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    window->setWindowIcon(icons::appIcon());
    return window;
}

}  // namespace brelk::view
