#include "seam/CoachSection.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/Platform.h"
#include "settings/IniFile.h"

namespace brelk::seam {

namespace {

bool sameWord(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
        const auto lower = [](unsigned char c) { return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c; };
        return lower(x) == lower(y);
    });
}

}  // namespace

CoachSection::CoachSection(const AppInfo& app) : path_(ini::profilePath(app.path, app.exeName, "")) {}

void CoachSection::declare(std::string key, std::vector<std::string> values, std::string builtIn) {
    const std::string stored = ini::readValue(path_, kSection, key);
    const auto word = std::find_if(values.begin(), values.end(), [&](const std::string& v) { return sameWord(v, stored); });
    std::string start = word != values.end() ? *word : std::move(builtIn);
    settings_.push_back({std::move(key), std::move(values), start, start});
}

const std::string& CoachSection::value(std::string_view key) const { return find(key).now; }

bool CoachSection::set(std::string_view key, const std::string& word) {
    Setting& s = find(key);
    if (std::find(s.values.begin(), s.values.end(), word) == s.values.end()) return false;
    s.now = word;
    return true;
}

void CoachSection::writeChanged() {
    for (Setting& s : settings_) {
        if (s.now == s.atStart) continue;
        // A file that cannot be written keeps its old word: the next start reads that.
        if (ini::writeValue(path_, kSection, s.key, s.now)) s.atStart = s.now;
    }
}

CoachSection::Setting& CoachSection::find(std::string_view key) {
    return const_cast<Setting&>(std::as_const(*this).find(key));
}

const CoachSection::Setting& CoachSection::find(std::string_view key) const {
    for (const Setting& s : settings_)
        if (s.key == key) return s;
    throw std::out_of_range("no setting " + std::string(key) + " in [Coach]");
}

}  // namespace brelk::seam
