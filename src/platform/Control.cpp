#include "platform/Control.h"

#include <initializer_list>
#include <utility>

#include "platform/Errors.h"
#include "platform/Form.h"

namespace brelk {

namespace {

using PV = std::pair<Prop, Value>;

void put(std::array<std::optional<Value>, kPropCount>& props, std::initializer_list<PV> values) {
    for (const auto& [p, v] : values) props[static_cast<int>(p)] = v;
}

// The properties each kind carries, with the platform's own defaults; the
// form's design fills in what differs.
void installDefaults(ControlKind kind, std::array<std::optional<Value>, kPropCount>& props) {
    const std::initializer_list<PV> geometry = {
        {Prop::Left, 0}, {Prop::Top, 0}, {Prop::Width, 0}, {Prop::Height, 0}};
    const std::initializer_list<PV> font = {
        {Prop::FontName, "MS Sans Serif"}, {Prop::FontSize, 8.25}, {Prop::FontBold, 0},
        {Prop::FontUnderline, 0}};
    const std::initializer_list<PV> common = {
        {Prop::Visible, -1}, {Prop::Enabled, -1}, {Prop::ToolTipText, ""}, {Prop::Tag, ""},
        {Prop::MousePointer, pointer::Default}};
    switch (kind) {
    case ControlKind::Form:
        put(props, geometry);
        put(props, {{Prop::Caption, ""}, {Prop::BackColor, 0x00C0C0C0}, {Prop::Visible, 0},
                    {Prop::Enabled, -1}, {Prop::Tag, ""}, {Prop::BorderStyle, 2},
                    {Prop::ControlBox, -1}, {Prop::StartUpPosition, startup::Manual}});
        break;
    case ControlKind::Label:
        put(props, geometry);
        put(props, font);
        put(props, common);
        put(props, {{Prop::Caption, ""}, {Prop::ForeColor, 0}, {Prop::BackColor, 0x00C0C0C0},
                    {Prop::BackStyle, 1}, {Prop::Alignment, align::Left}, {Prop::UseMnemonic, -1},
                    {Prop::BorderStyle, 0}});
        break;
    case ControlKind::Image:
        put(props, geometry);
        put(props, common);
        put(props, {{Prop::Picture, ""}, {Prop::Stretch, 0}});
        break;
    case ControlKind::Line:
        put(props, {{Prop::X1, 0}, {Prop::Y1, 0}, {Prop::X2, 0}, {Prop::Y2, 0},
                    {Prop::BorderColor, 0}, {Prop::Visible, -1}, {Prop::Tag, ""}});
        break;
    case ControlKind::Timer:
        put(props, {{Prop::Enabled, 0}, {Prop::Interval, 0}, {Prop::Tag, ""}});
        break;
    case ControlKind::CommandButton:
        put(props, geometry);
        put(props, font);
        put(props, common);
        put(props, {{Prop::Caption, ""}, {Prop::Default, 0}, {Prop::Cancel, 0}, {Prop::TabIndex, 0}});
        break;
    case ControlKind::TextBox:
        put(props, geometry);
        put(props, font);
        put(props, common);
        put(props, {{Prop::Text, ""}, {Prop::SelStart, 0}, {Prop::ForeColor, 0},
                    {Prop::BackColor, 0x00FFFFFF}, {Prop::Alignment, align::Left}, {Prop::TabIndex, 0}});
        break;
    case ControlKind::OptionButton:
        put(props, geometry);
        put(props, font);
        put(props, common);
        put(props, {{Prop::Caption, ""}, {Prop::Value, 0}, {Prop::ForeColor, 0},
                    {Prop::BackColor, 0x00C0C0C0}, {Prop::TabIndex, 0}});
        break;
    case ControlKind::ComboBox:
        put(props, geometry);
        put(props, font);
        put(props, common);
        put(props, {{Prop::ListIndex, -1}, {Prop::Text, ""}, {Prop::TabIndex, 0}});
        break;
    case ControlKind::PictureBox:
        put(props, geometry);
        put(props, common);
        put(props, {{Prop::BackColor, 0x00C0C0C0}, {Prop::BorderStyle, 1}, {Prop::Picture, ""},
                    {Prop::TabIndex, 0}});
        break;
    case ControlKind::Frame:
        put(props, geometry);
        put(props, font);
        put(props, common);
        put(props, {{Prop::Caption, ""}, {Prop::ForeColor, 0}, {Prop::BackColor, 0x00C0C0C0}});
        break;
    case ControlKind::Menu:
        put(props, {{Prop::Caption, ""}, {Prop::Visible, -1}, {Prop::Enabled, -1}, {Prop::Tag, ""}});
        break;
    case ControlKind::CommonDialog:
        put(props, {{Prop::FileName, ""}, {Prop::FileTitle, ""}, {Prop::InitDir, ""},
                    {Prop::DialogTitle, ""}, {Prop::CancelError, 0}, {Prop::Color, 0},
                    {Prop::Flags, 0}, {Prop::Tag, ""}});
        break;
    }
}

}  // namespace

Control::Control(Form& form, ControlKind kind, std::string name, std::optional<std::int16_t> index,
                 Control* container)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index), container_(container) {
    installDefaults(kind, props_);
}

