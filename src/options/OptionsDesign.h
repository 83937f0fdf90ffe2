#pragma once

namespace brelk::options {

class OptionsForm;

// The options window as designed: the colour rows in "Change Colors", the
// Yes/No rows and the two number boxes in "Options", the list of sets with
// its two buttons in "Options sets", "OK" and "Cancel", and the colour
// dialog.
void designOptionsForm(OptionsForm& f);

}  // namespace brelk::options
