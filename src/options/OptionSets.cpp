#include "options/OptionSets.h"

#include <string>

#include "clock/MatchClock.h"
#include "map/ListLook.h"
#include "options/OptionsForm.h"
#include "options/OptionsWindow.h"
#include "options/SetNames.h"
#include "platform/Dialogs.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "settings/Settings.h"
#include "state/Program.h"
#include "timers/RowLook.h"

namespace brelk::options {

namespace {

constexpr const char* kSetExtension = ".set";
// The title of what this window says of the sets themselves: its frame's caption.
constexpr const char* kSetsTitle = "Options sets";

// The text of the selected entry, "" when none is selected.
std::string selectedEntry(Control& list) {
    const double index = list.number(Prop::ListIndex);
    const auto& items = list.listItems();
    return index >= 0 && index < static_cast<double>(items.size()) ? items[static_cast<std::size_t>(index)]
                                                                  : std::string();
}

std::string inProgramFolder(Program& p, const std::string& fileName) {
    return files::join(p.sys.app.path, fileName);
}

// Carries the live settings onto the main window, all of them.
void applySettings(Program& p) {
    ChangeTimerColor(p);
    ChangeFormColor(p);
    ItemBackground(p, num::isTrue(p.vars.ListColor));
    ChangeCategoryColor(p);
    ChangeMapNameColor(p);
    ChangeGlobalTimerColor(p);
}

void rebuildList(Program& p) {
    EmptyListBox(p);
    PopulateListBox(p);
}

}  // namespace

void PopulateListBox(Program& p) {
    Control& list = frmOptions(p).lstIniFiles();
    files::DirLister dir;
    for (std::string name = dir.first(p.sys.app.path, "*.set"); !name.empty(); name = dir.next())
        list.AddItem(num::withoutEvery(name, kSetExtension));
}

void EmptyListBox(Program& p) {
    Control& list = frmOptions(p).lstIniFiles();
    for (auto i = static_cast<int>(list.listItems().size()) - 1; i >= 0; --i) list.RemoveItem(i);
}

void lstIniFiles_Click(Program& p) {
    OptionsForm& f = frmOptions(p);
    ReadIniFile(p, selectedEntry(f.lstIniFiles()) + kSetExtension);
    f.cmdDelete().setEnabled(true);
    UpdateForm(p);
    applySettings(p);
}

void cmdSave_Click(Program& p) {
    WriteIniFile(p, "");
    frmOptions(p).Unload();
}

void cmdSaveAs_Click(Program& p) {
    OptionsForm& f = frmOptions(p);
    const std::string name = num::trim(p.dialogs().inputBox(
        "Enter the name of this option set", "/writeconfig mykewlcfg", selectedEntry(f.lstIniFiles())));
    if (name.empty()) return;
    // A name that cannot be a file of the program's folder writes nothing anywhere.
    if (const auto problem = setNameProblem(name)) {
        p.MsgBox("This name cannot be used for an option set: " + *problem + ".\r\nNothing was saved.",
                 msgbox::Exclamation, kSetsTitle);
        return;
    }
    const std::string fileName = name + kSetExtension;
    if (!files::dirByName(inProgramFolder(p, fileName)).empty() &&
        p.MsgBox("This file already exists. Click OK to overwrite it, or Cancel to cancel", msgbox::OkCancel,
                 "/overwrite ?") != msgbox::Ok)
        return;
    WriteIniFile(p, fileName);
    rebuildList(p);
}

void cmdDelete_Click(Program& p) {
    Control& list = frmOptions(p).lstIniFiles();
    const auto index = static_cast<int>(list.number(Prop::ListIndex));
    if (index < 0) {
        p.MsgBox("Choose the set to delete in the list first.", msgbox::OkOnly, kSetsTitle);
        return;
    }
    const std::string name = selectedEntry(list);
    if (p.MsgBox("Do you really want to delete this set : " + name, msgbox::YesNo | msgbox::Exclamation,
                 "seta cg_deleteFile 1 ?") != msgbox::Yes)
        return;
    const std::string fileName = name + kSetExtension;
    try {
        files::kill(inProgramFolder(p, fileName));
    } catch (const RuntimeError& e) {
        const std::string why = e.number() == err::FileNotFound
                                    ? "there is no file \"" + fileName + "\" in the program's folder"
                                    : "its file \"" + fileName + "\" cannot be removed (no right to remove it)";
        p.MsgBox("The set \"" + name + "\" could not be deleted: " + why + ".", msgbox::Exclamation, kSetsTitle);
        // The list shows again what the folder holds.
        rebuildList(p);
        return;
    }
    list.RemoveItem(index);
}

void cmdCancel_Click(Program& p) {
    ReadIniFile(p, "");
    applySettings(p);
    frmOptions(p).Unload();
}

}  // namespace brelk::options
