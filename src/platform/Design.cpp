#include "platform/Design.h"

namespace brelk::design {

void geometry(Control& c, double left, double top, double width, double height) {
    c.setNumber(Prop::Left, left);
    c.setNumber(Prop::Top, top);
    c.setNumber(Prop::Width, width);
    c.setNumber(Prop::Height, height);
}

void font(Control& c, const char* name, double size, bool bold) {
    c.set(Prop::FontName, name);
    c.setNumber(Prop::FontSize, size);
    c.setFlag(Prop::FontBold, bold);
}

Control& label(Form& f, const std::string& name, std::optional<std::int16_t> index, Control* container) {
    Control& c = index ? f.addMember(ControlKind::Label, name, *index, container)
                       : f.add(ControlKind::Label, name, container);
    c.set(Prop::BackStyle, 0);
    return c;
}

Control& timer(Form& f, const std::string& name, std::optional<std::int16_t> index, int interval,
               const char* tag) {
    Control& c = index ? f.addMember(ControlKind::Timer, name, *index) : f.add(ControlKind::Timer, name);
    c.setNumber(Prop::Interval, interval);
    c.setTag(tag);
    return c;
}

Control& commandButton(Form& f, const std::string& name, Control* container, const char* caption,
                       double left, double top, double width, double height, int tabIndex) {
    Control& c = f.add(ControlKind::CommandButton, name, container);
    c.setCaption(caption);
    geometry(c, left, top, width, height);
    c.setNumber(Prop::TabIndex, tabIndex);
    return c;
}

Control& menu(Form& f, const std::string& name, Control* parent, const char* caption) {
    Control& c = f.add(ControlKind::Menu, name, parent);
    c.setCaption(caption);
    return c;
}

}  // namespace brelk::design
