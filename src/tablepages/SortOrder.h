#pragma once

#include "services/SortKeys.h"
#include "tablepages/TableRun.h"

namespace ostrel::tablepages {

/// The column that a table is sorted on.
struct SortColumn {
    Long source = 0, grid = 0;
    /// It varies within a record, so that every row is sorted by itself.
    bool ofRow = false;
    /// The first letter of the sort type, in upper case.
    char type = 'S';
    /// Whether a change of value gives a sub-total.
    bool subTotals = false;

    SortColumn(const TableOptions& options, Long sourceColumn, Long gridColumn);
};

/// The order of the rows of a page sorted on one column. Keys are read once and go as soon as the rows are in
/// order; turning the order round needs none.
class SortOrder {
public:
    SortOrder(TableRun& run, const SortColumn& column) : run_(run), column_(column) {}

    /// Reads the keys.
    void Collect();
    bool Collected() const { return collected_; }
    /// Sorts up or down, with the events of the sort type. A stop ends it.
    void Sort(bool up);

    Long Count() const { return static_cast<Long>(pointers_.size()); }
    /// The place in the main table of the row at a position counted from 0; -1 where the host left a pointer
    /// that points nowhere.
    Long PlaceAt(Long position) const;
    /// Asks for the cells of the rows that come next on a walk in sorted order.
    void PrefetchAround(Long position) const;
    /// The place that the columns of the record are taken from.
    Long FirstOf(Long place) const {
        return origins_.empty() || place < 0 ? place : origins_[static_cast<std::size_t>(place)];
    }

private:
    void AddKey(Long place);
    void ReserveKeys();
    void FindOrigins();
    bool SortedByHost(bool up);
    bool Heard() const;

    TableRun& run_;
    const SortColumn& column_;
    services::SortKeys keys_;
    Array<Text> texts_; ///< the keys as the host gets them
    std::vector<Long> pointers_;
    std::vector<Long> places_;  ///< of the keys; empty where they are those of the pointers
    std::vector<Long> origins_; ///< empty where every row is its own
    bool collected_ = false;
    bool sortedUp_ = false;
};

} // namespace ostrel::tablepages
