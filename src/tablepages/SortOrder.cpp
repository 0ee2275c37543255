#include "tablepages/SortOrder.h"

#include <numeric>

#include "html/PageProgress.h"
#include "services/TagText.h"
#include "text/CodePage.h"
#include "text/DateText.h"

namespace ostrel::tablepages {

namespace {

/// A date key that is no date is 1 January 1900.
constexpr Date FirstDate{2};

TextView NameOf(char type) {
    switch (type) {
    case 'D':
        return "Sorting Dates";
    case 'T':
        return "Sorting Times";
    case 'S':
        return "Sorting Strings";
    case 'N':
        return "Sorting Numerics";
    default:
        return "Sorting External";
    }
}

bool IsExternal(char type) { return TextView("DTSN").find(type) == TextView::npos; }

} // namespace

SortColumn::SortColumn(const TableOptions& options, Long sourceColumn, Long gridColumn)
    : source(sourceColumn), grid(gridColumn), ofRow(options.PageTableColumnSubRecord.Get(sourceColumn)) {
    const Text order = options.PageTableColumnOrder.Get(sourceColumn);
    type = order.empty() ? '\0' : static_cast<char>(UpperByte(order[0]));
    const bool total =
        options.PageTableColumnTotal.Get(sourceColumn) || options.PageTableColumnTotalTime.Get(sourceColumn);
    subTotals = total ? options.PageTableTotalSortSplit : options.PageTableTotalSort;
}

bool SortOrder::Heard() const {
    Events& events = run_.frame.context.events;
    return IsExternal(column_.type) && (events.SortExternal.Heard() || events.SortExternalFull.Heard());
}

void SortOrder::ReserveKeys() {
    const RecordGrid& grid = run_.main->grid;
    std::size_t bytes = 0;
    if (column_.type == 'S' || IsExternal(column_.type))
        for (Long place = 0; place < grid.Count(); ++place)
            bytes += run_.frame.input.cells.Html(grid.At(place).source, column_.source).size();
    keys_.Reserve(static_cast<std::size_t>(grid.Count()), bytes);
}

void SortOrder::FindOrigins() {
    const RecordGrid& grid = run_.main->grid;
    if (!column_.ofRow || grid.Plain()) return;
    const auto top = static_cast<Long>(run_.main->top.size());
    origins_.resize(static_cast<std::size_t>(grid.Count()));
    for (Long place = 0; place < grid.Count(); ++place) {
        Long& origin = origins_[static_cast<std::size_t>(place)];
        const Long back = std::max(grid.At(place).sub, 1) - 1;
        origin = back <= place + top ? place - back : place;
        // A row in between may have its record's data from further up itself.
        if (origin >= 0 && origin < place) origin = origins_[static_cast<std::size_t>(origin)];
    }
}

void SortOrder::AddKey(Long place) {
    const TextView text = run_.painter->Texts().Plain(run_.painter->CellText(place, column_.grid));
    switch (column_.type) {
    case 'D':
        keys_.AddNumber(ParseDate(text).value_or(FirstDate).serial);
        break;
    case 'T':
        keys_.AddNumber(ParseTime(text).value_or(Date{}).serial);
        break;
    case 'N':
        keys_.AddNumber(services::CellNumericValue(text));
        break;
    default:
        keys_.AddText(text);
        if (Heard()) texts_.Append(Text(text));
    }
}

void SortOrder::Collect() {
    const RecordGrid& grid = run_.main->grid;
    collected_ = true;
    ReserveKeys();
    FindOrigins();
    const bool mapped = !column_.ofRow && !grid.Plain();
    for (Long place = 0; place < grid.Count(); ++place) {
        if (!column_.ofRow && grid.At(place).sub != 1) continue;
        if (mapped) places_.push_back(place);
        AddKey(place);
    }
    pointers_.resize(static_cast<std::size_t>(keys_.Count()));
    std::iota(pointers_.begin(), pointers_.end(), 1);
}

Long SortOrder::PlaceAt(Long position) const {
    const Long pointer = pointers_[static_cast<std::size_t>(position)];
    if (pointer < 1 || pointer > Count()) return -1;
    return places_.empty() ? pointer - 1 : places_[static_cast<std::size_t>(pointer - 1)];
}

void SortOrder::PrefetchAround(Long position) const {
    constexpr Long near = 6, far = 12;
    const RecordGrid& grid = run_.main->grid;
    const auto sourceAt = [&](Long ahead) -> Long {
        if (position + ahead >= Count()) return 0;
        const Long place = PlaceAt(position + ahead);
        return place < 0 ? 0 : grid.At(place).source;
    };
    run_.frame.input.cells.PrefetchCells(sourceAt(far));
    run_.frame.input.cells.PrefetchTexts(sourceAt(near));
}

bool SortOrder::SortedByHost(bool up) {
    Events& events = run_.frame.context.events;
    if (!Heard()) return false;
    Array<Long> pointers{std::vector<Long>(pointers_.begin(), pointers_.end())};
    Flag sorted;
    const auto arguments = [&](auto raise) {
        Long count = Count();
        Array<Text> values = texts_;
        Flag direction = up;
        raise(count, values, direction);
    };
    arguments([&](Long& count, Array<Text>& values, Flag& direction) {
        events.SortExternal(count, values, pointers, direction, sorted);
    });
    arguments([&](Long& count, Array<Text>& values, Flag& direction) {
        Text type = run_.frame.options.PageTableColumnOrder.Get(column_.source);
        events.SortExternalFull(type, count, values, pointers, direction, sorted);
    });
    for (Long place = 1; place <= Count(); ++place)
        pointers_[static_cast<std::size_t>(place - 1)] = pointers.Get(place);
    return sorted;
}

void SortOrder::Sort(bool up) {
    Context& context = run_.frame.context;
    html::TellProgress(run_.Scope(), NameOf(column_.type), 0);
    if (IsExternal(column_.type) && SortedByHost(up)) return;
    if (!up && sortedUp_ && !Heard()) {
        services::SortByReversing(context, pointers_);
        return;
    }
    const bool done = services::SortByKeys(context, keys_, pointers_, up);
    if (!done || Heard()) return;
    sortedUp_ = up;
    keys_.Clear();
}

} // namespace ostrel::tablepages
