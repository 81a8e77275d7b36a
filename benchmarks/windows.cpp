// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "windows.h"

#include <zeltoviewercomponents/featuretree/featuretreeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreeproxymodel.h>
#include <zeltoviewercomponents/featuretree/searchedit.h>

#include <QAbstractEventDispatcher>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyledItemDelegate>

namespace {

constexpr QSize windowSize(500, 800);

/*! \brief Qt's own widgets as editors, by the kind of editor that the feature would have. */
class StockDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        const QString value = index.data().toString();
        switch (index.data(Qt::UserRole).toInt()) {
        case FeatureTreeItem::Float: {
            auto *const box = new QDoubleSpinBox(parent);
            box->setRange(0.0, 1.0e6);
            box->setValue(value.toDouble());
            return box;
        }
        case FeatureTreeItem::Integer: {
            auto *const box = new QSpinBox(parent);
            box->setRange(0, 1000);
            box->setValue(value.toInt());
            return box;
        }
        case FeatureTreeItem::Enumeration: {
            auto *const list = new QComboBox(parent);
            for (int i = 0; i < 8; ++i) {
                list->addItem(value);
            }
            return list;
        }
        case FeatureTreeItem::Boolean:
            return new QCheckBox(parent);
        default:
            return new QLineEdit(value, parent);
        }
    }
    void setEditorData(QWidget *, const QModelIndex &) const override { }
};

} // namespace

void settle()
{
    do {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents));
}

Window::Window(const QSharedPointer<MemoryCollection> &camera)
    : Window(camera, camera->name())
{
}

Window::Window(const Collection &camera, const QString &nodeMapName)
{
    fill(camera, nodeMapName);
    open();
}

Window::Window(const QList<QSharedPointer<MemoryCollection>> &nodeMaps)
{
    for (const auto &nodeMap : nodeMaps) {
        fill(nodeMap, nodeMap->name());
    }
    open();
}

void Window::open()
{
    m_widget.resize(windowSize);
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

void Window::setLevel(GenApi::EVisibility level)
{
    m_widget.onVisibilityChanged(level);
    settle();
}

const QAbstractItemModel &Window::model()
{
    return *qobject_cast<FeatureTreeProxyModel *>(view().model())->sourceModel();
}

StockWindow::StockWindow(Window &window, Editors editors)
    : m_tree(window.model())
    , m_editors(editors)
    , m_size(window.view().size())
{
    open();
}

void StockWindow::open()
{
    m_view = std::make_unique<QTreeView>();
    m_view->setUniformRowHeights(true);
    m_view->setItemDelegate(new StockDelegate(m_view.get()));
    m_view->resize(m_size);
    m_view->setModel(m_tree.proxy());
    expandAndEquip({});
    m_view->show();
    settle();
}

// Leaves are not expanded: a view that has stored them as expanded is slow for that alone.
void StockWindow::expandAndEquip(const QModelIndex &parent)
{
    const QAbstractItemModel &model = *m_view->model();
    const int count = model.rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.hasChildren(index)) {
            m_view->setExpanded(index, true);
            expandAndEquip(index);
        } else if (m_editors == Editors::All) {
            m_view->openPersistentEditor(index.siblingAtColumn(1));
        }
    }
}

void StockWindow::search(const QString &text)
{
    m_tree.proxy()->setFilterFixedString(text);
    expandAndEquip({});
    settle();
}

void measureSearchKey(benchmark::State &state, Window &window)
{
    StockWindow stock(window, StockWindow::Editors::None);
    StockWindow stockWithEditors(window, StockWindow::Editors::All);
    Figure figure(state);
    for (auto _ : state) {
        figure.ours([&] { window.search(QStringLiteral("t")); });
        figure.baseline("stock", [&] { stock.search(QStringLiteral("t")); });
        figure.baseline("stock_editors", [&] { stockWithEditors.search(QStringLiteral("t")); });
        window.search(QString());
        stock.search(QString());
        stockWithEditors.search(QString());
    }
    figure.wantShareOf("stock_editors", 1.0);
}
