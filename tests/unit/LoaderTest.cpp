// Map loads that a scenario file cannot hold: very large files, files that
// cannot be read, and files that are no files.

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <future>
#include <string>
#include <vector>

#include "MemoryCap.h"
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
    // A one-row map, loaded before a file that must leave the row alone.
    void loadOneRow() {
        write("one.txt", "Mega:35\r\n");
        load("one.txt");
        ASSERT_EQ(p().vars.ItemCount, 1);
        ASSERT_TRUE(dialogs.boxes.empty());
    }
    // The last load gave the one message at line 0 and kept the one row.
    bool refusedWithTheRowKept() {
        return dialogs.boxes.size() == 1 && dialogs.boxes[0].prompt == kMessage + " 0 :\r\n" &&
               p().vars.ItemCount == 1 && p().frmMain.lblItem(1).caption() == "MEGA" && height() == 1450;
    }
};

TEST_F(Load, ThirtyTwoThousandSevenHundredSixtySevenLinesLoadWholeAndTheNextStops) {
    write("full.txt", lines(32767, "Mega:35"));
    load("full.txt");
    EXPECT_TRUE(dialogs.boxes.empty());
    ASSERT_EQ(p().vars.ItemCount, 32767);
    EXPECT_EQ(height(), 600 + 32767 * 350 + 500);
    EXPECT_EQ(p().frmMain.lblFond(32767).number(Prop::BackColor), p().vars.ListColor2);
    // Blank lines count too: line 32768 is past what the count holds, and
    // reported as 32767. The load clears the full list first.
    write("limit.txt", lines(32766, "") + "Mega:35\r\nQuad:120\r\n");
    load("limit.txt");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt, kMessage + " 32767 :\r\nQuad:120");
    EXPECT_EQ(p().vars.ItemCount, 1);
}

TEST_F(Load, AMegabyteLineIsShownCutAt500LettersOrLoadsWholeAsACategory) {
    const std::string big(1 << 20, 'x');
    write("longitem.txt", "Mega:35\r\n" + big + "\r\n");
    load("longitem.txt");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt, kMessage + " 2 :\r\n" + std::string(500, 'x') + "...");
    EXPECT_EQ(p().vars.ItemCount, 1);

    // Letters of two bytes: the first 500 letters are shown whole.
    std::string accents;
    for (int i = 0; i < 600; ++i) accents += "\xC3\xA9";
    write("accents.txt", accents + "\r\n");
    load("accents.txt");
    ASSERT_EQ(dialogs.boxes.size(), 2u);
    EXPECT_EQ(dialogs.boxes[1].prompt, kMessage + " 1 :\r\n" + accents.substr(0, 1000) + "...");

    write("longcat.txt", ":" + big + "\r\nMega:35\r\n");
    load("longcat.txt");
    EXPECT_EQ(dialogs.boxes.size(), 2u);
    EXPECT_EQ(p().frmMain.lblCat(1).caption(), big);
    EXPECT_EQ(p().vars.ItemCount, 1);
}

TEST_F(Load, AFileThatIsNoReadableFileLeavesTheRowsAndReportsLineZero) {
    std::vector<std::string> names = {"folder"};
    std::filesystem::create_directory(path("folder.txt"));
    // The process's own memory file opens as a regular file, and reading it
    // from its start fails.
    if (std::filesystem::exists("/proc/self/mem")) {
        std::filesystem::create_symlink("/proc/self/mem", path("memory.txt"));
        names.push_back("memory");
    }
    write("locked.txt", "Quad:120\r\n");
    ::chmod(path("locked.txt").c_str(), 0);
    if (!std::ifstream(path("locked.txt")).is_open()) names.push_back("locked");  // not for root
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        dialogs.boxes.clear();
        loadOneRow();
        load(name + ".txt");
        EXPECT_TRUE(refusedWithTheRowKept());
        EXPECT_EQ(p().frmMain.lblMapName(1).caption(), name);
    }
}

TEST_F(Load, ANamedPipeChosenAsAMapNeitherHangsNorClearsTheList) {
    loadOneRow();
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
    EXPECT_TRUE(refusedWithTheRowKept());
}

TEST_F(Load, AFileTooBigForMemoryGivesTheMessageAndKeepsTheRows) {
    if (!brelk::testing::canCapMemory()) GTEST_SKIP() << "no /proc here";
    loadOneRow();
    // A sparse gigabyte of zeros, far more than the capped child may hold.
    const int fd = ::open(path("huge.txt").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(::ftruncate(fd, off_t{1} << 30), 0);
    ::close(fd);
    EXPECT_TRUE(brelk::testing::holdsWithMemoryCap([&] {
        load("huge.txt");
        return refusedWithTheRowKept();
    }));
}

}  // namespace
