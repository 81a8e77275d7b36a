// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <platform/core/exception.h>
#include <support/logcapture.h>
#include <support/memorycollection.h>
#include <support/table.h>
#include <zeltoviewercomponents/featuretree/featuretreefavoritesitem_p.h>
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
        return qstrcmp(context, "CameraDevice") == 0 && qstrcmp(text, "Width_Tooltip") == 0 ? "<i>Breite</i>"
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
    void staticEditorTypes();
    void plainItemAnswers();

    void editorTypeOfParameter_data();
    void editorTypeOfParameter();
    void nullParameter();
    void valueColumn_data();
    void valueColumn();
    void nameColumn();
    void toolTip_data();
    void toolTip();
    void writes_data();
    void writes();
    void writesThatAskForACheck();
    void clampsIntoLimits_data();
    void clampsIntoLimits();
    void clampNeverFights();
    void someItemsDoNotFollowTheirParameter();
    void firstGoodSnapshotBringsItemToLife();
    void nodeWithoutProperties();

private:
    FeatureTreeINodeItem *itemFor(const QSharedPointer<IParameter> &parameter, bool utf8 = false);
    FeatureTreeINodeItem *itemFor(const QString &name, bool utf8 = false);

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
    const QString name = parameter ? "@CameraDevice/x" : QString();
    auto *const item =
        new FeatureTreeINodeItem(m_collection, parameter, m_model.get(), name, m_root.get(), utf8);
    m_root->appendChild(item);
    return item;
}

FeatureTreeINodeItem *TestFeatureTreeItems::itemFor(const QString &name, bool utf8)
{
    return itemFor(m_collection->parameter(name), utf8);
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
    m_model->addParameterCollection(m_collection, "Camera", "@CameraDevice", false);
    const QString category = "@CameraDevice/AcquisitionControl";
    QVERIFY(m_model->findItemByFullName(category, nullptr, 0).isValid());
    QVERIFY(!m_model->findItemByFullName(category.toUpper(), nullptr, 0).isValid());
    const QString feature = "@CameraDevice/Gain";
    QVERIFY(!m_model->findItemByFullName(feature, nullptr, 0).isValid());
    m_model->rowCount(m_model->findItemByFullName(category, nullptr, 0));
    const QModelIndex found = m_model->findItemByFullName(feature, nullptr, 1);
    QCOMPARE(found.column(), 1);
    QCOMPARE(m_model->findItemByRole(FeatureTreeItem::GenicamNameRole, "Gain", nullptr, 1), found);
    QCOMPARE(m_model->findItem(m_model->getFeatureTreeItem(found), nullptr, 1), found);
    QVERIFY(!m_model->findItem(m_root.get(), nullptr, 0).isValid());
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
    FeatureTreeItem item("Name", m_model.get(), "Full", nullptr);
    QCOMPARE(item.getVisibility(), GenApi::UndefinedVisibility);
    QVERIFY(!item.ShowMe(GenApi::Invisible));
    item.setVisibility(GenApi::Expert);
    item.SetIsFullRowItem(true);
    item.SetToolTip("tip");

    const int height = static_cast<int>(QFontMetricsF(QApplication::font()).height() + 10.0);
    const QHash<int, QVariant> answers{{Qt::DisplayRole, "Name"},
                                       {Qt::ToolTipRole, "tip"},
                                       {Qt::SizeHintRole, QSize(0, height)},
                                       {257, "Full"},
                                       {261, false},
                                       {262, 1},
                                       {268, true},
                                       {270, true},
                                       {288, "Full"}};
    for (auto answer = answers.cbegin(); answer != answers.cend(); ++answer) {
        QCOMPARE(item.data(0, answer.key()), answer.value());
    }
    QCOMPARE(item.data(1, Qt::DisplayRole), QVariant());
    QCOMPARE(item.data(0, Qt::ForegroundRole).value<QBrush>(),
             QPalette().brush(QPalette::Disabled, QPalette::Text));
    QCOMPARE(item.data(0, 266).toULongLong(), quint64(qHash(QString("Full"), 0)));
    for (const int unanswered : {263, 264, 265, 267, 271, 287}) {
        QVERIFY(!item.data(0, unanswered).isValid());
    }
    QCOMPARE(int(item.flags(0)), 37);
    QCOMPARE(int(item.flags(1)), 32);
    item.SetDescription(QString());
    QVERIFY(!item.HasDescription());
    FeatureTreeItem dummy("hint", m_model.get(), "Dummy", nullptr);
    QCOMPARE(dummy.flags(0) | dummy.flags(1), Qt::NoItemFlags);

    FeatureTreeFavoritesItem favorites("Favorites", m_model.get(), nullptr);
    QVERIFY(favorites.ShowMe(GenApi::Beginner));
    QCOMPARE(favorites.data(0, 261), QVariant(true));
    QVERIFY(favorites.flags(0).testFlag(Qt::ItemIsDropEnabled));
    QVERIFY(!favorites.data(0, Qt::ForegroundRole).isValid());
}

