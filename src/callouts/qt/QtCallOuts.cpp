#include "callouts/qt/QtCallOuts.h"

#include "callouts/qt/CallOutsMenu.h"
#include "seam/Seam.h"
#include "seam/qt/Host.h"

namespace brelk::callouts::qt {

QtCallOuts::QtCallOuts(seam::qt::Host& host) : section_(host.seam().app()), callOuts_(host.seam(), voice_) {
    declareChoices(section_);
    callOuts_.setChoices(readChoices(section_));
    if (callOuts_.choices().sound == Sound::Voice) voice_.warmUp();
    host.addMenu([this](QMenu& menu) {
        addCallOutsMenu(menu, callOuts_.choices(), voice_.whyNoVoice(), voice_.whyNoTone(),
                        [this](const Choices& c) { change(c); });
    });
    host.atEnd([this] { section_.writeChanged(); });
}

void QtCallOuts::change(const Choices& c) {
    callOuts_.setChoices(c);
    storeChoices(section_, c);
    if (c.sound == Sound::Voice) voice_.warmUp();
}

}  // namespace brelk::callouts::qt
