#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace brelk {

class Control;
class Form;

// Message box styles and results, as the program passes and reads them.
namespace msgbox {
constexpr int OkOnly = 0;
constexpr int OkCancel = 1;
constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Exclamation = 48;
constexpr int ButtonsMask = 7;
constexpr int IconMask = 112;

constexpr int Ok = 1;
constexpr int Cancel = 2;
constexpr int Yes = 6;
constexpr int No = 7;
}  // namespace msgbox

struct OpenFileRequest {
    std::string title;
    std::string initDir;
    std::string pattern;  // "*.txt"
};

struct OpenFileResult {
    std::string fileName;   // the full path
    std::string fileTitle;  // the name without its path
};

// The colour dialog as a common dialog control asks for it.
struct ColorRequest {
    std::string title;
    std::int32_t start = 0;  // 0x00BBGGRR, the colour the dialog starts on
};

// Every modal interaction of the program: message boxes, the input box, the
// open-file and colour dialogs, popup menus and modal forms. While one is open
// the caller waits and timer ticks go on arriving.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // Returns the button pressed (msgbox::Ok, ...).
    virtual int msgBox(const std::string& prompt, int style, const std::string& title) = 0;
    // The text entered, or "" when cancelled.
    virtual std::string inputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) = 0;
    virtual std::optional<OpenFileResult> openFile(const OpenFileRequest& request) = 0;
    // The colour dialog: the chosen colour (0x00BBGGRR), or nullopt when cancelled.
    virtual std::optional<std::int32_t> showColor(const ColorRequest& request) = 0;
    // Shows `menu`'s visible entries; returns the chosen entry, or nullptr when dismissed.
    virtual Control* popupMenu(Form& form, Control& menu) = 0;
    // Shows a form modally; returns when the form has been unloaded.
    virtual void showModal(Form& form) = 0;
};

}  // namespace brelk
