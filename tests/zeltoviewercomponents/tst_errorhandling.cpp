// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <platform/core/exception.h>
#include <platform/genicam/genericexception.h>
#include <support/logcapture.h>
#include <support/table.h>
#include <zeltoviewercomponents/errorhandling/asyncerrorqueue.h>
#include <zeltoviewercomponents/errorhandling/messagefunctions.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <functional>
#include <stdexcept>
#include <thread>

class TestErrorHandling : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void messageFunctionsLogAndQueue_data();
    void messageFunctionsLogAndQueue();
    void deliversInOrderFromAnyThread();
    void clearedMessagesAreNotDelivered();
    void appendedMessagesAreDelivered();
    void deadParentBecomesNull();
};

namespace {

const char *const displayError =
    SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget *));

AsyncErrorQueue &queue()
{
    return *GetTheGlobalAsyncErrorQueue();
}

void runInThreads(int count, const std::function<void(int)> &work)
{
    QList<QThread *> threads;
    for (int i = 0; i < count; ++i) {
        threads.append(QThread::create([&work, i] { work(i); }));
        threads.constLast()->start();
    }
    for (QThread *thread : std::as_const(threads)) {
        QVERIFY(thread->wait());
        delete thread;
    }
}

using Report = std::function<void()>;

} // namespace

Q_DECLARE_METATYPE(Report)

void TestErrorHandling::initTestCase()
{
    // Every test uses a queue that a worker asked for before there was an application; see main().
    QSignalSpy spy(&queue(), displayError);
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy[0][1].toString(), "early");
    QCOMPARE(spy[1][1].toString(), "later");
}

void TestErrorHandling::init()
{
    queue().clear();
    QCoreApplication::processEvents();
}

void TestErrorHandling::messageFunctionsLogAndQueue_data()
{
    columns<Report, int, QString, QString, QString>({"report", "severity", "message", "details", "logged"});
    const QString critical = "3 zelto.viewer.components.errorHandling: Critical message: ctx : ";
    const auto rowOf = [](const char *name, const Report &report, int severity, const QString &message,
                          const QString &details,
                          const QString &logged) { row(name, report, severity, message, details, logged); };
    rowOf(
        "error", [] { showErrorMessage("m", "d"); }, 20, "m", "d", "");
    rowOf(
        "error without details", [] { showErrorMessage("m"); }, 20, "m", "", "");
    rowOf(
        "warning", [] { showWarningMessage("cap", "ctx", "m", QString("d")); }, 30, "m", "d",
        "2 zelto.viewer.components.errorHandling: Warning: ctx: cap : m");
    rowOf(
        "percent signs", [] { showWarningMessage("%3", "%2", "%1", QString()); }, 30, "%1", "",
        "2 zelto.viewer.components.errorHandling: Warning: %2: %3 : %1");
    rowOf(
        "critical, Latin-1 in the log alone", [] { showCriticalMessage("cap", "ctx", "5 €", QString("d")); },
        10, "5 €", "d", critical + "cap : 5 ? : d");
    rowOf(
        "standard exception", [] { showException("ctx", std::runtime_error("what")); }, 10, "what", "",
        critical + "Error : what : ");
    rowOf(
        "own exception", [] { showException("ctx", Core::Exception::BaseException("own"), QString("d")); },
        10, "own", "d", critical + "Error : own : d");
    rowOf(
        "GenICam exception", [] { showException("ctx", GenICam::AccessException("locked")); }, 10, "locked",
        "", critical + "Error : locked : ");
    rowOf(
        "unexpected exception", [] { showUnexpectedException("ctx", "m"); }, 10, "m", "",
        critical + "Unexpected exception occurred : m : ");
}

void TestErrorHandling::messageFunctionsLogAndQueue()
{
    QFETCH(const Report, report);
    QFETCH(const int, severity);
    QFETCH(const QString, logged);
    QSignalSpy spy(&queue(), displayError);
    {
        LogCapture log;
        report();
        QCOMPARE(log.entries(), logged.isEmpty() ? QStringList() : QStringList(logged));
    }
    QCOMPARE(spy.count(), 0);
    QCOMPARE(queue().count(), size_t(1));
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].value<AsyncErrorQueue::ErrorSeverity>(), AsyncErrorQueue::ErrorSeverity(severity));
    QTEST(spy[0][1].toString(), "message");
    QTEST(spy[0][2].toString(), "details");
    QCOMPARE(queue().count(), size_t(0));
}

void TestErrorHandling::deliversInOrderFromAnyThread()
{
    QSignalSpy spy(&queue(), displayError);
    bool isOwnThread = true;
    const auto connection = connect(&queue(), &AsyncErrorQueue::displayError, &queue(), [&isOwnThread] {
        isOwnThread = isOwnThread && QThread::currentThread() == qApp->thread();
    });
    runInThreads(4, [](int thread) {
        for (int i = 0; i < 100; ++i) {
            showErrorMessage(QString::number(thread), QString::number(i));
        }
    });
    QTRY_COMPARE(spy.count(), 400);
    disconnect(connection);
    QVERIFY(isOwnThread);
    QHash<QString, int> next;
    for (const auto &emission : std::as_const(spy)) {
        QCOMPARE(emission[2].toInt(), next[emission[1].toString()]++);
    }
}

void TestErrorHandling::clearedMessagesAreNotDelivered()
{
    QSignalSpy spy(&queue(), displayError);
    showErrorMessage("gone");
    queue().clear();
    showErrorMessage("kept");
    QTRY_COMPARE(spy.count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][1].toString(), "kept");
}

void TestErrorHandling::appendedMessagesAreDelivered()
{
    AsyncErrorQueue own;
    QSignalSpy spy(&own, displayError);
    QVERIFY(own.append(AsyncErrorQueue::Error, "first", QString(), nullptr));
    QVERIFY(own.reportErrorAsync(AsyncErrorQueue::Error, "second", QString(), nullptr));
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy[0][1].toString(), "first");
}

void TestErrorHandling::deadParentBecomesNull()
{
    QSignalSpy spy(&queue(), displayError);
    QWidget alive;
    auto *const dying = new QWidget;
    showErrorMessage("a", &alive);
    showErrorMessage("b", dying);
    delete dying;
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy[0][3].value<QWidget *>(), &alive);
    QCOMPARE(spy[1][3].value<QWidget *>(), nullptr);
}

/* Has workers, which end, report before there is an application. */
int main(int argc, char **argv)
{
    for (const char *const text : {"early", "later"}) {
        std::thread([text] { showErrorMessage(QString::fromLatin1(text), nullptr); }).join();
    }
    QApplication application(argc, argv);
    TestErrorHandling test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_errorhandling.moc"
