// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <viewer/mainwindow.h>

#include <zeltoviewercomponents/featuretree/favoritesdata.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/ifeaturetreemodelextension.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QSettings>
#include <QTest>
#include <QTextStream>

#include <utility>

namespace {

constexpr int kept = 5; // favorites at a time
constexpr int lostTime = 2000; // ms, at most, of what was changed
constexpr int patience = 3000; // ms more, where other tests keep disk and processors busy
constexpr int moments = 6; // unless ZELTO_MOMENTS says how many

int levelAt(int change)
{
    return change / 40 % 3;
}

int numberOf(const QString &favorite)
{
    return favorite.section(u'*', 0, 0).mid(1).toInt();
}

} // namespace

/* What is left in the settings by a viewer that is killed at any moment. */
class TestKilledViewer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void leavesWholeSettings_data();
    void leavesWholeSettings();
};

void TestKilledViewer::initTestCase()
{
    QSettings settings;
    settings.clear();
    settings.setValue("Other/Untouched", "whole");
}

void TestKilledViewer::leavesWholeSettings_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<bool>("locksAreLeft"); // by one that was killed before it wrote its name into them
    QTest::newRow("with locks left behind") << 7000 << true;
    bool isSet = false;
    const int wanted = qEnvironmentVariableIntValue("ZELTO_MOMENTS", &isSet);
    for (int i = 0; i < (isSet ? wanted : moments); ++i) {
        const int moment = QRandomGenerator::global()->bounded(i % 2 == 0 ? 300 : 7000);
        QTest::addRow("%d: %d ms", i, moment) << moment << false;
    }
}

void TestKilledViewer::leavesWholeSettings()
{
    QFETCH(int, moment);
    QFETCH(bool, locksAreLeft);
    QSettings().remove("MainWindow/Level"); // of the one before
    for (const char *const name : {".lock", ".favorites.lock"}) {
        QFile lock(QSettings().fileName() + QLatin1String(name));
        QVERIFY(!locksAreLeft || lock.open(QFile::WriteOnly));
    }
    QProcess viewer;
    viewer.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    viewer.start(QCoreApplication::applicationFilePath(), {"--change"});
    QElapsedTimer time;
    QList<std::pair<qint64, int>> changes;
    QVERIFY(viewer.waitForReadyRead(30000));
    time.start();
    while (time.elapsed() < moment) {
        viewer.waitForReadyRead(5);
        while (viewer.canReadLine()) {
            changes.append({time.elapsed(), viewer.readLine().trimmed().toInt()});
        }
    }
    const qint64 end = time.elapsed();
    viewer.kill();
    QVERIFY(viewer.waitForFinished());
    const int allowed = qEnvironmentVariableIsSet("ZELTO_MOMENTS") ? lostTime : lostTime + patience;
    int due = 0; // the last change that must not be lost
    QSet<int> levels; // since then
    for (const auto &[when, change] : std::as_const(changes)) {
        if (when < end - allowed) {
            due = change;
            levels.clear();
        }
        levels.insert(levelAt(change));
    }
    const QSettings settings;
    QCOMPARE(settings.status(), QSettings::NoError);
    QCOMPARE(settings.value("Other/Untouched").toString(), "whole");
    const int count = settings.value("Favorites/NumberOfEntries").toInt();
    QVERIFY(count <= kept);
    int last = 0;
    for (int i = 0; i < count; ++i) { // one list, not a mixture of two
        const int number = numberOf(settings.value("Favorites/" + QString::number(i)).toString());
        QVERIFY(number > 0 && (last == 0 || number == last + 1));
        last = number;
    }
    QVERIFY2(last >= due, qPrintable(QString("%1 stored, %2 due").arg(last).arg(due)));
    QVERIFY(due == 0 || levels.contains(settings.value("MainWindow/Level", -1).toInt()));
}

// Changes favorites and the window's look until it is killed, and says which change was made.
static int changeForever()
{
    MainWindow window;
    window.showCamera({}, cameraAt({}));
    window.show();
    FeatureTreeWidget &tree = *window.featureTree();
    FavoritesData &favorites = tree.getFeatureExtension()->GetFavorites();
    while (favorites.count() > 0) {
        favorites.removeEntry(0);
    }
    QTextStream out(stdout);
    for (int change = 1; change < 100000; ++change) {
        const QString name = QStringLiteral("F%1").arg(change);
        favorites.appendEntry({name, name, QStringLiteral("@CameraDevice")});
        if (favorites.count() > kept) {
            favorites.removeEntry(0);
        }
        tree.onVisibilityChanged(levelAt(change));
        window.resize(800 + change % 100, 600);
        out << change << Qt::endl;
        QTest::qWait(10);
    }
    return 0;
}

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("ZeltoTest");
    QCoreApplication::setApplicationName("tst_killedviewer");
    if (argc == 2 && qstrcmp(argv[1], "--change") == 0) {
        return changeForever();
    }
    if (qEnvironmentVariableIsSet("ZELTO_MOMENTS")) {
        qputenv("QTEST_FUNCTION_TIMEOUT", "36000000"); // ms; all moments are one test function
    }
    TestKilledViewer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_killedviewer.moc"
