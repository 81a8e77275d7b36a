// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingscomparisonwidget.h"

#include "differencelist_p.h"
#include "searchedlistview_p.h"

#include <platform/core/livetexts.h>
#include <zeltoviewercomponents/standardicon.h>

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using Kind = SettingsDifference::Kind;

SettingsComparisonWidget::SettingsComparisonWidget(QWidget *parent)
    : QWidget(parent)
    , m_texts(new Core::LiveTexts(this))
    , m_list(new DifferenceList(this))
    , m_filter(new DifferenceFilter(this))
    , m_title(new QLabel(this))
    , m_kinds{new QCheckBox(this), new QCheckBox(this), new QCheckBox(this)}
    , m_go(addListAction(QT_TR_NOOP("&Go to Feature"), SLOT(goToFeature())))
    , m_takeOver(addListAction(QT_TR_NOOP("&Take Over"), SLOT(takeOver())))
    , m_takeOverAll(addListAction(QT_TR_NOOP("Take Over &All"), SLOT(takeOverAll())))
    , m_refresh(addListAction(QT_TR_NOOP("Compare A&gain"), SIGNAL(refreshRequested())))
{
    setObjectName(QStringLiteral("differences"));
    m_texts->add(this, &QWidget::setWindowTitle, [] { return tr("Differences"); });
    m_texts->add(this, &QWidget::setToolTip,
                 [] { return tr("In what the camera differs from a file, another camera or how it was"); });
    m_texts->add(m_takeOver, &QAction::setToolTip,
                 [] { return tr("Sets the values from there that are selected"); });
    m_texts->add(m_takeOverAll, &QAction::setToolTip,
                 [] { return tr("Sets all values from there that are shown"); });
    m_refresh->setIcon(standardIcon(QStyle::SP_BrowserReload));
    m_filter->setSourceModel(m_list);
    m_view = new SearchedListView(m_filter, this);
    m_texts->add(m_view, &QWidget::setAccessibleName, [] { return tr("Differences"); });
    layOut();
    for (QCheckBox *const kind : m_kinds) {
        kind->setChecked(true);
        connect(kind, SIGNAL(toggled(bool)), this, SLOT(onKindToggled()));
    }
    connect(m_view->searchBox(), SIGNAL(textChanged(QString)), this, SLOT(updateActions()));
    connect(m_view, SIGNAL(chosen()), this, SLOT(goToFeature()));
    connect(m_view, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(showMenu(QPoint)));
    connect(m_view->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(updateActions()));
    clear();
    m_texts->add([this] {
        showTitle();
        updateCounts();
        emit m_list->headerDataChanged(Qt::Horizontal, 0, m_list->columnCount() - 1);
    });
}

SettingsComparisonWidget::~SettingsComparisonWidget() = default;

QAction *SettingsComparisonWidget::addListAction(const char *text, const char *slot)
{
    auto *const action = new QAction(this);
    m_texts->add(action, &QAction::setText, [text] { return tr(text); });
    connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

void SettingsComparisonWidget::layOut()
{
    m_title->setWordWrap(true);
    QLineEdit *const search = m_view->searchBox();
    m_texts->add(search, &QLineEdit::setPlaceholderText, [] { return tr("Search differences"); });
    m_texts->add(search, &QWidget::setAccessibleName, [] { return tr("Search differences"); });
    m_view->header()->resizeSection(DifferenceList::NameColumn, 30 * fontMetrics().averageCharWidth());

    const auto buttonFor = [this](QAction *action) {
        auto *const button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::TabFocus);
        return button;
    };
    auto *const top = new QHBoxLayout;
    top->addWidget(search, 1);
    top->addWidget(buttonFor(m_refresh));
    auto *const kinds = new QHBoxLayout;
    for (const Kind kind : {Kind::Different, Kind::OnlyHere, Kind::OnlyThere}) {
        kinds->addWidget(m_kinds[static_cast<size_t>(kind)]);
    }
    kinds->addStretch(1);
    auto *const bottom = new QHBoxLayout;
    bottom->addWidget(buttonFor(m_takeOver));
    bottom->addWidget(buttonFor(m_takeOverAll));
    bottom->addStretch(1);
    auto *const layout = new QVBoxLayout(this);
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin) / 2;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_title);
    layout->addLayout(top);
    layout->addLayout(kinds);
    layout->addWidget(m_view, 1);
    layout->addLayout(bottom);
}

