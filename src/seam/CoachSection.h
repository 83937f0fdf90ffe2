#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brelk {
struct AppInfo;
}

namespace brelk::seam {

// The profile file's [Coach] section: the coach's settings that go beyond
// the window's design, one set of keys per feature. Each setting is one key taking one
// of a fixed list of words. A value that is missing, or not one of its
// words, stands for the setting's built-in value, without a message. Only
// the settings the coach changed during the run are written, at the
// program's end, so a profile file that never held the section stays as it
// was, byte for byte.
class CoachSection {
public:
    // The program's own profile file.
    explicit CoachSection(const AppInfo& app);
    explicit CoachSection(std::string profilePath) : path_(std::move(profilePath)) {}

    static constexpr std::string_view kSection = "Coach";

    // Declares a setting and reads it from the file. `values` lists its
    // words, as they are written; a read matches them ignoring ASCII case.
    void declare(std::string key, std::vector<std::string> values, std::string builtIn);
    // The setting's present word. Raises std::out_of_range for an undeclared key.
    const std::string& value(std::string_view key) const;
    // A word outside the setting's list is refused (false, nothing changes).
    bool set(std::string_view key, const std::string& word);

    // Writes every setting whose word differs from the one it had at start.
    void writeChanged();

private:
    struct Setting {
        std::string key;
        std::vector<std::string> values;
        std::string atStart;
        std::string now;
    };
    Setting& find(std::string_view key);
    const Setting& find(std::string_view key) const;

    std::string path_;
    std::vector<Setting> settings_;
};

}  // namespace brelk::seam
