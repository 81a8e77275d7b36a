// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/table.h>
#include <zeltoviewercomponents/featuretree/favoritesdata.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QThread>
#include <QTreeWidget>

#include <array>
#include <memory>

namespace {

const QString group = "Favorites";

/* As the process-wide store is: made before main(), destroyed after the application. */
FavoritesData staticStore;

FavoriteEntry favorite(const QString &name, const QString &nodeMap = "@CameraDevice")
{
    return {name, name + " shown", nodeMap};
}

void fill(FavoritesData &data, const QString &names)
{
    for (const QChar name : names) {
        QVERIFY(data.appendEntry(favorite(QString(name))));
    }
}

QString names(const FavoritesData &data)
{
    QString all;
    for (int i = 0; i < data.count(); ++i) {
        all += data.entryAt(i)->featureName;
    }
    return all;
}

/* Does what stands in words: "+x" adds x at the end, "-x" removes it, "=x2" moves it before the row 2. */
void change(FavoritesData &data, const QString &changes)
{
    const QStringList words = changes.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QString name = word.startsWith(u'=') ? word.mid(1, 1) : word.mid(1);
        if (word.startsWith(u'+')) {
            data.appendEntry(favorite(name));
        } else if (word.startsWith(u'-')) {
            data.removeEntry(data.indexOfEntry(favorite(name)));
        } else if (word.startsWith(u'=')) {
            data.moveEntry(data.indexOfEntry(favorite(name)), word.mid(2).toInt());
        }
    }
}

void useSettingsBelow(const QString &path)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, path);
}

QByteArray fileContents()
{
    QFile file(QSettings().fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVariant stored(const QString &key, const QString &from = group)
{
    return QSettings().value(from + QLatin1Char('/') + key);
}

void store(const QString &key, const QVariant &value, const QString &to = group)
{
    QSettings().setValue(to + QLatin1Char('/') + key, value);
}

QStringList storedKeys()
{
    QSettings settings;
    settings.beginGroup(group);
    QStringList keys = settings.childKeys();
    keys.sort();
    return keys;
}

} // namespace

/* What a view is to the store. */
class Listener : public QObject
{
    Q_OBJECT

public:
    explicit Listener(FavoritesData &data)
    {
        connect(&data, SIGNAL(dataUpdated()), this, SLOT(onFavoriteDataUpdated()));
        connect(&data, SIGNAL(expanded(bool)), this, SLOT(onFavoriteDataExpanded(bool)));
    }

    int updates = 0;
    QList<bool> expansions;

public slots:
    void onFavoriteDataUpdated() { ++updates; }
    void onFavoriteDataExpanded(bool expanded) { expansions.append(expanded); }
};

class TestFavoritesData : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void insert_data();
    void insert();
    void sameFavorite();
    void takeAndRemove();
    void move_data();
    void move();
    void deferredUpdates();
    void flagsSignalTheirChanges();
    void persistentForm();
    void shorterListLeavesNothingBehind();
    void missingFlags();
    void namesSurviveStoring_data();
    void namesSurviveStoring();
    void damagedSettings_data();
    void damagedSettings();
    void firstGroupIsJoined();
    void anotherGroupIsLoadedBeforeItIsSaved();
    void detachSavesAndDisconnects();
    void destructionSaves();
    void saveTellsWhetherItWrote_data();
    void saveTellsWhetherItWrote();
    void closingWithoutAChangeWritesNothing();
    void vanishedSettingsRemoveNothing();
    void twoPrograms_data();
    void twoPrograms();
    void othersWaitForWhatIsBeingTyped();
    void manyProgramsAtOnce();
    void storesBehindTheUser();

private:
    std::unique_ptr<QProcess> startOther(const QString &changes, const QString &mode = {});

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFavoritesData::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    useSettingsBelow(m_folder->filePath("none yet/config"));
}

void TestFavoritesData::cleanup()
{
    QCoreApplication::setOrganizationName("zelto");
    useSettingsBelow(qEnvironmentVariable("XDG_CONFIG_HOME"));
}

