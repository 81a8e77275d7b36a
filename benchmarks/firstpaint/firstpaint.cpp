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

/*! \brief Ends a program when it has painted a tree with so many rows for the first time, and prints the
 * milliseconds of processor time that it has taken by then.
 *
 * Qt loads it into any program that QT_QPA_GENERIC_PLUGINS asks to ("firstpaint:172" for 172 rows), so that
 * what is measured is the program as it is: all of its threads, and what the system did to load it.
 */
class FirstPaint : public QObject
{
    Q_OBJECT

public:
    explicit FirstPaint(int rows)
        : m_rows(rows)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && isFilledTree(watched)) {
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
        std::printf("%.3f\n", static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6);
        std::fflush(stdout);
        std::_Exit(0);
    }

private:
    bool isFilledTree(const QObject *painted) const
    {
        const auto *const view = qobject_cast<const QTreeView *>(painted->parent());
        if (!view || view->viewport() != painted || !view->model()) {
            return false;
        }
        int rows = 0;
        for (auto row = view->model()->index(0, 0); row.isValid(); row = view->indexBelow(row)) {
            ++rows;
        }
        return rows == m_rows;
    }

    const int m_rows;
};

/*! \brief Makes the object for Qt. */
class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstpaint.json")

public:
    QObject *create(const QString &, const QString &rows) override { return new FirstPaint(rows.toInt()); }
};

#include "firstpaint.moc"
