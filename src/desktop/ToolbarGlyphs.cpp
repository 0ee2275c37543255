#include "desktop/ToolbarGlyphs.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

namespace ostrel::desktop {
namespace {

/// Glyphs are drawn in units of a square of this side, which is their height in pixels at scale 1.
constexpr double GridSide = 16;

/// The few colours of all glyphs.
struct Tones {
    QColor ink, accent, warning;
};

const Tones& TonesOf(QIcon::Mode mode) {
    static const Tones lively{QColor(0x3B4A5A), QColor(0x1F6FB5), QColor(0xB5382C)};
    static const Tones grey{QColor(0xA2A6AA), QColor(0xB0B4B8), QColor(0xA2A6AA)};
    return mode == QIcon::Disabled ? grey : lively;
}

/// The fill of an outline: translucent, so that it suits any background.
QColor Tint(QColor tone) {
    tone.setAlpha(0x38);
    return tone;
}

/// A line of whole device pixels, whose middle can be laid so that both edges fall between pixels.
class Stroke {
public:
    Stroke(double units, double pixelsPerUnit)
        : pixels_(std::max(1.0, std::round(units * pixelsPerUnit))), pixelsPerUnit_(pixelsPerUnit) {}

    double Width() const { return pixels_ / pixelsPerUnit_; }
    double Snap(double unit) const {
        return (std::round(unit * pixelsPerUnit_ - pixels_ / 2) + pixels_ / 2) / pixelsPerUnit_;
    }
    QPointF Snap(QPointF point) const { return {Snap(point.x()), Snap(point.y())}; }

private:
    double pixels_, pixelsPerUnit_;
};

using Points = std::initializer_list<QPointF>;

/// Draws in grid units. Outlines are thinner than the strokes that stand alone, and what they hold is finer
/// still, or the inside of a small box would close.
class Canvas {
public:
    Canvas(QPainter& painter, double pixelsPerUnit)
        : outline(1.35, pixelsPerUnit), bold(1.75, pixelsPerUnit), fine(1, pixelsPerUnit), painter_(painter) {
    }

