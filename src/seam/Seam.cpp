#include "seam/Seam.h"

#include <algorithm>
#include <utility>

#include "platform/Dialogs.h"
#include "platform/Events.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "state/ClockReading.h"
#include "state/Happenings.h"
#include "state/Markers.h"
#include "state/Program.h"

namespace brelk::seam {

namespace {

std::string linesOf(std::string text) {
    // A box's line breaks, CR LF or a lone CR, as "\n".
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') out += text[i];
        else if (i + 1 < text.size() && text[i + 1] == '\n') continue;
        else out += '\n';
    }
    return out;
}

// The dialogs while a command runs: a box is not shown but kept as the
// command's refusal, the open dialog gives the command's file, and nothing
// else opens.
class CommandDialogs : public Dialogs {
public:
    explicit CommandDialogs(std::string file) : file_(std::move(file)) {}

    std::string refusal;

    int msgBox(const std::string& prompt, int style, const std::string&) override {
        if (refusal.empty()) refusal = linesOf(prompt);
        return (style & msgbox::ButtonsMask) == msgbox::YesNo ? msgbox::No : msgbox::Ok;
    }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::optional<OpenFileResult> openFile(const OpenFileRequest&) override {
        if (file_.empty()) return std::nullopt;
        return OpenFileResult{file_, files::fileTitle(file_)};
    }
    std::optional<std::int32_t> showColor(const ColorRequest&) override { return std::nullopt; }
    Control* popupMenu(Form&, Control&) override { return nullptr; }
    void showModal(Form&) override {}

private:
    std::string file_;
};

std::string noRow(int row, std::int16_t rows) {
    return "There is no row " + std::to_string(row) + ": " +
           (rows == 0 ? std::string("no map is loaded.") : "the map has " + std::to_string(rows) + " rows.");
}

}  // namespace

Seam::Seam(Program& p, InputGuard guard) : p_(p), guard_(std::move(guard)) {
    if (!guard_) guard_ = [&p](const std::function<void()>& action) { return p.guarded(action); };
}

Seam::~Seam() = default;

Seam::Subscription::Subscription(Subscription&& other) noexcept
    : hub_(std::exchange(other.hub_, nullptr)), token_(other.token_) {}

Seam::Subscription& Seam::Subscription::operator=(Subscription&& other) noexcept {
    if (this != &other) {
        if (hub_) hub_->unsubscribe(token_);
        hub_ = std::exchange(other.hub_, nullptr);
        token_ = other.token_;
    }
    return *this;
}

Seam::Subscription::~Subscription() {
    if (hub_) hub_->unsubscribe(token_);
}

Seam::Subscription Seam::listen(EventHub::Listener listener) {
    return Subscription(&p_.events, p_.events.subscribe(std::move(listener)));
}

Outcome Seam::perform(const Command& command, Source source) {
    Outcome outcome;
    CommandDialogs answers(command.action == Action::LoadMap ? command.file : std::string());
    guard_([&] {
        // Put back however the command ends, the program's end included.
        struct Restore {
            Program& p;
            ~Restore() {
                p.overrideDialogs(nullptr);
                p.commandSource.reset();
            }
        } restore{p_};
        p_.commandSource = source;
        p_.overrideDialogs(&answers);
        outcome = carryOut(command);
        if (outcome.done && !answers.refusal.empty()) outcome = {false, answers.refusal};
        if (!outcome.done) tellWords(p_, Happening::CommandRefused, outcome.refusal);
    });
    return outcome;
}

