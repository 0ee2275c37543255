#pragma once

#include <QObject>

namespace ostrel::test {

class ToolbarGlyphsTest : public QObject {
    Q_OBJECT

private slots:
    void EveryGlyphHasInk();
    void NoTwoGlyphsAreAlike();
    void ScaledGlyphsAreDrawnAnew();
    void DisabledGlyphsAreGrey();
    void GlyphsStayInsideTheirBox();
    void StraightLinesFillWholePixels();
    void EmptySizesGiveNothing();
};

} // namespace ostrel::test