void TestFavoritesData::insert_data()
{
    columns<int, QString, QString>({"position", "name", "expected"}); // nothing expected: refused
    row("front", 0, "x", "xabc");
    row("end", 3, "x", "abcx");
    row("beyond the end", 4, "x", "");
    row("before the last", -1, "x", "abxc");
    row("from the end to the front", -3, "x", "xabc");
    row("before the front", -4, "x", "");
    row("far before the front", std::numeric_limits<int>::min(), "x", "");
    row("no name", 0, "", "");
    row("there already", 0, "b", "");
}

void TestFavoritesData::insert()
{
    QFETCH(int, position);
    QFETCH(QString, name);
    QFETCH(QString, expected);
    FavoritesData data;
    fill(data, "abc");
    const QSignalSpy updates(&data, SIGNAL(dataUpdated()));
    const bool accepted = data.insertEntry(position, favorite(name));
    QCOMPARE(accepted, !expected.isEmpty());
    QCOMPARE(updates.count(), accepted ? 1 : 0);
    QCOMPARE(names(data), accepted ? expected : "abc");
}

void TestFavoritesData::sameFavorite()
{
    FavoritesData data;
    QVERIFY(data.appendEntry(favorite("Gain")));
    QVERIFY(data.appendEntry(favorite("gain")));
    QVERIFY(data.appendEntry(favorite("Gain", "@Other")));
    FavoriteEntry renamed = favorite("gain");
    renamed.displayName = "otherwise";
    QCOMPARE(data.indexOfEntry(renamed), 1);
    QCOMPARE(data.indexOfEntry(favorite("Gain", "@Other")), 2);
    QCOMPARE(data.indexOfEntry(favorite("Gain", "@other")), -1);
}

void TestFavoritesData::takeAndRemove()
{
    FavoritesData data;
    fill(data, "abcd");
    const QSignalSpy updates(&data, SIGNAL(dataUpdated()));
    FavoriteEntry taken;
    QVERIFY(data.takeEntry(1, &taken));
    QCOMPARE(taken.displayName, "b shown");
    QVERIFY(data.takeEntry(2));
    QVERIFY(!data.takeEntry(2, &taken));
    QVERIFY(!data.takeEntry(-1));
    QVERIFY(!data.removeEntry(2));
    QCOMPARE(taken.featureName, "b");
    QCOMPARE(updates.count(), 0);
    QVERIFY(data.removeEntry(0));
    QCOMPARE(updates.count(), 1);
    QCOMPARE(names(data), "c");
    QVERIFY(!data.entryAt(1));
    QVERIFY(!data.entryAt(-1));
}

void TestFavoritesData::move_data()
{
    columns<int, int, QString>({"from", "to", "expected"}); // nothing expected: refused
    row("one up", 2, 1, "acbd");
    row("one down", 1, 3, "acbd");
    row("to the end", 0, 4, "bcda");
    row("to the front", 3, 0, "dabc");
    row("before itself", 1, 1, "abcd");
    row("before its successor", 1, 2, "abcd");
    row("beyond the end", 0, 5, "");
    row("the last beyond the end", 3, 5, "");
    row("from the end of the others", 3, -1, "abdc");
    row("from the end to the front", 3, -3, "dabc");
    row("before the front", 3, -4, "");
    row("no such entry", 4, 0, "");
    row("negative entry", -1, 2, "");
    row("negative entry to the front", -1, 0, "");
    row("extremes", std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), "");
    row("other extremes", std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), "");
}

void TestFavoritesData::move()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, expected);
    FavoritesData data;
    fill(data, "abcd");
    QStringList seen;
    connect(&data, &FavoritesData::dataUpdated, this, [&] { seen.append(names(data)); });
    const bool moved = data.moveEntry(from, to);
    QCOMPARE(moved, !expected.isEmpty());
    QCOMPARE(names(data), moved ? expected : "abcd");
    // Nobody is shown the list without the entry on its way.
    QCOMPARE(seen, moved ? QStringList({expected, expected}) : QStringList());
}

