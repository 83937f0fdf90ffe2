#include "map/ItemLine.h"

#include "map/IconCatalogue.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace brelk {

namespace {

constexpr std::string_view kToken = "ICO_";
constexpr std::string_view kIconPlace = "    ";

std::string replaceAll(std::string text, std::string_view from, std::string_view to) {
    std::size_t pos = 0;
    while ((pos = text.find(from, pos)) != std::string::npos) {
        text.replace(pos, from.size(), to);
        pos += to.size();
    }
    return text;
}

}  // namespace

ItemLine parseItemLine(std::string& item) {
    item = num::upper(item);
    ItemLine line;

    const auto colon = item.find(':');
    if (colon == std::string::npos) raise(err::InvalidCall, "No ':' in the item line");
    line.ItemText = item.substr(0, colon);
    line.ItemTitle = line.ItemText;
    line.RespawnText = item.substr(colon + 1);

    const auto s = item.find(kToken);
    if (s != std::string::npos) {
        // The word ends at the first blank or ":" after the token, whichever
        // comes first; with no ":" behind the token the line is malformed.
        const auto b = item.find(' ', s);
        const auto k = item.find(':', s);
        if (k == std::string::npos) raise(err::InvalidCall, "No ':' after the icon");
        const auto e = (b != std::string::npos && b < k) ? b : k;
        const std::string word = item.substr(s + kToken.size(), e - s - kToken.size());
        if (auto index = iconIndex(word)) {
            line.IconWord = word;
            line.IconIndex = *index;
        }
    }

    if (!line.IconWord.empty()) {
        line.ItemText = replaceAll(line.ItemText, std::string(kToken) + line.IconWord, kIconPlace);
        line.ItemTitle = replaceAll(line.ItemTitle, kToken, "");
    }
    return line;
}

std::string rowTip(const ItemLine& line) {
    const double seconds = num::strictValue(line.RespawnText);
    num::toInt16(seconds);  // the countdown holds its seconds in 16 bits
    return line.ItemTitle + " : " + num::numberText(seconds) + " seconds respawn";
}

int nameLength(const std::string& itemText) {
    return num::charCount(replaceAll(itemText, kIconPlace, " "));
}

}  // namespace brelk
