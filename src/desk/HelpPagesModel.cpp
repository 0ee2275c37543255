#include "desk/HelpPagesModel.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <QTextDocumentFragment>
#include <algorithm>

#include "desktop/QtText.h"

namespace ostrel::desk {

namespace {

/// The head of a page stands in its beginning.
constexpr qint64 BytesOfHead = 16 << 10;

/// The text between the tags of the title; empty for none.
QByteArray TitleBytes(const QByteArray& head) {
    const QByteArray lower = head.toLower();
    const qsizetype tag = lower.indexOf("<title");
    const qsizetype start = tag < 0 ? -1 : lower.indexOf('>', tag) + 1;
    const qsizetype end = start < 1 ? -1 : lower.indexOf("</title", start);
    return end < 0 ? QByteArray() : head.mid(start, end - start).simplified();
}

/// Pages are UTF-8, or Windows-1252 where they are not.
QString Decoded(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    return utf8.hasError() ? desktop::ToQt(bytes.toStdString()) : text;
}

} // namespace

bool HelpPagesModel::Fill(const QString& directory) {
    QStringList names =
        QDir(directory).entryList({"*.htm", "*.html"}, QDir::Files | QDir::Readable, QDir::NoSort);
    if (names.isEmpty()) return false;
    // The plain locale knows no numbers.
    QCollator collator{QLocale(QLocale::English)};
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(names.begin(), names.end(),
              [&](const QString& left, const QString& right) { return collator.compare(left, right) < 0; });
    beginResetModel();
    directory_ = directory;
    names_ = std::move(names);
    titles_.clear();
    endResetModel();
    return true;
}

QString HelpPagesModel::FirstPage() const {
    for (const char* usual : {"index.htm", "index.html", "default.htm", "default.html"})
        for (const QString& name : names_)
            if (name.compare(QLatin1String(usual), Qt::CaseInsensitive) == 0) return name;
    return names_.value(0);
}

int HelpPagesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(names_.size());
}

QVariant HelpPagesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::ToolTipRole) return names_[index.row()];
    if (role != Qt::DisplayRole) return {};
    const int row = index.row();
    const QString& title = Title(row);
    // The pages of a report share their title; then the name tells them apart.
    const bool shared =
        (row > 0 && Title(row - 1) == title) || (row + 1 < names_.size() && Title(row + 1) == title);
    return shared ? title + " — " + names_[row] : title;
}

const QString& HelpPagesModel::Title(int row) const {
    const auto found = titles_.find(row);
    return found != titles_.end() ? found->second : titles_[row] = TitleOf(names_[row]);
}

QString HelpPagesModel::TitleOf(const QString& name) const {
    QFile file(QDir(directory_).filePath(name));
    if (!file.open(QIODevice::ReadOnly)) return name;
    const QByteArray title = TitleBytes(file.read(BytesOfHead));
    const QString plain = QTextDocumentFragment::fromHtml(Decoded(title)).toPlainText().trimmed();
    return plain.isEmpty() ? name : plain;
}

} // namespace ostrel::desk
