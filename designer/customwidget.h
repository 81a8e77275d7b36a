// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QObject>
#include <QString>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <functional>

/*! \brief What Qt Designer is told of one class of widgets. */
struct CustomWidgetTraits
{
    QString className;
    QString header; //!< as a source includes it
    QString icon; //!< a file of the library's resources
    QString tooltip;
    QString properties; //!< that the form starts with, as elements of a .ui file
    std::function<QWidget *(QWidget *parent)> create;
    std::function<void(QWidget *widget)> fill; //!< shows something in Designer's forms; may be empty
};

/*! \brief One class of widgets in Qt Designer's box.
 *
 * Forms that programs load at run time are not filled: only Designer initializes its plug-ins with itself.
 */
class CustomWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    CustomWidget(CustomWidgetTraits traits, QObject *parent);
    ~CustomWidget() override;

    QString name() const override { return m_traits.className; }
    QString group() const override { return QStringLiteral("Camera Viewer"); }
    QString toolTip() const override { return m_traits.tooltip; }
    QString whatsThis() const override { return m_traits.tooltip; }
    QString includeFile() const override { return m_traits.header; }
    QIcon icon() const override { return QIcon(m_traits.icon); }
    QString domXml() const override;
    bool isContainer() const override { return false; }
    bool isInitialized() const override { return m_isInitialized; }
    void initialize(QDesignerFormEditorInterface *core) override;
    QWidget *createWidget(QWidget *parent) override;

private:
    CustomWidgetTraits m_traits;
    bool m_isInitialized = false;
    bool m_isInDesigner = false;
};