void TestFavoritesData::deferredUpdates()
{
    FavoritesData data;
    const QSignalSpy updates(&data, SIGNAL(dataUpdated()));
    data.setDeferredUpdates(true);
    fill(data, "abc");
    QVERIFY(data.moveEntry(0, 3));
    QVERIFY(data.removeEntry(0));
    data.setViewAll(false);
    QCOMPARE(updates.count(), 0);
    data.setDeferredUpdates(false);
    QCOMPARE(updates.count(), 1);
    data.setDeferredUpdates(false);
    data.setDeferredUpdates(true);
    QVERIFY(!data.moveEntry(0, 7));
    data.setDeferredUpdates(false);
    QCOMPARE(updates.count(), 1);
}

void TestFavoritesData::flagsSignalTheirChanges()
{
    FavoritesData data;
    const Listener listener(data);
    QVERIFY(data.viewAll());
    QVERIFY(!data.isExpanded());
    data.setDeferredUpdates(true);
    data.setExpanded(true);
    data.setExpanded(true);
    QCOMPARE(listener.expansions, QList<bool>({true}));
    data.setDeferredUpdates(false);
    QCOMPARE(listener.updates, 0);
    data.setViewAll(true);
    data.setViewAll(false);
    data.setViewAll(false);
    QCOMPARE(listener.updates, 1);
}

void TestFavoritesData::persistentForm()
{
    FavoritesData data;
    fill(data, "ab");
    QVERIFY(data.appendEntry(favorite("c", QString())));
    fill(data, "d");
    QVERIFY(data.appendEntry({"e", QString(), "@CameraDevice"}));
    QVERIFY(!data.save(QString()));
    QVERIFY(data.save(group));
    QCOMPARE(storedKeys(),
             QStringList({"0", "1", "3", "4", "Expanded", "NumberOfEntries", "Version", "ViewAll"}));
    QCOMPARE(stored("Version").toString(), "3");
    QCOMPARE(stored("NumberOfEntries").toString(), "5");
    QCOMPARE(stored("1").toString(), "b*b shown*@CameraDevice");
    QCOMPARE(stored("ViewAll").toString(), "1");
    QCOMPARE(stored("Expanded").toString(), "0");

    FavoritesData loaded;
    const QSignalSpy updates(&loaded, SIGNAL(dataUpdated()));
    QVERIFY(!loaded.load(QString()));
    QVERIFY(loaded.load(group));
    QCOMPARE(names(loaded), "abde");
    QCOMPARE(loaded.entryAt(3)->displayName, "e");
    QCOMPARE(loaded.entryAt(3)->nodeMapKey, "@CameraDevice");
    QCOMPARE(updates.count(), 5);
    QVERIFY(loaded.viewAll());
    QVERIFY(!loaded.isExpanded());
}

void TestFavoritesData::shorterListLeavesNothingBehind()
{
    FavoritesData data;
    fill(data, "abcdefghijklmn");
    QVERIFY(data.save(group));
    while (data.count() > 3) {
        QVERIFY(data.removeEntry(3));
    }
    // An entry that cannot be stored does not bring back an older one at its place.
    QVERIFY(data.removeEntry(1));
    QVERIFY(data.insertEntry(1, favorite("x", QString())));
    store("NumberOfEntries", "9223372036854775807");
    QElapsedTimer timer;
    timer.start();
    QVERIFY(data.save(group));
    QVERIFY(timer.elapsed() < 2000);
    QCOMPARE(storedKeys(), QStringList({"0", "2", "Expanded", "NumberOfEntries", "Version", "ViewAll"}));
    QCOMPARE(stored("NumberOfEntries").toInt(), 3);
}

void TestFavoritesData::missingFlags()
{
    FavoritesData data;
    const Listener listener(data);
    QVERIFY(data.load(group));
    QCOMPARE(data.viewAll(), false);
    QCOMPARE(data.isExpanded(), true);
    QCOMPARE(listener.expansions, QList<bool>({true}));
    QCOMPARE(listener.updates, 1);
    QCOMPARE(data.count(), 0);
}

void TestFavoritesData::namesSurviveStoring_data()
{
    columns<QString, bool>({"name", "survives"});
    row("place marker", "%1%2%3", true);
    row("comma, semicolon, quotes", "a, b; \"c\" = \\d", true);
    row("at sign first", "@Variant(x)", true);
    row("not Latin", "Vérstärkung 増幅 \xF0\x9F\x93\xB7", true);
    row("line ends", "a\nb\r\tc", true);
    row("blanks around", "  a  ", true);
    row("separator", "a*b", false);
}

