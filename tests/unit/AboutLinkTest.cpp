#include <gtest/gtest.h>

#include "ScriptedProgram.h"
#include "about/AboutForm.h"

using namespace brelk;

TEST(AboutLink, WithNoBrowserAMessageGivesTheAddressAndTheWindowStaysOpen) {
    doubles::ScriptedProgram w;
    w.windows.browser = false;
    Brelk& program = w.p;
    program.frmAbout = makeAboutForm(program);
    program.frmAbout->Load();
    program.frmAbout->click(program.frmAbout->at("Label2"));
    EXPECT_EQ(w.dialogs.boxes.at(0).title, "Brelk");
    EXPECT_TRUE(w.dialogs.boxes.at(0).prompt.ends_with("https://www.railhold-crew.net/ressources/brelk/"));
    EXPECT_TRUE(program.frmAbout->isLoaded());
}
