#include "desk/TableFile.h"

#include <QFileInfo>
#include <new>

#include "desktop/QtText.h"
#include "tables/CsvSource.h"
#include "tables/PageName.h"
#include "tables/SqliteSource.h"
#include "text/NumberText.h"

namespace ostrel::desk {

namespace {

/// Bytes of a file; the windows answer between one piece and the next.
class YieldingSource final : public tables::ByteSource {
public:
    YieldingSource(const std::string& path, qint64 size, Work& work)
        : file_(path), size_(static_cast<double>(size)), work_(work) {}

    const std::string& Name() const override { return file_.Name(); }
    std::size_t Read(char* buffer, std::size_t size) override {
        work_.Show(size_ > 0 ? done_ / size_ : 0);
        if (work_.GiveWay()) throw tables::Interruption{};
        // Small pieces, since what is read is also taken apart before the windows answer again.
        const std::size_t count = file_.Read(buffer, std::min<std::size_t>(size, PieceSize));
        done_ += static_cast<double>(count);
        return count;
    }

private:
    static constexpr std::size_t PieceSize = 256 << 10;

    tables::FileSource file_;
    double size_;
    double done_ = 0;
    Work& work_;
};

void ReadDatabase(const QString& wanted, TableFile& file, Work& work) {
    const std::string path = file.path.toStdString();
    for (const std::string& name : tables::SqliteTableNames(path))
        file.tables << QString::fromStdString(name);
    // Before the user has chosen, take the first table that has rows.
    const QStringList candidates = file.tables.contains(wanted) ? QStringList{wanted} : file.tables;
    for (const QString& candidate : candidates) {
        file.chosen = candidate;
        file.table = std::make_shared<tables::InputTable>(tables::Markup::Escape);
        try {
            tables::SqliteSource rows(path, "", candidate.toStdString(), [&work] {
                work.Show(0);
                return work.GiveWay();
            });
            return tables::ReadTable(rows, *file.table);
        } catch (const tables::InputError&) {
            if (candidate == candidates.back()) throw;
        }
    }
}

} // namespace

QString TableFile::Stem() const {
    const QString stem = QString::fromStdString(tables::StemOf(path.toStdString()));
    return tables.size() > 1 ? stem + " " + chosen : stem;
}

bool TableFile::Stale() const {
    const QFileInfo now(path);
    return now.size() != size || now.lastModified() != written;
}

TableReading ReadTableFile(const QString& path, const QString& wantedTable, Work& work) {
    TableReading reading;
    const QFileInfo info(path);
    // A pipe or a device might keep the windows waiting for ever.
    if (info.exists() && !info.isFile()) {
        reading.trouble = path + " can't be read: it is no plain file.";
        return reading;
    }
    TableFile file{path,        {},
                   {},          std::make_shared<tables::InputTable>(tables::Markup::Escape),
                   info.size(), info.lastModified()};
    try {
        if (tables::IsSqliteFile(path.toStdString())) {
            ReadDatabase(wantedTable, file, work);
        } else {
            YieldingSource bytes(path.toStdString(), info.size(), work);
            tables::CsvSource rows(bytes, {}, true);
            tables::ReadTable(rows, *file.table);
        }
        reading.file = std::move(file);
    } catch (const tables::InputError& error) {
        reading.trouble = QString::fromStdString(error.what());
    } catch (const tables::Interruption&) {
        return {};
    } catch (const std::bad_alloc&) {
        reading.trouble = path + " is too large for the memory of this machine.";
    }
    return reading;
}

QString ShownName(const tables::InputTable& table, std::size_t column) {
    // Characters outside the code page came in as numbers.
    QString name;
    const TextView text = table.names[column];
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = text.find("&#", at);
        name += desktop::ToQt(Text(text.substr(at, start - at)));
        if (start == TextView::npos) break;
        constexpr std::size_t mostDigits = 7;
        const std::size_t end = text.substr(0, start + 3 + mostDigits).find(';', start);
        const auto scalar =
            end == TextView::npos ? std::nullopt : ToLong(text.substr(start + 2, end - start - 2));
        if (scalar && *scalar > 0) {
            const auto character = static_cast<char32_t>(*scalar);
            name += QString::fromUcs4(&character, 1);
            at = end + 1;
        } else {
            name += "&#";
            at = start + 2;
        }
    }
    return name.trimmed().isEmpty() ? QString("Column %1").arg(column + 1) : name;
}

} // namespace ostrel::desk