void TestFavoritesData::namesSurviveStoring()
{
    QFETCH(QString, name);
    QFETCH(bool, survives);
    FavoritesData data;
    QVERIFY(data.appendEntry({name, name, name}));
    QVERIFY(data.save(group));
    FavoritesData loaded;
    QVERIFY(loaded.load(group));
    QCOMPARE(loaded.count(), survives ? 1 : 0);
    QCOMPARE(loaded.indexOfEntry({name, name, name}), survives ? 0 : -1);
    QCOMPARE(survives ? loaded.entryAt(0)->displayName : name, name);
}

void TestFavoritesData::damagedSettings_data()
{
    columns<QVariant, QVariantMap, QString>({"count", "entries", "expected"});
    const QVariantMap ab{{"0", "a*A*@C"}, {"1", "b*B*@C"}};
    row("count missing", QVariant(), ab, "");
    row("count no number", QVariant("many"), ab, "");
    row("count negative", QVariant(-1), ab, "");
    row("count too small", QVariant(1), ab, "a");
    row("count 2^31 - 1", QVariant(2147483647), ab, "ab");
    row("count 2^31", QVariant("2147483648"), ab, "ab");
    row("count 2^63 - 1", QVariant("9223372036854775807"), ab, "ab");
    row("keys missing", QVariant(9), QVariantMap{{"3", "d*D*@C"}, {"8", "i*I*@C"}}, "di");
    row("ten after nine", QVariant(11), QVariantMap{{"10", "k*K*@C"}, {"9", "j*J*@C"}, {"2", "c*C*@C"}},
        "cjk");
    row("other spellings of numbers", QVariant(9),
        QVariantMap{{"00", "x*X*@C"}, {"+1", "y*Y*@C"}, {"-1", "z*Z*@C"}, {"2", "c*C*@C"}}, "c");
    row("parts", QVariant(9),
        QVariantMap{
            {"0", ""}, {"1", "a*A"}, {"2", "b*B*@C*more"}, {"3", "***"}, {"4", "c**@C"}, {"5", "**d*D**@C*"}},
        "d");
    row("duplicates", QVariant(3), QVariantMap{{"0", "a*A*@C"}, {"1", "a*B*@C"}, {"2", "b*A*@C"}}, "ab");
    row("a list", QVariant(2), QVariantMap{{"0", QStringList{"a*A*@C", "b"}}, {"1", "b*B*@C"}}, "b");
    QVariantMap many;
    QString manyNames;
    for (int i = 0; i < 40000; ++i) {
        const QChar name(0x4e00 + i / 2); // each twice
        many.insert(QString::number(i), name + QString("*x*@C"));
        manyNames += i % 2 == 0 ? QString(name) : QString();
    }
    row("40,000", QVariant(40000), many, manyNames);
    row("huge text", QVariant(2), QVariantMap{{"0", QString(5000000, u'x') + "*A*@C"}, {"1", "b*B*@C"}}, "b");
}

void TestFavoritesData::damagedSettings()
{
    QFETCH(QVariant, count);
    QFETCH(QVariantMap, entries);
    QFETCH(QString, expected);
    if (count.isValid()) {
        store("NumberOfEntries", count);
    }
    QSettings settings;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        settings.setValue(group + u'/' + entry.key(), entry.value());
    }
    FavoritesData data;
    QVERIFY(data.load(group));
    QCOMPARE(names(data), expected);
}

void TestFavoritesData::firstGroupIsJoined()
{
    store("NumberOfEntries", 1, "Other");
    store("0", "b*B*@C", "Other");
    for (const bool isAttached : {true, false}) {
        store("NumberOfEntries", 1);
        store("0", "a*A*@C");
        FavoritesData data;
        fill(data, "x");
        isAttached ? data.attach(group) : data.setSettingsGroup(group);
        QCOMPARE(data.settingsGroup(), group);
        QCOMPARE(names(data), "xa");
        QTRY_COMPARE(stored("NumberOfEntries").toInt(), 2);
        // Another group's entries are additions as any other.
        QVERIFY(data.load("Other"));
        data.detach(nullptr);
        QCOMPARE(stored("2").toString(), "b*B*@C");
        data.attach(group);
        data.attach("Other");
        QCOMPARE(data.settingsGroup(), group);
    }
}