Outcome Seam::carryOut(const Command& command) {
    MainForm& f = p_.frmMain;
    const auto click = [&](Control& c, int button) {
        f.raise(c, Event::MouseDown, {.button = button});
        f.raise(c, Event::MouseUp, {.button = button});
    };
    switch (command.action) {
    case Action::ClockPress: click(f.lblMatchTimer(), button::Left); break;
    case Action::StartRow:
    case Action::ResetRow: {
        const std::int16_t rows = p_.vars.ItemCount;
        if (command.row < 1 || command.row > rows) return {false, noRow(command.row, rows)};
        click(f.lblTimer(static_cast<std::int16_t>(command.row)),
              command.action == Action::StartRow ? button::Left : button::Right);
        break;
    }
    case Action::TuneSecondUp: f.raise(f.cmdSecPlus(), Event::Click); break;
    case Action::TuneSecondDown: f.raise(f.cmdSecMoins(), Event::Click); break;
    case Action::TuneMinuteUp: f.raise(f.cmdMinPlus(), Event::Click); break;
    case Action::TuneMinuteDown: f.raise(f.cmdMinMoins(), Event::Click); break;
    case Action::LoadMap: f.raise(f.at("mnuLoad"), Event::Click); break;
    case Action::Exit: f.raise(f.at("mnuExit"), Event::Click); break;
    }
    return {};
}

void Seam::announce(Happening what, std::string words) { tellWords(p_, what, std::move(words)); }

ClockNow Seam::clock() const {
    MainForm& f = p_.frmMain;
    ClockNow c;
    c.text = f.lblMatchTimer().caption();
    c.status = f.lblMatchStatus().caption();
    c.matchState = p_.vars.MatchState;
    const double reading = clockReading(p_);
    c.matchSecondsLeft = num::isTrue(p_.vars.MatchTimerReverse) ? reading : matchDurationSeconds(p_.vars) - reading;
    c.colour = static_cast<std::int32_t>(f.lblMatchTimer().number(Prop::ForeColor));
    c.statusColour = static_cast<std::int32_t>(f.lblMatchStatus().number(Prop::ForeColor));
    c.bold = f.lblMatchTimer().flag(Prop::FontBold);
    return c;
}

std::optional<RowNow> Seam::row(int index) const {
    if (!p_.map) return std::nullopt;
    // The outline holds its rows in rising order.
    const auto& rows = p_.map->rows;
    const auto found = std::lower_bound(rows.begin(), rows.end(), index,
                                        [](const MapRow& r, int i) { return r.index < i; });
    if (found == rows.end() || found->index != index) return std::nullopt;

    MainForm& f = p_.frmMain;
    const auto i = static_cast<std::int16_t>(index);
    const Control& time = f.lblTimer(i);
    const Control& next = f.lblTimerGlobal(i);
    const Control& name = f.lblItem(i);
    const Control& back = f.lblFond(i);
    const auto colour = [](const Control& c, Prop p) { return static_cast<std::int32_t>(c.number(p)); };
    RowNow now;
    now.row = *found;
    now.time = time.caption();
    now.phase = f.timerFlash(i).enabled()  ? RowPhase::Flashing
                : f.timerItem(i).enabled() ? RowPhase::Counting
                : now.time != kZeroTime    ? RowPhase::Held
                                           : RowPhase::Idle;
    now.nextRespawn = next.caption();
    now.nextRespawnShown = next.visible();
    now.lastSeconds = time.number(Prop::FontSize) == 9;
    now.timeColour = colour(time, Prop::ForeColor);
    now.nameColour = colour(name, Prop::ForeColor);
    now.nextRespawnColour = colour(next, Prop::ForeColor);
    now.timeBold = time.flag(Prop::FontBold);
    now.nameBold = name.flag(Prop::FontBold);
    if (back.number(Prop::BackStyle) == 1) now.background = colour(back, Prop::BackColor);
    return now;
}

Snapshot Seam::snapshot() const {
    Snapshot s;
    s.map = p_.frmMain.lblMapName(1).caption();
    s.clock = clock();
    if (p_.map)
        for (const MapRow& r : p_.map->rows)
            if (auto now = row(r.index)) s.rows.push_back(std::move(*now));
    return s;
}

Look Seam::look() const {
    const ModVars& v = p_.vars;
    return {v.FormColor,
            v.CategoryColor,
            v.MapNameColor,
            num::isTrue(v.CategoryBold),
            num::isTrue(v.MapName3D),
            num::isTrue(v.ShowItemsTimers)};
}

std::shared_ptr<const MapOutline> Seam::map() const { return p_.map; }

const AppInfo& Seam::app() const { return p_.sys.app; }

}  // namespace brelk::seam
