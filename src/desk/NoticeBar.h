#pragma once

#include <QFrame>
#include <QLabel>
#include <QPlainTextEdit>

namespace ostrel::desk {

/// A bar that says in words what came of something, until it is closed or something else is begun.
class NoticeBar final : public QFrame {
public:
    explicit NoticeBar(QWidget* parent = nullptr);

    void TellSuccess(const QString& sentence);
    void TellTrouble(const QString& sentence);
    /// The sentence, with all troubles below it.
    void TellTroubles(const QString& sentence, const QStringList& troubles);
    void Clear();
    /// The sentence of the trouble on view; empty for none.
    const QString& Trouble() const { return trouble_; }

private:
    void Show(const QString& sentence, const QStringList& details, bool trouble);

    QLabel sentence_;
    QPlainTextEdit details_;
    QString trouble_;
};

} // namespace ostrel::desk