void TestFeatureTreeItems::editorTypeOfParameter_data()
{
    using Item = FeatureTreeItem;
    columns<QString, QString, Item::EditorType, bool>(
        {"feature", "representation", "editor", "isPersistent"});
    row("integer", "OffsetX", "PureNumber", Item::Integer, false);
    row("integer, hexadecimal", "Width", "HexNumber", Item::Integer, false);
    row("integer, linear", "Width", "Linear", Item::IntegerSlider, true);
    row("integer, logarithmic", "Width", "Logarithmic", Item::IntegerSlider, true);
    row("float", "Gain", "HexNumber", Item::Float, true);
    row("float, logarithmic", "Gain", "Logarithmic", Item::FloatSlider, true);
    row("enumeration", "PixelFormat", "", Item::Enumeration, true);
    row("boolean", "ReverseX", "", Item::Boolean, true);
    row("string", "DeviceUserID", "", Item::String, false);
    row("command", "TriggerSoftware", "", Item::Command, true);
    row("category", "DeviceControl", "", Item::Category, false);
    row("excluded", "Excluded", "", Item::None, true);
    row("failing", "Failing", "", Item::Integer, false);
    row("none", "", "", Item::None, true);
}

void TestFeatureTreeItems::editorTypeOfParameter()
{
    QFETCH(const QString, feature);
    QFETCH(const QString, representation);
    m_collection->addFloat("Excluded", "Root")->excluded = true;
    m_collection->addFloat("Failing", "Root")->fail({"type"}, Core::Exception::BaseException("gone"));
    if (MemoryNode *const node = m_collection->node(feature)) {
        node->properties.insert("Representation", representation);
    }
    const auto parameter = m_collection->parameter(feature);
    auto *const item = itemFor(parameter);
    QTEST(item->editorType(), "editor");
    QTEST(item->usePersistentEditor(), "isPersistent");
    LogCapture log;
    QTEST(FeatureTreeINodeItem::editorType(parameter), "editor");
    QCOMPARE(log.messages(),
             feature != "Failing"
                 ? QStringList()
                 : QStringList({"Error getting editor type for node: '@CameraDevice/Failing'",
                                "FeatureTreeINodeItem::editorType:gone"}));
}

void TestFeatureTreeItems::nullParameter()
{
    auto *const item = itemFor(QSharedPointer<IParameter>());
    QCOMPARE(item->editorType(), FeatureTreeItem::None);
    QCOMPARE(item->getDisplayedName(), "Unknown");
    QVERIFY(!item->ShowMe(GenApi::Guru));
    QVERIFY(item->ShowMe(GenApi::Invisible));
    QCOMPARE(item->data(1, Qt::DisplayRole), QVariant());
    QCOMPARE(item->childCount(), 0);
    QCOMPARE(item->getAccessMode(), GenApi::NI);
    item->setData(1, "5", Qt::EditRole);
    QCOMPARE(FeatureTreeINodeItem::editorType(static_cast<FeatureTreeINodeItem *>(nullptr)),
             FeatureTreeItem::None);
}

