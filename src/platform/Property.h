#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brelk {

// Every property a control of the program can carry.
enum class Prop {
    Caption, Visible, Enabled, ForeColor, BackColor, BackStyle, BorderStyle,
    FontName, FontSize, FontBold, FontUnderline, Alignment, UseMnemonic,
    Left, Top, Width, Height, ToolTipText, Tag, Interval, Text, SelStart,
    Value, ListIndex, ListCount, X1, Y1, X2, Y2, BorderColor, Picture, Stretch,
    Default, Cancel, TabIndex,
    // The pointer over a control; a form's close box and its place when it opens.
    MousePointer, ControlBox, StartUpPosition,
    // Common dialog
    FileName, FileTitle, InitDir, DialogTitle, CancelError, Color, Flags,
    Count_
};

constexpr int kPropCount = static_cast<int>(Prop::Count_);

std::string_view propName(Prop p);
std::optional<Prop> propFromName(std::string_view name);

// Alignment values of labels.
namespace align {
constexpr int Left = 0;
constexpr int Right = 1;
constexpr int Center = 2;
}  // namespace align

// BorderStyle values of forms and labels.
namespace border {
constexpr int None = 0;
constexpr int FixedSingle = 1;
constexpr int FixedToolWindow = 4;
}  // namespace border

// MousePointer values: the system's arrow, or the pointing hand of a link
// (the custom pointer of the controls that open the web page).
namespace pointer {
constexpr int Default = 0;
constexpr int Hand = 99;
}  // namespace pointer

// StartUpPosition values of a form: where it stands as it opens.
namespace startup {
constexpr int Manual = 0;
constexpr int CenterOwner = 1;
}  // namespace startup

}  // namespace brelk
