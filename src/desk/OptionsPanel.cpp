#include "desk/OptionsPanel.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include "desk/ColumnDelegates.h"
#include "desk/Counted.h"
#include "tables/ReportFiles.h"

namespace ostrel::desk {

namespace {

QLabel* Caption(const QString& text, QWidget& buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(&buddy);
    return label;
}

/// A line in a lighter colour that explains the one above it.
void MakeQuiet(QLabel& label) {
    label.setForegroundRole(QPalette::PlaceholderText);
    label.setWordWrap(true);
}

/// Returns the full path of a directory typed by the user; empty for an empty text.
QString Whole(const QString& typed) {
    const QString directory = typed.trimmed();
    if (directory.isEmpty()) return {};
    return directory == "~" || directory.startsWith("~/")
               ? QDir::homePath() + directory.mid(1)
               : QDir::cleanPath(QDir::current().absoluteFilePath(directory));
}

} // namespace

OptionsPanel::OptionsPanel(QWidget* parent) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(6);
    AddFileLines(*layout);
    AddColumns(*layout);
    AddPages(*layout);
    AddOutput(*layout);
}

void OptionsPanel::AddFileLines(QBoxLayout& layout) {
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    name_.setFont(bold);
    name_.setObjectName("fileName");
    name_.setWordWrap(true);
    name_.setTextFormat(Qt::PlainText);
    size_.setObjectName("fileSize");
    MakeQuiet(size_);
    tables_.setObjectName("tables");
    connect(&tables_, &QComboBox::textActivated, this, &OptionsPanel::TableWanted);
    title_.setObjectName("title");
    layout.addWidget(&name_);
    layout.addWidget(&size_);
    layout.addWidget(&tables_);
    layout.addSpacing(8);
    layout.addWidget(Caption("&Title", title_));
    layout.addWidget(&title_);
}

void OptionsPanel::AddColumns(QBoxLayout& layout) {
    view_.setObjectName("columns");
    view_.setModel(&columns_);
    view_.setItemDelegateForColumn(ColumnsModel::KindSection, new KindDelegate(&view_));
    auto* checks = new CheckDelegate(&view_);
    for (const int section :
         {ColumnsModel::ShowSection, ColumnsModel::SortSection, ColumnsModel::TotalSection})
        view_.setItemDelegateForColumn(section, checks);
    view_.setEditTriggers(QAbstractItemView::EditKeyPressed);
    view_.setSelectionMode(QAbstractItemView::NoSelection);
    view_.setShowGrid(false);
    view_.setTabKeyNavigation(false);
    view_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view_.verticalHeader()->hide();
    view_.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    QHeaderView& header = *view_.horizontalHeader();
    header.setHighlightSections(false);
    header.setSectionsClickable(false);
    header.setMinimumSectionSize(20);
    header.setSectionResizeMode(QHeaderView::Fixed);
    header.setSectionResizeMode(ColumnsModel::NameSection, QHeaderView::Stretch);
    const int letter = fontMetrics().averageCharWidth();
    view_.setColumnWidth(ColumnsModel::KindSection, letter * 12);
    for (const int section :
         {ColumnsModel::ShowSection, ColumnsModel::SortSection, ColumnsModel::TotalSection})
        view_.setColumnWidth(section, letter * 7);
    connect(&view_, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.flags().testFlag(Qt::ItemIsEditable)) view_.edit(index);
    });
    connect(&columns_, &QAbstractItemModel::dataChanged, this, &OptionsPanel::ShowConsequences);
    layout.addSpacing(8);
    layout.addWidget(Caption("&Columns", view_));
    layout.addWidget(&view_, 1);
}

void OptionsPanel::AddPages(QBoxLayout& layout) {
    subTotals_.setObjectName("subTotals");
    subTotals_.setText("&Sub-totals on sorted pages");
    records_.setObjectName("records");
    records_.setText("A &page for each record");
    recordName_.setObjectName("recordName");
    recordNameLabel_.setText("&named by");
    recordNameLabel_.setBuddy(&recordName_);
    recordsAll_.setObjectName("recordsAll");
    recordsAll_.setText("with columns that are n&ot shown");
    csvAll_.setObjectName("csvAll");
    csvAll_.setText("CS&V file with columns that are not shown");
    for (const QCheckBox* box : {&records_, &recordsAll_})
        connect(box, &QCheckBox::toggled, this, &OptionsPanel::ShowConsequences);
    auto* nameLine = new QHBoxLayout;
    nameLine->setContentsMargins(24, 0, 0, 0);
    nameLine->addWidget(&recordNameLabel_);
    nameLine->addWidget(&recordName_, 1);
    recordName_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    recordName_.setMinimumContentsLength(8);
    layout.addWidget(&subTotals_);
    layout.addWidget(&records_);
    layout.addLayout(nameLine);
    auto* allLine = new QHBoxLayout;
    allLine->setContentsMargins(24, 0, 0, 0);
    allLine->addWidget(&recordsAll_);
    layout.addLayout(allLine);
    layout.addWidget(&csvAll_);
}

