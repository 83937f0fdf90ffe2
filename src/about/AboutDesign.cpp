#include <string>

#include "about/AboutForm.h"
#include "about/OpenWeb.h"
#include "platform/Design.h"
#include "platform/Platform.h"

namespace brelk {

using namespace design;

namespace {

constexpr const char* kLinkTip = "Go to Brelk internet page";
// The client area's height; the code sets the width as the window opens.
constexpr double kClientHeight = 3765;
constexpr double kDesignClientWidth = 8655;

Control& plainLabel(AboutForm& f, const char* name, double left, double top, double width, double height,
                    int foreColor) {
    Control& c = label(f, name);
    geometry(c, left, top, width, height);
    c.setNumber(Prop::ForeColor, foreColor);
    return c;
}

// An opaque label in the form's colour: one of the masks of the thanks panel.
Control& mask(AboutForm& f, const char* name, double left, double top, double width, double height) {
    Control& c = f.add(ControlKind::Label, name);
    geometry(c, left, top, width, height);
    c.set(Prop::BackStyle, 1);
    c.set(Prop::BackColor, f.self().get(Prop::BackColor));
    return c;
}

}  // namespace

void designAboutForm(AboutForm& f) {
    Control& form = f.self();
    form.setCaption("About Brelk");
    // A fixed dialog with no boxes in its caption, centred on the main window.
    form.set(Prop::BorderStyle, 3);
    form.setFlag(Prop::ControlBox, false);
    form.set(Prop::StartUpPosition, startup::CenterOwner);
    geometry(form, 0, 0, kDesignClientWidth + 2 * kFrameBorder, kClientHeight + kFrameCaption + 2 * kFrameBorder);
    f.setScale({kAboutTwipsPerUnitX, kAboutTwipsPerUnitY});

    // Made from the back to the front, so each control lies over those before it.
    plainLabel(f, "lblDescription", 975, 600, 4365, 2205, 0x00000000);
    plainLabel(f, "lblVersion", 2040, 304, 1485, 225, 0x00000080);

    Control& line = f.add(ControlKind::Line, "Line1");
    line.setNumber(Prop::X1, 240);
    line.setNumber(Prop::Y1, 3187);
    line.setNumber(Prop::X2, 5400);
    line.setNumber(Prop::Y2, 3187);
    line.setNumber(Prop::BorderColor, 0x00E0E0E0);

    Control& credit = plainLabel(f, "Label1", 120, 3240, 5295, 255, 0x00000000);
    credit.setCaption("Written by the Railhold crew, 2005");
    credit.setNumber(Prop::Alignment, align::Center);

    Control& link = plainLabel(f, "Label2", 1800, 3480, 2055, 255, 0x00FF0000);
    link.setCaption(kWebHost);
    link.setNumber(Prop::Alignment, align::Center);
    link.setNumber(Prop::MousePointer, pointer::Hand);
    link.set(Prop::ToolTipText, kLinkTip);

    // The name with a relief: the dark copy lies a little up and right, in front.
    for (std::int16_t i : {1, 0}) {
        Control& name = label(f, "lblMapName", i);
        name.setCaption("Brelk");
        geometry(name, i == 0 ? 969 : 960, i == 0 ? 232 : 240, 1815, 255);
        name.setNumber(Prop::ForeColor, i == 0 ? 0x00000040 : 0x000000C0);
        font(name, "MS Sans Serif", 12, true);
    }

    Control& stats = plainLabel(f, "lblStats", 960, 2895, 4455, 240, 0x00808080);
    font(stats, "Small Fonts", 6.75, false);

    // The rolling text: its Top and Height are in the window's vertical units,
    // in which the roll moves by whole steps.
    Control& thx = f.add(ControlKind::Label, "lblThx");
    thx.placeInFormUnits(false, true);
    geometry(thx, 5520, 1000, 1935, 6255 / kAboutTwipsPerUnitY);
    thx.set(Prop::BackColor, form.get(Prop::BackColor));
    font(thx, "Arial", 6.75, false);

    // The panel's masks: the text shows only between 735 and 3240 twips.
    Control& title = mask(f, "Label3", 5400, 240, 2175, 495);
    title.setCaption("Thank you !");
    title.setNumber(Prop::Alignment, align::Center);
    font(title, "MS Sans Serif", 8.25, true);
    mask(f, "Label4", 5400, 3240, 2295, 1335);
    mask(f, "Label5", 5400, 0, 2295, 255);

    Control& ok = commandButton(f, "cmdOK", nullptr, "OK", 240, 2709, 540, 345, 0);
    ok.setFlag(Prop::Default, true);
    ok.setFlag(Prop::Cancel, true);

    Control& icon = f.add(ControlKind::PictureBox, "picIcon");
    geometry(icon, 240, 240, 540, 540);
    icon.set(Prop::Picture, kProgramIconPicture);
    icon.setNumber(Prop::MousePointer, pointer::Hand);
    icon.set(Prop::ToolTipText, kLinkTip);
    icon.setNumber(Prop::TabIndex, 2);

    timer(f, "timerThx", std::nullopt, 200, "");
    commandButton(f, "cmdThx", nullptr, ">>", 5040, 240, 375, 255, 1);
}

}  // namespace brelk
