#pragma once

#include <functional>

#include <QString>

#include "callouts/Choices.h"

class QMenu;

namespace brelk::callouts::qt {

// Adds the "Call-outs" submenu to `menu`: the sound (off, voice or tone),
// the lead time, the "up" call, the match calls and the volume, the present
// choices checked. A sound this system cannot make is disabled, its tooltip
// telling what to install (`noVoice`, `noTone`; empty when it can); with
// neither, only "Off" can be chosen. A choice made calls `change` with the
// choices it gives.
void addCallOutsMenu(QMenu& menu, const Choices& now, const QString& noVoice, const QString& noTone,
                     const std::function<void(const Choices&)>& change);

}  // namespace brelk::callouts::qt
