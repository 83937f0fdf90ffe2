#include "view/drawing/Twips.h"

#include <algorithm>
#include <cmath>

#include "platform/Control.h"

namespace brelk::view {

QRect pixelRect(double left, double top, double width, double height, double zoom) {
    const auto edge = [zoom](double twips) { return static_cast<int>(std::lround(toPixels(twips, zoom))); };
    const int x = edge(left), y = edge(top);
    return QRect(x, y, std::max(0, edge(left + width) - x), std::max(0, edge(top + height) - y));
}

QFont fontOf(const Control& c, double zoom) {
    QFont font;
    const QString name = QString::fromStdString(c.get(Prop::FontName).text());
    // Liberation Sans is metric compatible with Arial; the old bitmap UI fonts
    // become the plain sans serif of the system.
    if (name.compare("Arial", Qt::CaseInsensitive) == 0) font.setFamilies({"Liberation Sans", "Arimo", "Arial"});
    else font.setFamilies({"Liberation Sans", "DejaVu Sans", "Sans Serif"});
    font.setStyleHint(QFont::SansSerif);
    // Points at the window's 96 logical dots per inch, so text keeps its size
    // relative to the twip geometry on every screen and at every zoom.
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(c.number(Prop::FontSize) * zoom * 96.0 / 72.0))));
    font.setBold(c.flag(Prop::FontBold));
    font.setUnderline(c.flag(Prop::FontUnderline));
    return font;
}

QString displayText(const Control& c) {
    const QString text = QString::fromStdString(c.caption());
    if (!c.has(Prop::UseMnemonic) || !c.flag(Prop::UseMnemonic)) return text;
    QString out;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && i + 1 < text.size()) ++i;
        out += text[i];
    }
    return out;
}

}  // namespace brelk::view