void OptionsPanel::AddOutput(QBoxLayout& layout) {
    directory_.setObjectName("directory");
    connect(&directory_, &QLineEdit::textChanged, this, [this] { TellDirectoryTrouble({}); });
    connect(&directory_, &QLineEdit::editingFinished, this, &OptionsPanel::CheckDirectory);
    auto* browse = new QPushButton("&Browse…");
    browse->setObjectName("browse");
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &OptionsPanel::Browse);
    auto* line = new QHBoxLayout;
    line->addWidget(&directory_, 1);
    line->addWidget(browse);
    directoryTrouble_.setObjectName("directoryTrouble");
    directoryTrouble_.setWordWrap(true);
    directoryTrouble_.setTextFormat(Qt::PlainText);
    directoryTrouble_.setStyleSheet("color: #B3261E;");
    directoryTrouble_.hide();
    make_.setObjectName("make");
    make_.setText("&Make report");
    make_.setMinimumHeight(fontMetrics().height() * 2 + 4);
    make_.setStyleSheet("QPushButton { background: #1F5FA8; color: white; border: none; border-radius: 4px; "
                        "font-weight: bold; }"
                        "QPushButton:hover, QPushButton:focus { background: #2A70C2; }"
                        "QPushButton:pressed { background: #184C87; }"
                        "QPushButton:disabled { background: #A9B6C6; }");
    connect(&make_, &QPushButton::clicked, this, &OptionsPanel::MakeWanted);
    consequence_.setObjectName("consequence");
    MakeQuiet(consequence_);
    layout.addSpacing(8);
    layout.addWidget(Caption("&Directory of the report", directory_));
    layout.addLayout(line);
    layout.addWidget(&directoryTrouble_);
    layout.addSpacing(8);
    layout.addWidget(&make_);
    layout.addWidget(&consequence_);
}

void OptionsPanel::ShowFile(const TableFile& file, const ReportPlan& plan) {
    const tables::InputTable& table = *file.table;
    rows_ = table.rows;
    stem_ = file.Stem();
    name_.setText(QFileInfo(file.path).fileName());
    name_.setToolTip(file.path);
    size_.setText(Counted(table.rows, "row") + ", " + Counted(table.Columns(), "column"));
    tables_.clear();
    tables_.addItems(file.tables);
    tables_.setCurrentText(file.chosen);
    tables_.setVisible(file.tables.size() > 1);

    QStringList names;
    for (std::size_t i = 0; i < table.names.size(); ++i) names << ShownName(table, i);
    recordName_.clear();
    recordName_.addItem("record number");
    recordName_.addItems(names);
    columns_.Fill(std::move(names), plan.columns);
    view_.scrollToTop();
    title_.setText(plan.title.isEmpty() ? stem_ : plan.title);
    subTotals_.setChecked(plan.subTotals);
    records_.setChecked(plan.records);
    recordsAll_.setChecked(plan.recordsAll);
    csvAll_.setChecked(plan.csvAll);
    // The others decide which columns may name the records.
    recordName_.setCurrentIndex(plan.recordName);
    SetDirectory(plan.directory);
    ShowConsequences();
}

ReportPlan OptionsPanel::Plan() const {
    ReportPlan plan;
    plan.title = title_.text().trimmed().isEmpty() ? stem_ : title_.text().trimmed();
    plan.directory = Whole(directory_.text());
    plan.columns = columns_.Choices();
    plan.subTotals = subTotals_.isChecked();
    plan.records = records_.isChecked();
    plan.recordName = recordName_.currentIndex();
    plan.recordsAll = recordsAll_.isChecked();
    plan.csvAll = csvAll_.isChecked();
    return plan;
}

void OptionsPanel::SetDirectory(const QString& directory) {
    directory_.setText(Whole(directory));
    directory_.setCursorPosition(0);
}

void OptionsPanel::TellDirectoryTrouble(const QString& sentence) {
    directoryTrouble_.setText(sentence);
    directoryTrouble_.setVisible(!sentence.isEmpty());
}

void OptionsPanel::Browse() {
    const QString chosen =
        QFileDialog::getExistingDirectory(this, "Directory of the report", Whole(directory_.text()));
    if (!chosen.isEmpty()) directory_.setText(chosen);
}

void OptionsPanel::CheckDirectory() {
    const QString directory = Whole(directory_.text());
    if (directory.isEmpty())
        TellDirectoryTrouble("The report needs a directory.");
    else
        TellDirectoryTrouble(QString::fromStdString(tables::ReportFiles::Trouble(directory.toStdString())));
}

void OptionsPanel::OfferRecordNames() {
    const ReportPlan plan = Plan();
    auto* names = qobject_cast<QStandardItemModel*>(recordName_.model());
    for (int column = 1; column < names->rowCount(); ++column)
        names->item(column)->setEnabled(plan.MayNameRecords(column));
    if (!plan.MayNameRecords(plan.recordName)) recordName_.setCurrentIndex(0);
}

void OptionsPanel::ShowConsequences() {
    OfferRecordNames();
    const ReportPlan plan = Plan();
    subTotals_.setEnabled(plan.AnyTotal());
    recordName_.setEnabled(plan.records);
    recordNameLabel_.setEnabled(plan.records);
    recordsAll_.setEnabled(plan.records);
    consequence_.setText(Counted(plan.TablePages() + plan.RecordPages(rows_), "page") + " of " +
                         Counted(plan.ShownColumns(), "column") + " and a CSV file");
}

} // namespace ostrel::desk