void TestFavoritesData::anotherGroupIsLoadedBeforeItIsSaved()
{
    const QString other = "Other/Favorites";
    store("NumberOfEntries", 2, other);
    store("0", "x*X*@C", other);
    store("1", "y*Y*@C", other);
    store("ViewAll", 1, other);

    FavoritesData data;
    data.attach(group);
    fill(data, "abc");
    const Listener listener(data);
    data.setDeferredUpdates(true);
    data.setSettingsGroup(other);
    QCOMPARE(listener.updates, 0);
    data.setDeferredUpdates(false);
    QCOMPARE(names(data), "xy");
    QVERIFY(data.viewAll());
    QCOMPARE(listener.updates, 1);
    data.setSettingsGroup(other);
    QCOMPARE(listener.updates, 1);
    // Where nothing is stored, the entries stay.
    data.setSettingsGroup("New");
    QCOMPARE(names(data), "xy");
    data.detach(nullptr);
    QCOMPARE(stored("1", "New").toString(), "y*Y*@C");
    // The change that was still to be saved went to the group it belonged to.
    QCOMPARE(stored("NumberOfEntries").toInt(), 3);
    QCOMPARE(stored("2").toString(), "c*c shown*@CameraDevice");
    QCOMPARE(stored("NumberOfEntries", other).toInt(), 2);
    QCOMPARE(stored("0", other).toString(), "x*X*@C");
}

void TestFavoritesData::detachSavesAndDisconnects()
{
    FavoritesData data;
    data.attach(group);
    Listener leaving(data);
    const Listener staying(data);
    data.setDeferredUpdates(true);
    fill(data, "a");
    data.detach(&leaving);
    QCOMPARE(stored("0").toString(), "a*a shown*@CameraDevice");
    data.setDeferredUpdates(false);
    data.setExpanded(!data.isExpanded());
    QCOMPARE(leaving.updates, 0);
    QVERIFY(leaving.expansions.isEmpty());
    QCOMPARE(staying.updates, 1);
    QCOMPARE(staying.expansions.size(), 1);
}

void TestFavoritesData::destructionSaves()
{
    {
        FavoritesData data;
        data.attach(group);
        fill(data, "a");
    }
    QCOMPARE(stored("NumberOfEntries").toInt(), 1);
}

void TestFavoritesData::saveTellsWhetherItWrote_data()
{
    columns<QString, bool, bool>({"organization", "isFolderUsable", "written"});
    row("with an organization", "zelto", true, true);
    row("without an organization", "", true, true);
    row("no folder", "zelto", false, false);
    row("without an organization, no folder", "", false, false);
}

