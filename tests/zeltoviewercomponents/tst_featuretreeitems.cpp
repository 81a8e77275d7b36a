// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <platform/core/exception.h>
#include <support/logcapture.h>
#include <support/memorycollection.h>
#include <zeltoviewercomponents/featuretree/featuretreefavoritesitem.h>
#include <zeltoviewercomponents/featuretree/featuretreehighlighter.h>
#include <zeltoviewercomponents/featuretree/featuretreeinodeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>

#include <QApplication>
#include <QBrush>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <limits>
#include <stdexcept>

using namespace ParameterCollection;

namespace {

class TooltipTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "CameraDevice") == 0 && qstrcmp(text, "Width_Tooltip") == 0
            ? QStringLiteral("<i>Breite</i>")
            : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestFeatureTreeItems : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void childrenAreOwnedAndNumbered();
    void searchesVisitExistingItemsOnly();
    void persistentEditors_data();
    void persistentEditors();
    void staticEditorTypes();
    void plainItemAnswers();
    void dummyHasNoFlags();

    void editorTypeOfParameter_data();
    void editorTypeOfParameter();
    void failingParameterGetsIntegerEditor();
    void nullParameter();
    void valueColumn_data();
    void valueColumn();
    void nameColumn();
    void toolTip();
    void nodeFlags_data();
    void nodeFlags();
    void writes_data();
    void writes();
    void unknownBooleanIsWritten();
    void lockedWriteAsksForACheck();
    void commandIsExecuted();
    void clampsIntoLimits_data();
    void clampsIntoLimits();
    void clampNeverFights();
    void snapshotsAreDroppedWithoutCallbacks();
    void namedItemDoesNotFollowItsParameter();
    void firstGoodSnapshotBringsItemToLife();
    void exceptionsStayInside();
    void nodeWithoutProperties();

private:
    FeatureTreeINodeItem *itemFor(const QSharedPointer<IParameter> &parameter, bool utf8 = false);

    QSharedPointer<MemoryCollection> m_collection;
    std::unique_ptr<FeatureTreeModel> m_model; // the items' extension
    std::unique_ptr<FeatureTreeItem> m_root;
};

void TestFeatureTreeItems::init()
{
    m_collection = MemoryCollection::createSample();
    m_model = std::make_unique<FeatureTreeModel>();
    m_root = std::make_unique<FeatureTreeItem>(QString(), m_model.get(), QString(), nullptr);
}

FeatureTreeINodeItem *TestFeatureTreeItems::itemFor(const QSharedPointer<IParameter> &parameter, bool utf8)
{
    const QString name = parameter ? QStringLiteral("@CameraDevice/x") : QString();
    auto *const item =
        new FeatureTreeINodeItem(m_collection, parameter, m_model.get(), name, m_root.get(), utf8);
    m_root->appendChild(item);
    return item;
}

void TestFeatureTreeItems::childrenAreOwnedAndNumbered()
{
    QList<QPointer<FeatureTreeItem>> children;
    for (int i = 0; i < 5; ++i) {
        children.append(new FeatureTreeItem(QString::number(i), nullptr, QString::number(i), m_root.get()));
        QCOMPARE(children[i]->row(), -1);
        m_root->appendChild(children[i]);
    }
    QCOMPARE(m_root->row(), 0);
    QCOMPARE(m_root->child(-1), nullptr);
    QCOMPARE(m_root->child(5), nullptr);
    QCOMPARE(m_root->removeChild(5), nullptr);
    QCOMPARE(m_root->childCount(), 5);

    FeatureTreeItem *const first = m_root->removeChild(0);
    QCOMPARE(first, children[0].data());
    QCOMPARE(static_cast<QObject *>(first)->parent(), nullptr);
    m_root->insertChild(first, 3);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(m_root->child(i)->row(), i);
        QCOMPARE(m_root->child(i)->parent(), m_root.get());
    }
    m_root->clearChildren();
    QCOMPARE(m_root->childCount(), 0);
    QVERIFY(
        std::all_of(children.cbegin(), children.cend(), [](const auto &child) { return child.isNull(); }));
}

