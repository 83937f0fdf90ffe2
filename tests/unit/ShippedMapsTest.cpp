// Every map shipped beside the program loads whole: no message (a line the
// loader cannot take would give one), and every row has a picture of the
// catalogue (a misspelt token would show as text instead) and a whole delay.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ProgramDoubles.h"
#include "map/Loader.h"
#include "platform/Numbers.h"

using namespace brelk;
using brelk::testing::ProgramTest;

namespace {

std::vector<std::filesystem::path> shippedMaps() {
    std::vector<std::filesystem::path> maps;
    for (const auto& entry : std::filesystem::directory_iterator(BRELK_SOURCE_DIR "/maps"))
        if (entry.path().extension() == ".txt") maps.push_back(entry.path());
    std::sort(maps.begin(), maps.end());
    return maps;
}

struct ShippedMaps : ProgramTest {};

TEST_F(ShippedMaps, EachLoadsWithAPictureAndAWholePositiveDelayOnEveryRow) {
    const auto maps = shippedMaps();
    ASSERT_GE(maps.size(), 8u);
    p().start();
    dialogs.boxes.clear();

    for (const auto& source : maps) {
        SCOPED_TRACE(source.filename().string());
        std::ifstream in(source, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), std::count(bytes.begin(), bytes.end(), '\r'))
            << "every line ends with CR LF";
        write(source.filename().string(), bytes);
        dialogs.openAnswers.push_back(source.filename().string());
        mnuLoad_Click(p());

        EXPECT_TRUE(dialogs.boxes.empty()) << (dialogs.boxes.empty() ? "" : dialogs.boxes[0].prompt);
        dialogs.boxes.clear();
        EXPECT_EQ(p().frmMain.lblMapName(1).caption(), source.stem().string());
        EXPECT_GT(p().vars.ItemCount, 0);
        for (std::int16_t i = 1; i <= p().vars.ItemCount; ++i) {
            EXPECT_NE(p().frmMain.ico(i).get(Prop::Picture).text(), "") << "row " << i;
            const double delay = num::strictValue(p().frmMain.timerItem(i).tag());
            EXPECT_GT(delay, 0) << "row " << i;
            EXPECT_EQ(delay, num::roundHalfEven(delay)) << "row " << i;
        }
    }
}

}  // namespace
