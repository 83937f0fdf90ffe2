#pragma once

namespace brelk {

// The words of the match clock's state, compared and shown exactly.
namespace match {
constexpr const char* NotStarted = "not started";
constexpr const char* Going = "going";
constexpr const char* Paused = "paused";
}  // namespace match

// A row's start mark in timerClick's Tag: "3" while the next click starts a
// countdown, "2" once started. While the blink runs, the Tag counts its
// ticks down from the mark, and the end of a match blinks every row from "4".
namespace mark {
constexpr const char* Ready = "3";
constexpr const char* Started = "2";
constexpr const char* EndBlink = "4";
constexpr double StartedValue = 2;
}  // namespace mark

// The time text of an idle row and of a clock at its start.
constexpr const char* kZeroTime = "00:00";

}  // namespace brelk
