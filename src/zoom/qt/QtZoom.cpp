#include "zoom/qt/QtZoom.h"

#include "seam/Seam.h"
#include "seam/qt/Host.h"

namespace brelk::zoom::qt {

QtZoom::QtZoom(seam::qt::Host& host) : section_(host.seam().app()), zoom_(host) {
    declareZoom(section_);
    // Before the program starts: the place it reads for the window is a place at this zoom.
    zoom_.setPercent(readZoom(section_));
    host.addMenu([this](QMenu& menu) { zoom_.addMenu(menu); });
    host.atEnd([this] {
        storeZoom(section_, zoom_.percent());
        section_.writeChanged();
    });
}

}  // namespace brelk::zoom::qt
