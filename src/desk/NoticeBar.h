#pragma once

#include <QFrame>
#include <QLabel>
#include <QPlainTextEdit>

namespace ostrel::desk {

/// A bar that reports the result of an operation until it is closed or another operation begins.
class NoticeBar final : public QFrame {
public:
    explicit NoticeBar(QWidget* parent = nullptr);

    void TellSuccess(const QString& sentence);
    void TellTrouble(const QString& sentence);
    /// The sentence, with all troubles below it.
    void TellTroubles(const QString& sentence, const QStringList& troubles);
    void Clear();
    /// Returns the error message shown, or an empty text.
    const QString& Trouble() const { return trouble_; }

private:
    void Show(const QString& sentence, const QStringList& details, bool trouble);

    QLabel sentence_;
    QPlainTextEdit details_;
    QString trouble_;
};

} // namespace ostrel::desk
