#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ScriptedDialogs.h"
#include "about/AboutForm.h"
#include "about/OpenWeb.h"
#include "forms/Brelk.h"
#include "platform/TimerScheduler.h"

using namespace brelk;

namespace {

// With no browser to start, the link gives the page's address in a message,
// and the About window stays open.
TEST(AboutLink, WithNoBrowserAMessageGivesTheAddressAndTheWindowStaysOpen) {
    TimerScheduler clock;
    doubles::ScriptedDialogs dialogs{clock, ""};
    doubles::ScriptedWindows desktop;
    desktop.browser = false;
    Services services{clock, dialogs, desktop, AppInfo{"", "Brelk"}};
    Brelk program(services);
    program.frmAbout = makeAboutForm(program);
    Form& about = *program.frmAbout;
    about.Load();

    about.click(about.at("Label2"));
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, "Brelk");
    EXPECT_NE(dialogs.boxes[0].prompt.find("https://www.railhold-crew.net/ressources/brelk/"), std::string::npos);
    EXPECT_EQ(desktop.openedUrls, std::vector<std::string>{webPageAddress()});
    EXPECT_TRUE(about.isLoaded());
}

}  // namespace
