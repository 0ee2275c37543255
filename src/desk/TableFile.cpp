#include "desk/TableFile.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <new>

#include "cli/InputError.h"
#include "cli/PageName.h"
#include "desktop/QtText.h"

namespace ostrel::desk {

namespace {

/// Bytes of a file; the windows answer between one piece and the next.
class YieldingSource final : public cli::ByteSource {
public:
    YieldingSource(const std::string& path, qint64 size, Work& work)
        : file_(path), size_(static_cast<double>(size)), work_(work) {}

    const std::string& Name() const override { return file_.Name(); }
    std::size_t Read(char* buffer, std::size_t size) override {
        work_.Show(size_ > 0 ? done_ / size_ : 0);
        if (work_.GiveWay()) throw cli::Interruption{};
        // Small pieces, since what is read is also taken apart before the windows answer again.
        const std::size_t count = file_.Read(buffer, std::min<std::size_t>(size, PieceSize));
        done_ += static_cast<double>(count);
        return count;
    }

private:
    static constexpr std::size_t PieceSize = 256 << 10;

    cli::FileSource file_;
    double size_;
    double done_ = 0;
    Work& work_;
};

void ReadDatabase(const QString& wanted, TableFile& file, Work& work) {
    const std::string path = file.path.toStdString();
    for (const std::string& name : cli::SqliteTableNames(path)) file.tables << QString::fromStdString(name);
    // Where nobody has chosen yet, the first table that has rows serves; the others can be chosen then.
    const QStringList candidates = file.tables.contains(wanted) ? QStringList{wanted} : file.tables;
    for (const QString& candidate : candidates) {
        file.chosen = candidate;
        file.table = std::make_shared<cli::InputTable>(cli::Markup::Escape);
        try {
            return cli::ReadSqliteTable(path, "", candidate.toStdString(), *file.table, [&work] {
                work.Show(0);
                return work.GiveWay();
            });
        } catch (const cli::InputError&) {
            if (candidate == candidates.back()) throw;
        }
    }
}

} // namespace

QString TableFile::Stem() const {
    const QString stem = QString::fromStdString(cli::StemOf(path.toStdString()));
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
                   {},          std::make_shared<cli::InputTable>(cli::Markup::Escape),
                   info.size(), info.lastModified()};
    try {
        if (cli::IsSqliteFile(path.toStdString())) {
            ReadDatabase(wantedTable, file, work);
        } else {
            YieldingSource source(path.toStdString(), info.size(), work);
            cli::ReadCsvTable(source, {}, true, *file.table);
        }
        reading.file = std::move(file);
    } catch (const cli::InputError& error) {
        reading.trouble = QString::fromStdString(error.what());
    } catch (const cli::Interruption&) {
        return {};
    } catch (const std::bad_alloc&) {
        reading.trouble = path + " is too large for the memory of this machine.";
    }
    return reading;
}

QString ShownName(const cli::InputTable& table, std::size_t column) {
    QString name = desktop::ToQt(table.names[column]);
    // Characters outside the code page came in as numbers.
    static const QRegularExpression reference("&#(\\d{1,7});");
    for (auto match = reference.match(name); match.hasMatch(); match = reference.match(name)) {
        const char32_t scalar = match.captured(1).toUInt();
        name.replace(match.capturedStart(), match.capturedLength(), QString::fromUcs4(&scalar, 1));
    }
    return name.trimmed().isEmpty() ? QString("Column %1").arg(column + 1) : name;
}

} // namespace ostrel::desk