void TestFavoritesData::saveTellsWhetherItWrote()
{
    QFETCH(QString, organization);
    QFETCH(bool, isFolderUsable);
    if (!isFolderUsable) { // not by permissions, which do not stop everybody
        QFile file(m_folder->filePath("none yet"));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCoreApplication::setOrganizationName(organization);
    FavoritesData data;
    fill(data, "a");
    QTEST(data.save(group), "written");
    QCOMPARE(fileContents().contains("0=a*a shown*@CameraDevice"), isFolderUsable);
}

void TestFavoritesData::closingWithoutAChangeWritesNothing()
{
    {
        FavoritesData fresh;
        fresh.attach(group);
        fresh.detach(nullptr);
    }
    QVERIFY(!QFile::exists(m_folder->filePath("none yet")));
    store("NumberOfEntries", 1);
    store("0", "a*A*@C");
    QSettings().sync();
    {
        FavoritesData data;
        data.attach(group);
        QFile file(QSettings().fileName());
        QVERIFY(file.open(QIODevice::Append) && file.write("; of somebody else\n") > 0);
        file.close();
        data.detach(nullptr);
    }
    QVERIFY(fileContents().endsWith("; of somebody else\n"));
}

void TestFavoritesData::vanishedSettingsRemoveNothing()
{
    FavoritesData data;
    data.attach(group);
    fill(data, "ab");
    QCoreApplication::processEvents();
    const QSignalSpy updates(&data, SIGNAL(dataUpdated()));
    data.detach(nullptr);
    QVERIFY(QFile::remove(QSettings().fileName()));
    QTest::qWait(300);
    QCOMPARE(names(data), "ab");
    QCOMPARE(updates.count(), 0);
    QVERIFY(data.appendEntry(favorite("c")));
    QTRY_COMPARE(stored("NumberOfEntries").toInt(), 3);
}

// Starts this program with the same settings; see other() below.
std::unique_ptr<QProcess> TestFavoritesData::startOther(const QString &changes, const QString &mode)
{
    auto process = std::make_unique<QProcess>();
    process->start(QCoreApplication::applicationFilePath(),
                   {"--other", m_folder->filePath("none yet/config"), changes, mode});
    process->waitForStarted();
    return process;
}

void TestFavoritesData::twoPrograms_data()
{
    columns<QString, QString, QString, QString>({"before", "ours", "theirs", "expected"});
    row("nothing before", "", "+x", "+y", "yx");
    row("added by both", "ab", "+x", "+y", "abyx");
    row("the same added", "ab", "+x", "+x", "abx");
    row("added and removed", "abc", "+x", "-b", "acx");
    row("removed and added", "abc", "-b", "+y", "acy");
    row("the same removed", "abc", "-b", "-b", "ac");
    row("all removed", "abc", "-a -b -c", "+y", "y");
    row("moved up", "abc", "=c0", "+y", "caby");
    row("moved down", "abc", "=a2", "+y", "bacy");
    row("moved behind the last", "abc", "=a3", "+y", "bcay");
    row("moved, but removed there", "abc", "=c0 +x", "-c", "abx");
    row("moved beside what was removed", "abc", "=a2", "-b -c", "a");
    row("both moved", "abcd", "=a2", "=d2", "bdac");
    row("theirs alone", "abc", "", "=c0 -a +y", "cby");
    row("ours alone", "abc", "=c0 -a +x", "", "cbx");
}

void TestFavoritesData::twoPrograms()
{
    QFETCH(QString, before);
    QFETCH(QString, ours);
    QFETCH(QString, theirs);
    QFETCH(QString, expected);
    if (!before.isEmpty()) {
        FavoritesData data;
        fill(data, before);
        QVERIFY(data.save(group));
    }
    FavoritesData data;
    data.attach(group);
    const Listener listener(data);
    const bool wasExpanded = data.isExpanded();
    const auto other = startOther(theirs, "stay");
    QVERIFY(other->waitForReadyRead()); // without an event loop here: nothing is known here of their changes
    QCOMPARE(names(data), before);
    change(data, ours);
    QTRY_COMPARE(names(data), expected);
    QByteArray shown = other->readAllStandardOutput();
    QTRY_VERIFY2((shown += other->readAllStandardOutput()).endsWith(expected.toUtf8() + '\n'),
                 shown.constData());
    QTRY_COMPARE(stored("NumberOfEntries").toInt(), expected.size());
    // Nobody folds a branch that is looked at.
    QCOMPARE(data.isExpanded(), wasExpanded);
    QVERIFY(listener.expansions.isEmpty());
    other->closeWriteChannel();
    QVERIFY(other->waitForFinished());
    FavoritesData again;
    QVERIFY(again.load(group));
    QCOMPARE(names(again), expected);
}

void TestFavoritesData::othersWaitForWhatIsBeingTyped()
{
    FavoritesData data;
    data.attach(group);
    QTreeWidget tree;
    tree.addTopLevelItem(new QTreeWidgetItem);
    auto *const editor = new QSpinBox;
    tree.setItemWidget(tree.topLevelItem(0), 0, editor);
    tree.show();
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_1);
    QVERIFY(startOther("+x")->waitForFinished());
    QTest::qWait(500);
    QCOMPARE(data.count(), 0);
    tree.setFocus();
    QTRY_COMPARE(data.count(), 1);
}

