// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTreeView>

/* What it takes to start a program that shows nothing but a stock view: zelto-stock-program ROWS. It is
 * linked with Qt alone. */
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int rows = arguments.value(1).toInt();
    QStandardItemModel model;
    QStandardItem *category = nullptr;
    for (int i = 0; i < rows; ++i) {
        auto *const name = new QStandardItem(QStringLiteral("Feature%1").arg(i));
        if (i % 10 == 0) {
            category = name;
            model.appendRow({category, new QStandardItem});
        } else {
            category->appendRow({name, new QStandardItem(QString::number(i))});
        }
    }
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Quit"));
    window.statusBar()->showMessage(QStringLiteral("Ready"));
    auto *const view = new QTreeView(&window);
    view->setUniformRowHeights(true);
    view->setModel(&model);
    view->header()->resizeSection(0, 320);
    for (int row = 0; row < model.rowCount(); ++row) {
        view->expand(model.index(row, 0));
    }
    window.setCentralWidget(view);
    window.resize(QSize(1000, 700).boundedTo(window.screen()->availableSize() * 9 / 10)); // as the viewer
    window.show();
    return QApplication::exec();
}
