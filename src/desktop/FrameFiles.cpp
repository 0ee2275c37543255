#include "desktop/FrameFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUuid>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace ostrel::desktop {

namespace {

const QByteArray Scheme = "ostrel-frame";
const QString& Host() {
    static const QString host = QUuid::createUuid().toString(QUuid::Id128);
    return host;
}

} // namespace

FrameFiles::FrameFiles(QWebEngineProfile& profile) { profile.installUrlSchemeHandler(Scheme, this); }

void FrameFiles::RegisterScheme() {
    QWebEngineUrlScheme scheme(Scheme);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::NoAccessAllowed);
    QWebEngineUrlScheme::registerScheme(scheme);
}

bool FrameFiles::IsFrameFile(const QUrl& url) {
    return url.scheme() == QLatin1String(Scheme) && url.host() == Host();
}

QUrl FrameFiles::AddressOf(const QUrl& file) {
    QUrl address = file;
    address.setScheme(Scheme);
    address.setHost(Host());
    return address;
}

QUrl FrameFiles::FileOf(const QUrl& address) {
    if (!IsFrameFile(address)) return address;
    QUrl file = address;
    file.setScheme("file");
    file.setHost({});
    return file;
}

void FrameFiles::requestStarted(QWebEngineUrlRequestJob* job) {
    const QString path = FileOf(job->requestUrl()).toLocalFile();
    // A pipe or a device might never end.
    if (!QFileInfo(path).isFile()) return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    auto* file = new QFile(path, job);
    if (!file->open(QFile::ReadOnly)) return job->fail(QWebEngineUrlRequestJob::RequestDenied);
    job->reply(QMimeDatabase().mimeTypeForFile(path).name().toLatin1(), file);
}

} // namespace ostrel::desktop
