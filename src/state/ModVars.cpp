#include "state/ModVars.h"

#include <variant>

#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace brelk {

namespace {

using Field = std::variant<std::int16_t ModVars::*, std::int32_t ModVars::*, std::string ModVars::*>;

struct Entry {
    VarInfo info;
    Field field;
};

const std::vector<Entry>& entries() {
    static const std::vector<Entry> table = {
        {{"NextRowTop", VarKind::Int32}, &ModVars::NextRowTop},
        {{"CategoryCount", VarKind::Int16}, &ModVars::CategoryCount},
        {{"ItemCount", VarKind::Int16}, &ModVars::ItemCount},
        {{"ListColor", VarKind::Flag}, &ModVars::ListColor},
        {{"LastSeconds", VarKind::Int16}, &ModVars::LastSeconds},
        {{"LastFlash", VarKind::Int16}, &ModVars::LastFlash},
        {{"ActiveTimerBold", VarKind::Flag}, &ModVars::ActiveTimerBold},
        {{"IdleTimerBold", VarKind::Flag}, &ModVars::IdleTimerBold},
        {{"ActiveItemBold", VarKind::Flag}, &ModVars::ActiveItemBold},
        {{"IdleItemBold", VarKind::Flag}, &ModVars::IdleItemBold},
        {{"CategoryBold", VarKind::Flag}, &ModVars::CategoryBold},
        {{"MapName3D", VarKind::Flag}, &ModVars::MapName3D},
        {{"MatchTimerReverse", VarKind::Flag}, &ModVars::MatchTimerReverse},
        {{"ShowItemsTimers", VarKind::Flag}, &ModVars::ShowItemsTimers},
        {{"MatchDuration", VarKind::Text}, &ModVars::MatchDuration},
        {{"FormColor", VarKind::Colour}, &ModVars::FormColor},
        {{"ListColor1", VarKind::Colour}, &ModVars::ListColor1},
        {{"ListColor2", VarKind::Colour}, &ModVars::ListColor2},
        {{"IdleTimerColor", VarKind::Colour}, &ModVars::IdleTimerColor},
        {{"ActiveTimerColor", VarKind::Colour}, &ModVars::ActiveTimerColor},
        {{"IdleItemColor", VarKind::Colour}, &ModVars::IdleItemColor},
        {{"ActiveItemColor", VarKind::Colour}, &ModVars::ActiveItemColor},
        {{"LastSecondsTimerColor", VarKind::Colour}, &ModVars::LastSecondsTimerColor},
        {{"CategoryColor", VarKind::Colour}, &ModVars::CategoryColor},
        {{"MapNameColor", VarKind::Colour}, &ModVars::MapNameColor},
        {{"MatchTimerColor", VarKind::Colour}, &ModVars::MatchTimerColor},
        {{"LastMinuteMatchTimerColor", VarKind::Colour}, &ModVars::LastMinuteMatchTimerColor},
        {{"PausedMatchTimerColor", VarKind::Colour}, &ModVars::PausedMatchTimerColor},
        {{"MatchState", VarKind::Text}, &ModVars::MatchState},
        {{"OnTop", VarKind::Flag}, &ModVars::OnTop},
        {{"PosX", VarKind::Int32}, &ModVars::PosX},
        {{"PosY", VarKind::Int32}, &ModVars::PosY},
        {{"Launched", VarKind::Int16}, &ModVars::Launched},
        {{"TimedItems", VarKind::Int16}, &ModVars::TimedItems},
    };
    return table;
}

const Entry& entry(std::string_view name) {
    for (const auto& e : entries())
        if (e.info.name == name) return e;
    raise(err::InvalidCall, "Unknown variable " + std::string(name));
}

}  // namespace

const std::vector<VarInfo>& varTable() {
    static const std::vector<VarInfo> infos = [] {
        std::vector<VarInfo> v;
        for (const auto& e : entries()) v.push_back(e.info);
        return v;
    }();
    return infos;
}

std::optional<VarKind> varKind(std::string_view name) {
    for (const auto& e : entries())
        if (e.info.name == name) return e.info.kind;
    return std::nullopt;
}

Value readVar(const ModVars& vars, std::string_view name) {
    const Entry& e = entry(name);
    if (auto p = std::get_if<std::int16_t ModVars::*>(&e.field)) return Value(static_cast<int>(vars.**p));
    if (auto p = std::get_if<std::int32_t ModVars::*>(&e.field)) return Value(static_cast<double>(vars.**p));
    return Value(vars.*std::get<std::string ModVars::*>(e.field));
}

void writeVar(ModVars& vars, std::string_view name, const Value& value) {
    const Entry& e = entry(name);
    if (auto p = std::get_if<std::string ModVars::*>(&e.field)) {
        vars.**p = value.text();
        return;
    }
    const double n = value.isText() ? num::strictValue(value.text()) : value.number();
    if (auto p = std::get_if<std::int16_t ModVars::*>(&e.field)) vars.**p = num::toInt16(n);
    else vars.*std::get<std::int32_t ModVars::*>(e.field) = num::toInt32(n);
}

}  // namespace brelk
