// brelk-screenshot OUT.png: draws the main window in the middle of a match on
// the Campgrounds map, at two device pixels per logical pixel, for the
// documentation. Run by hand: cmake --build build --target screenshots
#include <QApplication>
#include <QPixmap>
#include <QTemporaryDir>

#include <cstdio>

#include "forms/Brelk.h"
#include "map/Loader.h"
#include "platform/Dialogs.h"
#include "platform/TimerScheduler.h"
#include "view/window/MainWindow.h"

using namespace brelk;

namespace {

// Opens the shipped map; nothing else is asked in this scene.
class SceneDialogs : public Dialogs {
public:
    int msgBox(const std::string&, int, const std::string&) override { return msgbox::Ok; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::optional<OpenFileResult> openFile(const OpenFileRequest&) override {
        return OpenFileResult{BRELK_SOURCE_DIR "/maps/Campgrounds.txt", "Campgrounds.txt"};
    }
    std::optional<std::int32_t> showColor(const ColorRequest&) override { return std::nullopt; }
    Control* popupMenu(Form&, Control&) override { return nullptr; }
    void showModal(Form&) override {}
};

class NoWindows : public WindowSystem {
public:
    void setTopmost(Form&, bool) override {}
    bool openUrl(const std::string&) override { return true; }
    int screenWidth() const override { return 19200; }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: brelk-screenshot OUT.png\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);

    TimerScheduler clock;
    SceneDialogs dialogs;
    NoWindows windows;
    QTemporaryDir profile;  // the run's profile file goes nowhere lasting
    Services services{clock, dialogs, windows, AppInfo{profile.path().toStdString(), "brelk"}};
    Brelk program(services);
    auto window = view::createMainWindow(program.frmMain, [&](const std::function<void()>& a) { return program.guarded(a); });
    program.guarded([&] {
        program.start();
        mnuLoad_Click(program);
        MainForm& f = program.frmMain;
        const auto click = [&](Control& c) {
            f.mouseDown(c, button::Left);
            f.mouseUp(c, button::Left);
        };
        click(f.lblMatchTimer());
        clock.advanceBy(95000);
        // The armours (25 s) and the mega (35 s) started at different moments.
        for (std::int16_t row : {1, 3, 4}) {
            click(f.lblFond(row));
            clock.advanceBy(row == 4 ? 1100 : 10000);
        }
    });
    window->show();
    QPixmap image(window->size() * 2);
    image.setDevicePixelRatio(2);
    image.fill(Qt::transparent);
    window->render(&image);
    return image.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