void TestFeatureTreeItems::searchesVisitExistingItemsOnly()
{
    m_model->addParameterCollection(m_collection, QStringLiteral("Camera"), QStringLiteral("@CameraDevice"),
                                    false);
    const QString category = QStringLiteral("@CameraDevice/AcquisitionControl");
    QVERIFY(m_model->findItemByFullName(category, nullptr, 0).isValid());
    QVERIFY(!m_model->findItemByFullName(category.toUpper(), nullptr, 0).isValid());
    const QString feature = QStringLiteral("@CameraDevice/Gain");
    QVERIFY(!m_model->findItemByFullName(feature, nullptr, 0).isValid());
    m_model->rowCount(m_model->findItemByFullName(category, nullptr, 0));
    const QModelIndex found = m_model->findItemByFullName(feature, nullptr, 1);
    QCOMPARE(found.column(), 1);
    QCOMPARE(m_model->findItemByRole(FeatureTreeItem::GenicamNameRole, QStringLiteral("Gain"), nullptr, 1),
             found);
    QCOMPARE(m_model->findItem(m_model->getFeatureTreeItem(found), nullptr, 1), found);
    QVERIFY(!m_model->findItem(m_root.get(), nullptr, 0).isValid());
}

void TestFeatureTreeItems::persistentEditors_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("isPersistent");
    QTest::newRow("integer") << QStringLiteral("OffsetX") << false;
    QTest::newRow("integer slider") << QStringLiteral("Width") << true;
    QTest::newRow("float") << QStringLiteral("Gain") << true;
    QTest::newRow("float slider") << QStringLiteral("ExposureTime") << true;
    QTest::newRow("enumeration") << QStringLiteral("PixelFormat") << true;
    QTest::newRow("boolean") << QStringLiteral("ReverseX") << true;
    QTest::newRow("string") << QStringLiteral("DeviceUserID") << false;
    QTest::newRow("command") << QStringLiteral("TriggerSoftware") << true;
    QTest::newRow("category") << QStringLiteral("DeviceControl") << false;
    QTest::newRow("none") << QString() << true;
}

void TestFeatureTreeItems::persistentEditors()
{
    QFETCH(const QString, feature);
    QFETCH(const bool, isPersistent);
    QCOMPARE(itemFor(feature.isEmpty() ? nullptr : m_collection->parameter(feature))->usePersistentEditor(),
             isPersistent);
}

void TestFeatureTreeItems::staticEditorTypes()
{
    m_model->rebuildFavoriteItems();
    QCOMPARE(FeatureTreeItem::editorType(m_model->index(0, 0)), FeatureTreeItem::None);
    QCOMPARE(FeatureTreeItem::editorType(QModelIndex()), FeatureTreeItem::None);
    QCOMPARE(FeatureTreeItem::editorType(static_cast<FeatureTreeItem *>(m_root.get())),
             FeatureTreeItem::Category);
    QCOMPARE(FeatureTreeItem::editorType(static_cast<FeatureTreeItem *>(nullptr)), FeatureTreeItem::None);
}

