#include "callouts/qt/CallOutsMenu.h"

#include <QActionGroup>
#include <QMenu>

namespace brelk::callouts::qt {

namespace {

// One entry: checkable, checked as `checked`, disabled with `why` as its
// tooltip when `why` is not empty; choosing it changes the choices by `apply`.
QAction* entry(QMenu& menu, QActionGroup* group, const QString& text, bool checked, const QString& why,
               const Choices& now, const std::function<void(const Choices&)>& change,
               std::function<void(Choices&)> apply) {
    QAction* action = menu.addAction(text);
    action->setCheckable(true);
    action->setChecked(checked);
    if (group) group->addAction(action);
    if (!why.isEmpty()) {
        action->setEnabled(false);
        action->setToolTip(why);
    }
    QObject::connect(action, &QAction::triggered, &menu, [now, change, apply = std::move(apply)] {
        Choices c = now;
        apply(c);
        change(c);
    });
    return action;
}

QMenu* submenu(QMenu& parent, const QString& title, const QString& why) {
    QMenu* menu = parent.addMenu(title);
    menu->setToolTipsVisible(true);
    if (!why.isEmpty()) {
        menu->menuAction()->setEnabled(false);
        menu->menuAction()->setToolTip(why);
    }
    return menu;
}

}  // namespace

void addCallOutsMenu(QMenu& menu, const Choices& now, const QString& noVoice, const QString& noTone,
                     const std::function<void(const Choices&)>& change) {
    // With no sound to make, the settings of the calls have nothing to act on.
    const QString noSound = noVoice.isEmpty() || noTone.isEmpty() ? QString() : noVoice + ".\n" + noTone + ".";
    QMenu* callOuts = submenu(menu, "&Call-outs", {});

    auto* sounds = new QActionGroup(callOuts);
    entry(*callOuts, sounds, "&Off", now.sound == Sound::Off, {}, now, change, [](Choices& c) { c.sound = Sound::Off; });
    entry(*callOuts, sounds, "&Voice", now.sound == Sound::Voice, noVoice, now, change,
          [](Choices& c) { c.sound = Sound::Voice; });
    QAction* tone = entry(*callOuts, sounds, "&Tone", now.sound == Sound::Tone, noTone, now, change,
                          [](Choices& c) { c.sound = Sound::Tone; });
    if (noTone.isEmpty()) tone->setToolTip("One tone before an item comes back, two when it is due, three for the match");
    callOuts->addSeparator();

    QMenu* lead = submenu(*callOuts, "&Lead time", noSound);
    auto* leads = new QActionGroup(lead);
    for (const int seconds : kLeadTimes)
        entry(*lead, leads, seconds == 0 ? QString("&Off") : QString("%1 seconds").arg(seconds), now.lead == seconds,
              {}, now, change, [seconds](Choices& c) { c.lead = seconds; });
    entry(*callOuts, nullptr, "Say \"&up\" when due", now.upCall, noSound, now, change,
          [](Choices& c) { c.upCall = !c.upCall; });
    entry(*callOuts, nullptr, "&Match calls", now.matchCalls, noSound, now, change,
          [](Choices& c) { c.matchCalls = !c.matchCalls; })
        ->setToolTip(noSound.isEmpty() ? "\"One minute\" at the start of the clock's last minute, \"match over\" at its end"
                                       : noSound);
    callOuts->addSeparator();

    QMenu* volume = submenu(*callOuts, "V&olume", noSound);
    auto* volumes = new QActionGroup(volume);
    for (const int percent : kVolumes)
        entry(*volume, volumes, QString("%1 %").arg(percent), now.volume == percent, {}, now, change,
              [percent](Choices& c) { c.volume = percent; });
}

}  // namespace brelk::callouts::qt
