#include "desktop/PanePrinter.h"

#include <QDir>
#include <QFileInfo>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QTimer>
#include <QWebEngineView>
#include <memory>

namespace ostrel::desktop {

namespace {

constexpr int LongestPrint = 120'000;
constexpr const char* NotFinished = "The page could not be printed.";

} // namespace

QString PanePrinter::Print(const QUrl& address) {
    if (waiting_) return "Another page is being printed.";
    return pdfDirectory_.isEmpty() ? PrintToPrinter() : PrintToFile(address);
}

void PanePrinter::Stop() {
    if (waiting_) waiting_->quit();
}

QString PanePrinter::PrintToFile(const QUrl& address) {
    // The engine may answer after this call has given up on it.
    struct Answer {
        QByteArray pdf;
        QPointer<QEventLoop> waiting;
    };
    const auto answer = std::make_shared<Answer>();
    QEventLoop loop;
    waiting_ = answer->waiting = &loop;
    view_.page()->printToPdf([answer](const QByteArray& pdf) {
        answer->pdf = pdf;
        if (answer->waiting) answer->waiting->quit();
    });
    QTimer::singleShot(LongestPrint, &loop, &QEventLoop::quit);
    loop.exec();
    if (answer->pdf.isEmpty()) return NotFinished;
    QSaveFile file(FileFor(address));
    if (!file.open(QIODevice::WriteOnly) || file.write(answer->pdf) != answer->pdf.size() || !file.commit())
        return file.fileName() + " can't be written: " + file.errorString() + ".";
    return {};
}

QString PanePrinter::PrintToPrinter() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) return "There is no printer on this system.";
    QPrinter printer(info);
    QEventLoop loop;
    waiting_ = &loop;
    bool printed = false;
    const auto connection =
        QObject::connect(&view_, &QWebEngineView::printFinished, &loop, [&](bool success) {
            printed = success;
            loop.quit();
        });
    view_.print(&printer);
    // The engine draws on the printer until it has finished.
    loop.exec();
    QObject::disconnect(connection);
    return printed ? QString() : NotFinished;
}

QString PanePrinter::FileFor(const QUrl& address) {
    const QFileInfo page(address.path());
    const QDir directory(pdfDirectory_);
    QString stem = page.completeBaseName();
    if (stem.isEmpty()) stem = "page";
    for (int number = 0;; ++number) {
        QString name = stem;
        if (number == 1) name = page.fileName();
        if (number > 1) name += " " + QString::number(number);
        const QString path = directory.filePath(name + ".pdf");
        if (pages_.value(path, address) != address) continue;
        pages_[path] = address;
        return path;
    }
}

} // namespace ostrel::desktop
