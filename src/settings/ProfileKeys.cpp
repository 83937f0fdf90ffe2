#include "settings/ProfileKeys.h"

namespace brelk {

const std::vector<ProfileKey>& profileKeys() {
    static const std::vector<ProfileKey> keys = {
        {"Form", "PosX", KeyKind::Position, "PosX", "600"},
        {"Form", "PosY", KeyKind::Position, "PosY", "600"},
        {"Form", "OnTop", KeyKind::Flag, "OnTop", "True"},
        {"Options", "ListColor", KeyKind::Flag, "ListColor", "True"},
        {"Options", "LastSeconds", KeyKind::Integer, "LastSeconds", "5"},
        {"Options", "LastFlash", KeyKind::Integer, "LastFlash", "12"},
        {"Options", "ActiveTimerBold", KeyKind::Flag, "ActiveTimerBold", "True"},
        {"Options", "IdleTimerBold", KeyKind::Flag, "IdleTimerBold", "False"},
        {"Options", "ActiveItemBold", KeyKind::Flag, "ActiveItemBold", "True"},
        {"Options", "IdleItemBold", KeyKind::Flag, "IdleItemBold", "True"},
        {"Options", "CategoryBold", KeyKind::Flag, "CategoryBold", "False"},
        {"Options", "MapName3D", KeyKind::Flag, "MapName3D", "True"},
        {"Options", "MatchTimerReverse", KeyKind::Flag, "MatchTimerReverse", "False"},
        {"Options", "ShowItemsTimers", KeyKind::Flag, "ShowItemsTimers", "True"},
        {"Options", "MatchDuration", KeyKind::Text, "MatchDuration", "20:00"},
        {"Colors", "FormColor", KeyKind::Colour, "FormColor", "13160660"},            // 0xC8D0D4
        {"Colors", "ListColor1", KeyKind::Colour, "ListColor1", "15263976"},          // 0xE8E8E8
        {"Colors", "ListColor2", KeyKind::Colour, "ListColor2", "14211288"},          // 0xD8D8D8
        {"Colors", "IdleTimerColor", KeyKind::Colour, "IdleTimerColor", "4210752"},   // 0x404040
        {"Colors", "ActiveTimerColor", KeyKind::Colour, "ActiveTimerColor", "8404992"},  // 0x804000
        {"Colors", "IdleItemColor", KeyKind::Colour, "IdleItemColor", "0"},
        {"Colors", "ActiveItemColor", KeyKind::Colour, "ActiveItemColor", "8388608"},    // 0x800000
        {"Colors", "LastSecondsTimerColor", KeyKind::Colour, "LastSecondsTimerColor", "255"},
        {"Colors", "CategoryColor", KeyKind::Colour, "CategoryColor", "8421504"},      // 0x808080
        {"Colors", "MapNameColor", KeyKind::Colour, "MapNameColor", "192"},            // 0x0000C0
        {"Colors", "MatchTimerColor", KeyKind::Colour, "MatchTimerColor", "16711680"}, // 0xFF0000
        {"Colors", "LastMinuteMatchTimerColor", KeyKind::Colour, "LastMinuteMatchTimerColor", "255"},
        {"Stats", "Launched", KeyKind::Integer, "Launched", "0"},
        {"Stats", "TimedItems", KeyKind::Integer, "TimedItems", "0"},
    };
    return keys;
}

}  // namespace brelk
