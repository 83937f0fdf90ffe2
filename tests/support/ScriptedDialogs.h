#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/Platform.h"

namespace brelk {
class TimerScheduler;
}

namespace brelk::doubles {

// A message box as the program showed it.
struct ShownBox {
    std::string title;
    std::string prompt;
    int style = 0;
    bool checked = false;
};

// An answer queued for the next dialog of its kind. `afterMs` of virtual time
// pass, with every tick due, while that dialog is open.
struct Answer {
    std::string value;  // button word, file name, text, colour or menu entry
    bool cancel = false;
    std::int64_t afterMs = 0;
};

// Modal dialogs answered from a script, for the scenario runner.
class ScriptedDialogs : public Dialogs {
public:
    ScriptedDialogs(TimerScheduler& clock, std::string programDir)
        : clock_(clock), dir_(std::move(programDir)) {}

    std::deque<Answer> openAnswers, msgboxAnswers, inputAnswers, colorAnswers, popupAnswers;
    std::vector<ShownBox> boxes;
    std::optional<std::string> lastPopup;
    std::optional<OpenFileRequest> lastOpen;
    // Problems met while answering (a two-button box with no answer, ...).
    std::vector<std::string> problems;
    // Runs the script's next commands while a modal form is open, until the
    // form is unloaded.
    std::function<void(Form&)> whileModal;

    int msgBox(const std::string& prompt, int style, const std::string& title) override;
    std::string inputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::optional<OpenFileResult> openFile(const OpenFileRequest& request) override;
    std::optional<std::int32_t> showColor(const ColorRequest& request) override;
    Control* popupMenu(Form& form, Control& menu) override;
    void showModal(Form& form) override;

private:
    std::optional<Answer> take(std::deque<Answer>& queue);

    TimerScheduler& clock_;
    std::string dir_;
};

// Window operations recorded for checks.
class ScriptedWindows : public WindowSystem {
public:
    bool topmost = false;
    bool browser = true;  // whether a browser can be started
    int screenTwips = 19200;
    std::vector<std::string> openedUrls;
    void setTopmost(Form&, bool top) override { topmost = top; }
    bool openUrl(const std::string& address) override {
        openedUrls.push_back(address);
        return browser;
    }
    int screenWidth() const override { return screenTwips; }
};


}  // namespace brelk::doubles
