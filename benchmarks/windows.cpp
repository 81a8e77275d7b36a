// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "windows.h"

#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>
#include <zeltoviewercomponents/featuretree/searchedit.h>

#include <QAbstractEventDispatcher>

namespace {

constexpr QSize windowSize(500, 800);

} // namespace

void settle()
{
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) { }
}

Window::Window(const QSharedPointer<MemoryCollection> &camera)
    : Window(camera, camera->name())
{
}

Window::Window(const Collection &camera, const QString &nodeMapName)
{
    m_widget.resize(windowSize);
    fill(camera, nodeMapName);
    view().expandEverything();
    m_widget.show();
    settle();
}

void Window::fill(const Collection &camera, const QString &nodeMapName)
{
    m_widget.addParameterCollection(camera, QStringLiteral("Camera"), nodeMapName, true);
}

void Window::search(const QString &text)
{
    m_widget.findChild<SearchEdit *>()->setText(text);
    settle();
}

const QAbstractItemModel &Window::model()
{
    return *qobject_cast<FeatureTreeProxyModel *>(view().model())->sourceModel();
}

StockWindow::StockWindow(Window &window)
    : m_tree(window.model())
{
    m_view.resize(window.view().size());
    m_view.setModel(m_tree.proxy());
    m_view.expandAll();
    m_view.show();
    settle();
}

void StockWindow::search(const QString &text)
{
    m_tree.proxy()->setFilterFixedString(text);
    settle();
}

void measureSearchKey(benchmark::State &state, Window &window)
{
    StockWindow stock(window);
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] { window.search(QStringLiteral("t")); });
        figure.baseline("stock", [&] { stock.search(QStringLiteral("t")); });
        window.search(QString());
        stock.search(QString());
    }
}
