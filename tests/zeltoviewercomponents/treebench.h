// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreeinodeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreenames.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>
#include <zeltoviewercomponents/featuretree/searchedit.h>

#include <support/memorycollection.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QImage>
#include <QTest>

/*! \brief A feature tree widget in a window, with the look-ups that tests of it need. */
class TreeBench
{
public:
    explicit TreeBench(const QSharedPointer<MemoryCollection> &collection = MemoryCollection::createSample(),
                       GenApi::EVisibility level = GenApi::Guru)
        : widget(QStringLiteral("tree"), {}, nullptr, level)
        , camera(collection)
    {
        widget.resize(500, 700);
        if (camera) {
            add(camera);
        }
        widget.show();
        QApplication::setActiveWindow(&widget);
        view()->expandEverything();
        settle();
    }

    void add(const QSharedPointer<MemoryCollection> &collection)
    {
        widget.addParameterCollection(collection, QStringLiteral("Camera"), collection->name(), false);
    }

    static void settle()
    {
        // A commit, the write in it and the answer to that come one after the other.
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    FeatureTreeView *view() { return widget.treeView(); }
    SearchEdit *box() { return widget.findChild<SearchEdit *>(QStringLiteral("filterEdit")); }
    IFeatureTreeModelExtension *extension() { return widget.getFeatureExtension(); }
    FavoritesData &favorites() { return extension()->GetFavorites(); }

    /*! Returns the row of a feature, or of a category, outside the favorites branch. */
    QModelIndex row(const QString &name)
    {
        return extension()->findItemByFullName(QStringLiteral("@CameraDevice/") + name, nullptr, 0);
    }
    QModelIndex value(const QString &name) { return row(name).siblingAtColumn(1); }
    QModelIndex favorite(const QString &name)
    {
        return extension()->findItemByFullName(QStringLiteral("Fav*CameraDevice*") + name, nullptr, 0);
    }
    QStringList favoriteNames()
    {
        const QModelIndex branch = extension()->GetFavoritesRootIndex();
        QStringList names;
        for (int i = 0; i < view()->model()->rowCount(branch); ++i) {
            names.append(view()->model()->index(i, 0, branch).data().toString());
        }
        return names;
    }
    template <typename Editor>
    Editor *editor(const QString &name)
    {
        return qobject_cast<Editor *>(view()->indexWidget(value(name)));
    }
    template <typename Parameter>
    QSharedPointer<Parameter> parameter(const QString &name)
    {
        return qSharedPointerDynamicCast<Parameter>(camera->parameter(name));
    }

    MemoryNode *node(const QString &name)
    {
        return dynamic_cast<MemoryNode *>(camera->parameter(name).data());
    }
    /*! Publishes the current snapshot, as a camera does that has changed something. */
    void publish(const QString &name)
    {
        emit camera->parameter(name)->parameterDataChangedDecoupled(node(name)->snapshot);
    }

    void click(const QModelIndex &index, Qt::KeyboardModifiers modifiers = {})
    {
        view()->scrollTo(index);
        const QRect cell = view()->visualRect(index);
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers, cell.center());
    }
    void type(const QString &text)
    {
        box()->setFocus();
        QTest::keyClicks(box(), text);
    }
    void erase()
    {
        box()->setFocus();
        while (!box()->text().isEmpty()) {
            QTest::keyClick(box(), Qt::Key_Backspace);
        }
    }
    /*! Returns what is painted in a part of the viewport: what differs from the base, or has that colour. */
    QRect ink(const QRect &part, const QColor &color = QColor())
    {
        const QImage image = view()->viewport()->grab(part).toImage();
        const QRgb base = view()->palette().color(QPalette::Base).rgb();
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                if (color.isValid() ? pixel == color.rgb() : pixel != base) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink.translated(part.topLeft());
    }
    /*! Returns the shown rows, indented, with a mark on expanded and on current ones. */
    QStringList shownRows()
    {
        view()->executeDelayedItemsLayout();
        QStringList rows;
        const QModelIndex first = view()->model()->index(0, 0);
        QModelIndex index = first.isValid() && view()->isRowHidden(0, {}) ? view()->indexBelow(first) : first;
        for (; index.isValid(); index = view()->indexBelow(index)) {
            int depth = 0;
            for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
                ++depth;
            }
            rows.append(
                QString(depth, QLatin1Char(' ')) + index.data().toString()
                + (view()->isExpanded(index) ? QStringLiteral(" -") : QString())
                + (index == view()->currentIndex().siblingAtColumn(0) ? QStringLiteral(" *") : QString()));
        }
        return rows;
    }

    FeatureTreeWidget widget;
    QSharedPointer<MemoryCollection> camera;
};