void TestFeatureTreeItems::plainItemAnswers()
{
    FeatureTreeItem item(QStringLiteral("Name"), m_model.get(), QStringLiteral("Full"), nullptr);
    QCOMPARE(item.getVisibility(), GenApi::UndefinedVisibility);
    QVERIFY(!item.ShowMe(GenApi::Invisible));
    item.setVisibility(GenApi::Expert);
    item.SetIsFullRowItem(true);
    item.SetToolTip(QStringLiteral("tip"));

    QCOMPARE(item.data(0, Qt::DisplayRole), QVariant(QStringLiteral("Name")));
    QCOMPARE(item.data(1, Qt::DisplayRole), QVariant());
    QCOMPARE(item.data(1, Qt::ToolTipRole), QVariant(QStringLiteral("tip")));
    const int height = static_cast<int>(QFontMetricsF(QApplication::font()).height() + 10.0);
    QCOMPARE(item.data(0, Qt::SizeHintRole), QVariant(QSize(0, height)));
    QCOMPARE(item.data(0, Qt::ForegroundRole).value<QBrush>(),
             QPalette().brush(QPalette::Disabled, QPalette::Text));
    QCOMPARE(item.data(0, 257), QVariant(QStringLiteral("Full")));
    QCOMPARE(item.data(0, 261), QVariant(false));
    QCOMPARE(item.data(0, 262), QVariant(1));
    QCOMPARE(item.data(0, 266).toULongLong(), quint64(qHash(QStringLiteral("Full"), 0)));
    QCOMPARE(item.data(0, 268), QVariant(true));
    QCOMPARE(item.data(0, 270), QVariant(true));
    QCOMPARE(item.data(0, 288), QVariant(QStringLiteral("Full")));
    for (const int unanswered : {263, 264, 265, 267, 271, 287}) {
        QVERIFY(!item.data(0, unanswered).isValid());
    }
    QCOMPARE(int(item.flags(0)), 37);
    QCOMPARE(int(item.flags(1)), 32);
    QVERIFY(!item.HasDescription());
    item.SetDescription(QString());
    QVERIFY(!item.HasDescription());

    FeatureTreeFavoritesItem favorites(QStringLiteral("Favorites"), m_model.get(), nullptr);
    QVERIFY(favorites.ShowMe(GenApi::Beginner));
    QCOMPARE(favorites.data(0, 261), QVariant(true));
    QVERIFY(favorites.flags(0).testFlag(Qt::ItemIsDropEnabled));
    QVERIFY(!favorites.data(0, Qt::ForegroundRole).isValid());
}

void TestFeatureTreeItems::dummyHasNoFlags()
{
    FeatureTreeItem dummy(QStringLiteral("hint"), m_model.get(), QStringLiteral("Dummy"), nullptr);
    FeatureTreeItem other(QStringLiteral("hint"), m_model.get(), QStringLiteral("dummy"), nullptr);
    QCOMPARE(dummy.flags(0), Qt::NoItemFlags);
    QCOMPARE(dummy.flags(1), Qt::NoItemFlags);
    QCOMPARE(int(other.flags(0)), 37);
}

void TestFeatureTreeItems::editorTypeOfParameter_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("representation");
    QTest::addColumn<bool>("excluded");
    QTest::addColumn<FeatureTreeItem::EditorType>("editor");
    const QString none;
    QTest::newRow("integer, linear") << "Width"
                                     << "Linear" << false << FeatureTreeItem::IntegerSlider;
    QTest::newRow("integer, logarithmic") << "Width"
                                          << "Logarithmic" << false << FeatureTreeItem::IntegerSlider;
    QTest::newRow("integer, hexadecimal") << "Width"
                                          << "HexNumber" << false << FeatureTreeItem::Integer;
    QTest::newRow("float, logarithmic") << "Gain"
                                        << "Logarithmic" << false << FeatureTreeItem::FloatSlider;
    QTest::newRow("float, hexadecimal") << "Gain"
                                        << "HexNumber" << false << FeatureTreeItem::Float;
    QTest::newRow("string") << "DeviceUserID" << none << false << FeatureTreeItem::String;
    QTest::newRow("category") << "DeviceControl" << none << false << FeatureTreeItem::Category;
    QTest::newRow("excluded") << "Gain" << none << true << FeatureTreeItem::None;
}

void TestFeatureTreeItems::editorTypeOfParameter()
{
    QFETCH(const QString, feature);
    QFETCH(const QString, representation);
    QFETCH(const bool, excluded);
    QFETCH(const FeatureTreeItem::EditorType, editor);
    const auto parameter = m_collection->parameter(feature);
    auto *const node = dynamic_cast<MemoryNode *>(parameter.data());
    node->properties.insert(QStringLiteral("Representation"), representation);
    node->excluded = excluded;
    QCOMPARE(itemFor(parameter)->editorType(), editor);
    QCOMPARE(FeatureTreeINodeItem::editorType(parameter), editor);
}

