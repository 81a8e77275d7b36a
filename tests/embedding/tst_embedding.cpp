// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// What a program that embeds the tree relies on besides its rows.

#include <support/logcapture.h>
#include <support/memorycollection.h>
#include <support/table.h>

#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>
#include <zeltoviewercomponents/featuretree/featuretreedelegate.h>
#include <zeltoviewercomponents/featuretree/featuretreeview.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/translations.h>

#include <QPushButton>
#include <QSettings>
#include <QTest>

using namespace ParameterCollection;

namespace {

/*! \brief An editor of an application's own, which adds one with each click. */
class Counter : public QPushButton, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit Counter(QWidget *parent)
        : QPushButton(parent)
    {
        connect(this, SIGNAL(clicked()), this, SIGNAL(edited()));
    }
    void setEditorData(EditorData data) override { setText(data.ptrParameterData->valueString); }
    QVariant editorData() override { return QString::number(text().toInt() + 1); }

signals:
    void edited();
};

EditorFactory counters()
{
    return [](QWidget *parent, const QSharedPointer<IParameter> &) { return new Counter(parent); };
}

EditorFactory nothing()
{
    return [](QWidget *, const QSharedPointer<IParameter> &) { return nullptr; };
}

using Change = void (*)(MemoryCollection &);
using SetUp = void (*)(FeatureTreeDelegate &);

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(SetUp)

class TestEmbedding : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }
    void ownEditors_data();
    void ownEditors();
    void unshownNodes_data();
    void unshownNodes();
    void translations();
};

void TestEmbedding::ownEditors_data()
{
    columns<SetUp, bool>({"setUp", "isOwn"});
    row<SetUp, bool>(
        "by name", [](FeatureTreeDelegate &d) { d.setEditorFactory("OffsetX", counters()); }, true);
    row<SetUp, bool>(
        "by full name",
        [](FeatureTreeDelegate &d) { d.setEditorFactory("@CameraDevice/OffsetX", counters()); }, true);
    row<SetUp, bool>(
        "by property", [](FeatureTreeDelegate &d) { d.setEditorFactory("Unit", "px", counters()); }, true);
    row<SetUp, bool>(
        "another value", [](FeatureTreeDelegate &d) { d.setEditorFactory("Unit", "us", counters()); }, false);
    row<SetUp, bool>(
        "left to the tree", [](FeatureTreeDelegate &d) { d.setEditorFactory("OffsetX", nothing()); }, false);
    row<SetUp, bool>(
        "left to the property",
        [](FeatureTreeDelegate &d) {
            d.setEditorFactory("OffsetX", nothing());
            d.setEditorFactory("Unit", "px", counters());
        },
        true);
    row<SetUp, bool>(
        "taken back",
        [](FeatureTreeDelegate &d) {
            d.setEditorFactory("Unit", "px", counters());
            d.setEditorFactory("Unit", "px", {});
        },
        false);
}

void TestEmbedding::ownEditors()
{
    QFETCH(SetUp, setUp);
    QFETCH(bool, isOwn);
    const auto camera = MemoryCollection::createSample();
    camera->node("OffsetX")->properties.insert("Unit", "px");
    FeatureTreeWidget tree(QStringLiteral("tree"));
    setUp(*tree.delegate());
    tree.addParameterCollection(camera, "Camera", "@CameraDevice", true);
    tree.expandTree();
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    QVERIFY(tree.showFeature("@CameraDevice/OffsetX"));
    auto *const editor = tree.treeView()->indexWidget(tree.GetCurrentIndex().siblingAtColumn(1));
    QCOMPARE(qobject_cast<Counter *>(editor) != nullptr, isOwn);
    if (isOwn) {
        QTest::mouseClick(editor, Qt::LeftButton);
        QTRY_COMPARE(qobject_cast<Counter *>(editor)->text(), "1");
        QTest::mouseClick(editor, Qt::LeftButton);
        QCOMPARE(camera->node("OffsetX")->writes, (QStringList{"1", "2"}));
    }
}

void TestEmbedding::unshownNodes_data()
{
    columns<Change, QString>({"change", "message"});
    const QString prefix = "zelto.viewer.components.featureTree.unshownNodes: @CameraDevice/";
    const QString undefined = ": is not shown: the visibility in its ParameterData is undefined";
    row<Change, QString>(
        "usable", [](MemoryCollection &) {}, "");
    row<Change, QString>(
        "feature without visibility",
        [](MemoryCollection &c) { c.node("Width")->snapshot->visibility = GenApi::UndefinedVisibility; },
        "2 " + prefix + "Width" + undefined);
    row<Change, QString>(
        "category without visibility",
        [](MemoryCollection &c) {
            c.node("ImageFormatControl")->snapshot->visibility = GenApi::UndefinedVisibility;
        },
        "2 " + prefix + "ImageFormatControl" + undefined);
    row<Change, QString>(
        "hidden on purpose",
        [](MemoryCollection &c) { c.node("Width")->snapshot->visibility = GenApi::Invisible; }, "");
    row<Change, QString>(
        "not implemented", [](MemoryCollection &c) { c.node("Width")->snapshot->isImplemented = false; },
        "0 " + prefix + "Width: is not shown: isImplemented in its ParameterData is false");
    row<Change, QString>(
        "nothing implemented", [](MemoryCollection &c) { c.node("Root")->snapshot->isImplemented = false; },
        "2 " + prefix + "Root: is not shown: isImplemented in its ParameterData is false");
    row<Change, QString>(
        "no snapshot", [](MemoryCollection &c) { c.node("Width")->snapshot.reset(); },
        "2 " + prefix + "Width: is not shown: parameterData() is null");
    row<Change, QString>(
        "no node", [](MemoryCollection &c) { c.node("ImageFormatControl")->children.append("Widht"); },
        "2 " + prefix
            + "Widht: is not shown: parameter() knows none of that name, which childNames() lists below "
              "@CameraDevice/ImageFormatControl");
    row<Change, QString>(
        "no name", [](MemoryCollection &c) { c.node("Width")->properties.remove("DisplayName"); },
        "2 " + prefix + "Width: is shown without a name: it lacks the property DisplayName");
}

void TestEmbedding::unshownNodes()
{
    QFETCH(Change, change);
    const auto camera = MemoryCollection::createSample();
    change(*camera);
    LogCapture log;
    for (int trees = 0; trees < 2; ++trees) { // told once
        FeatureTreeWidget tree(QStringLiteral("tree"));
        tree.addParameterCollection(camera, "Camera", "@CameraDevice", true);
        tree.expandTree();
        tree.show();
    }
    QTEST(log.entries().filter("unshownNodes").join('\n'), "message");
}

void TestEmbedding::translations()
{
    const auto label = [] { return FeatureTreeWidget().tr("Add to Favorites"); };
    const auto lamp = QSharedPointer<SimpleCollection>::create("@Lamp");
    lamp->root().addInteger("Pulse");
    const auto refusal = [&lamp] {
        try {
            lamp->parameter("Pulse")->setValueFromString("x");
        } catch (const GenICam::GenericException &exception) {
            return QString::fromUtf8(exception.what());
        }
        return QString();
    };
    installTranslations(QLocale("de_DE"));
    QCOMPARE(label(), "Zu den Favoriten hinzufügen");
    QVERIFY2(refusal().contains("erwartet"), qPrintable(refusal()));
    installTranslations(QLocale("is_IS"));
    QCOMPARE(label(), "Add to Favorites");
}

QTEST_MAIN(TestEmbedding)
#include "tst_embedding.moc"
