#include <gtest/gtest.h>

#include "ScriptedDialogs.h"
#include "about/AboutForm.h"
#include "forms/Brelk.h"
#include "platform/TimerScheduler.h"

using namespace brelk;

TEST(AboutLink, WithNoBrowserAMessageGivesTheAddressAndTheWindowStaysOpen) {
    TimerScheduler clock;
    doubles::ScriptedDialogs dialogs{clock, ""};
    doubles::ScriptedWindows desktop;
    desktop.browser = false;
    Services services{clock, dialogs, desktop, AppInfo{"", "Brelk"}};
    Brelk program(services);
    program.frmAbout = makeAboutForm(program);
    program.frmAbout->Load();
    program.frmAbout->click(program.frmAbout->at("Label2"));
    EXPECT_EQ(dialogs.boxes.at(0).title, "Brelk");
    EXPECT_TRUE(dialogs.boxes.at(0).prompt.ends_with("https://www.railhold-crew.net/ressources/brelk/"));
    EXPECT_TRUE(program.frmAbout->isLoaded());
}
