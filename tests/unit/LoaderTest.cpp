// Map loads that a scenario file cannot hold: the 16-bit line count, very
// large files, and files that are no files.

#include <sys/stat.h>
#include <sys/types.h>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <string>

#include "ProgramDoubles.h"
#include "map/Loader.h"

using namespace brelk;
using brelk::testing::ProgramTest;

namespace {

const std::string kMessage = "An error occured when reading file (wrong file format ?)\r\nFailed while reading line ";

struct Load : ProgramTest {
    void SetUp() override {
        ProgramTest::SetUp();
        p().start();
        dialogs.boxes.clear();
    }
    void load(const std::string& name) {
        dialogs.openAnswers.push_back(name);
        mnuLoad_Click(p());
    }
    std::string lines(int n, const std::string& line) const {
        std::string s;
        s.reserve(n * (line.size() + 2));
        for (int i = 0; i < n; ++i) s += line + "\r\n";
        return s;
    }
    double height() { return p().frmMain.self().number(Prop::Height); }
    double width() { return p().frmMain.self().number(Prop::Width); }
};

TEST_F(Load, TheLineCountStopsAtLine32768WhichIsReportedAs32767) {
    // 32767 lines are within the count: the item on the last of them loads.
    write("full.txt", lines(32766, "# spacer") + "Mega:35\r\n");
    load("full.txt");
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_EQ(p().vars.ItemCount, 1);
    EXPECT_EQ(p().frmMain.lblItem(1).caption(), "MEGA");

    // One line more fails on that line, under the last number the count holds.
    write("over.txt", lines(32767, "# spacer") + "Mega:35\r\nQuad:120\r\n");
    load("over.txt");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, "WTF ?!");
    EXPECT_EQ(dialogs.boxes[0].prompt, kMessage + " 32767 :\r\nMega:35");
    EXPECT_EQ(p().vars.ItemCount, 0);
    EXPECT_EQ(width(), 2050);
    EXPECT_EQ(height(), 700);
}

TEST_F(Load, AListOf32767RowsLoadsWholeAndIsClearedByTheNextLoad) {
    write("full.txt", lines(32767, "Mega:35"));
    load("full.txt");
    EXPECT_TRUE(dialogs.boxes.empty());
    ASSERT_EQ(p().vars.ItemCount, 32767);
    EXPECT_EQ(height(), 600 + 32767 * 350 + 500);
    EXPECT_EQ(p().frmMain.lblFond(32767).number(Prop::BackColor), p().vars.ListColor2);
    write("small.txt", "Mega:35\r\n");
    load("small.txt");
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_EQ(p().vars.ItemCount, 1);
}

TEST_F(Load, AHundredThousandItemLinesGiveTheRowsTheCountHoldsAndOneMessage) {
    write("huge.txt", lines(100000, "Mega:35"));
    load("huge.txt");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt, kMessage + " 32767 :\r\nMega:35");
    EXPECT_EQ(p().vars.ItemCount, 32767);
    // The next load clears them all.
    write("small.txt", "Mega:35\r\n");
    load("small.txt");
    EXPECT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(p().vars.ItemCount, 1);
    EXPECT_EQ(height(), 1450);
}

TEST_F(Load, AMegabyteLineIsShownCutInTheMessageOrLoadsAsACategory) {
    const std::string big(1 << 20, 'x');
    write("longitem.txt", "Mega:35\r\n" + big + "\r\n");
    load("longitem.txt");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt, kMessage + " 2 :\r\n" + std::string(500, 'x') + "...");
    EXPECT_EQ(p().vars.ItemCount, 1);

    write("longcat.txt", ":" + big + "\r\nMega:35\r\n");
    load("longcat.txt");
    EXPECT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(p().vars.CategoryCount, 1);
    EXPECT_EQ(p().frmMain.lblCat(1).caption(), big);
    EXPECT_EQ(p().vars.ItemCount, 1);
}

TEST_F(Load, TheCutCountsLettersNotBytes) {
    // 600 letters of two bytes each: the first 500 letters are shown whole.
    std::string line;
    for (int i = 0; i < 600; ++i) line += "\xC3\xA9";
    write("accents.txt", line + "\r\n");
    load("accents.txt");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt, kMessage + " 1 :\r\n" + line.substr(0, 1000) + "...");
}

TEST_F(Load, ADirectoryChosenAsAMapLeavesTheRowsAndReportsLineZero) {
    write("m.txt", ":Power\r\nMega:35\r\n");
    load("m.txt");
    ASSERT_EQ(p().vars.ItemCount, 1);
    std::filesystem::create_directory(path("folder.txt"));
    load("folder.txt");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt, kMessage + " 0 :\r\n");
    EXPECT_EQ(p().frmMain.lblMapName(1).caption(), "folder");
    EXPECT_EQ(p().vars.ItemCount, 1);
    EXPECT_EQ(p().vars.CategoryCount, 1);
    EXPECT_EQ(height(), 1850);
}

TEST_F(Load, ANamedPipeChosenAsAMapNeitherHangsNorClearsTheList) {
    write("m.txt", "Mega:35\r\n");
    load("m.txt");
    ASSERT_EQ(p().vars.ItemCount, 1);
    ASSERT_EQ(::mkfifo(path("pipe.txt").c_str(), 0600), 0);

    auto done = std::async(std::launch::async, [this] { load("pipe.txt"); });
    if (done.wait_for(std::chrono::seconds(5)) != std::future_status::ready) {
        // Free the stuck load so the test can end, then fail.
        const int fd = ::open(path("pipe.txt").c_str(), O_WRONLY);
        if (fd >= 0) ::close(fd);
        done.wait();
        FAIL() << "loading a named pipe hangs";
    }
    done.get();
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt, kMessage + " 0 :\r\n");
    EXPECT_EQ(p().vars.ItemCount, 1);
}

}  // namespace
