#pragma once

#include <QLabel>
#include <QListView>
#include <QWidget>

#include "desk/HelpPagesModel.h"

namespace ostrel::desk {

/// The list of the pages of a help directory.
class HelpPagesPanel final : public QWidget {
    Q_OBJECT

public:
    explicit HelpPagesPanel(QWidget* parent = nullptr);

    /// False where the directory holds no page; then nothing has changed.
    bool ShowDirectory(const QString& directory);
    const QString& Directory() const { return pages_.Directory(); }
    QString FirstPage() const { return pages_.FirstPage(); }
    /// Selects the page of that name, or no page if the name is not in the list.
    void Mark(const QString& name);

signals:
    void PageWanted(const QString& name);

private:
    void Choose(const QModelIndex& index);

    QLabel name_, size_;
    QListView view_;
    HelpPagesModel pages_;
    bool marking_ = false;
};

} // namespace ostrel::desk