void TestFeatureTreeItems::failingParameterGetsIntegerEditor()
{
    const auto gain = m_collection->parameter(QStringLiteral("Gain"));
    dynamic_cast<MemoryNode *>(gain.data())->before = [](const QString &operation) {
        if (operation == QLatin1String("type")) {
            throw Core::Exception::BaseException(QStringLiteral("gone"));
        }
    };
    LogCapture log;
    QCOMPARE(FeatureTreeINodeItem::editorType(gain), FeatureTreeItem::Integer);
    QCOMPARE(log.messages(),
             QStringList({QStringLiteral("Error getting editor type for node: '@CameraDevice/Gain'"),
                          QStringLiteral("FeatureTreeINodeItem::editorType:gone")}));
}

void TestFeatureTreeItems::nullParameter()
{
    auto *const item = itemFor(nullptr);
    QCOMPARE(item->editorType(), FeatureTreeItem::None);
    QCOMPARE(item->getDisplayedName(), QStringLiteral("Unknown"));
    QVERIFY(!item->ShowMe(GenApi::Guru));
    QVERIFY(item->ShowMe(GenApi::Invisible));
    QCOMPARE(item->data(1, Qt::DisplayRole), QVariant());
    QCOMPARE(item->childCount(), 0);
    QCOMPARE(item->getAccessMode(), GenApi::NI);
    item->setData(1, QStringLiteral("5"), Qt::EditRole);
    QCOMPARE(FeatureTreeINodeItem::editorType(static_cast<FeatureTreeINodeItem *>(nullptr)),
             FeatureTreeItem::None);
}

void TestFeatureTreeItems::valueColumn_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("implemented");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<bool>("writable");
    QTest::addColumn<QVariant>("display");
    QTest::addColumn<QVariant>("edit");
    QTest::addColumn<QString>("text");
    const QVariant none;
    QTest::newRow("transient editor")
        << "OffsetX" << true << true << true << QVariant("0") << QVariant("0") << "0";
    QTest::newRow("permanent editor") << "Gain" << true << true << true << none << QVariant("1.5") << "1.5";
    QTest::newRow("boolean") << "ReverseX" << true << true << true << none << none << "false";
    QTest::newRow("not implemented") << "Gain" << false << true << true << QVariant("<not implemented>")
                                     << QVariant("1.5") << "<not implemented>";
    QTest::newRow("not available") << "Gain" << true << false << false << QVariant("<not available>") << none
                                   << "<not available>";
    QTest::newRow("write-only") << "OffsetX" << true << false << true << QVariant("<not readable>") << none
                                << "<not readable>";
    QTest::newRow("write-only command") << "TriggerSoftware" << true << false << true << none << none << "";
    QTest::newRow("category") << "DeviceControl" << true << true << false << QVariant(QString()) << none
                              << "";
}

void TestFeatureTreeItems::valueColumn()
{
    QFETCH(const QString, feature);
    QFETCH(const bool, implemented);
    QFETCH(const bool, readable);
    QFETCH(const bool, writable);
    QFETCH(const QVariant, display);
    QFETCH(const QVariant, edit);
    QFETCH(const QString, text);
    const auto parameter = m_collection->parameter(feature);
    ParameterData &data = *dynamic_cast<MemoryNode *>(parameter.data())->snapshot;
    data.isImplemented = implemented;
    data.isReadable = readable;
    data.isWritable = writable;
    auto *const item = itemFor(parameter);
    QCOMPARE(item->data(1, Qt::DisplayRole), display);
    QCOMPARE(item->data(1, Qt::EditRole), edit);
    QCOMPARE(item->valueText(), text);
}

