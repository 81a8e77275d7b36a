// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTreeView>

#include <cstdio>
#include <cstdlib>
#include <ctime>

/*! \brief Ends a program when it has painted a tree with rows for the first time, and prints the milliseconds
 * of processor time that it has taken by then, and the number of rows.
 *
 * Qt loads it into any program that QT_QPA_GENERIC_PLUGINS asks to, so that what is measured is the program
 * as it is: all of its threads, and what the system did to load it.
 */
class FirstPaint : public QObject
{
    Q_OBJECT

public:
    FirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !m_view && isFilledTree(watched)) {
            m_view = static_cast<QTreeView *>(watched->parent());
            // When the rest of the window is painted, too.
            QMetaObject::invokeMethod(this, "report", Qt::QueuedConnection);
        }
        return false;
    }

private slots:
    void report()
    {
        timespec now{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
        int rows = 0;
        QModelIndex row = m_view->model()->index(0, 0);
        for (; row.isValid(); row = m_view->indexBelow(row)) {
            ++rows;
        }
        std::printf("%.3f %d\n",
                    static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6, rows);
        std::fflush(stdout);
        std::_Exit(0);
    }

private:
    static bool isFilledTree(const QObject *painted)
    {
        const auto *const view = qobject_cast<const QTreeView *>(painted->parent());
        return view && view->viewport() == painted && view->model() && view->model()->rowCount() > 0;
    }

    QTreeView *m_view = nullptr;
};

/*! \brief Makes the object for Qt. */
class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstpaint.json")

public:
    QObject *create(const QString &, const QString &) override { return new FirstPaint; }
};

#include "firstpaint.moc"
