#include "callouts/SpokenName.h"

#include <array>
#include <utility>

#include <QString>
#include <QStringList>

namespace brelk::callouts {

namespace {

// The twenty catalogue words as a coach says them.
constexpr std::pair<std::string_view, std::string_view> kSpoken[] = {
    {"QUAD", "quad"}, {"25H", "twenty five health"}, {"REGEN", "regen"}, {"50H", "fifty health"},
    {"BFG", "B F G"}, {"BS", "battle suit"}, {"FLIGHT", "flight"}, {"GL", "grenade launcher"},
    {"HASTE", "haste"}, {"INVIS", "invisibility"}, {"LG", "lightning gun"}, {"MG", "machine gun"},
    {"RL", "rocket launcher"}, {"MH", "mega"}, {"PG", "plasma gun"}, {"SG", "shotgun"},
    {"RA", "red armor"}, {"RG", "railgun"}, {"YA", "yellow armor"}, {"MEDKIT", "medkit"},
};

QString spokenWord(const QString& word) {
    const std::string upper = word.toUpper().toStdString();
    for (const auto& [catalogue, spoken] : kSpoken)
        if (upper == catalogue) return QString::fromUtf8(spoken.data(), static_cast<qsizetype>(spoken.size()));
    return word.toLower();
}

}  // namespace

std::string spokenName(std::string_view title, int row) {
    const QString text = QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size()));
    QStringList said;
    QString word;
    for (const QChar c : text + QChar(' ')) {
        if (c.isLetterOrNumber()) {
            word += c;
        } else if (!word.isEmpty()) {
            said << spokenWord(word);
            word.clear();
        }
    }
    if (said.isEmpty()) return "item " + numberWords(row);
    return said.join(' ').toStdString();
}

std::string numberWords(int n) {
    static constexpr std::array<const char*, 20> kSmall = {
        "zero", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "ten",
        "eleven", "twelve", "thirteen", "fourteen", "fifteen", "sixteen", "seventeen", "eighteen", "nineteen"};
    static constexpr std::array<const char*, 10> kTens = {"", "", "twenty", "thirty", "forty",
                                                          "fifty", "sixty", "seventy", "eighty", "ninety"};
    if (n < 0 || n > 99) return std::to_string(n);
    if (n < 20) return kSmall[n];
    return std::string(kTens[n / 10]) + (n % 10 ? std::string(" ") + kSmall[n % 10] : "");
}

}  // namespace brelk::callouts
