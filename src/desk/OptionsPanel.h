#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "desk/ColumnsModel.h"
#include "desk/TableFile.h"

class QBoxLayout;

namespace ostrel::desk {

/// Shows what a file holds and lets the user choose what the report of it is to be.
class OptionsPanel final : public QWidget {
    Q_OBJECT

public:
    explicit OptionsPanel(QWidget* parent = nullptr);

    /// Shows that file with that plan.
    void ShowFile(const TableFile& file, const ReportPlan& plan);
    /// The table of the file that the panel is about, where another could not be read.
    void MarkTable(const QString& name) { tables_.setCurrentText(name); }
    /// What is chosen now.
    ReportPlan Plan() const;
    void SetDirectory(const QString& directory);
    /// Says what is wrong with the directory, below its field; empty for nothing.
    void TellDirectoryTrouble(const QString& sentence);
    QString DirectoryTrouble() const { return directoryTrouble_.text(); }

signals:
    void MakeWanted();
    /// Called when the user chooses another table of the database.
    void TableWanted(const QString& name);

private:
    void AddFileLines(QBoxLayout& layout);
    void AddColumns(QBoxLayout& layout);
    void AddPages(QBoxLayout& layout);
    void AddOutput(QBoxLayout& layout);
    void Browse();
    void CheckDirectory();
    void ShowConsequences();
    void OfferRecordNames();

    QLabel name_, size_;
    QComboBox tables_;
    QLineEdit title_;
    QTableView view_;
    ColumnsModel columns_;
    QCheckBox subTotals_, records_, recordsAll_, csvAll_;
    QComboBox recordName_;
    QLabel recordNameLabel_;
    QLineEdit directory_;
    QLabel directoryTrouble_;
    QPushButton make_;
    QLabel consequence_;
    QString stem_;
    Long rows_ = 0;
};

} // namespace ostrel::desk
