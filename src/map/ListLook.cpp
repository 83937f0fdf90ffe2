#include "map/ListLook.h"

#include <cstdint>

#include "platform/Numbers.h"
#include "state/Happenings.h"
#include "state/Program.h"
#include "state/RowRange.h"

namespace brelk {

void ChangeFormColor(Program& p) {
    p.frmMain.self().setNumber(Prop::BackColor, p.vars.FormColor);
    tell(p, seam::Happening::LookChanged);
}

void ChangeListColor(Program& p) {
    for (const std::int16_t i : rowsUpTo(p.vars.ItemCount))
        p.frmMain.lblFond(i).setNumber(Prop::BackColor, i % 2 == 0 ? p.vars.ListColor1 : p.vars.ListColor2);
    tell(p, seam::Happening::LookChanged);
}

void ItemBackground(Program& p, bool test) {
    ChangeListColor(p);
    for (const std::int16_t i : rowsUpTo(p.vars.ItemCount))
        p.frmMain.lblFond(i).setNumber(Prop::BackStyle, test ? 1 : 0);
    tell(p, seam::Happening::LookChanged);
}

void ChangeCategoryColor(Program& p) {
    for (const std::int16_t i : rowsUpTo(p.vars.CategoryCount)) {
        p.frmMain.lblCat(i).setNumber(Prop::ForeColor, p.vars.CategoryColor);
        p.frmMain.lineCat(i).setNumber(Prop::BorderColor, p.vars.CategoryColor);
        p.frmMain.lblCat(i).setFlag(Prop::FontBold, num::isTrue(p.vars.CategoryBold));
    }
    tell(p, seam::Happening::LookChanged);
}

void ChangeMapNameColor(Program& p) {
    p.frmMain.lblMapName(1).setNumber(Prop::ForeColor, p.vars.MapNameColor);
    p.frmMain.lblMapName(0).setVisible(num::isTrue(p.vars.MapName3D));
    tell(p, seam::Happening::LookChanged);
}

}  // namespace brelk
