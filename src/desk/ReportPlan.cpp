#include "desk/ReportPlan.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUrl>
#include <algorithm>

#include "desk/TableFile.h"

namespace ostrel::desk {

namespace {

QJsonArray Names(const ReportPlan& plan, const tables::InputTable& table,
                 bool (*picks)(const ColumnChoice&)) {
    QJsonArray names;
    for (std::size_t i = 0; i < plan.columns.size(); ++i)
        if (picks(plan.columns[i])) names.append(ShownName(table, i));
    return names;
}

QSet<QString> Set(const QJsonValue& names) {
    QSet<QString> set;
    for (const QJsonValue& name : names.toArray()) set.insert(name.toString());
    return set;
}

} // namespace

bool ReportPlan::AnyTotal() const {
    return std::any_of(columns.begin(), columns.end(), [](const ColumnChoice& c) { return c.Totalled(); });
}

qint64 ReportPlan::ShownColumns() const {
    return std::count_if(columns.begin(), columns.end(), [](const ColumnChoice& c) { return c.show; });
}

bool ReportPlan::MayNameRecords(int column) const {
    const auto place = static_cast<std::size_t>(column) - 1;
    return column > 0 && place < columns.size() && (recordsAll || columns[place].show);
}

qint64 ReportPlan::TablePages() const {
    constexpr qint64 mainPages = 2; // the whole table, and from its last record up
    const std::size_t reached = std::min(columns.size(), ColumnReach);
    return mainPages + 2 * std::count_if(columns.begin(), columns.begin() + static_cast<qint64>(reached),
                                         [](const ColumnChoice& c) { return c.Sorted(); });
}

ReportPlan FirstPlan(const tables::InputTable& table) {
    ReportPlan plan;
    for (const tables::ColumnType kind : table.types) plan.columns.push_back({.kind = kind, .found = kind});
    return plan;
}

Text PlanText(const ReportPlan& plan, const tables::InputTable& table) {
    QJsonObject object;
    object["title"] = plan.title;
    object["directory"] = plan.directory;
    object["hidden"] = Names(plan, table, [](const ColumnChoice& c) { return !c.show; });
    object["unsorted"] = Names(plan, table, [](const ColumnChoice& c) { return !c.sort; });
    object["totals"] = Names(plan, table, [](const ColumnChoice& c) { return c.total; });
    object["subTotals"] = plan.subTotals;
    object["records"] = plan.records;
    object["csvAll"] = plan.csvAll;
    object["recordsAll"] = plan.recordsAll;
    if (plan.recordName > 0)
        object["recordName"] = ShownName(table, static_cast<std::size_t>(plan.recordName - 1));
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    return json.toPercentEncoding(" {}[]\",:/").toStdString();
}

void ApplyPlanText(TextView text, const tables::InputTable& table, ReportPlan& plan) {
    const QByteArray bytes(text.data(), static_cast<qsizetype>(text.size()));
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromPercentEncoding(bytes)).object();
    if (object.isEmpty()) return;
    plan.title = object["title"].toString(plan.title);
    plan.directory = object["directory"].toString(plan.directory);
    plan.subTotals = object["subTotals"].toBool();
    plan.records = object["records"].toBool();
    plan.csvAll = object["csvAll"].toBool();
    plan.recordsAll = object["recordsAll"].toBool();
    const QSet<QString> hidden = Set(object["hidden"]), unsorted = Set(object["unsorted"]),
                        totals = Set(object["totals"]);
    plan.recordName = 0;
    for (std::size_t i = 0; i < plan.columns.size(); ++i) {
        const QString name = ShownName(table, i);
        plan.columns[i].show = !hidden.contains(name);
        plan.columns[i].sort = !unsorted.contains(name);
        plan.columns[i].total = totals.contains(name);
        if (name == object["recordName"].toString()) plan.recordName = static_cast<int>(i) + 1;
    }
}

} // namespace ostrel::desk
