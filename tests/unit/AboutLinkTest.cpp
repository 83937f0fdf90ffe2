#include <string>
#include <vector>

#include "ProgramDoubles.h"
#include "about/AboutForm.h"
#include "about/OpenWeb.h"

namespace brelk::testing {
namespace {

// A desktop that shows addresses, or that can start nothing to show them.
class Desktop : public WindowSystem {
public:
    bool opens = true;
    std::vector<std::string> asked;
    void setTopmost(Form&, bool) override {}
    bool openUrl(const std::string& address) override {
        asked.push_back(address);
        return opens;
    }
};

// With no browser to start, the link gives the page's address in a message
// instead, and the About window stays open; with one, nothing is shown.
TEST(AboutLink, WithNoBrowserAMessageGivesTheAddressAndTheWindowStaysOpen) {
    TimerScheduler timers;
    QueuedDialogs dialogs;
    Desktop desktop;
    Services services{timers, dialogs, desktop, AppInfo{"", "Brelk"}};
    Brelk program(services);
    program.frmAbout = makeAboutForm(program);
    Form& about = *program.frmAbout;
    about.Load();

    desktop.opens = false;
    about.click(about.at("Label2"));
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, "Brelk");
    EXPECT_NE(dialogs.boxes[0].prompt.find("https://www.railhold-crew.net/ressources/brelk/"), std::string::npos);
    EXPECT_TRUE(about.isLoaded());

    desktop.opens = true;
    about.click(about.at("picIcon"));
    EXPECT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(desktop.asked, std::vector<std::string>(2, webPageAddress()));
    EXPECT_TRUE(about.isLoaded());
}

}  // namespace
}  // namespace brelk::testing
