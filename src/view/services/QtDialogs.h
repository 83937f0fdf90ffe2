#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "view/window/FormView.h"

class QMenu;

namespace brelk::view {

// The program's modal interactions as native Qt dialogs, above the main
// window. Each runs its own event loop, so timers go on behind it.
class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(Guard guard) : guard_(std::move(guard)) {}
    void setParentWindow(QWidget* parent) { parent_ = parent; }

    // Entries beyond the window's design: whenever a popup menu shows the
    // entry named `after` ("mnuOptions"), `add` puts its own entries (a
    // submenu) into the menu right behind it. They act by themselves when
    // chosen; the program's menu sees a dismissed popup. `add` must stay
    // valid while menus can be shown.
    void addMenuExtension(std::string after, std::function<void(QMenu&)> add);

    int msgBox(const std::string& prompt, int style, const std::string& title) override;
    std::string inputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::optional<OpenFileResult> openFile(const OpenFileRequest& request) override;
    std::optional<std::int32_t> showColor(const ColorRequest& request) override;
    Control* popupMenu(Form& form, Control& menu) override;
    void showModal(Form& form) override;

private:
    // A box or dialog opens over the modal window that is open, else over
    // the main window; that window is active again when it closes.
    class Over;
    void centreOnOwner(FormView& window);

    Guard guard_;
    QPointer<QWidget> parent_;
    std::vector<std::pair<std::string, std::function<void(QMenu&)>>> extensions_;
};

// Stay-on-top, and addresses opened by the desktop's own opener of URLs.
class QtWindowSystem : public WindowSystem {
public:
    void setMainWindow(QWidget* window) { window_ = window; }
    void setTopmost(Form& form, bool topmost) override;
    bool openUrl(const std::string& address) override;
    // The primary screen's width, in twips of the main window's zoom.
    int screenWidth() const override;
    bool topmost() const { return topmost_; }

private:
    QPointer<QWidget> window_;
    bool topmost_ = false;
};

}  // namespace brelk::view
