#include "zoom/qt/QtZoom.h"

#include <QApplication>

#include "BrelkApp.h"
#include "state/Program.h"
#include "zoom/qt/ZoomStyle.h"

namespace brelk::zoom::qt {

QtZoom::QtZoom(view::BrelkApp& app) : section_(app.program().sys.app), zoom_(app.window(), app.program().sys) {
    QApplication::setStyle(new ZoomStyle);
    declareZoom(section_);
    // Before the program starts: the place it reads for the window is a place at this zoom.
    zoom_.setPercent(readZoom(section_));
    app.dialogs().addMenuExtension("mnuOptions", [this](QMenu& menu) { zoom_.addMenu(menu); });
    app.atEnd([this] {
        storeZoom(section_, zoom_.percent());
        section_.writeChanged();
    });
}

}  // namespace brelk::zoom::qt
