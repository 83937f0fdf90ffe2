#include "options/OptionsDesign.h"

#include "options/ColourPicking.h"
#include "options/OptionRows.h"
#include "options/OptionsForm.h"
#include "platform/Design.h"

namespace brelk::options {

using namespace design;

namespace {

// The client area, 6705 by 4905 twips, inside the same thin frame as the
// main window's: 60 twips of border and a caption of 285.
constexpr double kOuterWidth = 6705 + 2 * 60;
constexpr double kOuterHeight = 4905 + 285 + 2 * 60;

// The rows of the two upper frames are 240 twips apart, from 360 down.
constexpr double rowTop(int i) { return 360 + 240 * i; }

Control& frame(Form& f, const char* name, const char* caption, double left, double top, double width,
               double height) {
    Control& c = f.add(ControlKind::Frame, name);
    c.setCaption(caption);
    geometry(c, left, top, width, height);
    return c;
}

// A caption on the left of a row, right-aligned against what it names.
Control& rowCaption(Form& f, const char* name, std::int16_t i, Control& box, double top, double width,
                    const char* caption, const char* tip) {
    Control& c = label(f, name, i, &box);
    geometry(c, 120, top, width, 255);
    c.setCaption(caption);
    c.set(Prop::ToolTipText, tip);
    c.setNumber(Prop::Alignment, align::Right);
    return c;
}

Control& numberBox(Form& f, const char* name, Control& box, double top, const char* text, int tabIndex) {
    Control& c = f.add(ControlKind::TextBox, name, &box);
    geometry(c, 2040, top, 495, 285);
    c.setText(text);
    c.setNumber(Prop::Alignment, align::Center);
    c.setNumber(Prop::TabIndex, tabIndex);
    return c;
}

Control& unitLabel(Form& f, const char* name, Control& box, double top, const char* caption) {
    Control& c = label(f, name, std::nullopt, &box);
    geometry(c, 2640, top, 615, 255);
    c.setCaption(caption);
    return c;
}

}  // namespace

void designOptionsForm(OptionsForm& f) {
    Control& form = f.self();
    form.setCaption("Brelk Options");
    geometry(form, 0, 0, kOuterWidth, kOuterHeight);
    form.setNumber(Prop::BorderStyle, border::FixedToolWindow);

    Control& colors = frame(f, "fraColors", "Change Colors", 120, 120, 2895, 3615);
    for (std::int16_t i = 0; i < kColourRows; ++i) {
        const ColourRow& row = colourRows()[i];
        rowCaption(f, "lblName", i, colors, rowTop(i), 2000, row.caption, row.tip);
        Control& swatch = f.addMember(ControlKind::Label, "lblColor", i, &colors);
        geometry(swatch, 2280, rowTop(i), 405, 195);
        swatch.setNumber(Prop::BorderStyle, border::FixedSingle);
        swatch.setNumber(Prop::BackColor, 0x000000FF);
    }

    // Tab goes through the Yes/No rows from the last one up, then on to the
    // boxes and the buttons.
    Control& options = frame(f, "fraOptions", "Options", 3120, 120, 3495, 3615);
    for (std::int16_t i = 0; i < kFlagRows; ++i) {
        const FlagRow& row = flagRows()[i];
        rowCaption(f, "lblOptionName", i, options, rowTop(i), 1815, row.caption, row.tip);
        Control& pair = f.addMember(ControlKind::PictureBox, "picOpt", i, &options);
        geometry(pair, 2040, rowTop(i), 1400, 255);
        pair.setNumber(Prop::BorderStyle, border::None);
        const int tab = 2 * (kFlagRows - 1 - i);
        Control& yes = f.addMember(ControlKind::OptionButton, "optYes", i, &pair);
        geometry(yes, 0, 0, 735, 255);
        yes.setCaption("Yes");
        yes.setNumber(Prop::TabIndex, tab);
        Control& no = f.addMember(ControlKind::OptionButton, "optNo", i, &pair);
        geometry(no, 720, 0, 615, 255);
        no.setCaption("No");
        no.setNumber(Prop::TabIndex, tab + 1);
        no.setFlag(Prop::Value, true);
    }
    rowCaption(f, "lblOptionName", 10, options, 2775, 1815, "Match length (minutes)", "Length in minutes of the match");
    rowCaption(f, "lblOptionName", 11, options, 3045, 1815, "Last seconds item blink",
               "Timers blink when under this number of seconds from respawning");
    numberBox(f, "txtMatchDuration", options, 2760, "20:00", 20);
    unitLabel(f, "Label1", options, 2775, "minutes");
    numberBox(f, "txtLastSeconds", options, 3030, "5", 21);
    unitLabel(f, "Label2", options, 3045, "seconds");

    Control& ok = commandButton(f, "cmdSave", nullptr, "OK", 5640, 3960, 975, 375, 22);
    ok.setFlag(Prop::Default, true);
    ok.set(Prop::ToolTipText,
           "Save this color & options set for immediate use. It will be used by default next time you run Brelk.");

    Control& sets = frame(f, "fraSet", "Options sets", 3120, 3840, 2415, 975);
    Control& list = f.add(ControlKind::ComboBox, "lstIniFiles", &sets);
    geometry(list, 120, 240, 2175, 315);
    list.setNumber(Prop::TabIndex, 26);
    commandButton(f, "cmdSaveAs", &sets, "Save as ...", 120, 650, 975, 255, 24);
    commandButton(f, "cmdDelete", &sets, "Delete", 1320, 650, 975, 255, 25).setEnabled(false);

    Control& cancel = commandButton(f, "cmdCancel", nullptr, "Cancel", 5640, 4440, 975, 375, 23);
    cancel.setFlag(Prop::Cancel, true);
    cancel.set(Prop::ToolTipText, "Exit without saving these options");

    f.add(ControlKind::CommonDialog, "dlg");
}

}  // namespace brelk::options
