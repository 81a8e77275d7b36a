// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "stockprogram.h"

#include "trees.h"
#include "windows.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTreeView>

namespace StockProgram {

QString option()
{
    return QStringLiteral("--stock-program");
}

int run(const QStringList &arguments)
{
    QStandardItemModel model;
    auto *category = new QStandardItem(QStringLiteral("Category"));
    model.appendRow(category);
    const QStringList names = featureNames(arguments.value(2).toInt());
    for (const QString &name : names) {
        category->appendRow({new QStandardItem(name), new QStandardItem(QStringLiteral("1"))});
    }
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Quit"));
    window.statusBar()->showMessage(QStringLiteral("Ready"));
    auto *const view = new QTreeView(&window);
    view->setUniformRowHeights(true);
    view->setModel(&model);
    view->expandAll();
    view->header()->resizeSection(0, 320);
    window.setCentralWidget(view);
    window.resize(QSize(1000, 700).boundedTo(window.screen()->availableSize() * 9 / 10)); // as the viewer
    window.show();
    settle();
    return window.grab().save(arguments.value(3), "PNG") ? 0 : 1;
}

} // namespace StockProgram
