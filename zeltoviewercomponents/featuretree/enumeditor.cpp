// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "enumeditor.h"

#include "accessibleeditors_p.h"
#include "editordatakeeper_p.h"
#include "editorintake_p.h"
#include "parentfont_p.h"
#include "parentpalette_p.h"
#include "sharedpalette_p.h"

#include <platform/core/guard.h>

#include <QApplication>
#include <QEvent>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

ZELTO_LOG_CATEGORY("zelto.viewer.components.featureTree.enumEditor")

namespace {

constexpr char setEditorDataName[] = "EnumEditor::setEditorData";

/*! \brief Keeps the news of a new style or font from a combo box that is being set up, for which it would
 * build the whole list of entries long before anybody opens it.
 */
class StyleChangeFilter : public QObject
{
public:
    explicit StyleChangeFilter(QComboBox *comboBox) { comboBox->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isNews = event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange;
        return isNews || QObject::eventFilter(watched, event);
    }
};

} // namespace

EnumEditor::EnumEditor(QWidget *parent)
    : QComboBox(parent)
    , m_keeper(new EditorDataKeeper(this, this))
    , m_parentFont(std::make_unique<ParentFont>(this))
{
    AccessibleEditors::install();
    setEditable(false);
    {
        const StyleChangeFilter filter(this);
        new ParentPalette(
            this,
            QStringLiteral(
                "margin-left:1px; margin-right:1px; margin-top:1px; margin-bottom:1px; padding-left: 4px;"));
        m_parentFont->update();
    }
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::NoContextMenu); // the box has none and would keep the row's from showing
    setAutoFillBackground(true);
}

EnumEditor::~EnumEditor()
{
    if (isPopupVisible()) {
        // Removes nothing: the filter lapses with this object.
        m_watchedPopup->removeEventFilter(nullptr);
    }
}

void EnumEditor::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    sharePalette(option);
}

void EnumEditor::setEditorData(EditorData data)
{
    const auto headline = [&data] {
        return QStringLiteral("!! Failed to retrieve entries for enumeration %1")
            .arg(EditorIntake::nodeName(data.ptrParameter.data()));
    };
    Core::guardedRun({logCategory(), setEditorDataName}, headline, [this, &data] {
        if (isPopupVisible()) {
            m_keeper->keep(data);
        } else {
            showSnapshot(data);
        }
    });
}

void EnumEditor::showSnapshot(const EditorData &data)
{
    m_keeper->keep(data);
    if (!data.ptrParameterData || data.ptrParameterData->type != ParameterType::Enumeration) {
        list({}, {});
        Core::Logging::createLogEntry(ELogLevel::Debug, logCategory(),
                                      QStringLiteral("%1 is called with non-enumeration node????")
                                          .arg(QLatin1String(setEditorDataName)));
        return;
    }
    const auto &snapshot = static_cast<const EnumParameterData &>(*data.ptrParameterData);
    list(snapshot.symbolicNames, snapshot.displayTexts);
    setCurrentIndex(shownIndex(data));
    setEnabled(EditorIntake::canBeChanged(snapshot));
}

// Fills the list, unless that is what it has: a new value comes far more often than another entry.
void EnumEditor::list(const QStringList &names, const QStringList &texts)
{
    if (names == m_names && texts == m_texts && count() == names.size()) {
        return;
    }
    m_names = names;
    m_texts = texts;
    clear();
    for (qsizetype i = 0; i < names.size(); ++i) {
        insertItem(count(), QIcon(), texts.value(i, names.at(i)), names.at(i));
    }
}

int EnumEditor::shownIndex(const EditorData &data) const
{
    if (!data.ptrParameterData->isReadable) {
        return -1;
    }
    const QString value = data.ptrParameterData->valueString;
    const int index = findData(value, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        Core::Logging::createLogEntry(
            ELogLevel::Debug, logCategory(),
            QStringLiteral("%1: %2. No entry in the combo box matches the current value %3")
                .arg(QLatin1String(setEditorDataName), EditorIntake::nodeName(data.ptrParameter.data()),
                     value));
    }
    return index;
}

QVariant EnumEditor::editorData()
{
    m_keeper->showAgainAfterCommit();
    return currentData(Qt::UserRole);
}

void EnumEditor::showPopup()
{
    QComboBox::showPopup();
    m_watchedPopup = QApplication::activePopupWidget();
    if (m_watchedPopup) {
        m_watchedPopup->installEventFilter(this);
    }
}

void EnumEditor::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_parentFont->update();
    }
}

void EnumEditor::wheelEvent(QWheelEvent *event)
{
    event->ignore(); // an entry is chosen, not scrolled to: the view gets the wheel
}

bool EnumEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_watchedPopup || event->type() != QEvent::Hide) {
        return QObject::eventFilter(watched, event);
    }
    m_watchedPopup->removeEventFilter(this);
    m_watchedPopup = nullptr;
    // The list hides before the choice arrives; the entries must stay until then.
    m_keeper->showAgainSoon();
    // The popup does not see its own hide event.
    return true;
}

bool EnumEditor::isPopupVisible() const
{
    return m_watchedPopup;
}
