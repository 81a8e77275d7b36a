// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Editors of an application's own: a colour picker for a white balance, and a curve for a look-up table.

#include <platform/parametercollection/simplecollection.h>
#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>
#include <zeltoviewercomponents/featuretree/featuretreedelegate.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>

#include <QApplication>
#include <QColorDialog>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTimer>

#include <cmath>

using namespace ParameterCollection;

/*! \brief Edits an integer that is a colour, as 0xRRGGBB. */
class ColourEditor : public QPushButton, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit ColourEditor(QWidget *parent)
        : QPushButton(parent)
    {
        connect(this, SIGNAL(clicked()), this, SLOT(choose()));
    }

    void setEditorData(EditorData data) override
    {
        if (const auto integer = data.ptrParameterData.dynamicCast<const IntegerParameterData>()) {
            setColour(QColor::fromRgb(QRgb(integer->value)));
            setEnabled(integer->isWritable);
        }
    }
    QVariant editorData() override { return QString::number(m_colour.rgb() & 0xffffff); }

signals:
    void edited(); // has the value written

private slots:
    void choose()
    {
        const QColor chosen = QColorDialog::getColor(m_colour, this);
        if (chosen.isValid()) {
            setColour(chosen);
            emit edited();
        }
    }

private:
    void setColour(const QColor &colour)
    {
        m_colour = colour;
        setText(colour.name());
        QPixmap sample(iconSize());
        sample.fill(colour);
        setIcon(sample);
    }

    QColor m_colour;
};

/*! \brief Edits the exponent of a curve: up and down with the mouse. */
class CurveEditor : public QWidget, public AbstractItemEditor
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setEditorData(EditorData data) override
    {
        const auto number = data.ptrParameterData.dynamicCast<const FloatParameterData>();
        if (number && !m_isDragged) {
            m_gamma = number->value;
            setToolTip(number->valueString);
            setEnabled(number->isWritable);
            update();
        }
    }
    QVariant editorData() override { return m_gamma; }

signals:
    void edited();

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        m_isDragged = true;
        const double part = qBound(0.02, event->position().y() / height(), 0.98);
        m_gamma = qBound(0.1, std::log(1.0 - part) / std::log(0.5), 4.0); // through the pointer in the middle
        update();
    }
    void mouseReleaseEvent(QMouseEvent * /*event*/) override
    {
        m_isDragged = false;
        emit edited();
    }
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainterPath curve(QPointF(0, height()));
        for (int x = 0; x <= width(); ++x) {
            curve.lineTo(x, height() * (1.0 - std::pow(double(x) / width(), m_gamma)));
        }
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text));
        painter.drawPath(curve);
    }

private:
    double m_gamma = 1.0;
    bool m_isDragged = false;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const auto camera = QSharedPointer<SimpleCollection>::create(QStringLiteral("@CameraDevice"));
    const auto colours = camera->addCategory(QStringLiteral("Colours"));
    colours.addInteger(QStringLiteral("WhiteBalance"), 0xfff0e0).setRange(0, 0xffffff);
    colours.addFloat(QStringLiteral("LUTGamma"), 0.45).setRange(0.1, 4.0).setUnit(QStringLiteral("curve"));

    FeatureTreeWidget tree;
    // Before rows get their editors: by the name of a feature, or by one of its properties.
    tree.delegate()->setEditorFactory(
        QStringLiteral("WhiteBalance"),
        [](QWidget *parent, const QSharedPointer<IParameter> &) { return new ColourEditor(parent); });
    tree.delegate()->setEditorFactory(
        QStringLiteral("Unit"), QStringLiteral("curve"),
        [](QWidget *parent, const QSharedPointer<IParameter> &) { return new CurveEditor(parent); });
    tree.addParameterCollection(camera, QStringLiteral("Camera"), QStringLiteral("@CameraDevice"), true);
    tree.expandTree();
    tree.show();
    if (application.arguments().contains(QLatin1String("--once"))) {
        QTimer::singleShot(0, &application, SLOT(quit()));
    }
    return QApplication::exec();
}

#include "main.moc"
