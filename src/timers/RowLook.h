#pragma once

namespace brelk {

class Program;

// Gives every row the colours and bold of its state: active while it counts
// or holds time left, idle otherwise.
void ChangeTimerColor(Program& p);

}  // namespace brelk
