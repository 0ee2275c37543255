#pragma once

#include <QRect>
#include <QWidget>
#include <cmath>

#include "text/Text.h"

namespace ostrel::desktop {

/// Turns twips, 1/1440 inch, into the toolkit's device-independent pixels and back, for one widget's screen.
class Twips {
public:
    explicit Twips(const QWidget& widget) : across_(widget.logicalDpiX()), down_(widget.logicalDpiY()) {}

    int Across(Long twips) const { return static_cast<int>(std::lround(twips * across_ / PerInch)); }
    int Down(Long twips) const { return static_cast<int>(std::lround(twips * down_ / PerInch)); }
    double FromAcross(double pixels) const { return pixels * PerInch / across_; }
    double FromDown(double pixels) const { return pixels * PerInch / down_; }

    /// Both edges are rounded, so that neighbours in twips are neighbours on the screen.
    QRect Rectangle(Long left, Long top, Long width, Long height) const {
        const int x = Across(left), y = Down(top);
        return {x, y, Across(left + width) - x, Down(top + height) - y};
    }

private:
    static constexpr double PerInch = 1440;
    double across_, down_;
};

} // namespace ostrel::desktop
