#include "desk/HelpPagesPanel.h"

#include <QDir>
#include <QItemSelectionModel>
#include <QVBoxLayout>

#include "desk/Counted.h"

namespace ostrel::desk {

HelpPagesPanel::HelpPagesPanel(QWidget* parent) : QWidget(parent) {
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    name_.setFont(bold);
    name_.setObjectName("directoryName");
    name_.setWordWrap(true);
    name_.setTextFormat(Qt::PlainText);
    size_.setForegroundRole(QPalette::PlaceholderText);
    view_.setObjectName("helpPages");
    view_.setModel(&pages_);
    view_.setUniformItemSizes(true);
    view_.setFrameShape(QFrame::NoFrame);
    view_.setSpacing(3);
    connect(view_.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (!marking_) Choose(index);
            });
    // The page may have been left by a link since it was chosen.
    connect(&view_, &QListView::clicked, this, &HelpPagesPanel::Choose);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(6);
    layout->addWidget(&name_);
    layout->addWidget(&size_);
    layout->addWidget(&view_, 1);
}

bool HelpPagesPanel::ShowDirectory(const QString& directory) {
    marking_ = true;
    const bool filled = pages_.Fill(directory);
    marking_ = false;
    if (!filled) return false;
    name_.setText(QDir(directory).dirName());
    name_.setToolTip(directory);
    size_.setText(Counted(pages_.Names().size(), "page"));
    return true;
}

void HelpPagesPanel::Mark(const QString& name) {
    marking_ = true;
    qsizetype row = pages_.Names().indexOf(name);
    // A link may lead to a place inside a page.
    if (row < 0) row = pages_.Names().indexOf(name.section('#', 0, 0));
    view_.setCurrentIndex(row < 0 ? QModelIndex() : pages_.index(static_cast<int>(row)));
    marking_ = false;
}

void HelpPagesPanel::Choose(const QModelIndex& index) {
    if (index.isValid()) emit PageWanted(pages_.Names()[index.row()]);
}

} // namespace ostrel::desk
