#include <QAbstractButton>
#include <QGroupBox>
#include <QPainter>

#include "desktop/LineText.h"
#include "desktop/PictureFile.h"
#include "desktop/ShownControl.h"

namespace ostrel::desktop {

namespace {

class ShownLabel final : public ShownControl {
public:
    ShownLabel(Label& label, QLabel& shown)
        : ShownControl(label, shown, Room::Row), label_(label), shown_(shown) {
        shown.setTextFormat(Qt::PlainText);
    }

protected:
    void SyncContent() override {
        if (!caption_.Follow(label_.caption)) return;
        const QString text = ShownLines(*label_.caption);
        shown_.setText(text);
        // A short text that may wrap would be given a narrow room.
        constexpr int Comfortable = 60;
        shown_.setWordWrap(text.size() > Comfortable);
    }

private:
    Label& label_;
    QLabel& shown_;
    ShownRevision caption_;
};

class ShownFrame final : public ShownControl {
public:
    ShownFrame(FrameBox& frame, QGroupBox& box)
        : ShownControl(frame, box, Room::Row), frame_(frame), box_(box) {}

protected:
    void SyncContent() override {
        if (caption_.Follow(frame_.caption)) box_.setTitle(ShownLines(*frame_.caption, ' '));
    }

private:
    FrameBox& frame_;
    QGroupBox& box_;
    ShownRevision caption_;
};

/// A picture, or a patch of colour where there is none. It is a button to the mouse and to the keys.
class PictureView final : public QAbstractButton {
public:
    explicit PictureView(QWidget* parent) : QAbstractButton(parent) {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    void Show(const QPixmap& picture) {
        // A photograph shall not push the rest of the dialog off the screen.
        constexpr QSize Largest(320, 240);
        const bool large = picture.width() > Largest.width() || picture.height() > Largest.height();
        picture_ = large ? picture.scaled(Largest, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture;
        updateGeometry();
        update();
    }
    /// An invalid colour leaves the patch empty.
    void Show(const QColor& colour) {
        colour_ = colour;
        update();
    }

    QSize sizeHint() const override {
        if (!picture_.isNull()) return picture_.deviceIndependentSize().toSize();
        const int height = fontMetrics().height() + 8;
        return {height * 3 / 2, height};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (!picture_.isNull()) {
            painter.setOpacity(isEnabled() ? 1 : 0.5);
            painter.drawPixmap(rect(), picture_);
        } else {
            const QColor ground =
                colour_.isValid() && isEnabled() ? colour_ : palette().color(backgroundRole());
            painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
            painter.setBrush(ground);
            painter.drawRect(rect().adjusted(0, 0, -1, -1));
        }
    }

private:
    QPixmap picture_;
    QColor colour_;
};

class ShownPicture final : public ShownControl {
public:
    ShownPicture(PictureBox& picture, PictureView& view, UserActions& user)
        : ShownControl(picture, view, Room::Button), picture_(picture), view_(view) {
        view.setFocusPolicy(picture.onClick ? Qt::StrongFocus : Qt::NoFocus);
        if (picture.onClick) view.setCursor(Qt::PointingHandCursor);
        QObject::connect(&view, &QAbstractButton::clicked, &view,
                         [&picture, &user] { user.Act(picture, [&] { picture.Press(); }); });
    }

protected:
    void SyncContent() override {
        if (colour_.Follow(picture_.colour)) view_.Show(Colour());
        if (file_.Follow(picture_.picture)) view_.Show(LoadPicture(*picture_.picture));
    }

private:
    QColor Colour() const {
        const Long colour = picture_.colour;
        if (colour < 0) return {};
        return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
    }

    PictureBox& picture_;
    PictureView& view_;
    ShownRevision colour_, file_;
};

} // namespace

std::unique_ptr<ShownControl> Show(Label& label, QWidget& dialog, UserActions&) {
    return std::make_unique<ShownLabel>(label, *new QLabel(&dialog));
}

std::unique_ptr<ShownControl> Show(FrameBox& frame, QWidget& dialog, UserActions&) {
    return std::make_unique<ShownFrame>(frame, *new QGroupBox(&dialog));
}

std::unique_ptr<ShownControl> Show(PictureBox& picture, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownPicture>(picture, *new PictureView(&dialog), user);
}

} // namespace ostrel::desktop