void TestFeatureTreeItems::nameColumn()
{
    auto *const exposure = itemFor(m_collection->parameter(QStringLiteral("ExposureTime")));
    QCOMPARE(exposure->data(0, Qt::DisplayRole), QVariant(QStringLiteral("Exposure Time [us]")));
    QCOMPARE(exposure->data(0, 257), QVariant(QStringLiteral("ExposureTime")));
    QCOMPARE(exposure->data(0, 258), QVariant(QStringLiteral("Duration of the exposure")));
    QCOMPARE(exposure->data(0, 261), QVariant(false));
    QVERIFY(exposure->data(0, 266) != exposure->data(0, 266));
    QVERIFY(!exposure->data(0, Qt::ForegroundRole).isValid());
    auto *const gain = itemFor(m_collection->parameter(QStringLiteral("Gain")));
    QCOMPARE(gain->data(0, Qt::DisplayRole), QVariant(QStringLiteral("Gain")));

    const auto locked = m_collection->parameter(QStringLiteral("Gain"));
    dynamic_cast<MemoryNode *>(locked.data())->snapshot->isWritable = false;
    QVERIFY(itemFor(locked)->data(0, Qt::ForegroundRole).isValid());
}

void TestFeatureTreeItems::toolTip()
{
    auto *const exposure = itemFor(m_collection->parameter(QStringLiteral("ExposureTime")));
    QCOMPARE(
        exposure->data(0, Qt::ToolTipRole).toString(),
        QStringLiteral(
            "<nobr><b>Exposure Time (ExposureTime)</b></nobr><br><nobr>Duration of the exposure</nobr>"));
    FeatureTreeHighlighter highlighter;
    highlighter.setText(QStringLiteral("B"));
    const auto odd = m_collection->addInteger(QStringLiteral("Odd"), QStringLiteral("Root"));
    odd->properties.insert(QStringLiteral("DisplayName"), QStringLiteral("<b>"));
    odd->properties.insert(QStringLiteral("Tooltip"), QStringLiteral("<hr>"));
    auto *const item = itemFor(odd);
    item->setHighlighter(&highlighter);
    QCOMPARE(
        item->data(0, Qt::ToolTipRole).toString(),
        QStringLiteral("<nobr><b>&lt;<span style='background-color: #ffff50; font-weight:bold'>b</span>&gt; "
                       "(Odd)</b></nobr><br><nobr>&lt;hr&gt;</nobr>"));

    TooltipTranslator translator;
    QCoreApplication::installTranslator(&translator);
    auto *const width = itemFor(m_collection->parameter(QStringLiteral("Width")));
    QCOMPARE(width->data(0, Qt::ToolTipRole).toString(),
             QStringLiteral("<nobr><b>Width (Width)</b></nobr><br><nobr><i>Breite</i></nobr>"));
    QCoreApplication::removeTranslator(&translator);
    const auto foreign = m_collection->addInteger(QStringLiteral("Größe"), QStringLiteral("Root"));
    foreign->properties.insert(QStringLiteral("Tooltip"), QStringLiteral("Size"));
    QCOMPARE(itemFor(foreign)->data(0, Qt::ToolTipRole).toString(),
             QStringLiteral("<nobr><b>Größe (Größe)</b></nobr><br><nobr>Size</nobr>"));
    auto *const category = itemFor(m_collection->parameter(QStringLiteral("DeviceControl")));
    QCOMPARE(category->data(0, Qt::ToolTipRole).toString(),
             QStringLiteral("<nobr><b>DeviceControl</b></nobr>"));
}

void TestFeatureTreeItems::nodeFlags_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<bool>("writable");
    QTest::addColumn<int>("name");
    QTest::addColumn<int>("value");
    QTest::newRow("transient, writable") << "OffsetX" << true << true << 37 << 34;
    QTest::newRow("transient, read-only") << "OffsetX" << true << false << 37 << 32;
    QTest::newRow("permanent, read-only") << "Gain" << true << false << 37 << 34;
    QTest::newRow("category is not dragged") << "DeviceControl" << true << false << 33 << 32;
}

