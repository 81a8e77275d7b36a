// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "ui_form.h"

#include <QDesignerFormEditorInterface>
#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>
#include <QTest>
#include <QTreeView>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>

namespace {

/*! Returns the form as \a maker ("uic" or "loader") makes it. */
std::unique_ptr<QWidget> madeBy(const QString &maker)
{
    if (maker == QLatin1String("uic")) {
        auto form = std::make_unique<QWidget>();
        Ui::Form().setupUi(form.get());
        return form;
    }
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(ZELTO_DESIGNER_PLUGIN)).path());
    QFile file(QStringLiteral(ZELTO_FORM));
    return std::unique_ptr<QWidget>(file.open(QFile::ReadOnly) ? loader.load(&file) : nullptr);
}

int topRows(const QWidget *tree)
{
    return tree->findChild<QTreeView *>()->model()->rowCount();
}

} // namespace

class TestDesigner : public QObject
{
    Q_OBJECT

private slots:
    void formsKeepTheirProperties_data();
    void formsKeepTheirProperties();
    void sampleIsShownInDesignerAlone();
};

void TestDesigner::formsKeepTheirProperties_data()
{
    QTest::addColumn<QString>("maker");
    QTest::newRow("uic") << QStringLiteral("uic");
    QTest::newRow("loader") << QStringLiteral("loader");
}

void TestDesigner::formsKeepTheirProperties()
{
    QFETCH(QString, maker);
    const auto form = madeBy(maker);
    QVERIFY(form);
    const auto *const tree = form->findChild<FeatureTreeWidget *>(QStringLiteral("tree"));
    QVERIFY(tree);
    QCOMPARE(tree->visibility(), GenApi::Expert);
    QVERIFY(!tree->isPollingVisible() && !tree->isViewAllFavoritesVisible());
    QCOMPARE(form->findChild<SearchEdit *>(QStringLiteral("search"))->placeholder(), QStringLiteral("Find"));
    QCOMPARE(form->findChild<HelpLink *>()->address(), QUrl(QStringLiteral("https://example.org/help")));
    QVERIFY(form->findChild<IpAddressWidget *>()->isMacAddressEditable());
    const auto *const width = form->findChild<ComboSlider *>(QStringLiteral("width"));
    QCOMPARE(width->maximum(), 1920);
    QCOMPARE(width->value(), 640);
    const auto *const gain = form->findChild<DoubleSpinBox *>(QStringLiteral("gain"));
    QCOMPARE(gain->minimum(), -1.5);
    QCOMPARE(gain->value(), 3.25);
    const auto *const exposure = form->findChild<TwoModeDoubleComboSlider *>(QStringLiteral("exposure"));
    QCOMPARE(exposure->maximum(), 1e6);
    QCOMPARE(exposure->value(), 5000.5);
    QCOMPARE(exposure->intValue(), exposure->positionFromValue(5000.5));
    QVERIFY(qAbs(exposure->intValue() - 540) < 2); // on the logarithmic scale
}

void TestDesigner::sampleIsShownInDesignerAlone()
{
    QPluginLoader loader(QStringLiteral(ZELTO_DESIGNER_PLUGIN));
    const auto *const plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    QDesignerFormEditorInterface designer;
    const auto widgets = plugin->customWidgets();
    for (QDesignerCustomWidgetInterface *const widget : widgets) {
        QVERIFY2(!widget->icon().isNull(), qPrintable(widget->name()));
        const std::unique_ptr<QWidget> loaded(widget->createWidget(nullptr));
        QCOMPARE(QString::fromLatin1(loaded->metaObject()->className()), widget->name());
        widget->initialize(&designer);
        const std::unique_ptr<QWidget> designed(widget->createWidget(nullptr));
        if (widget->name() == QLatin1String("FeatureTreeWidget")) {
            QCOMPARE(topRows(designed.get()), topRows(loaded.get()) + 1);
        }
    }
    QVERIFY(widgets.size() >= 7);
}

QTEST_MAIN(TestDesigner)
#include "tst_designer.moc"
