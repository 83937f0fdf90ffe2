#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Form.h"

// Helpers for laying out a form's design-time controls.
namespace brelk::design {

// The frame that the program's windows draw around their client area, in
// twips: a border on each side and a caption strip above. A form's Width and
// Height are its outer size, frame included.
constexpr double kFrameBorder = 60;
constexpr double kFrameCaption = 285;

void geometry(Control& c, double left, double top, double width, double height);
void font(Control& c, const char* name, double size, bool bold);

// A label with a transparent background, as most labels are; a member of an
// array when `index` is given.
Control& label(Form& f, const std::string& name, std::optional<std::int16_t> index = std::nullopt,
               Control* container = nullptr);
Control& timer(Form& f, const std::string& name, std::optional<std::int16_t> index, int interval,
               const char* tag);
Control& commandButton(Form& f, const std::string& name, Control* container, const char* caption,
                       double left, double top, double width, double height, int tabIndex);
Control& menu(Form& f, const std::string& name, Control* parent, const char* caption);

}  // namespace brelk::design
