#include "desk/DeskState.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QUrl>

#include "text/NumberText.h"

namespace ostrel::desk {

namespace {

constexpr const char* Application = "OstrelDesk";
constexpr const char* Window = "Window";
constexpr const char* Options = "Options";
constexpr const char* Directories = "Directories";
constexpr const char* RecentFiles = "Recent";
constexpr const char* PlanDirectory = "Directory";
/// A table with thousands of columns is not worth a settings file that every program here reads.
constexpr std::size_t LargestPlan = 64 << 10;
constexpr QSize FirstSize(1200, 800);

Text Encoded(const QByteArray& bytes) { return bytes.toBase64().toStdString(); }

QByteArray Decoded(const Text& text) { return QByteArray::fromBase64(QByteArray::fromStdString(text)); }

/// Paths may hold what the code page lacks, and an address is ASCII.
Text AddressText(const QString& path) { return QUrl::fromLocalFile(path).toEncoded().toStdString(); }

QString PathOf(const Text& address) {
    return QUrl::fromEncoded(QByteArray::fromStdString(address)).toLocalFile();
}

/// Each file has a section of its own, so that all its settings can be removed at once.
Text PlanSection(const QString& path) { return "Plan " + AddressText(path); }

/// Key of a table of a database; empty for a CSV file.
Text PlanKey(const QString& table) { return "Table " + QUrl::toPercentEncoding(table).toStdString(); }

/// Whether enough of the window's upper edge can be seen to take hold of it.
bool CanBeTaken(const QMainWindow& window) {
    constexpr int width = 100, height = 30;
    const QRect frame = window.frameGeometry();
    const QRect edge(frame.x(), frame.y(), frame.width(), height);
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect seen = screen->availableGeometry() & edge;
        if (seen.width() >= width && seen.height() >= height / 2) return true;
    }
    return false;
}

} // namespace

Text DeskState::Get(const Text& section, const Text& key) {
    return store_.Get(Application, section, key).value_or(Text());
}

void DeskState::Save(const Text& section, const Text& key, const Text& value) {
    // What cannot be kept is forgotten; there is nothing that the user could do about it.
    if (Get(section, key) != value) store_.Save(Application, section, key, value);
}

void DeskState::RestoreWindow(QMainWindow& window) {
    window.resize(FirstSize);
    window.restoreGeometry(Decoded(Get(Window, "Geometry")));
    window.restoreState(Decoded(Get(Window, "Docks")));
    if (CanBeTaken(window)) return;
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    window.resize(window.size().boundedTo(area.size()));
    window.move(area.topLeft());
}

void DeskState::SaveWindow(const QMainWindow& window) {
    Save(Window, "Geometry", Encoded(window.saveGeometry()));
    Save(Window, "Docks", Encoded(window.saveState()));
}

bool DeskState::Option(const Text& name, bool fallback) {
    return ToFlag(Get(Options, name)).value_or(fallback);
}

void DeskState::SetOption(const Text& name, bool value) { Save(Options, name, value ? "True" : "False"); }

QString DeskState::Directory(const Text& name) { return PathOf(Get(Directories, name)); }

void DeskState::SetDirectory(const Text& name, const QString& directory) {
    Save(Directories, name, AddressText(directory));
}

QStringList DeskState::Stored() {
    QStringList paths;
    for (Long i = 1; i <= MostRecent; ++i)
        if (const QString path = PathOf(Get(RecentFiles, FromLong(i))); !path.isEmpty()) paths << path;
    return paths;
}

QStringList DeskState::Recent() {
    QStringList paths = Stored();
    paths.removeIf([](const QString& path) { return !QFileInfo::exists(path); });
    return paths;
}

void DeskState::AddRecent(const QString& path) {
    QStringList paths = Recent();
    paths.removeAll(path);
    paths.prepend(path);
    paths = paths.mid(0, MostRecent);
    for (const QString& former : Stored())
        if (!paths.contains(former)) store_.DeleteSection(Application, PlanSection(former));
    for (Long i = 1; i <= MostRecent; ++i)
        Save(RecentFiles, FromLong(i), i <= paths.size() ? AddressText(paths[i - 1]) : Text());
}

Text DeskState::Plan(const QString& path, const QString& table) {
    return Get(PlanSection(path), PlanKey(table));
}

void DeskState::SetPlan(const QString& path, const QString& table, const Text& plan,
                        const QString& directory) {
    if (plan.size() <= LargestPlan) Save(PlanSection(path), PlanKey(table), plan);
    Save(PlanSection(path), PlanDirectory, AddressText(directory));
}

QStringList DeskState::DirectoriesOfOthers(const QString& path) {
    QStringList directories;
    for (const QString& other : Stored())
        if (other != path) directories << PathOf(Get(PlanSection(other), PlanDirectory));
    return directories;
}

} // namespace ostrel::desk
