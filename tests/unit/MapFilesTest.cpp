// Map loads a scenario cannot hold: every shipped map, the row count's limit.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "ScriptedProgram.h"
#include "map/Loader.h"
#include "platform/Numbers.h"

using namespace brelk;

namespace {

struct MapFiles : ::testing::Test, doubles::StartedProgram {
    void load(const std::string& name, const QByteArray& bytes) {
        put(name, bytes.toStdString());
        dialogs.boxes.clear();
        dialogs.openAnswers.push_back({name});
        mnuLoad_Click(p);
    }
};

TEST_F(MapFiles, EveryShippedMapLoadsWithAPictureAndAWholeDelayOnEveryRow) {
    const QDir maps(BRELK_SOURCE_DIR "/maps");
    const QStringList names = maps.entryList({"*.txt"}, QDir::Files);
    ASSERT_GE(names.size(), 8);
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        QFile source(maps.filePath(name));
        ASSERT_TRUE(source.open(QIODevice::ReadOnly));
        const QByteArray bytes = source.readAll();
        EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n")) << "every line ends with CR LF";
        load(name.toStdString(), bytes);
        EXPECT_TRUE(dialogs.boxes.empty()) << (dialogs.boxes.empty() ? "" : dialogs.boxes[0].prompt);
        EXPECT_GT(p.vars.ItemCount, 0);
        for (std::int16_t i = 1; i <= p.vars.ItemCount; ++i) {
            EXPECT_NE(p.frmMain.ico(i).get(Prop::Picture).text(), "") << "row " << i;
            const double delay = num::strictValue(p.frmMain.timerItem(i).tag());
            EXPECT_TRUE(delay > 0 && delay == num::roundHalfEven(delay)) << "row " << i;
        }
    }
}

TEST_F(MapFiles, TheLargestListLoadsWholeAndLine32768IsReportedAs32767) {
    load("full.txt", QByteArray("Mega:35\r\n").repeated(32767));
    EXPECT_TRUE(dialogs.boxes.empty());
    ASSERT_EQ(p.vars.ItemCount, 32767);
    EXPECT_EQ(p.frmMain.self().number(Prop::Height), 600 + 32767 * 350 + 500);
    // Blank lines count too; the load clears the full list first.
    load("limit.txt", QByteArray("\r\n").repeated(32766) + "Mega:35\r\nQuad:120\r\n");
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].prompt,
              "An error occured when reading file (wrong file format ?)\r\nFailed while reading line  32767 :\r\nQuad:120");
    EXPECT_EQ(p.vars.ItemCount, 1);
}

TEST_F(MapFiles, TheOpenDialogStartsInTheMapsFolderOfAnInstallOrBesideTheProfile) {
    mnuLoad_Click(p);
    EXPECT_EQ(dialogs.lastOpen->initDir, dir);
    services.app.mapDir = dir + "/maps";
    mnuLoad_Click(p);
    EXPECT_EQ(dialogs.lastOpen->initDir, dir + "/maps");
}

}  // namespace
