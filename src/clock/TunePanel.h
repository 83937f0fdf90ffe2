#pragma once

namespace brelk {

class Program;

// The tune panel moves the clock's reading by minutes and seconds at any
// time; the "-" buttons never bring it to zero or below.
void mnuMatchTimerSet_Click(Program& p);
void cmdCloseTune_Click(Program& p);
void cmdMinPlus_Click(Program& p);
void cmdSecPlus_Click(Program& p);
void cmdMinMoins_Click(Program& p);
void cmdSecMoins_Click(Program& p);

}  // namespace brelk
