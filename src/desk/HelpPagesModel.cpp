#include "desk/HelpPagesModel.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QStringDecoder>
#include <QTextDocumentFragment>
#include <algorithm>

#include "desktop/QtText.h"
#include "tables/ReportList.h"

namespace ostrel::desk {

namespace {

/// The head of a page is at its beginning.
constexpr qint64 BytesOfHead = 16 << 10;

/// Returns the text between the tags of the title, or an empty text.
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

qsizetype IndexRow(const QStringList& names) {
    for (const char* usual : {"index.htm", "index.html", "default.htm", "default.html"})
        for (qsizetype row = 0; row < names.size(); ++row)
            if (names[row].compare(QLatin1String(usual), Qt::CaseInsensitive) == 0) return row;
    return -1;
}

/// The page that this one shows in another order, by the naming of report pages: of `a_D.htm`
/// and `a_12_U.htm` it is `a.htm`. Empty if there is no such page.
QString MainPageOf(const QString& name, const QSet<QString>& all) {
    const bool down = name.endsWith("_D.htm");
    if (!down && !name.endsWith("_U.htm")) return {};
    const QString stem = name.chopped(6);
    // The page from the last record up has no number of a column.
    if (const QString main = stem + ".htm"; down && all.contains(main)) return main;
    const qsizetype bar = stem.lastIndexOf('_');
    const QStringView column = QStringView(stem).mid(bar + 1);
    const bool numbered = bar >= 0 && !column.isEmpty() &&
                          std::all_of(column.begin(), column.end(), [](QChar c) { return c.isDigit(); });
    const QString main = stem.left(bar) + ".htm";
    return numbered && all.contains(main) ? main : QString();
}

/// A report without a list of its files is known by the names of its pages.
qsizetype MainPageRow(const QStringList& names) {
    const QSet<QString> all(names.begin(), names.end());
    QSet<QString> mains;
    for (const QString& name : names) mains.insert(MainPageOf(name, all));
    for (qsizetype row = 0; row < names.size(); ++row)
        if (mains.contains(names[row]) && MainPageOf(names[row], all).isEmpty()) return row;
    return -1;
}

/// The page to begin with.
qsizetype FirstRow(const QString& directory, const QStringList& names) {
    qsizetype row = IndexRow(names);
    if (row < 0) row = names.indexOf(QString::fromStdString(tables::MainPageIn(directory.toStdString())));
    if (row < 0) row = MainPageRow(names);
    return std::max<qsizetype>(row, 0);
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
    names.move(FirstRow(directory, names), 0);
    beginResetModel();
    directory_ = directory;
    names_ = std::move(names);
    titles_.clear();
    endResetModel();
    return true;
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
    // The pages of a report may share a title; add the file name then.
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
