#include "view/window/ZoomStyle.h"

#include <cmath>

#include <QApplication>
#include <QStyleFactory>

#include "view/window/FormView.h"

namespace brelk::view {

ZoomStyle::ZoomStyle() : QProxyStyle(QStyleFactory::create(QApplication::style()->name())) {}

int ZoomStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int size = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_RadioButtonLabelSpacing:
    case PM_CheckBoxLabelSpacing: break;
    default: return size;
    }
    const auto* window = widget ? qobject_cast<const FormView*>(widget->window()) : nullptr;
    return window ? static_cast<int>(std::lround(size * window->zoom())) : size;
}

}  // namespace brelk::view
