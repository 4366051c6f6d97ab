// The toolbar design: how many there are, how a stored number becomes one, and the type of a table
// with one row per design. Every writer's per-design table is a PerDesign, made with perDesign() so
// that a missing or extra row does not compile.
#pragma once

#include <array>
#include <cstddef>

namespace vantora::params {

constexpr int kDesignCount = 8;

template <class T> using PerDesign = std::array<T, kDesignCount>;

// True for a design number that has rows in the tables.
constexpr bool isDesign(int design)
{
    return design >= 0 && design < kDesignCount;
}

// The design an export uses for a stored TBDesign: out-of-range numbers take the nearest design.
constexpr int clampedDesign(int design)
{
    return design < 0 ? 0 : design >= kDesignCount ? kDesignCount - 1 : design;
}

// A per-design table from exactly kDesignCount rows.
template <class T, std::size_t N> constexpr PerDesign<T> perDesign(const T (&rows)[N])
{
    static_assert(N == kDesignCount, "one row per toolbar design");
    PerDesign<T> table {};
    for (std::size_t i = 0; i < N; ++i)
        table[i] = rows[i];
    return table;
}

// The row of `design`, or null for a number outside the designs.
template <class T> constexpr const T *designRow(const PerDesign<T> &table, int design)
{
    return isDesign(design) ? &table[std::size_t(design)] : nullptr;
}

} // namespace vantora::params
