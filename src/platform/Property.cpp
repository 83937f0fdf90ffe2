#include "platform/Property.h"

#include <array>

namespace brelk {

namespace {
constexpr std::array<std::string_view, kPropCount> kNames = {
    "Caption", "Visible", "Enabled", "ForeColor", "BackColor", "BackStyle", "BorderStyle",
    "FontName", "FontSize", "FontBold", "FontUnderline", "Alignment", "UseMnemonic",
    "Left", "Top", "Width", "Height", "ToolTipText", "Tag", "Interval", "Text", "SelStart",
    "Value", "ListIndex", "ListCount", "X1", "Y1", "X2", "Y2", "BorderColor", "Picture", "Stretch",
    "Default", "Cancel", "TabIndex",
    "MousePointer", "ControlBox", "StartUpPosition",
    "FileName", "FileTitle", "InitDir", "DialogTitle", "CancelError", "Color", "Flags",
};
}  // namespace

std::string_view propName(Prop p) { return kNames[static_cast<int>(p)]; }

std::optional<Prop> propFromName(std::string_view name) {
    for (int i = 0; i < kPropCount; ++i)
        if (kNames[i] == name) return static_cast<Prop>(i);
    return std::nullopt;
}

}  // namespace brelk