void TestFeatureTreeItems::nodeFlags()
{
    QFETCH(const QString, feature);
    QFETCH(const bool, readable);
    QFETCH(const bool, writable);
    const auto parameter = m_collection->parameter(feature);
    ParameterData &data = *dynamic_cast<MemoryNode *>(parameter.data())->snapshot;
    data.isReadable = readable;
    data.isWritable = writable;
    auto *const item = itemFor(parameter);
    QTEST(int(item->flags(0)), "name");
    QTEST(int(item->flags(1)), "value");
}

void TestFeatureTreeItems::writes_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("utf8");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("written");
    QTest::addColumn<bool>("refused");
    const QStringList nothing;
    QTest::newRow("text") << "DeviceUserID" << false << QVariant("Düse") << QStringList("Düse") << false;
    QTest::newRow("not Latin-1") << "DeviceUserID" << false << QVariant("5 €") << nothing << true;
    QTest::newRow("UTF-8") << "DeviceUserID" << true << QVariant("5 €") << QStringList("5 €") << false;
    QTest::newRow("integer from a slider")
        << "Width" << false << QVariant(656) << QStringList("656") << false;
    QTest::newRow("boolean changes") << "ReverseX" << false << QVariant("1") << QStringList("1") << false;
    QTest::newRow("boolean has the value") << "ReverseX" << false << QVariant("0") << nothing << false;
    QTest::newRow("no boolean") << "ReverseX" << false << QVariant("off") << nothing << true;
}

void TestFeatureTreeItems::writes()
{
    QFETCH(const QString, feature);
    QFETCH(const bool, utf8);
    QFETCH(const QVariant, value);
    QFETCH(const QStringList, written);
    QFETCH(const bool, refused);
    const auto parameter = m_collection->parameter(feature);
    auto *const item = itemFor(parameter, utf8);
    item->setData(0, value, Qt::EditRole);
    item->setData(1, value, Qt::DisplayRole);
    QCOMPARE(dynamic_cast<MemoryNode *>(parameter.data())->writes, QStringList());
    bool thrown = false;
    try {
        item->setData(1, value, Qt::EditRole);
    } catch (const GenICam::InvalidArgumentException &exception) {
        thrown = QString::fromUtf8(exception.what()).contains(feature);
    }
    QCOMPARE(thrown, refused);
    QCOMPARE(dynamic_cast<MemoryNode *>(parameter.data())->writes, written);
}

void TestFeatureTreeItems::unknownBooleanIsWritten()
{
    const auto parameter =
        qSharedPointerDynamicCast<MemoryBoolean>(m_collection->parameter(QStringLiteral("ReverseX")));
    parameter->snapshot->isReadable = false;
    itemFor(parameter)->setData(1, QStringLiteral("0"), Qt::EditRole);
    QCOMPARE(parameter->writes, QStringList(QStringLiteral("0")));
}

void TestFeatureTreeItems::lockedWriteAsksForACheck()
{
    const auto parameter = m_collection->parameter(QStringLiteral("OffsetX"));
    auto *const node = dynamic_cast<MemoryNode *>(parameter.data());
    auto *const item = itemFor(parameter);
    node->snapshot->isWritable = false;
    item->setData(1, QStringLiteral("7"), Qt::EditRole);
    QCOMPARE(node->writes, QStringList());
    QCOMPARE(node->forcedChecks, 1);
}

void TestFeatureTreeItems::commandIsExecuted()
{
    const auto parameter = m_collection->parameter(QStringLiteral("TriggerSoftware"));
    auto *const node = dynamic_cast<MemoryNode *>(parameter.data());
    itemFor(parameter)->setData(1, QStringLiteral("1"), Qt::EditRole);
    QCOMPARE(node->executions, 1);
    QCOMPARE(node->forcedChecks, 1);
    QCOMPARE(node->writes, QStringList());
}

