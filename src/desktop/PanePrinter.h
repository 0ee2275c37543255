#pragma once

#include <QEventLoop>
#include <QHash>
#include <QPointer>
#include <QString>
#include <QUrl>

class QWebEngineView;

namespace ostrel::desktop {

/// Prints the pages of one view without a dialog: to the default printer, or to PDF files.
class PanePrinter {
public:
    /// The view outlives the printer.
    explicit PanePrinter(QWebEngineView& view) : view_(view) {}

    /// Later pages become PDF files of that directory; an empty name brings the default printer back. The
    /// directory must exist.
    void SetPdfDirectory(const QString& directory) { pdfDirectory_ = directory; }

    /// Prints the page that is loaded, whose address names its PDF file, and returns when the engine has
    /// finished or a stop has come. The result is what went wrong, as a sentence; empty for nothing.
    QString Print(const QUrl& address);
    /// Ends the wait for a print.
    void Stop();
    /// Whether a print is being waited for.
    bool Busy() const { return waiting_; }

private:
    QString PrintToFile(const QUrl& address);
    QString PrintToPrinter();
    /// The file of a page. Pages of one name and two endings get two files.
    QString FileFor(const QUrl& address);

    QWebEngineView& view_;
    QString pdfDirectory_;
    QHash<QString, QUrl> pages_; ///< by their PDF files
    QPointer<QEventLoop> waiting_;
};

} // namespace ostrel::desktop
