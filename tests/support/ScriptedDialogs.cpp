#include "ScriptedDialogs.h"

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Numbers.h"
#include "platform/TimerScheduler.h"

namespace brelk::doubles {

std::optional<Answer> ScriptedDialogs::take(std::deque<Answer>& queue) {
    if (queue.empty()) return std::nullopt;
    Answer a = queue.front();
    queue.pop_front();
    // The dialog stays open while this much time passes behind it.
    if (a.afterMs > 0) clock_.advanceBy(a.afterMs);
    return a;
}

int ScriptedDialogs::msgBox(const std::string& prompt, int style, const std::string& title) {
    boxes.push_back({title, prompt, style, false});
    const int buttons = style & msgbox::ButtonsMask;
    const auto answer = take(msgboxAnswers);
    if (buttons == msgbox::OkOnly) return msgbox::Ok;
    if (!answer) {
        problems.push_back("message box \"" + title + "\" has two buttons and no queued answer");
        return buttons == msgbox::YesNo ? msgbox::No : msgbox::Cancel;
    }
    if (answer->value == "ok") return msgbox::Ok;
    if (answer->value == "cancel") return msgbox::Cancel;
    if (answer->value == "yes") return msgbox::Yes;
    return msgbox::No;
}

std::string ScriptedDialogs::inputBox(const std::string&, const std::string&, const std::string&) {
    const auto answer = take(inputAnswers);
    return answer && !answer->cancel ? answer->value : std::string();
}

std::optional<OpenFileResult> ScriptedDialogs::openFile(const OpenFileRequest& request) {
    lastOpen = request;
    const auto answer = take(openAnswers);
    if (!answer || answer->cancel) return std::nullopt;
    return OpenFileResult{files::join(dir_, answer->value), answer->value};
}

std::optional<std::int32_t> ScriptedDialogs::showColor(const ColorRequest&) {
    // Without an answer the dialog is cancelled.
    const auto answer = take(colorAnswers);
    if (!answer || answer->cancel) return std::nullopt;
    return num::toInt32(num::strictValue(answer->value));
}

Control* ScriptedDialogs::popupMenu(Form& form, Control& menu) {
    lastPopup = menu.name();
    const auto answer = take(popupAnswers);
    if (!answer) return nullptr;
    Control* entry = form.find(answer->value);
    if (!entry || entry->container() != &menu) {
        problems.push_back("popup " + menu.name() + " has no entry " + answer->value);
        return nullptr;
    }
    return entry;
}

void ScriptedDialogs::showModal(Form& form) {
    if (form.isLoaded() && whileModal) whileModal(form);
}

}  // namespace brelk::doubles
