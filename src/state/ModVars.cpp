#include "state/ModVars.h"

#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace brelk {

const std::vector<SharedVariable>& sharedVariables() {
    using K = VarKind;
    using S = Stored;
    static const std::vector<SharedVariable> table = {
        {"PosX", K::Int32, &ModVars::PosX, S::Window, "Form", "600"},
        {"PosY", K::Int32, &ModVars::PosY, S::Window, "Form", "600"},
        {"OnTop", K::Flag, &ModVars::OnTop, S::Window, "Form", "True"},
        {"ListColor", K::Flag, &ModVars::ListColor, S::Settings, "Options", "True"},
        {"LastSeconds", K::Int16, &ModVars::LastSeconds, S::Settings, "Options", "5"},
        {"LastFlash", K::Int16, &ModVars::LastFlash, S::Settings, "Options", "12"},
        {"ActiveTimerBold", K::Flag, &ModVars::ActiveTimerBold, S::Settings, "Options", "True"},
        {"IdleTimerBold", K::Flag, &ModVars::IdleTimerBold, S::Settings, "Options", "False"},
        {"ActiveItemBold", K::Flag, &ModVars::ActiveItemBold, S::Settings, "Options", "True"},
        {"IdleItemBold", K::Flag, &ModVars::IdleItemBold, S::Settings, "Options", "True"},
        {"CategoryBold", K::Flag, &ModVars::CategoryBold, S::Settings, "Options", "False"},
        {"MapName3D", K::Flag, &ModVars::MapName3D, S::Settings, "Options", "True"},
        {"MatchTimerReverse", K::Flag, &ModVars::MatchTimerReverse, S::Settings, "Options", "False"},
        {"ShowItemsTimers", K::Flag, &ModVars::ShowItemsTimers, S::Settings, "Options", "True"},
        {"MatchDuration", K::Text, &ModVars::MatchDuration, S::Settings, "Options", "20:00"},
        {"FormColor", K::Colour, &ModVars::FormColor, S::Settings, "Colors", "13160660"},    // 0xC8D0D4
        {"ListColor1", K::Colour, &ModVars::ListColor1, S::Settings, "Colors", "15263976"},  // 0xE8E8E8
        {"ListColor2", K::Colour, &ModVars::ListColor2, S::Settings, "Colors", "14211288"},  // 0xD8D8D8
        {"IdleTimerColor", K::Colour, &ModVars::IdleTimerColor, S::Settings, "Colors", "4210752"},      // 0x404040
        {"ActiveTimerColor", K::Colour, &ModVars::ActiveTimerColor, S::Settings, "Colors", "8404992"},  // 0x804000
        {"IdleItemColor", K::Colour, &ModVars::IdleItemColor, S::Settings, "Colors", "0"},
        {"ActiveItemColor", K::Colour, &ModVars::ActiveItemColor, S::Settings, "Colors", "8388608"},  // 0x800000
        {"LastSecondsTimerColor", K::Colour, &ModVars::LastSecondsTimerColor, S::Settings, "Colors", "255"},
        {"CategoryColor", K::Colour, &ModVars::CategoryColor, S::Settings, "Colors", "8421504"},  // 0x808080
        {"MapNameColor", K::Colour, &ModVars::MapNameColor, S::Settings, "Colors", "192"},        // 0x0000C0
        {"MatchTimerColor", K::Colour, &ModVars::MatchTimerColor, S::Settings, "Colors", "16711680"},  // 0xFF0000
        {"LastMinuteMatchTimerColor", K::Colour, &ModVars::LastMinuteMatchTimerColor, S::Settings, "Colors", "255"},
        {"Launched", K::Int16, &ModVars::Launched, S::Stats, "Stats", "0"},
        {"TimedItems", K::Int16, &ModVars::TimedItems, S::Stats, "Stats", "0"},
        {"PausedMatchTimerColor", K::Colour, &ModVars::PausedMatchTimerColor, S::Never, "", ""},
        {"NextRowTop", K::Int32, &ModVars::NextRowTop, S::Never, "", ""},
        {"CategoryCount", K::Int16, &ModVars::CategoryCount, S::Never, "", ""},
        {"ItemCount", K::Int16, &ModVars::ItemCount, S::Never, "", ""},
        {"MatchState", K::Text, &ModVars::MatchState, S::Never, "", ""},
    };
    return table;
}

namespace {

const SharedVariable* find(std::string_view name) {
    for (const auto& v : sharedVariables())
        if (v.name == name) return &v;
    return nullptr;
}

const SharedVariable& named(std::string_view name) {
    if (const SharedVariable* v = find(name)) return *v;
    raise(err::InvalidCall, "Unknown variable " + std::string(name));
}

}  // namespace

std::optional<VarKind> varKind(std::string_view name) {
    if (const SharedVariable* v = find(name)) return v->kind;
    return std::nullopt;
}

Value readVar(const ModVars& vars, const SharedVariable& v) {
    if (auto p = std::get_if<std::int16_t ModVars::*>(&v.field)) return Value(static_cast<int>(vars.**p));
    if (auto p = std::get_if<std::int32_t ModVars::*>(&v.field)) return Value(static_cast<double>(vars.**p));
    return Value(vars.*std::get<std::string ModVars::*>(v.field));
}

void writeVar(ModVars& vars, const SharedVariable& v, const Value& value) {
    if (auto p = std::get_if<std::string ModVars::*>(&v.field)) {
        vars.**p = value.text();
        return;
    }
    const double n = value.isText() ? num::strictValue(value.text()) : value.number();
    if (auto p = std::get_if<std::int16_t ModVars::*>(&v.field)) vars.**p = num::toInt16(n);
    else vars.*std::get<std::int32_t ModVars::*>(v.field) = num::toInt32(n);
}

Value readVar(const ModVars& vars, std::string_view name) { return readVar(vars, named(name)); }

void writeVar(ModVars& vars, std::string_view name, const Value& value) { writeVar(vars, named(name), value); }

}  // namespace brelk
