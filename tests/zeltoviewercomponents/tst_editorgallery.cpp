// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <support/memorycollection.h>
#include <viewer/editorgallery.h>

#include <zeltoviewercomponents/featuretree/checkboxeditor.h>
#include <zeltoviewercomponents/featuretree/inteditor.h>

#include <QLabel>
#include <QTest>

#include <algorithm>

class TestEditorGallery : public QObject
{
    Q_OBJECT

private slots:
    void showsAndWritesEachKind();
};

void TestEditorGallery::showsAndWritesEachKind()
{
    const auto sample = MemoryCollection::createSample();
    const QString device = "DeviceControl";
    sample->addInteger("ExposureTimeRaw", device, 5000, 10, 1000000, 1, "HexNumber");
    sample->setAlias("ExposureTime", "ExposureTimeRaw");
    sample->addFloat("BlackLevel", device, 12.25, -50.0, 50.0, 0.25, "Linear");
    EditorGallery gallery({sample});
    gallery.resize(520, 460);
    gallery.show();
    QVERIFY(QTest::qWaitForWindowActive(&gallery));
    int editors = 0;
    for (const QWidget *child : gallery.findChildren<QWidget *>()) {
        if (dynamic_cast<const AbstractItemEditor *>(child)) {
            ++editors;
            const QSize needed = child->minimumSizeHint();
            QVERIFY2(child->height() >= needed.height() && child->width() >= needed.width(),
                     child->metaObject()->className());
        }
    }
    QCOMPARE(editors, 9);

    auto *const box = gallery.findChild<CheckBoxEditor *>();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(box->isChecked());
    QCOMPARE(sample->node("ReverseX")->snapshot->valueString, "true");
    auto *const number = gallery.findChildren<IntEditor *>().constFirst();
    const QString before = number->text();
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, "9999999");
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(number->text(), before);
    const auto labels = gallery.findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.cbegin(), labels.cend(),
                        [](const QLabel *label) { return label->text().contains("is out of range"); }));
}

QTEST_MAIN(TestEditorGallery)
#include "tst_editorgallery.moc"