    void Line(Points points, const Stroke& stroke, const QColor& colour) {
        Path(Through(points, stroke), stroke, colour);
    }
    void Shape(Points points, const QColor& colour, const QBrush& fill) {
        QPainterPath path = Through(points, outline);
        path.closeSubpath();
        Path(path, outline, colour, fill);
    }
    void Path(const QPainterPath& path, const Stroke& stroke, const QColor& colour,
              const QBrush& fill = Qt::NoBrush) {
        painter_.setPen(QPen(colour, stroke.Width(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter_.setBrush(fill);
        painter_.drawPath(path);
    }

    const Stroke outline, bold, fine;

private:
    static QPainterPath Through(Points points, const Stroke& stroke) {
        QPainterPath path(stroke.Snap(*points.begin()));
        for (const QPointF& point : points) path.lineTo(stroke.Snap(point));
        return path;
    }

    QPainter& painter_;
};

void Arrow(Canvas& canvas, double tail, double tip, const QColor& colour) {
    const double barb = tip + std::copysign(5, tail - tip);
    canvas.Line({{tail, 8}, {tip, 8}}, canvas.bold, colour);
    canvas.Line({{barb, 3}, {tip, 8}, {barb, 13}}, canvas.bold, colour);
}

void Cross(Canvas& canvas, double from, double to, const QColor& colour) {
    canvas.Line({{from, from}, {to, to}}, canvas.bold, colour);
    canvas.Line({{to, from}, {from, to}}, canvas.bold, colour);
}

void Back(Canvas& canvas, const Tones& tones) { Arrow(canvas, 14, 3, tones.accent); }

void Forward(Canvas& canvas, const Tones& tones) { Arrow(canvas, 2, 13, tones.accent); }

void Stop(Canvas& canvas, const Tones& tones) {
    canvas.Shape({{5.5, 1.5},
                  {10.5, 1.5},
                  {14.5, 5.5},
                  {14.5, 10.5},
                  {10.5, 14.5},
                  {5.5, 14.5},
                  {1.5, 10.5},
                  {1.5, 5.5}},
                 tones.warning, Tint(tones.warning));
    // Just off the half, or rounding would push the cross out of the middle.
    Cross(canvas, 5.4, 10.6, tones.warning);
}

void Refresh(Canvas& canvas, const Tones& tones) {
    QPainterPath round;
    const QRectF circle(2.5, 2.5, 11, 11);
    round.arcMoveTo(circle, 25);
    round.arcTo(circle, 25, 310);
    canvas.Path(round, canvas.bold, tones.accent);
    canvas.Line({{13, 2}, {13, 6}, {9, 6}}, canvas.bold, tones.accent);
}

void Home(Canvas& canvas, const Tones& tones) {
    canvas.Shape({{3.5, 14.5}, {3.5, 7.5}, {8, 3}, {12.5, 7.5}, {12.5, 14.5}}, tones.ink, Tint(tones.accent));
    canvas.Line({{8, 11}, {8, 14}}, canvas.bold, tones.ink);
    canvas.Line({{2, 8}, {8, 2}, {14, 8}}, canvas.bold, tones.ink);
}

void Index(Canvas& canvas, const Tones& tones) {
    const double spine = canvas.bold.Snap(8.0);
    for (const double side : {-1.0, 1.0}) {
        const double edge = canvas.outline.Snap(8 + side * 6.5);
        const double top = canvas.outline.Snap(2.5), bottom = canvas.outline.Snap(12.5);
        QPainterPath page(QPointF(spine, 4));
        page.quadTo(spine + side * 2, top, spine + side * 4, top);
        page.lineTo(edge, top);
        page.lineTo(edge, bottom);
        page.lineTo(spine + side * 4, bottom);
        page.quadTo(spine + side * 2, bottom, spine, 14);
        canvas.Path(page, canvas.outline, tones.ink, Tint(tones.accent));
        for (const double line : {5.5, 7.5, 9.5})
            canvas.Line({{8 + side * 2.5, line}, {8 + side * 4.5, line}}, canvas.fine, tones.accent);
    }
    canvas.Line({{8, 4}, {8, 13}}, canvas.bold, tones.ink);
}

void Search(Canvas& canvas, const Tones& tones) {
    canvas.Line({{10, 10}, {14, 14}}, canvas.bold, tones.ink);
    QPainterPath lens;
    lens.addEllipse(QRectF(canvas.bold.Snap(QPointF(2, 2)), canvas.bold.Snap(QPointF(11, 11))));
    canvas.Path(lens, canvas.bold, tones.ink, Tint(tones.accent));
}

void Open(Canvas& canvas, const Tones& tones) {
    canvas.Line({{12.5, 7.5}, {12.5, 4.5}, {7.5, 4.5}, {5.5, 2.5}, {1.5, 2.5}, {1.5, 13.5}}, canvas.outline,
                tones.ink);
    canvas.Shape({{1.5, 13.5}, {4.5, 7.5}, {14.5, 7.5}, {12.5, 13.5}}, tones.ink, Tint(tones.accent));
}

void Edit(Canvas& canvas, const Tones& tones) {
    canvas.Shape({{1.5, 14.5}, {2.5, 10.5}, {10.5, 2.5}, {13.5, 5.5}, {5.5, 13.5}}, tones.ink,
                 Tint(tones.accent));
    canvas.Line({{8.5, 4.5}, {11.5, 7.5}}, canvas.outline, tones.ink);
    canvas.Line({{9.5, 14.5}, {14.5, 14.5}}, canvas.outline, tones.accent);
}

void Print(Canvas& canvas, const Tones& tones) {
    canvas.Line({{4.5, 5.5}, {4.5, 1.5}, {11.5, 1.5}, {11.5, 5.5}}, canvas.outline, tones.ink);
    canvas.Line({{4.5, 11.5}, {1.5, 11.5}, {1.5, 5.5}, {14.5, 5.5}, {14.5, 11.5}, {11.5, 11.5}},
                canvas.outline, tones.ink);
    canvas.Shape({{4.5, 8.5}, {11.5, 8.5}, {11.5, 14.5}, {4.5, 14.5}}, tones.ink, Tint(tones.accent));
    canvas.Line({{6.5, 11.5}, {9.5, 11.5}}, canvas.fine, tones.accent);
}

void Properties(Canvas& canvas, const Tones& tones) {
    const auto slider = [&](double height, double knob) {
        canvas.Line({{1.5, height}, {14.5, height}}, canvas.outline, tones.ink);
        QPainterPath round;
        round.addEllipse(canvas.outline.Snap(QPointF(knob, height)), 1.6, 1.6);
        canvas.Path(round, canvas.outline, tones.accent, tones.accent);
    };
    slider(3.5, 10.5);
    slider(7.5, 4.5);
    slider(11.5, 9.5);
}

void Full(Canvas& canvas, const Tones& tones) {
    canvas.Line({{6.5, 3.5}, {1.5, 3.5}, {1.5, 14.5}, {12.5, 14.5}, {12.5, 9.5}}, canvas.outline, tones.ink);
    canvas.Line({{7, 9}, {14, 2}}, canvas.bold, tones.accent);
    canvas.Line({{10, 2}, {14, 2}, {14, 6}}, canvas.bold, tones.accent);
}

void Close(Canvas& canvas, const Tones& tones) { Cross(canvas, 4, 12, tones.ink); }

using Drawing = void (*)(Canvas&, const Tones&);

/// In the order of ToolbarAction.
constexpr std::array<Drawing, ActionCount> Drawings{Back, Forward, Stop,  Refresh,    Home, Index, Search,
                                                    Open, Edit,    Print, Properties, Full, Close};

class GlyphEngine final : public QIconEngine {
public:
    explicit GlyphEngine(Drawing drawing) : drawing_(drawing) {}

    void paint(QPainter* painter, const QRect& box, QIcon::Mode mode, QIcon::State) override {
        if (box.isEmpty()) return;
        const double side = std::min(box.width(), box.height());
        const QTransform device = painter->deviceTransform();
        const double pixelsPerPoint = std::hypot(device.m11(), device.m12());
        // A button may lie between two device pixels of a scaled screen; its glyph must not.
        const QPointF corner(box.x() + (box.width() - side) / 2, box.y() + (box.height() - side) / 2);
        const QPointF placed = device.map(corner);
        const QPointF whole(std::round(placed.x()), std::round(placed.y()));

        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(corner + (whole - placed) / pixelsPerPoint);
        painter->scale(side / GridSide, side / GridSide);
        Canvas canvas(*painter, side * pixelsPerPoint / GridSide);
        drawing_(canvas, TonesOf(mode));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        if (size.isEmpty()) return {};
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new GlyphEngine(*this); }

private:
    Drawing drawing_;
};

} // namespace

QIcon ToolbarGlyph(ToolbarAction action) {
    return QIcon(new GlyphEngine(Drawings[static_cast<std::size_t>(action)]));
}

} // namespace ostrel::desktop