std::string Control::displayName() const {
    if (!index_) return name_;
    return name_ + "(" + std::to_string(*index_) + ")";
}

Value Control::get(Prop p) const {
    if (p == Prop::ListCount && kind_ == ControlKind::ComboBox)
        return Value(static_cast<int>(list_.size()));
    const auto& v = props_[static_cast<int>(p)];
    if (!v) raise(err::InvalidCall, displayName() + " has no property " + std::string(propName(p)));
    return *v;
}

void Control::set(Prop p, Value v) {
    auto& slot = props_[static_cast<int>(p)];
    if (!slot || p == Prop::ListCount)
        raise(err::InvalidCall, displayName() + " has no property " + std::string(propName(p)));
    const bool wasOn = slot->number() != 0;
    slot = std::move(v);
    if (kind_ == ControlKind::Timer && (p == Prop::Enabled || p == Prop::Interval))
        form_.timerChanged(*this, p, wasOn);
    if (kind_ == ControlKind::OptionButton && p == Prop::Value)
        form_.optionValueWritten(*this, wasOn != (slot->number() != 0));
    if (kind_ == ControlKind::ComboBox && p == Prop::ListIndex) {
        const double i = slot->number();
        slot = Value(i >= 0 && i < static_cast<double>(list_.size()) ? i : -1.0);
    }
    form_.notifyChanged(*this, p);
}

void Control::copyDesign(const Control& prototype) {
    props_ = prototype.props_;
    list_ = prototype.list_;
    unitsAcross_ = prototype.unitsAcross_;
    unitsDown_ = prototype.unitsDown_;
    // A loaded member starts hidden until the program shows it.
    auto& visible = props_[static_cast<int>(Prop::Visible)];
    if (visible) visible = Value(0);
}

double Control::twipsPerUnitAcross() const { return unitsAcross_ ? form_.scale().x : 1.0; }

double Control::twipsPerUnitDown() const { return unitsDown_ ? form_.scale().y : 1.0; }

void Control::ZOrder(int position) {
    form_.reorder(*this, position == 0);
}

void Control::AddItem(std::string text) {
    list_.push_back(std::move(text));
    form_.notifyChanged(*this, Prop::ListCount);
}

void Control::RemoveItem(int index) {
    if (index < 0 || index >= static_cast<int>(list_.size())) raise(err::InvalidCall);
    list_.erase(list_.begin() + index);
    const double selected = get(Prop::ListIndex).number();
    if (selected == index) props_[static_cast<int>(Prop::ListIndex)] = Value(-1);
    else if (selected > index) props_[static_cast<int>(Prop::ListIndex)] = Value(selected - 1);
    form_.notifyChanged(*this, Prop::ListCount);
}

}  // namespace brelk
