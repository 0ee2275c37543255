#include "desktop/ToolbarGlyphsTest.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "desktop/ToolbarGlyphs.h"

namespace ostrel::test {
namespace {

constexpr int Side = 16;

QImage Picture(ToolbarAction action, double scale = 1, QIcon::Mode mode = QIcon::Normal) {
    return desktop::ToolbarGlyph(action)
        .pixmap(QSize(Side, Side), scale, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

std::vector<ToolbarAction> Actions() {
    std::vector<ToolbarAction> actions;
    for (int action = 0; action < ActionCount; ++action)
        actions.push_back(static_cast<ToolbarAction>(action));
    return actions;
}

template <class Predicate>
int CountPixels(const QImage& picture, Predicate holds) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) count += holds(picture.pixelColor(x, y)) ? 1 : 0;
    return count;
}

/// How many pixels tell more than the background would.
int Ink(const QImage& picture) {
    return CountPixels(picture, [](const QColor& colour) { return colour.alpha() > 0x80; });
}

/// How many pixels two pictures of one size have that anybody could tell apart.
int Differences(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QColor here = one.pixelColor(x, y), there = other.pixelColor(x, y);
            const int most =
                std::max({std::abs(here.alpha() - there.alpha()), std::abs(here.red() - there.red()),
                          std::abs(here.green() - there.green()), std::abs(here.blue() - there.blue())});
            count += most > 0x40 ? 1 : 0;
        }
    return count;
}

} // namespace

void ToolbarGlyphsTest::EveryGlyphHasInk() {
    for (const ToolbarAction action : Actions()) {
        const int ink = Ink(Picture(action));
        QVERIFY2(ink >= 20 && ink < Side * Side, qPrintable(QString("%1: %2").arg(action).arg(ink)));
    }
}

void ToolbarGlyphsTest::NoTwoGlyphsAreAlike() {
    for (const ToolbarAction one : Actions())
        for (const ToolbarAction other : Actions()) {
            if (one >= other) continue;
            const int differences = Differences(Picture(one), Picture(other));
            QVERIFY2(differences >= 24,
                     qPrintable(QString("%1, %2: %3").arg(one).arg(other).arg(differences)));
        }
}

void ToolbarGlyphsTest::ScaledGlyphsAreDrawnAnew() {
    for (const ToolbarAction action : Actions()) {
        const QImage fine = Picture(action, 2);
        QCOMPARE(fine.size(), QSize(2 * Side, 2 * Side));
        // An enlarged picture has four equal pixels wherever the small one had a single pixel.
        int detailed = 0;
        for (int y = 0; y < fine.height(); y += 2)
            for (int x = 0; x < fine.width(); x += 2) {
                const QRgb corner = fine.pixel(x, y);
                const bool plain = fine.pixel(x + 1, y) == corner && fine.pixel(x, y + 1) == corner &&
                                   fine.pixel(x + 1, y + 1) == corner;
                detailed += plain ? 0 : 1;
            }
        QVERIFY2(detailed >= 16, qPrintable(QString("%1: %2").arg(action).arg(detailed)));
    }
}

void ToolbarGlyphsTest::DisabledGlyphsAreGrey() {
    const auto vivid = [](const QColor& colour) {
        const auto [low, high] = std::minmax({colour.red(), colour.green(), colour.blue()});
        return colour.alpha() > 0x80 && high - low > 0x10;
    };
    for (const ToolbarAction action : Actions()) {
        const QImage enabled = Picture(action), disabled = Picture(action, 1, QIcon::Disabled);
        QVERIFY(CountPixels(enabled, vivid) > 0);
        QCOMPARE(CountPixels(disabled, vivid), 0);
        QVERIFY(Ink(disabled) > 0);
        QVERIFY(Differences(enabled, disabled) > 0);
    }
}

void ToolbarGlyphsTest::GlyphsStayInsideTheirBox() {
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        for (const ToolbarAction action : Actions()) {
            const int device = qRound(Side * scale);
            QImage wide(3 * device, 3 * device, QImage::Format_ARGB32);
            wide.setDevicePixelRatio(scale);
            wide.fill(Qt::transparent);
            QPainter painter(&wide);
            desktop::ToolbarGlyph(action).paint(&painter, QRect(Side, Side, Side, Side));
            painter.end();

            const QImage inside = wide.copy(device, device, device, device);
            const auto drawn = [](const QColor& colour) { return colour.alpha() > 0; };
            QVERIFY(CountPixels(inside, drawn) > 0);
            QVERIFY2(CountPixels(wide, drawn) == CountPixels(inside, drawn),
                     qPrintable(QString("%1 at scale %2").arg(action).arg(scale)));
        }
}

void ToolbarGlyphsTest::StraightLinesFillWholePixels() {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const QImage arrow = Picture(ActionBack, scale);
        const int column = arrow.width() * 3 / 4;
        int full = 0;
        for (int y = 0; y < arrow.height(); ++y) {
            const int alpha = arrow.pixelColor(column, y).alpha();
            QVERIFY2(alpha == 0 || alpha == 0xFF, qPrintable(QString("%1: %2").arg(scale).arg(alpha)));
            full += alpha == 0xFF ? 1 : 0;
        }
        QVERIFY(full >= 2);
    }
}

void ToolbarGlyphsTest::EmptySizesGiveNothing() {
    QVERIFY(desktop::ToolbarGlyph(ActionHome).pixmap(QSize(0, 0)).isNull());
}

} // namespace ostrel::test
