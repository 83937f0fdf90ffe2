#include "about/About.h"

#include <string>

#include "about/AboutForm.h"
#include "about/OpenWeb.h"
#include "platform/Errors.h"
#include "platform/Events.h"
#include "state/Program.h"

namespace brelk {

namespace {

// A line break in the window's texts.
constexpr const char* CR = "\r";

// Where the roll starts (just behind the lower mask) and ends, and its step,
// in the window's vertical units.
constexpr double kRollStart = 2300;
constexpr double kRollEnd = -4000;
constexpr double kRollStep = 25;

std::string description() {
    return std::string("Brelk is a small utility to help Quake Teams Coachs with items timing. It is a manual help, "
                       "not a replacement, and contains no action triggered by Quake itself.") +
           CR + CR + "To use it, load a map file, and simply click on an item to make its respawn countdown begin." +
           CR + "Map files are very simple text files that you can edit and customize or create." + CR + CR +
           "You should ask your league admin first, before intending to use this tool for official matches.";
}

std::string thanks() {
    const char* paragraphs[] = {
        "Thanks to the following :",
        "The two admins of our league's web site and of its spring tournament, for their honest opinion on such a tool.",
        "My three clan mates, for all their feedback and their ideas.",
        "One of them again, for getting me out of a setup problem on Windows XP.",
        "A web site full of programming tips, for answering my questions before I had asked them.",
        "Four bands and musicians on my playlist, for keeping me company through the coding nights.",
        "My mom, because we should always thank our mom",
        "And a few other folks for making Quake series and cool mods in it ...",
        "HF GL THX :)",
    };
    std::string text;
    for (const char* paragraph : paragraphs) {
        if (!text.empty()) text += std::string(CR) + CR;
        text += paragraph;
    }
    return text;
}

}  // namespace

namespace about {

AboutForm& frmAbout(Program& p) {
    auto* f = dynamic_cast<AboutForm*>(p.frmAbout.get());
    if (!f) brelk::raise(err::ControlNotLoaded, "The About window is not open");
    return *f;
}

void Form_Load(Program& p) {
    AboutForm& f = frmAbout(p);
    StopScroll(p);
    const AppInfo& app = p.sys.app;
    f.lblVersion().setCaption("Version " + std::to_string(app.major) + "." + std::to_string(app.minor) + "." +
                              std::to_string(app.revision));
    f.lblDescription().setCaption(description());
    // Both counts include this run: its start and the countdowns begun so far.
    f.lblStats().setCaption("You have used Brelk " + std::to_string(p.vars.Launched) + " times, and looked after " +
                            std::to_string(p.vars.TimedItems) + " items !");
    f.lblThx().setCaption(thanks());
}

void cmdOK_Click(Program& p) { frmAbout(p).Unload(); }

void cmdThx_Click(Program& p) {
    AboutForm& f = frmAbout(p);
    // The button's caption is the one record of whether the panel is open.
    if (f.cmdThx().caption() == ">>") StartScroll(p);
    else StopScroll(p);
    // Enter then closes the window, not the panel.
    f.setFocus(&f.cmdOK());
}

void StartScroll(Program& p) {
    AboutForm& f = frmAbout(p);
    f.cmdThx().setCaption("<<");
    f.lblThx().setNumber(Prop::Top, kRollStart);
    f.timerThx().setEnabled(true);
    f.self().setNumber(Prop::Width, kAboutWidthOpen);
}

void StopScroll(Program& p) {
    AboutForm& f = frmAbout(p);
    f.cmdThx().setCaption(">>");
    f.lblThx().setNumber(Prop::Top, kRollStart);
    f.timerThx().setEnabled(false);
    f.self().setNumber(Prop::Width, kAboutWidthClosed);
}

void timerThx_Timer(Program& p) {
    Control& text = frmAbout(p).lblThx();
    text.setNumber(Prop::Top, text.number(Prop::Top) - kRollStep);
    if (text.number(Prop::Top) <= kRollEnd) StopScroll(p);
}

void Label2_Click(Program& p) { OpenWebPage(p, webPageAddress()); }

void picIcon_Click(Program& p) { OpenWebPage(p, webPageAddress()); }

void Label2_MouseMove(Program& p) { frmAbout(p).Label2().setFlag(Prop::FontUnderline, true); }

void Form_MouseMove(Program& p) { frmAbout(p).Label2().setFlag(Prop::FontUnderline, false); }

}  // namespace about

std::unique_ptr<AboutForm> makeAboutForm(Program& p) {
    auto form = std::make_unique<AboutForm>(p.sys.timers);
    AboutForm& f = *form;
    designAboutForm(f);
    using namespace about;
    f.on("frmAbout", Event::Load, plain(p, Form_Load));
    f.on("frmAbout", Event::MouseMove, plain(p, Form_MouseMove));
    f.on("cmdOK", Event::Click, plain(p, cmdOK_Click));
    f.on("cmdThx", Event::Click, plain(p, cmdThx_Click));
    f.on("timerThx", Event::Timer, plain(p, timerThx_Timer));
    f.on("Label2", Event::Click, plain(p, Label2_Click));
    f.on("Label2", Event::MouseMove, plain(p, Label2_MouseMove));
    f.on("picIcon", Event::Click, plain(p, picIcon_Click));
    return form;
}

}  // namespace brelk
