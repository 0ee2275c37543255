#include "desk/NoticeBar.h"

#include <QGridLayout>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

namespace ostrel::desk {

namespace {

constexpr int MostLinesSeen = 6;

QString Look(bool trouble) {
    // Both colours are fixed, so that they are read on dark desktops as well.
    return QString("NoticeBar { background: %1; border: none; border-bottom: 1px solid %2; }"
                   "NoticeBar QLabel, NoticeBar QPlainTextEdit { color: #1F2933; background: transparent; }")
        .arg(trouble ? "#FCE8E6" : "#E6F2EA", trouble ? "#E3B5B0" : "#B7D7C2")
        .replace("NoticeBar", "#noticeBar");
}

} // namespace

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent) {
    setObjectName("noticeBar");
    sentence_.setObjectName("noticeSentence");
    details_.setObjectName("noticeDetails");
    sentence_.setWordWrap(true);
    sentence_.setTextFormat(Qt::PlainText);
    sentence_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    details_.setReadOnly(true);
    details_.setFrameShape(QFrame::NoFrame);
    auto* close = new QToolButton;
    close->setObjectName("noticeClose");
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip("Close");
    connect(close, &QToolButton::clicked, this, &NoticeBar::Clear);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(12, 6, 6, 6);
    layout->addWidget(&sentence_, 0, 0);
    layout->addWidget(close, 0, 1, Qt::AlignTop);
    layout->addWidget(&details_, 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    hide();
}

void NoticeBar::TellSuccess(const QString& sentence) { Show(sentence, {}, false); }

void NoticeBar::TellTrouble(const QString& sentence) { Show(sentence, {}, true); }

void NoticeBar::TellTroubles(const QString& sentence, const QStringList& troubles) {
    Show(sentence, troubles, true);
}

void NoticeBar::Clear() {
    trouble_.clear();
    hide();
}

void NoticeBar::Show(const QString& sentence, const QStringList& details, bool trouble) {
    trouble_ = trouble ? sentence : QString();
    sentence_.setText(sentence);
    setStyleSheet(Look(trouble));
    details_.setPlainText(details.join('\n'));
    details_.setVisible(!details.isEmpty());
    const int lines = std::min(static_cast<int>(details.size()), MostLinesSeen);
    details_.setFixedHeight(lines * details_.fontMetrics().lineSpacing() + 12);
    show();
}

} // namespace ostrel::desk
