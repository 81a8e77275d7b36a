// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "treebench.h"

#include <QObject>
#include <QSettings>
#include <QStringList>
#include <QTest>

/*! \brief Base of the tests of the whole widget: each begins without settings and favorites, and fails when
 * Qt warns of anything. The library's own log categories are left to the tests that expect them. */
class FeatureTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings().clear();
        warnings().clear();
        previousHandler() = qInstallMessageHandler(handleMessage);
    }

    void cleanup()
    {
        {
            TreeBench bench(nullptr);
            while (bench.favorites().count() > 0) {
                bench.favorites().removeEntry(0);
            }
            bench.favorites().setViewAll(false);
            bench.favorites().setExpanded(true);
        }
        qInstallMessageHandler(previousHandler());
        QCOMPARE(warnings(), QStringList());
    }

protected:
    static QSharedPointer<MemoryCollection> flatCamera(int features)
    {
        auto camera = QSharedPointer<MemoryCollection>::create();
        camera->addCategory(QStringLiteral("Many"));
        for (int i = 0; i < features; ++i) {
            camera->addBoolean(QStringLiteral("Flag%1").arg(i), QStringLiteral("Many"));
        }
        return camera;
    }

private:
    static QStringList &warnings()
    {
        static QStringList texts;
        return texts;
    }
    static QtMessageHandler &previousHandler()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
    static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (message.contains(QLatin1String("This plugin does not support"))) {
            return; // the offscreen platform complains of itself
        }
        if (type != QtDebugMsg && type != QtInfoMsg && !QByteArray(context.category).startsWith("zelto")) {
            warnings().append(message);
        }
        previousHandler()(type, context, message);
    }
};