void TestFeatureTreeItems::clampsIntoLimits_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QStringList>("written");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("integer below") << "OffsetX" << 1.0 << 5.0 << 9.0 << QStringList("5");
    QTest::newRow("integer above") << "OffsetX" << 10.0 << 5.0 << 9.0 << QStringList("9");
    QTest::newRow("integer inside") << "OffsetX" << 7.0 << 5.0 << 9.0 << QStringList();
    QTest::newRow("limits crossed") << "OffsetX" << 7.0 << 9.0 << 5.0 << QStringList();
    QTest::newRow("float below") << "Gain" << -0.5 << 0.25 << 1.0 << QStringList("0.25");
    QTest::newRow("float limit is no number") << "Gain" << -0.5 << nan << 1.0 << QStringList();
    QTest::newRow("float is no number") << "Gain" << nan << 0.0 << 1.0 << QStringList();
}

void TestFeatureTreeItems::clampsIntoLimits()
{
    QFETCH(const QString, feature);
    QFETCH(const double, value);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const QStringList, written);
    const auto parameter = m_collection->parameter(feature);
    auto *const node = dynamic_cast<MemoryNode *>(parameter.data());
    auto *const item = itemFor(parameter);
    QSignalSpy spy(item, SIGNAL(nodeUpdated(int, FeatureTreeINodeItem *)));
    const auto change = [&](auto &data) {
        data.value = static_cast<decltype(data.value)>(value);
        data.minimum = static_cast<decltype(data.minimum)>(minimum);
        data.maximum = static_cast<decltype(data.maximum)>(maximum);
        data.valueString = QString::number(value);
    };
    if (auto *const integer = dynamic_cast<MemoryInteger *>(parameter.data())) {
        integer->edit<IntegerParameterData>(change);
        integer->publish();
    } else {
        auto *const floating = dynamic_cast<MemoryFloat *>(parameter.data());
        floating->edit<FloatParameterData>(change);
        floating->publish();
    }
    QCOMPARE(node->writes, written);
    QCOMPARE(spy.count(), written.isEmpty() ? 1 : 0);
    if (!written.isEmpty()) {
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(item->getParameterData()->valueString, written.constFirst());
    }
}

void TestFeatureTreeItems::clampNeverFights()
{
    const auto parameter =
        qSharedPointerDynamicCast<MemoryInteger>(m_collection->parameter(QStringLiteral("OffsetX")));
    auto *const item = itemFor(parameter);
    int attempts = 0;
    parameter->before = [&attempts](const QString &operation) {
        if (operation == QLatin1String("setValue")) {
            ++attempts;
            throw std::runtime_error("refused");
        }
    };
    QSignalSpy spy(item, SIGNAL(nodeUpdated(int, FeatureTreeINodeItem *)));
    parameter->edit<IntegerParameterData>([](auto &data) {
        data.value = -3;
        data.valueString = QStringLiteral("-3");
    });
    {
        LogCapture log;
        parameter->publish();
        QCOMPARE(log.messages(),
                 QStringList({QStringLiteral("Failed to adjust a node: OffsetX"),
                              QStringLiteral("FeatureTreeINodeItem::onParameterDataChanged: refused")}));
    }
    parameter->publish();
    QCOMPARE(attempts, 1);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(item->getParameterData()->valueString, QStringLiteral("-3"));
    // Another value is worth another attempt, even when it looks the same as text.
    parameter->edit<IntegerParameterData>([](auto &data) { data.value = -4; });
    {
        LogCapture log;
        parameter->publish();
    }
    QCOMPARE(attempts, 2);
}

void TestFeatureTreeItems::snapshotsAreDroppedWithoutCallbacks()
{
    const auto parameter =
        qSharedPointerDynamicCast<MemoryInteger>(m_collection->parameter(QStringLiteral("OffsetX")));
    auto *const item = itemFor(parameter);
    m_model->setGenICamCallbacksEnable(false);
    parameter->edit<IntegerParameterData>([](auto &data) { data.valueString = QStringLiteral("9"); });
    parameter->publish();
    QCOMPARE(item->data(1, Qt::EditRole), QVariant(QStringLiteral("0")));
    m_model->setGenICamCallbacksEnable(true);
    parameter->publish();
    QCOMPARE(item->data(1, Qt::EditRole), QVariant(QStringLiteral("9")));
}

