// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "messageboxcheckable.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QSettings>

#include <algorithm>

namespace {

constexpr int nothingRemembered = -1;

QString settingsGroup()
{
    return QStringLiteral("DoNotShowAgain");
}

// To QSettings, a key of nothing but slashes is empty too, and removing an empty key clears the group.
bool isEmptyKey(const QString &key)
{
    return std::all_of(key.cbegin(), key.cend(), [](QChar c) { return c == QLatin1Char('/'); });
}

} // namespace

MessageBoxCheckable::MessageBoxCheckable(const QString &key, QWidget *parent)
    : QMessageBox(parent)
    , m_settingsKey(key)
{
    init();
}

MessageBoxCheckable::MessageBoxCheckable(const QString &key, QMessageBox::Icon icon, const QString &title,
                                         const QString &text, QMessageBox::StandardButtons buttons,
                                         QWidget *parent, Qt::WindowFlags flags)
    : QMessageBox(icon, title, text, buttons, parent, flags)
    , m_settingsKey(key)
{
    init();
}

MessageBoxCheckable::~MessageBoxCheckable() = default;

void MessageBoxCheckable::init()
{
    if (isEmptyKey(m_settingsKey)) {
        return;
    }
    QSettings settings;
    settings.beginGroup(settingsGroup());
    // By way of the text: numbers that an int cannot hold are then refused, not cut off.
    bool isInt = false;
    const int result = settings.value(m_settingsKey, nothingRemembered).toString().toInt(&isInt);
    m_storedResult = isInt ? result : nothingRemembered;
    settings.endGroup();
}

bool MessageBoxCheckable::addCheckBoxWidget()
{
    if (m_checkBox || !qobject_cast<QGridLayout *>(layout()) || !findChild<QDialogButtonBox *>()) {
        return false;
    }
    m_checkBox = new QCheckBox(m_checkBoxText, this);
    m_checkBox->setMinimumHeight(m_checkBox->height());
    setCheckBox(m_checkBox);
    return true;
}

int MessageBoxCheckable::exec()
{
    if (m_storedResult != nothingRemembered) {
        return m_storedResult;
    }
    addCheckBoxWidget();

    const QPointer<MessageBoxCheckable> self = this;
    const int result = QDialog::exec();
    if (!self) {
        return result; // the parent was destroyed meanwhile, and this with it
    }
    // With no flag chosen a result of 0 matches, so that boxes without a choice can be silenced as well.
    const auto flags = static_cast<int>(m_saveResultButtons);
    const bool isSaveResult = result == 0 ? flags == 0 : (flags & result) == result;
    if (isSaveResult || m_saveResultButtonList.contains(clickedButton())) {
        saveDoNotShowAgain(result);
    }
    return result;
}

QString MessageBoxCheckable::checkBoxText() const
{
    return m_checkBoxText;
}

void MessageBoxCheckable::setCheckBoxText(const QString &text)
{
    m_checkBoxText = text;
    if (m_checkBox) {
        m_checkBox->setText(text);
    }
}

QMessageBox::StandardButtons MessageBoxCheckable::saveResultOnButton() const
{
    return m_saveResultButtons;
}

void MessageBoxCheckable::setSaveResultOnButton(QMessageBox::StandardButtons buttons)
{
    m_saveResultButtons = buttons;
}

void MessageBoxCheckable::setSaveResultOnButton(QAbstractButton *button)
{
    if (button) {
        m_saveResultButtonList.append(button);
    }
}

void MessageBoxCheckable::saveDoNotShowAgain(int result)
{
    if (!isChecked() || isEmptyKey(m_settingsKey)) {
        return;
    }
    QSettings settings;
    settings.beginGroup(settingsGroup());
    settings.setValue(m_settingsKey, result);
    settings.endGroup();
}

bool MessageBoxCheckable::reset()
{
    if (isEmptyKey(m_settingsKey)) {
        return false;
    }
    QSettings settings;
    settings.beginGroup(settingsGroup());
    settings.remove(m_settingsKey);
    settings.endGroup();
    return true;
}

bool MessageBoxCheckable::resetAll()
{
    QSettings settings;
    settings.beginGroup(settingsGroup());
    settings.remove(QString());
    settings.endGroup();
    return true;
}

bool MessageBoxCheckable::isChecked() const
{
    return m_checkBox && m_checkBox->checkState() == Qt::Checked;
}
