#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

#include "text/Text.h"

namespace ostrel {

/// A list that counts from 1. `Find` gives a pointer or null and `Put` ignores what lies outside, so that a
/// statement with an index out of range is one statement that does nothing.
template <class T>
class Array {
public:
    using Value = T;

    Array() = default;
    explicit Array(Long count) : items_(count > 0 ? static_cast<std::size_t>(count) : 0) {}
    Array(std::initializer_list<T> items) : items_(items) {}
    explicit Array(std::vector<T> items) : items_(std::move(items)) {}

    Long Count() const { return static_cast<Long>(items_.size()); }
    bool Empty() const { return items_.empty(); }

    const T* Find(Long index) const {
        return Holds(index) ? &items_[static_cast<std::size_t>(index - 1)] : nullptr;
    }
    T* Find(Long index) { return Holds(index) ? &items_[static_cast<std::size_t>(index - 1)] : nullptr; }

    /// The element, or a default one where the index lies outside.
    T Get(Long index) const { return Holds(index) ? items_[static_cast<std::size_t>(index - 1)] : T{}; }

    void Put(Long index, T value) {
        if (Holds(index)) items_[static_cast<std::size_t>(index - 1)] = std::move(value);
    }

    void Append(T value) { items_.push_back(std::move(value)); }
    /// Keeps what fits; new elements are default ones.
    void Resize(Long count) { items_.resize(count > 0 ? static_cast<std::size_t>(count) : 0); }
    void Fill(const T& value) { std::fill(items_.begin(), items_.end(), value); }
    void Clear() { items_.clear(); }

    T* Data() { return items_.data(); }
    const T* Data() const { return items_.data(); }
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }
    bool operator==(const Array&) const = default;

private:
    bool Holds(Long index) const { return index >= 1 && static_cast<std::size_t>(index) <= items_.size(); }

    std::vector<T> items_;
};

/// A two-dimensional table addressed (row, column), both from 1, with the same forgiveness as Array.
template <class T>
class Grid {
public:
    using Value = T;

    Grid() = default;
    Grid(Long rows, Long columns) { Resize(rows, columns); }
    Grid(std::initializer_list<std::initializer_list<T>> rows) {
        std::size_t columns = 0;
        for (const auto& row : rows) columns = std::max(columns, row.size());
        Resize(static_cast<Long>(rows.size()), static_cast<Long>(columns));
        Long r = 0;
        for (const auto& row : rows) {
            Long c = 0;
            ++r;
            for (const auto& cell : row) Put(r, ++c, cell);
        }
    }

    Long Rows() const { return rows_; }
    Long Columns() const { return columns_; }

    const T* Find(Long row, Long column) const {
        return Holds(row, column) ? &items_[At(row, column)] : nullptr;
    }
    T* Find(Long row, Long column) { return Holds(row, column) ? &items_[At(row, column)] : nullptr; }
    T Get(Long row, Long column) const { return Holds(row, column) ? items_[At(row, column)] : T{}; }
    void Put(Long row, Long column, T value) {
        if (Holds(row, column)) items_[At(row, column)] = std::move(value);
    }

    /// Gives the table a new size; its former content is dropped.
    void Resize(Long rows, Long columns) {
        rows_ = rows > 0 ? rows : 0;
        columns_ = columns > 0 ? columns : 0;
        items_.assign(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_), T{});
    }

    /// Row-major storage, for readers that walk whole rows.
    const T* Data() const { return items_.data(); }
    T* Data() { return items_.data(); }
    bool operator==(const Grid&) const = default;

private:
    bool Holds(Long row, Long column) const {
        return row >= 1 && row <= rows_ && column >= 1 && column <= columns_;
    }
    std::size_t At(Long row, Long column) const {
        return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column - 1);
    }

    std::vector<T> items_;
    Long rows_ = 0;
    Long columns_ = 0;
};

/// Options of the columns 1 to 100. A read outside gives the empty value, a write outside stores nothing.
template <class T, Long Limit = 100>
class Indexed {
public:
    Indexed() : items_(Limit) {}
    T Get(Long index) const { return items_.Get(index); }
    /// The value without a copy, or null outside 1 to Limit.
    const T* Find(Long index) const { return items_.Find(index); }
    void Put(Long index, T value) { items_.Put(index, std::move(value)); }
    void Fill(const T& value) { items_.Fill(value); }

private:
    Array<T> items_;
};

} // namespace ostrel
