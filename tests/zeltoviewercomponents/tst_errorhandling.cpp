// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <platform/core/exception.h>
#include <platform/genicam/genericexception.h>
#include <support/logcapture.h>
#include <zeltoviewercomponents/errorhandling/asyncerrorqueue.h>
#include <zeltoviewercomponents/errorhandling/messagefunctions.h>

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <stdexcept>

class TestErrorHandling : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void messageFunctionsLogAndQueue_data();
    void messageFunctionsLogAndQueue();
    void deliversInOrderFromAnyThread();
    void belongsToTheApplicationsThread();
    void clearedMessagesAreNotDelivered();
    void appendedMessagesWaitForAReport();
    void deadParentBecomesNull();
};

namespace {

AsyncErrorQueue &queue()
{
    return *GetTheGlobalAsyncErrorQueue();
}

using Report = std::function<void()>;

} // namespace

Q_DECLARE_METATYPE(Report)

void TestErrorHandling::initTestCase()
{
    // Every test then uses a queue that a worker asked for first.
    QThread *const thread = QThread::create([] { GetTheGlobalAsyncErrorQueue(); });
    thread->start();
    QVERIFY(thread->wait());
    delete thread;
}

void TestErrorHandling::init()
{
    queue().clear();
    QCoreApplication::processEvents();
}

void TestErrorHandling::messageFunctionsLogAndQueue_data()
{
    QTest::addColumn<Report>("report");
    QTest::addColumn<int>("severity");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("details");
    QTest::addColumn<QString>("logged");
    const QString none;
    const QString euro = QStringLiteral("5 €");

    QTest::newRow("error") << Report([] { showErrorMessage("m", "d"); }) << 20 << "m"
                           << "d" << none;
    QTest::newRow("error without details")
        << Report([] { showErrorMessage("m"); }) << 20 << "m" << none << none;
    QTest::newRow("warning") << Report([] { showWarningMessage("cap", "ctx", "m", QString("d")); }) << 30
                             << "m"
                             << "d"
                             << "2 zelto.viewer.components.errorHandling: Warning: ctx: cap : m";
    QTest::newRow("critical, Latin-1 in the log alone")
        << Report([euro] { showCriticalMessage("cap", "ctx", euro, QString("d")); }) << 10 << euro << "d"
        << "3 zelto.viewer.components.errorHandling: Critical message: ctx : cap : 5 ? : d";
    QTest::newRow("standard exception")
        << Report([] { showException("ctx", std::runtime_error("what")); }) << 10 << "what" << none
        << "3 zelto.viewer.components.errorHandling: Critical message: ctx : Error : what : ";
    QTest::newRow("own exception")
        << Report([] { showException("ctx", Core::Exception::BaseException("own"), QString("d")); }) << 10
        << "own"
        << "d"
        << "3 zelto.viewer.components.errorHandling: Critical message: ctx : Error : own : d";
    QTest::newRow("GenICam exception")
        << Report([] { showException("ctx", GenICam::AccessException("locked")); }) << 10 << "locked" << none
        << "3 zelto.viewer.components.errorHandling: Critical message: ctx : Error : locked : ";
    QTest::newRow("unexpected exception")
        << Report([] { showUnexpectedException("ctx", "m"); }) << 10 << "m" << none
        << "3 zelto.viewer.components.errorHandling: Critical message: ctx : Unexpected exception occurred : "
           "m : ";
    QTest::newRow("percent signs") << Report([] { showWarningMessage("%3", "%2", "%1", QString()); }) << 30
                                   << "%1" << none
                                   << "2 zelto.viewer.components.errorHandling: Warning: %2: %3 : %1";
}

void TestErrorHandling::messageFunctionsLogAndQueue()
{
    QFETCH(const Report, report);
    QFETCH(const int, severity);
    QFETCH(const QString, message);
    QFETCH(const QString, details);
    QFETCH(const QString, logged);
    QSignalSpy spy(&queue(),
                   SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)));
    QStringList entries;
    {
        LogCapture log;
        report();
        entries = log.entries();
    }
    QCOMPARE(entries, logged.isEmpty() ? QStringList() : QStringList(logged));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(queue().count(), size_t(1));
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].value<AsyncErrorQueue::ErrorSeverity>(), AsyncErrorQueue::ErrorSeverity(severity));
    QCOMPARE(spy[0][1].toString(), message);
    QCOMPARE(spy[0][2].toString(), details);
    QCOMPARE(queue().count(), size_t(0));
}

void TestErrorHandling::deliversInOrderFromAnyThread()
{
    QSignalSpy spy(&queue(),
                   SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)));
    QList<QThread *> threads;
    for (int t = 0; t < 4; ++t) {
        threads.append(QThread::create([t] {
            for (int i = 0; i < 100; ++i) {
                showErrorMessage(QString::number(t), QString::number(i));
            }
        }));
        threads.constLast()->start();
    }
    for (QThread *thread : threads) {
        QVERIFY(thread->wait());
        delete thread;
    }
    QTRY_COMPARE(spy.count(), 400);
    QHash<QString, int> next;
    for (const auto &emission : std::as_const(spy)) {
        QCOMPARE(emission[2].toInt(), next[emission[1].toString()]++);
    }
}

void TestErrorHandling::belongsToTheApplicationsThread()
{
    QCOMPARE(queue().thread(), qApp->thread());
    QThread *delivered = nullptr;
    connect(&queue(), &AsyncErrorQueue::displayError, this,
            [&delivered] { delivered = QThread::currentThread(); });
    QThread *const thread = QThread::create([] { showErrorMessage(QStringLiteral("from a worker")); });
    thread->start();
    QVERIFY(thread->wait());
    delete thread;
    QTRY_COMPARE(delivered, qApp->thread());
    disconnect(&queue(), nullptr, this, nullptr);
}

void TestErrorHandling::clearedMessagesAreNotDelivered()
{
    QSignalSpy spy(&queue(),
                   SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)));
    showErrorMessage(QStringLiteral("gone"));
    queue().clear();
    showErrorMessage(QStringLiteral("kept"));
    QTRY_COMPARE(spy.count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][1].toString(), QStringLiteral("kept"));
}

void TestErrorHandling::appendedMessagesWaitForAReport()
{
    AsyncErrorQueue own;
    QSignalSpy spy(&own, SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)));
    QVERIFY(own.append(AsyncErrorQueue::Error, QStringLiteral("first"), QString(), nullptr));
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
    QVERIFY(own.reportErrorAsync(AsyncErrorQueue::Error, QStringLiteral("second"), QString(), nullptr));
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy[0][1].toString(), QStringLiteral("first"));
}

void TestErrorHandling::deadParentBecomesNull()
{
    QSignalSpy spy(&queue(),
                   SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *)));
    QWidget alive;
    auto *const dying = new QWidget;
    showErrorMessage(QStringLiteral("a"), &alive);
    showErrorMessage(QStringLiteral("b"), dying);
    delete dying;
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy[0][3].value<QWidget *>(), &alive);
    QCOMPARE(spy[1][3].value<QWidget *>(), nullptr);
}

QTEST_MAIN(TestErrorHandling)
#include "tst_errorhandling.moc"
