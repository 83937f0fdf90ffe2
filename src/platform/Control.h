#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Property.h"
#include "platform/Value.h"

namespace brelk {

class Form;

enum class ControlKind {
    Form, Label, Image, Line, Timer, CommandButton, TextBox, OptionButton,
    ComboBox, PictureBox, Frame, Menu, CommonDialog
};

// One control of a form: a bag of properties of its kind that reads back
// exactly what was last written. Timers start and stop on their form's
// scheduler when `Enabled` changes; every change is reported to the form's
// observers, which is how a view follows the model.
class Control {
public:
    Control(Form& form, ControlKind kind, std::string name, std::optional<std::int16_t> index,
            Control* container);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Form& form() const { return form_; }
    ControlKind kind() const { return kind_; }
    const std::string& name() const { return name_; }
    // The member's index in its control array, 0 for a single control.
    std::int16_t index() const { return index_.value_or(0); }
    // "lblTimer(3)", "cmdPopup".
    std::string displayName() const;
    Control* container() const { return container_; }

    bool has(Prop p) const { return props_[static_cast<int>(p)].has_value(); }
    // Reads a property; raises run-time error 438 style failure (InvalidCall)
    // when the control's kind has no such property.
    Value get(Prop p) const;
    void set(Prop p, Value v);
    // Copies the properties of `prototype` (a member 0) for a newly loaded member.
    void copyDesign(const Control& prototype);

    // Typed access to the properties the program uses most.
    std::string caption() const { return get(Prop::Caption).text(); }
    void setCaption(std::string s) { set(Prop::Caption, Value(std::move(s))); }
    std::string tag() const { return get(Prop::Tag).text(); }
    void setTag(std::string s) { set(Prop::Tag, Value(std::move(s))); }
    bool visible() const { return flag(Prop::Visible); }
    void setVisible(bool b) { setFlag(Prop::Visible, b); }
    bool enabled() const { return flag(Prop::Enabled); }
    void setEnabled(bool b) { setFlag(Prop::Enabled, b); }
    bool flag(Prop p) const { return get(p).number() != 0; }
    void setFlag(Prop p, bool b) { set(p, Value(b ? -1 : 0)); }
    double number(Prop p) const { return get(p).number(); }
    void setNumber(Prop p, double v) { set(p, Value(v)); }
    std::string text() const { return get(Prop::Text).text(); }
    void setText(std::string s) { set(Prop::Text, Value(std::move(s))); }

    // Which axes of the geometry are in the form's own units instead of
    // twips: across (Left, Width) and down (Top, Height).
    void placeInFormUnits(bool across, bool down) {
        unitsAcross_ = across;
        unitsDown_ = down;
    }
    // Twips per unit of the geometry across and down (1 where it is in twips).
    double twipsPerUnitAcross() const;
    double twipsPerUnitDown() const;

    // Stacking order among the form's controls; higher is in front.
    int zOrder() const { return z_; }
    // ZOrder 1: behind every sibling; 0: in front.
    void ZOrder(int position);

    // Entries of a drop-down list.
    const std::vector<std::string>& listItems() const { return list_; }
    void AddItem(std::string text);
    void RemoveItem(int index);

private:
    friend class Form;
    void setZ(int z) { z_ = z; }

    Form& form_;
    ControlKind kind_;
    std::string name_;
    std::optional<std::int16_t> index_;
    Control* container_;
    std::array<std::optional<Value>, kPropCount> props_;
    std::vector<std::string> list_;
    int z_ = 0;
    bool unitsAcross_ = false;
    bool unitsDown_ = false;
};

}  // namespace brelk
