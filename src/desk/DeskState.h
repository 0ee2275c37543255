#pragma once

#include <QByteArray>
#include <QMainWindow>
#include <QStringList>

#include "platform/SettingsStore.h"

namespace ostrel::desk {

/// What the application remembers from run to run, in the component's own store of settings.
class DeskState {
public:
    static constexpr qsizetype MostRecent = 8;

    explicit DeskState(SettingsStore& store) : store_(store) {}

    /// Size, place and docks; those of a first start where nothing is remembered. What has moved off every
    /// screen since comes back to one.
    void RestoreWindow(QMainWindow& window);
    void SaveWindow(const QMainWindow& window);

    bool Option(const Text& name, bool fallback);
    void SetOption(const Text& name, bool value);
    /// A directory; empty if none is remembered.
    QString Directory(const Text& name);
    void SetDirectory(const Text& name, const QString& directory);

    /// The files and directories opened last, latest first; what is no longer there is left out.
    QStringList Recent();
    void AddRecent(const QString& path);

    /// Returns the saved plan for a recent file and one of its tables, or an empty one.
    Text Plan(const QString& path, const QString& table);
    void SetPlan(const QString& path, const QString& table, const Text& plan, const QString& directory);
    /// The directories of the reports last planned of the recent files, but for that one.
    QStringList DirectoriesOfOthers(const QString& path);

private:
    /// The files opened last, those that are gone included.
    QStringList Stored();
    Text Get(const Text& section, const Text& key);
    void Save(const Text& section, const Text& key, const Text& value);

    SettingsStore& store_;
};

} // namespace ostrel::desk