void TestFeatureTreeItems::valueColumn_data()
{
    columns<QString, bool, bool, bool, QVariant, QVariant, QString, int>(
        {"feature", "implemented", "readable", "writable", "display", "edit", "text", "flags"});
    const QVariant none;
    const QVariant zero("0");
    const QVariant gain("1.5");
    row("transient editor", "OffsetX", true, true, true, zero, zero, "0", 34);
    row("transient editor, read-only", "OffsetX", true, true, false, zero, zero, "0", 32);
    row("permanent editor", "Gain", true, true, true, none, gain, "1.5", 34);
    row("permanent editor, read-only", "Gain", true, true, false, none, gain, "1.5", 34);
    row("boolean", "ReverseX", true, true, true, none, none, "false", 34);
    row("not implemented", "Gain", false, true, true, QVariant("<not implemented>"), gain,
        "<not implemented>", 34);
    row("not available", "Gain", true, false, false, QVariant("<not available>"), none, "<not available>",
        34);
    row("write-only", "OffsetX", true, false, true, QVariant("<not readable>"), none, "<not readable>", 34);
    row("write-only command", "TriggerSoftware", true, false, true, none, none, "", 34);
    row("category", "DeviceControl", true, true, false, QVariant(QString()), none, "", 32);
}

void TestFeatureTreeItems::valueColumn()
{
    QFETCH(const QString, feature);
    QFETCH(const bool, implemented);
    QFETCH(const bool, readable);
    QFETCH(const bool, writable);
    ParameterData &data = *m_collection->node(feature)->snapshot;
    data.isImplemented = implemented;
    data.isReadable = readable;
    data.isWritable = writable;
    auto *const item = itemFor(feature);
    QTEST(item->data(1, Qt::DisplayRole), "display");
    QTEST(item->data(1, Qt::EditRole), "edit");
    QTEST(item->valueText(), "text");
    QTEST(int(item->flags(1)), "flags");
    QCOMPARE(int(item->flags(0)), feature == "DeviceControl" ? 33 : 37); // a category is not dragged
}

void TestFeatureTreeItems::nameColumn()
{
    auto *const exposure = itemFor("ExposureTime");
    QCOMPARE(exposure->data(0, Qt::DisplayRole), QVariant("Exposure Time [us]"));
    QCOMPARE(exposure->data(0, 257), QVariant("ExposureTime"));
    QCOMPARE(exposure->data(0, 258), QVariant("Duration of the exposure"));
    QCOMPARE(exposure->data(0, 261), QVariant(false));
    QVERIFY(exposure->data(0, 266) != exposure->data(0, 266));
    QVERIFY(!exposure->data(0, Qt::ForegroundRole).isValid());
    QCOMPARE(itemFor("Gain")->data(0, Qt::DisplayRole), QVariant("Gain"));
    m_collection->node("Gain")->snapshot->isWritable = false;
    QVERIFY(itemFor("Gain")->data(0, Qt::ForegroundRole).isValid());
}

void TestFeatureTreeItems::toolTip_data()
{
    columns<QString, QString>({"name", "expected"});
    row("feature", "ExposureTime",
        "<nobr><b>Exposure Time (ExposureTime)</b></nobr><br><nobr>Duration of the exposure</nobr>");
    row("marked and escaped", "Odd",
        "<nobr><b>&lt;<span style='background-color: #ffff50; font-weight:bold'>b</span>&gt; (Odd)</b>"
        "</nobr><br><nobr>&lt;hr&gt;</nobr>");
    row("translated", "Width", "<nobr><b>Width (Width)</b></nobr><br><nobr><i>Breite</i></nobr>");
    row("not Latin", "Größe", "<nobr><b>Größe (Größe)</b></nobr><br><nobr>Size</nobr>");
    row("category", "DeviceControl", "<nobr><b>DeviceControl</b></nobr>");
}

void TestFeatureTreeItems::toolTip()
{
    QFETCH(const QString, name);
    const auto odd = m_collection->addInteger("Odd", "Root");
    odd->properties.insert({{"DisplayName", "<b>"}, {"Tooltip", "<hr>"}});
    m_collection->addInteger("Größe", "Root")->properties.insert("Tooltip", "Size");
    TooltipTranslator translator;
    QCoreApplication::installTranslator(&translator);
    FeatureTreeHighlighter highlighter;
    highlighter.setText(name == "Odd" ? "B" : "");
    auto *const item = itemFor(name);
    item->setHighlighter(&highlighter);
    QTEST(item->data(0, Qt::ToolTipRole).toString(), "expected");
}

