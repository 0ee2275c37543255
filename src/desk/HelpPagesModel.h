#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <unordered_map>

namespace ostrel::desk {

/// The pages of a directory by their titles, the page to begin with first. A title is read when it is to be
/// seen, so that a directory with very many pages opens at once.
class HelpPagesModel final : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// False where there is no page in it; then nothing has changed.
    bool Fill(const QString& directory);
    const QString& Directory() const { return directory_; }
    const QStringList& Names() const { return names_; }
    /// The page to begin with: the index, or else the main page of a report, or else the first by name.
    QString FirstPage() const { return names_.value(0); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const QString& Title(int row) const;
    QString TitleOf(const QString& name) const;

    QString directory_;
    QStringList names_;
    mutable std::unordered_map<int, QString> titles_;
};

} // namespace ostrel::desk