void TestFeatureTreeItems::namedItemDoesNotFollowItsParameter()
{
    const auto parameter =
        qSharedPointerDynamicCast<MemoryInteger>(m_collection->parameter(QStringLiteral("OffsetX")));
    FeatureTreeINodeItem item(m_collection, parameter, QStringLiteral("Title"), m_model.get(),
                              QStringLiteral("x"), nullptr, false);
    parameter->edit<IntegerParameterData>([](auto &data) { data.valueString = QStringLiteral("9"); });
    parameter->publish();
    QCOMPARE(item.data(0, Qt::DisplayRole), QVariant(QStringLiteral("Title")));
    QCOMPARE(item.data(1, Qt::EditRole), QVariant(QStringLiteral("0")));
}

void TestFeatureTreeItems::firstGoodSnapshotBringsItemToLife()
{
    m_model->addParameterCollection(m_collection, QStringLiteral("Camera"), QStringLiteral("@CameraDevice"),
                                    false);
    const auto category =
        qSharedPointerDynamicCast<MemoryPlain>(m_collection->parameter(QStringLiteral("DeviceControl")));
    category->before = [](const QString &operation) {
        if (operation == QLatin1String("parameterData")) {
            throw std::runtime_error("not yet");
        }
    };
    auto *const item =
        new FeatureTreeINodeItem(m_collection, category, m_model.get(),
                                 QStringLiteral("@CameraDevice/DeviceControl"), m_root.get(), false);
    m_root->appendChild(item);
    QCOMPARE(item->getVisibility(), GenApi::UndefinedVisibility);
    QVERIFY(!item->ShowMe(GenApi::Guru));
    QCOMPARE(item->flags(0), Qt::NoItemFlags);
    QVERIFY(!item->data(0, Qt::DisplayRole).isValid());
    category->publish();
    QVERIFY(item->ShowMe(GenApi::Beginner));
    QVERIFY(item->hasChildren());
    QCOMPARE(item->existingChildCount(), 1);
}

void TestFeatureTreeItems::exceptionsStayInside()
{
    for (const QString &failing :
         {QStringLiteral("propertyAccess"), QStringLiteral("property"), QStringLiteral("name"),
          QStringLiteral("parameterData"), QStringLiteral("isExcluded")}) {
        const auto parameter = m_collection->parameter(QStringLiteral("Gain"));
        dynamic_cast<MemoryNode *>(parameter.data())->before = [&failing](const QString &operation) {
            if (operation == failing) {
                throw 1;
            }
        };
        LogCapture log;
        auto *const item = itemFor(parameter);
        QVERIFY(!log.entries().isEmpty());
        for (const int role : {0, 2, 3, 9, 257, 262, 266, 270}) {
            item->data(0, role);
            item->data(1, role);
        }
        item->ShowMe(GenApi::Guru);
        item->flags(1);
    }
}

void TestFeatureTreeItems::nodeWithoutProperties()
{
    class BareInteger : public MemoryInteger
    {
    public:
        using MemoryInteger::MemoryInteger;
        QSharedPointer<NodePropertyAccess> propertyAccess() const override { return {}; }
    };
    const auto parameter =
        QSharedPointer<BareInteger>::create(QStringLiteral("Bare"), QStringLiteral("Bare"));
    parameter->snapshot = QSharedPointer<IntegerParameterData>::create();
    auto *const item = itemFor(parameter);
    QCOMPARE(item->editorType(), FeatureTreeItem::Integer);
    QCOMPARE(item->data(0, FeatureTreeItem::GenicamNameRole), QVariant(QStringLiteral("Bare")));
}

QTEST_MAIN(TestFeatureTreeItems)
#include "tst_featuretreeitems.moc"
