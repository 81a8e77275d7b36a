// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/memorycollection.h>
#include <viewer/editorgallery.h>

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/inteditor.h>

#include <QApplication>
#include <QLabel>
#include <QPalette>
#include <QTest>

#include <algorithm>

class TestEditorGallery : public QObject
{
    Q_OBJECT

private slots:
    void showsAndWritesEachKind();
    void nothingIsClipped_data();
    void nothingIsClipped();

private:
    static QSharedPointer<MemoryCollection> collection();
};

QSharedPointer<MemoryCollection> TestEditorGallery::collection()
{
    auto sample = MemoryCollection::createSample();
    const QString device = QStringLiteral("DeviceControl");
    sample->addInteger(QStringLiteral("ExposureTimeRaw"), device, 5000, 10, 1000000, 1,
                       QStringLiteral("HexNumber"));
    sample->setAlias(QStringLiteral("ExposureTime"), QStringLiteral("ExposureTimeRaw"));
    sample->addFloat(QStringLiteral("BlackLevel"), device, 12.25, -50.0, 50.0, 0.25,
                     QStringLiteral("Linear"));
    sample->addInteger(QStringLiteral("PacketSize"), device, 1500, 0, 9000, 4, QStringLiteral("Logarithmic"));
    return sample;
}

void TestEditorGallery::showsAndWritesEachKind()
{
    const auto sample = collection();
    EditorGallery gallery({sample});
    gallery.resize(500, 450);
    gallery.show();
    QVERIFY(QTest::qWaitForWindowActive(&gallery));
    auto *const box = gallery.findChild<CheckBoxEditor *>();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(box->isChecked());
    QCOMPARE(sample->parameter(QStringLiteral("ReverseX"))->parameterData()->valueString,
             QStringLiteral("true"));
    auto *const number = gallery.findChildren<IntEditor *>().constFirst();
    const QString before = number->text();
    number->setFocus();
    QTest::keyClicks(number, QStringLiteral("9999999x"));
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(number->text(), before);
    const auto labels = gallery.findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.cbegin(), labels.cend(), [](const QLabel *label) {
        return label->text().contains(QLatin1String("is not allowed"));
    }));
}

void TestEditorGallery::nothingIsClipped_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << QPalette(QColor(239, 239, 239));
    QTest::newRow("dark") << QPalette(QColor(50, 50, 50));
}

void TestEditorGallery::nothingIsClipped()
{
    QFETCH(const QPalette, palette);
    QApplication::setPalette(palette);
    const auto sample = collection();
    EditorGallery gallery({sample});
    gallery.resize(520, 460);
    gallery.show();
    QVERIFY(QTest::qWaitForWindowExposed(&gallery));
    for (const QWidget *child : gallery.findChildren<QWidget *>()) {
        if (child->isVisible() && dynamic_cast<const AbstractItemEditor *>(child)) {
            QVERIFY2(child->height() >= child->minimumSizeHint().height()
                         && child->width() >= child->minimumSizeHint().width(),
                     child->metaObject()->className());
        }
    }
    if (qEnvironmentVariableIsSet("ZELTO_SCREENSHOT")) {
        QVERIFY(gallery.grab().save(qEnvironmentVariable("ZELTO_SCREENSHOT") + QLatin1Char('-')
                                    + QLatin1String(QTest::currentDataTag()) + QLatin1String(".png")));
    }
}

QTEST_MAIN(TestEditorGallery)
#include "tst_editorgallery.moc"
