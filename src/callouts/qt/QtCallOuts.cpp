#include "callouts/qt/QtCallOuts.h"

#include "BrelkApp.h"
#include "callouts/qt/CallOutsMenu.h"
#include "state/Program.h"

namespace brelk::callouts::qt {

QtCallOuts::QtCallOuts(view::BrelkApp& app)
    : section_(app.program().sys.app), callOuts_(app.program(), voice_) {
    declareChoices(section_);
    callOuts_.setChoices(readChoices(section_));
    if (callOuts_.choices().sound == Sound::Voice) voice_.warmUp();
    app.dialogs().addMenuExtension("mnuOptions", [this](QMenu& menu) {
        addCallOutsMenu(menu, callOuts_.choices(), voice_.whyNoVoice(), voice_.whyNoTone(),
                        [this](const Choices& c) { change(c); });
    });
    app.atEnd([this] { section_.writeChanged(); });
}

void QtCallOuts::change(const Choices& c) {
    callOuts_.setChoices(c);
    storeChoices(section_, c);
    if (c.sound == Sound::Voice) voice_.warmUp();
}

}  // namespace brelk::callouts::qt
