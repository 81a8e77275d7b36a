// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

#include <initializer_list>

/*! Gives the table of a data-driven test its columns: columns<int, QString>({"position", "expected"}). */
template <typename... Types>
void columns(std::initializer_list<const char *> names)
{
    auto name = names.begin();
    (QTest::addColumn<Types>(*name++), ...);
}

/*! Adds a row to the table of a data-driven test. */
template <typename... Values>
void row(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}