void TestFeatureTreeItems::writes_data()
{
    columns<QString, bool, QVariant, QStringList, bool>({"feature", "utf8", "value", "written", "refused"});
    const QStringList nothing;
    row("text", "DeviceUserID", false, QVariant("Düse"), QStringList("Düse"), false);
    row("not Latin-1", "DeviceUserID", false, QVariant("5 €"), nothing, true);
    row("UTF-8", "DeviceUserID", true, QVariant("5 €"), QStringList("5 €"), false);
    row("integer from a slider", "Width", false, QVariant(656), QStringList("656"), false);
    row("boolean changes", "ReverseX", false, QVariant("1"), QStringList("1"), false);
    row("boolean is unknown", "Unreadable", false, QVariant("0"), QStringList("0"), false);
    row("no boolean", "ReverseX", false, QVariant("off"), nothing, true);
}

void TestFeatureTreeItems::writes()
{
    QFETCH(const QString, feature);
    QFETCH(const bool, utf8);
    QFETCH(const QVariant, value);
    m_collection->addBoolean("Unreadable", "Root")->snapshot->isReadable = false;
    auto *const item = itemFor(feature, utf8);
    item->setData(0, value, Qt::EditRole);
    item->setData(1, value, Qt::DisplayRole);
    QCOMPARE(m_collection->node(feature)->writes, QStringList());
    bool refused = false;
    try {
        item->setData(1, value, Qt::EditRole);
    } catch (const GenICam::InvalidArgumentException &exception) {
        refused = QString(exception.what()).contains(feature);
    }
    QTEST(refused, "refused");
    QTEST(m_collection->node(feature)->writes, "written");
}

void TestFeatureTreeItems::writesThatAskForACheck()
{
    MemoryNode *const locked = m_collection->node("OffsetX");
    auto *const item = itemFor("OffsetX");
    locked->snapshot->isWritable = false;
    item->setData(1, "7", Qt::EditRole);
    MemoryNode *const command = m_collection->node("TriggerSoftware");
    itemFor("TriggerSoftware")->setData(1, "1", Qt::EditRole);
    for (const MemoryNode *const node : {locked, command}) {
        QCOMPARE(node->writes, QStringList());
        QCOMPARE(node->executions, node == command ? 1 : 0);
        QCOMPARE(node->forcedChecks, 1);
    }
}

void TestFeatureTreeItems::clampsIntoLimits_data()
{
    columns<QString, double, double, double, QStringList, QString>(
        {"feature", "value", "minimum", "maximum", "written", "lacks"});
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    row("integer below", "OffsetX", 1.0, 5.0, 9.0, QStringList("5"), "");
    row("integer above", "OffsetX", 10.0, 5.0, 9.0, QStringList("9"), "");
    row("integer inside", "OffsetX", 7.0, 5.0, 9.0, QStringList(), "");
    row("limits crossed", "OffsetX", 7.0, 9.0, 5.0, QStringList(), "");
    row("float below", "Gain", -0.5, 0.25, 1.0, QStringList("0.25"), "");
    row("float below, without an upper limit", "Gain", -0.5, 0.25, infinity, QStringList("0.25"), "");
    row("float limit is no number", "Gain", -0.5, nan, 1.0, QStringList(), "");
    row("float limit is infinite", "Gain", 0.5, infinity, infinity, QStringList(), "");
    row("float is no number", "Gain", nan, 0.0, 1.0, QStringList(), "");
    row("float is infinite", "Gain", infinity, 0.0, 1.0, QStringList(), "");
    // A failed read leaves 0.
    row("integer not read", "OffsetX", 0.0, 5.0, 9.0, QStringList(), "value");
    row("float not read", "Gain", 0.0, 0.25, 1.0, QStringList(), "value");
    row("not implemented", "OffsetX", 0.0, 5.0, 9.0, QStringList(), "implementation");
    row("read-only", "OffsetX", 0.0, 5.0, 9.0, QStringList(), "access");
    row("device gone", "OffsetX", 0.0, 5.0, 9.0, QStringList(), "device");
}