void SettingsComparisonWidget::setComparison(const QString &title, const FeatureSettings &here,
                                             const FeatureSettings &there)
{
    m_list->setDifferences(compare(here, there));
    m_hasComparison = true;
    m_other = title;
    showTitle();
    updateCounts();
    updateActions();
}

void SettingsComparisonWidget::clear()
{
    m_list->setDifferences({});
    m_hasComparison = false;
    showTitle();
    updateCounts();
    updateActions();
}

void SettingsComparisonWidget::setComparing(bool isPossible)
{
    m_canCompare = isPossible;
    updateActions();
}

void SettingsComparisonWidget::showTitle()
{
    m_title->setText(!m_hasComparison                      ? tr("Nothing is compared.")
                         : m_list->differences().isEmpty() ? tr("No difference from %1").arg(m_other)
                                                           : tr("Differences from %1").arg(m_other));
}

void SettingsComparisonWidget::setTakingOver(bool isPossible)
{
    m_canTakeOver = isPossible;
    updateActions();
}

void SettingsComparisonWidget::updateCounts()
{
    std::array<int, 3> counts{};
    for (const SettingsDifference &difference : m_list->differences()) {
        ++counts[static_cast<size_t>(difference.kind)];
    }
    const auto label = [this, &counts](Kind kind, const QString &text) {
        m_kinds[static_cast<size_t>(kind)]->setText(text.arg(counts[static_cast<size_t>(kind)]));
    };
    label(Kind::Different, tr("&Different (%1)"));
    label(Kind::OnlyHere, tr("Only &here (%1)"));
    label(Kind::OnlyThere, tr("Only th&ere (%1)"));
}

void SettingsComparisonWidget::onKindToggled()
{
    for (size_t kind = 0; kind < m_kinds.size(); ++kind) {
        m_filter->setShown(static_cast<Kind>(kind), m_kinds[kind]->isChecked());
    }
    updateActions();
}

void SettingsComparisonWidget::updateActions()
{
    const auto rows = m_view->selectionModel()->selectedRows();
    const bool hasValue = std::any_of(rows.cbegin(), rows.cend(), [this](const QModelIndex &row) {
        return m_filter->difference(row).kind != Kind::OnlyHere;
    });
    m_go->setEnabled(m_view->currentIndex().isValid());
    m_takeOver->setEnabled(m_canTakeOver && hasValue);
    m_takeOverAll->setEnabled(m_canTakeOver && m_filter->rowCount() > 0);
    m_refresh->setEnabled(m_hasComparison && m_canCompare);
}

// What is only here has no value there that could be taken.
void SettingsComparisonWidget::emitTakeOver(const QList<QModelIndex> &rows)
{
    QList<FeatureSettings::Setting> settings;
    for (const QModelIndex &row : rows) {
        if (m_filter->difference(row).kind != Kind::OnlyHere) {
            settings.append(m_filter->difference(row).there);
        }
    }
    if (!settings.isEmpty()) {
        emit takeOverRequested(FeatureSettings::of(settings));
    }
}

void SettingsComparisonWidget::takeOver()
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end()); // features may depend on those before them
    emitTakeOver(rows);
}

void SettingsComparisonWidget::takeOverAll()
{
    QList<QModelIndex> rows;
    for (int row = 0; row < m_filter->rowCount(); ++row) {
        rows.append(m_filter->index(row, 0));
    }
    emitTakeOver(rows);
}

void SettingsComparisonWidget::goToFeature()
{
    const QModelIndex current = m_view->currentIndex();
    if (current.isValid()) {
        const SettingsDifference &difference = m_filter->difference(current);
        const auto &feature = difference.kind == Kind::OnlyThere ? difference.there : difference.here;
        emit featureRequested(feature.nodeMap + QLatin1Char('/') + feature.name);
    }
}

void SettingsComparisonWidget::showMenu(const QPoint &pos)
{
    updateActions();
    QMenu menu(this);
    menu.addActions({m_go, m_takeOver, m_takeOverAll});
    menu.addSeparator();
    menu.addAction(m_refresh);
    menu.exec(m_view->viewport()->mapToGlobal(pos));
}
