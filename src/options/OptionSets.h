#pragma once

namespace brelk {

class Program;

namespace options {

// The list of option sets: the files "*.set" of the program's folder, each
// shown without ".set".
void PopulateListBox(Program& p);
void EmptyListBox(Program& p);

// A set picked in the list replaces the live options and colours at once.
void lstIniFiles_Click(Program& p);
// "OK": the live values go to the program's profile file, and the window closes.
void cmdSave_Click(Program& p);
// "Save as ...": the live values go to a set, named by the user.
void cmdSaveAs_Click(Program& p);
// "Delete": the selected set's file goes, after a question.
void cmdDelete_Click(Program& p);
// "Cancel": the options and colours return to the program's profile file,
// and the window closes.
void cmdCancel_Click(Program& p);

}  // namespace options
}  // namespace brelk
