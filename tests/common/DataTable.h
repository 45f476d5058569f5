// Data tables of Qt Test declared and read in one call each.
#pragma once

#include <QtTest>

#include <array>
#include <tuple>
#include <utility>

// The columns of a data table, in one call: AddColumns<int, QString>({"count", "name"}).
template <class... Types> void AddColumns(const std::array<const char*, sizeof...(Types)>& names)
{
    std::size_t i = 0;
    (QTest::addColumn<Types>(names[i++]), ...);
}

// The current row's values of the named columns: auto [a, b] = Fetch<int, QString>({"a", "b"}).
template <class... Types>
std::tuple<Types...> Fetch(const std::array<const char*, sizeof...(Types)>& names)
{
    return [&]<std::size_t... I>(std::index_sequence<I...>)
    {
        return std::tuple<Types...>(*static_cast<Types*>(
            QTest::qData(names[I], qMetaTypeId<std::remove_cv_t<Types>>()))...);
    }
    (std::index_sequence_for<Types...>());
}