void TestFavoritesData::manyProgramsAtOnce()
{
    constexpr int programs = 4;
    constexpr int each = 12;
    std::array<std::unique_ptr<QProcess>, programs> others;
    for (int i = 0; i < programs; ++i) {
        QString changes;
        for (int j = 0; j < each; ++j) {
            changes += QStringLiteral("+p%1x%2 ").arg(i).arg(j);
        }
        others[i] = startOther(changes);
    }
    for (const auto &other : others) {
        QVERIFY(other->waitForFinished());
        QCOMPARE(other->exitCode(), 0);
    }
    FavoritesData data;
    QVERIFY(data.load(group));
    QCOMPARE(data.count(), programs * each);
}

// A program that is killed soon after a change has lost nothing, and its user has not waited for the disk.
void TestFavoritesData::storesBehindTheUser()
{
    FavoritesData data;
    data.attach(group);
    store("NumberOfEntries", 0);
    QLockFile lock(QSettings().fileName() + ".favorites.lock"); // of another program
    QVERIFY(lock.tryLock());
    fill(data, "ab");
    QElapsedTimer clock;
    clock.start();
    QCoreApplication::processEvents();
    QVERIFY(clock.elapsed() < 90); // nor for another program
    QVERIFY(data.appendEntry(favorite("c"))); // while the others are being stored
    lock.unlock();
    QTRY_COMPARE_WITH_TIMEOUT(stored("NumberOfEntries").toInt(), 3, 1000);
    QVERIFY(data.moveEntry(2, 0));
    QCoreApplication::processEvents();
    QVERIFY(data.removeEntry(1));
    QTRY_COMPARE_WITH_TIMEOUT(stored("0").toString() + stored("1").toString(),
                              QStringLiteral("c*c shown*@CameraDeviceb*b shown*@CameraDevice"), 1000);
    QCOMPARE(names(data), "cb");
    QVERIFY(data.removeEntry(0));
    QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
    QCoreApplication::exec();
    QCOMPARE(stored("NumberOfEntries").toInt(), 1);
}

/* The other program: makes the changes one by one, and when it is to stay tells of its list whenever that has
 * changed, until its input ends. */
int other(const QStringList &arguments)
{
    useSettingsBelow(arguments.at(2));
    FavoritesData data;
    data.attach(group);
    const QStringList words = arguments.at(3).split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        change(data, word);
        QCoreApplication::processEvents();
    }
    if (arguments.at(4).isEmpty()) {
        return 0;
    }
    QTextStream out(stdout);
    const auto tell = [&] { out << names(data) << Qt::endl; };
    QObject::connect(&data, &FavoritesData::dataUpdated, tell);
    if (!words.isEmpty()) {
        data.setExpanded(!data.isExpanded());
        data.detach(nullptr); // these are the first changes to be stored
    }
    tell();
    std::unique_ptr<QThread> input(QThread::create([] { QTextStream(stdin).readAll(); }));
    QObject::connect(input.get(), SIGNAL(finished()), qApp, SLOT(quit()));
    input->start();
    const int result = QCoreApplication::exec();
    input->wait();
    return result;
}

/* Runs the tests, then uses the static store on its way out: changed with a save pending, and changed and
 * saved without an application. A fault there ends the program with another code. */
int main(int argc, char **argv)
{
    staticStore.setExpanded(true);
    int result = 0;
    {
        QApplication application(argc, argv);
        QCoreApplication::setOrganizationName("zelto");
        QCoreApplication::setApplicationName("tst_favoritesdata");
        if (argc == 5 && QString::fromLocal8Bit(argv[1]) == "--other") {
            return other(QCoreApplication::arguments());
        }
        QSettings().clear();
        staticStore.attach("Static");
        TestFavoritesData test;
        result = QTest::qExec(&test, argc, argv);
        staticStore.appendEntry(favorite("pending"));
    }
    const bool added = staticStore.appendEntry(favorite("late"));
    staticStore.detach(nullptr);
    const bool savedLate = staticStore.save("Static");
    return result != 0 ? result : added && !savedLate ? 0 : 1;
}

#include "tst_favoritesdata.moc"