void TestFeatureTreeItems::clampsIntoLimits()
{
    QFETCH(const QString, feature);
    QFETCH(const double, value);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const QStringList, written);
    QFETCH(const QString, lacks);
    auto *const item = itemFor(feature);
    itemFor(feature); // another row of the parameter, which does not write it again
    m_model->SetDeviceAlive(lacks != "device");
    QSignalSpy spy(item, SIGNAL(nodeUpdated(int, FeatureTreeINodeItem *)));
    const auto change = [&](auto &data) {
        data.value = static_cast<decltype(data.value)>(value);
        data.minimum = static_cast<decltype(data.minimum)>(minimum);
        data.maximum = static_cast<decltype(data.maximum)>(maximum);
        data.valueString = QString::number(value);
        data.isReadable = lacks != "value";
        data.isImplemented = lacks != "implementation";
        data.isWritable = lacks != "access";
    };
    if (const auto integer = m_collection->get<MemoryInteger>(feature)) {
        integer->update(change);
    } else {
        m_collection->get<MemoryFloat>(feature)->update(change);
    }
    QCOMPARE(m_collection->node(feature)->writes, written);
    QCOMPARE(spy.count(), written.isEmpty() ? 1 : 0);
    QTRY_COMPARE(spy.count(), 1);
    if (!written.isEmpty()) {
        QCOMPARE(item->getParameterData()->valueString, written.constFirst());
    }
}

void TestFeatureTreeItems::clampNeverFights()
{
    const auto parameter = m_collection->get<MemoryInteger>("OffsetX");
    auto *const item = itemFor(parameter);
    int attempts = 0;
    parameter->before = [&attempts](const QString &operation) {
        if (operation == "setValue") {
            ++attempts;
            throw std::runtime_error("refused");
        }
    };
    QSignalSpy spy(item, SIGNAL(nodeUpdated(int, FeatureTreeINodeItem *)));
    LogCapture log;
    parameter->update([](auto &data) {
        data.value = -3;
        data.valueString = "-3";
    });
    parameter->publish();
    QCOMPARE(log.messages(),
             QStringList({"Failed to adjust a node: OffsetX",
                          "FeatureTreeINodeItem::onParameterDataChanged: refused"}));
    QCOMPARE(attempts, 1);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(item->getParameterData()->valueString, "-3");
    // Another value is worth another attempt, even when it looks the same as text.
    parameter->update([](auto &data) { data.value = -4; });
    QCOMPARE(attempts, 2);
}

void TestFeatureTreeItems::someItemsDoNotFollowTheirParameter()
{
    const auto parameter = m_collection->get<MemoryInteger>("OffsetX");
    FeatureTreeINodeItem named(m_collection, parameter, "Title", m_model.get(), "x", nullptr, false);
    auto *const item = itemFor(parameter);
    m_model->setGenICamCallbacksEnable(false);
    parameter->update([](auto &data) { data.valueString = "9"; });
    QCOMPARE(item->data(1, Qt::EditRole), QVariant("0"));
    m_model->setGenICamCallbacksEnable(true);
    parameter->publish();
    QCOMPARE(item->data(1, Qt::EditRole), QVariant("9"));
    QCOMPARE(named.data(0, Qt::DisplayRole), QVariant("Title"));
    QCOMPARE(named.data(1, Qt::EditRole), QVariant("0"));
}

void TestFeatureTreeItems::firstGoodSnapshotBringsItemToLife()
{
    m_model->addParameterCollection(m_collection, "Camera", "@CameraDevice", false);
    const auto category = m_collection->get<MemoryPlain>("DeviceControl");
    category->fail({"parameterData"}, std::runtime_error("not yet"));
    auto *const item = itemFor(category);
    QCOMPARE(item->getVisibility(), GenApi::UndefinedVisibility);
    QVERIFY(!item->ShowMe(GenApi::Guru));
    QCOMPARE(item->flags(0), Qt::NoItemFlags);
    QVERIFY(!item->data(0, Qt::DisplayRole).isValid());
    category->publish();
    QVERIFY(item->ShowMe(GenApi::Beginner));
    QVERIFY(item->hasChildren());
    QCOMPARE(item->existingChildCount(), 1);
}

void TestFeatureTreeItems::nodeWithoutProperties()
{
    class BareInteger : public MemoryInteger
    {
    public:
        using MemoryInteger::MemoryInteger;
        QSharedPointer<NodePropertyAccess> propertyAccess() const override { return {}; }
    };
    const auto parameter = QSharedPointer<BareInteger>::create("Bare", "Bare");
    parameter->snapshot = QSharedPointer<IntegerParameterData>::create();
    auto *const item = itemFor(parameter);
    QCOMPARE(item->editorType(), FeatureTreeItem::Integer);
    QCOMPARE(item->data(0, FeatureTreeItem::GenicamNameRole), QVariant("Bare"));
}

QTEST_MAIN(TestFeatureTreeItems)
#include "tst_featuretreeitems.moc"
