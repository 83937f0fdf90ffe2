#pragma once

#include <QProxyStyle>

namespace brelk::view {

// The application's style, with the marks it draws at a fixed size (the dot
// of an option button, a check box's box) and the space beside them grown
// by the zoom of the window they are drawn in, as on a denser screen.
// Everything else is the style's own.
class ZoomStyle : public QProxyStyle {
public:
    // Over the style the application has now.
    ZoomStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
};

}  // namespace brelk::view
