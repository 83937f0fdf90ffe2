#pragma once

#include <QString>

namespace brelk::install {

// The folders the program keeps its files in.
struct Locations {
    QString settingsDir;  // the profile file and the option sets
    QString mapDir;       // the maps: where the open dialog starts
};

// Decided once, at start. When the executable's folder can be written, both
// are that folder, as a program unpacked into a folder of its own has always
// kept them. Otherwise (an install) the settings go to the user's
// configuration folder for the program and the maps to the user's data
// folder for it; both are made when missing, and each shipped map the data
// folder lacks is copied into it, a map already there being left as it is.
Locations programLocations(const QString& exeDir);

}  // namespace brelk::install
